#!/bin/sh
# Builds a C program with what pkg-config tells of the installed library, and runs it.
#
#   c_consumer.sh SOURCE PROGRAM VERSION
set -eu
source=$1
program=$2
version=$3

pkg-config --exact-version="$version" --print-errors tarnlib
# As the manual page says. Not quoted: several arguments.
$CC -std=c11 "$source" $(pkg-config --cflags --libs tarnlib) \
    -Wl,-rpath,"$(pkg-config --variable=libdir tarnlib)" -o "$program"
"$program"
