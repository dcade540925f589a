// A field of bits written into a vector, and whether that changed a bit.
#ifndef TARN_SELECT_ASSIGN_H
#define TARN_SELECT_ASSIGN_H

#include <algorithm>

#include "core/funnel.h"
#include "core/vector.h"

namespace tarn {

// The bits of `mask` in a word are replaced by those of `bits`. Returns the changed ones.
inline Word ReplaceBits(VectorWord* to, Word bits, Word mask) noexcept {
    const Word old = LoadWord(to);
    const Word changed = (old ^ bits) & mask;
    StoreWord(to, old ^ changed);
    return changed;
}

// The operations below are instantiated in assign.cpp for both policies. All return whether a bit
// of the target changed, which has a meaning under OverwriteAndCompare only.

template <class Policy>
bool AssignWideField(VectorWord* target, const VectorWord* value, unsigned offset,
                     int width) noexcept;

// The `width` bits from bit `offset` (0 to 31) of the word at target upward become those of value.
// The walk goes down from the field's end: value may begin at or below the target, or lie apart.
template <class Policy>
inline bool AssignField(VectorWord* target, const VectorWord* value, unsigned offset,
                        int width) noexcept {
    if (static_cast<unsigned>(width) - 1U < 32U - offset) {
        // What the shift carries from aval into bval lies below the mask.
        const Word mask = InBothHalves(LowMask(width) << offset);
        return ReplaceBits(target, LoadWord(value) << offset, mask) != 0;
    }
    return AssignWideField<Policy>(target, value, offset, width);
}

// The same for a field of which only the upper part, or nothing, lies in the target: its index is
// negative or not below the target's width. The walk goes up; value may be the target or lie apart.
template <class Policy>
bool AssignFieldFromBelow(Result target, const VectorWord* value, int index, int width) noexcept;

// The bits of the target from bit `index` upward become the `width` bits of value, as far as the
// target has them.
template <class Policy>
inline bool AssignIndexedField(Result target, const VectorWord* value, int index,
                               int width) noexcept {
    if (index < 0 || index >= target.width) {
        return AssignFieldFromBelow<Policy>(target, value, index, width);
    }
    return AssignField<Policy>(target.words + index / kWordBits, value,
                               static_cast<unsigned>(index) % kWordBits,
                               std::min(width, target.width - index));
}

// Whether a field lies inside a vector of a width, or at least a bit of it does; nothing overflows,
// whatever the numbers.
constexpr bool LiesInside(int targetWidth, int index, int width) noexcept {
    return width >= 1 && index >= 0 && std::int64_t{index} + width <= targetWidth;
}
constexpr bool ReachesInto(int targetWidth, int index, int width) noexcept {
    return width >= 1 && index < targetWidth && std::int64_t{index} + width > 0;
}

// Whether two vectors of one width differ in a stored bit; they may share storage in any way.
inline bool AreDifferent(int width, const VectorWord* a, const VectorWord* b) noexcept {
    if (AreOneWord(width)) return LoadWord(a) != LoadWord(b);
    return width >= 1 && std::memcmp(a, b, WordCount(width) * sizeof(VectorWord)) != 0;
}

}  // namespace tarn

#endif  // TARN_SELECT_ASSIGN_H
