#include "real/top_words.h"

#include "core/lanes.h"

namespace tarn {
namespace {

// Passes over whole blocks, then over lanes, and stops where the search ends among the uppermost
// words that are left.
template <class Rule>
struct SkipTopKernel {
    TARN_KERNEL static std::size_t Run(const VectorWord* words, std::size_t count) noexcept {
        return Skip<1>(words, Skip<8>(words, count));
    }

    template <std::size_t kGroups>
    TARN_KERNEL static std::size_t Skip(const VectorWord* words, std::size_t count) noexcept {
        constexpr std::size_t kBlock = kGroups * kLaneCount;
        for (; count >= kBlock; count -= kBlock) {
            Lanes found{};
#pragma GCC unroll 8
            for (std::size_t k = 1; k <= kGroups; ++k) {
                Lanes lanes;
                LoadLanes(lanes, words + count - k * kLaneCount);
                Rule::Collect(lanes, found);
            }
            if ((FoldLanes(found) & Rule::kBits) != 0) break;
        }
        return count;
    }
};

}  // namespace

template <class Rule>
std::size_t CountToLongTop(const VectorWord* words, std::size_t count) noexcept {
    // Most searches end at the top word.
    if (EndsSearch<Rule>(LoadWord(words + count - 1))) return count;
    return TrimWords<Rule>(words, RunKernel<SkipTopKernel<Rule>>(words, count));
}

template std::size_t CountToLongTop<AnyBit>(const VectorWord*, std::size_t) noexcept;
template std::size_t CountToLongTop<KnownOne>(const VectorWord*, std::size_t) noexcept;
template std::size_t CountToLongTop<NoKnownOne>(const VectorWord*, std::size_t) noexcept;

}  // namespace tarn
