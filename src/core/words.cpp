#include "core/words.h"

#include "core/lanes.h"

namespace tarn {

void FillLongRun(VectorWord* to, std::size_t count, Word word) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        StoreWord(to + i, word);
    }
}

namespace {

TARN_KERNEL void Collect(const VectorWord* words, Lanes& all) noexcept {
    Lanes lanes;
    LoadLanes(lanes, words);
    all |= lanes;
}

// At least one group of lanes.
struct HasUnknownKernel {
    TARN_KERNEL static bool Run(const VectorWord* words, std::size_t count) noexcept {
        // A test after each block keeps an early unknown bit cheap.
        constexpr std::size_t kBlock = 16 * kLaneCount;
        Lanes all{};
        std::size_t i = 0;
        for (; count - i >= kBlock; i += kBlock) {
#pragma GCC unroll 4
            for (std::size_t k = 0; k < kBlock; k += kLaneCount) {
                Collect(words + i + k, all);
            }
            if (IsUnknown(FoldLanes(all))) return true;
        }
        for (; count - i >= kLaneCount; i += kLaneCount) {
            Collect(words + i, all);
        }
        // The last words; some were collected before, which changes nothing.
        Collect(words + count - kLaneCount, all);
        return IsUnknown(FoldLanes(all));
    }
};

}  // namespace

static_assert(kShortRun >= kLaneCount);

bool HasUnknownLongRun(const VectorWord* words, std::size_t count) noexcept {
    return RunKernel<HasUnknownKernel>(words, count);
}

}  // namespace tarn
