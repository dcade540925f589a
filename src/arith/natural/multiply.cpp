#include "arith/natural/multiply.h"

#include <algorithm>
#include <utility>

#include "arith/natural/multiply_internal.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

static_assert(kKaratsubaMinimum <= kKaratsubaThreshold);
static_assert(kKaratsubaThreshold <= kSquareKaratsubaThreshold, "what needs no scratch");
static_assert(kToom3Minimum <= std::min(kToom3Threshold, kSquareToom3Threshold));

enum class Algorithm { kBasecase, kKaratsuba, kToom3, kNtt };

Algorithm AlgorithmForProduct(std::size_t count) noexcept {
    if (count < kKaratsubaThreshold) return Algorithm::kBasecase;
    if (count < kToom3Threshold) return Algorithm::kKaratsuba;
    return count < kNttThreshold ? Algorithm::kToom3 : Algorithm::kNtt;
}

Algorithm AlgorithmForSquare(std::size_t count) noexcept {
    if (count < kSquareKaratsubaThreshold) return Algorithm::kBasecase;
    if (count < kSquareToom3Threshold) return Algorithm::kKaratsuba;
    return count < kSquareNttThreshold ? Algorithm::kToom3 : Algorithm::kNtt;
}

std::size_t ScratchOf(Algorithm algorithm, std::size_t count) noexcept {
    switch (algorithm) {
        case Algorithm::kBasecase:
            return 0;
        case Algorithm::kKaratsuba:
            return MultiplyKaratsubaScratch(count);
        case Algorithm::kToom3:
            return MultiplyToom3Scratch(count);
        default:
            return MultiplyNttScratch(count, count);
    }
}

}  // namespace

void MultiplyBalanced(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                      Limb* scratch) noexcept {
    switch (b == nullptr ? AlgorithmForSquare(count) : AlgorithmForProduct(count)) {
        case Algorithm::kBasecase:
            if (b == nullptr) return SquareBasecase(result, a, count);
            return MultiplyBasecase(result, a, count, b, count);
        case Algorithm::kKaratsuba:
            return MultiplyKaratsuba(result, a, b, count, scratch);
        case Algorithm::kToom3:
            return MultiplyToom3(result, a, b, count, scratch);
        default:
            return MultiplyNtt(result, a, count, b, count, scratch);
    }
}

// Enough for the product and for the square.
std::size_t MultiplyBalancedScratch(std::size_t count) noexcept {
    const Algorithm product = AlgorithmForProduct(count);
    const Algorithm square = AlgorithmForSquare(count);
    const std::size_t forProduct = ScratchOf(product, count);
    return product == square ? forProduct : std::max(forProduct, ScratchOf(square, count));
}

// The product of each piece is written where it belongs; its low half covers the high half of the
// one before, which therefore waits in scratch and is added afterwards.
void MultiplyPieces(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                    std::size_t bCount, Limb* scratch) noexcept {
    Limb* before = scratch;
    Limb* rest = scratch + bCount;
    MultiplyBalanced(result, a, b, bCount, rest);
    std::size_t done = bCount;
    while (done < aCount) {
        const std::size_t count = std::min(bCount, aCount - done);
        std::copy_n(result + done, bCount, before);
        Multiply(result + done, a + done, count, b, bCount, rest);
        Add(result + done, result + done, bCount + count, before, bCount);
        done += count;
    }
}

std::size_t MultiplyPiecesScratch(std::size_t aCount, std::size_t bCount) noexcept {
    const std::size_t last = aCount % bCount;
    const std::size_t forLast = last == 0 ? 0 : MultiplyScratch(bCount, last);
    return bCount + std::max(MultiplyBalancedScratch(bCount), forLast);
}

void Multiply(Limb* result, const Limb* a, std::size_t aCount, const Limb* b, std::size_t bCount,
              Limb* scratch) noexcept {
    if (aCount < bCount) {
        std::swap(a, b);
        std::swap(aCount, bCount);
    }
    if (bCount < kKaratsubaThreshold) return MultiplyBasecase(result, a, aCount, b, bCount);
    if (aCount == bCount) {
        return MultiplyBalanced(result, a, a == b ? nullptr : b, aCount, scratch);
    }
    if (bCount >= kNttUnbalancedThreshold)
        return MultiplyNtt(result, a, aCount, b, bCount, scratch);
    MultiplyPieces(result, a, aCount, b, bCount, scratch);
}

std::size_t MultiplyScratch(std::size_t aCount, std::size_t bCount) noexcept {
    if (aCount < bCount) std::swap(aCount, bCount);
    if (bCount < kKaratsubaThreshold) return 0;
    if (aCount == bCount) return MultiplyBalancedScratch(aCount);
    if (bCount >= kNttUnbalancedThreshold) return MultiplyNttScratch(aCount, bCount);
    return MultiplyPiecesScratch(aCount, bCount);
}

void Square(Limb* result, const Limb* a, std::size_t count, Limb* scratch) noexcept {
    MultiplyBalanced(result, a, nullptr, count, scratch);
}

std::size_t SquareScratch(std::size_t count) noexcept {
    return MultiplyBalancedScratch(count);
}

}  // namespace tarn
