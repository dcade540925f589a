// Quotients and remainders of vectors.
#ifndef TARN_ARITH_QUOTIENT_H
#define TARN_ARITH_QUOTIENT_H

#include "core/words.h"

namespace tarn {

enum class Wanted { kQuotient, kRemainder };

// The value of a known word or limb pair as a sign and a magnitude.
template <class Extend>
struct SmallWhole {
    std::uint64_t magnitude;
    bool negative;

    // `value` with its sign in bit 63.
    explicit constexpr SmallWhole(std::uint64_t value) noexcept
        : magnitude(value), negative(Extend::Beyond(value >> 32) != 0) {
        if (negative) {
            magnitude = 0 - magnitude;
        }
    }
};

// The wanted one of a / b, truncated toward zero, and a % b with the sign of a, for b other than 0.
template <class Extend, Wanted kWanted>
constexpr std::uint64_t DivideSmall(std::uint64_t aValue, std::uint64_t bValue) noexcept {
    const SmallWhole<Extend> a(aValue), b(bValue);
    const bool remainder = kWanted == Wanted::kRemainder;
    const std::uint64_t magnitude =
        remainder ? a.magnitude % b.magnitude : a.magnitude / b.magnitude;
    const bool negative = remainder ? a.negative : a.negative != b.negative;
    return negative ? 0 - magnitude : magnitude;
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
        const auto value = DivideSmall<Extend, kWanted>(aWord << 32, bWord << 32);
        StoreWord(result.words, kWanted == Wanted::kRemainder ? value >> 32 : value & kValueBits);
        return;
    }
    DivideWide<Extend, kWanted>(result, a, b);
}

}  // namespace tarn

#endif  // TARN_ARITH_QUOTIENT_H
