// What text in both directions is to give, a bit or a digit at a time.
#ifndef TARN_TESTS_TEXT_MODEL_H
#define TARN_TESTS_TEXT_MODEL_H

#include <algorithm>
#include <string>

#include "support/model.h"

namespace tarn::test {

// The character of a digit's bits, least significant first, by the first rule that fits.
inline char DigitCharacter(const std::vector<Logic>& bits) {
    std::size_t value = 0, counts[4] = {};
    for (std::size_t i = 0; i < bits.size(); ++i) {
        ++counts[static_cast<std::size_t>(bits[i])];
        value |= bits[i] == Logic::k1 ? std::size_t{1} << i : 0;
    }
    const std::size_t zs = counts[2], xs = counts[3];
    if (xs > 0) return xs == bits.size() ? 'x' : 'X';
    if (zs > 0) return zs == bits.size() ? 'z' : 'Z';
    return "0123456789abcdef"[value];
}

// A top digit of fewer bits needs no widening here: the rules see the bits that it has.
template <int bitsPerDigit>
std::string DigitText(const Vec& vec, int minDigits) {
    std::string text;
    for (int first = 0; first < vec.width; first += bitsPerDigit) {
        const int last = std::min(first + bitsPerDigit, vec.width);
        text += DigitCharacter({vec.bits.begin() + first, vec.bits.begin() + last});
    }
    std::reverse(text.begin(), text.end());
    if (minDigits < 0) return text;
    const std::size_t least = std::max<std::size_t>(static_cast<std::size_t>(minDigits), 1);
    const std::size_t zeros = std::min(text.find_first_not_of('0'), text.size());
    text.erase(0, std::min(zeros, text.size() - std::min(least, text.size())));
    return text.size() < least ? text.insert(0, least - text.size(), '0') : text;
}

// The characters of the storage's bytes, as many as hold bits of the width.
inline std::string CharacterText(const Vec& vec, bool spaceForNul) {
    std::string text;
    for (std::size_t first = 0; first < static_cast<std::size_t>(vec.width); first += 8) {
        unsigned character = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            character |= (vec.bits[first + i] == Logic::k1 ? 1U : 0U) << i;
        }
        if (character == 0 && spaceForNul) character = ' ';
        if (character != 0) text.insert(text.begin(), static_cast<char>(character));
    }
    return text;
}

// The one character of a value with unknown bits: whole words count, but only bits within the width
// are known.
inline std::string UnknownText(const Vec& vec) {
    const auto has = [](auto begin, auto end, auto test) { return std::any_of(begin, end, test); };
    const auto begin = vec.bits.begin(), end = vec.bits.end();
    const bool hasX = has(begin, end, [](Logic bit) { return bit == Logic::kX; });
    const bool hasZ = has(begin, end, [](Logic bit) { return bit == Logic::kZ; });
    const bool hasKnown = has(begin, begin + vec.width,
                              [](Logic bit) { return bit == Logic::k0 || bit == Logic::k1; });
    if (hasX) return hasZ || hasKnown ? "X" : "x";
    return hasKnown ? "Z" : "z";
}

inline std::string UnsignedText(const Vec& vec) {
    return HasUnknown(vec) ? UnknownText(vec) : ToDigits(ToInteger(vec));
}

// Negative where the top bit or a bit stored above it is set; the magnitude has the width's bits.
inline std::string SignedText(const Vec& vec) {
    if (HasUnknown(vec)) return UnknownText(vec);
    const Integer value = ToInteger(vec);
    if (BitCount(value) < static_cast<std::size_t>(vec.width) || value == 0) return ToDigits(value);
    const Integer magnitude = LowBits(-value, static_cast<std::size_t>(vec.width));
    return std::string(1, '-').append(ToDigits(magnitude));  // also in front of a 0
}

// The text in its field; `most` is the width of the field that minDigits < 0 stands for.
inline std::string InField(const std::string& text, int minDigits, std::size_t most, bool zeroPad) {
    const std::size_t field = minDigits < 0 ? most : static_cast<std::size_t>(minDigits);
    if (text.size() >= field) return text;
    const std::size_t signs = zeroPad && text[0] == '-' ? 1 : 0;
    std::string padded(text, 0, signs);
    padded.append(field - text.size(), zeroPad ? '0' : ' ');
    return padded.append(text, signs);
}

inline Vec DecimalValue(int width, const std::string& text) {
    const Vec first = FromDigits(width, 4, text.substr(0, 1));
    if (HasUnknown(first)) return Clean(first);
    std::string digits = "0";
    for (const char c : text) {
        if (c != '_') digits += c >= '0' && c <= '9' ? c : '0';
    }
    return Clean(FromInteger(width, FromDecimal(digits)));
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

#endif  // TARN_TESTS_TEXT_MODEL_H
