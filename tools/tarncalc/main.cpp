// tarncalc: a calculator for four-state Verilog.
#include <algorithm>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <tarnlib.h>

#include "characters.h"
#include "diagnostic.h"
#include "help.h"
#include "radix.h"
#include "session.h"

namespace {

using namespace tarncalc;

constexpr int kStatusOk = 0;
constexpr int kStatusInputOutput = 1;
constexpr int kStatusWrongInput = 2;

/** A text to run, or the name of a file of text. */
struct Input {
    bool isFile;
    std::string_view text;
};

struct Options {
    const Radix* radix = &kHexadecimal;
    bool wantsHelp = false;
    bool wantsVersion = false;
    std::string problem;  // the first one
    std::vector<Input> inputs;
};

/** A minus or two with a word behind: -q, --colour=no. A statement can't begin like that. */
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
        if (options.problem.empty()) options.problem = "unknown option " + Quoted(argument);
    } else {
        return false;
    }
    return true;
}

Options ReadArguments(const std::vector<std::string_view>& arguments) {
    Options options;
    bool optionsEnded = false;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (!optionsEnded && *argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && *argument == "-f") {
            if (std::next(argument) == arguments.end()) {
                options.problem = "-f needs the name of a file";
            } else {
                options.inputs.push_back({true, *++argument});
            }
        } else if (optionsEnded || !ReadOption(*argument, options)) {
            options.inputs.push_back({false, *argument});
        }
    }
    return options;
}

/** Runs everything and returns the worst outcome. */
Outcome RunInputs(const Options& options) {
    Session session(*options.radix);
    if (options.inputs.empty()) return session.RunStandardInput();
    Outcome worst = Outcome::kOk;
    for (const Input& input : options.inputs) {
        const Outcome outcome = input.isFile ? session.RunFile(std::string(input.text))
                                             : session.RunArgument(input.text);
        worst = std::max(worst, outcome);
    }
    return worst;
}

int StatusOf(Outcome outcome) {
    switch (outcome) {
        case Outcome::kOk:
            return kStatusOk;
        case Outcome::kInputOutputError:
            return kStatusInputOutput;
        case Outcome::kWrongInput:
            break;
    }
    return kStatusWrongInput;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const Options options = ReadArguments({argv + std::min(argc, 1), argv + argc});
    int status = kStatusOk;
    if (!options.problem.empty()) {
        std::cerr << "tarncalc: " << options.problem << "; tarncalc --help lists the options\n";
        status = kStatusWrongInput;
    } else if (options.wantsHelp) {
        std::cout << kHelp;
    } else if (options.wantsVersion) {
        std::cout << "tarncalc " TARNLIB_VERSION_STRING "\n";
    } else {
        status = StatusOf(RunInputs(options));
    }
    if (!std::cout.flush()) {
        std::cerr << "tarncalc: can't write the results\n";
        return kStatusInputOutput;
    }
    return status;
}
