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
inline constexpr std::size_t kMuldersThreshold = 45;
inline constexpr std::size_t kLowByFullThreshold = 2000;

// bench/tune_divide: limbs of the shorter of divisor and quotient, for halving both and for
// division by a reciprocal; limbs up to which the reciprocal itself comes from a division.
inline constexpr std::size_t kDivideHalvesLimbs = 18;
inline constexpr std::size_t kDivideReciprocalLimbs = 3500;
inline constexpr std::size_t kReciprocalLeafLimbs = 500;

// bench/tune_divide: the most chunks of 19 digits, and limbs, that are converted one by one rather
// than by halves.
inline constexpr std::size_t kParseHalvesChunks = 65;
inline constexpr std::size_t kFormatHalvesLimbs = 50;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_THRESHOLDS_H
