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

template <auto kExport>
void OfField(const Operands& o) {
    kExport(o.result, o.mixed, kFieldOffset, o.width);
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
