// The order of two vectors as numbers.
#ifndef TARN_COMPARE_RELATION_H
#define TARN_COMPARE_RELATION_H

#include <type_traits>

#include <tarnlib/compare.h>

#include "core/vector.h"

namespace tarn {

// Machine numbers of the bits of one word or two, read as the extension says.
template <class Extend, class Unsigned>
constexpr RelationCode Order(Unsigned a, Unsigned b) noexcept {
    using Number = std::conditional_t<Extend::kIsSigned, std::make_signed_t<Unsigned>, Unsigned>;
    const int isGreater = static_cast<Number>(a) > static_cast<Number>(b) ? 1 : 0;
    // The codes but for "unknown", without a branch.
    return isGreater - (a == b ? 1 : 0);
}

static_assert(Order<SignExtend>(~0U, 1U) == TARN_RELATION_LESS);
static_assert(Order<ZeroExtend>(~0U, 1U) == TARN_RELATION_GREATER);
static_assert(Order<ZeroExtend>(1U, 1U) == TARN_RELATION_EQUAL);

// Operands that are not both of one word. Instantiated in relation.cpp for both extensions.
template <class Extend>
RelationCode RelateWide(Operand a, Operand b) noexcept;

// How a compares with b; unknown where a width is below 1.
template <class Extend>
inline RelationCode Relate(Operand a, Operand b) noexcept {
    if (AreOneWord(a.width, b.width)) {
        const Word aWord = LoadWord(a.words), bWord = LoadWord(b.words);
        const RelationCode order = Order<Extend>(Aval(aWord), Aval(bWord));
        return IsUnknown(aWord | bWord) ? TARN_RELATION_UNKNOWN : order;
    }
    return RelateWide<Extend>(a, b);
}

}  // namespace tarn

#endif  // TARN_COMPARE_RELATION_H
