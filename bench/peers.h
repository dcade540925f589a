// What the exports are measured against, and the plain definitions that the results of those
// without a computing peer are compared with.
#ifndef TARN_BENCH_PEERS_H
#define TARN_BENCH_PEERS_H

#include <cstring>
#include <string>

#include "floor.h"
#include "operands.h"

namespace tarn::bench {

inline void CallNothing(const Operands& o) {
    FloorCall(o.width, o.result, o.width, o.a, o.bWidth, o.b);
}

inline void CopyBytes(const Operands& o) {
    std::memcpy(o.result, o.a, o.wordCount * sizeof(VectorWord));
}

inline void CopyFieldBytes(const Operands& o) {
    std::memcpy(o.result, o.b, o.bWordCount * sizeof(VectorWord));
}

inline void CopyMemoryBytes(const Operands& o) {
    std::memcpy(o.resultMemory, o.memory, o.memoryByteCount);
}

// Reads all of both operands where these are equal.
inline int CompareBytes(const Operands& o) {
    return std::memcmp(o.a, o.b, o.wordCount * sizeof(VectorWord));
}

// A math function may cost three calls more behind an export.
inline void CallNothingThrice(const Operands& o) {
    CallNothing(o);
    CallNothing(o);
    CallNothing(o);
}

template <auto kFunction, int kArgument = kBelowOne>
void UnaryMath(const Operands& o) {
    CallNothingThrice(o);
    *o.resultReal = kFunction(o.reals[kArgument]);
}

template <auto kFunction, int kArgument = kBelowOne>
void BinaryMath(const Operands& o) {
    CallNothingThrice(o);
    *o.resultReal = kFunction(o.reals[kArgument], o.reals[kAboveOne]);
}

template <auto kFunction>
mp_limb_t BinaryLimbs(const Operands& o) {
    return kFunction(o.resultLimbs, o.aLimbs, o.bLimbs, o.limbCount);
}

inline mp_limb_t NegateLimbs(const Operands& o) {
    return mpn_neg(o.resultLimbs, o.aLimbs, o.limbCount);
}

inline mp_limb_t IncrementLimbs(const Operands& o) {
    return mpn_add_1(o.resultLimbs, o.aLimbs, o.limbCount, 1);
}

inline mp_limb_t DecrementLimbs(const Operands& o) {
    return mpn_sub_1(o.resultLimbs, o.aLimbs, o.limbCount, 1);
}

inline void MultiplyLimbs(const Operands& o) {
    mpn_mul_n(o.resultLimbs, o.aLimbs, o.bLimbs, o.limbCount);
}

inline void DivideLimbs(const Operands& o, mp_limb_t* quotient, mp_limb_t* remainder) {
    mpn_tdiv_qr(quotient, remainder, 0, o.aLimbs, o.limbCount, o.bLimbs, o.bLimbCount);
}

inline void QuotientLimbs(const Operands& o) {
    DivideLimbs(o, o.resultLimbs, o.otherResultLimbs);
}

inline void RemainderLimbs(const Operands& o) {
    DivideLimbs(o, o.otherResultLimbs, o.resultLimbs);
}

// Squares and multiplies from the exponent's top bit down; each product is cut to the limbs of the
// result.
void PowerLimbs(const Operands& o);

// For a radix that is no power of two, where the limbs are destroyed.
inline std::size_t DigitsOfCopiedLimbs(const Operands& o) {
    mpn_copyi(o.resultLimbs, o.aLimbs, o.limbCount);
    return mpn_get_str(o.resultDigits, o.radix, o.resultLimbs, o.limbCount);
}

// For a radix that is a power of two, where the limbs are only read.
inline std::size_t DigitsOfLimbs(const Operands& o) {
    return mpn_get_str(o.resultDigits, o.radix, const_cast<mp_limb_t*>(o.aLimbs), o.limbCount);
}

inline mp_size_t LimbsOfDigits(const Operands& o) {
    return mpn_set_str(o.resultLimbs, o.digits, o.digitCount, o.radix);
}

template <auto kValue>
void LimbOfValue(const Operands& o) {
    // Widths above 64 bits are not for this one: it extends no further than its limb.
    o.resultLimbs[0] = static_cast<mp_limb_t>(kValue);
}

// The digits of the mixed value, digit by digit.
std::string MixedDigits(const Operands& o);

}  // namespace tarn::bench

#endif  // TARN_BENCH_PEERS_H
