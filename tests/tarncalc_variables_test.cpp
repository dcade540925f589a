// Variables, memories, selects and concatenations of tarncalc, and the form of its statements.
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

#include "tarncalc_support.h"

namespace {

const Sum kVariables[] = {
    // Declarations: everything begins as x; widths and signs are the declaration's.
    {{"reg a, b = 1; reg [6:0] c; reg signed [0:3] d = -3; integer i, j = -1", "a; b; c; d; i; j"},
     "1'hx\n1'h1\n7'hxx\n4'shd\n32'shxxxxxxxx\n32'shffffffff\n"},
    {{"reg [15:0] a = 8'hff + 8'h01, b = a + 1; b", "reg signed [7:0] s = 8'hf0; s >>> 2"},
     "16'h0101\n8'shfc\n"},
    // Right sides are calculated with the bits of both sides, extended by their own sign, then cut.
    {{"reg [8:0] s; reg [7:0] a = 8'hff, b = 8'h01; reg [3:0] c", "s = a + b; s", "s = {a + b}; s",
      "c = (a + b) >> 4; c", "s = -4'sd1; s", "s = 4'sd7 + 4'sd2; s", "s = 4'hf; s",
      "c = 12'h345; c", "c = 4'bx1z0; c", "s = a == 8'shff; s"},
     "9'h100\n9'h000\n4'h0\n9'h1ff\n9'h009\n9'h00f\n4'h5\n4'bx1z0\n9'h001\n"},
    // Bits of vectors, in each direction of bounds.
    {{"-b", "reg [7:0] d = 8'b1010_0110; reg [0:7] u = 8'b1010_0110; reg [2:-5] n = 8'b1010_0110",
      "d[7]; d[0]; u[0]; u[7]; n[2]; n[-5]; n[-4]", "d[6:4]; u[4:6]; n[-1:-3]",
      "d[2 +: 3]; d[4 -: 3]; u[2 +: 3]; u[4 -: 3]; n[-1 +: 2]"},
     "1'b1\n1'b0\n1'b1\n1'b0\n1'b1\n1'b0\n1'b1\n3'b010\n3'b011\n3'b001\n3'b001\n3'b001\n3'b100\n"
     "3'b100\n2'b10\n"},
    {{"-b", "reg [7:0] d = 8'b1010_0110; reg [0:7] u = 8'b1010_0110; reg signed [3:0] i = -1",
      "d[8]; d[i]; u[8]; d[1'bx]; d[64'h1_0000_0000]; d[9:6]; d[1:-2]; u[6:9]; d[-8:-9]; d[20:10]",
      "d[6 +: 4]; d[i +: 3]; d[1'bz +: 2]; u[6 +: 4]; d[32'hffffffff]"},
     "1'bx\n1'bx\n1'bx\n1'bx\n1'bx\n4'bxx10\n4'b10xx\n4'b10xx\n2'bxx\n11'bxxxxxxxxxxx\n4'bxx10\n3'"
     "b10x\n"
     "2'bxx\n4'b10xx\n1'bx\n"},
    // A part is unsigned, even the whole of a signed vector; an index determines its own size.
    {{"reg signed [7:0] a = -1; a[7:0] + 16'sd0; a + 16'sd0",
      "reg [31:0] b = 1 << 16; reg [3:0] i = 15", "b[i + 1]; b[i + 1'b1]"},
     "16'h00ff\n16'shffff\n1'h1\n1'h0\n"},
    {{"reg [69:0] w; w = {6'h15, 64'h0123456789abcdef}; w[69:64]; w[67:28]; w[60 +: 20]"},
     "6'h15\n40'h5012345678\n20'bxxxxxxxxxx0101010000\n"},
    // Writes keep the other bits; what is outside the bounds or at an unknown index is lost.
    {{"reg [7:0] a = 0; reg [0:7] u = 0; integer i", "a[3] = 1; a", "a[7:6] = 5; a",
      "a[5 -: 2] = 3; a", "a[6 +: 4] = 4'b0101; a", "a[1:-2] = 4'b1011; a", "a[i] = 0; a",
      "a[i +: 3] = 0; a", "a[8] = 1; a", "a[-3:-4] = 3; a", "u[0:1] = 1; u",
      "u[6 +: 4] = 4'b1001; u", "i = -1; a[i +: 2] = 2'b00; a", "a[2] = 1'bz; a"},
     "8'h08\n8'h48\n8'h78\n8'h78\n8'h7a\n8'h7a\n8'h7a\n8'h7a\n8'h7a\n8'h40\n8'h42\n8'h7a\n8'"
     "b01111z10\n"},
    {{"reg signed [39:0] a = 0; a[39:36] = 4'hc; a; a >>> 4; a[35:28] = 8'hzx; a"},
     "40'shc000000000\n40'shfc00000000\n40'shczx0000000\n"},
    // Memories.
    {{"reg [11:0] m [0:3], n [-1:-2]; reg signed [3:0] s [3:0]; reg b [1:2]; integer i, k [0:1]",
      "m[0]; m[1] = 12'habc; m[1]; m[0]; m[2]; m[4]; m[-1]; m[i]",
      "m[1][3:0]; m[1][11]; m[1][i]; m[1][8 +: 8]",
      "m[1][7:4] = 4'hz; m[1]; m[1][i] = 0; m[1][0] = 1; m[1]; m[1][10 +: 4] = 0; m[1]",
      "m[4] = 0; m[i] = 0; m[i][3:0] = 0; m[1]", "n[-2] = 1; n[-1] = 2; n[-2]; n[-1]; n[0]",
      "s[2] = 9; s[2] + 8'sd0; s[2][3:0] + 8'sd0", "b[1] = 1; b[1]; b[2]",
      "k[1] = -2; k[1]; k[1][31]"},
     "12'hxxx\n12'habc\n12'hxxx\n12'hxxx\n12'hxxx\n12'hxxx\n12'hxxx\n4'hc\n1'h1\n1'hx\n8'hxa\n"
     "12'hazc\n12'hazd\n12'h2zd\n12'h2zd\n12'h001\n12'h002\n12'hxxx\n8'shf9\n8'h09\n1'h1\n1'hx\n"
     "32'shfffffffe\n1'h1\n"},
    {{"reg [69:0] m [1:1]; m[1] = 0; m[1][66:1] = ~66'h0; m[1]; m[1][68 -: 40]; m[1][33 +: 3] = "
      "3'bx0z; m[1]"},
     "70'h07fffffffffffffffe\n40'h3fffffffff\n70'b0001111111111111111111111111111111x0z"
     "111111111111111111111111111111110\n"},
    // Concatenations.
    {{"{4'h5, 12'habc}; {1'b1, 40'h0, 2'bz1}; {8'sh80} + 16'sh0; {3{4'b10x1}}; {2{2'b10, "
      "{2{1'b1}}}}",
      "{{0{1'b1}}, 4'h3}; {4'hf + 4'h1, 1'b1}; {(1 + 1){2'b01}}; {\"ab\", 8'h63}; "
      "{12{40'h123456789a}} >> 440"},
     "16'h5abc\n43'b10000000000000000000000000000000000000000z1\n16'h0080\n12'b10x110x110x1\n8'"
     "hbb\n"
     "4'h3\n5'h01\n4'h5\n24'h616263\n480'h" +
         Repeat("0", 110) + "123456789a\n"},
    {{"reg [3:0] a; reg [7:0] b; reg [1:0] m [0:1]; integer i = 5",
      "{a, b[6:3], m[1]} = 10'b1001_0110_11; a; b; m[1]", "{a, b} = {b, a}; a; b",
      "{b[0], a} = a + 4'hf; a; b", "{{a[0], a[1]}, {a[i], a[3]}} = 4'b0101; a",
      "{a, b} = -1; a; b", "{a, b[7:4]} = 3'sb101; a; b"},
     "4'h9\n8'bx0110xxx\n2'h3\n4'bx011\n8'b0xxx1001\n"
     "4'hx\n8'b0xxx100x\n4'b1x10\n4'hf\n8'hff\n4'hf\n8'hdf\n"},
    // Names, comments, and where statements end.
    {{"reg [3:0] _a$1 = 3, A, a", "A = 1; a = 2; _a$1; A; a", "reg end_, regs = 1, x, b0; regs"},
     "4'h3\n4'h1\n4'h2\n1'h1\n"},
    {{"1; 2 // 3; 4\n5 /* ; 6 */; ; 7; /* \n \n */ 8\n\n9;"},
     "32'sh00000001\n32'sh00000002\n32'sh00000005\n32'sh00000007\n32'sh00000008\n32'sh00000009\n"},
    {{"reg\n[7:\n0] a,\nb =\n3\na = (1\n\n+ 2)\n{a,\nb}\n1 +\n// first\n2 ? 3\n: 4\n\"a;//b\""},
     "16'h0303\n32'sh00000003\n40'h613b2f2f62\n"},
};

TEST(TarncalcVariables, HoldWhatIsAssigned) {
    for (const Sum& sum : kVariables) {
        Check(sum);
    }
}

const Wrong kWrong[] = {
    {"a", "'a' is not declared", 0},
    {"reg a; reg a", "'a' is declared already", 11},
    {"reg begin", "'begin' is a word of the language, no name", 4},
    {"if (1) 2", "'if' is a word of the language, no name", 0},
    {"reg 5", "expected a name", 4},
    {"reg a b", "expected ',' or ';'", 6},
    {"reg [7] a", "expected ':'", 6},
    {"reg [7:0 a", "expected an operator or ']'", 9},
    {"reg [10000000:0] a", "wider than 10000000 bits", 4},
    {"reg [1000000001:1000000000] a", "a bound can't be beyond 1000000000", 4},
    {"reg [1'bx:0] a", "this must be a known number of 32 bits", 5},
    {"reg [32'hffffffff:0] a", "this must be a known number of 32 bits", 5},
    {"reg a; reg [a:0] b", "a constant is needed here, but 'a' is a variable", 12},
    {"reg a[0:1] = 1", "a memory can't be given a value as a whole", 13},
    {"reg a[0:1][0:1]", "a memory has one range of words", 10},
    {"reg [9999999:0] m [0:999]", "the variables need too much storage", 16},
    {"reg m [-1000000000:1000000000]", "the variables need too much storage", 4},
    {"reg m [0:1]; m", "'m' is a memory: an index must choose a word", 13},
    {"reg [1:0] m [0:1]; m[1:0]", "'m' is a memory: an index must choose a word", 19},
    {"reg [1:0] m [0:1]; m[0 +: 1]", "'m' is a memory: an index must choose a word", 19},
    {"reg [1:0] m [0:1]; m[0][0][0]", "nothing can be selected from a part of a variable", 26},
    {"reg m [0:1]; m[0][0]", "'m' is a single bit, which has no parts", 13},
    {"reg a; a[0]", "'a' is a single bit, which has no parts", 7},
    {"reg [1:0] a; a[0][0]", "a bit of 'a' has no parts", 13},
    {"reg [1:0] a; a[1:0][0]", "nothing can be selected from a part of a variable", 19},
    {"reg [1:0] a; a[0:1]", "the bounds of this part are the wrong way round", 13},
    {"reg [0:1] a; a[1:0] = 1", "the bounds of this part are the wrong way round", 13},
    {"reg [1:0] a; a[0 +: 0]", "the width of a part must be at least 1", 13},
    {"reg [1:0] a; a[0 +: 10000001]", "wider than 10000000 bits", 13},
    {"reg [1:0] a; a[a:0]", "a constant is needed here, but 'a' is a variable", 15},
    {"reg [1:0] a; a[0", "expected ']'", 16},
    {"1 = 2", "nothing can be assigned to this", 0},
    {"reg a; {a, 1'b1} = 2", "nothing can be assigned to this", 11},
    {"reg a; {2{a}} = 2", "nothing can be assigned to this", 7},
    {"reg a; (a) = b", "'b' is not declared", 13},
    {"reg a; a = a = 1", "expected an operator", 13},
    {"reg a; a = ", "expected an operand", 11},
    {"{1, 2'b1}", "a number in a concatenation must have a size", 1},
    {"{2{'b1}}", "a number in a concatenation must have a size", 3},
    {"{0{1'b1}}", "an empty replication must stand in a concatenation", 0},
    {"{0{1'b1}} + 1", "an empty replication must stand in a concatenation", 0},
    {"{{0{1'b1}}, {0{1'b1}}}", "this concatenation has no bits", 0},
    {"{-1{1'b1}}", "a replication count can't be negative", 0},
    {"{10000001{1'b1}}", "wider than 10000000 bits", 0},
    {"{2000000000{20000'b1}}", "wider than 10000000 bits", 0},
    {"{1'b1", "expected '}'", 5},
    {"{1'b1 2}", "expected an operator, ',' or '}'", 6},
    {"{}", "expected an operand", 1},
    {"{2{3{1'b1}}}", "expected an operator, ',' or '}'", 4},
    {"1]", "unmatched ']'", 1},
    {"/* 1", "missing '*/'", 0},
};

TEST(TarncalcVariables, AreRejectedWhereTheTextIsWrong) {
    for (const Wrong& wrong : kWrong) {
        Check(wrong);
    }
}

/** Runs a file of this text, and gives its errors with FILE for its name. */
Row RunFile(const std::string& text) {
    const std::string path = testing::TempDir() + "tarncalc_file." + std::to_string(getpid());
    std::ofstream(path, std::ios::binary) << text;
    Row row = RunTarncalc({"-d", "-f", path, "1"}, "");
    std::remove(path.c_str());
    for (std::size_t at = 0; (at = row.error.find(path, at)) != std::string::npos;) {
        row.error.replace(at, path.size(), "FILE");
    }
    return row;
}

TEST(TarncalcVariables, OfAFileAreReportedWithLineAndColumn) {
    const Row row = RunFile(
        "reg [7:0] a = 3; // three\n"
        "\n"
        "a = a +\n"
        "    \tb;\n"
        "a; (a; a + 1\r\n"
        "a = 8'h123; {a,\n"
        "a a} a\n"
        "a // the last line has no newline");
    EXPECT_EQ(row.output, "8'd3\n32'd4\n8'd35\n32'sd1\n");
    EXPECT_EQ(row.error,
              "FILE:4:6: 'b' is not declared\n      \tb;\n      \t^\n"
              "FILE:5:6: expected an operator or ')'\n  a; (a; a + 1 \n       ^\n"
              "FILE:6:5: warning: 8'h123 does not fit its width and loses its upper bits\n"
              "FILE:7:3: expected an operator, ',' or '}'\n  a a} a\n    ^\n");
    EXPECT_EQ(row.status, 2);
}

TEST(TarncalcVariables, SurviveHugeRequests) {
    const std::string zeros = Repeat("0", 2'499'990);
    const Row rows[] = {
        {{}, "reg [9999999:0] a = 1; a << 9999999", "10000000'h80000" + zeros + "00000\n", "", 0},
        {{"-d"}, "reg m [0:99999999]; m[99999999] = 1; m[99999999] + 2'd0", "2'd1\n", "", 0},
        {{"-d"}, Repeat("{", 999) + "1'b1" + Repeat("}", 999), "1'd1\n", "", 0},
        {{"-d"}, "reg [3:0] a = 0; " + Repeat("a[", 999) + '0' + Repeat("]", 999), "1'd0\n", "", 0},
        {{}, "{10000000{1'b1}} >> 9999999", "10000000'h00000" + zeros + "00001\n", "", 0},
        {{"-d"}, Repeat("{", 300) + '1' + Repeat("{1'b1}}", 300), "1'd1\n", "", 0},
    };
    for (const Row& row : rows) {
        Check(row);
    }
}

}  // namespace
