// Scratch for products of which only the sum of the operands' counts is known.
#ifndef TARN_ARITH_NATURAL_PRODUCT_SCRATCH_H
#define TARN_ARITH_NATURAL_PRODUCT_SCRATCH_H

#include <algorithm>
#include <cstddef>

#include "arith/natural/multiply.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/thresholds.h"

namespace tarn {

// No less than MultiplyScratch of any two counts with a sum up to `total`. That function does not
// grow with its operands everywhere. What a long operand leaves over when it is cut into pieces of
// the short one may need more than a piece; three times the shorter count pays for all leftovers
// together, for they shrink like the remainders in Euclid's algorithm. And an unbalanced product
// may go by transforms where a balanced one of the same total does not; their need depends on the
// total.
inline std::size_t ProductScratch(std::size_t total) noexcept {
    const std::size_t half = std::max<std::size_t>(1, (total + 1) / 2);
    const std::size_t forPieces = 3 * half + MultiplyScratch(half, half);
    return half < kNttUnbalancedThreshold ? forPieces
                                          : std::max(forPieces, MultiplyNttScratch(half, half));
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_PRODUCT_SCRATCH_H
