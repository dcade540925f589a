// The bitwise operators on the bits of aval and bval, and the proof of each by its truth table.
#ifndef TARN_LOGIC_BITWISE_RULES_H
#define TARN_LOGIC_BITWISE_RULES_H

#include "core/halves.h"

namespace tarn {

// Z becomes X.
struct BufferRule {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& a) noexcept {
        return {a.aval | a.bval, a.bval};
    }
};

struct InvertRule {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& a) noexcept {
        return {~a.aval | a.bval, a.bval};
    }
};

struct AndRule {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& a,
                                                   const Halves<kCount>& b) noexcept {
        const BitsOf<kCount> neitherIsZero = (a.aval | a.bval) & (b.aval | b.bval);
        return {neitherIsZero, neitherIsZero & (a.bval | b.bval)};
    }
};

struct OrRule {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& a,
                                                   const Halves<kCount>& b) noexcept {
        const BitsOf<kCount> unknown = a.bval | b.bval;
        const BitsOf<kCount> noOne = ~(a.aval & ~a.bval) & ~(b.aval & ~b.bval);
        return {a.aval | b.aval | unknown, unknown & noOne};
    }
};

struct XorRule {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& a,
                                                   const Halves<kCount>& b) noexcept {
        const BitsOf<kCount> unknown = a.bval | b.bval;
        return {(a.aval ^ b.aval) | unknown, unknown};
    }
};

// What differs is unknown.
struct MixRule {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& a,
                                                   const Halves<kCount>& b) noexcept {
        const BitsOf<kCount> unknown = a.bval | b.bval;
        return {a.aval | b.aval | unknown, (a.aval ^ b.aval) | unknown};
    }
};

template <class Rule>
struct InvertedRule {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& a,
                                                   const Halves<kCount>& b) noexcept {
        return InvertRule::Of(Rule::Of(a, b));
    }
};

using NandRule = InvertedRule<AndRule>;
using NorRule = InvertedRule<OrRule>;
using XnorRule = InvertedRule<XorRule>;

// Sixteen bits twice, in which every value of one operand (kRows: 0000 1111 zzzz xxxx, bit 0 first)
// meets every value of the other (kColumns: 01zx 01zx 01zx 01zx).
inline constexpr Word kRows = MakeWord(0xF0F0F0F0, 0xFF00FF00);
inline constexpr Word kColumns = MakeWord(0xAAAAAAAA, 0xCCCCCCCC);

// The word that a truth table gives for kRows and kColumns.
consteval Word FromTable(const char* table) {
    Word word = 0;
    unsigned bit = 0;
    for (; *table != '\0'; ++table) {
        if (*table == ' ') continue;
        if (*table == '1' || *table == 'x') word |= Word{0x10001} << bit;
        if (*table == 'z' || *table == 'x') word |= Word{0x10001} << (32 + bit);
        ++bit;
    }
    return bit == 16 ? word : throw "a table has sixteen values";
}

static_assert(FromTable("0000 1111 zzzz xxxx") == kRows);
static_assert(FromTable("01zx 01zx 01zx 01zx") == kColumns);

static_assert(ApplyRule<BufferRule>(kRows) == FromTable("0000 1111 xxxx xxxx"));
static_assert(ApplyRule<InvertRule>(kRows) == FromTable("1111 0000 xxxx xxxx"));
static_assert(ApplyRule<AndRule>(kRows, kColumns) == FromTable("0000 01xx 0xxx 0xxx"));
static_assert(ApplyRule<NandRule>(kRows, kColumns) == FromTable("1111 10xx 1xxx 1xxx"));
static_assert(ApplyRule<OrRule>(kRows, kColumns) == FromTable("01xx 1111 x1xx x1xx"));
static_assert(ApplyRule<NorRule>(kRows, kColumns) == FromTable("10xx 0000 x0xx x0xx"));
static_assert(ApplyRule<XorRule>(kRows, kColumns) == FromTable("01xx 10xx xxxx xxxx"));
static_assert(ApplyRule<XnorRule>(kRows, kColumns) == FromTable("10xx 01xx xxxx xxxx"));
static_assert(ApplyRule<MixRule>(kRows, kColumns) == FromTable("0xxx x1xx xxxx xxxx"));

}  // namespace tarn

#endif  // TARN_LOGIC_BITWISE_RULES_H
