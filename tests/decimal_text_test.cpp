// Decimal digits, machine integers and reals.
#include <cstring>

#include <tarnlib/text.h>

#include "support/property.h"
#include "text_model.h"

namespace tarn::test {
namespace {

using ToDecimal = char*(int, const VectorWord*, int, int);
using DecimalExport = Export<ToDecimal, std::string(const Vec&)>;

class DecimalText : public testing::TestWithParam<DecimalExport> {};
INSTANTIATE_TEST_SUITE_P(Decimal, DecimalText,
                         testing::Values(DecimalExport{"tarn_UnsignedConvertToDec",
                                                       tarn_UnsignedConvertToDec, UnsignedText},
                                         DecimalExport{"tarn_SignedConvertToDec",
                                                       tarn_SignedConvertToDec, SignedText}),
                         kExportName);

TEST_P(DecimalText, MatchesModel) {
    ToDecimal* const function = GetParam().function;
    const auto model = GetParam().model;
    const std::size_t sign = std::strcmp(GetParam().name, "tarn_SignedConvertToDec") == 0 ? 1 : 0;
    for (Gen& gen : Seeds(kRuns)) {
        const Vec value = gen.OneIn(8) ? gen.FourState(gen.Width()) : gen.Vector(gen.Width());
        // The largest number of the width has as many digits as the width can need.
        const Integer largest = PowerOfTwo(static_cast<std::size_t>(value.width)) - 1;
        const std::size_t most = ToDigits(largest).size() + sign;
        const int minDigits = gen.OneIn(2) ? -1 : gen.Below(2 * value.width);
        const bool zeroPad = gen.OneIn(2);
        const std::string text = CallForText(value, [&](const VectorWord* words) {
            return function(value.width, words, minDigits, zeroPad ? 1 : 0);
        });
        ASSERT_EQ(text, InField(model(value), minDigits, most, zeroPad))
            << gen.Reproducer(value, minDigits, zeroPad);
    }
}

TEST(Decimal, ValueInTheRegister) {
    const std::vector<VectorWord> words = ToWords("70'h3fffffffffffffffff"_v);
    std::copy(words.begin(), words.end(), tarn_VectorRegister);
    EXPECT_STREQ(tarn_UnsignedConvertToDec(70, tarn_VectorRegister, 0, 0),
                 "1180591620717411303423");
    // Three plain words were divided down to 0 where they stood; the rest is the caller's.
    EXPECT_EQ(tarn_VectorRegister[0].aval | tarn_VectorRegister[0].bval, 0U);
    EXPECT_EQ(tarn_VectorRegister[1].aval, 0U);
    EXPECT_EQ(tarn_VectorRegister[2].aval, 0x3FU);
}

TEST(Decimal, LogicCodes) {
    const char* const expected[] = {"0", "1", "z", "x", "x", "x"};
    for (int code = 0; code <= 5; ++code) {
        EXPECT_STREQ(tarn_UnsignedConvertToDec0(code), expected[code]);
        EXPECT_STREQ(tarn_SignedConvertToDec0(code), code == 1 ? "-1" : expected[code]);
    }
}

// A digit that a width can need at either end of its range, and the most negative number.
TEST(Decimal, KnownTexts) {
    struct Row {
        ToDecimal* function;
        Vec value;
        int minDigits;
        int zeroPad;
        const char* expected;
    };
    const Row rows[] = {
        {tarn_UnsignedConvertToDec, "8'h5"_v, -1, 0, "  5"},
        {tarn_UnsignedConvertToDec, "8'h5"_v, -1, 1, "005"},
        {tarn_SignedConvertToDec, "8'shfb"_v, -1, 1, "-005"},
        {tarn_SignedConvertToDec, "8'shfb"_v, 0, 1, "-5"},
        {tarn_SignedConvertToDec, "8'sh80"_v, -1, 0, "-128"},
        {tarn_SignedConvertToDec, "1'sb1"_v, -1, 0, "-1"},
        {tarn_SignedConvertToDec, "1'sb0"_v, -1, 0, " 0"},
        {tarn_UnsignedConvertToDec, Words(8, {{0xFFFFFFFF, 0}}), -1, 0, "4294967295"},
        {tarn_UnsignedConvertToDec, "8'bx"_v, -1, 0, "  x"},
        {tarn_UnsignedConvertToDec, "8'bz0"_v, 0, 0, "Z"},
        {tarn_SignedConvertToDec, "8'bxz"_v, 2, 1, "0X"},
    };
    for (const Row& row : rows) {
        const std::string text = CallForText(row.value, [&](const VectorWord* words) {
            return row.function(row.value.width, words, row.minDigits, row.zeroPad);
        });
        EXPECT_EQ(text, row.expected) << row.value;
    }
}

TEST(MachineInteger, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec value = gen.OneIn(2) ? gen.FourState(gen.Width()) : gen.Vector(gen.Width());
        std::uint32_t low = 0;
        bool isHigh = false;
        for (std::size_t i = 0; i < value.bits.size(); ++i) {
            if (value.bits[i] != Logic::k1) continue;
            if (i < 32) low |= 1U << i;
            isHigh = isHigh || (i >= 64 && i < static_cast<std::size_t>(value.width));
        }
        const std::vector<VectorWord> words = ToWords(value);
        int overflow = -1;
        EXPECT_EQ(tarn_UnsignedConvertToSizeT(words.data(), value.width, &overflow), low);
        EXPECT_EQ(overflow, isHigh ? 1 : 0) << gen.Reproducer(value);
        std::int64_t number = low;
        if (value.width < 32) {
            const std::int64_t range = std::int64_t{1} << value.width;
            number %= range;
            number = number >= range / 2 ? number - range : number;
        }
        EXPECT_EQ(tarn_SignedConvertToSizeT(words.data(), value.width, &overflow),
                  static_cast<std::int32_t>(number))
            << gen.Reproducer(value);
        EXPECT_EQ(overflow, isHigh ? 1 : 0);
    }
}

TEST(Real, IsFormattedAtAnyLength) {
    EXPECT_STREQ(tarn_ConvertToStringR("%g", -1234.5678), "-1234.57");
    EXPECT_STREQ(tarn_ConvertToStringR("[%12.4e]", 0.5), "[  5.0000e-01]");
    // Longer than the room that is usual.
    std::string padded(4997, ' ');
    padded += "1.5";
    EXPECT_EQ(tarn_ConvertToStringR("%5000.1f", 1.5), padded);
}

}  // namespace
}  // namespace tarn::test
