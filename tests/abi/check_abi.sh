#!/bin/sh
# check_abi.sh LIBRARY STORED compares the interface of a built library with the stored one:
# signatures, types and their sizes. An addition is a difference, too.
. "$(dirname "$0")/../support/check.sh"
library=$1 stored=$2

# Of a library without debugging information abidiff knows only the names, and finds no fault.
objdump -h "$library" | grep -q '\.debug_info' || fail "$library has no debugging information"
# Without --harmless a changed typedef or const would pass.
report=$(abidiff --exported-interfaces-only --no-architecture --harmless "$stored" "$library") ||
    fail "$report
The library's interface is not the stored one. If that is meant, raise the major version where
programs that were compiled before break, the minor one where something is added, and store the
interface: script/abi."
