// Binary, octal and hexadecimal digits, and characters.
#include <climits>
#include <cstring>

#include <tarnlib/text.h>

#include "support/property.h"
#include "text_model.h"

namespace tarn::test {
namespace {

using ToDigits = char*(int, const VectorWord*, int);
using RadixExport = Export<ToDigits, std::string(const Vec&, int)>;

std::string Digits(ToDigits* function, const Vec& value, int minDigits) {
    return CallForText(
        value, [&](const VectorWord* words) { return function(value.width, words, minDigits); });
}

class RadixText : public testing::TestWithParam<RadixExport> {};
INSTANTIATE_TEST_SUITE_P(
    Radix, RadixText,
    testing::Values(RadixExport{"tarn_ConvertToBin", tarn_ConvertToBin, DigitText<1>},
                    RadixExport{"tarn_ConvertToOct", tarn_ConvertToOct, DigitText<3>},
                    RadixExport{"tarn_ConvertToHex", tarn_ConvertToHex, DigitText<4>}),
    kExportName);

TEST_P(RadixText, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.Width();
        Vec value = gen.OneIn(2) ? gen.FourState(width) : gen.Vector(width);
        // Leading zeros, up to a digit of any kind.
        if (gen.OneIn(2)) {
            std::fill(value.bits.begin() + gen.Below(width), value.bits.begin() + width, Logic::k0);
        }
        const int choices[] = {
            -1, INT_MIN, 0, 0, 1, gen.Below(width + 50), gen.Below(width / 3 + 3)};
        const int minDigits = choices[gen.Below(static_cast<int>(std::size(choices)))];
        ASSERT_EQ(Digits(function, value, minDigits), model(value, minDigits))
            << gen.Reproducer(minDigits, value);
    }
}

TEST(RadixText, KnownTexts) {
    struct Row {
        ToDigits* function;
        Vec value;
        int minDigits;
        const char* expected;
    };
    const Row rows[] = {
        {tarn_ConvertToBin, "8'h5"_v, 10, "0000000101"},
        {tarn_ConvertToHex, "8'h0"_v, 0, "0"},
        {tarn_ConvertToHex, "16'h00x0"_v, 0, "x0"},
        {tarn_ConvertToHex, "6'bxx0101"_v, -1, "x5"},
        {tarn_ConvertToHex, "6'bx00101"_v, -1, "X5"},
        {tarn_ConvertToOct, "4'bx"_v, -1, "xx"},
        {tarn_ConvertToOct, "36'h100000000"_v, -1, "040000000000"},
        {tarn_ConvertToOct, Words(4, {{0xFFFFFFF7, 0xFFFFFFF0}}), 0, "7"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Digits(row.function, row.value, row.minDigits), row.expected) << row.value;
    }
    EXPECT_EQ(tarn_ConvertToHex(32, ToWords("32'h5"_v).data(), 0), tarn_GetGlobalBuffer(0));
    if (kIsChecked) return;
    EXPECT_EQ(Digits(tarn_ConvertToHex, Vec{}, 5), "");
}

TEST(RadixText, LogicCodes) {
    const char* const expected[] = {"x", "0", "1", "z", "x", "x", "x", "x"};
    for (int code = kIsChecked ? 0 : -1; code <= (kIsChecked ? 5 : 6); ++code) {
        for (const auto function : {tarn_ConvertToBin0, tarn_ConvertToOct0, tarn_ConvertToHex0}) {
            EXPECT_STREQ(function(code), expected[code + 1]) << code;
        }
        for (const auto function : {tarn_ConvertToChar0, tarn_ConvertToString0}) {
            EXPECT_STREQ(function(code, 0), code == 1 ? "\1" : "") << code;
            EXPECT_STREQ(function(code, -7), code == 1 ? "\1" : " ") << code;
        }
    }
}

std::string Characters(const Vec& value, int space) {
    return CallForText(value, [&](const VectorWord* words) {
        return tarn_ConvertToString(value.width, words, space);
    });
}

TEST(CharacterText, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec value = gen.FourState(gen.Width());
        const int space = gen.OneIn(2) ? gen.Below(3) - 1 : 0;
        ASSERT_EQ(Characters(value, space), CharacterText(value, space != 0))
            << gen.Reproducer(space, value);
        const Vec low = Prefix(value, 8);
        const std::string character = CallForText(
            low, [&](const VectorWord* words) { return tarn_ConvertToChar(words, space); });
        ASSERT_EQ(character, CharacterText(low, space != 0)) << gen.Reproducer(space, low);
    }
}

TEST(CharacterText, KnownTexts) {
    EXPECT_EQ(Characters("32'h00610063"_v, 0), "ac");
    EXPECT_EQ(Characters("32'h00610063"_v, 1), " a c");
    EXPECT_EQ(Characters("16'hx1e9"_v, 0), "\1\xE9");
    EXPECT_EQ(Characters(Words(1, {{0x41, 0}}), 0), "A");
    if (kIsChecked) return;
    EXPECT_EQ(Characters(Vec{}, 1), "");
}

}  // namespace
}  // namespace tarn::test
