// Where a vector begins, seen from its top: the words that a conversion passes over.
#ifndef TARN_REAL_TOP_WORDS_H
#define TARN_REAL_TOP_WORDS_H

#include "core/instruction_set.h"
#include "core/words.h"

namespace tarn {

// What ends the search: a word for which Collect finds one of the bits of kBits. The words are one
// Word or Lanes.
struct AnyBit {
    static constexpr Word kBits = kAllX;
    template <class Words>
    TARN_KERNEL static constexpr void Collect(const Words& words, Words& found) noexcept {
        found |= words;
    }
};
struct KnownOne {
    static constexpr Word kBits = kValueBits;
    template <class Words>
    TARN_KERNEL static constexpr void Collect(const Words& words, Words& found) noexcept {
        found |= words & ~(words >> kWordBits);
    }
};
// A bit that is anything but a known one.
struct NoKnownOne {
    static constexpr Word kBits = kValueBits;
    template <class Words>
    TARN_KERNEL static constexpr void Collect(const Words& words, Words& found) noexcept {
        found |= ~words | (words >> kWordBits);
    }
};

template <class Rule>
constexpr bool EndsSearch(Word word) noexcept {
    Word found = 0;
    Rule::Collect(word, found);
    return (found & Rule::kBits) != 0;
}

static_assert(EndsSearch<KnownOne>(MakeWord(5, 4)) && !EndsSearch<KnownOne>(MakeWord(4, 6)));
static_assert(EndsSearch<NoKnownOne>(MakeWord(~0U, 2)) && !EndsSearch<NoKnownOne>(kValueBits));

// One word after the other.
template <class Rule>
inline std::size_t TrimWords(const VectorWord* words, std::size_t count) noexcept {
    while (count > 0 && !EndsSearch<Rule>(LoadWord(words + count - 1))) {
        --count;
    }
    return count;
}

template <class Rule>
std::size_t CountToLongTop(const VectorWord* words, std::size_t count) noexcept;

// The number of words up to the highest one that ends the search, that one included; 0 for none.
template <class Rule>
inline std::size_t CountToTop(const VectorWord* words, std::size_t count) noexcept {
    return count > kShortRun ? CountToLongTop<Rule>(words, count) : TrimWords<Rule>(words, count);
}

}  // namespace tarn

#endif  // TARN_REAL_TOP_WORDS_H
