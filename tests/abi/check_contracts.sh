#!/bin/sh
# Shows that the contracts leave nothing in the normal build.
#
#   check_contracts.sh LIBRARY OBJECTS_WITHOUT_CONTRACTS... -- OBJECTS_OF_THE_LIBRARY...
#
# Each object that was compiled without contracts has the machine code of the library's object of
# the same name, and the library holds neither their words nor what prints them.
set -eu
export LC_ALL=C

library=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "check_contracts: $*" >&2
    exit 1
}

# Without the line that names the file.
machine_code() {
    objdump -dr --no-show-raw-insn "$1" | sed '/file format/d'
}

without=
while [ "$1" != -- ]; do
    without="$without ${1##*/src/}"
    machine_code "$1" >"$work/$(echo "${1##*/src/}" | tr / _)"
    shift
done
shift

for name in $without; do
    found=
    for object in "$@"; do
        case $object in */tarnlib_objects.dir/"$name" | */tarnlib_objects.dir/./"$name") found=$object ;; esac
    done
    [ -n "$found" ] || fail "the library has no object $name"
    bare=$work/$(echo "$name" | tr / _)
    machine_code "$found" >"$work/found"
    grep -q '<tarn_[A-Za-z0-9]*>:' "$bare" || fail "no export in $name"
    diff "$bare" "$work/found" >"$work/diff" || {
        head -20 "$work/diff" >&2
        fail "contracts change the machine code of $name"
    }
    echo "$name: the same with contracts and without, $(grep -c '>:$' "$bare") functions"
done

grep -aq tarn_UnsignedAdd "$library" || fail "$library can't be searched"
if grep -aq 'broken duty\|ReportBrokenDuty' "$library"; then
    fail "$library holds what reports a broken duty"
fi
