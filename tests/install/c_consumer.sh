#!/bin/sh
# c_consumer.sh SOURCE PROGRAM VERSION builds a C program with what pkg-config tells of the installed
# library, and runs it.
. "$(dirname "$0")/../support/check.sh"

pkg-config --exact-version="$3" --print-errors tarnlib
# As the manual page says. Not quoted: several arguments.
$CC -std=c11 "$1" $(pkg-config --cflags --libs tarnlib) \
    -Wl,-rpath,"$(pkg-config --variable=libdir tarnlib)" -o "$2"
"$2"
