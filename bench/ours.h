// The exports as contestants call them: one function a signature.
#ifndef TARN_BENCH_OURS_H
#define TARN_BENCH_OURS_H

#include "operands.h"

namespace tarn::bench {

template <auto kExport>
void Binary(const Operands& o) {
    kExport(o.width, o.result, o.width, o.a, o.bWidth, o.b);
}

template <auto kExport>
void Power(const Operands& o) {
    kExport(o.width, o.result, o.width, o.a, kExponentWidth, &kExponent);
}

template <auto kExport>
void Unary(const Operands& o) {
    kExport(o.width, o.result, o.width, o.a);
}

template <auto kExport>
void InPlace(const Operands& o) {
    kExport(o.width, o.result);
}

template <auto kExport, auto kValue>
void OfValue(const Operands& o) {
    kExport(o.width, o.result, kValue);
}

// Equality and relation.
template <auto kExport>
int Compare(const Operands& o) {
    return kExport(o.width, o.a, o.bWidth, o.b);
}

// Reductions and other readings of one operand: a code, or a real.
template <auto kExport>
auto Read(const Operands& o) {
    return kExport(o.width, o.a);
}

// Two operands of one width.
template <auto kExport>
int CompareSameWidth(const Operands& o) {
    return kExport(o.width, o.a, o.b);
}

// The bit at which a field would start.
template <auto kExport>
int ReadBit(const Operands& o) {
    return kExport(o.width, o.a, static_cast<int>(o.fieldOffset));
}

template <auto kExport>
void Shift(const Operands& o) {
    kExport(o.width, o.result, o.width, o.a, o.amount);
}

template <auto kExport>
void ReadField(const Operands& o) {
    kExport(o.result, o.a, o.fieldOffset, o.bWidth);
}

// The same field in signed storage.
template <auto kExport>
void ReadSignedField(const Operands& o) {
    kExport(o.bWidth, o.result, o.a, o.fieldOffset, o.bWidth);
}

// The same field by its index in the vector.
template <auto kExport>
void ReadIndexedField(const Operands& o) {
    kExport(o.result, o.width, o.a, static_cast<int>(o.fieldOffset), o.bWidth);
}

// A write returns nothing or a flag.
template <auto kExport>
auto WriteField(const Operands& o) {
    return kExport(o.result, o.b, o.fieldOffset, o.bWidth);
}

template <auto kExport>
auto WriteIndexedField(const Operands& o) {
    return kExport(o.width, o.result, o.b, static_cast<int>(o.fieldOffset), o.bWidth);
}

// Two writes, each of which changes the field but for the first of all.
template <auto kExport>
int ChangeFieldTwice(const Operands& o) {
    const int first = kExport(o.result, o.a, o.fieldOffset, o.bWidth);
    return first + kExport(o.result, o.b, o.fieldOffset, o.bWidth);
}

// Two writes that change nothing but the first of all.
template <auto kExport>
int KeepFieldTwice(const Operands& o) {
    const int first = kExport(o.result, o.b, o.fieldOffset, o.bWidth);
    return first + kExport(o.result, o.b, o.fieldOffset, o.bWidth);
}

// b is concatenated into zeros.
template <auto kExport>
void PlaceField(const Operands& o) {
    kExport(static_cast<int>(o.fieldOffset) + o.bWidth, o.result, o.bWidth, o.b, o.fieldOffset);
}

// b is placed where it lies.
template <auto kExport>
void PlaceShifted(const Operands& o) {
    kExport(o.bWidth, o.result, o.b);
}

template <auto kExport>
void UnpackMemory(const Operands& o) {
    kExport(o.width, o.result, o.width, o.memory, -o.width & 31);
}

template <auto kExport>
auto PackMemory(const Operands& o) {
    return kExport(o.width, o.resultMemory, o.a);
}

template <auto kExport>
void ReadMemoryField(const Operands& o) {
    kExport(o.result, o.width, o.memory, static_cast<int>(o.fieldOffset), o.bWidth);
}

template <auto kExport>
auto WriteMemoryField(const Operands& o) {
    return kExport(o.width, o.resultMemory, o.b, static_cast<int>(o.fieldOffset), o.bWidth);
}

template <auto kExport, int kArgument = kBelowOne>
void VectorOfReal(const Operands& o) {
    kExport(o.width, o.result, o.reals[kArgument]);
}

template <auto kExport, int kArgument = kBelowOne>
void OfReal(const Operands& o) {
    kExport(o.resultReal, o.reals[kArgument]);
}

template <auto kExport, int kArgument = kBelowOne>
void OfTwoReals(const Operands& o) {
    kExport(o.resultReal, o.reals[kArgument], o.reals[kAboveOne]);
}

inline constexpr int kAllDigits = -1;

template <auto kExport>
const char* TextOfKnown(const Operands& o) {
    return kExport(o.width, o.a, kAllDigits);
}

template <auto kExport>
const char* DecimalOfKnown(const Operands& o) {
    constexpr int kFewestDigits = 0;
    constexpr int kNoZeros = 0;
    return kExport(o.width, o.a, kFewestDigits, kNoZeros);
}

template <auto kExport>
const char* TextOfMixed(const Operands& o) {
    return kExport(o.width, o.mixed, kAllDigits);
}

template <auto kExport>
bool OfText(const Operands& o) {
    return kExport(o.width, o.result, o.text);
}

}  // namespace tarn::bench

#endif  // TARN_BENCH_OURS_H
