// Digits and characters in both directions, a bit or a digit at a time.
#ifndef TARN_TESTS_PROPERTIES_TEXT_MODEL_H
#define TARN_TESTS_PROPERTIES_TEXT_MODEL_H

#include "families.h"

namespace tarn::test {

inline bool IsOneOf(std::string_view characters, char character) {
    return characters.find(character) != std::string_view::npos;
}

inline std::string WithoutUnderscores(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '_'), text.end());
    return text;
}

// What is no digit counts as 0.
inline Integer DecimalNumber(const std::string& text) {
    std::string digits = WithoutUnderscores(text);
    std::replace_if(
        digits.begin(), digits.end(), [](char c) { return !IsOneOf("0123456789", c); }, '0');
    return FromDecimal('0' + digits);
}

inline Vec DecimalValue(int width, const std::string& text) {
    if (text.empty() || !IsOneOf("xXzZ?", text[0])) {
        return Clean(FromInteger(width, DecimalNumber(text)));
    }
    return FromDigits(width, 1, text.substr(0, 1));
}

template <int bitsPerDigit>
Vec RadixValue(int width, const std::string& text) {
    return FromDigits(width, bitsPerDigit, text);
}

inline Vec PackedValue(int width, const std::string& characters) {
    Vec vec = Filled(width, Logic::k0);
    for (std::size_t bit = 0; bit < vec.bits.size() && bit / 8 < characters.size(); ++bit) {
        const auto c = static_cast<unsigned char>(characters[characters.size() - 1 - bit / 8]);
        vec.bits[bit] = (c >> bit % 8) % 2 == 1 ? Logic::k1 : Logic::k0;
    }
    return Clean(vec);
}

}  // namespace tarn::test

#endif  // TARN_TESTS_PROPERTIES_TEXT_MODEL_H
