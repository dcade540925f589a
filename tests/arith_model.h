// What the operators of arithmetic are to give, on integers of any width.
#ifndef TARN_TESTS_ARITH_MODEL_H
#define TARN_TESTS_ARITH_MODEL_H

#include <algorithm>

#include "support/model.h"

namespace tarn::test {

inline constexpr Extension kSign = Extension::kSign;
inline constexpr Extension kZero = Extension::kZero;

template <Extension extension, int bSign>
Vec Sum(int width, const Vec& a, const Vec& b) {
    if (HasUnknown(a) || HasUnknown(b)) return AllX(width);
    return FromInteger(width, ToInteger(Extended(a, width, extension)) +
                                  bSign * ToInteger(Extended(b, width, extension)));
}

template <Extension extension, int aSign>
Vec Signed(int width, const Vec& a) {
    return Sum<extension, aSign>(width, Vec{}, a);
}

template <int delta>
Vec Stepped(const Vec& v) {
    return HasUnknown(v) ? AllX(v.width) : FromInteger(v.width, ToInteger(v) + delta);
}

// A known vector's own value: with kSign its last storage bit is the sign.
inline Integer Value(const Vec& vec, Extension extension) {
    const bool isNegative = extension == kSign && !vec.bits.empty() && vec.bits.back() == Logic::k1;
    return isNegative ? Integer(ToInteger(vec) - PowerOfTwo(vec.bits.size())) : ToInteger(vec);
}

template <Extension extension>
Vec Product(int width, const Vec& a, const Vec& b) {
    if (HasUnknown(a) || HasUnknown(b)) return AllX(width);
    return FromInteger(width, Value(a, extension) * Value(b, extension));
}

// Integer's operators truncate toward zero and give the remainder the dividend's sign, as Verilog
// does.
template <Extension extension>
Vec Quotient(int width, const Vec& a, const Vec& b) {
    if (HasUnknown(a) || HasUnknown(b) || ToInteger(b) == 0) return AllX(width);
    return FromInteger(width, Value(a, extension) / Value(b, extension));
}

template <Extension extension>
Vec Remainder(int width, const Vec& a, const Vec& b) {
    if (HasUnknown(a) || HasUnknown(b) || ToInteger(b) == 0) return AllX(width);
    return FromInteger(width, Value(a, extension) % Value(b, extension));
}

template <Extension baseExtension>
Vec UPower(int width, const Vec& base, const Vec& exponent) {
    if (HasUnknown(base) || HasUnknown(exponent)) return AllX(width);
    if (width < 1) return Vec{width, {}};
    const auto bits = static_cast<std::size_t>(std::max(exponent.width, 0));
    const Integer count = ToInteger(exponent) % PowerOfTwo(bits);
    const Integer value = Value(base, baseExtension);
    return FromInteger(width, LowPower(value, count, 32 * WordCount(width)));
}

template <Extension baseExtension>
Vec SPower(int width, const Vec& base, const Vec& exponent) {
    if (HasUnknown(base) || HasUnknown(exponent)) return AllX(width);
    const Integer shifted =
        ToInteger(exponent) >> static_cast<unsigned>(std::max(exponent.width, 1) - 1);
    if (exponent.width < 1 || shifted == 0) return UPower<baseExtension>(width, base, exponent);
    const Integer value = Value(base, baseExtension);
    if (value == 0) return AllX(width);
    const bool isOdd = exponent.bits[0] == Logic::k1;
    if (value == 1 || value == -1) return FromInteger(width, isOdd ? value : Integer(1));
    return FromInteger(width, 0);
}

}  // namespace tarn::test

#endif  // TARN_TESTS_ARITH_MODEL_H
