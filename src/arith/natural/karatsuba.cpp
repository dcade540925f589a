// Karatsuba and Ofman, "Multiplication of many-digital numbers by automatic computers" (1962), in
// the form that multiplies the absolute differences of the halves: they don't outgrow a half.
#include <algorithm>

#include "arith/natural/multiply_internal.h"
#include "arith/natural/span.h"

namespace tarn {
namespace {

// result[0 .. low) = |a[0 .. low) - a[low .. low + high)| for high <= low; whether the difference
// is negative.
bool HalfDifference(Limb* result, const Limb* a, std::size_t low, std::size_t high) noexcept {
    const Limb* upper = a + low;
    if (high == low || a[low - 1] == 0) {
        if (Compare(a, upper, high) < 0) {
            SubtractN(result, upper, a, high);
            std::fill(result + high, result + low, Limb{0});
            return true;
        }
    }
    Subtract(result, a, low, upper, high);
    return false;
}

}  // namespace

std::size_t MultiplyKaratsubaScratch(std::size_t count) noexcept {
    const std::size_t low = count - count / 2;
    return 2 * low + MultiplyBalancedScratch(low);
}

// With a = a1 x + a0 and b likewise, x = 2^(64 low):
// a b = a1 b1 x^2 + (a1 b1 + a0 b0 - (a0 - a1)(b0 - b1)) x + a0 b0.
void MultiplyKaratsuba(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                       Limb* scratch) noexcept {
    const std::size_t high = count / 2;
    const std::size_t low = count - high;
    Limb* middle = scratch;
    Limb* rest = scratch + 2 * low;

    bool differsInSign = false;
    if (b == nullptr) {
        HalfDifference(result, a, low, high);
        MultiplyBalanced(middle, result, nullptr, low, rest);
        MultiplyBalanced(result, a, nullptr, low, rest);
        MultiplyBalanced(result + 2 * low, a + low, nullptr, high, rest);
    } else {
        differsInSign =
            HalfDifference(result, a, low, high) != HalfDifference(result + low, b, low, high);
        MultiplyBalanced(middle, result, result + low, low, rest);
        MultiplyBalanced(result, a, b, low, rest);
        MultiplyBalanced(result + 2 * low, a + low, b + low, high, rest);
    }

    // The middle sum lies in [0, 2 x^2); its limb above, `over`, wraps around 0 in between.
    Limb over = 0;
    if (differsInSign) {
        over = AddN(middle, result, middle, 2 * low);
    } else {
        over = Limb{0} - SubtractN(middle, result, middle, 2 * low);
    }
    over += Add(middle, middle, 2 * low, result + 2 * low, 2 * high);
    over += AddN(result + low, result + low, middle, 2 * low);
    if (2 * high > low) {
        AddLimb(result + 3 * low, result + 3 * low, 2 * high - low, over);
    }
}

}  // namespace tarn
