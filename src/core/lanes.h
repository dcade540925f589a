// Several words at once, for kernels that the compiler does not vectorise as well from a loop.
//
// GCC and Clang compile these for every instruction set; the operators are those of a number, done
// lane by lane. A kernel's rule can be one template for a Word and for Lanes.
#ifndef TARN_CORE_LANES_H
#define TARN_CORE_LANES_H

#include <cstring>

#include "core/instruction_set.h"
#include "core/word.h"

namespace tarn {

inline constexpr std::size_t kLaneCount = 4;

// Four words, one a lane; and the same bits as eight numbers of aval or bval alone.
using Lanes [[gnu::vector_size(32)]] = Word;
using HalfLanes [[gnu::vector_size(32)]] = std::uint32_t;

static_assert(sizeof(Lanes) == kLaneCount * sizeof(Word));

// Through memory, because a function that returns lanes would depend on the instruction set.
template <class AnyLanes>
TARN_KERNEL void LoadLanes(AnyLanes& lanes, const VectorWord* from) noexcept {
    std::memcpy(&lanes, from, sizeof lanes);
}

template <class AnyLanes>
TARN_KERNEL void StoreLanes(VectorWord* to, const AnyLanes& lanes) noexcept {
    std::memcpy(to, &lanes, sizeof lanes);
}

TARN_KERNEL Word FoldLanes(const Lanes& lanes) noexcept {
    return lanes[0] | lanes[1] | lanes[2] | lanes[3];
}

TARN_KERNEL bool IsAnyLaneSet(const Lanes& lanes) noexcept {
    return FoldLanes(lanes) != 0;
}

}  // namespace tarn

#endif  // TARN_CORE_LANES_H
