// Naturals from and to decimal digits. Temporaries come from `scratch`, as in multiply.h.
#ifndef TARN_ARITH_NATURAL_RADIX_H
#define TARN_ARITH_NATURAL_RADIX_H

#include <cstddef>
#include <cstdint>

#include "arith/natural/limb.h"

namespace tarn {

// The natural whose decimal digits stand in digits[0 .. digitCount), most significant first, each a
// value 0 to 9 (not a character). Writes result[0 .. FromDecimalLimbs(digitCount)), zeros above the
// value included, and returns the count of significant limbs (0 for the value 0).
std::size_t FromDecimal(Limb* result, const std::uint8_t* digits, std::size_t digitCount,
                        Limb* scratch) noexcept;
std::size_t FromDecimalLimbs(std::size_t digitCount) noexcept;
// Grows with the count, as ToDecimalScratch does.
std::size_t FromDecimalScratch(std::size_t digitCount) noexcept;

// The decimal digits of a[0 .. count) as characters, right-aligned: the last one stands at end[-1],
// without leading zeros, "0" for the value 0. Returns the address of the first. Nothing is written
// in front of that first digit. a is destroyed.
char* ToDecimal(char* end, Limb* a, std::size_t count, Limb* scratch) noexcept;
std::size_t ToDecimalScratch(std::size_t count) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_RADIX_H
