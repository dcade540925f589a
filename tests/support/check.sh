# What the scripts that check something begin with: fail says what is wrong, $work is a directory
# for the time of the script.
set -eu
export LC_ALL=C
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "$(basename "$0" .sh): $*" >&2
    exit 1
}
