// Plain definitions, one bit at a time, for the results that no peer computes.
#ifndef TARN_BENCH_BITS_H
#define TARN_BENCH_BITS_H

#include <algorithm>

#include "operands.h"

namespace tarn::bench {

struct Bit {
    std::uint32_t aval, bval;
};

inline constexpr Bit kBit0{0, 0};
inline constexpr Bit kBit1{1, 0};
inline constexpr Bit kBitX{1, 1};

inline Bit BitOf(const VectorWord* words, int index) {
    const VectorWord& word = words[index / 32];
    return {(word.aval >> (index % 32)) & 1U, (word.bval >> (index % 32)) & 1U};
}

// kBit(operands, i) for every bit of so many words of the result, those above a width included.
template <auto kBit>
void WriteBits(const Operands& o, std::size_t wordCount) {
    std::fill_n(o.result, wordCount, VectorWord{0, 0});
    for (int i = 0; i < static_cast<int>(32 * wordCount); ++i) {
        const Bit bit = kBit(o, i);
        o.result[i / 32].aval |= bit.aval << (i % 32);
        o.result[i / 32].bval |= bit.bval << (i % 32);
    }
}

// A result as wide as the operands, and one as wide as a field.
template <auto kBit>
void BitByBit(const Operands& o) {
    WriteBits<kBit>(o, o.wordCount);
}

template <auto kBit>
void FieldBitByBit(const Operands& o) {
    WriteBits<kBit>(o, o.bWordCount);
}

// The field of a, clean above its width.
inline Bit FieldBit(const Operands& o, int i) {
    return i < o.bWidth ? BitOf(o.a, i + static_cast<int>(o.fieldOffset)) : kBit0;
}

// a with b in the place of the field.
inline Bit AssignedBit(const Operands& o, int i) {
    const int at = i - static_cast<int>(o.fieldOffset);
    return 0 <= at && at < o.bWidth ? BitOf(o.b, at) : BitOf(o.a, i);
}

}  // namespace tarn::bench

#endif  // TARN_BENCH_BITS_H
