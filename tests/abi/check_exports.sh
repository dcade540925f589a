#!/bin/sh
# Compares what a built library exports, what the headers declare and the one list of exports.
#
#   check_exports.sh LIBRARY HEADERS_DIR LIST
#
# Also the layout of the unprefixed data items and, of a shared object, its SONAME. Says what is missing
# where.
set -eu
export LC_ALL=C

library=$1
headers=$2
list=$3

# The items in their fixed order: eight bytes each, without gaps.
items="ArrayAEB DirectAEB EventAEB VectorAAIB RealAAIB ShortRealAAIB ArrayAAIB ClassAAIB VectorAEB
    BitAEB RealAEB ShortRealAEB ClassAEB"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

fail() {
    echo "check_exports: $*" >&2
    failed=1
}

# An exported declaration is a statement with TARNLIB_API; its name stands before the first bracket.
declared_names() {
    cat "$headers"/*.h | grep -v '^ *#' | tr '\n' ' ' |
        sed -e 's:/\*[^*]*\*\+\([^/*][^*]*\*\+\)*/: :g' | tr ';' '\n' |
        sed -n -e '/TARNLIB_API/{s/[[(].*//;s/ *$//;s/.*[ *]//;p}'
}

# what_is_missing FILE IN_FILE: every name of FILE that IN_FILE lacks.
what_is_missing() {
    comm -23 "$work/$1" "$work/$2" | while read -r name; do
        echo "  $name"
    done
}

compare() {
    missing=$(what_is_missing "$1" "$2")
    [ -z "$missing" ] || fail "in the $1, but not in the $2:
$missing"
}

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
declared_names | sort >"$work/headers"
cp "$list" "$work/list"
sort -c -u "$work/list" || fail "the list is not sorted, or holds a name twice"

compare library list
compare list library
compare headers list
compare list headers

expected=
for item in $items; do
    # A module's symbols have no size; there the next item shows it.
    address=$(sed -n "s/^$item [BDR] \([0-9a-f]*\) \(0*8\)\?\$/\1/p" "$work/symbols")
    if [ -z "$address" ]; then
        fail "$item is not a data item of 8 bytes"
        break
    fi
    address=$((0x$address))
    if [ -n "$expected" ] && [ "$address" -ne "$expected" ]; then
        fail "$item does not lie right behind the item before it"
    fi
    expected=$((address + 8))
done

case $library in *.dll) exit "$failed" ;; esac
major=$(sed -n 's/^#define TARNLIB_VERSION_MAJOR //p' "$headers/version.h")
soname=$(objdump -p "$library" | sed -n 's/^ *SONAME *//p')
[ "$soname" = "libtarnlib.so.$major" ] || fail "SONAME is '$soname', not libtarnlib.so.$major"

exit "$failed"
