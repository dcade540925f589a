// Single quotient limbs by multiplication with a reciprocal of the divisor, after N. Moeller and
// T. Granlund, "Improved division by invariant integers", IEEE Transactions on Computers 60, 2011.
// Divisors are normalised: their top bit is set.
#ifndef TARN_ARITH_NATURAL_DIVIDE_STEP_H
#define TARN_ARITH_NATURAL_DIVIDE_STEP_H

#include <bit>
#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// A divisor of one limb and floor((2^128 - 1) / divisor) - 2^64.
struct LimbDivisor {
    Limb divisor;
    Limb reciprocal;

    // (2^128 - 1) - 2^64 d = 2^64 (2^64 - 1 - d) + (2^64 - 1).
    explicit constexpr LimbDivisor(Limb normalised) noexcept
        : divisor(normalised),
          reciprocal(LowLimb(MakeDoubleLimb(~normalised, ~Limb{0}) / normalised)) {}

    // Returns the quotient of (remainder, next) for remainder < divisor, and leaves the new
    // remainder (algorithm 4). The candidate is right or one too great, rarely one too small; the
    // fraction that the estimate dropped tells the first two apart.
    constexpr Limb Step(Limb* remainder, Limb next) const noexcept {
        const DoubleLimb product = MultiplyLimbs(reciprocal, *remainder);
        const Limb fraction = LowLimb(product) + next;
        Limb quotient = HighLimb(product) + *remainder + (fraction < next ? 1U : 0U) + 1;
        Limb rest = next - quotient * divisor;
        if (rest > fraction) {
            --quotient;
            rest += divisor;
        }
        if (rest >= divisor) [[unlikely]] {
            ++quotient;
            rest -= divisor;
        }
        *remainder = rest;
        return quotient;
    }
};

// The two top limbs of a divisor and floor((2^192 - 1) / top) - 2^64.
struct TopDivisor {
    DoubleLimb top;
    Limb reciprocal;

    // The reciprocal of the upper limb, taken down for what the lower limb adds (algorithm 6).
    constexpr TopDivisor(Limb high, Limb low) noexcept
        : top(MakeDoubleLimb(high, low)), reciprocal(LimbDivisor(high).reciprocal) {
        Limb product = high * reciprocal + low;
        if (product < low) {
            --reciprocal;
            if (product >= high) {
                --reciprocal;
                product -= high;
            }
            product -= high;
        }
        const DoubleLimb cross = MultiplyLimbs(reciprocal, low);
        product += HighLimb(cross);
        if (product < HighLimb(cross)) {
            --reciprocal;
            if (MakeDoubleLimb(product, LowLimb(cross)) >= top) --reciprocal;
        }
    }

    // The same for a remainder of two limbs, below the top (algorithm 5).
    constexpr Limb Step(DoubleLimb* remainder, Limb next) const noexcept {
        const DoubleLimb estimate = MultiplyLimbs(reciprocal, HighLimb(*remainder)) + *remainder;
        Limb quotient = HighLimb(estimate);
        const Limb restHigh = LowLimb(*remainder) - quotient * HighLimb(top);
        DoubleLimb rest =
            MakeDoubleLimb(restHigh, next) - MultiplyLimbs(quotient, LowLimb(top)) - top;
        ++quotient;
        const bool tooGreat = HighLimb(rest) >= LowLimb(estimate);
        quotient -= tooGreat ? 1U : 0U;
        rest += tooGreat ? top : 0U;
        if (rest >= top) [[unlikely]] {
            ++quotient;
            rest -= top;
        }
        *remainder = rest;
        return quotient;
    }
};

inline int LeadingZeros(Limb limb) noexcept {
    return std::countl_zero(limb);
}

// The upper limb of (high, low) << shift, for 0 <= shift < kLimbBits.
constexpr Limb ShiftedIn(Limb high, Limb low, int shift) noexcept {
    return (high << shift) | (low >> 1 >> (kLimbBits - 1 - shift));
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_DIVIDE_STEP_H
