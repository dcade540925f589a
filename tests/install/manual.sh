#!/bin/sh
# Runs the installed tarncalc as its manual page shows it, and compares what page and --help name.
#
#   manual.sh PROGRAM_DIR MANUAL_DIR
set -eu
export LC_ALL=C
PATH=$1:$PATH
manual=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

grep -q '^\.TH TARNLIB 3 ' "$manual/man3/tarnlib.3"

# Characters that the language of manual pages writes in its own way.
sed -e 's/\\(aq/'\''/g; s/\\(dq/"/g; s/\\(ti/~/g; s/\\(ha/^/g; s/\\e/\\/g; s/\\-/-/g' \
    "$manual/man1/tarncalc.1" >"$work/page"

sed -n '/^\.EX/,/^\.EE/{/^\./!p;}' "$work/page" >"$work/expected"
grep '^\$ tarncalc ' "$work/expected" | while read -r prompt command; do
    echo "$prompt $command"
    eval "$command"
done >"$work/actual"
diff "$work/expected" "$work/actual" >&2 || failed=1

# Options, functions and conversions.
names() {
    grep -oE -e '(^| )--?[a-z]+' -e '\$[a-z][a-z0-9]*' -e '%[a-z%]' | tr -d ' ' | sort -u
}
tarncalc --help | names >"$work/help"
names <"$work/page" >"$work/names"
if ! diff "$work/help" "$work/names" >&2; then
    echo "manual: --help names what stands behind <, the manual page what stands behind >" >&2
    failed=1
fi
exit "$failed"
