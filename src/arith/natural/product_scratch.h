// Scratch for products whose operands are known by their greatest counts only.
#ifndef TARN_ARITH_NATURAL_PRODUCT_SCRATCH_H
#define TARN_ARITH_NATURAL_PRODUCT_SCRATCH_H

#include <algorithm>
#include <cstddef>

#include "arith/natural/multiply.h"

namespace tarn {

// No less than MultiplyScratch of any counts up to these. That function does not grow with its
// operands everywhere: what a long operand leaves over when it is cut into pieces of the short one
// may need more than a piece. Three times the shorter count pays for all such leftovers together,
// for they shrink like the remainders in Euclid's algorithm.
inline std::size_t ProductScratch(std::size_t aCount, std::size_t bCount) noexcept {
    const std::size_t shorter = std::min(aCount, bCount);
    return 3 * shorter +
           std::max(MultiplyScratch(aCount, bCount), MultiplyScratch(shorter, shorter));
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_PRODUCT_SCRATCH_H
