#!/bin/sh
# check_module.sh LIBRARY looks at what a built Windows module needs, and at what would crash it on
# some processors only.
. "$(dirname "$0")/../support/check.sh"

# Windows itself and its C library.
needed=$(objdump -p "$1" | sed -n 's/^.*DLL Name: //p' | sort | tr '\n' ' ')
[ "$needed" = "KERNEL32.dll msvcrt.dll " ] || fail "it needs $needed"
# With thread-local storage, Windows would not stop telling it of threads.
! objdump -h "$1" | grep -q ' \.tls ' || fail "it has thread-local storage"

# The stack is aligned to 16 bytes, so no vector wider than that may need its place to be aligned.
objdump -d --no-show-raw-insn "$1" | grep 'vmov.*[yz]mm[0-9]' >"$work/wide" ||
    fail "its code has no wide vectors"
! grep -m 5 -E 'v(mova|movdqa|movnt)' "$work/wide" >&2 || fail "aligned moves of wide vectors"
