#include "line_reader.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <unistd.h>

// Needs stdio's FILE before it.
#include <readline/history.h>
#include <readline/readline.h>

namespace tarncalc {

namespace {

bool StartTerminal() {
    if (isatty(STDIN_FILENO) == 0) return false;
    // The prompt and the echo are for the user, not for a file that takes the results.
    if (isatty(STDOUT_FILENO) == 0) rl_outstream = stderr;
    // An expression holds no file names to complete.
    rl_bind_key('\t', rl_insert);
    // Several pasted lines are several expressions, not one.
    rl_variable_bind("enable-bracketed-paste", "off");
    return true;
}

bool ReadTerminalLine(std::string& line, const char* prompt) {
    struct Free {
        void operator()(char* text) const { std::free(text); }
    };
    const std::unique_ptr<char, Free> text(readline(prompt));
    if (text == nullptr) {
        // What follows, the shell's prompt as a rule, begins on a line of its own.
        std::fputc('\n', rl_outstream);
        return false;
    }
    line = text.get();
    if (!line.empty()) add_history(line.c_str());
    return true;
}

}  // namespace

bool ReadLine(std::string& line, bool continuesStatement) {
    static const bool isTerminal = StartTerminal();
    if (isTerminal) return ReadTerminalLine(line, continuesStatement ? "... " : "> ");
    return static_cast<bool>(std::getline(std::cin, line));
}

}  // namespace tarncalc
