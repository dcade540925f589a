#include "arith/product.h"

#include <algorithm>

#include "arith/natural/multiply.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/product_scratch.h"
#include "arith/natural/span.h"
#include "arith/scratch.h"
#include "arith/short.h"

namespace tarn {
namespace {

// Up to this many limbs the operands are extended to the result's words on the stack and multiplied
// as they are: finding their significant limbs would cost more than it saves.
constexpr std::size_t kStackLimbs = 8;

template <class Extend>
bool PackExtended(Limb* limbs, Operand operand, std::size_t wordCount) noexcept {
    const std::size_t own = std::min(operand.Count(), wordCount);
    if (!PackKnown(limbs, operand.words, own)) return false;
    if (own == wordCount) return true;
    const Limb beyond = ExtensionWord<Extend>(operand) != 0 ? ~Limb{0} : Limb{0};
    if (own % 2 != 0) {
        limbs[own / 2] |= beyond << kWordBits;
    }
    std::fill(limbs + LimbCount(own), limbs + LimbCount(wordCount), beyond);
    return true;
}

template <class Extend>
bool MultiplyOnStack(Result result, Operand a, Operand b) noexcept {
    const std::size_t words = result.Count();
    const std::size_t limbs = LimbCount(words);
    Limb aLimbs[kStackLimbs], bLimbs[kStackLimbs], product[kStackLimbs];
    if (!PackExtended<Extend>(aLimbs, a, words) || !PackExtended<Extend>(bLimbs, b, words)) {
        return false;
    }
    MultiplyLowBasecase(product, aLimbs, bLimbs, limbs);
    StoreWhole(result, {product, limbs, false});
    return true;
}

// Whether most of a product of two operands at least this long lies above the limit.
bool NearlyFills(std::size_t count, std::size_t limit) noexcept {
    return 4 * count >= 3 * limit;
}

// limbs[0 .. own) with zeros up to `count`, copied to `room` where there are any to add.
const Limb* Padded(const Limb* limbs, std::size_t own, std::size_t count, Limb* room) noexcept {
    if (own == count) return limbs;
    std::copy(limbs, limbs + own, room);
    std::fill(room + own, room + count, Limb{0});
    return room;
}

// The product modulo 2^(32 * words) is the same for operands cut to the result's words, and for
// signed ones whichever of the residues x and x - 2^(32 * words) stands for an operand: the smaller
// magnitude is the one with fewer limbs.
template <class Extend>
bool MultiplyLong(Result result, Operand a, Operand b) noexcept {
    const std::size_t words = result.Count();
    const std::size_t limbs = LimbCount(words);
    Scratch scratch;
    Whole aWhole, bWhole;
    if (!PackWhole<Extend>(&aWhole, scratch.Take(limbs), a, std::min(a.Count(), words))) {
        return false;
    }
    if (a.words == b.words && a.width == b.width) {
        bWhole = aWhole;
    } else if (!PackWhole<Extend>(&bWhole, scratch.Take(limbs), b, std::min(b.Count(), words))) {
        return false;
    }
    Limb* const product = scratch.Take(std::max(aWhole.count + bWhole.count, limbs));
    Limb* const temporary = scratch.Take(LowProductScratch(aWhole.count, bWhole.count, limbs));
    const std::size_t count = LowProduct(product, aWhole, bWhole, limbs, temporary);
    StoreWhole(result, {product, count, aWhole.negative != bWhole.negative});
    return true;
}

}  // namespace

std::size_t LowProduct(Limb* product, const Whole& a, const Whole& b, std::size_t limit,
                       Limb* scratch) noexcept {
    const std::size_t aCount = std::min(a.count, limit);
    const std::size_t bCount = std::min(b.count, limit);
    if (aCount == 0 || bCount == 0) return 0;
    if (a.limbs == b.limbs && aCount == bCount) {
        Square(product, a.limbs, aCount, scratch);
    } else if (NearlyFills(std::min(aCount, bCount), limit)) {
        const Limb* const aPadded = Padded(a.limbs, aCount, limit, scratch);
        const Limb* const bPadded = Padded(b.limbs, bCount, limit, scratch + limit);
        MultiplyLow(product, aPadded, bPadded, limit, scratch + 2 * limit);
        return NormalisedCount(product, limit);
    } else {
        Multiply(product, a.limbs, aCount, b.limbs, bCount, scratch);
    }
    return NormalisedCount(product, std::min(aCount + bCount, limit));
}

std::size_t LowProductScratch(std::size_t aCount, std::size_t bCount, std::size_t limit) noexcept {
    const std::size_t longer = std::clamp<std::size_t>(std::max(aCount, bCount), 1, limit);
    const std::size_t shorter = std::clamp<std::size_t>(std::min(aCount, bCount), 1, limit);
    std::size_t most = std::max(ProductScratch(longer + shorter), SquareScratch(longer));
    if (NearlyFills(shorter, limit)) {
        most = std::max(most, 2 * limit + MultiplyLowScratch(limit));
    }
    return most;
}

template <class Extend>
void MultiplyWide(Result result, Operand a, Operand b) noexcept {
    const auto multiply = [](auto x, auto y) -> decltype(x) {
        return {x.number * y.number, x.unknown || y.unknown};
    };
    if (ComputeShort<Extend>(result, multiply, a, b)) return;
    const std::size_t count = result.Count();
    if (count == 0) return;
    const bool known = !HasUnknownFrom(count, a) && !HasUnknownFrom(count, b) &&
                       (LimbCount(count) <= kStackLimbs ? MultiplyOnStack<Extend>(result, a, b)
                                                        : MultiplyLong<Extend>(result, a, b));
    if (!known) {
        FillX(result);
    }
}

template void MultiplyWide<SignExtend>(Result, Operand, Operand) noexcept;
template void MultiplyWide<ZeroExtend>(Result, Operand, Operand) noexcept;

}  // namespace tarn
