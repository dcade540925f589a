// Arithmetic modulo the primes of the number-theoretic transform. Residues are kept "lazy", below
// two or four times the prime, after D. Harvey, "Faster arithmetic for number-theoretic transforms"
// (2014); multiplication by a constant is V. Shoup's, with the constant's quotient precomputed.
#ifndef TARN_ARITH_NATURAL_NTT_PRIME_H
#define TARN_ARITH_NATURAL_NTT_PRIME_H

#include <array>
#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// A residue w and floor(w * 2^64 / p).
struct Factor {
    Limb value;
    Limb quotient;
};

inline constexpr int kRootLevels = 32;

class NttPrime {
  public:
    // p - 1 is a multiple of 2^32 and of 3; 4/5 of 2^62 < p < 2^62, so that four times p fits a limb.
    constexpr explicit NttPrime(Limb modulus) noexcept
        : p(modulus), twice(2 * modulus), reciprocal_(ReciprocalOf(modulus)) {
        Limb inverse = 1;
        for (int bits = 1; bits < kLimbBits; bits *= 2)
            inverse *= 2 - p * inverse;
        inverse_ = inverse;
        Limb base = 2;
        while (Power(base, (p - 1) / 2) == 1)
            ++base;
        Limb root = Power(base, (p - 1) >> kRootLevels);
        for (int level = kRootLevels; level > 0; --level) {
            roots_[static_cast<std::size_t>(level)] = MakeFactor(root);
            root = Product(root, root);
        }
        roots_[0] = MakeFactor(1);
        base = 2;
        while (Power(base, (p - 1) / 3) == 1)
            ++base;
        cubeRoot_ = MakeFactor(Power(base, (p - 1) / 3));
        minusOne_ = MakeFactor(p - 1);
    }

    // A root of unity of order 2^level; its square is that of the level below.
    constexpr const Factor& Root(int level) const noexcept {
        return roots_[static_cast<std::size_t>(level)];
    }
    constexpr const Factor& CubeRoot() const noexcept { return cubeRoot_; }
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
    // From [0, 4p) to [0, 2p).
    constexpr Limb Halve(Limb a) const noexcept { return a >= twice ? a - twice : a; }
    // From [0, 2p) to [0, p).
    constexpr Limb Reduce(Limb a) const noexcept { return a >= p ? a - p : a; }

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
    // floor(2^128 / p) - 4 * 2^64
    static constexpr Limb ReciprocalOf(Limb p) noexcept { return LowLimb((~DoubleLimb{0}) / p); }

    Limb reciprocal_;
    Limb inverse_ = 0;
    std::array<Factor, kRootLevels + 1> roots_{};
    Factor cubeRoot_{};
    Factor minusOne_{};
};

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_NTT_PRIME_H
