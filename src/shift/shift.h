// Shifts by an amount of bits.
#ifndef TARN_SHIFT_SHIFT_H
#define TARN_SHIFT_SHIFT_H

#include "core/difference.h"
#include "core/funnel.h"
#include "core/vector.h"

namespace tarn {

// A word shifted toward bit 0 by 0 to 31 bits, aval and bval each for itself; what moves in is what
// the extension goes on with.
template <class Extend>
constexpr Word ShiftWordDown(Word word, unsigned bits) noexcept {
    using Half = std::conditional_t<Extend::kIsSigned, std::int32_t, std::uint32_t>;
    const auto shift = [bits](std::uint32_t half) {
        return static_cast<std::uint32_t>(static_cast<Half>(half) >> bits);
    };
    return MakeWord(shift(Aval(word)), shift(Bval(word)));
}

void ShiftLeftWide(Result result, const VectorWord* source, unsigned amount) noexcept;

// result = source << amount; the source has the result's words.
inline void ShiftLeft(Result result, const VectorWord* source, unsigned amount) noexcept {
    if (AreOneWord(result.width)) {
        const Word shifted = ShiftWordUp(LoadWord(source), amount % 32);
        StoreWord(result.words, amount < static_cast<unsigned>(result.width) ? shifted : 0);
        return;
    }
    ShiftLeftWide(result, source, amount);
}

// Instantiated in shift.cpp for both extensions.
template <class Extend>
void ShiftRightWide(Result result, Operand source, unsigned amount) noexcept;

// result = source >> amount; what moves in is the extension of the source.
template <class Extend>
inline void ShiftRight(Result result, Operand source, unsigned amount) noexcept {
    if (AreOneWord(result.width, source.width)) {
        const Word word = LoadWord(source.words);
        const Word shifted = ShiftWordDown<Extend>(word, amount % 32);
        const bool isPast = amount >= static_cast<unsigned>(source.width);
        StoreWord(result.words, isPast ? Extend::Beyond(word) : shifted);
        return;
    }
    ShiftRightWide<Extend>(result, source, amount);
}

// What a vector is as the amount of a shift.
enum class ShiftAmount : int { kFits = 0, kPastAnyWidth = 1, kUnknown = 3 };

inline ShiftAmount ScanShiftAmount(Operand amount) noexcept {
    if (amount.width < 1) return ShiftAmount::kFits;
    if (IsUnknown(LoadWord(amount.words))) return ShiftAmount::kUnknown;
    if (amount.width <= 32) return ShiftAmount::kFits;
    const Word above = DifferenceFrom(0, amount.words + 1, amount.Count() - 1, kUnknownBits);
    if (IsUnknown(above)) return ShiftAmount::kUnknown;
    return above != 0 ? ShiftAmount::kPastAnyWidth : ShiftAmount::kFits;
}

}  // namespace tarn

#endif  // TARN_SHIFT_SHIFT_H
