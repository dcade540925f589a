// The ceiling of the base-2 logarithm of a vector.
#ifndef TARN_REAL_CLOG2_H
#define TARN_REAL_CLOG2_H

#include <bit>

#include "core/vector.h"

namespace tarn {

int CeilingLog2TwoWords(Operand value) noexcept;
int CeilingLog2Wide(Operand value) noexcept;

// How many bits the numbers below the value need.
inline int BitsBelow(std::uint64_t value) noexcept {
    return value == 0 ? 0 : static_cast<int>(std::bit_width(value - 1));
}

// The same of a vector; 0 where a bit is unknown. Words count whole.
inline int CeilingLog2(Operand value) noexcept {
    if (AreOneWord(value.width)) {
        const Word word = LoadWord(value.words);
        return IsUnknown(word) ? 0 : BitsBelow(word);
    }
    return AreWithin<64>(value.width) ? CeilingLog2TwoWords(value) : CeilingLog2Wide(value);
}

}  // namespace tarn

#endif  // TARN_REAL_CLOG2_H
