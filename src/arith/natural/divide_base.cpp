#include "arith/natural/divide_base.h"

#include "arith/natural/span.h"

namespace tarn {

Limb DivideByLimb(Limb* quotient, const Limb* a, std::size_t count, Limb d) noexcept {
    const auto store = [quotient](std::size_t i, Limb limb) {
        if (quotient != nullptr) quotient[i] = limb;
    };
    if (count == 1) {
        const Limb value = a[0];
        store(0, value / d);
        return value % d;
    }
    const int shift = LeadingZeros(d);
    const LimbDivisor divisor(d << shift);
    Limb upper = a[count - 1];
    Limb remainder = ShiftedIn(0, upper, shift);
    for (std::size_t i = count - 1; i > 0; --i) {
        const Limb lower = a[i - 1];
        store(i, divisor.Step(&remainder, ShiftedIn(upper, lower, shift)));
        upper = lower;
    }
    store(0, divisor.Step(&remainder, upper << shift));
    return remainder >> shift;
}

DoubleLimb DivideByTwoLimbs(Limb* quotient, const Limb* a, std::size_t count, Limb dHigh,
                            Limb dLow) noexcept {
    const int shift = LeadingZeros(dHigh);
    const TopDivisor divisor(ShiftedIn(dHigh, dLow, shift), dLow << shift);
    Limb upper = a[count - 2];
    DoubleLimb remainder =
        MakeDoubleLimb(ShiftedIn(0, a[count - 1], shift), ShiftedIn(a[count - 1], upper, shift));
    for (std::size_t i = count - 1; i-- > 0;) {
        const Limb lower = i > 0 ? a[i - 1] : 0;
        const Limb limb = divisor.Step(&remainder, ShiftedIn(upper, lower, shift));
        if (quotient != nullptr) quotient[i] = limb;
        upper = lower;
    }
    return remainder >> shift;
}

namespace {

// Below this many limbs a call costs as much as the work.
constexpr std::size_t kInlineLimbs = 6;

inline Limb SubtractShortProduct(Limb* result, const Limb* a, std::size_t count,
                                 Limb factor) noexcept {
    Limb carry = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const DoubleLimb product = MultiplyLimbs(a[i], factor) + carry;
        const Limb minuend = result[i];
        result[i] = minuend - LowLimb(product);
        carry = HighLimb(product) + (minuend < LowLimb(product) ? 1U : 0U);
    }
    return carry;
}

}  // namespace

Limb DivideSchoolbook(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d,
                      std::size_t dCount, const TopDivisor& top) noexcept {
    Limb* window = a + (aCount - dCount);
    const Limb high = Compare(window, d, dCount) >= 0 ? 1 : 0;
    if (high != 0) SubtractN(window, window, d, dCount);

    // The two top limbs of the running remainder stay in registers.
    const std::size_t rest = dCount - 2;
    DoubleLimb leading = MakeDoubleLimb(window[rest + 1], window[rest]);
    for (std::size_t i = aCount - dCount; i-- > 0;) {
        --window;
        if (leading == top.top) [[unlikely]] {
            // The estimate from three limbs would be 2^64 or more; the quotient limb is 2^64 - 1.
            window[rest + 1] = LowLimb(leading);
            SubtractProduct(window, d, dCount, ~Limb{0});
            leading = MakeDoubleLimb(window[rest + 1], window[rest]);
            quotient[i] = ~Limb{0};
            continue;
        }
        Limb limb = top.Step(&leading, window[rest]);
        const Limb borrow = rest < kInlineLimbs ? SubtractShortProduct(window, d, rest, limb)
                                                : SubtractProduct(window, d, rest, limb);
        const bool tooGreat = leading < borrow;
        leading -= borrow;
        if (tooGreat) [[unlikely]] {
            --limb;
            leading += top.top + AddN(window, window, d, rest);
        }
        quotient[i] = limb;
    }
    window[rest + 1] = HighLimb(leading);
    window[rest] = LowLimb(leading);
    return high;
}

}  // namespace tarn
