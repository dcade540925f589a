# Turns measured rows into the gnuplot program that draws them: for each family a drawing with a
# panel for each operation, and one drawing with an operation or two of most families.
#
#   awk -f plots.awk -v folder=FOLDER -v kind=svg|png times.tsv | gnuplot

BEGIN {
    FS = "\t"
    chosen = "UnsignedCopy UnsignedAdd UnsignedMul UnsignedDiv UnsignedBitwiseAND UnsignedEq"
    chosen = chosen " Partselect PartselectAssign MemoryWordAssign LogicalShiftLeft ConvertToHex"
    chosen = chosen " UnsignedConvertToDec"
    columns = 4
}

/^#/ { next }

# Every line of a panel is a block of data: ours, and one for each peer.
{
    operation = $2
    if (!(operation in points)) {
        operations[++operationCount] = operation
        familyOf[operation] = $1
        if (!($1 in seen)) families[++familyCount] = $1
        seen[$1] = 1
    }
    if (!((operation, $3) in measured)) {
        ours[operation] = ours[operation] $3 " " $4 "\n"
        ++points[operation]
    }
    measured[operation, $3] = 1
    if (!((operation, $5) in peerData)) peers[operation, ++peerCount[operation]] = $5
    peerData[operation, $5] = peerData[operation, $5] $3 " " $6 "\n"
}

function Block(name, data) {
    printf "$%s << END\n%sEND\n", name, data
}

function Panel(operation,    i, name, style) {
    ++panelCount
    Block("ours" panelCount, ours[operation])
    for (i = 1; i <= peerCount[operation]; ++i) {
        Block("peer" panelCount "_" i, peerData[operation, peers[operation, i]])
    }
    printf "set title '%s' noenhanced\nplot ", operation
    style = 2
    for (i = 1; i <= peerCount[operation]; ++i) {
        name = peers[operation, i]
        printf "$peer%d_%d with linespoints linestyle %d title '%s' noenhanced, ", panelCount, i,
            name == "floor" ? 2 : ++style, name
    }
    printf "$ours%d with linespoints linestyle 1 title 'tarnlib'\n", panelCount
}

# A drawing of the operations list[1] to list[count].
function Draw(name, list, count,    rows, i, size) {
    rows = int((count + columns - 1) / columns)
    size = 300 * columns ", " 260 * rows
    if (kind == "png") print "set terminal pngcairo size " size " font 'sans,9'"
    else print "set terminal svg size " size " font 'sans-serif,11' background 'white'"
    print "set output '" folder "/" name "." kind "'"
    print "set multiplot layout " rows "," columns
    for (i = 1; i <= count; ++i) Panel(list[i])
    print "unset multiplot\nunset output"
}

END {
    print "set logscale x 2\nset logscale y 10\nset xrange [0.7:4e7]"
    print "set xtics ('1' 1, '32' 32, '1k' 1024, '32k' 32768, '1M' 1048576, '16M' 16000000)"
    print "set format y '10^{%L}'\nset grid"
    print "set xlabel 'bits' offset 0,0.5\nset ylabel 'ns' offset 1,0"
    print "set key top left reverse Left samplen 2"
    print "set style line 1 linecolor '#1f6fb4' linewidth 2 pointtype 7 pointsize 0.4"
    print "set style line 2 linecolor '#888888' linewidth 1.5 pointtype 7 pointsize 0.3 dashtype 2"
    print "set style line 3 linecolor '#d95f02' linewidth 1.5 pointtype 7 pointsize 0.3 dashtype 2"
    print "set style line 4 linecolor '#1b9e77' linewidth 1.5 pointtype 7 pointsize 0.3 dashtype 2"
    Draw("overview", list, split(chosen, list, " "))
    for (f = 1; f <= familyCount; ++f) {
        count = 0
        for (i = 1; i <= operationCount; ++i) {
            # One point is no line.
            if (familyOf[operations[i]] != families[f] || points[operations[i]] < 2) continue
            list[++count] = operations[i]
        }
        Draw(families[f], list, count)
    }
}
