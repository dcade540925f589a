// Equality, case matches and relations against the reference model, and at their edges.
#include <tarnlib/compare.h>

#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

using CompareExport = Export<ComparesOperands, int(const Vec&, const Vec&)>;

constexpr Extension kSign = Extension::kSign;
constexpr Extension kZero = Extension::kZero;

// What two bits alone give: a row for each of 0, 1, Z, X of a, a column for each of b.
using Outcomes = const char* [4];
constexpr Outcomes kLogical = {"10xx", "01xx", "xxxx", "xxxx"};
constexpr Outcomes kCase = {"1000", "0100", "0010", "0001"};
constexpr Outcomes kCaseX = {"1011", "0111", "1111", "1111"};
constexpr Outcomes kCaseZ = {"1010", "0110", "1111", "0011"};
constexpr Outcomes kWildcard = {"1011", "0111", "xx11", "xx11"};

struct Widened {
    Vec a, b;
};

Widened ToOneWidth(const Vec& a, const Vec& b, Extension extension) {
    const int width = std::max(a.width, b.width);
    return {Extended(a, width, extension), Extended(b, width, extension)};
}

template <const Outcomes& outcomes, Extension extension>
int Equal(const Vec& a, const Vec& b) {
    if (a.width < 1 || b.width < 1) return 0;
    const Widened wide = ToOneWidth(a, b, extension);
    int code = 1;
    for (std::size_t i = 0; i < wide.a.bits.size(); ++i) {
        const char outcome = outcomes[int(wide.a.bits[i])][int(wide.b.bits[i])];
        if (outcome == '0') return 0;
        if (outcome == 'x') code = 3;
    }
    return code;
}

template <const Outcomes& outcomes, Extension extension>
int Unequal(const Vec& a, const Vec& b) {
    if (a.width < 1 || b.width < 1) return 0;
    const int equal = Equal<outcomes, extension>(a, b);
    return equal == 3 ? 3 : 1 - equal;
}

Integer ValueOf(const Vec& vec, Extension extension) {
    Integer value = ToInteger(vec);
    if (extension == kSign && vec.bits.back() == Logic::k1) {
        value -= Integer(1) << vec.bits.size();
    }
    return value;
}

template <Extension extension>
int Related(const Vec& a, const Vec& b) {
    if (a.width < 1 || b.width < 1 || HasUnknown(a) || HasUnknown(b)) return 2;
    const Integer aValue = ValueOf(a, extension), bValue = ValueOf(b, extension);
    return aValue == bValue ? -1 : aValue > bValue ? 1 : 0;
}

constexpr CompareExport kExports[] = {
    {"tarn_SignedEq", tarn_SignedEq, Equal<kLogical, kSign>},
    {"tarn_UnsignedEq", tarn_UnsignedEq, Equal<kLogical, kZero>},
    {"tarn_SignedNEq", tarn_SignedNEq, Unequal<kLogical, kSign>},
    {"tarn_UnsignedNEq", tarn_UnsignedNEq, Unequal<kLogical, kZero>},
    {"tarn_SignedCaseEq", tarn_SignedCaseEq, Equal<kCase, kSign>},
    {"tarn_UnsignedCaseEq", tarn_UnsignedCaseEq, Equal<kCase, kZero>},
    {"tarn_SignedCaseNEq", tarn_SignedCaseNEq, Unequal<kCase, kSign>},
    {"tarn_UnsignedCaseNEq", tarn_UnsignedCaseNEq, Unequal<kCase, kZero>},
    {"tarn_SignedCaseXEq", tarn_SignedCaseXEq, Equal<kCaseX, kSign>},
    {"tarn_UnsignedCaseXEq", tarn_UnsignedCaseXEq, Equal<kCaseX, kZero>},
    {"tarn_SignedCaseZEq", tarn_SignedCaseZEq, Equal<kCaseZ, kSign>},
    {"tarn_UnsignedCaseZEq", tarn_UnsignedCaseZEq, Equal<kCaseZ, kZero>},
    {"tarn_SignedWildEq", tarn_SignedWildEq, Equal<kWildcard, kSign>},
    {"tarn_UnsignedWildEq", tarn_UnsignedWildEq, Equal<kWildcard, kZero>},
    {"tarn_SignedWildNEq", tarn_SignedWildNEq, Unequal<kWildcard, kSign>},
    {"tarn_UnsignedWildNEq", tarn_UnsignedWildNEq, Unequal<kWildcard, kZero>},
    {"tarn_SignedRelation", tarn_SignedRelation, Related<kSign>},
    {"tarn_UnsignedRelation", tarn_UnsignedRelation, Related<kZero>},
};

class Compare : public testing::TestWithParam<CompareExport> {};
INSTANTIATE_TEST_SUITE_P(Compare, Compare, testing::ValuesIn(kExports), kExportName);

// Vectors of two draws have nothing in common. These are the same value, often at two widths, with
// a few bits of either changed.
std::pair<Vec, Vec> DrawAlike(Gen& gen) {
    const int width = kIsChecked ? gen.Width() : gen.AnyWidth();
    const int other = gen.OneIn(2) ? width : kIsChecked ? gen.Width() : gen.AnyWidth();
    Vec narrow =
        gen.OneIn(4) ? gen.FourState(std::min(width, other)) : gen.Vector(std::min(width, other));
    Vec wide = Extended(narrow, std::max(width, other), gen.OneIn(2) ? kSign : kZero);
    const bool onlyUnknown = gen.OneIn(2);
    for (int changes = gen.Below(4); changes > 0; --changes) {
        Vec& vec = gen.OneIn(2) ? narrow : wide;
        if (vec.bits.empty()) continue;
        vec.bits[gen.Bits() % vec.bits.size()] =
            static_cast<Logic>(onlyUnknown ? gen.Between(2, 3) : gen.Below(4));
    }
    if (gen.OneIn(2)) std::swap(narrow, wide);
    return {std::move(narrow), std::move(wide)};
}

