#include "core/difference.h"

#include "core/lanes.h"

namespace tarn {
namespace {

TARN_KERNEL void CollectLanes(Lanes& found, const VectorWord* words, Word expected) noexcept {
    Lanes lanes;
    LoadLanes(lanes, words);
    found |= lanes ^ expected;
}

// At least one group of lanes.
struct DifferenceKernel {
    TARN_KERNEL static Word Run(const VectorWord* words, std::size_t count, Word expected,
                                Word decisive) noexcept {
        // A test after each block keeps an early decision cheap.
        constexpr std::size_t kBlock = 16 * kLaneCount;
        Lanes found{};
        std::size_t i = 0;
        for (; count - i >= kBlock; i += kBlock) {
#pragma GCC unroll 16
            for (std::size_t k = 0; k < kBlock; k += kLaneCount) {
                CollectLanes(found, words + i + k, expected);
            }
            const Word all = FoldLanes(found);
            if ((all & decisive) != 0) return all;
        }
        for (; count - i >= kLaneCount; i += kLaneCount) {
            CollectLanes(found, words + i, expected);
        }
        // The last words; some were collected before, which changes nothing.
        CollectLanes(found, words + count - kLaneCount, expected);
        return FoldLanes(found);
    }
};

static_assert(kShortDifference >= kLaneCount);

}  // namespace

Word DifferenceOfLongRun(const VectorWord* words, std::size_t count, Word expected,
                         Word decisive) noexcept {
    return RunKernel<DifferenceKernel>(words, count, expected, decisive);
}

}  // namespace tarn
