// tarncalc as a user meets it: arguments and standard input in, two texts and a status out.
#include <cstdlib>
#include <gtest/gtest.h>
#include <pty.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include <tarnlib.h>

#include "tarncalc_support.h"

namespace {

const Sum kSums[] = {
    // Widths: an operand is extended before the operation, in parentheses and under a minus too.
    {{"-8'd1 + 16'd0", "(-8'd1) + 16'd0", "16'd0 + -(+8'd1)"}, "16'hffff\n16'hffff\n16'hffff\n"},
    {{"8'hff + 8'hff + 16'h0", "16'h0 + (8'hff + 8'hff)"}, "16'h01fe\n16'h01fe\n"},
    {{"32'hffffffff + 33'h1", "-64'h1", "65'h0 - 1'b1"},
     "33'h100000000\n64'hffffffffffffffff\n65'h1ffffffffffffffff\n"},
    // Signs: one unsigned operand anywhere makes every operand extend by zeros.
    {{"4'sb1000 + 8'sd0", "16'd0 + (4'sb1000 + 8'sd0)"}, "8'shf8\n16'h0008\n"},
    {{"-4'sb1000 + 5'sd0", "-4'sb1000 + 5'd0", "-(-4'sd3) + 40'd0"},
     "5'sh08\n5'h18\n40'h0000000003\n"},
    {{"-d", "3 - 7", "3 - 7 - 1", "3 - (7 - 1)", "1--1", "1 - - + 1"},
     "-32'sd4\n-32'sd5\n-32'sd3\n32'sd2\n32'sd2\n"},
    // Precedence, and grouping from the left.
    {{"-d", "2 + 3*4", "(2 + 3)*4", "7 - 6/2*3%5", "2*3**2", "-2**2", "2**3**2", "2**-1+3"},
     "32'sd14\n32'sd20\n32'sd3\n32'sd18\n32'sd4\n32'sd64\n32'sd3\n"},
    // Quotients are cut toward zero, remainders have the dividend's sign; both feel the width and
    // the sign of their context.
    {{"-d", "-7/2", "7/-2", "-7 % 2", "7 % -2", "-8'sd128 / -8'sd1", "-7 / 32'd2"},
     "-32'sd3\n-32'sd3\n-32'sd1\n32'sd1\n-8'sd128\n32'd2147483644\n"},
    {{"8'hff * 8'hff", "8'hff * 8'hff + 16'h0", "(8'hff + 8'h1) / 8'h2", "(8'hff + 8'h1) / 9'h2",
      "4'sb1000 * 8'sd2", "4'sb1000 * 8'd2"},
     "8'h01\n16'hfe01\n8'h00\n9'h080\n8'shf0\n8'h10\n"},
    // The exponent's width and sign are its own; the base has those of the context.
    {{"-d", "2**200", "200'd2**200'd199", "8'd2**-1", "2**2'sd3", "2**2'd3", "8'shff**-1",
      "8'shff**-1 + 8'd0", "4'd2**9'd4", "4'd2**9'd4 + 9'd0", "3**(1'd1 + 1'd1)",
      "3**(1'd1 + 2'd1)"},
     "32'sd0\n200'd803469022129495137770981046170581301261101496891396417650688\n8'd0\n32'sd0\n"
     "32'sd8\n-8'sd1\n8'd0\n4'd0\n9'd16\n32'sd1\n32'sd9\n"},
    {{"-d", "0**0", "0**-1", "8'd5/8'd0", "5%0", "1**'x", "64'd3**-1", "1**-5", "-1**-2"},
     "32'sd1\n32'sdx\n8'dx\n32'sdx\n32'sdx\n64'd0\n32'sd1\n32'sd1\n"},
    // Unknowns: kept by a literal, all x after any operator.
    {{"8'b1x", "+8'b1x", "-4'sbz", "40'h0 + 'x", "4'bz - 4'bz"},
     "8'b0000001x\n8'hxx\n4'shx\n40'hxxxxxxxxxx\n4'hx\n"},
    {{"-o", "6'b0x0111", "6'bxxx111", "8'bz"}, "6'b0x0111\n6'ox7\n8'ozzz\n"},
    {{"-d", "32'bx", "8'sbz", "8'bxz", "8'b1z", "-8'hx"},
     "32'dx\n8'sdz\n8'bxxxxxxxz\n8'b0000001z\n8'dx\n"},
    // Bases.
    {{"-b", "4'd5", "3'sd1"}, "4'b0101\n3'sb001\n"},
    {{"-o", "8'd255", "7'sd1"}, "8'o377\n7'so001\n"},
    {{"-x", "6'd63", "-d", "-b", "-x"}, "6'h3f\n"},
    {{"-d", "8'sh80", "-1'sb1", "8'h80", "65'h1_0000_0000_0000_0000", "0", "1'sd0"},
     "-8'sd128\n-1'sd1\n8'd128\n65'd18446744073709551616\n32'sd0\n1'sd0\n"},
    // Every form of a literal.
    {{"8'hFf", "8 'Hff", "8 'h ff", "8\t'h\tff"}, "8'hff\n8'hff\n8'hff\n8'hff\n"},
    {{"'hf", "'hF_FFFF_FFFF", "'o7", "'b1", "'bx", "'sd7", "'sh8"},
     "32'h0000000f\n36'hfffffffff\n32'h00000007\n32'h00000001\n32'hxxxxxxxx\n32'sh00000007\n"
     "32'sh00000008\n"},
    {{"8'SD200", "8'B0000_0001", "1_0'O7", "008'h1", "16'd_5", "8'dX", "8'd?", "4'b_?"},
     "8'shc8\n8'h01\n10'h007\n8'h01\n16'h0005\n8'hxx\n8'hzz\n4'hz\n"},
    {{"'0", "'1", "'X", "'z", "'1 + 8'h0"}, "1'h0\n1'h1\n1'hx\n1'hz\n8'h01\n"},
    {{"\"AB\"", "\"\"", "\"a\\101\\n\\t\\\\\\\"\"", "\"\xC3\xA9\"", "\"A\" + 16'h1", "\")\""},
     "16'h4142\n8'h00\n48'h61410a095c22\n16'hc3a9\n16'h0042\n8'h29\n"},
    // Leading zeros and a fill that are cut are no loss, so nothing is warned of.
    {{"4'b0000_0101", "4'h000f", "3'hx", "2'b0zz"}, "4'h5\n4'hf\n3'hx\n2'hz\n"},
    // Arguments that begin with a minus, and the end of the options.
    {{"-5", "-(1)", "--5", "-'sd1", "- 5"},
     "32'shfffffffb\n32'shffffffff\n32'sh00000005\n32'shffffffff\n32'shfffffffb\n"},
    {{"-d", "--", "-1", "--1"}, "-32'sd1\n32'sd1\n"},
    {{"--version"}, "tarncalc " TARNLIB_VERSION_STRING "\n"},
};

TEST(Tarncalc, PrintsOneResultForEachExpression) {
    for (const Sum& sum : kSums) {
        Check(sum);
    }
}

/** Whatever the base, a result given back as an expression is the same value. */
TEST(Tarncalc, PrintsWhatReadsBackExactly) {
    Arguments expressions{"-b", "--"};
    for (const Sum& sum : kSums) {
        for (const std::string& argument : sum.arguments) {
            if (argument.find_first_of("0123456789'\"") != std::string::npos) {
                expressions.push_back(argument);
            }
        }
    }
    const std::string values = RunTarncalc(expressions, "").output;
    for (const std::string base : {"-x", "-d", "-o"}) {
        expressions.front() = base;
        const Row printed = RunTarncalc(expressions, "");
        EXPECT_NE(printed.output, values);
        Check(Row{{"-b"}, printed.output, values, "", 0});
    }
}

const Wrong kWrong[] = {
    {"8'hFF + ", "expected an operand", 8},
    {"", "expected a statement", 0},
    {" ; ; 1 + ; ", "expected an operand", 9},
    {"1 + )", "expected an operand", 4},
    {"1 2", "expected an operator", 2},
    {"(1", "expected ')'", 2},
    {"(1 2", "expected an operator or ')'", 3},
    {"1)", "unmatched ')'", 1},
    {"1 @ 2", "unexpected character '@'", 2},
    {"\x01", "unexpected control character 0x01", 0},
    {"0'h1", "the size of a literal can't be 0", 0},
    {"1+0_0'h1", "the size of a literal can't be 0", 2},
    {"10000001'h0", "a literal can't be wider than 10000000 bits", 0},
    {"99999999999999999999999'h0", "a literal can't be wider than 10000000 bits", 0},
    {"8'", "expected a base letter: b, o, d or h", 2},
    {"8'5", "expected a base letter: b, o, d or h", 2},
    {"8' h5", "expected a base letter: b, o, d or h", 2},
    {"8'h", "expected hexadecimal digits", 3},
    {"8'b012", "character '2' is no binary digit", 5},
    {"8'hfg", "character 'g' is no hexadecimal digit", 4},
    {"12ab", "character 'a' is no decimal digit", 2},
    {"8'd1x", "a decimal x, z or ? must be the only digit", 4},
    {"8'dz_1", "a decimal x, z or ? must be the only digit", 5},
    {"'01", "a fill digit stands alone", 2},
    {"1 + \"ab", "missing closing double quote", 4},
    {"\"\\1771\\4001\"", "an octal escape can't be above \\377", 6},
    {"\"a\x01\"", "control character 0x01 in a string: write it as an escape", 2},
    {"\"\\\x7f\"", "control character 0x7f in a string: write it as an escape", 2},
};

TEST(Tarncalc, ShowsThePlaceOfAnErrorWithACaret) {
    for (const Wrong& wrong : kWrong) {
        Check(wrong);
    }
}

const std::string kExpected = "tarncalc: expected an operand\n";
const std::string kUnexpected = "unexpected character outside ASCII\n";
const std::string kLost = " does not fit its width and loses its upper bits\n";

const Row kRows[] = {
    {{"1", "2 +", "3"}, "", "32'sh00000001\n32'sh00000003\n", kExpected + "  2 +\n     ^\n", 2},
    {{"-q"}, "", "", "tarncalc: unknown option -q; tarncalc --help lists the options\n", 2},
    {{"-f"},
     "",
     "",
     "tarncalc: -f needs the name of a file; tarncalc --help lists the options\n",
     2},
    {{"-f", "/no/such", "1", "-f", "/"},
     "",
     "32'sh00000001\n",
     "tarncalc: can't read /no/such: No such file or directory\n"
     "tarncalc: can't read /: Is a directory\n",
     1},
    {{"--", "-b"}, "", "", "tarncalc: 'b' is not declared\n  -b\n   ^\n", 2},
    // The caret stays under its place behind tabs and behind characters of several bytes.
    {{"\t1\t+"}, "", "", kExpected + "  \t1\t+\n  \t \t ^\n", 2},
    {{"\"\xE2\x82\xAC\xC3\xA9\"+"},
     "",
     "",
     kExpected + "  \"\xE2\x82\xAC\xC3\xA9\"+\n       ^\n",
     2},
    {{"\"\xFF\xC2\x9B\xE2\x82\"+"}, "", "", kExpected + "  \"?????\"+\n          ^\n", 2},
    {{"1 + \xC2\xB5"}, "", "", "tarncalc: " + kUnexpected + "  1 + \xC2\xB5\n      ^\n", 2},
    // Lost bits are warned of, those of a top digit cut inside too; the value is used.
    {{"4'b10101", "3'hf + 4'h0", "4294967296"},
     "1\n",
     "4'h5\n4'h7\n32'sh00000000\n",
     "tarncalc: warning: 4'b10101" + kLost + "tarncalc: warning: 3'hf" + kLost +
         "tarncalc: warning: 4294967296" + kLost,
     0},
    // Lines.
    {{"-d"}, "1 + 1\n\n \t\r\n8'd7\r\n2'd3", "32'sd2\n8'd7\n2'd3\n", "", 0},
    {{},
     "8'h1\n\n8'h1 )\n8'h1ff\n8'h2",
     "8'h01\n8'hff\n8'h02\n",
     "tarncalc: line 3: unmatched ')'\n  8'h1 )\n       ^\n"
     "tarncalc: line 4: warning: 8'h1ff" +
         kLost,
     2},
    {{},
     std::string("1\0+2\n", 5),
     "",
     "tarncalc: line 1: unexpected control character 0x00\n  1?+2\n   ^\n",
     2},
    {{}, "", "", "", 0},
};

TEST(Tarncalc, ReportsProblemsAndGoesOn) {
    for (const Row& row : kRows) {
        Check(row);
    }
}

TEST(Tarncalc, SurvivesVeryLongLines) {
    const std::string deep = "tarncalc: line 1: nested more than 1000 levels deep\n  ..." +
                             Repeat("(", 90) + "...\n" + Repeat(" ", 65) + "^\n";
    Check(Row{{}, Repeat("(", 1'000'000), "", deep, 2});
    Check(Row{{}, Repeat("(-", 500) + '1' + Repeat(")", 500), "32'sh00000001\n", "", 0});
    Check(Row{{"-d"}, '0' + Repeat("+(1)", 2000), "32'sd2000\n", "", 0});
    Check(Row{{"-d"}, '1' + Repeat(" + 1", 100'000), "32'sd100001\n", "", 0});
    Check(Row{
        {}, "400000'h" + Repeat("f", 100'000), "400000'h" + Repeat("f", 100'000) + '\n', "", 0});
    const std::string nines = "400000'd" + Repeat("9", 100'000);
    Check(Row{{"-d"}, nines, nines + '\n', "", 0});
    // Storage counts only as long as it is in use.
    const std::string zeros = "10000000'h" + Repeat("0", 2'500'000 - 2);
    Check(Row{{}, "10000000'h0" + Repeat("+1", 250), zeros + "fa\n", "", 0});

    // A wide power is refused only where it is known to take long.
    Check(Row{{}, "10000000'd2 ** -10000000'd1 + 10000000'h0", zeros + "00\n", "", 0});
    Check(Row{{}, "10000000'd3 ** -10000000'sd1 + 10000000'h0", zeros + "00\n", "", 0});
    Check(Row{{}, "(10000000'd3 ** 10000000'd5) * 1", zeros + "f3\n", "", 0});
    Check(Row{{"-d"}, "10000000'd3 ** 10000000'bx", "10000000'dx\n", "", 0});
    const std::pair<std::string, std::string> refused[] = {
        {"10000000'd3 ** -10000000'd1", "this power would take too long to calculate"},
        {'1' + Repeat("+1", 1'000'000), "more than 1000000 operators and operands"},
        {"10000000'h1" + Repeat("+10000000'h1", 300), "the expression needs too much storage"},
    };
    for (const auto& [line, message] : refused) {
        const Row row = RunTarncalc({}, line);
        EXPECT_EQ(row.error.substr(0, row.error.find('\n')), "tarncalc: line 1: " + message);
        EXPECT_EQ(row.output, "");
        EXPECT_EQ(row.status, 2);
    }
}

/** The lines of --help that show a call give the results that they promise. */
TEST(Tarncalc, HelpTellsTheTruth) {
    const std::string help = RunTarncalc({"--help"}, "").output;
    EXPECT_EQ(RunTarncalc({"-h", "1 +"}, "").output, help);
    const std::string call = "\n  tarncalc ";
    int calls = 0;
    for (std::size_t at = help.find(call); at != std::string::npos; at = help.find(call, at + 1)) {
        const std::size_t begin = help.find('"', at) + 1;
        const std::size_t end = help.find('"', begin);
        const std::size_t result = help.find_first_not_of(' ', end + 1);
        const std::string expected = help.substr(result, help.find('\n', result) - result);
        Arguments arguments{help.substr(begin, end - begin)};
        if (help.compare(at + call.size(), 1, "-") == 0) {
            arguments.push_back(help.substr(at + call.size(), 2));
        }
        Check(Row{arguments, "", expected + '\n', "", 0});
        ++calls;
    }
    EXPECT_EQ(calls, 20);
}

TEST(Tarncalc, ReportsOutputThatCannotBeWritten) {
    EXPECT_EQ(ExitStatus(std::system("'" TARNCALC_PATH "' 1 > /dev/full 2> /dev/null")), 1);
}

TEST(Tarncalc, EditsLinesAndRemembersThemOnATerminal) {
    int terminal = -1;
    const pid_t process = forkpty(&terminal, nullptr, nullptr, nullptr);
    ASSERT_GE(process, 0);
    if (process == 0) {
        execl(TARNCALC_PATH, TARNCALC_PATH, "-d", nullptr);
        _exit(127);
    }
    // The second line is the first one, fetched with Ctrl-P, its last digit rubbed out and typed
    // anew. Ctrl-D on an empty line ends the session.
    // Each row is what the screen must show before the keys are typed.
    const std::pair<std::string, std::string> steps[] = {{"> ", "20 + 1\r"},
                                                         {"\n32'sd21\r\n> ",
                                                          "\x10\x7f"
                                                          "3\r"},
                                                         {"\n32'sd23\r\n> ", "\x04"}};
    const auto* step = std::begin(steps);
    std::string screen;
    char buffer[256];
    for (ssize_t count = 1; count > 0;) {
        count = read(terminal, buffer, sizeof buffer);
        if (count > 0) screen.append(buffer, static_cast<std::size_t>(count));
        if (step != std::end(steps) && screen.find(step->first) != std::string::npos) {
            const std::string& keys = (step++)->second;
            ASSERT_EQ(write(terminal, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
        }
    }
    close(terminal);
    int status = 0;
    EXPECT_EQ(waitpid(process, &status, 0), process);
    EXPECT_EQ(ExitStatus(status), 0);
    EXPECT_EQ(step, std::end(steps)) << screen;
    EXPECT_TRUE(screen.ends_with("> \r\n")) << screen;
}

}  // namespace
