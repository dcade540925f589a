#include "arith/natural/span.h"

namespace tarn {
namespace {

// Limbs a block: enough to hide the loop's own cost behind the multiplications, few enough that
// short operands still fill a block.
constexpr std::size_t kBlock = 4;

}  // namespace

CarryFlag AddN(Limb* result, const Limb* a, const Limb* b, std::size_t count,
               CarryFlag carry) noexcept {
    std::size_t i = 0;
    for (; i + kBlock <= count; i += kBlock) {
        carry = AddWithCarry(carry, a[i], b[i], result + i);
        carry = AddWithCarry(carry, a[i + 1], b[i + 1], result + i + 1);
        carry = AddWithCarry(carry, a[i + 2], b[i + 2], result + i + 2);
        carry = AddWithCarry(carry, a[i + 3], b[i + 3], result + i + 3);
    }
    for (; i < count; ++i)
        carry = AddWithCarry(carry, a[i], b[i], result + i);
    return carry;
}

CarryFlag SubtractN(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                    CarryFlag borrow) noexcept {
    std::size_t i = 0;
    for (; i + kBlock <= count; i += kBlock) {
        borrow = SubtractWithBorrow(borrow, a[i], b[i], result + i);
        borrow = SubtractWithBorrow(borrow, a[i + 1], b[i + 1], result + i + 1);
        borrow = SubtractWithBorrow(borrow, a[i + 2], b[i + 2], result + i + 2);
        borrow = SubtractWithBorrow(borrow, a[i + 3], b[i + 3], result + i + 3);
    }
    for (; i < count; ++i)
        borrow = SubtractWithBorrow(borrow, a[i], b[i], result + i);
    return borrow;
}

// In the three loops below the sum of a product and the addends stays below 2^128, since
// (2^64 - 1)^2 + 2 (2^64 - 1) = 2^128 - 1.
Limb MultiplyByLimb(Limb* result, const Limb* a, std::size_t count, Limb factor,
                    Limb carry) noexcept {
    const auto step = [&](std::size_t i) {
        const DoubleLimb product = MultiplyLimbs(a[i], factor) + carry;
        result[i] = LowLimb(product);
        carry = HighLimb(product);
    };
    std::size_t i = 0;
    for (; i + kBlock <= count; i += kBlock) {
        step(i);
        step(i + 1);
        step(i + 2);
        step(i + 3);
    }
    for (; i < count; ++i)
        step(i);
    return carry;
}

Limb AddProduct(Limb* result, const Limb* a, std::size_t count, Limb factor) noexcept {
    Limb carry = 0;
    const auto step = [&](std::size_t i) {
        const DoubleLimb product = MultiplyLimbs(a[i], factor) + result[i] + carry;
        result[i] = LowLimb(product);
        carry = HighLimb(product);
    };
    std::size_t i = 0;
    for (; i + kBlock <= count; i += kBlock) {
        step(i);
        step(i + 1);
        step(i + 2);
        step(i + 3);
    }
    for (; i < count; ++i)
        step(i);
    return carry;
}

Limb SubtractProduct(Limb* result, const Limb* a, std::size_t count, Limb factor) noexcept {
    Limb borrow = 0;
    const auto step = [&](std::size_t i) {
        const DoubleLimb product = MultiplyLimbs(a[i], factor) + borrow;
        const Limb minuend = result[i];
        result[i] = minuend - LowLimb(product);
        borrow = HighLimb(product) + (minuend < LowLimb(product) ? 1U : 0U);
    };
    std::size_t i = 0;
    for (; i + kBlock <= count; i += kBlock) {
        step(i);
        step(i + 1);
        step(i + 2);
        step(i + 3);
    }
    for (; i < count; ++i)
        step(i);
    return borrow;
}

Limb ShiftLeft(Limb* result, const Limb* a, std::size_t count, int shift) noexcept {
    const int rest = kLimbBits - shift;
    const Limb out = a[count - 1] >> rest;
    for (std::size_t i = count - 1; i > 0; --i) {
        result[i] = (a[i] << shift) | (a[i - 1] >> rest);
    }
    result[0] = a[0] << shift;
    return out;
}

Limb ShiftRight(Limb* result, const Limb* a, std::size_t count, int shift) noexcept {
    const int rest = kLimbBits - shift;
    const Limb out = a[0] << rest;
    for (std::size_t i = 0; i + 1 < count; ++i) {
        result[i] = (a[i] >> shift) | (a[i + 1] << rest);
    }
    result[count - 1] = a[count - 1] >> shift;
    return out;
}

}  // namespace tarn
