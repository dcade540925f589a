// The loop of kernels whose result words depend on nothing but the operand words of the same index.
#ifndef TARN_CORE_MAP_WORDS_H
#define TARN_CORE_MAP_WORDS_H

#include <cstdint>

#include "core/instruction_set.h"
#include "core/word.h"

namespace tarn {

// to[first + k] = wordAt(first + k) for k from 0 to kCount - 1, all computed before the first is
// stored.
template <std::size_t kCount, class WordAt>
TARN_KERNEL void MapBlock(VectorWord* to, std::size_t first, const WordAt& wordAt) noexcept {
    Word block[kCount];
#pragma GCC unroll 16
    for (std::size_t k = 0; k < kCount; ++k) {
        block[k] = wordAt(first + k);
    }
#pragma GCC unroll 16
    for (std::size_t k = 0; k < kCount; ++k) {
        StoreWord(to + first + k, block[k]);
    }
}

// Fewer than 2 * kCount words as blocks of kCount words, half as many and so on down to one.
template <std::size_t kCount, class WordAt>
TARN_KERNEL void MapRest(VectorWord* to, std::size_t first, std::size_t count,
                         const WordAt& wordAt) noexcept {
    if ((count & kCount) != 0) {
        MapBlock<kCount>(to, first, wordAt);
        first += kCount;
    }
    if constexpr (kCount > 1) MapRest<kCount / 2>(to, first, count, wordAt);
}

// to[i] = wordAt(i) for i from 0 to count - 1. `to` lies apart from what wordAt reads, or is a run
// that it reads at index i alone.
template <class WordAt>
TARN_KERNEL void MapWords(VectorWord* to, std::size_t count, const WordAt& wordAt) noexcept {
    constexpr std::size_t kBlock = 16;
    // In runs beyond the first cache, a tenth is gained where no store straddles two cache lines.
    constexpr std::size_t kAlignedRun = 1024;
    constexpr std::size_t kAlignment = 32 / sizeof(VectorWord);
    std::size_t i = 0;
    if (count >= kAlignedRun) {
        i = -reinterpret_cast<std::uintptr_t>(to) / sizeof(VectorWord) % kAlignment;
        MapRest<kAlignment / 2>(to, 0, i, wordAt);
    }
    for (; count - i >= kBlock; i += kBlock) {
        MapBlock<kBlock>(to, i, wordAt);
    }
    MapRest<kBlock / 2>(to, i, count - i, wordAt);
}

}  // namespace tarn

#endif  // TARN_CORE_MAP_WORDS_H
