#include "text/literal.h"

#include <algorithm>
#include <optional>

#include <tarnlib/text.h>

#include "text/parse.h"
#include "text/working_area.h"

namespace tarn {
namespace {

enum class Base { kBinary, kOctal, kDecimal, kHexadecimal };

// What stands in front of the digits of a number.
struct Prefix {
    Base base = Base::kDecimal;
    bool isSigned = true;  // plain decimal digits are a signed number
    bool isFill = false;   // a lone quote and one digit
    std::string_view digits;
};

constexpr int kUnsizedWidth = 32;

// The size in bits, at most the limit; 0 where there is none. Reading stops at the first character
// that is neither a digit nor an underscore.
int ParseSizeText(const char* text) noexcept {
    int size = 0;
    for (; text != nullptr && ((*text >= '0' && *text <= '9') || *text == '_'); ++text) {
        if (*text == '_') continue;
        size = 10 * size + (*text - '0');
        if (size > TARN_MAX_LITERAL_WIDTH) return TARN_MAX_LITERAL_WIDTH;
    }
    return size;
}

// The character that a text begins with, NUL for none.
char FirstOf(std::string_view text) noexcept {
    return text.empty() ? '\0' : text.front();
}

constexpr bool IsFillDigit(char character) noexcept {
    switch (character) {
        case '0':
        case '1':
        case 'x':
        case 'X':
        case 'z':
        case 'Z':
            return true;
        default:
            return false;
    }
}

// The base of a letter behind the quote; nothing for any other character.
constexpr std::optional<Base> BaseOf(char letter) noexcept {
    switch (letter) {
        case 'b':
        case 'B':
            return Base::kBinary;
        case 'o':
        case 'O':
            return Base::kOctal;
        case 'd':
        case 'D':
            return Base::kDecimal;
        case 'h':
        case 'H':
            return Base::kHexadecimal;
        default:
            return std::nullopt;
    }
}

// The bits of a digit of a base that has them; 0 for decimal.
int BitsPerDigit(Base base) noexcept {
    switch (base) {
        case Base::kBinary:
            return Binary::kBits;
        case Base::kOctal:
            return Octal::kBits;
        case Base::kHexadecimal:
            return Hexadecimal::kBits;
        default:
            return 0;
    }
}

Prefix ParsePrefix(std::string_view text) noexcept {
    Prefix prefix;
    prefix.digits = text;
    if (FirstOf(text) != '\'') return prefix;
    text.remove_prefix(1);
    prefix.isSigned = false;
    if (IsFillDigit(FirstOf(text))) {
        prefix.isFill = true;
        prefix.base = Base::kBinary;
        prefix.digits = text;
        return prefix;
    }
    if (FirstOf(text) == 's' || FirstOf(text) == 'S') {
        prefix.isSigned = true;
        text.remove_prefix(1);
    }
    if (const std::optional<Base> base = BaseOf(FirstOf(text))) {
        prefix.base = *base;
        do {
            text.remove_prefix(1);
        } while (FirstOf(text) == ' ' || FirstOf(text) == '\t');
    }
    prefix.digits = text;
    return prefix;
}

// The width of a number whose size is not written: what its digits take up, but at least 32 bits.
std::size_t UnsizedWidth(const Prefix& prefix) noexcept {
    const auto bits = static_cast<std::size_t>(BitsPerDigit(prefix.base));
    const auto digitCount =
        prefix.digits.size() -
        static_cast<std::size_t>(std::count(prefix.digits.begin(), prefix.digits.end(), '_'));
    return std::max<std::size_t>(bits * digitCount, kUnsizedWidth);
}

Fit ParseDigits(Base base, Result result, std::string_view digits) {
    switch (base) {
        case Base::kBinary:
            return ParseRadixDigits<Binary>(result, digits);
        case Base::kOctal:
            return ParseRadixDigits<Octal>(result, digits);
        case Base::kHexadecimal:
            return ParseRadixDigits<Hexadecimal>(result, digits);
        default:
            return ParseDecimalDigits(result, digits);
    }
}

constexpr bool IsOctalDigit(char character) noexcept {
    return character >= '0' && character <= '7';
}

// Replaces the escapes of a string's contents; returns the count of characters.
std::size_t DecodeEscapes(char* decoded, std::string_view text) noexcept {
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // A backslash just before the closing quote stands for itself.
        if (text[i] != '\\' || i + 1 == text.size()) {
            decoded[count++] = text[i];
            continue;
        }
        const char escaped = text[++i];
        if (!IsOctalDigit(escaped)) {
            decoded[count++] = escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
            continue;
        }
        unsigned code = 0;
        const std::size_t behind = std::min(i + 3, text.size());
        for (; i < behind && IsOctalDigit(text[i]); ++i) {
            code = 8 * code + static_cast<unsigned>(text[i] - '0');
        }
        --i;
        decoded[count++] = static_cast<char>(code & 0xFF);
    }
    return count;
}

}  // namespace

bool ParseNumberLiteral(const char* sizeText, std::string_view text, const LiteralOutput& output) {
    const Prefix prefix = ParsePrefix(text);
    const int size = ParseSizeText(sizeText);
    bool truncated = false;
    int width = size > 0 ? size : kUnsizedWidth;
    if (prefix.isFill) {
        width = 1;
    } else if (size == 0 && prefix.base != Base::kDecimal) {
        const std::size_t needed = UnsizedWidth(prefix);
        truncated = needed > TARN_MAX_LITERAL_WIDTH;
        width = truncated ? TARN_MAX_LITERAL_WIDTH : static_cast<int>(needed);
    }
    // The limit's verdict stands where the digits give none.
    output.StoreTruncated(truncated);
    const Fit fit = ParseDigits(prefix.base, output.Allocate(width), prefix.digits);
    if (fit != Fit::kUnsettled) {
        output.StoreTruncated(fit == Fit::kTruncated);
    }
    return prefix.isSigned;
}

void ParseStringLiteral(std::string_view text, const LiteralOutput& output) {
    std::string_view contents = text.substr(1);
    contents.remove_suffix(contents.empty() ? 0 : 1);
    constexpr std::size_t kShortText = 512;
    WorkingArea<char, kShortText> area(contents.size() + 1);
    std::size_t count = DecodeEscapes(area.Items(), contents);
    if (count == 0) {
        area.Items()[count++] = '\0';
    }
    std::string_view characters(area.Items(), count);
    const bool truncated = count > TARN_MAX_LITERAL_CHARACTERS;
    if (truncated) {
        characters.remove_prefix(count - TARN_MAX_LITERAL_CHARACTERS);
    }
    output.StoreTruncated(truncated);
    PackCharacters(output.Allocate(static_cast<int>(8 * characters.size())), characters);
}

}  // namespace tarn
