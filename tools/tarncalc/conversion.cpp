#include "conversion.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "characters.h"

namespace tarncalc {

namespace {

constexpr std::string_view kVectorLetters = "bohxdtcs";
constexpr std::string_view kRealLetters = "efg";

// Characters of a field: a bound on storage.
constexpr int kMaxFieldWidth = 1'000'000;

// What %t pads to.
constexpr int kTimeWidth = 20;

/** The number at `position`, which is moved behind it; none where there is none or too large a
 *  one. */
std::optional<int> NumberAt(std::string_view text, std::size_t& position) {
    std::optional<int> number;
    for (; position < text.size() && IsDigit(text[position]); ++position) {
        const int next = 10 * number.value_or(0) + (text[position] - '0');
        if (next > kMaxFieldWidth) return std::nullopt;
        number = next;
    }
    return number;
}

/** The characters that a decimal number can need, one for the sign included. */
int DecimalWidth(const Type& type) {
    const int magnitudeBits = type.isSigned ? type.width - 1 : type.width;
    const int digits = static_cast<int>(magnitudeBits * std::log10(2.0)) + 1;
    return digits + (type.isSigned ? 1 : 0);
}

std::string Decimal(const Conversion& conversion, const Value& value) {
    const Type& type = value.GetType();
    const int defaultWidth = conversion.letter == 't' ? kTimeWidth : DecimalWidth(type);
    const int width = conversion.width.value_or(conversion.hasZero ? 0 : defaultWidth);
    const auto convert = type.isSigned ? tarn_SignedConvertToDec : tarn_UnsignedConvertToDec;
    return convert(type.width, value.Words(), width, conversion.hasZero ? 1 : 0);
}

std::string Digits(const Conversion& conversion, const Value& value) {
    constexpr int kAllDigits = -1;
    const int minDigits = conversion.width.value_or(conversion.hasZero ? 0 : kAllDigits);
    const auto convert = conversion.letter == 'b'   ? tarn_ConvertToBin
                         : conversion.letter == 'o' ? tarn_ConvertToOct
                                                    : tarn_ConvertToHex;
    return convert(value.Width(), value.Words(), minDigits);
}

/** Characters of code 0 are left out where a width is given, that of %0s included, and are blanks
 *  otherwise. */
std::string Characters(const Conversion& conversion, Value value) {
    value.Convert({value.Width(), false});
    std::string text;
    if (conversion.letter == 's') {
        const bool hasWidth = conversion.hasZero || conversion.width;
        text = tarn_ConvertToString(value.Width(), value.Words(), hasWidth ? 0 : 1);
    } else {
        text = tarn_ConvertToChar(value.Words(), 0);
        if (text.empty()) text.push_back('\0');
    }
    const auto width = static_cast<std::size_t>(conversion.width.value_or(0));
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

}  // namespace

std::optional<Conversion> ConversionAt(std::string_view format, std::size_t position) {
    Conversion conversion;
    std::size_t at = position + 1;
    const auto isAt = [&](char c) { return at < format.size() && format[at] == c; };
    conversion.hasZero = isAt('0');
    if (conversion.hasZero) ++at;
    conversion.width = NumberAt(format, at);
    const bool hasPoint = isAt('.');
    if (hasPoint) {
        ++at;
        conversion.precision = NumberAt(format, at);
    }
    if (at == format.size()) return std::nullopt;
    conversion.letter = ToLower(format[at]);
    conversion.spelling = format.substr(position, at + 1 - position);
    const bool isReal = kRealLetters.find(conversion.letter) != std::string_view::npos;
    const bool isVector = kVectorLetters.find(conversion.letter) != std::string_view::npos;
    if (!isReal && !isVector) return std::nullopt;
    if (hasPoint && !(isReal && conversion.precision)) return std::nullopt;
    return conversion;
}

bool CanShow(const Conversion& conversion, const Value& value) {
    return !value.IsReal() || kRealLetters.find(conversion.letter) != std::string_view::npos;
}

std::string RealText(const std::string& format, double value) {
    return tarn_ConvertToStringR(format.c_str(), std::isnan(value) ? std::fabs(value) : value);
}

std::string TextOf(const Conversion& conversion, Value value) {
    switch (conversion.letter) {
        case 'd':
        case 't':
            return Decimal(conversion, value);
        case 'c':
        case 's':
            return Characters(conversion, std::move(value));
        case 'e':
        case 'f':
        case 'g':
            return RealText(std::string(conversion.spelling), value.Real());
        default:
            return Digits(conversion, value);
    }
}

}  // namespace tarncalc
