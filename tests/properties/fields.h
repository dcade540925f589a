// Fields of bits: what reading and writing one is to give, and how one is drawn beside, across and
// inside the ends of a vector.
#ifndef TARN_TESTS_PROPERTIES_FIELDS_H
#define TARN_TESTS_PROPERTIES_FIELDS_H

#include <climits>

#include "families.h"

namespace tarn::test {

// Bits index to index + width - 1 of a vector, X where it has none, in clean storage.
inline Vec Field(const Vec& source, int index, int width) {
    Vec field = Filled(width, Logic::k0);
    for (std::int64_t k = 0; k < width; ++k) {
        const std::int64_t i = index + k;
        const bool isInside = i >= 0 && i < source.width;
        field.bits[static_cast<std::size_t>(k)] =
            isInside ? source.bits[static_cast<std::size_t>(i)] : Logic::kX;
    }
    return field;
}

// The target with value in its bits from `index` upward, as far as it has them.
inline Vec WithField(Vec target, const Vec& value, int index, int width) {
    for (std::int64_t i = std::max(index, 0); i < target.width && i - index < width; ++i) {
        target.bits[static_cast<std::size_t>(i)] = value.bits[static_cast<std::size_t>(i - index)];
    }
    return target;
}

inline bool HasBitInside(int targetWidth, int index, int width) {
    return width > 0 && index < targetWidth && std::int64_t{index} + width > 0;
}

// Of a field as wide as can be, only few bits lie below the vector: no more are ever drawn.
inline int DrawIndex(Gen& gen, int vectorWidth, int width) {
    const int near = std::max(vectorWidth, 1), below = width == INT_MAX ? 200 : std::max(width, 1);
    const int index = gen.Between(-below - 2, near + 2);
    const int edges[] = {INT_MIN, INT_MIN + 1, -below, 1 - below, near, INT_MAX};
    switch (gen.Below(8)) {
        case 0:
            return index & ~31;
        case 1:
            return gen.Below(near);
        case 2:
            return gen.Pick(edges);
        default:
            return index;
    }
}

struct Write {
    Vec target;
    int index;
    int width;
    // Has no word above the last one that a write may read, and sometimes fewer than the width.
    Vec value;
};

// The value often is what the field holds already, or differs from that in one bit; or it is the
// target itself.
inline Vec DrawFieldValue(Gen& gen, const Vec& target, int index, int width) {
    // The checked build also asks where a value of the field's width would end.
    const std::int64_t reached = std::int64_t{target.width} - index;
    const bool isInside = HasBitInside(target.width, index, width);
    Vec value = gen.FourState(kIsChecked ? width
                              : isInside ? static_cast<int>(std::min<std::int64_t>(reached, width))
                                         : 0);
    const int choice = gen.Below(4);
    if (choice == 0) {
        std::copy_n(target.bits.begin(), std::min(target.bits.size(), value.bits.size()),
                    value.bits.begin());
    } else if (choice == 1 && !value.bits.empty()) {
        const std::int64_t first = std::max(index, 0);
        for (std::int64_t at = first; at < target.width && at - index < value.width; ++at) {
            value.bits[static_cast<std::size_t>(at - index)] =
                target.bits[static_cast<std::size_t>(at)];
        }
        Logic& any = value.bits[gen.Bits() % value.bits.size()];
        any = static_cast<Logic>(static_cast<int>(any) ^ gen.Below(4));
    }
    return value;
}

// A field of a vector of some width, anywhere in or beside it.
inline Write DrawWrite(Gen& gen, int targetWidth) {
    const int width = !kIsChecked && gen.OneIn(32) ? INT_MAX : DrawDefinedWidth(gen);
    Vec target = gen.FourState(targetWidth);
    const int index = DrawIndex(gen, targetWidth, width);
    Vec value = DrawFieldValue(gen, target, index, width);
    return {std::move(target), index, width, std::move(value)};
}

// A field that lies inside, and often ends where the vector does. Where widths below 1 are defined,
// one of the two may be one.
inline Write DrawInnerWrite(Gen& gen, int targetWidth) {
    Vec target = gen.FourState(targetWidth);
    if (targetWidth < 1) return {std::move(target), 0, 8, Vec{}};
    if (!kIsChecked && gen.OneIn(32)) return {std::move(target), 0, -gen.Below(70), Vec{}};
    const int index = gen.Below(targetWidth), most = targetWidth - index;
    const int width = gen.OneIn(4) ? most : gen.Between(1, most);
    Vec value = DrawFieldValue(gen, target, index, width);
    return {std::move(target), index, width, std::move(value)};
}

template <class Returned, class... Parameters>
constexpr bool ReturnsNothing(Returned (* /*function*/)(Parameters...)) {
    return std::is_void_v<Returned>;
}
// Where a write is asked, it returns whether it was a change.
Case WithFlag(auto* function, Case written, bool isChange) {
    return ReturnsNothing(function) ? written : std::move(written).Returns(isChange ? 1 : 0);
}

}  // namespace tarn::test

#endif  // TARN_TESTS_PROPERTIES_FIELDS_H
