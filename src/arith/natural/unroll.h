// Loops of a constant count without the loop.
#ifndef TARN_ARITH_NATURAL_UNROLL_H
#define TARN_ARITH_NATURAL_UNROLL_H

#include <cstddef>
#include <type_traits>
#include <utility>

namespace tarn {

template <class Step, std::size_t... kIndex>
[[gnu::always_inline]] inline void UnrollOver(Step& step, std::index_sequence<kIndex...>) noexcept {
    (step(std::integral_constant<std::size_t, kIndex>{}), ...);
}

// Calls step with 0, 1 .. kCount - 1 as constants: a loop that is unrolled in every build. Inlining
// is forced, since what the step captures would otherwise pass through memory.
template <std::size_t kCount, class Step>
[[gnu::always_inline]] inline void Unroll(Step&& step) noexcept {
    UnrollOver(step, std::make_index_sequence<kCount>{});
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_UNROLL_H
