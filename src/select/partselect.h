// Fields of bits and single bits read out of a vector, and the indices that say where.
#ifndef TARN_SELECT_PARTSELECT_H
#define TARN_SELECT_PARTSELECT_H

#include "core/difference.h"
#include "core/vector.h"

namespace tarn {

// The low bits of a half, n as LowMask counts them: clean, or extended by the highest of them.
struct CleanCut {
    explicit CleanCut(int n) noexcept : mask(LowMask(n)) {}
    std::uint32_t operator()(std::uint32_t half) const noexcept { return half & mask; }

    std::uint32_t mask;
};
struct SignedCut {
    explicit SignedCut(int n) noexcept : above(static_cast<unsigned>(kWordBits - n) % 32U) {}
    std::uint32_t operator()(std::uint32_t half) const noexcept {
        return static_cast<std::uint32_t>(static_cast<std::int32_t>(half << above) >> above);
    }

    unsigned above;
};

// A field of 1 to 32 bits, cut out of halves that begin with it and go on above it. The word of its
// highest bit is read without asking whether that is the one of its lowest bit: if so, it is joined
// above the field.
template <class Cut>
inline Word ReadShortField(const VectorWord* source, unsigned offset, int width, Cut cut) noexcept {
    const VectorWord* const top = source + (offset + static_cast<unsigned>(width) - 1U) / 32U;
    const std::uint64_t avals = std::uint64_t{top->aval} << 32 | source->aval;
    const std::uint64_t bvals = std::uint64_t{top->bval} << 32 | source->bval;
    return MakeWord(cut(static_cast<std::uint32_t>(avals >> offset)),
                    cut(static_cast<std::uint32_t>(bvals >> offset)));
}

void ReadWideField(VectorWord* result, const VectorWord* source, unsigned offset,
                   int width) noexcept;

// result = the `width` bits from bit `offset` (0 to 31) of the word at source upward, clean above
// the width. Reads no source word without a bit of the field, and each word before the result word
// of the same index is written.
inline void ReadField(VectorWord* result, const VectorWord* source, unsigned offset,
                      int width) noexcept {
    if (AreOneWord(width)) {
        StoreWord(result, ReadShortField(source, offset, width, CleanCut(width)));
        return;
    }
    ReadWideField(result, source, offset, width);
}

void ReadWideSignedField(Result result, const VectorWord* source, unsigned offset,
                         int width) noexcept;

// The same, extended by the field's top bit to the words of the result; where the field has more
// words than that, to the field's.
inline void ReadSignedField(Result result, const VectorWord* source, unsigned offset,
                            int width) noexcept {
    if (AreOneWord(result.width, width)) {
        StoreWord(result.words, ReadShortField(source, offset, width, SignedCut(width)));
        return;
    }
    ReadWideSignedField(result, source, offset, width);
}

void ReadFieldAcrossEnds(VectorWord* result, Operand source, int index, int width) noexcept;

// result = the `width` bits from bit `index` of the source upward, clean above the width; X where
// the source has no bit. Nothing overflows, whatever the numbers.
inline void ReadIndexedField(VectorWord* result, Operand source, int index, int width) noexcept {
    if (index >= 0 && std::int64_t{index} + width <= source.width) {
        ReadField(result, source.words + index / 32, static_cast<unsigned>(index) % 32U, width);
        return;
    }
    ReadFieldAcrossEnds(result, source, index, width);
}

// The LogicCode of one bit, X for one that the source does not have.
inline LogicCode ReadBit(Operand source, int index) noexcept {
    if (index < 0 || index >= source.width) return TARN_LOGIC_X;
    const Word bits = LoadWord(source.words + index / 32) >> (static_cast<unsigned>(index) % 32U);
    return static_cast<LogicCode>((bits & 1U) | (bits >> 31 & 2U));
}

void FillWideWithX(VectorWord* words, unsigned first, unsigned end) noexcept;

// Bits `first` (0 to 31) to end - 1 become X, those above them in their last word 0.
inline void FillWithX(VectorWord* words, unsigned first, unsigned end) noexcept {
    if (end > 32U) {
        FillWideWithX(words, first, end);
        return;
    }
    const Word filled = LoadWord(words) | InBothHalves(0xFFFFFFFFU << first);
    StoreWord(words, filled & InBothHalves(LowMask(static_cast<int>(end))));
}

// Whether an index vector holds a known number that a 32-bit integer index can: from 0 up, or
// (SignExtend) any.
template <class Extend>
inline bool IsUsableIndex(Operand index) noexcept {
    if (index.width < 1) return false;
    const Word low = LoadWord(index.words);
    constexpr Word kRefused = Extend::kIsSigned ? kUnknownBits : kUnknownBits | 0x80000000;
    if ((low & kRefused) != 0) return false;
    const Word beyond = Extend::Beyond(low);
    return index.width <= 32 ||
           DifferenceFrom(beyond, index.words + 1, index.Count() - 1, kAllX) == 0;
}

}  // namespace tarn

#endif  // TARN_SELECT_PARTSELECT_H
