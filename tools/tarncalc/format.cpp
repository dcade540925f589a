#include "format.h"

#include <string_view>

#include "conversion.h"

namespace tarncalc {

namespace {

/** The digits of the value: all of them, but in decimal as few as it needs, with a minus in front
 *  of one below zero. 'X' and 'Z' stand for a digit (in decimal: a value) only some of whose bits
 *  are unknown. */
std::string DigitsOf(const Value& value, const Radix& radix) {
    const int width = value.Width();
    const VectorWord* const words = value.Words();
    constexpr int kAllDigits = -1;
    constexpr int kNeededDigits = 0;
    switch (radix.letter) {
        case kBinary.letter:
            return tarn_ConvertToBin(width, words, kAllDigits);
        case kOctal.letter:
            return tarn_ConvertToOct(width, words, kAllDigits);
        case kHexadecimal.letter:
            return tarn_ConvertToHex(width, words, kAllDigits);
        default:
            return value.GetType().isSigned
                       ? tarn_SignedConvertToDec(width, words, kNeededDigits, 0)
                       : tarn_UnsignedConvertToDec(width, words, kNeededDigits, 0);
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

/** The shortest decimal form that reads back as the same real, with a point or an exponent. */
std::string FormatReal(double value) {
    std::string text;
    for (const char* const format : {"%.15g", "%.16g", "%.17g"}) {
        text = RealText(format, value);
        double back = 0;
        tarn_CreateReal(text.c_str(), &back);
        if (back == value) break;
    }
    const bool isInteger = text.find_first_not_of("-0123456789") == std::string::npos;
    return isInteger ? text + ".0" : text;
}

}  // namespace

std::string FormatValue(const Value& value, const Radix& radix) {
    if (value.IsReal()) return FormatReal(value.Real());
    const std::string digits = DigitsOf(value, radix);
    const bool isExact = digits.find_first_of("XZ") == std::string::npos;
    if (isExact) return Assemble(value, radix, digits);
    return Assemble(value, kBinary, DigitsOf(value, kBinary));
}

}  // namespace tarncalc
