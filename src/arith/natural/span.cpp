#include "arith/natural/span.h"

#include "arith/natural/unroll.h"

namespace tarn {
namespace {

// step(result, a, 0), step(result, a, 1) .. step(result, a, count - 1), in blocks of kBlock steps
// without a test in between. The pointers advance from block to block: addresses without an index
// make the multiplications cheaper.
template <std::size_t kBlock, class Step>
inline void ForEachLimb(Limb* result, const Limb* a, std::size_t count, Step&& step) noexcept {
    for (; count >= kBlock; count -= kBlock) {
        Unroll<kBlock>([&](auto k) { step(result + k, a + k); });
        result += kBlock;
        a += kBlock;
    }
    for (std::size_t i = 0; i < count; ++i)
        step(result + i, a + i);
}

// The carry passes from limb to limb in the processor's flag, but between blocks in a register;
// a product's loop is slower and hides its own cost sooner.
constexpr std::size_t kAddBlock = 8;
constexpr std::size_t kProductBlock = 4;

// addend + a * factor + carry, whose high limb becomes the carry. The sum is below 2^128, since
// (2^64 - 1)^2 + 2 (2^64 - 1) = 2^128 - 1. The addend enters first: the chain from carry to carry
// is then one addition long.
inline Limb AddProductStep(Limb addend, Limb a, Limb factor, Limb* carry) noexcept {
    const DoubleLimb product = MultiplyLimbs(a, factor);
    Limb low = LowLimb(product);
    Limb high = HighLimb(product);
    low += addend;
    high += low < addend ? 1U : 0U;
    low += *carry;
    high += low < *carry ? 1U : 0U;
    *carry = high;
    return low;
}

}  // namespace

CarryFlag AddN(Limb* result, const Limb* a, const Limb* b, std::size_t count,
               CarryFlag carry) noexcept {
    std::size_t i = 0;
    for (; i + kAddBlock <= count; i += kAddBlock) {
        Unroll<kAddBlock>(
            [&](auto k) { carry = AddWithCarry(carry, a[i + k], b[i + k], result + i + k); });
    }
    for (; i < count; ++i)
        carry = AddWithCarry(carry, a[i], b[i], result + i);
    return carry;
}

CarryFlag SubtractN(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                    CarryFlag borrow) noexcept {
    std::size_t i = 0;
    for (; i + kAddBlock <= count; i += kAddBlock) {
        Unroll<kAddBlock>([&](auto k) {
            borrow = SubtractWithBorrow(borrow, a[i + k], b[i + k], result + i + k);
        });
    }
    for (; i < count; ++i)
        borrow = SubtractWithBorrow(borrow, a[i], b[i], result + i);
    return borrow;
}

Limb MultiplyByLimb(Limb* result, const Limb* a, std::size_t count, Limb factor,
                    Limb carry) noexcept {
    ForEachLimb<kProductBlock>(result, a, count, [&](Limb* to, const Limb* from) {
        const DoubleLimb product = MultiplyLimbs(*from, factor) + carry;
        *to = LowLimb(product);
        carry = HighLimb(product);
    });
    return carry;
}

Limb AddProduct(Limb* result, const Limb* a, std::size_t count, Limb factor) noexcept {
    Limb carry = 0;
    ForEachLimb<kProductBlock>(result, a, count, [&](Limb* to, const Limb* from) {
        *to = AddProductStep(*to, *from, factor, &carry);
    });
    return carry;
}

// With ~x = 2^64 - 1 - x, r - p = ~(~r + p), and the carry of the one is the borrow of the other.
Limb SubtractProduct(Limb* result, const Limb* a, std::size_t count, Limb factor) noexcept {
    Limb borrow = 0;
    ForEachLimb<kProductBlock>(result, a, count, [&](Limb* to, const Limb* from) {
        *to = ~AddProductStep(~*to, *from, factor, &borrow);
    });
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
