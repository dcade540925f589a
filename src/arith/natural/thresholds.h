// Where one algorithm takes over from the next, in limbs: the smallest operand for which the faster
// one pays. Each figure comes from the program named above it.
#ifndef TARN_ARITH_NATURAL_THRESHOLDS_H
#define TARN_ARITH_NATURAL_THRESHOLDS_H

#include <cstddef>

namespace tarn {

// bench/tune_multiply
inline constexpr std::size_t kKaratsubaThreshold = 28;
inline constexpr std::size_t kSquareKaratsubaThreshold = 40;
inline constexpr std::size_t kMuldersThreshold = 48;

// Chunks of 19 digits up to which decimal digits are gathered chunk by chunk; above, by halves.
// Measured by bench/tune_divide.cpp.
inline constexpr std::size_t kParseHalvesChunks = 40;

// Limbs of divisor and of quotient from which both are halved; below, one quotient limb at a time.
inline constexpr std::size_t kDivideHalvesLimbs = 20;

// Limbs up to which digits are taken off chunk by chunk; above, the number is cut into halves.
inline constexpr std::size_t kFormatHalvesLimbs = 30;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_THRESHOLDS_H
