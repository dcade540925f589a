// The four bases in which Verilog writes numbers.
#ifndef TARNCALC_RADIX_H
#define TARNCALC_RADIX_H

#include <string_view>

namespace tarncalc {

struct Radix {
    char letter;  // what stands behind the quote of a literal
    int base;
    unsigned bitsPerDigit;  // 0 where a digit is no whole number of bits
    std::string_view name;
};

inline constexpr Radix kBinary{'b', 2, 1, "binary"};
inline constexpr Radix kOctal{'o', 8, 3, "octal"};
inline constexpr Radix kDecimal{'d', 10, 0, "decimal"};
inline constexpr Radix kHexadecimal{'h', 16, 4, "hexadecimal"};
inline constexpr const Radix* kRadices[] = {&kBinary, &kOctal, &kDecimal, &kHexadecimal};

}  // namespace tarncalc

#endif
