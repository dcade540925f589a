#!/bin/sh
# install_tree.sh CMAKE BUILD_DIR PREFIX MOVED installs into a new directory and moves that to
# another place.
. "$(dirname "$0")/../support/check.sh"
build=$2 prefix=$3 moved=$4

rm -rf "$prefix" "$moved"
"$1" --install "$build" --prefix "$prefix" --strip >/dev/null
mv "$prefix" "$moved"
# No text of it may name the place, nor the sources or the build.
! grep -rF -e "$prefix" -e "$build" "$moved" >&2 || fail "these lines hold for this machine alone"
