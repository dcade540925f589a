// Digits and characters read into vectors and reals.
#include <climits>
#include <cmath>
#include <cstdlib>

#include <tarnlib/real.h>
#include <tarnlib/text.h>

#include "support/guarded.h"
#include "support/property.h"
#include "text_model.h"

namespace tarn::test {
namespace {

using FromText = bool(int, VectorWord*, const char*);
using ParseExport = Export<FromText, Vec(int, const std::string&)>;

// The text lies beside a page as the result does: parsers read it in both directions.
template <class Parse>
Outcome ParseInto(int width, const std::string& text, bool isTerminated, Parse parse) {
    static GuardedBlock block;
    std::size_t calls = 0;
    return CallInEveryStorage({width, WordCount(width), ResultPlace::kApart, {}},
                              [&](VectorWord* result, const VectorWord* const*) {
                                  const Edge edge = kEdges[calls++ % std::size(kEdges)];
                                  const char* const placed =
                                      isTerminated ? block.PlaceText(text, edge)
                                                   : block.PlaceCharacters(text, edge);
                                  return static_cast<std::int64_t>(parse(result, placed));
                              });
}

Outcome Parse(FromText* function, int width, const std::string& text) {
    return ParseInto(width, text, true, [&](VectorWord* result, const char* placed) {
        return function(width, result, placed);
    });
}

Outcome Assign(int width, int length, const std::string& characters) {
    return ParseInto(width, characters, false, [&](VectorWord* result, const char* placed) {
        tarn_AssignStringToVector(width, result, length, placed);
        return 0;
    });
}

template <int bitsPerDigit>
Vec RadixValue(int width, const std::string& text) {
    return FromDigits(width, bitsPerDigit, text);
}

// Stretches of digits alone and stretches with other characters among them, together up to a
// little more than the width holds.
std::string DrawText(Gen& gen, int width, std::string_view digits, int bitsPerDigit) {
    constexpr std::string_view kOthers = "__xXzZ?__2389gG/: \xE9";
    const auto pick = [&](std::string_view set) { return set[gen.Bits() % set.size()]; };
    std::string text;
    bool isMixed = false;
    for (int left = gen.Below(gen.OneIn(4) ? 6 : width / bitsPerDigit + 6); left > 0; --left) {
        if (gen.OneIn(20)) isMixed = !isMixed;
        text += pick(gen.OneIn(isMixed ? 3 : 40) ? kOthers : digits);
    }
    return text;
}

struct ParseRow : ParseExport {
    std::string_view digits;
    int bitsPerDigit;
};

constexpr std::string_view kHex = "0123456789abcdefABCDEF", kOct = kHex.substr(0, 8),
                           kDec = kHex.substr(0, 10);
class ParseDigits : public testing::TestWithParam<ParseRow> {};
INSTANTIATE_TEST_SUITE_P(
    Parse, ParseDigits,
    testing::Values(
        ParseRow{{"tarn_BinaryStringToVector", tarn_BinaryStringToVector, RadixValue<1>}, "01", 1},
        ParseRow{{"tarn_OctalStringToVector", tarn_OctalStringToVector, RadixValue<3>}, kOct, 3},
        ParseRow{{"tarn_HexStringToVector", tarn_HexStringToVector, RadixValue<4>}, kHex, 4},
        ParseRow{{"tarn_DecimalStringToVector", tarn_DecimalStringToVector, DecimalValue}, kDec, 3},
        ParseRow{{"tarn_StringToVector", tarn_StringToVector, PackedValue}, "abc\xE9\x80", 8}),
    kExportName);

TEST_P(ParseDigits, MatchesModel) {
    const ParseRow& row = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.Width();
        const std::string text = DrawText(gen, width, row.digits, row.bitsPerDigit);
        ASSERT_EQ(Parse(row.function, width, text), row.model(width, text))
            << gen.Reproducer(width, text);
    }
}

TEST(Parse, AssignStringMatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.Width();
        const std::string text = DrawText(gen, width, std::string_view("ab\0\xE9", 4), 8);
        ASSERT_EQ(Assign(width, static_cast<int>(text.size()), text), PackedValue(width, text))
            << gen.Reproducer(width, text);
    }
}

