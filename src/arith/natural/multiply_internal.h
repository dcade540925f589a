// The algorithms behind multiply.h, each callable on its own for the tests and the tuning bench.
// Unless a comment says otherwise, results overlap neither operands nor scratch.
#ifndef TARN_ARITH_NATURAL_MULTIPLY_INTERNAL_H
#define TARN_ARITH_NATURAL_MULTIPLY_INTERNAL_H

#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// Quadratic time, no scratch. result[0 .. aCount + bCount) = a * b for aCount >= bCount >= 1.
void MultiplyBasecase(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                      std::size_t bCount) noexcept;
// result[0 .. 2 * count) = a * a, count >= 1.
void SquareBasecase(Limb* result, const Limb* a, std::size_t count) noexcept;
// result[0 .. count) = the low limbs of a * b, count >= 1.
void MultiplyLowBasecase(Limb* result, const Limb* a, const Limb* b, std::size_t count) noexcept;

// Balanced products by whichever algorithm is fastest: result[0 .. 2 * count) = a * b, count >= 1.
// A null b stands for a itself and picks the squaring forms.
void MultiplyBalanced(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                      Limb* scratch) noexcept;
std::size_t MultiplyBalancedScratch(std::size_t count) noexcept;

// One step of Karatsuba's method, count >= kKaratsubaMinimum; the same operands as above.
inline constexpr std::size_t kKaratsubaMinimum = 2;
void MultiplyKaratsuba(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                       Limb* scratch) noexcept;
std::size_t MultiplyKaratsubaScratch(std::size_t count) noexcept;

// One step of Toom's method in three parts, count >= kToom3Minimum; the same operands as above.
inline constexpr std::size_t kToom3Minimum = 5;
constexpr std::size_t CountOfThird(std::size_t count) noexcept {
    return (count + 2) / 3;
}
void MultiplyToom3(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                   Limb* scratch) noexcept;
std::size_t MultiplyToom3Scratch(std::size_t count) noexcept;

// An operand of aCount limbs cut into pieces of the other's bCount, aCount >= bCount >= 1.
void MultiplyPieces(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                    std::size_t bCount, Limb* scratch) noexcept;
std::size_t MultiplyPiecesScratch(std::size_t aCount, std::size_t bCount) noexcept;

// One step of Mulders' short product, count >= kMuldersMinimum.
inline constexpr std::size_t kMuldersMinimum = 4;
void MultiplyLowMulders(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                        Limb* scratch) noexcept;
std::size_t MultiplyLowMuldersScratch(std::size_t count) noexcept;

// By number-theoretic transforms, both counts at least 1. A null b stands for a itself; bCount is
// then aCount.
void MultiplyNtt(Limb* result, const Limb* a, std::size_t aCount, const Limb* b, std::size_t bCount,
                 Limb* scratch) noexcept;
std::size_t MultiplyNttScratch(std::size_t aCount, std::size_t bCount) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_MULTIPLY_INTERNAL_H
