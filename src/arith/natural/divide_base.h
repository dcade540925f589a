// The ways to divide naturals, each on its own; Divide in divide.h picks among them.
#ifndef TARN_ARITH_NATURAL_DIVIDE_BASE_H
#define TARN_ARITH_NATURAL_DIVIDE_BASE_H

#include <cstddef>

#include "arith/natural/divide_step.h"
#include "arith/natural/limb.h"

namespace tarn {

// quotient[0 .. count) = a / d; returns the remainder. count >= 1 and d != 0. The quotient may be
// null, or a itself.
Limb DivideByLimb(Limb* quotient, const Limb* a, std::size_t count, Limb d) noexcept;

// quotient[0 .. count - 1) = a / (dHigh, dLow); returns the remainder. count >= 2 and dHigh != 0.
// The quotient may be null.
DoubleLimb DivideByTwoLimbs(Limb* quotient, const Limb* a, std::size_t count, Limb dHigh,
                            Limb dLow) noexcept;

// The functions below divide by a normalised d (top bit set) of at least two limbs, whose two top
// limbs `top` describes. They leave the remainder in a[0 .. dCount), write the low limbs of the
// quotient, aCount - dCount of them, and return the limb above, 0 or 1: 0 if the dCount top limbs
// of a are below d.

// Limb by limb: time in proportion to dCount * (aCount - dCount).
Limb DivideSchoolbook(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d,
                      std::size_t dCount, const TopDivisor& top) noexcept;

// By halves, which go to DivideSchoolbook below `leafCount` limbs; leafCount is at least 4.
Limb DivideByHalves(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d, std::size_t dCount,
                    const TopDivisor& top, std::size_t leafCount, Limb* scratch) noexcept;
std::size_t DivideByHalvesScratch(std::size_t dCount) noexcept;

// By blocks, each a product with a reciprocal of the divisor that ApproximateReciprocal finds. The
// quotient has at least 4 limbs.
Limb DivideByReciprocal(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d,
                        std::size_t dCount, const TopDivisor& top, std::size_t leafCount,
                        Limb* scratch) noexcept;
std::size_t DivideByReciprocalScratch(std::size_t aCount, std::size_t dCount) noexcept;

// x[0 .. count) such that X = 2^(64 count) + x is a reciprocal of the normalised d, count >= 2:
// X d < 2^(128 count) < (X + 2) d. By division up to `leafCount` limbs, which is at least 2.
void ApproximateReciprocal(Limb* x, const Limb* d, std::size_t count, const TopDivisor& top,
                           std::size_t leafCount, Limb* scratch) noexcept;
std::size_t ApproximateReciprocalScratch(std::size_t count) noexcept;

// By whichever is fastest.
Limb DivideNormalised(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d,
                      std::size_t dCount, const TopDivisor& top, Limb* scratch) noexcept;
// Enough for any operands up to these counts.
std::size_t DivideNormalisedScratch(std::size_t aCount, std::size_t dCount) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_DIVIDE_BASE_H
