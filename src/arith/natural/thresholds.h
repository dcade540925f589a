// Where one algorithm takes over from the next: the smallest count of limbs for which the faster
// one pays. The program named above a group measures both sides of each of its figures.
#ifndef TARN_ARITH_NATURAL_THRESHOLDS_H
#define TARN_ARITH_NATURAL_THRESHOLDS_H

#include <cstddef>

namespace tarn {

// bench/tune_multiply: a balanced product.
inline constexpr std::size_t kKaratsubaThreshold = 15;
inline constexpr std::size_t kToom3Threshold = 100;
inline constexpr std::size_t kNttThreshold = 1400;

// bench/tune_multiply: the shorter operand of an unbalanced product.
inline constexpr std::size_t kNttUnbalancedThreshold = 800;

// bench/tune_multiply: a square.
inline constexpr std::size_t kSquareKaratsubaThreshold = 28;
inline constexpr std::size_t kSquareToom3Threshold = 90;
inline constexpr std::size_t kSquareNttThreshold = 1700;

// bench/tune_multiply: the low half of a product; from the second figure on the full product is no
// slower.
inline constexpr std::size_t kMuldersThreshold = 60;
inline constexpr std::size_t kLowByFullThreshold = 1900;

// Chunks of 19 digits up to which decimal digits are gathered chunk by chunk; above, by halves.
// Measured by bench/tune_divide.cpp.
inline constexpr std::size_t kParseHalvesChunks = 40;

// Limbs of divisor and of quotient from which both are halved; below, one quotient limb at a time.
inline constexpr std::size_t kDivideHalvesLimbs = 20;

// Limbs up to which digits are taken off chunk by chunk; above, the number is cut into halves.
inline constexpr std::size_t kFormatHalvesLimbs = 30;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_THRESHOLDS_H
