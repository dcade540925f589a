// What reference operators are made of: extension, the unknown test, and integers of any width.
#ifndef TARN_TESTS_SUPPORT_MODEL_H
#define TARN_TESTS_SUPPORT_MODEL_H

#include <algorithm>

#include "support/integer.h"
#include "support/vec.h"

namespace tarn::test {

// Arithmetic and copies take the sign from the last storage bit, aval and bval alike.
enum class Extension { kZero, kSign };

inline Vec Extended(const Vec& vec, int width, Extension extension) {
    const bool hasSign = extension == Extension::kSign && !vec.bits.empty();
    Vec wide = Filled(width, hasSign ? vec.bits.back() : Logic::k0);
    std::copy_n(vec.bits.begin(), std::min(vec.bits.size(), wide.bits.size()), wide.bits.begin());
    return wide;
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

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_MODEL_H
