#include "tarncalc_support.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string QuotedForTheShell(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + '\'';
}

}  // namespace

int ExitStatus(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

Row RunTarncalc(const Arguments& arguments, const std::string& input) {
    const std::string base = testing::TempDir() + "tarncalc_test." + std::to_string(getpid());
    const std::string in = base + ".in", out = base + ".out", err = base + ".err";
    std::ofstream(in, std::ios::binary) << input;
    std::string command = QuotedForTheShell(TARNCALC_PATH);
    for (const std::string& argument : arguments) {
        command += ' ' + QuotedForTheShell(argument);
    }
    const int status = std::system((command + " <" + in + " >" + out + " 2>" + err).c_str());
    std::ostringstream output, error;
    output << std::ifstream(out, std::ios::binary).rdbuf();
    error << std::ifstream(err, std::ios::binary).rdbuf();
    for (const std::string& path : {in, out, err}) {
        std::remove(path.c_str());
    }
    return {arguments, input, output.str(), error.str(), ExitStatus(status)};
}

void Check(const Row& row) {
    const Row actual = RunTarncalc(row.arguments, row.input);
    std::string name = row.input.substr(0, 80);
    for (const std::string& argument : row.arguments) {
        name += " [" + argument + ']';
    }
    EXPECT_EQ(actual.output, row.output) << name;
    EXPECT_EQ(actual.error, row.error) << name;
    EXPECT_EQ(actual.status, row.status) << name;
}

void Check(const Sum& sum) {
    Check(Row{sum.arguments, "", sum.output, "", 0});
}

void Check(const Wrong& wrong) {
    std::string shown;
    for (const char c : wrong.expression) {
        shown += c == '\n' ? ' ' : c < ' ' || c == '\x7f' ? '?' : c;
    }
    const std::string error = "tarncalc: " + wrong.message + "\n  " + shown + "\n  " +
                              std::string(wrong.column, ' ') + "^\n";
    Check(Row{{"-b", wrong.expression}, "", "", error, 2});
}

std::string Repeat(std::string_view text, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}
