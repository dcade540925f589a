// Integers of any size for the reference model: those of GMP, or of Boost for Windows, where Debian
// has no GMP. Both have the operators of int, on two's complement without end.
#ifndef TARN_TESTS_SUPPORT_INTEGER_H
#define TARN_TESTS_SUPPORT_INTEGER_H

#include <concepts>
#include <cstddef>
#include <string>

#if !defined(_WIN32)
#include <gmpxx.h>
#else
#include <boost/multiprecision/cpp_int.hpp>
#endif

namespace tarn::test {

#if !defined(_WIN32)

using Integer = mpz_class;

inline void SetBit(Integer& value, std::size_t index) {
    mpz_setbit(value.get_mpz_t(), index);
}
// Of a number that is not negative, as in BitCount.
inline bool HasBit(const Integer& value, std::size_t index) {
    return mpz_tstbit(value.get_mpz_t(), index) != 0;
}
// Modulo 2^count, never negative.
inline Integer LowBits(const Integer& value, std::size_t count) {
    Integer low;
    mpz_fdiv_r_2exp(low.get_mpz_t(), value.get_mpz_t(), count);
    return low;
}
// 1 for 0.
inline std::size_t BitCount(const Integer& value) {
    return mpz_sizeinbase(value.get_mpz_t(), 2);
}
// A power modulo 2^bits.
inline Integer LowPower(const Integer& base, const Integer& exponent, std::size_t bits) {
    Integer power, modulus;
    SetBit(modulus, bits);
    mpz_powm(power.get_mpz_t(), base.get_mpz_t(), exponent.get_mpz_t(), modulus.get_mpz_t());
    return power;
}
// Exact for up to 53 bits.
inline double ToDouble(const Integer& value) {
    return value.get_d();
}
inline std::string ToDigits(const Integer& value) {
    return value.get_str();
}
inline Integer FromDecimal(const std::string& digits) {
    return Integer(digits, 10);
}

#else

using Integer = boost::multiprecision::number<boost::multiprecision::cpp_int_backend<>,
                                              boost::multiprecision::et_off>;

inline void SetBit(Integer& value, std::size_t index) {
    bit_set(value, static_cast<unsigned>(index));
}
inline bool HasBit(const Integer& value, std::size_t index) {
    return bit_test(value, static_cast<unsigned>(index));
}
inline Integer LowBits(const Integer& value, std::size_t count) {
    return value & ((Integer(1) << count) - 1);
}
inline std::size_t BitCount(const Integer& value) {
    return value == 0 ? 1 : msb(value) + 1;
}
inline Integer LowPower(const Integer& base, const Integer& exponent, std::size_t bits) {
    Integer power = LowBits(1, bits);
    for (std::size_t i = BitCount(exponent); i-- > 0;) {
        power = LowBits(power * power, bits);
        if (HasBit(exponent, i)) power = LowBits(power * base, bits);
    }
    return power;
}
inline double ToDouble(const Integer& value) {
    return static_cast<double>(value);
}
inline std::string ToDigits(const Integer& value) {
    return value.str();
}
inline Integer FromDecimal(const std::string& digits) {
    // A first digit 0 would make them octal.
    const std::size_t first = digits.find_first_not_of('0');
    return first == std::string::npos ? Integer(0) : Integer(digits.substr(first));
}

#endif

inline Integer PowerOfTwo(std::integral auto exponent) {
    Integer power;
    SetBit(power, static_cast<std::size_t>(exponent));
    return power;
}

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_INTEGER_H
