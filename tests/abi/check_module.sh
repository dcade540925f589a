#!/bin/sh
# Looks at what a built Windows module needs, and at what would crash it on some processors only.
#
#   check_module.sh LIBRARY
set -eu
export LC_ALL=C

library=$1
failed=0

fail() {
    echo "check_module: $*" >&2
    failed=1
}

# Windows itself and its C library.
needed=$(objdump -p "$library" | sed -n 's/^.*DLL Name: //p' | sort | tr '\n' ' ')
[ "$needed" = "KERNEL32.dll msvcrt.dll " ] || fail "it needs $needed"

# With thread-local storage, Windows would not stop telling it of threads.
! objdump -h "$library" | grep -q ' \.tls ' || fail "it has thread-local storage"

# The stack is aligned to 16 bytes, so no vector wider than that may need its place to be aligned.
code=$(mktemp)
trap 'rm -f "$code"' EXIT
objdump -d --no-show-raw-insn "$library" >"$code"
wide='[yz]mm[0-9]'
grep -q "vmov.*$wide" "$code" || fail "its code has no wide vectors"
aligned=$(grep -E "v(mova|movdqa|movnt).*$wide" "$code" | head -n 5)
[ -z "$aligned" ] || fail "aligned moves of wide vectors, such as
$aligned"

exit "$failed"
