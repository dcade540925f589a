// Arithmetic modulo the primes of the number-theoretic transform. Residues are kept "lazy", below
// two or four times the prime, after D. Harvey, "Faster arithmetic for number-theoretic transforms"
// (2014); multiplication by a constant is V. Shoup's, with the constant's quotient precomputed.
#ifndef TARN_ARITH_NATURAL_NTT_PRIME_H
#define TARN_ARITH_NATURAL_NTT_PRIME_H

#include <algorithm>
#include <array>
#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// A residue w and floor(w * 2^64 / p).
struct Factor {
    Limb value;
    Limb quotient;
};

// Constants of the transform of five residues; see ntt_columns.h.
struct FifthRoot {
    Factor minusQuarter;
    Factor halfCosineDifference;
    Factor sine2;
    Factor sineDifference;
    Factor sineSum;
};

inline constexpr int kRootLevels = 32;

class NttPrime {
  public:
    // p - 1 is a multiple of 2^32, of 3 and of 5; 4/5 of 2^62 < p < 2^62, so that 4 p fits a limb.
    constexpr explicit NttPrime(Limb modulus) noexcept
        : p(modulus), twice(2 * modulus), reciprocal_(ReciprocalOf(modulus)) {
        Limb inverse = 1;
        for (int bits = 1; bits < kLimbBits; bits *= 2)
            inverse *= 2 - p * inverse;
        inverse_ = inverse;
        Limb root = PrimitiveRoot(2, kRootLevels);
        for (int level = kRootLevels; level > 0; --level) {
            roots_[static_cast<std::size_t>(level)] = MakeFactor(root);
            root = Product(root, root);
        }
        roots_[0] = MakeFactor(1);
        thirdRoot_ = MakeFactor(PrimitiveRoot(3, 1));
        fifth_ = MakeFifthRoot(PrimitiveRoot(5, 1));
        minusOne_ = MakeFactor(p - 1);
    }

    // A root of unity of order 2^level; its square is that of the level below.
    constexpr const Factor& Root(int level) const noexcept {
        return roots_[static_cast<std::size_t>(level)];
    }
    constexpr const Factor& ThirdRoot() const noexcept { return thirdRoot_; }
    constexpr const FifthRoot& Fifth() const noexcept { return fifth_; }
    constexpr const Factor& MinusOne() const noexcept { return minusOne_; }

    // With 4 <= 2^64 / p < 5, the estimate 4 w + floor(w (2^64 / p - 4)) is low by at most one.
    constexpr Factor MakeFactor(Limb value) const noexcept {
        const Limb quotient = 4 * value + HighLimb(MultiplyLimbs(value, reciprocal_));
        const Limb remainder = Limb{0} - quotient * p;
        return {value, quotient + (remainder >= p ? 1U : 0U)};
    }

    // a * factor mod p in [0, 2p), for any a: the quotient's estimate is low by at most one.
    constexpr Limb Times(Limb a, const Factor& factor) const noexcept {
        return a * factor.value - HighLimb(MultiplyLimbs(a, factor.quotient)) * p;
    }
    // a * b / 2^64 mod p in [0, 2p) for a, b < 2p: P. Montgomery's reduction.
    constexpr Limb TimesOver(Limb a, Limb b) const noexcept {
        const DoubleLimb product = MultiplyLimbs(a, b);
        const Limb multiple = LowLimb(product) * inverse_;
        return HighLimb(product) - HighLimb(MultiplyLimbs(multiple, p)) + p;
    }
    // From [0, 4p) to [0, 2p), and from [0, 2p) to [0, p). A difference below 0 wraps to the
    // greater of the two; compilers turn the minimum into a conditional move, never into a branch.
    constexpr Limb Halve(Limb a) const noexcept { return std::min(a, a - twice); }
    constexpr Limb Reduce(Limb a) const noexcept { return std::min(a, a - p); }

    // The slow forms, for constants.
    constexpr Limb Product(Limb a, Limb b) const noexcept {
        return LowLimb(MultiplyLimbs(a, b) % p);
    }
    constexpr Limb Power(Limb base, Limb exponent) const noexcept {
        Limb power = 1;
        for (; exponent != 0; exponent >>= 1) {
            if ((exponent & 1U) != 0) power = Product(power, base);
            base = Product(base, base);
        }
        return power;
    }
    constexpr Limb Inverse(Limb a) const noexcept { return Power(a, p - 2); }

    Limb p;
    Limb twice;

  private:
    // A root of unity of order prime^level.
    constexpr Limb PrimitiveRoot(Limb prime, int level) const noexcept {
        Limb base = 2;
        while (Power(base, (p - 1) / prime) == 1)
            ++base;
        Limb exponent = p - 1;
        for (int i = 0; i < level; ++i)
            exponent /= prime;
        return Power(base, exponent);
    }
    constexpr FifthRoot MakeFifthRoot(Limb w) const noexcept {
        const Limb half = Inverse(2);
        const Limb w4 = Inverse(w);
        const Limb w2 = Product(w, w);
        const Limb w3 = Product(w4, w4);
        const Limb cosine1 = Product(half, w + w4);
        const Limb cosine2 = Product(half, w2 + w3);
        const Limb sine1 = Product(half, w + p - w4);
        const Limb sine2 = Product(half, w2 + p - w3);
        return {MakeFactor(p - Inverse(4)), MakeFactor(Product(half, cosine1 + p - cosine2)),
                MakeFactor(sine2), MakeFactor((sine1 + p - sine2) % p),
                MakeFactor((sine1 + sine2) % p)};
    }

    // floor(2^128 / p) - 4 * 2^64
    static constexpr Limb ReciprocalOf(Limb p) noexcept { return LowLimb((~DoubleLimb{0}) / p); }

    Limb reciprocal_;
    Limb inverse_ = 0;
    std::array<Factor, kRootLevels + 1> roots_{};
    Factor thirdRoot_{};
    FifthRoot fifth_{};
    Factor minusOne_{};
};

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_NTT_PRIME_H
