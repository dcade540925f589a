// Binary, octal and hexadecimal digits, and characters.
#include <climits>
#include <cstring>

#include <tarnlib/text.h>

#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

// The character of a digit's bits, by the first rule that fits.
char DigitCharacter(const std::vector<Logic>& bits) {
    const auto count = [&](Logic value) { return std::count(bits.begin(), bits.end(), value); };
    const auto all = static_cast<std::ptrdiff_t>(bits.size());
    if (count(Logic::kX) == all) return 'x';
    if (count(Logic::kZ) == all) return 'z';
    if (count(Logic::kX) > 0) return 'X';
    if (count(Logic::kZ) > 0) return 'Z';
    std::size_t value = 0;
    for (std::size_t i = bits.size(); i-- > 0;) {
        value = 2 * value + (bits[i] == Logic::k1 ? 1 : 0);
    }
    return "0123456789abcdef"[value];
}

// A top digit of fewer bits needs no widening here: the rules see the bits that it has.
template <int bitsPerDigit>
std::string DigitText(const Vec& vec, int minDigits) {
    std::string text;
    for (int first = 0; first < vec.width; first += bitsPerDigit) {
        const int last = std::min(first + bitsPerDigit, vec.width);
        text += DigitCharacter({vec.bits.begin() + first, vec.bits.begin() + last});
    }
    std::reverse(text.begin(), text.end());
    if (minDigits < 0) return text;
    const std::size_t least = std::max<std::size_t>(static_cast<std::size_t>(minDigits), 1);
    const std::size_t zeros = std::min(text.find_first_not_of('0'), text.size());
    text.erase(0, std::min(zeros, text.size() - std::min(least, text.size())));
    return text.size() < least ? text.insert(0, least - text.size(), '0') : text;
}

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

// All digits of four bits, and all top digits of fewer bits.
TEST(RadixText, EveryDigit) {
    for (std::uint32_t bval = 0; bval < 16; ++bval) {
        for (std::uint32_t aval = 0; aval < 16; ++aval) {
            for (int width = 1; width <= 4; ++width) {
                const Vec value = Words(width, {{aval, bval}});
                ASSERT_EQ(Digits(tarn_ConvertToHex, value, -1), DigitText<4>(value, -1)) << value;
                ASSERT_EQ(Digits(tarn_ConvertToOct, value, -1), DigitText<3>(value, -1)) << value;
            }
        }
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
        {tarn_ConvertToBin, "8'h5"_v, -1, "00000101"},
        {tarn_ConvertToBin, "8'h5"_v, 0, "101"},
        {tarn_ConvertToBin, "8'h5"_v, 10, "0000000101"},
        {tarn_ConvertToBin, "1'bz"_v, 4, "000z"},
        {tarn_ConvertToHex, "8'h0"_v, 0, "0"},
        {tarn_ConvertToHex, "16'h00x0"_v, 0, "x0"},
        {tarn_ConvertToHex, "6'bxx0101"_v, -1, "x5"},
        {tarn_ConvertToHex, "6'bx00101"_v, -1, "X5"},
        {tarn_ConvertToHex, "6'bz10101"_v, -1, "Z5"},
        {tarn_ConvertToOct, "4'bx"_v, -1, "xx"},
        {tarn_ConvertToOct, "36'h100000000"_v, -1, "040000000000"},
        {tarn_ConvertToOct, Words(4, {{0xFFFFFFF7, 0xFFFFFFF0}}), 0, "7"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Digits(row.function, row.value, row.minDigits), row.expected) << row.value;
    }
    if (kIsChecked) return;
    EXPECT_EQ(Digits(tarn_ConvertToHex, Vec{}, 5), "");
}

TEST(RadixText, StartsAtTheStartOfTheBuffer) {
    const VectorWord word = {5, 0};
    for (ToDigits* const function : {tarn_ConvertToBin, tarn_ConvertToOct, tarn_ConvertToHex}) {
        const char* const text = function(32, &word, 0);
        EXPECT_EQ(text, tarn_GetGlobalBuffer(0));
    }
}

TEST(RadixText, LogicCodes) {
    const std::pair<int, const char*> rows[] = {{0, "0"}, {1, "1"},  {2, "z"},
                                                {3, "x"}, {4, "x"},  {5, "x"},
                                                {6, "x"}, {-1, "x"}, {INT_MIN, "x"}};
    for (const auto& [code, expected] : rows) {
        if (kIsChecked && (code < 0 || code > 5)) continue;
        for (const auto function : {tarn_ConvertToBin0, tarn_ConvertToOct0, tarn_ConvertToHex0}) {
            EXPECT_STREQ(function(code), expected) << code;
        }
        for (const auto function : {tarn_ConvertToChar0, tarn_ConvertToString0}) {
            EXPECT_STREQ(function(code, 0), code == 1 ? "\1" : "") << code;
            EXPECT_STREQ(function(code, -7), code == 1 ? "\1" : " ") << code;
        }
    }
}

// The characters of the storage's bytes, as many as hold bits of the width.
std::string CharacterText(const Vec& vec, bool spaceForNul) {
    std::string text;
    for (std::size_t first = 0; first < static_cast<std::size_t>(vec.width); first += 8) {
        unsigned character = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            character |= (vec.bits[first + i] == Logic::k1 ? 1U : 0U) << i;
        }
        if (character == 0 && spaceForNul) character = ' ';
        if (character != 0) text.insert(text.begin(), static_cast<char>(character));
    }
    return text;
}

TEST(CharacterText, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec value = gen.FourState(gen.Width());
        const int space = gen.OneIn(2) ? gen.Below(3) - 1 : 0;
        const std::string text = CallForText(value, [&](const VectorWord* words) {
            return tarn_ConvertToString(value.width, words, space);
        });
        ASSERT_EQ(text, CharacterText(value, space != 0)) << gen.Reproducer(space, value);
        const Vec low = Prefix(value, 8);
        const std::string character = CallForText(
            low, [&](const VectorWord* words) { return tarn_ConvertToChar(words, space); });
        ASSERT_EQ(character, CharacterText(low, space != 0)) << gen.Reproducer(space, low);
    }
}

TEST(CharacterText, KnownTexts) {
    const auto text = [](const Vec& value, int space) {
        return CallForText(value, [&](const VectorWord* words) {
            return tarn_ConvertToString(value.width, words, space);
        });
    };
    EXPECT_EQ(text("24'h616263"_v, 0), "abc");
    EXPECT_EQ(text("32'h00610063"_v, 0), "ac");
    EXPECT_EQ(text("32'h00610063"_v, 1), " a c");
    EXPECT_EQ(text("16'hx1e9"_v, 0), "\1\xE9");
    EXPECT_EQ(text(Words(1, {{0x41, 0}}), 0), "A");
    if (kIsChecked) return;
    EXPECT_EQ(text(Vec{}, 1), "");
}

}  // namespace
}  // namespace tarn::test
