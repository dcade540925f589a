// The operators of tarncalc's expressions: their precedence, and the widths and signs of their
// operands and results.
#include <gtest/gtest.h>
#include <string>

#include "tarncalc_support.h"

namespace {

const Sum kOperators[] = {
    // The four-state tables: every bit of one operand meets every bit of the other.
    {{"-b", "16'h00ff & 16'b01xz_01xz_01xz_01xz", "16'b0000_1111_xxxx_zzzz & 16'b01xz01xz01xz01xz",
      "16'b0000_1111_xxxx_zzzz | 16'b01xz01xz01xz01xz",
      "16'b0000_1111_xxxx_zzzz ^ 16'b01xz01xz01xz01xz",
      "16'b0000_1111_xxxx_zzzz ~^ 16'b01xz01xz01xz01xz",
      "16'b0000_1111_xxxx_zzzz ^~ 16'b01xz01xz01xz01xz", "~4'b01xz"},
     "16'b0000000001xx01xx\n16'b000001xx0xxx0xxx\n16'b01xx1111x1xxx1xx\n16'b01xx10xxxxxxxxxx\n"
     "16'b10xx01xxxxxxxxxx\n16'b10xx01xxxxxxxxxx\n4'b10xx\n"},
    // Operands are extended first, so ~ sees the upper bits; the sign is the operands'.
    {{"~4'h5 + 8'h0", "~4'sh5 & 8'shff", "4'sh8 | 8'sh0", "4'sh8 | 8'h0", "4'sbx ^ 8'sh0",
      "4'bz | 40'h0"},
     "8'hfa\n8'shfa\n8'shf8\n8'h08\n8'shxx\n40'h000000000x\n"},
    {{"-b", "&8'hff", "&40'hffffffffff", "&4'b1x11", "&4'b0x11", "~&4'b0x11", "|4'b00z0",
      "|4'b0z10", "~|4'b0000", "~|4'b0x00", "^8'b10110001", "^8'b00000111", "~^8'b00000111",
      "^~4'b0001", "^4'b0x00", "^-8'sd1", "^-7'sd1"},
     "1'b1\n1'b1\n1'bx\n1'b0\n1'b1\n1'bx\n1'b1\n1'b1\n1'bx\n1'b0\n1'b1\n1'b0\n1'b0\n1'bx\n1'b0\n"
     "1'b1\n"},
    // Reductions and logical operators take operands of their own size; their result, one unsigned
    // bit, is extended by zeros.
    {{"&4'hf + 8'h0", "&(4'hf + 1'b0)", "&4'sb1111 + 8'sd0", "!8'h00 - 2'd2", "(4'hf + 4'h1) && 1",
      "|(4'hf + 4'h1)", "|(4'hf + 5'h1)"},
     "8'h01\n1'h1\n8'h01\n2'h3\n1'h0\n1'h0\n1'h1\n"},
    {{"-b", "!4'b00x0", "!4'b0x10", "!0", "1'bx && 0", "0 && 1'bx", "1'bz && 1", "1'bx || 5",
      "2'b10 || 1'bx", "1'bx || 0", "4'b1x00 && 4'b0001"},
     "1'bx\n1'b0\n1'b1\n1'b0\n1'b0\n1'bx\n1'b1\n1'b1\n1'bx\n1'b1\n"},
    // Comparisons: operands as wide as the wider one, signed if both are, whatever stands outside.
    {{"-b", "8'hff == 4'hf", "4'hf + 4'h1 == 4'h0", "4'hf + 4'h1 == 5'h10",
      "(4'hf + 4'h1 == 0) + 64'h0", "-1 == 32'hffffffff", "8'shff == 16'hffff",
      "-8'sd1 == 16'shffff", "8'shff == 16'shffff + 8'd0"},
     "1'b0\n1'b1\n1'b1\n64'b" + Repeat("0", 64) + "\n1'b1\n1'b0\n1'b1\n1'b0\n"},
    {{"-b", "4'b10x0 == 4'b1000", "4'b11x0 == 4'b1000", "4'b10x0 != 4'b1000", "4'b11x0 != 4'b1000",
      "4'b1x0z === 4'b1x0z", "4'b1x0z === 4'b1x0x", "4'b1x0z !== 4'b1x0x", "4'bz === 8'b0000zzzz",
      "4'sbz === 8'sbzzzzzzzz"},
     "1'bx\n1'b0\n1'bx\n1'b1\n1'b1\n1'b0\n1'b1\n1'b1\n1'b1\n"},
    {{"-b", "4'b1010 ==? 4'b1x1z", "4'b10x0 ==? 4'b1000", "4'b0010 ==? 4'b1x1z",
      "4'b1010 !=? 4'b1x1z", "4'b10x0 !=? 4'b1000"},
     "1'b1\n1'bx\n1'b0\n1'b0\n1'bx\n"},
    {{"-b", "5 < 3", "3 < 5", "5 <= 5", "5 >= 6", "6 > 5", "5 > 5", "-1 < 0", "-1 < 1'b0",
      "-8'sd1 > 8'sd1", "-8'sd1 > 8'd1", "8'sh80 < 16'sh7f", "3 < 1'bx", "1'bz >= 0", "2 < 3 < 2",
      "65'h1_0000_0000_0000_0000 > 5"},
     "1'b0\n1'b1\n1'b1\n1'b0\n1'b1\n1'b0\n1'b1\n1'b0\n1'b0\n1'b1\n1'b1\n1'bx\n1'bx\n1'b1\n1'b1\n"},
    // Shifts: the amount has a width of its own and no sign; the rest has the context's type.
    {{"8'hff << 4", "8'hff << 4 | 16'h0", "8'hff <<< 40'd8", "8'h81 >> 4'd1", "8'sh81 >> 1",
      "8'sh81 >>> 1", "8'h81 >>> 1", "8'sh81 >>> 1 | 16'sh0", "8'sh81 >>> 1 | 16'h0",
      "(8'sh81 >>> 1) + 1'b0", "8'h01 << 3'sb111", "40'h8000000000 >> 36", "64'h1 << 63"},
     "8'hf0\n16'h0ff0\n8'h00\n8'h40\n8'sh40\n8'shc0\n8'h40\n16'shffc0\n16'h0040\n8'h40\n8'h80\n"
     "40'h0000000008\n64'h8000000000000000\n"},
    {{"-b", "4'b1x0z << 1", "4'b1x0z >> 1", "4'sbx001 >>> 2", "4'sbz001 >>> 9",
      "4'sb1001 >>> 33'h1_0000_0000", "4'b1001 << 64'h1_0000_0000", "4'b1001 >> 32'hffffffff",
      "4'b1001 << 1'bx", "4'b0 >> 40'hz00000000", "4'sb0110 >>> 2'bz1"},
     "4'bx0z0\n4'b01x0\n4'sbxxx0\n4'sbzzzz\n4'sb1111\n4'b0000\n4'b0000\n4'bxxxx\n4'bxxxx\n4'"
     "sbxxxx\n"},
    // The conditional: both branches have one type, whichever is chosen; an unknown condition keeps
    // the bits on which they agree.
    {{"1 ? 4'h5 : 8'h0", "0 ? 4'sh5 : 8'sh80", "1 ? 4'sh8 : 8'h0", "1 ? 4'sh8 : 8'sh0",
      "4'b00x1 ? 4'h1 : 4'h2", "(0 ? 8'h1 : 4'hf + 4'h1) + 1'b0",
      "(1'b1 + 1'b1 ? 4'h1 : 4'h2) + 9'h0"},
     "8'h05\n8'sh80\n8'h08\n8'shf8\n4'h1\n8'h10\n9'h002\n"},
    {{"-b", "1'bx ? 4'b01xz : 4'b01xz", "4'b00z0 ? 4'b0011 : 4'b0101",
      "1'bx ? 4'sb1000 : 8'sb11110000"},
     "4'b01xx\n4'b0xx1\n8'sb1111x000\n"},
    {{"-d", "0 ? 1 : 0 ? 2 : 3", "1 ? 0 ? 1 : 2 : 3", "0 ? 1 : 1 ? 2 : 3", "1 ? 2 : 1 ? 3 : 4",
      "0 || 1 ? 2 : 3", "1 ? 2 : 3 + 4", "1 + 0 ? 2 : 3"},
     "32'sd3\n32'sd2\n32'sd2\n32'sd2\n32'sd2\n32'sd2\n32'sd2\n"},
    // Precedence, from the tightest pair of neighbours to the loosest.
    {{"-d",           "~8'd0 ** 2'd1", "!0 + 1",      "-2 ** 2 * 3", "2 * 3 + 4 << 1", "1 << 2 + 1",
      "16 >> 1 << 1", "1 << 1 < 2",    "3 > 2 == 1",  "3 == 3 & 2",  "(3 == 3) & 2",   "6 & 3 ^ 1",
      "1 ^ 3 | 4",    "1 | 0 && 0",    "0 && 0 || 1", "1 || 0 && 0", "7 & ~3",         "7 & &3",
      "1 | |2",       "5 ^~ 3 ^ 1",    "1 ^ ~ 1",     "2 - -2"},
     "8'd255\n32'd2\n32'sd12\n32'sd20\n32'sd8\n32'sd16\n1'd0\n1'd1\n32'd0\n32'd0\n32'sd3\n32'sd6\n"
     "1'd0\n1'd1\n1'd1\n32'sd4\n32'd0\n32'd1\n-32'sd8\n-32'sd1\n32'sd4\n"},
    // Power and shift leave their right operand alone, in a comparison too.
    {{"-b", "2 ** 1'b1 + 4'b0 == 4'd2", "4'hf >> 1'b1 < 8'd8", "(4'hf << 1) > 4'hf",
      "(4'hf << 1) > 5'hf"},
     "1'b1\n1'b1\n1'b0\n1'b1\n"},
};

TEST(TarncalcOperators, FollowTheRulesOfPrecedenceWidthAndSign) {
    for (const Sum& sum : kOperators) {
        Check(sum);
    }
}

const Wrong kWrong[] = {
    {"1 ? 2", "expected ':'", 5},          {"1 ? 2 3", "expected an operator or ':'", 6},
    {"1 : 2", "expected an operator", 2},  {"1 ? : 2", "expected an operand", 4},
    {"1 ~& 2", "expected an operator", 2}, {"1 ! 2", "expected an operator", 2},
    {"* 2", "expected an operand", 0},     {"~", "expected an operand", 1},
};

TEST(TarncalcOperators, AreNamedWhereTheyAreMissingOrMisplaced) {
    for (const Wrong& wrong : kWrong) {
        Check(wrong);
    }
}

TEST(TarncalcOperators, FormLongRowsWithoutNesting) {
    Check(Row{{}, Repeat("~ ", 100'000) + "8'h5", "8'h05\n", "", 0});
    Check(Row{{"-d"}, Repeat("0 ? 1 : ", 50'000) + '2', "32'sd2\n", "", 0});
    Check(Row{{"-d"}, Repeat("1 ? ", 1000) + '2' + Repeat(" : 0", 1000), "32'sd2\n", "", 0});
    const Row row = RunTarncalc({}, Repeat("1 ? ", 1001) + '2');
    EXPECT_EQ(row.error.substr(0, row.error.find('\n')),
              "tarncalc: line 1: nested more than 1000 levels deep");
}

}  // namespace
