#include "session.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <new>
#include <optional>

#include "characters.h"
#include "diagnostic.h"
#include "line_reader.h"
#include "statement_parser.h"

namespace tarncalc {

namespace {

// Names of sources that are no files.
constexpr char kArgument[] = "";
constexpr char kStandardInput[] = "-";

/** What stands before a message. */
std::string Prefix(const std::string& name, const Location& location) {
    const std::string line = std::to_string(location.line);
    if (name == kArgument) return "tarncalc: ";
    if (name == kStandardInput) return "tarncalc: line " + line + ": ";
    return name + ':' + line + ':' + std::to_string(location.column + 1) + ": ";
}

}  // namespace

Session::Session(const Radix& radix) : interpreter_(radix, std::cout) {}

Outcome Session::RunArgument(std::string_view text) {
    Source source(LinesOf(std::string(text)));
    if (std::all_of(text.begin(), text.end(), IsSpace)) {
        source.ReadLine(false);
        Report(source, kArgument, source.CurrentLine().data(), "expected a statement");
        return Outcome::kWrongInput;
    }
    return Run(source, kArgument);
}

Outcome Session::RunFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    Source source([&file](std::string& line, bool) { return bool{std::getline(file, line)}; });
    // A folder can be opened, but not read.
    const bool canRead = file && (file.peek(), !file.bad());
    const Outcome outcome = canRead ? Run(source, path) : Outcome::kOk;
    if (canRead && !file.bad()) return outcome;
    std::cerr << "tarncalc: can't read " << Quoted(path) << ": " << std::strerror(errno) << '\n';
    return Outcome::kInputOutputError;
}

Outcome Session::RunStandardInput() {
    Source source([](std::string& line, bool continuesStatement) {
        std::cout.flush();
        return ReadLine(line, continuesStatement);
    });
    const Outcome outcome = Run(source, kStandardInput);
    if (!std::cin.bad()) return outcome;
    std::cerr << "tarncalc: can't read the standard input\n";
    return Outcome::kInputOutputError;
}

Outcome Session::Run(Source& source, const std::string& name) {
    StatementParser parser(source);
    Outcome outcome = Outcome::kOk;
    for (;;) {
        try {
            const std::optional<Statement> statement = parser.Next();
            if (!statement) return outcome;
            for (const std::string_view literal : interpreter_.Execute(*statement)) {
                const Location location = source.Locate(literal.data());
                std::cerr << Prefix(name, location) << "warning: " << Quoted(literal)
                          << " does not fit its width and loses its upper bits\n";
            }
            continue;
        } catch (const InputError& error) {
            Report(source, name, error.GetPlace(), error.what());
        } catch (const std::bad_alloc&) {
            Report(source, name, source.CurrentLine().data(), "not enough memory for this");
        }
        parser.SkipStatement();
        outcome = Outcome::kWrongInput;
    }
}

void Session::Report(const Source& source, const std::string& name, Place place,
                     std::string_view message) {
    const Location location = source.Locate(place);
    std::cerr << Prefix(name, location) << message << '\n'
              << CaretLines(location.text, location.column);
}

}  // namespace tarncalc
