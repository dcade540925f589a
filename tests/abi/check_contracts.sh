#!/bin/sh
# check_contracts.sh LIBRARY OBJECT_DIR OBJECTS_WITHOUT_CONTRACTS... shows that the contracts leave
# nothing in the normal build: each object that was compiled without them has the machine code of the
# library's object of the same name, and the library holds neither their words nor what prints them.
. "$(dirname "$0")/../support/check.sh"
library=$1 objects=$2
shift 2

# Without the line that names the file.
machine_code() {
    objdump -dr --no-show-raw-insn "$1" | sed '/file format/d'
}

for without; do
    name=${without##*/src/}
    machine_code "$without" >"$work/without"
    machine_code "$objects/$name" >"$work/with"
    grep -q '<tarn_[A-Za-z0-9]*>:' "$work/without" || fail "no export in $name"
    diff "$work/without" "$work/with" >"$work/diff" ||
        fail "contracts change the machine code of $name: $(head -20 "$work/diff")"
done
grep -aq tarn_UnsignedAdd "$library" || fail "$library can't be searched"
! grep -aq 'broken duty\|ReportBrokenDuty' "$library" ||
    fail "$library holds what reports a broken duty"
