// Equality of two vectors: what a pair of bits means is a rule, the walk is the same for all.
#ifndef TARN_COMPARE_EQUALITY_H
#define TARN_COMPARE_EQUALITY_H

#include <string_view>

#include "core/instruction_set.h"
#include "core/vector.h"

namespace tarn {

// What was found in the words compared so far, collected bit by bit. Positions that do not match
// are set in the low halves of `mismatch`, those that leave the result open in the high halves of
// `unknown`; the other halves mean nothing.
template <class Words>
struct Findings {
    Words mismatch{};
    Words unknown{};
};

// A rule adds what it finds in a pair of words, or of lanes. x >> 32 is the bvals of x, below its
// avals in place.

// ==: two known bits are equal or not, the others leave it open.
struct LogicalRule {
    template <class Words>
    TARN_KERNEL static constexpr void Compare(const Words& a, const Words& b,
                                              Findings<Words>& found) noexcept {
        found.mismatch |= (a ^ b) & ~((a | b) >> 32);
        found.unknown |= a | b;
    }
};

// ===: all four values are told apart.
struct CaseRule {
    template <class Words>
    TARN_KERNEL static constexpr void Compare(const Words& a, const Words& b,
                                              Findings<Words>& found) noexcept {
        const Words difference = a ^ b;
        found.mismatch |= difference | (difference >> 32);
    }
};

// casex: X and Z match everything.
struct CaseXRule {
    template <class Words>
    TARN_KERNEL static constexpr void Compare(const Words& a, const Words& b,
                                              Findings<Words>& found) noexcept {
        found.mismatch |= (a ^ b) & ~((a | b) >> 32);
    }
};

// casez: Z matches everything. Where neither bit is unknown the avals decide. Where one is, it
// mismatches if its aval is 1 (an X). Where both are, X meets X, or one is Z.
struct CaseZRule {
    template <class Words>
    TARN_KERNEL static constexpr void Compare(const Words& a, const Words& b,
                                              Findings<Words>& found) noexcept {
        found.mismatch |= (a & ~(b >> 32)) ^ (b & ~(a >> 32));
    }
};

// ==?: X and Z of b match everything, those of a leave open what a known bit of b is compared with.
struct WildcardRule {
    template <class Words>
    TARN_KERNEL static constexpr void Compare(const Words& a, const Words& b,
                                              Findings<Words>& found) noexcept {
        found.mismatch |= (a ^ b) & ~((a | b) >> 32);
        found.unknown |= a & ~b;
    }
};

// Whether a rule finds what the table says: a row for each of 0, 1, Z, X of a, a column for each of
// b, and in it what the two bits alone would give. All sixteen pairs lie in one pair of words.
template <class Rule>
constexpr bool Follows(std::string_view table) noexcept {
    Word a = 0, b = 0, mismatch = 0, unknown = 0;
    for (unsigned i = 0; i < 16; ++i) {
        const unsigned x = i / 4, y = i % 4;
        a |= MakeWord(x & 1, x >> 1) << i;
        b |= MakeWord(y & 1, y >> 1) << i;
        mismatch |= MakeWord(table[i] == '0' ? 1 : 0, 0) << i;
        unknown |= MakeWord(0, table[i] == 'x' ? 1 : 0) << i;
    }
    Findings<Word> found;
    Rule::Compare(a, b, found);
    return (found.mismatch & kValueBits) == mismatch && (found.unknown & kUnknownBits) == unknown;
}

static_assert(
    Follows<LogicalRule>("10xx"
                         "01xx"
                         "xxxx"
                         "xxxx"));
static_assert(
    Follows<CaseRule>("1000"
                      "0100"
                      "0010"
                      "0001"));
static_assert(
    Follows<CaseXRule>("1011"
                       "0111"
                       "1111"
                       "1111"));
static_assert(
    Follows<CaseZRule>("1010"
                       "0110"
                       "1111"
                       "0011"));
static_assert(
    Follows<WildcardRule>("1011"
                          "0111"
                          "xx11"
                          "xx11"));

constexpr bool HasMismatch(Word mismatch) noexcept {
    return (mismatch & kValueBits) != 0;
}

// A mismatch anywhere outweighs what is open.
constexpr LogicCode Verdict(const Findings<Word>& found) noexcept {
    const LogicCode matched = IsUnknown(found.unknown) ? TARN_LOGIC_X : TARN_LOGIC_1;
    return HasMismatch(found.mismatch) ? TARN_LOGIC_0 : matched;
}

// Operands that are not both of one word. Instantiated in equality.cpp for each rule and extension.
template <class Rule, class Extend>
LogicCode MatchWide(Operand a, Operand b) noexcept;

template <class Rule>
inline LogicCode MatchOneWord(Operand a, Operand b) noexcept {
    Findings<Word> found;
    Rule::Compare(LoadWord(a.words), LoadWord(b.words), found);
    return Verdict(found);
}

// Whether a matches b under the rule; 0 where a width is below 1.
template <class Rule, class Extend>
inline LogicCode Match(Operand a, Operand b) noexcept {
    if (AreOneWord(a.width, b.width)) return MatchOneWord<Rule>(a, b);
    return MatchWide<Rule, Extend>(a, b);
}

inline constexpr LogicCode kLogicNot[] = {TARN_LOGIC_1, TARN_LOGIC_0, TARN_LOGIC_X, TARN_LOGIC_X};

// The opposite; 0 as well where a width is below 1.
template <class Rule, class Extend>
inline LogicCode Mismatch(Operand a, Operand b) noexcept {
    if (AreOneWord(a.width, b.width)) return kLogicNot[MatchOneWord<Rule>(a, b)];
    if (a.width < 1 || b.width < 1) return TARN_LOGIC_0;
    return kLogicNot[MatchWide<Rule, Extend>(a, b)];
}

}  // namespace tarn

#endif  // TARN_COMPARE_EQUALITY_H
