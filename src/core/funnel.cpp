#include "core/funnel.h"

#include "core/lanes.h"

namespace tarn {
namespace {

TARN_KERNEL void JoinLanes(HalfLanes& joined, const VectorWord* from, unsigned offset) noexcept {
    HalfLanes low, high;
    LoadLanes(low, from);
    LoadLanes(high, from + 1);
    joined = (low >> offset) | (high << (32 - offset));
}

template <class Policy>
TARN_KERNEL void CompareLanes(const VectorWord* to, const HalfLanes& lanes,
                              HalfLanes& changed) noexcept {
    if constexpr (Policy::kCompares) {
        HalfLanes old;
        LoadLanes(old, to);
        changed |= old ^ lanes;
    }
}

TARN_KERNEL Word FoldHalves(const HalfLanes& halves) noexcept {
    Lanes lanes;
    std::memcpy(&lanes, &halves, sizeof lanes);
    return FoldLanes(lanes);
}

// How many whole words lie between an address and the boundary of lanes below it.
TARN_KERNEL std::size_t WordsPastBoundary(const VectorWord* at) noexcept {
    return reinterpret_cast<std::uintptr_t>(at) % sizeof(HalfLanes) / sizeof(VectorWord);
}

// Joins kSteps lanes and then stores them.
template <class Policy, std::size_t kSteps>
TARN_KERNEL void FunnelBlock(VectorWord* to, const VectorWord* from, unsigned offset,
                             HalfLanes& changed) noexcept {
    HalfLanes joined[kSteps];
#pragma GCC unroll 4
    for (std::size_t k = 0; k < kSteps; ++k) {
        JoinLanes(joined[k], from + k * kLaneCount, offset);
        CompareLanes<Policy>(to + k * kLaneCount, joined[k], changed);
    }
#pragma GCC unroll 4
    for (std::size_t k = 0; k < kSteps; ++k) {
        StoreLanes(to + k * kLaneCount, joined[k]);
    }
}

inline constexpr std::size_t kBlockSteps = 4;
inline constexpr std::size_t kBlock = kBlockSteps * kLaneCount;

// A long run in lanes alone. The lanes at either end are joined and compared before anything is
// stored, and stored last: they cover the words that those in between, which begin or end where
// `to` is aligned, leave over.
template <class Policy>
struct FunnelUpKernel {
    TARN_KERNEL static Word Run(VectorWord* to, const VectorWord* from, std::size_t count,
                                unsigned offset) noexcept {
        HalfLanes lowest, highest, changed{};
        JoinLanes(lowest, from, offset);
        JoinLanes(highest, from + count - kLaneCount, offset);
        CompareLanes<Policy>(to, lowest, changed);
        CompareLanes<Policy>(to + count - kLaneCount, highest, changed);
        std::size_t i = (kLaneCount - WordsPastBoundary(to)) % kLaneCount;
        for (; i + kBlock <= count; i += kBlock) {
            FunnelBlock<Policy, kBlockSteps>(to + i, from + i, offset, changed);
        }
        for (; i + kLaneCount <= count; i += kLaneCount) {
            FunnelBlock<Policy, 1>(to + i, from + i, offset, changed);
        }
        StoreLanes(to, lowest);
        StoreLanes(to + count - kLaneCount, highest);
        return FoldHalves(changed);
    }
};

template <class Policy>
struct FunnelDownKernel {
    TARN_KERNEL static Word Run(VectorWord* to, const VectorWord* from, std::size_t count,
                                unsigned offset) noexcept {
        HalfLanes lowest, highest, changed{};
        JoinLanes(lowest, from, offset);
        JoinLanes(highest, from + count - kLaneCount, offset);
        CompareLanes<Policy>(to, lowest, changed);
        CompareLanes<Policy>(to + count - kLaneCount, highest, changed);
        std::size_t i = count - WordsPastBoundary(to + count);
        for (; i >= kBlock; i -= kBlock) {
            FunnelBlock<Policy, kBlockSteps>(to + i - kBlock, from + i - kBlock, offset, changed);
        }
        for (; i >= kLaneCount; i -= kLaneCount) {
            FunnelBlock<Policy, 1>(to + i - kLaneCount, from + i - kLaneCount, offset, changed);
        }
        StoreLanes(to, lowest);
        StoreLanes(to + count - kLaneCount, highest);
        return FoldHalves(changed);
    }
};

// Some processors find a line in the first-level cache by a few bits of its address and take one
// for another where these agree, which makes a walk several times as slow where each store falls on
// the line that will be loaded next. Runs that lie apart are then walked in the other direction.
bool IsStoredJustAhead(std::uintptr_t storedBytes, std::uintptr_t loadedBytes) noexcept {
    constexpr std::uintptr_t kPage = 4096, kJust = 1024;
    return (storedBytes - loadedBytes) % kPage - 1 < kJust;
}

bool AreRunsApart(std::uintptr_t to, std::uintptr_t from, std::size_t count) noexcept {
    const std::uintptr_t bytes = (count + 1) * sizeof(VectorWord);
    return to - from >= bytes && from - to >= bytes;
}

}  // namespace

template <class Policy>
Word FunnelUpLongRun(VectorWord* to, const VectorWord* from, std::size_t count,
                     unsigned offset) noexcept {
    const auto stored = reinterpret_cast<std::uintptr_t>(to);
    const auto loaded = reinterpret_cast<std::uintptr_t>(from);
    if (IsStoredJustAhead(stored, loaded) && AreRunsApart(stored, loaded, count)) {
        return RunKernel<FunnelDownKernel<Policy>>(to, from, count, offset);
    }
    return RunKernel<FunnelUpKernel<Policy>>(to, from, count, offset);
}

template Word FunnelUpLongRun<Overwrite>(VectorWord*, const VectorWord*, std::size_t,
                                         unsigned) noexcept;
template Word FunnelUpLongRun<OverwriteAndCompare>(VectorWord*, const VectorWord*, std::size_t,
                                                   unsigned) noexcept;

template <class Policy>
Word FunnelDownLongRun(VectorWord* to, const VectorWord* from, std::size_t count,
                       unsigned offset) noexcept {
    const auto stored = reinterpret_cast<std::uintptr_t>(to);
    const auto loaded = reinterpret_cast<std::uintptr_t>(from);
    if (IsStoredJustAhead(loaded, stored) && AreRunsApart(stored, loaded, count)) {
        return RunKernel<FunnelUpKernel<Policy>>(to, from, count, offset);
    }
    return RunKernel<FunnelDownKernel<Policy>>(to, from, count, offset);
}

template Word FunnelDownLongRun<Overwrite>(VectorWord*, const VectorWord*, std::size_t,
                                           unsigned) noexcept;
template Word FunnelDownLongRun<OverwriteAndCompare>(VectorWord*, const VectorWord*, std::size_t,
                                                     unsigned) noexcept;

}  // namespace tarn
