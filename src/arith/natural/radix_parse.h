// The ways from decimal digits to a natural, each on its own; FromDecimal in radix.h picks one.
#ifndef TARN_ARITH_NATURAL_RADIX_PARSE_H
#define TARN_ARITH_NATURAL_RADIX_PARSE_H

#include <cstddef>
#include <cstdint>

#include "arith/natural/limb.h"

namespace tarn {

// The value of 1 to 19 digits.
Limb GatherDigits(const std::uint8_t* digits, std::size_t digitCount) noexcept;

// result[0 .. FromDecimalLimbs(digitCount)) = the value of the digits, for a digitCount of at least
// 1. Quadratic time.
void ParseByChunks(Limb* result, const std::uint8_t* digits, std::size_t digitCount) noexcept;

// The same by halves, which go to ParseByChunks from `leafChunks` chunks downwards.
void ParseByHalves(Limb* result, const std::uint8_t* digits, std::size_t digitCount,
                   std::size_t leafChunks, Limb* scratch) noexcept;
std::size_t ParseByHalvesScratch(std::size_t digitCount, std::size_t leafChunks) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_RADIX_PARSE_H
