// Vectors as reals and reals as vectors.
#ifndef TARN_REAL_CONVERT_H
#define TARN_REAL_CONVERT_H

#include <cmath>

#include "core/copy.h"

namespace tarn {

double NearestReal(bool isNegative, std::uint64_t magnitude) noexcept;

// The nearest double of an integer; halves go away from zero.
inline double NearestReal(std::int64_t value) noexcept {
    const auto bits = static_cast<std::uint64_t>(value);
    return NearestReal(value < 0, value < 0 ? 0 - bits : bits);
}

// The sign of a vector is the top bit of its width here, not of its storage.
template <class Extend>
double ToRealTwoWords(Operand value) noexcept;
template <class Extend>
double ToRealWide(Operand value) noexcept;

// The nearest double of the value, X and Z read as 0; halves go away from zero. No step depends on
// the rounding that doubles are set to.
template <class Extend>
inline double ToReal(Operand value) noexcept {
    if (AreOneWord(value.width)) {
        const std::uint32_t ones = KnownOnes(LoadWord(value.words));
        if constexpr (Extend::kIsSigned) {
            const int unused = kWordBits - value.width;
            return static_cast<std::int32_t>(ones << unused) >> unused;
        } else {
            return ones;
        }
    }
    return AreWithin<64>(value.width) ? ToRealTwoWords<Extend>(value) : ToRealWide<Extend>(value);
}

void StoreWholeWide(Result result, std::int64_t value) noexcept;

// result = value, continued above its 64 bits by its sign.
inline void StoreWhole(Result result, std::int64_t value) noexcept {
    if (AreOneWord(result.width)) {
        StoreWord(result.words, static_cast<std::uint32_t>(value));
        return;
    }
    StoreWholeWide(result, value);
}

// The same for a magnitude of 2^63 or more, and for what is no number: an exponent field of all
// ones counts as one more exponent.
void StoreHuge(Result result, double value) noexcept;

// result = value rounded, halves away from zero. The half is added in double arithmetic: what that
// addition makes of an odd number above 2^52 is the result.
inline void StoreRounded(Result result, double value) noexcept {
    const double shifted = value + std::copysign(0.5, value);
    if (std::fabs(shifted) < 0x1p63) {
        StoreWhole(result, static_cast<std::int64_t>(shifted));
        return;
    }
    StoreHuge(result, shifted);
}

// result = the whole part of value. From 2^52 up a double has no other part.
inline void StoreTruncated(Result result, double value) noexcept {
    if (std::fabs(value) < 0x1p52) {
        StoreWhole(result, static_cast<std::int64_t>(value));
        return;
    }
    StoreRounded(result, value);
}

}  // namespace tarn

#endif  // TARN_REAL_CONVERT_H
