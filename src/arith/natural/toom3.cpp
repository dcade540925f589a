// A. L. Toom (1963) in three parts, evaluated at 0, 1, -1, 2 and infinity; the interpolation
// follows M. Bodrato and A. Zanoni, "Integer and polynomial multiplication" (2007), ordered so that
// no value but the product at -1 is ever negative.
#include <algorithm>

#include "arith/natural/multiply_internal.h"
#include "arith/natural/span.h"

namespace tarn {
namespace {

// An operand a0 + a1 x + a2 x^2: a0 and a1 have `part` limbs, a2 has `top`, 1 <= top <= part.
struct Parts {
    const Limb* a0;
    const Limb* a1;
    const Limb* a2;
    std::size_t part;
    std::size_t top;
};

Parts PartsOf(const Limb* a, std::size_t part, std::size_t top) noexcept {
    return {a, a + part, a + 2 * part, part, top};
}

// atOne[0 .. part + 1) = a0 + a1 + a2 and atMinusOne = |a0 - a1 + a2|; whether the latter is
// negative.
bool EvaluateAtOnes(Limb* atOne, Limb* atMinusOne, const Parts& a) noexcept {
    const std::size_t part = a.part;
    const Limb high = Add(atMinusOne, a.a0, part, a.a2, a.top);
    atMinusOne[part] = high;
    atOne[part] = high + AddN(atOne, atMinusOne, a.a1, part);
    if (high == 0 && Compare(atMinusOne, a.a1, part) < 0) {
        SubtractN(atMinusOne, a.a1, atMinusOne, part);
        return true;
    }
    atMinusOne[part] -= SubtractN(atMinusOne, atMinusOne, a.a1, part);
    return false;
}

// atTwo[0 .. part + 1) = a0 + 2 (a1 + 2 a2)
void EvaluateAtTwo(Limb* atTwo, const Parts& a) noexcept {
    const std::size_t part = a.part;
    const Limb out = ShiftLeft(atTwo, a.a2, a.top, 1);
    std::fill(atTwo + a.top, atTwo + part + 1, Limb{0});
    atTwo[a.top] = out;
    atTwo[part] += AddN(atTwo, atTwo, a.a1, part);
    ShiftLeft(atTwo, atTwo, part + 1, 1);
    atTwo[part] += AddN(atTwo, atTwo, a.a0, part);
}

// a[0 .. count) /= 3, which leaves no remainder. With B = 2^64 and m = (B - 1) / 3, division by 3
// from below is q = m c - m a mod B, c the borrow of 0 to 2. If the low half of m a is taken
// off m c with a borrow, the next m c is exactly q less that borrow less the high half of m a.
void DivideExactlyByThree(Limb* a, std::size_t count) noexcept {
    constexpr Limb kThird = ~Limb{0} / 3;
    Limb carried = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const DoubleLimb product = MultiplyLimbs(a[i], kThird);
        const Limb borrow = carried < LowLimb(product) ? 1U : 0U;
        carried -= LowLimb(product);
        a[i] = carried;
        carried -= HighLimb(product) + borrow;
    }
}

// From the products at 1 (v1), -1 (vm1, negative or not) and 2 (v2), each of `count` limbs, and
// those at 0 (c0) and infinity (c4), to the coefficients c2 (in v1), c1 (in vm1) and c3 (in v2).
void Interpolate(Limb* v1, Limb* vm1, Limb* v2, std::size_t count, bool isNegative, const Limb* c0,
                 std::size_t c0Count, const Limb* c4, std::size_t c4Count) noexcept {
    if (isNegative) {
        AddN(v2, v2, vm1, count);
        AddN(vm1, v1, vm1, count);
    } else {
        SubtractN(v2, v2, vm1, count);
        SubtractN(vm1, v1, vm1, count);
    }
    DivideExactlyByThree(v2, count);       // c1 + c2 + 3 c3 + 5 c4
    ShiftRight(vm1, vm1, count, 1);        // c1 + c3
    Subtract(v1, v1, count, c0, c0Count);  // c1 + c2 + c3 + c4
    SubtractN(v2, v2, v1, count);          // 2 c3 + 4 c4
    ShiftRight(v2, v2, count, 1);          // c3 + 2 c4
    SubtractN(v1, v1, vm1, count);         // c2 + c4
    Subtract(v1, v1, count, c4, c4Count);  // c2
    Subtract(v2, v2, count, c4, c4Count);  // c3 + c4
    Subtract(v2, v2, count, c4, c4Count);  // c3
    SubtractN(vm1, vm1, v2, count);        // c1
}

}  // namespace

std::size_t MultiplyToom3Scratch(std::size_t count) noexcept {
    const std::size_t each = CountOfThird(count) + 1;
    return 6 * each + MultiplyBalancedScratch(each);
}

void MultiplyToom3(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                   Limb* scratch) noexcept {
    const std::size_t part = CountOfThird(count);
    const std::size_t top = count - 2 * part;
    const std::size_t each = part + 1;
    Limb* v1 = scratch;
    Limb* vm1 = v1 + 2 * each;
    Limb* v2 = vm1 + 2 * each;
    Limb* rest = v2 + 2 * each;
    const bool isSquare = b == nullptr;
    const Parts aParts = PartsOf(a, part, top);
    Limb* const aAt = result;
    Limb* const bAt = isSquare ? nullptr : result + each;

    bool isNegative = EvaluateAtOnes(vm1, aAt, aParts);
    if (!isSquare) {
        const Parts bParts = PartsOf(b, part, top);
        isNegative = isNegative != EvaluateAtOnes(vm1 + each, bAt, bParts);
        MultiplyBalanced(v1, vm1, vm1 + each, each, rest);
        MultiplyBalanced(vm1, aAt, bAt, each, rest);
        EvaluateAtTwo(bAt, bParts);
    } else {
        isNegative = false;
        MultiplyBalanced(v1, vm1, nullptr, each, rest);
        MultiplyBalanced(vm1, aAt, nullptr, each, rest);
    }
    EvaluateAtTwo(aAt, aParts);
    MultiplyBalanced(v2, aAt, bAt, each, rest);
    Limb* const c0 = result;
    Limb* const c4 = result + 4 * part;
    MultiplyBalanced(c0, a, b, part, rest);
    MultiplyBalanced(c4, a + 2 * part, isSquare ? nullptr : b + 2 * part, top, rest);

    Interpolate(v1, vm1, v2, 2 * each, isNegative, c0, 2 * part, c4, 2 * top);

    // What lies above the end of the result is zero in c1 + c3 x^2.
    std::copy_n(v1, 2 * part, result + 2 * part);
    AddLimb(c4, c4, 2 * top, v1[2 * part]);
    Add(result + part, result + part, 3 * part + 2 * top, vm1, 2 * part + 1);
    const std::size_t above = part + 2 * top;
    Add(result + 3 * part, result + 3 * part, above, v2, std::min(above, 2 * each));
}

}  // namespace tarn
