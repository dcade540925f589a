// A field of bits read out of a vector.
#ifndef TARN_SELECT_PARTSELECT_H
#define TARN_SELECT_PARTSELECT_H

#include "core/word.h"

namespace tarn {

// The 32 bits from bit `offset` (1 to 31) of `low` upward, in aval and bval alike; `high` is the
// word above low.
constexpr Word JoinWords(Word low, Word high, unsigned offset) noexcept {
    const auto fromLow = (low >> offset) & InBothHalves(0xFFFFFFFFU >> offset);
    const auto fromHigh = (high << (32 - offset)) & InBothHalves(0xFFFFFFFFU << (32 - offset));
    return fromLow | fromHigh;
}

static_assert(JoinWords(MakeWord(0xC0000001, 0x80000000), MakeWord(0xE, 0x7), 30) ==
              MakeWord(0x3B, 0x1E));

// result = the `width` bits from bit `offset` (0 to 31) of the word at source upward, clean above
// the width. Reads no source word without a bit of the field, and each word before the result word
// of the same index is written.
void ReadField(VectorWord* result, const VectorWord* source, unsigned offset, int width) noexcept;

}  // namespace tarn

#endif  // TARN_SELECT_PARTSELECT_H
