// Loops of a constant count without the loop.
#ifndef TARN_ARITH_NATURAL_UNROLL_H
#define TARN_ARITH_NATURAL_UNROLL_H

#include <cstddef>
#include <type_traits>
#include <utility>

namespace tarn {

// Calls step with 0, 1 .. kCount - 1 as constants: a loop that is unrolled in every build.
template <std::size_t kCount, class Step>
inline void Unroll(Step&& step) noexcept {
    [&]<std::size_t... kIndex>(std::index_sequence<kIndex...>) {
        (step(std::integral_constant<std::size_t, kIndex>{}), ...);
    }
    (std::make_index_sequence<kCount>{});
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_UNROLL_H
