// Runs of whole words: copied, filled, searched for unknown bits.
#ifndef TARN_CORE_WORDS_H
#define TARN_CORE_WORDS_H

#include "core/difference.h"
#include "core/vector.h"

namespace tarn {

// Runs up to this length are walked in place; a longer one is worth a call.
inline constexpr std::size_t kShortRun = 4;

void FillLongRun(VectorWord* to, std::size_t count, Word word) noexcept;

inline void FillWords(VectorWord* to, std::size_t count, Word word) noexcept {
    if (count > kShortRun) {
        FillLongRun(to, count, word);
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        StoreWord(to + i, word);
    }
}

inline void FillX(Result result) noexcept {
    FillWords(result.words, result.Count(), kAllX);
}

// `to` lies apart from `from`; or CopyWords: at or below it; CopyWordsDown: at or above it.
inline void CopyWords(VectorWord* to, const VectorWord* from, std::size_t count) noexcept {
    if (count > kShortRun) {
        std::memmove(to, from, count * sizeof(VectorWord));
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        StoreWord(to + i, LoadWord(from + i));
    }
}

inline void CopyWordsDown(VectorWord* to, const VectorWord* from, std::size_t count) noexcept {
    if (count > kShortRun) {
        std::memmove(to, from, count * sizeof(VectorWord));
        return;
    }
    for (std::size_t i = count; i-- > 0;) {
        StoreWord(to + i, LoadWord(from + i));
    }
}

inline bool HasUnknown(const VectorWord* words, std::size_t count) noexcept {
    return IsUnknown(DifferenceFrom(0, words, count, kUnknownBits));
}

// Words of an operand above the result don't enter a value, but an unknown bit there counts.
inline bool HasUnknownFrom(std::size_t first, Operand operand) noexcept {
    const std::size_t count = operand.Count();
    return count > first && HasUnknown(operand.words + first, count - first);
}

}  // namespace tarn

#endif  // TARN_CORE_WORDS_H
