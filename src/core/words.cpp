#include "core/words.h"

namespace tarn {

void FillLongRun(VectorWord* to, std::size_t count, Word word) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        StoreWord(to + i, word);
    }
}

bool HasUnknownLongRun(const VectorWord* words, std::size_t count) noexcept {
    // A block without a branch vectorises; a test after each keeps an early unknown bit cheap.
    constexpr std::size_t kBlock = 32;
    for (; count >= kBlock; count -= kBlock, words += kBlock) {
        Word all = 0;
#pragma GCC unroll 32
        for (std::size_t i = 0; i < kBlock; ++i) {
            all |= LoadWord(words + i);
        }
        if (IsUnknown(all)) return true;
    }
    Word rest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        rest |= LoadWord(words + i);
    }
    return IsUnknown(rest);
}

}  // namespace tarn
