// What all models are made of: vectors extended, read as numbers and made of numbers.
#ifndef TARN_TESTS_SUPPORT_MODEL_H
#define TARN_TESTS_SUPPORT_MODEL_H

#include <algorithm>
#include <cmath>

#include "support/integer.h"
#include "support/vec.h"

namespace tarn::test {

// Arithmetic and copies take the sign from the last storage bit, aval and bval alike.
enum class Extension { kZero, kSign };
inline constexpr Extension kZero = Extension::kZero;
inline constexpr Extension kSign = Extension::kSign;

inline Vec Extended(const Vec& vec, int width, Extension extension) {
    const bool hasSign = extension == kSign && !vec.bits.empty();
    Vec wide = Filled(width, hasSign ? vec.bits.back() : Logic::k0);
    std::copy_n(vec.bits.begin(), std::min(vec.bits.size(), wide.bits.size()), wide.bits.begin());
    return wide;
}

template <Extension extension>
Vec Copied(int width, const Vec& source) {
    return Extended(source, width, extension);
}

inline bool HasUnknown(const Vec& vec) {
    return std::any_of(vec.bits.begin(), vec.bits.end(), [](Logic b) { return b >= Logic::kZ; });
}

inline Vec AllX(int width) {
    return Filled(width, Logic::kX);
}

// The storage read as a number that is not negative; X and Z bits count as 0.
inline Integer ToInteger(const Vec& vec) {
    Integer value;
    // From the top down, so that the number is allocated once.
    for (std::size_t i = vec.bits.size(); i-- > 0;) {
        if (vec.bits[i] == Logic::k1) SetBit(value, i);
    }
    return value;
}

// A vector's own value: with kSign its last storage bit is the sign.
inline Integer Value(const Vec& vec, Extension extension) {
    const bool isNegative = extension == kSign && !vec.bits.empty() && vec.bits.back() == Logic::k1;
    return isNegative ? Integer(ToInteger(vec) - PowerOfTwo(vec.bits.size())) : ToInteger(vec);
}

// A number modulo 2 to the power of the storage's bits, negative ones in two's complement.
inline void AssignInteger(Vec& vec, const Integer& value) {
    const Integer low = LowBits(value, vec.bits.size());
    for (std::size_t i = 0; i < vec.bits.size(); ++i) {
        vec.bits[i] = HasBit(low, i) ? Logic::k1 : Logic::k0;
    }
}

inline Vec FromInteger(int width, const Integer& value) {
    Vec vec = Filled(width, Logic::k0);
    AssignInteger(vec, value);
    return vec;
}

// As a real: the magnitude rounded to 53 bits, halves away from zero.
inline double Nearest(const Integer& value) {
    const Integer magnitude = abs(value);
    const std::size_t bits = BitCount(magnitude), dropped = bits <= 53 ? 0 : bits - 53;
    const Integer half = dropped == 0 ? Integer(0) : PowerOfTwo(dropped - 1);
    const Integer significand = (magnitude + half) / PowerOfTwo(dropped);
    const double rounded = std::ldexp(ToDouble(significand), static_cast<int>(dropped));
    return value < 0 ? -rounded : rounded;
}

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_MODEL_H
