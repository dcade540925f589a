// tarncalc: a calculator for four-state Verilog expressions.
#include <algorithm>
#include <iostream>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include <tarnlib.h>

#include "characters.h"
#include "diagnostic.h"
#include "evaluate.h"
#include "format.h"
#include "help.h"
#include "line_reader.h"
#include "parser.h"
#include "radix.h"

namespace {

using namespace tarncalc;

constexpr int kStatusOk = 0;
constexpr int kStatusInputOutput = 1;
constexpr int kStatusWrongInput = 2;

struct Options {
    const Radix* radix = &kHexadecimal;
    bool wantsHelp = false;
    bool wantsVersion = false;
    std::string_view unknown;  // the first option that doesn't exist
    std::vector<std::string_view> expressions;
};

/** A minus or two with a word behind: -q, --colour=no. An expression can't begin like that. */
bool LooksLikeOption(std::string_view argument) {
    const std::size_t word = argument.find_first_not_of('-');
    return (word == 1 || word == 2) && IsLetter(argument[word]) &&
           std::all_of(argument.begin() + 1, argument.end(),
                       [](char c) { return IsWord(c) || c == '-' || c == '='; });
}

/** Returns false for an argument that is no option. */
bool ReadOption(std::string_view argument, Options& options) {
    struct RadixOption {
        std::string_view spelling;
        const Radix* radix;
    };
    static constexpr RadixOption kRadixOptions[] = {
        {"-b", &kBinary}, {"-o", &kOctal}, {"-d", &kDecimal}, {"-x", &kHexadecimal}};
    for (const RadixOption& row : kRadixOptions) {
        if (argument == row.spelling) {
            options.radix = row.radix;
            return true;
        }
    }
    if (argument == "-h" || argument == "--help") {
        options.wantsHelp = true;
    } else if (argument == "--version") {
        options.wantsVersion = true;
    } else if (LooksLikeOption(argument)) {
        if (options.unknown.empty()) options.unknown = argument;
    } else {
        return false;
    }
    return true;
}

Options ReadArguments(const std::vector<std::string_view>& arguments) {
    Options options;
    bool optionsEnded = false;
    for (const std::string_view argument : arguments) {
        if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (optionsEnded || !ReadOption(argument, options)) {
            options.expressions.push_back(argument);
        }
    }
    return options;
}

/** What stands before a message; `line` is the number of the input's line, 0 for an argument. */
std::string MessagePrefix(std::size_t line) {
    return line == 0 ? "tarncalc: " : "tarncalc: line " + std::to_string(line) + ": ";
}

/** Prints the value of one expression, or what is wrong with it; false in the latter case. */
bool Run(std::string_view text, const Radix& radix, std::size_t line) {
    const std::string prefix = MessagePrefix(line);
    try {
        const Evaluation evaluation = Evaluate(Parse(text));
        const std::string result = FormatValue(evaluation.value, radix);
        for (const std::string_view literal : evaluation.cutLiterals) {
            std::cerr << prefix << "warning: " << Quoted(literal)
                      << " does not fit its width and loses its upper bits\n";
        }
        std::cout << result << '\n';
        return true;
    } catch (const ExpressionError& error) {
        std::cerr << prefix << error.what() << '\n' << CaretLines(text, error.Position());
    } catch (const std::bad_alloc&) {
        std::cerr << prefix << "not enough memory for the expression\n";
    }
    return false;
}

int RunInput(const Radix& radix) {
    int status = kStatusOk;
    std::string line;
    for (std::size_t number = 1; ReadLine(line); ++number) {
        const bool isBlank = std::all_of(line.begin(), line.end(), IsSpace);
        if (!isBlank && !Run(line, radix, number)) status = kStatusWrongInput;
        std::cout.flush();
    }
    if (!std::cin.bad()) return status;
    std::cerr << "tarncalc: can't read the standard input\n";
    return kStatusInputOutput;
}

int RunExpressions(const Options& options) {
    if (options.expressions.empty()) return RunInput(*options.radix);
    int status = kStatusOk;
    for (const std::string_view expression : options.expressions) {
        if (!Run(expression, *options.radix, 0)) status = kStatusWrongInput;
    }
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const Options options = ReadArguments({argv + std::min(argc, 1), argv + argc});
    int status = kStatusOk;
    if (!options.unknown.empty()) {
        std::cerr << "tarncalc: unknown option " << Quoted(options.unknown)
                  << "; tarncalc --help lists the options\n";
        status = kStatusWrongInput;
    } else if (options.wantsHelp) {
        std::cout << kHelp;
    } else if (options.wantsVersion) {
        std::cout << "tarncalc " TARNLIB_VERSION_STRING "\n";
    } else {
        status = RunExpressions(options);
    }
    if (!std::cout.flush()) {
        std::cerr << "tarncalc: can't write the results\n";
        return kStatusInputOutput;
    }
    return status;
}
