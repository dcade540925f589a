// Steps on runs of limbs: the linear-time primitives under multiplication, division and radix
// conversion. Counts may be 0 unless a comment says otherwise. Each limb of an operand is read
// before the limb of the result at the same index is written, so a result may start where an
// operand starts ("in place"); any other overlap is forbidden but where a comment allows it.
#ifndef TARN_ARITH_NATURAL_SPAN_H
#define TARN_ARITH_NATURAL_SPAN_H

#include <algorithm>
#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// result[0 .. count) = a + b + carry; returns the carry out.
CarryFlag AddN(Limb* result, const Limb* a, const Limb* b, std::size_t count,
               CarryFlag carry = 0) noexcept;

// result[0 .. count) = a - b - borrow; returns the borrow out.
CarryFlag SubtractN(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                    CarryFlag borrow = 0) noexcept;

// result[0 .. count) = a + addend; returns the carry out, which for a count of 0 is the addend.
inline Limb AddLimb(Limb* result, const Limb* a, std::size_t count, Limb addend) noexcept {
    std::size_t i = 0;
    for (; i < count && addend != 0; ++i) {
        const Limb sum = a[i] + addend;
        addend = sum < addend ? 1U : 0U;
        result[i] = sum;
    }
    if (result != a) std::copy(a + i, a + count, result + i);
    return addend;
}

// result[0 .. count) = a - subtrahend; returns the borrow out, for a count of 0 the subtrahend.
inline Limb SubtractLimb(Limb* result, const Limb* a, std::size_t count, Limb subtrahend) noexcept {
    std::size_t i = 0;
    for (; i < count && subtrahend != 0; ++i) {
        const Limb minuend = a[i];
        result[i] = minuend - subtrahend;
        subtrahend = minuend < subtrahend ? 1U : 0U;
    }
    if (result != a) std::copy(a + i, a + count, result + i);
    return subtrahend;
}

// result[0 .. aCount) = a + b for aCount >= bCount; returns the carry out.
inline Limb Add(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                std::size_t bCount) noexcept {
    const CarryFlag carry = AddN(result, a, b, bCount);
    return AddLimb(result + bCount, a + bCount, aCount - bCount, carry);
}

// result[0 .. aCount) = a - b for aCount >= bCount; returns the borrow out.
inline Limb Subtract(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                     std::size_t bCount) noexcept {
    const CarryFlag borrow = SubtractN(result, a, b, bCount);
    return SubtractLimb(result + bCount, a + bCount, aCount - bCount, borrow);
}

// result[0 .. count) = a * factor + carry; returns the limb above.
Limb MultiplyByLimb(Limb* result, const Limb* a, std::size_t count, Limb factor,
                    Limb carry = 0) noexcept;

// result[0 .. count) += a * factor; returns the limb above.
Limb AddProduct(Limb* result, const Limb* a, std::size_t count, Limb factor) noexcept;

// result[0 .. count) -= a * factor; returns what is still to be subtracted from the limb above.
Limb SubtractProduct(Limb* result, const Limb* a, std::size_t count, Limb factor) noexcept;

// result[0 .. count) = a << shift, for count >= 1 and 1 <= shift < kLimbBits; returns the bits
// shifted out, at the low end of a limb. The result may also overlap a at higher addresses.
Limb ShiftLeft(Limb* result, const Limb* a, std::size_t count, int shift) noexcept;

// result[0 .. count) = a >> shift, for count >= 1 and 1 <= shift < kLimbBits; returns the bits
// shifted out, at the high end of a limb. The result may also overlap a at lower addresses.
Limb ShiftRight(Limb* result, const Limb* a, std::size_t count, int shift) noexcept;

// Negative, 0 or positive, as a is below, equal to or above b.
inline int Compare(const Limb* a, const Limb* b, std::size_t count) noexcept {
    for (std::size_t i = count; i-- > 0;) {
        if (a[i] != b[i]) return a[i] < b[i] ? -1 : 1;
    }
    return 0;
}

// The count of limbs without the zeros at the top: 0 for the value 0.
inline std::size_t NormalisedCount(const Limb* a, std::size_t count) noexcept {
    while (count > 0 && a[count - 1] == 0)
        --count;
    return count;
}

inline bool IsZero(const Limb* a, std::size_t count) noexcept {
    return std::all_of(a, a + count, [](Limb limb) { return limb == 0; });
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_SPAN_H