TEST(Parse, KnownValues) {
    struct Row {
        FromText* function;
        int width;
        const char* text;
        Vec expected;
    };
    const Row rows[] = {
        {tarn_BinaryStringToVector, 8, "x1", Words(8, {{0xFF, 0xFE}})},
        {tarn_OctalStringToVector, 8, "?7", Words(8, {{7, 0xF8}})},
        {tarn_HexStringToVector, 40, "x_", Words(40, {{~0U, ~0U}, {0xFF, 0xFF}})},
        {tarn_DecimalStringToVector, 16, "1_000_", "16'h3e8"_v},
        {tarn_DecimalStringToVector, 5, "x9", Words(5, {{0x1F, 0x1F}})},
        {tarn_DecimalStringToVector, 70, "1180591620717411303424", "70'h0"_v},
        {tarn_DecimalStringToVector, 33, "", "33'h0"_v},
        {tarn_StringToVector, 32, "abcdef", "32'h63646566"_v},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Parse(row.function, row.width, row.text), row.expected) << row.text;
        if (kIsChecked) continue;
        EXPECT_EQ(Parse(row.function, 0, row.text), Vec{});
    }
}

TEST(Parse, AssignStringTakesLengthNotTerminator) {
    EXPECT_EQ(Assign(64, 10, "0123456789"), "64'h3233343536373839"_v);
    EXPECT_EQ(Assign(40, 0, ""), "40'h0"_v);
    EXPECT_EQ(Assign(20, 4, std::string("a\0b\0", 4)), "20'h06200"_v);
    if (kIsChecked) return;
    EXPECT_EQ(Assign(40, INT_MIN, ""), "40'h0"_v);
    EXPECT_EQ(Assign(-1, 3, "abc"), (Vec{-1, {}}));
}

double Real(const std::string& text, Edge edge = Edge::kEndsAtPage) {
    static GuardedBlock block;
    double result = -1.5;
    tarn_CreateReal(block.PlaceText(text, edge), &result);
    return result;
}

// Underscores anywhere, and texts around the length from which on storage is allocated.
TEST(Parse, RealsAreThoseOfTheLibraryWithoutUnderscores) {
    for (Gen& gen : Seeds(kRuns)) {
        std::string digits, text;
        const int longest = gen.OneIn(10) ? 300 : 25;
        for (int left = gen.Below(longest); left > 0; --left) {
            digits += "0123456789012345678901234567890123456789.-+eEx p"[gen.Below(48)];
            text += std::string(gen.OneIn(3) ? 1 : 0, '_') + digits.back();
        }
        ASSERT_EQ(Real(text, kEdges[gen.Below(3)]), std::strtod(digits.c_str(), nullptr))
            << gen.Reproducer(text);
    }
}

TEST(Parse, KnownReals) {
    const std::pair<const char*, double> rows[] = {
        {"1_000.5", 1000.5}, {"1e3", 1000.0},      {"2.5e-1_0", 2.5e-10}, {"", 0.0},
        {"abc", 0.0},        {"3.5xyz", 3.5},      {" -_7", -7.0},        {"_", 0.0},
        {"0x1_8p1", 48.0},   {"-i_nf", -HUGE_VAL},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(Real(text), expected) << text;
    }
}

double Assigned(const std::string& text, int length) {
    static GuardedBlock block;
    double result = -1.5;
    tarn_AssignStringToReal(&result, length, block.PlaceCharacters(text, Edge::kEndsAtPage));
    return result;
}

TEST(Parse, AssignStringToRealGoesThroughASignedVector) {
    for (Gen& gen : Seeds(kRuns)) {
        const std::string text =
            DrawText(gen, 80, std::string_view("ab\0\0\0\xFF\xFF\xFF\x80", 9), 8);
        const std::vector<VectorWord> words = ToWords(PackedValue(64, text));
        ASSERT_EQ(Assigned(text, static_cast<int>(text.size())),
                  tarn_SignedConvertToReal(64, words.data()))
            << gen.Reproducer(text);
    }
    EXPECT_EQ(Assigned("AB", 2), 16706.0);
    EXPECT_EQ(Assigned("\xFF", 1), 255.0);
    EXPECT_EQ(Assigned(std::string(8, '\xFF'), 8), -1.0);
    if (kIsChecked) return;
    EXPECT_EQ(Assigned("AB", -1), 0.0);
}

}  // namespace
}  // namespace tarn::test
