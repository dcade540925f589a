// Products of naturals. Every function takes its temporaries from `scratch`, which holds at least
// the number of limbs that the matching ...Scratch function returns; none allocates.
#ifndef TARN_ARITH_NATURAL_MULTIPLY_H
#define TARN_ARITH_NATURAL_MULTIPLY_H

#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// result[0 .. aCount + bCount) = a * b; both counts at least 1, in either order. The result
// overlaps neither operand; a and b may be the same storage.
void Multiply(Limb* result, const Limb* a, std::size_t aCount, const Limb* b, std::size_t bCount,
              Limb* scratch) noexcept;
std::size_t MultiplyScratch(std::size_t aCount, std::size_t bCount) noexcept;

// result[0 .. 2 * count) = a * a.
void Square(Limb* result, const Limb* a, std::size_t count, Limb* scratch) noexcept;
std::size_t SquareScratch(std::size_t count) noexcept;

// result[0 .. count) = the low limbs of a * b; a and b hold count limbs each.
void MultiplyLow(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                 Limb* scratch) noexcept;
std::size_t MultiplyLowScratch(std::size_t count) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_MULTIPLY_H
