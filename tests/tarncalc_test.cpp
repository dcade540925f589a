// tarncalc as a user meets it: arguments and standard input in, two texts and a status out. Most of
// this is told by transcripts, tests/tarncalc/*.txt:
//
//     -d; 3 - 7 -> -32'sd4; reg [7:0] a = 5
//         a + 1 -> 32'd6; 8'd1 + @) or 2 *@ -> expected an operand
//
// A row, which is a line with the indented ones below it, is one run of tarncalc. "; " separates
// its arguments. " -> " stands before each line that an argument prints, and at the end of a line
// that goes on in the next one.
// - @ marks a place that is complained of. The first line is then the message, and the run is over,
//   so that each message has an exit status. "or" separates arguments with the same message.
// - Behind the argument < the others are lines of the standard input instead.
// - <0a> is a byte by its code, <3*ab> is ababab.
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <pty.h>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>
#include <utility>
#include <vector>

#include <tarnlib.h>

namespace {

using Strings = std::vector<std::string>;

/** What a run of tarncalc wrote to its two outputs, and its exit status. */
using Result = std::tuple<std::string, std::string, int>;

constexpr char kInputAsFile[] = "/dev/stdin";

Result RunTarncalc(const Strings& arguments, const std::string& input = "") {
    const std::string base = testing::TempDir() + "tarncalc_test." + std::to_string(getpid());
    const std::string in = base + ".in", out = base + ".out", err = base + ".err";
    std::ofstream(in) << input;
    std::string command = "'" TARNCALC_PATH "'";
    for (std::string argument : arguments) {
        for (std::size_t at = 0; (at = argument.find('\'', at)) != std::string::npos; at += 4) {
            argument.replace(at, 1, "'\\''");
        }
        command += " '" + argument + '\'';
    }
    const int status = std::system((command + " <" + in + " >" + out + " 2>" + err).c_str());
    std::ostringstream output, error;
    output << std::ifstream(out).rdbuf();
    error << std::ifstream(err).rdbuf();
    for (const std::string& path : {in, out, err}) {
        std::filesystem::remove(path);
    }
    return {output.str(), error.str(), WEXITSTATUS(status)};
}

/** A run that a transcript tells of. */
struct Call {
    std::string where;  // its inputs
    Strings arguments;
    bool takesLines = false;
    std::string input;
    std::vector<std::pair<std::string, std::string>> lines;  // where, and what is printed
    std::string error;
    int status = 0;
};

/** Writes every "<3*ab>" out. */
std::string Repeat(std::string text) {
    for (std::size_t at = 0; (at = text.find('<', at)) != std::string::npos; ++at) {
        const std::size_t star = text.find_first_not_of("0123456789", at + 1);
        if (star == std::string::npos || text[star] != '*') continue;
        const std::size_t end = text.find('>', star);
        std::string all;
        for (int count = std::stoi(text.substr(at + 1)); count > 0; --count) {
            all.append(text, star + 1, end - star - 1);
        }
        text.replace(at, end - at + 1, all);
    }
    return text;
}

/** An input as tarncalc gets it and as a message shows it. */
struct Input {
    std::string text, shown, blanks;  // the blanks stand before the caret
    std::size_t column = 0;           // the marked one, from 1
};

Input ReadInput(const std::string& written) {
    Input input;
    std::string blanks;
    for (std::size_t at = 0; at < written.size(); ++at) {
        char byte = written[at], shown = byte;
        if (byte == '@') {
            input.column = input.text.size() + 1;
            input.blanks = blanks;
            continue;
        }
        if (byte == '<' && written.find_first_not_of("0123456789abcdef", at + 1) == at + 3) {
            byte = static_cast<char>(std::stoi(written.substr(at + 1, 2), nullptr, 16));
            shown = byte == '\t' ? '\t' : byte == '\r' ? ' ' : '?';
            at += 3;
        }
        input.text += byte;
        input.shown += shown;
        const bool continuesCharacter = (static_cast<unsigned char>(shown) & 0xC0U) == 0x80U;
        if (!continuesCharacter) blanks += shown == '\t' ? '\t' : ' ';
    }
    return input;
}

/** What is around the marked place, and the caret below it. */
std::string CaretLines(const Input& input) {
    const std::size_t place = input.column - 1, begin = std::max<std::size_t>(place, 60) - 60;
    const std::string front = begin > 0 ? "  ..." : "  ";
    const std::string back = place + 30 < input.shown.size() ? "...\n" : "\n";
    return front + input.shown.substr(begin, place + 30 - begin) + back +
           std::string(front.size(), ' ') + input.blanks.substr(begin) + "^\n";
}

Strings Split(const std::string& text, std::string_view separator) {
    Strings parts;
    for (std::size_t begin = 0, end = 0; end < text.size(); begin = end + separator.size()) {
        end = std::min(text.find(separator, begin), text.size());
        parts.push_back(text.substr(begin, end - begin));
    }
    return parts;
}

/** Adds an input, which stood with its lines between arrows. Returns whether the run is over. */
bool AddInput(Call& call, const std::string& where, const std::string& written,
              const Strings& parts) {
    const Input input = ReadInput(Repeat(written));
    std::string prefix = "tarncalc: ";
    call.where += where + written + '\n';
    if (written == "<") {
        call.takesLines = true;
    } else if (!call.takesLines) {
        call.arguments.push_back(input.text);
    } else {
        if (!call.input.empty()) call.input += '\n';
        const auto ends = std::count(call.input.begin(), call.input.end(), '\n');
        const std::string line = std::to_string(ends + 1), column = std::to_string(input.column);
        const bool isFile = !call.arguments.empty() && call.arguments.back() == kInputAsFile;
        prefix = isFile ? kInputAsFile + (':' + line) + ':' + column + ": "
                        : "tarncalc: line " + line + ": ";
        call.input += input.text;
    }
    if (input.column > 0) {
        const std::string message = parts.size() > 1 ? parts[1] : "no message";
        const bool isWarning = message.starts_with("warning: ");
        call.error += prefix + message + '\n' + (isWarning ? "" : CaretLines(input));
        if (!isWarning) call.status = 2;
    }
    for (std::size_t part = input.column > 0 ? 2 : 1; part < parts.size(); ++part) {
        call.lines.emplace_back(where + written, Repeat(parts[part]) + '\n');
    }
    return input.column > 0 && !call.takesLines;
}

void AddTranscript(const std::filesystem::path& path, std::vector<Call>& calls) {
    std::ifstream file(path);
    bool isOver = true;
    std::string line, next;
    for (int number = 1; std::getline(file, line); ++number) {
        const std::string where = path.filename().string() + ':' + std::to_string(number) + ": ";
        for (; line.ends_with(" ->") && std::getline(file, next); ++number) {
            line += next.substr(3);
        }
        if (line.empty() || line.starts_with("//")) continue;
        const bool goesOn = line.starts_with("    ");
        isOver = isOver || !goesOn;
        for (const std::string& piece : Split(line.substr(goesOn ? 4 : 0), "; ")) {
            const Strings parts = Split(piece, " -> ");
            for (const std::string& input : Split(parts.at(0), " or ")) {
                if (isOver) calls.emplace_back();
                isOver = AddInput(calls.back(), where, input, parts);
            }
        }
    }
}

std::vector<Call> ReadTranscripts() {
    std::vector<Call> calls;
    for (const auto& entry : std::filesystem::directory_iterator(TARNCALC_TRANSCRIPTS)) {
        AddTranscript(entry.path(), calls);
    }
    return calls;
}

TEST(Tarncalc, DoesWhatTheTranscriptsTell) {
    for (const Call& call : ReadTranscripts()) {
        const auto [output, error, status] = RunTarncalc(call.arguments, call.input);
        std::string_view rest = output;
        for (const auto& [where, line] : call.lines) {
            const std::string_view actual = rest.substr(0, rest.find('\n') + 1);
            EXPECT_EQ(actual, line) << where;
            rest.remove_prefix(actual.size());
        }
        EXPECT_EQ(rest, "") << call.where;
        EXPECT_EQ(error, call.error) << call.where;
        EXPECT_EQ(status, call.status) << call.where;
    }
}

/** Whatever the base, a result given back as an expression is the same value. */
TEST(Tarncalc, PrintsWhatReadsBackExactly) {
    Strings expressions{"-b"};
    for (const Call& call : ReadTranscripts()) {
        for (const auto& [where, line] : call.lines) {
            const bool isValue =
                line.size() < 200 && line.find_first_of("'.") != std::string::npos &&
                line.find_first_not_of("-.'0123456789abcdefhosxz\n") == std::string::npos;
            if (isValue) expressions.push_back(line);
        }
    }
    EXPECT_GT(expressions.size(), 300U);
    const Result values = RunTarncalc(expressions);
    for (const std::string base : {"-x", "-d", "-o"}) {
        expressions.front() = base;
        const Result printed = RunTarncalc(expressions);
        EXPECT_NE(printed, values);
        EXPECT_EQ(RunTarncalc({"-b"}, std::get<0>(printed)), values);
    }
}

TEST(Tarncalc, ReportsWhatItCannotReadOrWrite) {
    const std::string help = "; tarncalc --help lists the options\n";
    const std::string folder = "tarncalc: can't read /: Is a directory\n";
    const std::string missing = "tarncalc: can't read /no/such: No such file or directory\n";
    EXPECT_EQ(RunTarncalc({}), Result("", "", 0));
    EXPECT_EQ(RunTarncalc({"--version"}), Result("tarncalc " TARNLIB_VERSION_STRING "\n", "", 0));
    EXPECT_EQ(RunTarncalc({"-q"}), Result("", "tarncalc: unknown option -q" + help, 2));
    EXPECT_EQ(RunTarncalc({"-f"}), Result("", "tarncalc: -f needs the name of a file" + help, 2));
    EXPECT_EQ(RunTarncalc({"-d", "-f", "/no/such", "1", "-f", "/"}),
              Result("32'sd1\n", missing + folder, 1));
    EXPECT_EQ(RunTarncalc({"-d", "1", "2 +", "3"}),
              Result("32'sd1\n32'sd3\n", "tarncalc: expected an operand\n  2 +\n     ^\n", 2));
    EXPECT_EQ(RunTarncalc({"$display(\"%c\", 8'h00)"}), Result(std::string("\0\n", 2), "", 0));
    EXPECT_EQ(WEXITSTATUS(std::system("'" TARNCALC_PATH "' 1 > /dev/full 2> /dev/null")), 1);
}

/** The lines of --help that show a call give the results that they promise. */
TEST(Tarncalc, HelpTellsTheTruth) {
    const std::string help = std::get<0>(RunTarncalc({"--help"}));
    EXPECT_EQ(RunTarncalc({"-h", "1 +"}), Result(help, "", 0));
    int calls = 0;
    for (const std::string& line : Split(help, "\n")) {
        if (!line.starts_with("  tarncalc ")) continue;
        const Strings parts = Split(line, "\"");
        Strings arguments{parts.at(1)};
        if (parts[0].find('-') != std::string::npos) arguments.push_back(parts[0].substr(11, 2));
        const std::string result = parts.at(2).substr(parts[2].find_first_not_of(' ')) + '\n';
        EXPECT_EQ(RunTarncalc(arguments), Result(result, "", 0)) << line;
        ++calls;
    }
    EXPECT_EQ(calls, 20);
}

TEST(Tarncalc, EditsLinesAndRemembersThemOnATerminal) {
    int terminal = -1, status = -1;
    const pid_t process = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (process < 0) GTEST_SKIP() << "no pseudo-terminal: " << std::strerror(errno);
    if (process == 0) {
        // Ends a wait for keys that never come, and so the loop below.
        alarm(10);
        execl(TARNCALC_PATH, TARNCALC_PATH, "-d", nullptr);
        _exit(127);
    }
    // Each row is what the screen must show before the keys are typed. The second line is the first
    // one, fetched with Ctrl-P, its last digit rubbed out and typed anew. Ctrl-D on an empty line
    // ends the session.
    const std::pair<std::string, std::string> steps[] = {
        {"> ", "20 + 1\r"}, {"\n32'sd21\r\n> ", "\x10\x7f\x33\r"}, {"\n32'sd23\r\n> ", "\x04"}};
    const auto* step = std::begin(steps);
    std::string screen;
    char buffer[256];
    for (ssize_t count = 0; (count = read(terminal, buffer, sizeof buffer)) > 0;) {
        screen.append(buffer, static_cast<std::size_t>(count));
        if (step == std::end(steps) || screen.find(step->first) == std::string::npos) continue;
        const std::string& keys = (step++)->second;
        EXPECT_EQ(write(terminal, keys.data(), keys.size()), std::ssize(keys));
    }
    close(terminal);
    EXPECT_EQ(waitpid(process, &status, 0), process);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(step, std::end(steps)) << screen;
    EXPECT_TRUE(screen.ends_with("> \r\n")) << screen;
}

}  // namespace
