// Operands and results that fit in one machine number, a Limb or a DoubleLimb.
#ifndef TARN_ARITH_SHORT_H
#define TARN_ARITH_SHORT_H

#include "arith/pack.h"

namespace tarn {

// A value extended to a whole machine number; unknown where any bit of its words is.
template <class Number>
struct Short {
    Number number;
    bool unknown;
};

template <class Number, class Extend>
inline Short<Number> LoadShort(Operand operand) noexcept {
    const bool isOne = operand.width <= kWordBits;
    const Word first = LoadWord(operand.words);
    const Word second = isOne ? Extend::Beyond(first) : LoadWord(operand.words + 1);
    const Limb low = PackWords(first, second);
    if constexpr (sizeof(Number) == sizeof(Limb)) {
        return {low, IsUnknown(first | second)};
    } else {
        if (operand.width <= kLimbBits) {
            const Word beyond = Extend::Beyond(second);
            return {MakeDoubleLimb(PackWords(beyond, beyond), low), IsUnknown(first | second)};
        }
        const Word third = LoadWord(operand.words + 2);
        const Word fourth = operand.width > kLimbBits + kWordBits ? LoadWord(operand.words + 3)
                                                                  : Extend::Beyond(third);
        return {MakeDoubleLimb(PackWords(third, fourth), low),
                IsUnknown(first | second | third | fourth)};
    }
}

// Stores the low words, all X for an unknown value.
template <class Number>
inline void StoreShort(Result result, Short<Number> value) noexcept {
    const Word unknown = value.unknown ? kAllX : 0;
    const auto store = [&](int i) {
        const auto word = static_cast<Word>(value.number >> (i * kWordBits)) & kValueBits;
        StoreWord(result.words + i, word | unknown);
    };
    store(0);
    if (result.width <= kWordBits) return;
    store(1);
    if constexpr (sizeof(Number) > sizeof(Limb)) {
        if (result.width <= kLimbBits) return;
        store(2);
        if (result.width <= kLimbBits + kWordBits) return;
        store(3);
    }
}

// Out of line, so that the frame of the wider form does not burden the narrower one.
template <class Number, class Extend, class Step, class... Operands>
[[gnu::noinline]] void ComputeIn(Result result, Step step, Operands... operands) noexcept {
    StoreShort(result, step(LoadShort<Number, Extend>(operands)...));
}

// result = step(operands ...) in the smaller machine number that holds result and operands alike;
// false, with nothing done, where neither does. step takes and returns a Short of either kind.
template <class Extend, class Step, class... Operands>
inline bool ComputeShort(Result result, Step step, Operands... operands) noexcept {
    if (AreWithin<64>(result.width, operands.width...)) {
        StoreShort(result, step(LoadShort<Limb, Extend>(operands)...));
        return true;
    }
    if (AreWithin<128>(result.width, operands.width...)) {
        ComputeIn<DoubleLimb, Extend>(result, step, operands...);
        return true;
    }
    return false;
}

}  // namespace tarn

#endif  // TARN_ARITH_SHORT_H
