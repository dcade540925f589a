#include "format.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tarncalc {

namespace {

/** Divides a number of 32-bit words, least significant first, in place; returns the remainder. */
std::uint32_t DivideInPlace(std::vector<std::uint32_t>& number, std::uint32_t divisor) {
    std::uint64_t remainder = 0;
    for (auto word = number.rbegin(); word != number.rend(); ++word) {
        const std::uint64_t dividend = remainder << 32U | *word;
        *word = static_cast<std::uint32_t>(dividend / divisor);
        remainder = dividend % divisor;
    }
    while (!number.empty() && number.back() == 0) {
        number.pop_back();
    }
    return static_cast<std::uint32_t>(remainder);
}

/** The decimal digits of a known value, with a minus in front of one below zero; of another one a
 *  single x, z, X or Z. */
std::string DecimalDigits(const Value& value) {
    const auto [width, isSigned] = value.GetType();
    const std::string bits = tarn_ConvertToBin(width, value.Words(), -1);
    if (bits.find('x') != std::string::npos) {
        return bits.find_first_not_of('x') == std::string::npos ? "x" : "X";
    }
    if (bits.find('z') != std::string::npos) {
        return bits.find_first_not_of('z') == std::string::npos ? "z" : "Z";
    }
    std::vector<std::uint32_t> number((bits.size() + 31) / 32);
    const bool isNegative = isSigned && bits.front() == '1';
    std::uint64_t carry = 1;
    for (std::size_t index = 0; index < number.size(); ++index) {
        const std::uint32_t word = value.Words()[index].aval;
        carry += ~word;
        number[index] = isNegative ? static_cast<std::uint32_t>(carry) : word;
        carry >>= 32U;
    }
    constexpr std::uint32_t kChunk = 1'000'000'000;
    std::string reversed;
    do {
        std::uint32_t chunk = DivideInPlace(number, kChunk);
        for (int digit = 0; digit < 9; ++digit, chunk /= 10) {
            reversed += static_cast<char>('0' + chunk % 10);
        }
    } while (!number.empty());
    reversed.erase(std::max<std::size_t>(reversed.find_last_not_of('0') + 1, 1));
    if (isNegative) reversed += '-';
    return {reversed.rbegin(), reversed.rend()};
}

/** All digits of the value, after the display rules: 'X' and 'Z' for a digit (in decimal: a value)
 *  only some of whose bits are unknown. */
std::string DigitsOf(const Value& value, const Radix& radix) {
    const int width = value.GetType().width;
    constexpr int kAllDigits = -1;
    switch (radix.letter) {
        case kBinary.letter:
            return tarn_ConvertToBin(width, value.Words(), kAllDigits);
        case kOctal.letter:
            return tarn_ConvertToOct(width, value.Words(), kAllDigits);
        case kHexadecimal.letter:
            return tarn_ConvertToHex(width, value.Words(), kAllDigits);
        default:
            return DecimalDigits(value);
    }
}

std::string Assemble(const Value& value, const Radix& radix, std::string_view digits) {
    const Type& type = value.GetType();
    const bool isNegative = digits.front() == '-';
    std::string text(isNegative ? "-" : "");
    text += std::to_string(type.width);
    text += type.isSigned ? "'s" : "'";
    text += radix.letter;
    text += digits.substr(isNegative ? 1 : 0);
    return text;
}

}  // namespace

std::string FormatValue(const Value& value, const Radix& radix) {
    const std::string digits = DigitsOf(value, radix);
    const bool isExact = digits.find_first_of("XZ") == std::string::npos;
    if (isExact) return Assemble(value, radix, digits);
    return Assemble(value, kBinary, DigitsOf(value, kBinary));
}

}  // namespace tarncalc
