// The ways from decimal digits to a natural, each on its own; FromDecimal in radix.h picks one.
#ifndef TARN_ARITH_NATURAL_RADIX_PARSE_H
#define TARN_ARITH_NATURAL_RADIX_PARSE_H

#include <cstddef>
#include <cstdint>

#include "arith/natural/limb.h"

namespace tarn {

// The value of eight digits, one a byte and the first in the lowest, after Johnny Lee and Daniel
// Lemire: each multiplication adds neighbouring fields, the earlier (lower) one weighted by the
// power of ten that the later one spans. With digits a b c ... from the lowest byte upwards:
//   bytes      a, b, c, d ...      times 10 * 2^8 + 1:      10a + b in every second byte
//   16-bit     ab, cd ...          times 100 * 2^16 + 1:    100ab + cd in every second field
//   32-bit     abcd, efgh          times 10000 * 2^32 + 1:  10000abcd + efgh in the upper half
// No field overflows: 99, 9999 and 99999999 fit theirs.
constexpr Limb JoinEightDigits(Limb fields) noexcept {
    fields = ((fields * ((10U << 8) + 1)) >> 8) & 0x00FF'00FF'00FF'00FFU;
    fields = ((fields * ((100U << 16) + 1)) >> 16) & 0x0000'FFFF'0000'FFFFU;
    return (fields * ((Limb{10000} << 32) + 1)) >> 32;
}

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
