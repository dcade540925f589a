#!/bin/sh
# Installs into a new directory and moves that to another place.
#
#   install_tree.sh CMAKE BUILD_DIR PREFIX MOVED
set -eu
cmake=$1
build=$2
prefix=$3
moved=$4

rm -rf "$prefix" "$moved"
"$cmake" --install "$build" --prefix "$prefix" --strip >/dev/null
mv "$prefix" "$moved"

# No text of it may name the place, nor the sources or the build.
if grep -rF -e "$prefix" -e "$build" "$moved" >&2; then
    echo "install_tree: these lines hold for this machine alone" >&2
    exit 1
fi
