#include "core/words.h"

#include <algorithm>

namespace tarn {

void FillLongRun(VectorWord* to, std::size_t count, Word word) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        StoreWord(to + i, word);
    }
}

bool HasUnknownLongRun(const VectorWord* words, std::size_t count) noexcept {
    // A block without a branch vectorises; a test after each keeps an early unknown bit cheap.
    constexpr std::size_t kBlock = 64;
    for (std::size_t first = 0; first < count; first += kBlock) {
        const std::size_t last = std::min(first + kBlock, count);
        Word all = 0;
        for (std::size_t i = first; i < last; ++i) {
            all |= LoadWord(words + i);
        }
        if (IsUnknown(all)) return true;
    }
    return false;
}

}  // namespace tarn
