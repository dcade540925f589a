#!/bin/sh
# packages.sh CPACK BUILD_DIR PACKAGE_DIR makes the Debian packages of a build, looks into them and
# lets lintian judge.
. "$(dirname "$0")/../support/check.sh"
cpack=$1 build=$2 packages=$3

rm -rf "$packages"
log=$("$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$packages" 2>&1) || fail "$log"
rm -r "$packages/_CPack_Packages"
set -- "$packages"/*.deb

# The three together, as dpkg would lay them out.
names=
for package; do
    name=$(dpkg-deb --field "$package" Package)
    names="$names$name "
    dpkg-deb --extract "$package" "$work"
    for document in copyright changelog.gz changelog.Debian.gz; do
        [ -s "$work/usr/share/doc/$name/$document" ] || fail "$name has no $document"
    done
done
library=$(find "$work/usr/lib" -name libtarnlib.so)
soname=$(objdump -p "$library" | sed -n 's/^ *SONAME *//p')
expected="libtarnlib-dev $(echo "$soname" | sed 's/\.so\.//') tarncalc "
[ "$names" = "$expected" ] || fail "there are $names, not $expected"

# The loader, not a path in the program, finds the library.
! objdump -p "$work/usr/bin/tarncalc" | grep -E 'R(UN)?PATH' >&2 || fail "tarncalc has a path"
sum=$(LD_LIBRARY_PATH=${library%/*} "$work/usr/bin/tarncalc" "8'hFF + 8'h01")
[ "$sum" = "8'h00" ] || fail "tarncalc prints '$sum'"

# No report in Debian's archive asked for the packages; CPack's own scripts call ldconfig beside the
# trigger; and tarnlib.pc lies in /usr/lib unless the build was meant for /usr.
accepted=initial-upload-closes-no-bugs,maintscript-calls-ldconfig
accepted=$accepted,pkg-config-unavailable-for-cross-compilation
lintian --allow-root --fail-on error,warning --suppress-tags "$accepted" "$@" >&2 ||
    fail "lintian is not content"
