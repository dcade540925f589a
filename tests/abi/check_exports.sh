#!/bin/sh
# check_exports.sh LIBRARY HEADERS_DIR LIST compares what a built library exports, what the headers
# declare and the one list of exports; also the layout of the unprefixed data items and, of a shared
# object, its SONAME.
. "$(dirname "$0")/../support/check.sh"
library=$1 headers=$2 list=$3

# An exported declaration is a statement with TARNLIB_API; its name stands before the first bracket.
cat "$headers"/*.h | sed -e :a -e '/\\$/N; s/\\\n//; ta' | grep -v '^ *#' | tr '\n' ' ' |
    sed -e 's:/\*[^*]*\*\+\([^/*][^*]*\*\+\)*/: :g' | tr ';' '\n' |
    sed -n -e '/TARNLIB_API/{s/[[(].*//;s/ *$//;s/.*[ *]//;p}' | sort >"$work/headers"
case $library in
*.dll)
    nm --defined-only --format=posix "$library" | sort >"$work/symbols"
    objdump -p "$library" | sed -n 's/^\t\[ *[0-9]*\] \([^ +]*\)$/\1/p' | sort >"$work/library"
    ;;
*)
    nm -D --defined-only --format=posix "$library" | sort >"$work/symbols"
    cut -d ' ' -f 1 "$work/symbols" >"$work/library"
    ;;
esac
sort -c -u "$list" || fail "the list is not sorted, or holds a name twice"
for other in library headers; do
    differences=$(diff "$list" "$work/$other") ||
        fail "names that are only in the list (<) or only in the $other (>):
$differences"
done

# The items in their fixed order: eight bytes each, without gaps. A module's symbols have no size;
# there the next item shows it.
expected=
for item in ArrayAEB DirectAEB EventAEB VectorAAIB RealAAIB ShortRealAAIB ArrayAAIB ClassAAIB \
    VectorAEB BitAEB RealAEB ShortRealAEB ClassAEB; do
    address=$(sed -n "s/^$item [BDR] \([0-9a-f]*\) \(0*8\)\?\$/0x\1/p" "$work/symbols")
    [ -n "$address" ] || fail "$item is not a data item of 8 bytes"
    [ $((address)) -eq $((${expected:-$address})) ] || fail "$item is not right behind the last item"
    expected=$((address + 8))
done

case $library in *.dll) exit ;; esac
major=$(sed -n 's/^#define TARNLIB_VERSION_MAJOR //p' "$headers/version.h")
soname=$(objdump -p "$library" | sed -n 's/^ *SONAME *//p')
[ "$soname" = "libtarnlib.so.$major" ] || fail "SONAME is '$soname', not libtarnlib.so.$major"
