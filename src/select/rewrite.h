// Bits of one value rewritten in place as another.
#ifndef TARN_SELECT_REWRITE_H
#define TARN_SELECT_REWRITE_H

#include "core/map_words.h"
#include "core/vector.h"

namespace tarn {

struct UnknownToZero {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& v) noexcept {
        return {v.aval & ~v.bval, BitsOf<kCount>{}};
    }
};
struct ZeroToZ {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& v) noexcept {
        return {v.aval, v.bval | ~v.aval};
    }
};
struct OneToZ {
    template <std::size_t kCount>
    TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& v) noexcept {
        return {v.aval & v.bval, v.aval | v.bval};
    }
};

// Bits 0 to 3 are 0, 1, Z and X.
static_assert((ApplyRule<ZeroToZ>(MakeWord(0b1010, 0b1100)) & InBothHalves(0xF)) ==
              MakeWord(0b1010, 0b1101));
static_assert(ApplyRule<OneToZ>(MakeWord(0b1010, 0b1100)) == MakeWord(0b1000, 0b1110));
static_assert(ApplyRule<UnknownToZero>(MakeWord(0b1010, 0b1100)) == MakeWord(0b0010, 0));

// Instantiated in rewrite.cpp for each rule.
template <class Rule>
void RewriteWide(Result v) noexcept;

template <class Rule>
inline void Rewrite(Result v) noexcept {
    if (AreOneWord(v.width)) {
        StoreWord(v.words, ApplyRule<Rule>(LoadWord(v.words)));
        return;
    }
    RewriteWide<Rule>(v);
}

}  // namespace tarn

#endif  // TARN_SELECT_REWRITE_H
