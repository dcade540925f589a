# Turns a guide into what Doxygen reads: the name of an export in backquotes, outside of code
# blocks, becomes a link to its reference, so that a name that does not exist is an error.

/^```/ { isCode = !isCode }

!isCode {
    rest = $0
    $0 = ""
    while (match(rest, /`tarn_[A-Za-z0-9]+`/)) {
        name = substr(rest, RSTART + 1, RLENGTH - 2)
        $0 = $0 substr(rest, 1, RSTART - 1) "\\link " name " `" name "`\\endlink"
        rest = substr(rest, RSTART + RLENGTH)
    }
    $0 = $0 rest
}

{ print }