TEST_P(Compare, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const auto [a, b] = DrawAlike(gen);
        ASSERT_EQ(Call(function, a, b), model(a, b)) << gen.Reproducer(a, b);
    }
}

// One bit decides, or two of which the lower one is unknown; in any word of a block and of what is
// left after it, among those that both operands have and those that only one has.
TEST_P(Compare, FindsBitsInAnyWord) {
    const auto& [name, function, model] = GetParam();
    for (const int words : {1, 2, 3, 4, 5, 7, 9, 16, 21, 63, 64, 65, 67, 71, 89, 131}) {
        for (const int otherWords : {words, 1, (words + 1) / 2}) {
            const Vec zeros = Filled(32 * otherWords, Logic::k0);
            for (std::size_t i = 0; i < static_cast<std::size_t>(words); ++i) {
                for (const auto& [upper, lower] : {std::pair{Logic::k1, Logic::k0},
                                                   {Logic::kZ, Logic::k0},
                                                   {Logic::kX, Logic::k0},
                                                   {Logic::k1, Logic::kX}}) {
                    Vec vec = Filled(32 * words, Logic::k0);
                    vec.bits[32 * (i / 2) + 5] = lower;
                    vec.bits[32 * i + 31] = upper;
                    ASSERT_EQ(Call(function, vec, zeros), model(vec, zeros)) << vec << zeros;
                    ASSERT_EQ(Call(function, zeros, vec), model(zeros, vec)) << vec << zeros;
                }
            }
        }
    }
}

struct Row {
    ComparesOperands* function;
    Vec a, b;
    int expected;
};

TEST(Compare, KnownResults) {
    const Vec xTop = "32'sbx000_0000_0000_0000_0000_0000_0000_0001"_v;
    const Vec zTop = "32'sbz000_0000_0000_0000_0000_0000_0000_0001"_v;
    const Row rows[] = {
        {tarn_UnsignedEq, "4'b10x0"_v, "4'b1000"_v, 3},
        {tarn_UnsignedEq, "4'b11x0"_v, "4'b1000"_v, 0},
        {tarn_UnsignedEq, "20'h3ff"_v, "10'h3ff"_v, 1},
        {tarn_SignedNEq, "64'h123456780000000x"_v, "64'h1234567800000000"_v, 3},
        // An unknown sign stands at every position above.
        {tarn_SignedEq, "64'h1234567800000001"_v, xTop, 3},
        {tarn_SignedCaseXEq, "96'h123456789abcdef000000001"_v, zTop, 1},
        {tarn_SignedCaseZEq, "64'h1234567800000001"_v, zTop, 1},
        {tarn_SignedCaseZEq, "64'h1234567800000001"_v, xTop, 0},
        {tarn_SignedWildEq, "64'h1234567800000001"_v, xTop, 1},
        {tarn_SignedWildEq, xTop, "64'h1234567800000001"_v, 3},
        {tarn_SignedWildEq, xTop, "64'hzzzzzzzzz0000001"_v, 1},
        {tarn_SignedCaseEq, "64'hffffffffffffffff"_v, "32'hffffffff"_v, 1},
        {tarn_UnsignedCaseEq, "64'hffffffffffffffff"_v, "32'hffffffff"_v, 0},
        {tarn_UnsignedCaseNEq, "4'b01zx"_v, "4'b01zx"_v, 0},
        {tarn_UnsignedCaseXEq, "4'b10x1"_v, "4'b1z01"_v, 1},
        {tarn_UnsignedCaseZEq, "4'b10x1"_v, "4'b1z01"_v, 0},
        {tarn_UnsignedWildEq, "4'b1010"_v, "4'b1x1z"_v, 1},
        {tarn_UnsignedWildEq, "4'b10x0"_v, "4'b1000"_v, 3},
        {tarn_UnsignedWildNEq, "4'b1010"_v, "40'hff0000000a"_v, 1},
        // Bits above the width count.
        {tarn_UnsignedEq, Words(8, {{0x105, 0}}), "8'h05"_v, 0},
        {tarn_UnsignedRelation, Words(8, {{5, 0x100}}), "8'h05"_v, TARN_RELATION_UNKNOWN},
        {tarn_SignedRelation, "8'shff"_v, "8'sh01"_v, TARN_RELATION_LESS},
        {tarn_UnsignedRelation, "8'h05"_v, "8'h03"_v, TARN_RELATION_GREATER},
        {tarn_SignedRelation, "64'hffffffff00000000"_v, "32'hffffffff"_v, TARN_RELATION_LESS},
        {tarn_UnsignedRelation, "64'h100000000"_v, "32'hffffffff"_v, TARN_RELATION_GREATER},
        {tarn_SignedRelation, "96'h800000000000000000000000"_v, "96'h0"_v, TARN_RELATION_LESS},
        {tarn_SignedRelation, "96'hfffffffe0000000000000000"_v, "96'hfffffffd0000000000000000"_v,
         TARN_RELATION_GREATER},
        {tarn_UnsignedRelation, "64'h100000000"_v, "64'h20000000x"_v, TARN_RELATION_UNKNOWN},
        {tarn_UnsignedRelation, "33'h100000000"_v, "33'h100000000"_v, TARN_RELATION_EQUAL},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Call(row.function, row.a, row.b), row.expected) << row.a << " " << row.b;
    }
}

}  // namespace
}  // namespace tarn::test
