// A vector as an operation sees it, and what stands in for the words that it does not have.
#ifndef TARN_CORE_VECTOR_H
#define TARN_CORE_VECTOR_H

#include "core/word.h"

namespace tarn {

// A vector that an operation reads; it may lie in the same storage as the result.
struct Operand {
    int width;
    const VectorWord* words;

    std::size_t Count() const noexcept { return WordCount(width); }
};

// A vector that an operation writes.
struct Result {
    int width;
    VectorWord* words;

    std::size_t Count() const noexcept { return WordCount(width); }
};

// How an operand that is narrower than the result goes on above its top word. The signed form takes
// bit 31 of the top word, of aval and of bval each for itself: storage holds copies of the sign
// above the width.
struct SignExtend {
    static constexpr bool kIsSigned = true;
    static constexpr Word Beyond(Word top) noexcept {
        return ((top >> 31) & 0x0000000100000001) * kValueBits;
    }
};

struct ZeroExtend {
    static constexpr bool kIsSigned = false;
    static constexpr Word Beyond(Word) noexcept { return 0; }
};

static_assert(SignExtend::Beyond(MakeWord(0x80000000, 0)) == MakeWord(0xFFFFFFFF, 0));
static_assert(SignExtend::Beyond(MakeWord(0x7FFFFFFF, 0xFFFFFFFF)) == MakeWord(0, 0xFFFFFFFF));
static_assert(SignExtend::Beyond(kAllX) == kAllX);

// The word that stands above the operand's own; an operand without words counts as 0.
template <class Extend>
inline Word ExtensionWord(Operand operand) noexcept {
    return operand.width < 1 ? 0 : Extend::Beyond(LoadWord(operand.words + operand.Count() - 1));
}

// Word 1 of an operand of one or two words, of which word 0 is `first`. It is read without a
// branch: where there is no word 1, word 0 is read again.
template <class Extend>
inline Word SecondWord(Operand operand, Word first) noexcept {
    const bool hasSecond = operand.width > kWordBits;
    const Word top = LoadWord(operand.words + hasSecond);
    return hasSecond ? top : Extend::Beyond(first);
}

// Whether the top bit of the width or a bit stored above it is set in aval.
inline bool AreTopBitsSet(Operand operand) noexcept {
    return operand.width >= 1 && operand.words[operand.Count() - 1].aval >>
                                         (static_cast<unsigned>(operand.width) - 1U) % 32U !=
                                     0;
}

}  // namespace tarn

#endif  // TARN_CORE_VECTOR_H
