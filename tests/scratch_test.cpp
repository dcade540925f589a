// The static storage of arithmetic holds whatever an operation takes from it at the stated limits.
#include "arith/scratch.h"

#include <gtest/gtest.h>

#include "arith/natural/divide.h"
#include "arith/natural/radix.h"
#include "arith/product.h"

namespace tarn {
namespace {

constexpr std::size_t LimbsOf(int width) {
    return LimbCount(WordCount(width));
}

TEST(Scratch, HoldsProductsAndPowers) {
    const std::size_t limbs = LimbsOf(kMaxProductWidth);
    const std::size_t temporary = LowProductScratch(limbs, limbs, limbs);
    EXPECT_LE(2 * limbs + 2 * limbs + temporary, kScratchLimbs);  // two operands, one product
    EXPECT_LE(limbs + 4 * limbs + temporary, kScratchLimbs);      // the base, two products
}

TEST(Scratch, HoldsQuotients) {
    const std::size_t limbs = LimbsOf(kMaxQuotientWidth);
    const std::size_t operands = limbs + LimbsOf(kMaxDivisorWidth);
    for (const std::size_t divisor : {std::size_t{1}, limbs / 3, limbs / 2, limbs - 1, limbs}) {
        EXPECT_LE(operands + limbs + DivideScratch(limbs, divisor), kScratchLimbs) << divisor;
    }
}

TEST(Scratch, HoldsDecimalText) {
    const std::size_t limbs = LimbsOf(kMaxDecimalWidth);
    EXPECT_LE(limbs + ToDecimalScratch(limbs), kScratchLimbs);
}

}  // namespace
}  // namespace tarn
