#include "arith/natural/divide.h"

#include <algorithm>

#include "arith/natural/divide_base.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

void DivideByOneOrTwo(Limb* quotient, Limb* remainder, const Limb* a, std::size_t aCount,
                      const Limb* d, std::size_t dCount) noexcept {
    if (dCount == 1) {
        const Limb rest = DivideByLimb(quotient, a, aCount, d[0]);
        if (remainder != nullptr) remainder[0] = rest;
    } else {
        const DoubleLimb rest = DivideByTwoLimbs(quotient, a, aCount, d[1], d[0]);
        if (remainder != nullptr) {
            remainder[0] = LowLimb(rest);
            remainder[1] = HighLimb(rest);
        }
    }
}

}  // namespace

Limb DivideNormalised(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d,
                      std::size_t dCount, const TopDivisor& top, Limb* scratch) noexcept {
    const std::size_t shorter = std::min(aCount - dCount, dCount);
    if (shorter < kDivideHalvesLimbs) {
        return DivideSchoolbook(quotient, a, aCount, d, dCount, top);
    }
    if (shorter < kDivideReciprocalLimbs) {
        return DivideByHalves(quotient, a, aCount, d, dCount, top, kDivideHalvesLimbs, scratch);
    }
    return DivideByReciprocal(quotient, a, aCount, d, dCount, top, kReciprocalLeafLimbs, scratch);
}

std::size_t DivideNormalisedScratch(std::size_t aCount, std::size_t dCount) noexcept {
    const std::size_t shorter = std::min(aCount / 2, dCount);
    if (shorter < kDivideHalvesLimbs) return 0;
    const std::size_t forHalves = DivideByHalvesScratch(dCount);
    if (shorter < kDivideReciprocalLimbs) return forHalves;
    return std::max(forHalves, DivideByReciprocalScratch(aCount, dCount));
}

std::size_t DivideScratch(std::size_t aCount, std::size_t dCount) noexcept {
    if (dCount <= 2) return 0;
    const std::size_t quotientCount = aCount - dCount + 1;
    // The shifted operands and, if the caller does not want it, the quotient.
    const std::size_t copies = aCount + 1 + dCount + quotientCount;
    return copies + DivideNormalisedScratch(aCount + 1, dCount);
}

void Divide(Limb* quotient, Limb* remainder, const Limb* a, std::size_t aCount, const Limb* d,
            std::size_t dCount, Limb* scratch) noexcept {
    if (dCount <= 2) {
        DivideByOneOrTwo(quotient, remainder, a, aCount, d, dCount);
        return;
    }
    const std::size_t quotientCount = aCount - dCount + 1;
    Limb* const dividend = scratch;
    scratch += aCount + 1;
    if (quotient == nullptr) {
        quotient = scratch;
        scratch += quotientCount;
    }
    const int shift = LeadingZeros(d[dCount - 1]);
    Limb above = 0;
    if (shift == 0) {
        std::copy(a, a + aCount, dividend);
    } else {
        above = ShiftLeft(dividend, a, aCount, shift);
        ShiftLeft(scratch, d, dCount, shift);
        d = scratch;
        scratch += dCount;
    }
    // Without a limb above, the quotient's top limb is the 0 or 1 that the division returns; with
    // one, the top limbs are below the divisor, which has a bit more.
    std::size_t count = aCount;
    if (above != 0) dividend[count++] = above;
    const TopDivisor top(d[dCount - 1], d[dCount - 2]);
    const Limb high = DivideNormalised(quotient, dividend, count, d, dCount, top, scratch);
    if (above == 0) quotient[quotientCount - 1] = high;
    if (remainder == nullptr) return;
    if (shift == 0) {
        std::copy(dividend, dividend + dCount, remainder);
    } else {
        ShiftRight(remainder, dividend, dCount, shift);
    }
}

}  // namespace tarn
