// Division by multiplication with a reciprocal, which Newton's iteration finds. Reciprocal after
// R. Brent and P. Zimmermann, "Modern computer arithmetic", 2010, algorithm 3.5; quotients by
// blocks after P. Barrett, 1986.
#include <algorithm>

#include "arith/natural/divide_base.h"
#include "arith/natural/multiply.h"
#include "arith/natural/product_scratch.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

// (2^(128 count) - 1) / d - 2^(64 count) = (2^(64 count) - 1 - d, 2^(64 count) - 1) / d.
void ExactReciprocal(Limb* x, const Limb* d, std::size_t count, const TopDivisor& top,
                     Limb* scratch) noexcept {
    Limb* const dividend = scratch;
    std::fill(dividend, dividend + count, ~Limb{0});
    std::transform(d, d + count, dividend + count, [](Limb limb) { return ~limb; });
    DivideByHalves(x, dividend, 2 * count, d, count, top, kDivideHalvesLimbs, scratch + 2 * count);
}

// result[0 .. aCount + count) and the carry returned = a * (x + 2^(64 count)), for the count limbs
// of x.
CarryFlag MultiplyByReciprocal(Limb* result, const Limb* a, std::size_t aCount, const Limb* x,
                               std::size_t count, Limb* scratch) noexcept {
    Multiply(result, a, aCount, x, count, scratch);
    return AddN(result + count, result + count, a, aCount);
}

std::size_t BlockCount(std::size_t quotientCount, std::size_t dCount) noexcept {
    // A long quotient pays for a reciprocal as long as the divisor; one of the divisor's own
    // length better for one of half of it, used twice.
    if (quotientCount > dCount) {
        const std::size_t blocks = (quotientCount + dCount - 1) / dCount;
        return (quotientCount + blocks - 1) / blocks;
    }
    return 3 * quotientCount > dCount ? (quotientCount + 1) / 2 : quotientCount;
}

// One block of the quotient: window[0 .. dCount + count) by d, whose dCount top limbs are below d.
// The estimate from the top limbs of both is off by a few units at most, above or below. It fits
// its count limbs: those top limbs of the window are not above those of d, whose product with the
// reciprocal is below 2^(128 count).
void DivideBlock(Limb* quotient, Limb* window, std::size_t count, const Limb* d, std::size_t dCount,
                 const Limb* reciprocal, Limb* scratch) noexcept {
    const Limb* const upper = window + dCount;
    MultiplyByReciprocal(scratch, upper, count, reciprocal, count, scratch + 2 * count);
    std::copy(scratch + count, scratch + 2 * count, quotient);
    Limb* const product = scratch;
    Multiply(product, d, dCount, quotient, count, scratch + dCount + count);
    Limb missing = SubtractN(window, window, product, dCount + count);
    while (missing != 0) {
        SubtractLimb(quotient, quotient, count, 1);
        missing -= Add(window, window, dCount + count, d, dCount);
    }
    while (window[dCount] != 0 || Compare(window, d, dCount) >= 0) {
        AddLimb(quotient, quotient, count, 1);
        window[dCount] -= SubtractN(window, window, d, dCount);
    }
}

}  // namespace

void ApproximateReciprocal(Limb* x, const Limb* d, std::size_t count, const TopDivisor& top,
                           std::size_t leafCount, Limb* scratch) noexcept {
    if (count <= leafCount) return ExactReciprocal(x, d, count, top, scratch);
    const std::size_t low = (count - 1) / 2;
    const std::size_t high = count - low;
    Limb* const xHigh = x + low;
    ApproximateReciprocal(xHigh, d + low, high, top, leafCount, scratch);

    // How much d * xHigh lacks of the power of two, and from that the low limbs.
    Limb* const lack = scratch;
    Limb* rest = scratch + count + high;
    CarryFlag above = MultiplyByReciprocal(lack, d, count, xHigh, high, rest);
    while (above != 0) {
        SubtractLimb(xHigh, xHigh, high, 1);
        above = static_cast<CarryFlag>(above - Subtract(lack, lack, count + high, d, count));
    }
    std::transform(lack, lack + count + high, lack, [](Limb limb) { return ~limb; });
    AddLimb(lack, lack, count + high, 1);
    Limb* const correction = rest;
    rest += 2 * high + 1;
    MultiplyByReciprocal(correction, lack + low, high + 1, xHigh, high, rest);
    const Limb* const lowest = correction + 2 * high - low;
    std::copy(lowest, lowest + low, x);
    AddLimb(xHigh, xHigh, high, lowest[low]);
}

std::size_t ApproximateReciprocalScratch(std::size_t count) noexcept {
    const std::size_t high = count / 2 + 1;
    const std::size_t forLeaf = 2 * count + DivideByHalvesScratch(count);
    return std::max(forLeaf, count + 3 * high + 1 + ProductScratch(count + high));
}

Limb DivideByReciprocal(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d,
                        std::size_t dCount, const TopDivisor& top, std::size_t leafCount,
                        Limb* scratch) noexcept {
    Limb* window = a + (aCount - dCount);
    const Limb high = Compare(window, d, dCount) >= 0 ? 1 : 0;
    if (high != 0) SubtractN(window, window, d, dCount);
    std::size_t left = aCount - dCount;
    if (left == 0) return high;
    const std::size_t block = BlockCount(left, dCount);
    Limb* const reciprocal = scratch;
    scratch += block;
    ApproximateReciprocal(reciprocal, d + (dCount - block), block, top, leafCount, scratch);
    std::size_t count = left % block == 0 ? block : left % block;
    for (; left > 0; count = block) {
        left -= count;
        DivideBlock(quotient + left, a + left, count, d, dCount, reciprocal + (block - count),
                    scratch);
    }
    return high;
}

std::size_t DivideByReciprocalScratch(std::size_t aCount, std::size_t dCount) noexcept {
    // No block is longer than the divisor or than the quotient.
    const std::size_t block = std::min(dCount, aCount / 2);
    const std::size_t total = std::min(aCount, 2 * dCount);
    return block + std::max(ApproximateReciprocalScratch(block), total + ProductScratch(total));
}

}  // namespace tarn
