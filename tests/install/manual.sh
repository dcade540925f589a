#!/bin/sh
# manual.sh PROGRAM_DIR MANUAL_DIR runs the installed tarncalc as its manual page shows it, and
# compares what page and --help name.
. "$(dirname "$0")/../support/check.sh"
PATH=$1:$PATH
grep -q '^\.TH TARNLIB 3 ' "$2/man3/tarnlib.3"

# Characters that the language of manual pages writes in its own way.
sed -e 's/\\(aq/'\''/g; s/\\(dq/"/g; s/\\(ti/~/g; s/\\(ha/^/g; s/\\e/\\/g; s/\\-/-/g' \
    "$2/man1/tarncalc.1" >"$work/page"
sed -n '/^\.EX/,/^\.EE/{/^\./!p;}' "$work/page" >"$work/expected"
grep '^\$ tarncalc ' "$work/expected" | while read -r prompt command; do
    echo "$prompt $command"
    eval "$command"
done >"$work/actual"
diff "$work/expected" "$work/actual" >&2 || fail "the page shows < where tarncalc prints >"

# Options, functions and conversions.
names() {
    grep -oE -e '(^| )--?[a-z]+' -e '\$[a-z][a-z0-9]*' -e '%[a-z%]' | tr -d ' ' | sort -u
}
tarncalc --help | names >"$work/help"
names <"$work/page" >"$work/names"
diff "$work/help" "$work/names" >&2 || fail "--help alone names <, the manual page alone >"
