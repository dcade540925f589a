# Turns a public header into what Doxygen reads; the headers stay as they read best.
#
#   awk -f filter.awk -v parameters=parameters.txt HEADER            the header as Doxygen reads it
#   awk -f filter.awk -v parameters=parameters.txt -v check=1 HEADER...  only checks, and says what
#                                                                    is wrong
#
# A labelled line of a comment becomes a paragraph with that title. A function's comment gets a line
# for each parameter, from the one list of their meanings: what is declared alike means the same in
# all functions. A function that shares the comment of another one (@copydoc) gets a copy with its
# own parameters, and what the comment says under "returns" only where it returns something. A
# banner becomes a group.

BEGIN {
    labelList = "widths,unknown,top word,writes,returns,aliasing,scratch,limits,source,example"
    labelCount = split(labelList, labels, ",")
    for (i = 1; i <= labelCount; ++i) rank[labels[i]] = i
    while ((getline line < parameters) > 0) {
        if (line ~ /^#/ || line == "") continue
        colon = index(line, ": ")
        meanings[substr(line, 1, colon - 1)] = substr(line, colon + 2)
    }
}

function Emit(text) {
    if (!check) print text
}

function Complain(text) {
    print FILENAME ":" FNR ": " text > "/dev/stderr"
    failed = 1
}

# What stands outside backquotes is text, whatever Doxygen or Markdown would make of it; names of
# exports become links.
function Escape(text,    parts, count, i, escaped) {
    count = split(text, parts, "`")
    for (i = 1; i <= count; ++i) {
        if (i % 2 == 1) {
            gsub(/[\\&<>#$%@*|"]/, "\\\\&", parts[i])
            gsub(/tarn_[A-Za-z0-9]+/, "#&", parts[i])
        }
        escaped = i == 1 ? parts[i] : escaped "`" parts[i]
    }
    return escaped
}

# The label that a line of a comment begins with, or nothing.
function LabelOf(line,    label) {
    if (line !~ /^[a-z]+( [a-z]+)?  +[^ ]/) return ""
    label = line
    sub(/  .*/, "", label)
    if (label in rank) return label
    Complain("no such label: " label)
    return ""
}

# The summary goes before the parameters, the labelled paragraphs behind them.
function ReadComment(lines, count,    i, label, last) {
    summary = body = ""
    last = ""
    for (i = 1; i <= count; ++i) {
        label = LabelOf(lines[i])
        if (label != "") {
            if (last != "" && rank[label] <= rank[last]) Complain("out of order: " label)
            last = label
            sub(/^[a-z]+( [a-z]+)? +/, "", lines[i])
            body = body (label == "returns" ? "\n@return " : "\n@par " label "\n") Escape(lines[i])
        } else if (last == "") {
            summary = summary "\n" Escape(lines[i])
        } else {
            body = body "\n" Escape(lines[i])
        }
    }
}

# A declaration's parameters, one for each comma outside inner brackets.
function ReadParameters(declaration, found,    list, depth, count, i, c, part) {
    list = declaration
    sub(/^[^(]*\(/, "", list)
    sub(/\)[^)]*$/, "", list)
    depth = count = 0
    part = ""
    for (i = 1; i <= length(list) + 1; ++i) {
        c = i <= length(list) ? substr(list, i, 1) : ","
        if (c == "(") ++depth
        if (c == ")") --depth
        if (c != "," || depth > 0) {
            part = part c
            continue
        }
        sub(/^ +/, "", part)
        found[++count] = part
        part = ""
    }
    return count
}

function ParameterName(parameter) {
    if (match(parameter, /\(\*[A-Za-z0-9]+\)/)) return substr(parameter, RSTART + 2, RLENGTH - 3)
    sub(/^.*[ *]/, "", parameter)
    return parameter
}

function EmitFunction(declaration,    name, found, count, i) {
    name = declaration
    sub(/\(.*/, "", name)
    sub(/.*[ *]/, "", name)
    if (shared != "") {
        if (!(shared in summaries)) Complain("no comment to share: " shared)
        summary = summaries[shared]
        body = bodies[shared]
    } else {
        summaries[name] = summary
        bodies[name] = body
    }
    Emit("/**" summary)
    count = ReadParameters(declaration, found)
    for (i = 1; i <= count; ++i) {
        if (found[i] in meanings) {
            Emit("@param " ParameterName(found[i]) " " Escape(meanings[found[i]]))
        } else {
            Complain("not in the list of parameters: " found[i])
        }
        used[found[i]] = 1
    }
    if (declaration ~ /^TARNLIB_API void tarn_/) sub(/\n@return [^@]*/, "\n", body)
    Emit(body "\n*/")
    Emit(declaration)
}

# Every comment that begins a line, with the declaration behind it.
/^\/\*\*/ {
    count = 0
    do {
        line = $0
        isLast = sub(/ *\*\/$/, "", line)
        sub(/^(\/\*\*| \*) /, "", line)
        sub(/^ /, "", line)
        comment[++count] = line
    } while (!isLast && (getline > 0))
    if (comment[1] ~ /^@file/) {
        Emit("/** @file")
        for (i = 2; i <= count; ++i) Emit(Escape(comment[i]))
        Emit("*/")
        next
    }
    shared = comment[1]
    if (!sub(/^@copydoc /, "", shared)) {
        shared = ""
        ReadComment(comment, count)
    }
    if ((getline declaration) <= 0) declaration = ""
    if (declaration ~ /^TARNLIB_API .*\(/) {
        while (declaration !~ /;/ && (getline line) > 0) {
            sub(/^ +/, " ", line)
            declaration = declaration line
        }
        EmitFunction(declaration)
    } else {
        Emit(shared != "" ? "/** @copydoc " shared " */" : "/**" summary body " */")
        Emit(declaration)
    }
    next
}

/^\/\*-+$/ {
    getline
    sub(/^ \* /, "")
    title = $0
    getline
    if (isGrouped) Emit("/** @} */")
    Emit("/** @name " Escape(title) " */\n/** @{ */")
    isGrouped = 1
    next
}

/^TARNLIB_END_C/ {
    if (isGrouped) Emit("/** @} */")
    isGrouped = 0
}

{ Emit($0) }

END {
    if (check) {
        for (parameter in meanings) {
            if (!(parameter in used)) {
                print parameters ": no function has a parameter " parameter > "/dev/stderr"
                failed = 1
            }
        }
    }
    exit failed
}
