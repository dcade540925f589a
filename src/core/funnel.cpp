#include "core/funnel.h"

#include "core/lanes.h"

namespace tarn {
namespace {

// One block is loaded whole before it is stored, so a run may be moved onto itself.
inline constexpr std::size_t kBlock = 4 * kLaneCount;

template <class Policy>
TARN_KERNEL void FunnelBlock(VectorWord* to, const VectorWord* from, unsigned offset,
                             HalfLanes& changed) noexcept {
    constexpr std::size_t kSteps = kBlock / kLaneCount;
    HalfLanes joined[kSteps];
#pragma GCC unroll 4
    for (std::size_t k = 0; k < kSteps; ++k) {
        HalfLanes low, high;
        LoadLanes(low, from + k * kLaneCount);
        LoadLanes(high, from + k * kLaneCount + 1);
        joined[k] = (low >> offset) | (high << (32 - offset));
    }
#pragma GCC unroll 4
    for (std::size_t k = 0; k < kSteps; ++k) {
        if constexpr (Policy::kCompares) {
            HalfLanes old;
            LoadLanes(old, to + k * kLaneCount);
            changed |= old ^ joined[k];
        }
        StoreLanes(to + k * kLaneCount, joined[k]);
    }
}

TARN_KERNEL Word FoldLanes(const HalfLanes& halves) noexcept {
    Word words[kLaneCount];
    std::memcpy(words, &halves, sizeof words);
    return words[0] | words[1] | words[2] | words[3];
}

template <class Policy>
TARN_KERNEL Word FunnelWord(VectorWord* to, const VectorWord* from, unsigned offset) noexcept {
    return Replace<Policy>(to, JoinWords(LoadWord(from), LoadWord(from + 1), offset));
}

template <class Policy>
struct FunnelUpKernel {
    TARN_KERNEL static Word Run(VectorWord* to, const VectorWord* from, std::size_t count,
                                unsigned offset) noexcept {
        HalfLanes changed{};
        for (; count >= kBlock; count -= kBlock, to += kBlock, from += kBlock) {
            FunnelBlock<Policy>(to, from, offset, changed);
        }
        Word changedAfter = 0;
        for (std::size_t i = 0; i < count; ++i) {
            changedAfter |= FunnelWord<Policy>(to + i, from + i, offset);
        }
        return FoldLanes(changed) | changedAfter;
    }
};

template <class Policy>
struct FunnelDownKernel {
    TARN_KERNEL static Word Run(VectorWord* to, const VectorWord* from, std::size_t count,
                                unsigned offset) noexcept {
        HalfLanes changed{};
        for (; count >= kBlock; count -= kBlock) {
            FunnelBlock<Policy>(to + count - kBlock, from + count - kBlock, offset, changed);
        }
        Word changedAfter = 0;
        while (count-- > 0) {
            changedAfter |= FunnelWord<Policy>(to + count, from + count, offset);
        }
        return FoldLanes(changed) | changedAfter;
    }
};

}  // namespace

template <class Policy>
Word FunnelUpLongRun(VectorWord* to, const VectorWord* from, std::size_t count,
                     unsigned offset) noexcept {
    return RunKernel<FunnelUpKernel<Policy>>(to, from, count, offset);
}

template Word FunnelUpLongRun<Overwrite>(VectorWord*, const VectorWord*, std::size_t,
                                         unsigned) noexcept;
template Word FunnelUpLongRun<OverwriteAndCompare>(VectorWord*, const VectorWord*, std::size_t,
                                                   unsigned) noexcept;

template <class Policy>
Word FunnelDownLongRun(VectorWord* to, const VectorWord* from, std::size_t count,
                       unsigned offset) noexcept {
    return RunKernel<FunnelDownKernel<Policy>>(to, from, count, offset);
}

template Word FunnelDownLongRun<Overwrite>(VectorWord*, const VectorWord*, std::size_t,
                                           unsigned) noexcept;
template Word FunnelDownLongRun<OverwriteAndCompare>(VectorWord*, const VectorWord*, std::size_t,
                                                     unsigned) noexcept;

}  // namespace tarn
