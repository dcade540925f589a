// Random fields of bits that are written: beside, across and inside the ends of a target.
#ifndef TARN_TESTS_FIELD_MODEL_H
#define TARN_TESTS_FIELD_MODEL_H

#include <algorithm>
#include <climits>

#include "select_model.h"
#include "support/call.h"
#include "support/gen.h"

namespace tarn::test {

struct FieldDraw {
    int index;
    int width;
    // Has no word above the last one that a write may read, and sometimes fewer than the width.
    Vec value;
};

// The value of the widest field is never drawn whole, so only few of its bits lie below the target.
inline int DrawIndex(Gen& gen, int targetWidth, int width) {
    const int below = width == INT_MAX ? 200 : width;
    const int index = gen.Between(-below - 2, targetWidth + 2);
    const int edges[] = {INT_MIN, INT_MIN + 1, -width, 1 - below, targetWidth, INT_MAX};
    switch (gen.Below(8)) {
        case 0:
            return index & ~31;
        case 1:
            return gen.Between(0, targetWidth - 1);
        case 2:
            return edges[gen.Below(std::size(edges))];
        default:
            return index;
    }
}

// The checked build also asks where a value of the field's width would end, so there the widest one
// is left out.
inline int DrawFieldWidth(Gen& gen) {
    return gen.OneIn(32) ? (kIsChecked ? 1 : INT_MAX) : gen.Width();
}

// The value often is what the field holds already, or differs from that in one bit; or it is the
// target itself.
inline Vec DrawFieldValue(Gen& gen, const Vec& target, int index, int width) {
    const std::int64_t reached = std::int64_t{target.width} - index;
    const int stored = kIsChecked ? width
                       : HasBitInside(target.width, index, width)
                           ? static_cast<int>(std::min<std::int64_t>(reached, width))
                           : 0;
    Vec value = gen.FourState(stored);
    const int choice = gen.Below(4);
    if (choice == 0) {
        std::copy_n(target.bits.begin(), std::min(target.bits.size(), value.bits.size()),
                    value.bits.begin());
    }
    if (choice == 1 && stored > 0) {
        for (std::size_t i = 0; i < value.bits.size(); ++i) {
            const std::int64_t at = static_cast<std::int64_t>(i) + index;
            if (0 <= at && at < target.width) {
                value.bits[i] = target.bits[static_cast<std::size_t>(at)];
            }
        }
        if (gen.OneIn(2)) value.bits[gen.Bits() % value.bits.size()] = Logic::kX;
    }
    return value;
}

inline FieldDraw DrawField(Gen& gen, const Vec& target) {
    const int width = DrawFieldWidth(gen);
    const int index = DrawIndex(gen, target.width, width);
    return {index, width, DrawFieldValue(gen, target, index, width)};
}

// A field inside the target.
inline FieldDraw DrawInnerField(Gen& gen, const Vec& target) {
    const int index = gen.Between(0, target.width - 1);
    const int width = gen.OneIn(4) ? target.width - index : gen.Between(1, target.width - index);
    return {index, width, DrawFieldValue(gen, target, index, width)};
}

}  // namespace tarn::test

#endif  // TARN_TESTS_FIELD_MODEL_H
