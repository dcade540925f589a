// Addition and subtraction of vectors, and what is made of them: negation, plus, increment.
#ifndef TARN_ARITH_ADD_H
#define TARN_ARITH_ADD_H

#include "core/words.h"

namespace tarn {

// a + b, or a - b as a + ~b + 1: the two differ in how b enters and in the first carry.
struct Addition {
    static constexpr Word kFirstCarry = 0;
    static constexpr std::uint64_t Enter(std::uint64_t b) noexcept { return b; }
};

struct Subtraction {
    static constexpr Word kFirstCarry = 1;
    static constexpr std::uint64_t Enter(std::uint64_t b) noexcept { return ~b; }
};

// result = a Operation b for operands of any widths. Instantiated in add.cpp for both operations
// and both extensions.
template <class Operation, class Extend>
void CombineWide(Result result, Operand a, Operand b) noexcept;

template <class Operation, class Extend>
inline void Combine(Result result, Operand a, Operand b) noexcept {
    if (AreOneWord(result.width, a.width, b.width)) {
        const Word aWord = LoadWord(a.words);
        const Word bWord = LoadWord(b.words);
        const Word sum = (aWord + Operation::Enter(bWord) + Operation::kFirstCarry) & kValueBits;
        StoreWord(result.words, IsUnknown(aWord | bWord) ? kAllX : sum);
        return;
    }
    CombineWide<Operation, Extend>(result, a, b);
}

// result = -a, which is 0 - a with an empty operand for the 0.
template <class Extend>
inline void Negate(Result result, Operand a) noexcept {
    if (AreOneWord(result.width, a.width)) {
        const Word word = LoadWord(a.words);
        StoreWord(result.words, IsUnknown(word) ? kAllX : (0 - word) & kValueBits);
        return;
    }
    CombineWide<Subtraction, Extend>(result, {0, nullptr}, a);
}

template <class Extend>
void PlusWide(Result result, Operand a) noexcept;

// result = a, or all X where a has an unknown bit.
template <class Extend>
inline void Plus(Result result, Operand a) noexcept {
    if (AreOneWord(result.width, a.width)) {
        const Word word = LoadWord(a.words);
        StoreWord(result.words, IsUnknown(word) ? kAllX : word);
        return;
    }
    PlusWide<Extend>(result, a);
}

void StepWide(Result v, std::uint32_t delta) noexcept;

// v = v + delta in place, for a delta of 1 or (as 0xFFFFFFFF) -1.
inline void Step(Result v, std::uint32_t delta) noexcept {
    if (AreOneWord(v.width)) {
        const Word word = LoadWord(v.words);
        StoreWord(v.words, IsUnknown(word) ? kAllX : (word + delta) & kValueBits);
        return;
    }
    StepWide(v, delta);
}

}  // namespace tarn

#endif  // TARN_ARITH_ADD_H
