// Quotients and remainders of vectors.
#ifndef TARN_ARITH_QUOTIENT_H
#define TARN_ARITH_QUOTIENT_H

#include "core/words.h"

namespace tarn {

enum class Wanted { kQuotient, kRemainder };

// The wanted one of a / b, truncated toward zero, and a % b with the sign of a, for machine numbers
// and b other than 0. Magnitudes are unsigned, so that the most negative number has one.
template <class Extend, Wanted kWanted, class Number>
constexpr Number DivideNumbers(Number a, Number b) noexcept {
    constexpr unsigned kTopBit = 8 * sizeof(Number) - 1;
    const bool aNegative = Extend::kIsSigned && (a >> kTopBit) != 0;
    const bool bNegative = Extend::kIsSigned && (b >> kTopBit) != 0;
    a = aNegative ? 0 - a : a;
    b = bNegative ? 0 - b : b;
    if constexpr (kWanted == Wanted::kRemainder) {
        return aNegative ? 0 - a % b : a % b;
    } else {
        return aNegative != bNegative ? 0 - a / b : a / b;
    }
}

template <class Extend, Wanted kWanted>
void DivideWide(Result result, Operand a, Operand b) noexcept;

// result = a / b or a % b.
template <class Extend, Wanted kWanted>
inline void Divide(Result result, Operand a, Operand b) noexcept {
    if (AreOneWord(result.width, a.width, b.width)) {
        const Word aWord = LoadWord(a.words), bWord = LoadWord(b.words);
        if (IsUnknown(aWord | bWord) || bWord == 0) {
            StoreWord(result.words, kAllX);
            return;
        }
        // Shifted up, a word's sign is the limb's; the quotient of two shifted values is that of
        // the values, the remainder is shifted like them.
        const auto value = DivideNumbers<Extend, kWanted>(aWord << 32, bWord << 32);
        StoreWord(result.words, kWanted == Wanted::kRemainder ? value >> 32 : value & kValueBits);
        return;
    }
    DivideWide<Extend, kWanted>(result, a, b);
}

}  // namespace tarn

#endif  // TARN_ARITH_QUOTIENT_H
