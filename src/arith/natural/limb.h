// Steps on one or two limbs. A natural is an array of limbs, least significant first; everything in
// this folder works on naturals and knows nothing of vectors, widths or unknown bits.
#ifndef TARN_ARITH_NATURAL_LIMB_H
#define TARN_ARITH_NATURAL_LIMB_H

#include <cstddef>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace tarn {

using Limb = std::uint64_t;
__extension__ typedef unsigned __int128 DoubleLimb;

inline constexpr int kLimbBits = 64;

constexpr Limb HighLimb(DoubleLimb value) noexcept {
    return static_cast<Limb>(value >> kLimbBits);
}
constexpr Limb LowLimb(DoubleLimb value) noexcept {
    return static_cast<Limb>(value);
}
constexpr DoubleLimb MakeDoubleLimb(Limb high, Limb low) noexcept {
    return (static_cast<DoubleLimb>(high) << kLimbBits) | low;
}

constexpr DoubleLimb MultiplyLimbs(Limb a, Limb b) noexcept {
    return static_cast<DoubleLimb>(a) * b;
}

using CarryFlag = unsigned char;

#if defined(__x86_64__)
// The type that the carry intrinsics store: as wide as a limb, but a type of its own, which
// therefore must be told to alias it. A detour through a variable would cost a store to the stack.
using IntrinsicLimb __attribute__((may_alias)) = unsigned long long;
#endif

// sum = a + b + carry; returns the carry out. The intrinsic keeps the carry in the processor's flag
// from one limb to the next.
inline CarryFlag AddWithCarry(CarryFlag carry, Limb a, Limb b, Limb* sum) noexcept {
#if defined(__x86_64__)
    return _addcarry_u64(carry, a, b, reinterpret_cast<IntrinsicLimb*>(sum));
#else
    const DoubleLimb total = static_cast<DoubleLimb>(a) + b + carry;
    *sum = LowLimb(total);
    return static_cast<CarryFlag>(HighLimb(total));
#endif
}

// difference = a - b - borrow; returns the borrow out.
inline CarryFlag SubtractWithBorrow(CarryFlag borrow, Limb a, Limb b, Limb* difference) noexcept {
#if defined(__x86_64__)
    return _subborrow_u64(borrow, a, b, reinterpret_cast<IntrinsicLimb*>(difference));
#else
    const DoubleLimb total = static_cast<DoubleLimb>(a) - b - borrow;
    *difference = LowLimb(total);
    return static_cast<CarryFlag>(HighLimb(total) & 1U);
#endif
}

// The same on half a limb.
inline CarryFlag AddWithCarry32(CarryFlag carry, std::uint32_t a, std::uint32_t b,
                                std::uint32_t* sum) noexcept {
#if defined(__x86_64__)
    return _addcarry_u32(carry, a, b, sum);
#else
    const Limb total = static_cast<Limb>(a) + b + carry;
    *sum = static_cast<std::uint32_t>(total);
    return static_cast<CarryFlag>(total >> 32);
#endif
}

inline CarryFlag SubtractWithBorrow32(CarryFlag borrow, std::uint32_t a, std::uint32_t b,
                                      std::uint32_t* difference) noexcept {
#if defined(__x86_64__)
    return _subborrow_u32(borrow, a, b, difference);
#else
    const Limb total = static_cast<Limb>(a) - b - borrow;
    *difference = static_cast<std::uint32_t>(total);
    return static_cast<CarryFlag>(total >> 63);
#endif
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_LIMB_H
