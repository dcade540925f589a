// Equality, case matches and relations, and the comparison of vectors as they are stored.
#include <tarnlib/assign.h>
#include <tarnlib/compare.h>

#include "families.h"

namespace tarn::test {
namespace {

// What two bits alone give: a row for each of 0, 1, Z, X of a, a column for each of b.
using Outcomes = const char* [4];
constexpr Outcomes kLogical = {"10xx", "01xx", "xxxx", "xxxx"};
constexpr Outcomes kCase = {"1000", "0100", "0010", "0001"};
constexpr Outcomes kCaseX = {"1011", "0111", "1111", "1111"};
constexpr Outcomes kCaseZ = {"1010", "0110", "1111", "0011"};
constexpr Outcomes kWildcard = {"1011", "0111", "xx11", "xx11"};

template <const Outcomes& outcomes, Extension extension>
int Equal(const Vec& a, const Vec& b) {
    if (a.width < 1 || b.width < 1) return 0;
    const int width = std::max(a.width, b.width);
    const Vec wideA = Extended(a, width, extension), wideB = Extended(b, width, extension);
    int code = 1;
    for (std::size_t i = 0; i < wideA.bits.size(); ++i) {
        const char outcome = outcomes[int(wideA.bits[i])][int(wideB.bits[i])];
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

template <Extension extension>
int Related(const Vec& a, const Vec& b) {
    if (a.width < 1 || b.width < 1 || HasUnknown(a) || HasUnknown(b)) return 2;
    const Integer aValue = Value(a, extension), bValue = Value(b, extension);
    return aValue == bValue ? -1 : aValue > bValue ? 1 : 0;
}

// One bit decides, or two of which the lower one is unknown; in any word of a block and of what is
// left after it, among those that both operands have and those that only one has.
Pair DrawLoneBits(Gen& gen) {
    const int words = gen.Between(1, gen.OneIn(4) ? 135 : 24);
    const int others[] = {words, 1, (words + 1) / 2};
    Vec vec = Filled(32 * words, Logic::k0);
    const auto word = static_cast<std::size_t>(gen.Below(words));
    if (gen.OneIn(4)) vec.bits[32 * (word / 2) + 5] = Logic::kX;
    vec.bits[32 * word + 31] = static_cast<Logic>(gen.Between(1, 3));
    return {std::move(vec), Filled(32 * gen.Pick(others), Logic::k0)};
}

// Vectors of two draws have nothing in common. These are the same value, often at two widths, with
// a few bits of either changed.
Pair DrawAlike(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    const int other = gen.OneIn(2) ? width : DrawDefinedWidth(gen);
    const int least = std::min(width, other);
    Vec a = gen.OneIn(4) ? gen.FourState(least) : gen.Vector(least);
    Vec b = Extended(a, std::max(width, other), gen.OneIn(2) ? kSign : kZero);
    const bool onlyUnknown = gen.OneIn(2);
    for (int changes = gen.Below(4); changes > 0; --changes) {
        Vec& vec = gen.OneIn(2) ? a : b;
        if (vec.bits.empty()) continue;
        vec.bits[gen.Bits() % vec.bits.size()] =
            static_cast<Logic>(onlyUnknown ? gen.Between(2, 3) : gen.Below(4));
    }
    return {std::move(a), std::move(b)};
}

Pair DrawPair(Gen& gen) {
    auto [a, b] = gen.OneIn(4) ? DrawLoneBits(gen) : DrawAlike(gen);
    if (gen.OneIn(2)) return {std::move(b), std::move(a)};
    return {std::move(a), std::move(b)};
}

// Two vectors of one width, in storage that is compared whole.
std::tuple<Vec, Bare> DrawStored(Gen& gen) {
    const Vec a = gen.FourState(gen.AnyWidth());
    Bare b{a};
    if (gen.OneIn(2) && !b.bits.empty()) {
        b.bits[gen.Bits() % b.bits.size()] = static_cast<Logic>(gen.Below(4));
    }
    return {a, std::move(b)};
}

int Differ(const Vec& a, const Vec& b) {
    return a == b ? 0 : 1;
}

Properties Random() {
    return {
        TARN_ROW(tarn_SignedEq, Equal<kLogical, kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedEq, Equal<kLogical, kZero>, DrawPair),
        TARN_ROW(tarn_SignedNEq, Unequal<kLogical, kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedNEq, Unequal<kLogical, kZero>, DrawPair),
        TARN_ROW(tarn_SignedCaseEq, Equal<kCase, kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedCaseEq, Equal<kCase, kZero>, DrawPair),
        TARN_ROW(tarn_SignedCaseNEq, Unequal<kCase, kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedCaseNEq, Unequal<kCase, kZero>, DrawPair),
        TARN_ROW(tarn_SignedCaseXEq, Equal<kCaseX, kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedCaseXEq, Equal<kCaseX, kZero>, DrawPair),
        TARN_ROW(tarn_SignedCaseZEq, Equal<kCaseZ, kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedCaseZEq, Equal<kCaseZ, kZero>, DrawPair),
        TARN_ROW(tarn_SignedWildEq, Equal<kWildcard, kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedWildEq, Equal<kWildcard, kZero>, DrawPair),
        TARN_ROW(tarn_SignedWildNEq, Unequal<kWildcard, kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedWildNEq, Unequal<kWildcard, kZero>, DrawPair),
        TARN_ROW(tarn_SignedRelation, Related<kSign>, DrawPair),
        TARN_ROW(tarn_UnsignedRelation, Related<kZero>, DrawPair),
        TARN_ROW(tarn_NotIdentical, Differ, DrawStored),
    };
}

std::vector<Case> ByHand() {
    const Vec xTop = "32'sbx000_0000_0000_0000_0000_0000_0000_0001"_v;
    const Vec low = "64'h1234567800000001"_v, allOnes = "64'hffffffffffffffff"_v;
    return {
        // A known difference decides beside unknown bits.
        TARN_CALL(tarn_UnsignedEq, "4'b11x0"_v, "4'b1000"_v).Returns(0),
        TARN_CALL(tarn_UnsignedWildEq, "4'b10x0"_v, "4'b1000"_v).Returns(3),
        // An unknown sign stands at every position above.
        TARN_CALL(tarn_SignedCaseZEq, low, xTop).Returns(0),
        TARN_CALL(tarn_SignedWildEq, xTop, low).Returns(3),
        TARN_CALL(tarn_SignedWildEq, xTop, "64'hzzzzzzzzz0000001"_v).Returns(1),
        TARN_CALL(tarn_SignedCaseEq, allOnes, "32'hffffffff"_v).Returns(1),
        // Bits above the width count.
        TARN_CALL(tarn_UnsignedEq, Words(8, {{0x105, 0}}), "8'h05"_v).Returns(0),
        TARN_CALL(tarn_UnsignedRelation, Words(8, {{5, 0x100}}), "8'h05"_v)
            .Returns(TARN_RELATION_UNKNOWN),
        // The codes of relations.
        TARN_CALL(tarn_SignedRelation, "8'shff"_v, "8'sh01"_v).Returns(TARN_RELATION_LESS),
        TARN_CALL(tarn_UnsignedRelation, "8'h05"_v, "8'h03"_v).Returns(TARN_RELATION_GREATER),
        TARN_CALL(tarn_UnsignedRelation, low, low).Returns(TARN_RELATION_EQUAL),
    };
}

}  // namespace

Family CompareFamily() {
    return {"Compare", Random(), ByHand};
}

}  // namespace tarn::test
