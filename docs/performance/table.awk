# Turns measured rows into tables in Markdown, one for each family: a line for an operation and its
# peers, a column for each width, and in it the time of a call beside what multiple it is of the
# peer's.
#
#   awk -f table.awk times.tsv

BEGIN { FS = "\t" }

# The line of the processor, then that of the columns.
/^#/ {
    if (processor == "") processor = substr($0, 3)
    next
}

# The peers of an operation take turns over the widths; a second one at the same width begins a line
# of its own.
{
    key = $1 SUBSEP $2
    width = $3
    if (!(key in lineCount)) {
        lineCount[key] = 0
        if (!($1 in operationCount)) families[++familyCount] = $1
        operationsOf[$1, ++operationCount[$1]] = $2
    }
    for (line = 1; (key, line, width) in cell; ++line) {}
    if (line > lineCount[key]) lineCount[key] = line
    text = Time($4) " (" sprintf("%.2f", $4 / $6) ")"
    cell[key, line, width] = $7 != 0 && $4 > $7 * $6 ? "**" text "**" : text
    if ($5 != lastPeer[key, line]) {
        from = lastPeer[key, line] == "" ? "" : ", from " Width(width) " "
        peers[key, line] = peers[key, line] from $5
        lastPeer[key, line] = $5
    }
    if (!((key, width) in counted)) ++widthCount[key]
    counted[key, width] = 1
    if (!(($1, width) in hasWidth)) widths[$1, ++familyWidths[$1]] = width
    hasWidth[$1, width] = 1
}

function Digits(number) {
    return sprintf(number < 9.995 ? "%.2f" : number < 99.95 ? "%.1f" : "%.0f", number)
}

function Time(ns) {
    if (ns < 9995) return Digits(ns)
    if (ns < 999500) return Digits(ns / 1000) "&nbsp;µs"
    return Digits(ns / 1000000) "&nbsp;ms"
}

function Width(bits) {
    return bits < 1000 ? bits : bits < 1000000 ? int(bits / 1000) "," sprintf("%03d", bits % 1000) \
        : int(bits / 1000000) "," sprintf("%03d,%03d", int(bits / 1000) % 1000, bits % 1000)
}

function Table(family,    sorted, count, i, j, k, line, swap, key) {
    count = familyWidths[family]
    for (i = 1; i <= count; ++i) sorted[i] = widths[family, i]
    for (i = 2; i <= count; ++i) {
        for (j = i; j > 1 && sorted[j - 1] + 0 > sorted[j] + 0; --j) {
            swap = sorted[j]
            sorted[j] = sorted[j - 1]
            sorted[j - 1] = swap
        }
    }
    printf "\n### tarnlib/%s.h\n\n![ns per call over bits](plots/%s.svg)\n\n", family, family
    printf "| operation | peer |", family
    for (i = 1; i <= count; ++i) printf " %s |", Width(sorted[i])
    printf "\n|---|---|"
    for (i = 1; i <= count; ++i) printf "--:|"
    printf "\n"
    for (k = 1; k <= operationCount[family]; ++k) {
        key = family SUBSEP operationsOf[family, k]
        if (IsMath(key)) continue
        for (line = 1; line <= lineCount[key]; ++line) {
            printf "| %s | %s |", operationsOf[family, k], peers[key, line]
            for (i = 1; i <= count; ++i) printf " %s |", cell[key, line, sorted[i]]
            printf "\n"
        }
    }
}

# A function of reals has no width; it stands at width 1.
function IsMath(key) {
    return widthCount[key] == 1 && (key, 1, 1) in cell
}

END {
    print "Measured on this processor: " processor "."
    for (f = 1; f <= familyCount; ++f) Table(families[f])
    print "\n### Math functions\n\n| function | peer | time |\n|---|---|--:|"
    for (f = 1; f <= familyCount; ++f) {
        for (k = 1; k <= operationCount[families[f]]; ++k) {
            key = families[f] SUBSEP operationsOf[families[f], k]
            if (!IsMath(key)) continue
            print "| " operationsOf[families[f], k] " | " peers[key, 1] " | " cell[key, 1, 1] " |"
        }
    }
}
