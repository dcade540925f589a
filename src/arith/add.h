// Addition and subtraction of vectors, and what is made of them: negation, plus, increment.
#ifndef TARN_ARITH_ADD_H
#define TARN_ARITH_ADD_H

#include "arith/natural/limb.h"
#include "core/lanes.h"
#include "core/words.h"

namespace tarn {

// What addition and subtraction do with two machine numbers, with two words and a carry or borrow,
// and with known words in lanes, where the carry or borrow of each is left in bit kCarryBit alone
// or from there on upward.
struct Addition {
    template <class Number>
    static constexpr Number Combine(Number a, Number b) noexcept {
        return a + b;
    }
    static CarryFlag Step(CarryFlag carry, std::uint32_t a, std::uint32_t b,
                          std::uint32_t* sum) noexcept {
        return AddWithCarry32(carry, a, b, sum);
    }
    static constexpr int kCarryBit = 32;
    TARN_KERNEL static void CombineLanes(Lanes& a, const Lanes& b) noexcept { a += b; }
};

struct Subtraction {
    template <class Number>
    static constexpr Number Combine(Number a, Number b) noexcept {
        return a - b;
    }
    static CarryFlag Step(CarryFlag borrow, std::uint32_t a, std::uint32_t b,
                          std::uint32_t* difference) noexcept {
        return SubtractWithBorrow32(borrow, a, b, difference);
    }
    static constexpr int kCarryBit = 63;
    TARN_KERNEL static void CombineLanes(Lanes& a, const Lanes& b) noexcept { a -= b; }
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
        const Word sum = Operation::Combine(aWord, bWord) & kValueBits;
        StoreWord(result.words, IsUnknown(aWord | bWord) ? kAllX : sum);
        return;
    }
    CombineWide<Operation, Extend>(result, a, b);
}

template <class Extend>
void NegateWide(Result result, Operand a) noexcept;

// result = -a.
template <class Extend>
inline void Negate(Result result, Operand a) noexcept {
    if (AreOneWord(result.width, a.width)) {
        const Word word = LoadWord(a.words);
        StoreWord(result.words, IsUnknown(word) ? kAllX : (0 - word) & kValueBits);
        return;
    }
    NegateWide<Extend>(result, a);
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
