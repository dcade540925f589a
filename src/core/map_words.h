// Runs of words that depend on nothing but the words of the same index in other runs.
#ifndef TARN_CORE_MAP_WORDS_H
#define TARN_CORE_MAP_WORDS_H

#include <algorithm>
#include <cstdint>

#include "core/halves.h"
#include "core/word_run.h"

namespace tarn {

// A rule gives a word for one or two others, and as many at once as Halves hold:
//
//     struct ExampleRule {
//         template <std::size_t kCount>
//         TARN_KERNEL static constexpr Halves<kCount> Of(const Halves<kCount>& a) noexcept;
//     };
//
// ApplyRule gives that word for one of each operand, MapKernel for runs.
template <class Rule>
constexpr Word ApplyRule(Word a) noexcept {
    return WordOf(Rule::Of(HalvesOf(a)));
}

template <class Rule>
constexpr Word ApplyRule(Word a, Word b) noexcept {
    return WordOf(Rule::Of(HalvesOf(a), HalvesOf(b)));
}

// to[i] = Rule::Of(word i of each source) for i from 0 to count - 1. `to` lies apart from the runs
// or starts where one starts: a block is computed whole before it is stored.
template <class Rule, class... Sources>
struct MapKernel {
    static constexpr std::size_t kBlock = 16;

    TARN_KERNEL static void Run(VectorWord* to, std::size_t count, Sources... sources) noexcept {
        MapWords<4>(to, count, sources...);
    }
    // Inlined into what runs it, this is compiled for AVX2 or newer.
    TARN_KERNEL static void RunAvx2(VectorWord* to, std::size_t count,
                                    Sources... sources) noexcept {
        MapWords<8>(to, count, sources...);
    }

  private:
    // kLanes is the number of words that fit a register.
    template <std::size_t kLanes>
    TARN_KERNEL static void MapWords(VectorWord* to, std::size_t count,
                                     const Sources&... sources) noexcept {
        // In runs beyond the first cache, a tenth is gained where no store straddles two cache
        // lines. Words at an odd multiple of 4 bytes can't be aligned.
        constexpr std::size_t kAlignedRun = 1024;
        constexpr std::size_t kAlignment = 32 / sizeof(VectorWord);
        std::size_t i = 0;
        if (count >= kAlignedRun) {
            i = -reinterpret_cast<std::uintptr_t>(to) / sizeof(VectorWord) % kAlignment;
            MapRest<kLanes, kAlignment / 2>(to, 0, i, sources...);
        }
        for (; count - i >= kBlock; i += kBlock) {
            MapBlock<kLanes, kBlock>(to, i, sources...);
        }
        MapRest<kLanes, kBlock / 2>(to, i, count - i, sources...);
    }

    // Fewer than 2 * kCount words as blocks of kCount words, half as many and so on down to one.
    template <std::size_t kLanes, std::size_t kCount>
    TARN_KERNEL static void MapRest(VectorWord* to, std::size_t first, std::size_t count,
                                    const Sources&... sources) noexcept {
        if ((count & kCount) != 0) {
            MapBlock<kLanes, kCount>(to, first, sources...);
            first += kCount;
        }
        if constexpr (kCount > 1) MapRest<kLanes, kCount / 2>(to, first, count, sources...);
    }

    template <std::size_t kLanes, std::size_t kCount>
    TARN_KERNEL static void MapBlock(VectorWord* to, std::size_t first,
                                     const Sources&... sources) noexcept {
        constexpr std::size_t kStep = kCount < 4 ? 1 : std::min(kLanes, kCount);
        Halves<kStep> results[kCount / kStep];
#pragma GCC unroll 4
        for (std::size_t k = 0; k < kCount / kStep; ++k) {
            MapStep<kStep>(results[k], first + k * kStep, sources...);
        }
#pragma GCC unroll 4
        for (std::size_t k = 0; k < kCount / kStep; ++k) {
            StoreHalves<kStep>(to + first + k * kStep, results[k]);
        }
    }

    template <std::size_t kStep>
    TARN_KERNEL static void MapStep(Halves<kStep>& result, std::size_t first,
                                    const Sources&... sources) noexcept {
        const auto load = [first](const auto& source) {
            Halves<kStep> halves;
            source.Load(first, halves);
            return halves;
        };
        result = Rule::Of(load(sources)...);
    }
};

}  // namespace tarn

#endif  // TARN_CORE_MAP_WORDS_H
