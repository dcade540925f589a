// The value of a vector as a machine integer, for use as a size or count.
#ifndef TARN_TEXT_MACHINE_INTEGER_H
#define TARN_TEXT_MACHINE_INTEGER_H

#include "core/vector.h"

namespace tarn {

// Whether a known 1 lies at bit 64 or above, within the width.
inline bool ReachesBit64(Operand value) noexcept {
    const std::size_t count = value.Count();
    std::uint32_t ones = 0;
    for (std::size_t i = 2; i < count && ones == 0; ++i) {
        const std::uint32_t within = i + 1 == count ? LowMask(value.width) : ~std::uint32_t{0};
        ones = KnownOnes(LoadWord(value.words + i)) & within;
    }
    return ones != 0;
}

inline std::uint32_t UnsignedSize(Operand value) noexcept {
    return value.width < 1 ? 0 : KnownOnes(LoadWord(value.words));
}

inline std::int32_t SignedSize(Operand value) noexcept {
    const std::uint32_t ones = UnsignedSize(value);
    if (value.width < 1 || value.width >= kWordBits) return static_cast<std::int32_t>(ones);
    const int unused = kWordBits - value.width;
    return static_cast<std::int32_t>(ones << unused) >> unused;
}

}  // namespace tarn

#endif  // TARN_TEXT_MACHINE_INTEGER_H
