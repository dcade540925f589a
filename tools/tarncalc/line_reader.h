// Lines of the standard input.
#ifndef TARNCALC_LINE_READER_H
#define TARNCALC_LINE_READER_H

#include <string>

namespace tarncalc {

/** Reads the next line, without its newline; false at the end of the input. On a terminal, with
 *  line editing, history and a prompt, which tells whether the line continues a statement. */
bool ReadLine(std::string& line, bool continuesStatement);

}  // namespace tarncalc

#endif
