// The ways from a natural to decimal digits, each on its own; ToDecimal in radix.h picks one. All
// write characters right-aligned, return the address of the first and destroy their operand.
#ifndef TARN_ARITH_NATURAL_RADIX_TEXT_H
#define TARN_ARITH_NATURAL_RADIX_TEXT_H

#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// Of one limb. Writes nothing for 0.
char* FormatLimb(char* end, Limb value) noexcept;

// Of a[0 .. count), whose top limb is not 0; count >= 1. Quadratic time.
char* FormatByChunks(char* end, Limb* a, std::size_t count) noexcept;

// The same by halves, which go to FormatByChunks from `leafCount` limbs downwards; leafCount is at
// least 2.
char* FormatByHalves(char* end, Limb* a, std::size_t count, std::size_t leafCount,
                     Limb* scratch) noexcept;
std::size_t FormatByHalvesScratch(std::size_t count, std::size_t leafCount) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_RADIX_TEXT_H
