// The bitwise operators on one word of each operand, aval and bval together, and the proof of each.
//
// A shift by 32 brings the bits of one half to those of the other; no rule needs more than shifts
// and bit operations, so that the compiler vectorises them.
#ifndef TARN_LOGIC_BITWISE_RULES_H
#define TARN_LOGIC_BITWISE_RULES_H

#include "core/word.h"

namespace tarn {

// Z becomes X.
constexpr Word BufferWord(Word a) noexcept {
    return a | (a >> 32);
}

constexpr Word InvertWord(Word a) noexcept {
    return (a ^ kValueBits) | (a >> 32);
}

// Both operands not 0, in the low half, is the aval; where either is unknown as well, the bval. The
// high half of `both` already holds a part of the bval: both unknown.
constexpr Word AndWords(Word a, Word b) noexcept {
    const Word both = BufferWord(a) & BufferWord(b);
    return both | ((both << 32) & (a | b));
}

// The low half of `ones` holds the known ones of either operand, which overrule unknown bits.
constexpr Word OrWords(Word a, Word b) noexcept {
    const Word ones = (a & ~(a >> 32)) | (b & ~(b >> 32));
    return BufferWord(a | b) & ~(ones << 32);
}

constexpr Word XorWords(Word a, Word b) noexcept {
    const Word either = a | b;
    return (a ^ b) | (either >> 32) | (either & kUnknownBits);
}

constexpr Word NandWords(Word a, Word b) noexcept {
    return InvertWord(AndWords(a, b));
}

constexpr Word NorWords(Word a, Word b) noexcept {
    return InvertWord(OrWords(a, b));
}

constexpr Word XnorWords(Word a, Word b) noexcept {
    return XorWords(a, b ^ kValueBits);
}

// What differs in aval is unknown.
constexpr Word MixWords(Word a, Word b) noexcept {
    return BufferWord(a | b) | ((a ^ b) << 32);
}

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

static_assert(BufferWord(kRows) == FromTable("0000 1111 xxxx xxxx"));
static_assert(InvertWord(kRows) == FromTable("1111 0000 xxxx xxxx"));
static_assert(AndWords(kRows, kColumns) == FromTable("0000 01xx 0xxx 0xxx"));
static_assert(NandWords(kRows, kColumns) == FromTable("1111 10xx 1xxx 1xxx"));
static_assert(OrWords(kRows, kColumns) == FromTable("01xx 1111 x1xx x1xx"));
static_assert(NorWords(kRows, kColumns) == FromTable("10xx 0000 x0xx x0xx"));
static_assert(XorWords(kRows, kColumns) == FromTable("01xx 10xx xxxx xxxx"));
static_assert(XnorWords(kRows, kColumns) == FromTable("10xx 01xx xxxx xxxx"));
static_assert(MixWords(kRows, kColumns) == FromTable("0xxx x1xx xxxx xxxx"));

}  // namespace tarn

#endif  // TARN_LOGIC_BITWISE_RULES_H
