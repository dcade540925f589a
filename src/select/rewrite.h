// Bits of one value rewritten in place as another.
#ifndef TARN_SELECT_REWRITE_H
#define TARN_SELECT_REWRITE_H

#include "core/vector.h"

namespace tarn {

// Each rule gives the new word. word >> 32 is the bvals of a word, below its avals in place. In the
// words of the proofs, bits 0 to 3 are 0, 1, Z and X.
struct UnknownToZero {
    static constexpr Word Rewritten(Word word) noexcept {
        return word & ~(word >> 32) & kValueBits;
    }
};
struct ZeroToZ {
    static constexpr Word Rewritten(Word word) noexcept { return word | ~word << 32; }
};
struct OneToZ {
    static constexpr Word Rewritten(Word word) noexcept {
        const Word ones = UnknownToZero::Rewritten(word);
        return word ^ (ones | ones << 32);
    }
};

static_assert((ZeroToZ::Rewritten(MakeWord(0b1010, 0b1100)) & InBothHalves(0xF)) ==
              MakeWord(0b1010, 0b1101));
static_assert(OneToZ::Rewritten(MakeWord(0b1010, 0b1100)) == MakeWord(0b1000, 0b1110));
static_assert(UnknownToZero::Rewritten(MakeWord(0b1010, 0b1100)) == MakeWord(0b0010, 0));

// Instantiated in rewrite.cpp for each rule.
template <class Rule>
void RewriteWide(Result v) noexcept;

template <class Rule>
inline void Rewrite(Result v) noexcept {
    if (AreOneWord(v.width)) {
        StoreWord(v.words, Rule::Rewritten(LoadWord(v.words)));
        return;
    }
    RewriteWide<Rule>(v);
}

}  // namespace tarn

#endif  // TARN_SELECT_REWRITE_H
