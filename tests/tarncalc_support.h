// Runs tarncalc as a user does: arguments and standard input in, two texts and a status out.
#ifndef TARNCALC_SUPPORT_H
#define TARNCALC_SUPPORT_H

#include <string>
#include <string_view>
#include <vector>

using Arguments = std::vector<std::string>;

/** A call of tarncalc. */
struct Row {
    Arguments arguments;
    std::string input, output, error;
    int status;
};

/** Expressions (or options and expressions) and the lines that they print. */
struct Sum {
    Arguments arguments;
    std::string output;
};

/** A wrong expression, the message, and the column of the caret. */
struct Wrong {
    std::string expression, message;
    std::size_t column;
};

/** The exit status that std::system and waitpid tell of, -1 where there was none. */
int ExitStatus(int status);

/** Runs tarncalc and returns what it did, in a row with the same arguments and input. */
Row RunTarncalc(const Arguments& arguments, const std::string& input);

void Check(const Row& row);
void Check(const Sum& sum);
void Check(const Wrong& wrong);

std::string Repeat(std::string_view text, std::size_t count);

#endif
