// Reals, system functions and the tasks that write text in tarncalc.
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "tarncalc_support.h"

namespace {

const Sum kReals[] = {
    {{"1.5", "2.5e-3", "1e3", "1_0.2_5E+1_0", "0.1", "-1.5", "1e-7 * 0.5", "1e300 * 1e10",
      "1e22 + 0", "0.1 + 0.2", "1.0 / 3"},
     "1.5\n0.0025\n1000.0\n102500000000.0\n0.1\n-1.5\n5e-08\ninf\n1e+22\n0.30000000000000004\n"
     "0.3333333333333333\n"},
    // One real makes an operator real; the vector beside it keeps the type that it has by itself.
    {{"1 + 0.5", "1 / 2 + 0.5", "(8'hff + 8'h01) + 0.0", "8'hff + 8'h01 + 0.0", "8'shff * 1.0",
      "0.0 + 8'hff", "2 ** 0.5 ** 2", "2.0 ** -1", "9 ** 0.5", "7 - 2.5 * 2", "4'b1x01 + 0.0",
      "-(4'd3) + 0.0"},
     "1.5\n0.5\n0.0\n0.0\n-1.0\n255.0\n2.0000000000000004\n0.5\n3.0\n2.0\n9.0\n13.0\n"},
    {{"-b", "1.5 > 1", "1 >= 1.5", "0.5 < 1'b1", "1.0 == 1", "1.0 != 1", "0.1 + 0.2 == 0.3",
      "-0.5 <= -1'sd1", "!0.0", "!0.1", "0.5 && 1'bx", "0.5 || 1'bx", "0.0 && 1'bx", "4'bx < 0.5",
      "(1.5 > 1) + 2'b0"},
     "1'b1\n1'b0\n1'b1\n1'b1\n1'b0\n1'b0\n1'b0\n1'b1\n1'b0\n1'bx\n1'b1\n1'b0\n1'b1\n2'b01\n"},
    {{"1 ? 2 : 0.5", "0 ? 2 : 0.5", "1'bx ? 1.5 : 1.5", "0.5 ? 4'd1 : 4'd2", "0.0 ? 4'd1 : 4'd2"},
     "2.0\n0.5\n0.0\n4'h1\n4'h2\n"},
    // Variables: vectors become reals by their own sign, reals are rounded away from zero and cut.
    {{"real r, s = 2; r; s; reg [7:0] u; reg signed [39:0] w; integer i",
      "r = 8'shff; r; r = 8'hff; r; r = 4'hf + 4'h1; r",
      "u = 2.5; u; u = -2.5; u; u = 300.7; u; u = 0.4; u",
      "w = -1e10; w; i = 3.5 + 1; i; {u, i[3:0]} = 16.5; u; i", "r = \"AB\"; r; u = \"AB\"; u"},
     "0.0\n2.0\n-1.0\n255.0\n0.0\n8'h03\n8'hfd\n8'h2d\n8'h00\n40'shfdabf41c00\n32'sh00000005\n8'"
     "h01\n"
     "32'sh00000001\n16706.0\n8'h42\n"},
};

const Sum kFunctions[] = {
    {{"$signed(4'hf) + 0", "$unsigned(-4'sd1) + 0", "$signed(4'hf) + 8'h0",
      "$signed(8'hf0 + 8'h20) >>> 2", "$unsigned(4'shf + 1'b0)"},
     "32'shffffffff\n32'h0000000f\n8'h0f\n8'sh04\n4'hf\n"},
    {{"-d", "$clog2(0)", "$clog2(9)", "$clog2(8'shff)", "$clog2(70'h1_00000000_00000001)",
      "$clog2(4'b1x00)", "$rtoi(-2.7)", "$rtoi(5)", "$itor(-5)", "$itor(40'hff_ffff_ffff)",
      "$itor(4'shf)", "$bitstoreal(64'h3ff8_0000_0000_0000)", "$bitstoreal($realtobits(-0.1))"},
     "32'sd0\n32'sd4\n32'sd8\n32'sd65\n32'sd0\n-32'sd2\n32'sd5\n-5.0\n-1.0\n-1.0\n1.5\n-0.1\n"},
    {{"$realtobits(1)", "$realtobits(-0.1) >> 32"}, "64'h3ff0000000000000\n64'h00000000bfb99999\n"},
    {{"$ln(1)",       "$log10(1000)", "$exp(0)",   "$sqrt(2)",        "$pow(2, 10)",
      "$floor(-2.5)", "$ceil(-2.5)",  "$sin(0.0)", "$cos(0)",         "$tan(0)",
      "$asin(1)",     "$acos(1)",     "$atan(1)",  "$atan2(1, 2)",    "$hypot(3, 4)",
      "$sinh(0)",     "$cosh(0)",     "$tanh(0)",  "$asinh(0)",       "$acosh(1)",
      "$atanh(0)",    "$atanh(2)",    "$sqrt(-1)", "$sqrt(4'shf) < 0"},
     "0.0\n3.0\n1.0\n1.4142135623730951\n1024.0\n-3.0\n-2.0\n0.0\n1.0\n0.0\n1.5707963267948966\n0."
     "0\n"
     "0.7853981633974483\n0.4636476090008061\n5.0\n0.0\n1.0\n0.0\n0.0\n0.0\n0.0\ninf\nnan\n1'h0\n"},
};

const Sum kTexts[] = {
    {{"$display", "$display()", "$display(,)", "$display(1, , 2'd2)", "$write(4'd3)",
      "$display(\"%%|%5d%%\", 7)"},
     "\n\n  \n          1 2\n 3%|    7%\n"},
    // A string is a format where no conversion takes it; a conversion takes what follows, wherever.
    {{"$display(\"a\", \"b%d\", 4'd1, \"%s\", \"c%d\", (\"x\"), \"%c\", 65)"}, "ab 1c%dxA\n"},
    {{"$display(\"%B %O %D %H %X %C %S %E\", 4'h5, 4'h5, 4'h5, 4'h5, 4'h5, \"a\", \"b\", 1)"},
     "0101 05  5 5 5 a b 1.000000E+00\n"},
    // The default field holds every value of the type.
    {{"$display(\"[%d][%d][%d][%d][%d]\", 4'sd1, 4'd1, 7'sd1, 64'sd1, 64'd1)"},
     "[ 1][ 1][  1][                   1][                   1]\n"},
    {{"$display(\"[%8b][%2b][%08o][%5h][%02d][%1d][%00d]\", 3'b101, 3'b001, 6'o7, 8'h5, 4'd3, "
      "8'd200, 8'd5)"},
     "[00000101][01][00000007][00005][03][200][5]\n"},
    {{"$display(\"[%10.3f][%.0f][%12e][%g][%08.2f]\", 3.14159, 2.5, 1.5, 1e100, -1.5)"},
     "[     3.142][2][1.500000e+00][1e+100][-0001.50]\n"},
    {{"$display(1.5, 0.1, 1e20, 100)"}, "1.500000.1000001.00000e+20        100\n"},
    {{"$display(\"%c%s|%0s|\", 8'h00, 16'h0041, 16'h0041)"}, std::string("\0 A|A|\n", 7)},
};

TEST(TarncalcDisplay, CalculatesAndWritesReals) {
    for (const Sum& sum : kReals) {
        Check(sum);
    }
    for (const Sum& sum : kFunctions) {
        Check(sum);
    }
    for (const Sum& sum : kTexts) {
        Check(sum);
    }
}

const Wrong kWrong[] = {
    {"1.", "expected digits behind the point", 1},
    {"1.x", "expected digits behind the point", 1},
    {"1e", "expected digits in the exponent", 1},
    {"1.5e+", "expected digits in the exponent", 3},
    {"1.5f", "character 'f' is no decimal digit", 3},
    {".5", "unexpected character '.'", 0},
    {"1.5 % 2", "'%' can't be applied to a real", 4},
    {"~1.5", "'~' can't be applied to a real", 0},
    {"|1.5", "'|' can't be applied to a real", 0},
    {"1 << 1.0", "'<<' can't be applied to a real", 2},
    {"1.0 === 1", "'===' can't be applied to a real", 4},
    {"1 ^ 1.0", "'^' can't be applied to a real", 2},
    {"{1.5}", "a real can't be concatenated", 1},
    {"{1.5{1'b1}}", "this must be a known number of 32 bits", 1},
    {"reg [1.0:0] a", "this must be a known number of 32 bits", 5},
    {"reg [1:0] a; a[0.5]", "an index can't be a real", 15},
    {"reg [1:0] a; a[0.5] = 1", "an index can't be a real", 15},
    {"real r; r[0]", "'r' is a real, which has no bits", 8},
    {"real r; r[0] = 1", "'r' is a real, which has no bits", 8},
    {"real r; {r} = 1", "a real can't be concatenated", 9},
    {"real r [0:1]", "a memory can't hold reals", 7},
    {"$signed(1.5)", "'$signed' needs a vector", 8},
    {"$clog2(1.5)", "'$clog2' needs a vector", 7},
    {"$nosuch(1)", "'$nosuch' is no function", 0},
    {"1 + $display(1)", "'$display' is no function", 4},
    {"$ln", "expected '('", 3},
    {"$ln()", "expected an operand", 4},
    {"$pow(1)", "'$pow' takes 2 arguments", 0},
    {"$ln(1, 2)", "'$ln' takes 1 argument", 0},
    {"$ln(1", "expected ')'", 5},
    {"$ 1", "unexpected character '$'", 0},
    {"$display(1 2)", "expected an operator, ',' or ')'", 11},
    {"$display(1", "expected ')'", 10},
    {"$display(1) 2", "expected ';'", 12},
    {"$display(\"a%d\")", "'%d' has no argument", 9},
    {"$display(\"%d\", , 1)", "'%d' has no argument", 9},
    {"$display(1, \"%q\", 1)", "unknown conversion at '%q'", 12},
    {"$display(\"100%\")", "unknown conversion at '%'", 9},
    {"$display(\"%-5d\", 1)", "unknown conversion at '%-5d'", 9},
    {"$display(\"%.3d\", 1)", "unknown conversion at '%.3d'", 9},
    {"$display(\"%1000001d\", 1)", "unknown conversion at '%100'", 9},
    {"$display(\"a%d\", 1.5)", "'%d' can't show a real", 16},
    {"$display(1, b)", "'b' is not declared", 12},
};

TEST(TarncalcDisplay, RejectsWhatRealsAndFormatsCannotBe) {
    for (const Wrong& wrong : kWrong) {
        Check(wrong);
    }
}

TEST(TarncalcDisplay, WritesTheFilesThatAreExpected) {
    for (const std::string name : {"conversions", "memory"}) {
        const std::string path = TARNCALC_FILES "/" + name;
        std::ostringstream expected;
        expected << std::ifstream(path + ".txt", std::ios::binary).rdbuf();
        ASSERT_FALSE(expected.str().empty()) << path;
        Check(Row{{"-f", path + ".v"}, "", expected.str(), "", 0});
    }
}

}  // namespace
