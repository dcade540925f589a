#include "literal.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <string>

#include <tarnlib.h>

#include "characters.h"
#include "diagnostic.h"

namespace tarncalc {

namespace {

// What DigitValue gives for x, z and ?, and for a character that is a digit in no base.
constexpr int kUnknownDigit = -1;
constexpr int kNoDigit = 99;

constexpr int DigitValue(char c) {
    const char lower = ToLower(c);
    if (IsDigit(c)) return c - '0';
    if (lower >= 'a' && lower <= 'f') return lower - 'a' + 10;
    return lower == 'x' || lower == 'z' || c == '?' ? kUnknownDigit : kNoDigit;
}

template <typename Predicate>
std::size_t SkipWhile(std::string_view text, std::size_t position, Predicate predicate) {
    while (position < text.size() && predicate(text[position])) {
        ++position;
    }
    return position;
}

constexpr bool IsNumberCharacter(char c) {
    return IsWord(c) || c == '?';
}

const Radix* RadixOfLetter(char letter) {
    const auto* const found =
        std::find_if(std::begin(kRadices), std::end(kRadices),
                     [letter](const Radix* radix) { return radix->letter == ToLower(letter); });
    return found == std::end(kRadices) ? nullptr : *found;
}

/** Checks the digits in [begin, end) and returns the literal's significantBits. */
std::uint64_t CheckDigits(std::string_view text, std::size_t begin, std::size_t end,
                          const Radix& radix) {
    std::uint64_t significantBits = 0;
    bool hasDigit = false;
    bool hasUnknown = false;
    for (std::size_t at = begin; at < end; ++at) {
        if (text[at] == '_') continue;
        const int value = DigitValue(text[at]);
        if (value >= radix.base) {
            throw InputError(text.data() + at, CharacterName(text, at) + " is no " +
                                                   std::string(radix.name) + " digit");
        }
        const bool isUnknown = value == kUnknownDigit;
        if (&radix == &kDecimal && hasDigit && (isUnknown || hasUnknown)) {
            throw InputError(text.data() + at, "a decimal x, z or ? must be the only digit");
        }
        hasDigit = true;
        hasUnknown = isUnknown;
        if (significantBits > 0) {
            significantBits += radix.bitsPerDigit;
        } else if (value != 0) {
            significantBits =
                isUnknown ? 1 : static_cast<std::uint64_t>(std::bit_width(unsigned(value)));
        }
    }
    if (!hasDigit)
        throw InputError(text.data() + begin, "expected " + std::string(radix.name) + " digits");
    return significantBits;
}

/** The library reads a size of zeros as none and cuts one that is too large. */
void CheckSize(const Literal& literal) {
    std::uint64_t size = 0;
    for (const char c : literal.sizeText) {
        if (c == '_') continue;
        size = 10 * size + static_cast<std::uint64_t>(c - '0');
        if (size > TARN_MAX_LITERAL_WIDTH) {
            throw InputError(literal.GetPlace(), "a literal can't be wider than " +
                                                     std::to_string(TARN_MAX_LITERAL_WIDTH) +
                                                     " bits");
        }
    }
    if (size == 0) throw InputError(literal.GetPlace(), "the size of a literal can't be 0");
}

void SetSpelling(Literal& literal, std::string_view text, std::size_t end) {
    const auto begin = static_cast<std::size_t>(literal.GetPlace() - text.data());
    literal.spelling = text.substr(begin, end - begin);
}

/** The one digit of '0 '1 'x 'z, at `position`. */
Literal ScanFillDigit(std::string_view text, std::size_t position, Literal literal) {
    const std::size_t end = position + 1;
    if (end < text.size() && IsNumberCharacter(text[end])) {
        throw InputError(text.data() + end, "a fill digit stands alone");
    }
    literal.prefix = text.substr(position - 1, 1);
    literal.digits = text.substr(position, 1);
    literal.radix = &kBinary;
    literal.significantBits = 1;
    SetSpelling(literal, text, end);
    return literal;
}

/** A literal whose position and size are known, from its quote on. */
Literal ScanBased(std::string_view text, std::size_t quote, Literal literal) {
    std::size_t at = quote + 1;
    const char first = at < text.size() ? ToLower(text[at]) : '\0';
    const bool isFill = first == '0' || first == '1' || first == 'x' || first == 'z';
    if (isFill && literal.sizeText.empty()) return ScanFillDigit(text, at, literal);
    if (first == 's') ++at;
    literal.radix = at < text.size() ? RadixOfLetter(text[at]) : nullptr;
    if (literal.radix == nullptr) {
        throw InputError(text.data() + at, "expected a base letter: b, o, d or h");
    }
    ++at;
    literal.prefix = text.substr(quote, at - quote);
    // The library looks for x and z at the very front of decimal digits, so no underscore may
    // stand there.
    const std::size_t begin = SkipWhile(text, at, IsSpace);
    const std::size_t end = SkipWhile(text, begin, IsNumberCharacter);
    literal.significantBits = CheckDigits(text, begin, end, *literal.radix);
    const std::size_t firstDigit = SkipWhile(text, begin, [](char c) { return c == '_'; });
    literal.digits = text.substr(firstDigit, end - firstDigit);
    SetSpelling(literal, text, end);
    return literal;
}

/** The place behind the fraction and the exponent that follow a number, or `position` where neither
 *  does. */
std::size_t SkipFraction(std::string_view text, std::size_t position) {
    const auto isDigitAt = [text](std::size_t at) { return at < text.size() && IsDigit(text[at]); };
    const auto isDigit = [](char c) { return IsDigit(c) || c == '_'; };
    std::size_t end = position;
    if (end < text.size() && text[end] == '.') {
        if (!isDigitAt(end + 1))
            throw InputError(text.data() + end, "expected digits behind the point");
        end = SkipWhile(text, end + 1, isDigit);
    }
    if (end < text.size() && ToLower(text[end]) == 'e') {
        const bool hasSign =
            end + 1 < text.size() && (text[end + 1] == '+' || text[end + 1] == '-');
        const std::size_t digits = end + (hasSign ? 2 : 1);
        if (!isDigitAt(digits))
            throw InputError(text.data() + end, "expected digits in the exponent");
        end = SkipWhile(text, digits, isDigit);
    }
    if (end != position && end < text.size() && IsNumberCharacter(text[end])) {
        throw InputError(text.data() + end, CharacterName(text, end) + " is no decimal digit");
    }
    return end;
}

Literal ScanNumber(std::string_view text, std::size_t position) {
    Literal literal;
    literal.spelling = text.substr(position);
    const auto isSizeCharacter = [](char c) { return IsDigit(c) || c == '_'; };
    const std::size_t end = SkipWhile(text, position, isSizeCharacter);
    const std::size_t next = SkipWhile(text, end, IsSpace);
    literal.digits = text.substr(position, end - position);
    if (next < text.size() && text[next] == '\'') {
        literal.sizeText = literal.digits;
        if (!literal.sizeText.empty()) CheckSize(literal);
        return ScanBased(text, next, literal);
    }
    const std::size_t realEnd = SkipFraction(text, end);
    if (realEnd != end) {
        literal.kind = Literal::Kind::kReal;
        SetSpelling(literal, text, realEnd);
        literal.digits = literal.spelling;
        return literal;
    }
    literal.radix = &kDecimal;
    if (end < text.size() && IsNumberCharacter(text[end])) {
        throw InputError(text.data() + end, CharacterName(text, end) + " is no decimal digit");
    }
    SetSpelling(literal, text, end);
    return literal;
}

/** The place behind the escape sequence whose backslash is at `position`. */
std::size_t SkipEscape(std::string_view text, std::size_t position) {
    const auto isOctal = [](char c) { return c >= '0' && c <= '7'; };
    const std::size_t first = position + 1;
    const std::size_t last =
        SkipWhile(text.substr(0, std::min(first + 3, text.size())), first, isOctal);
    if (last - first == 3 && text[first] > '3') {
        throw InputError(text.data() + position, "an octal escape can't be above \\377");
    }
    return std::max(last, std::min(first + 1, text.size()));
}

/** Bytes outside ASCII are allowed between the double quotes: each is a character of 8 bits. */
Literal ScanString(std::string_view text, std::size_t position) {
    std::size_t at = position + 1;
    while (at < text.size() && text[at] != '"') {
        const std::size_t shown = text[at] == '\\' && at + 1 < text.size() ? at + 1 : at;
        if (IsControl(text[shown]) && text[shown] != '\t') {
            throw InputError(text.data() + shown,
                             CharacterName(text, shown) + " in a string: write it as an escape");
        }
        at = text[at] == '\\' ? SkipEscape(text, at) : at + 1;
    }
    if (at == text.size()) throw InputError(text.data() + position, "missing closing double quote");
    Literal literal;
    literal.kind = Literal::Kind::kString;
    literal.spelling = text.substr(position);
    SetSpelling(literal, text, at + 1);
    literal.digits = literal.spelling;
    return literal;
}

}  // namespace

Literal ScanLiteral(std::string_view text, std::size_t position) {
    return text[position] == '"' ? ScanString(text, position) : ScanNumber(text, position);
}

}  // namespace tarncalc
