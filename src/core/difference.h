// Where a run of words differs from one word repeated.
#ifndef TARN_CORE_DIFFERENCE_H
#define TARN_CORE_DIFFERENCE_H

#include "core/word.h"

namespace tarn {

// The bits in which some word of a run differs from `expected`. The search may stop with those
// found so far once one of the bits `decisive` is among them.
Word DifferenceOfLongRun(const VectorWord* words, std::size_t count, Word expected,
                         Word decisive) noexcept;

inline constexpr std::size_t kShortDifference = 4;

inline Word DifferenceFrom(Word expected, const VectorWord* words, std::size_t count,
                           Word decisive) noexcept {
    if (count > kShortDifference) return DifferenceOfLongRun(words, count, expected, decisive);
    Word found = 0;
    for (std::size_t i = 0; i < count; ++i) {
        found |= LoadWord(words + i) ^ expected;
    }
    return found;
}

}  // namespace tarn

#endif  // TARN_CORE_DIFFERENCE_H
