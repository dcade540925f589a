#!/bin/sh
# Compares the interface of a built library with the stored one: signatures, types and their sizes.
#
#   check_abi.sh LIBRARY STORED
#
# An addition is a difference, too. Without --harmless a changed typedef or const would pass.
set -eu
library=$1
stored=$2

# Of a library without debugging information abidiff knows only the names, and finds no fault.
if ! objdump -h "$library" | grep -q '\.debug_info'; then
    echo "check_abi: $library has no debugging information to read the types from" >&2
    exit 1
fi
if ! report=$(abidiff --exported-interfaces-only --no-architecture --harmless "$stored" \
    "$library"); then
    {
        echo "$report"
        echo "check_abi: the library's interface is not the stored one."
        echo "If that is meant, raise the major version where programs that were compiled before"
        echo "break, the minor one where something is added, and store the interface: script/abi."
    } >&2
    exit 1
fi
