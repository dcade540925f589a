// How the bits of a vector and the characters of its digits correspond, in both directions.
#ifndef TARN_TEXT_DIGITS_H
#define TARN_TEXT_DIGITS_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarn {

// The digits of one base: kBits bits each.
struct Binary {
    static constexpr unsigned kBits = 1;
};
struct Octal {
    static constexpr unsigned kBits = 3;
};
struct Hexadecimal {
    static constexpr unsigned kBits = 4;
};

// All bits of a digit set.
template <class Layout>
inline constexpr unsigned kDigitMask = (1U << Layout::kBits) - 1U;

// The character of a digit with value bits `aval` and control bits `bval`.
constexpr char DigitCharacter(unsigned mask, unsigned aval, unsigned bval) noexcept {
    if (bval == 0) return "0123456789abcdef"[aval];
    if (bval == mask && aval == mask) return 'x';
    if (bval == mask && aval == 0) return 'z';
    return (aval & bval) != 0 ? 'X' : 'Z';
}

// The character of every digit of a base, at index bval << kBits | aval.
template <class Layout>
inline constexpr auto kDigitCharacters = [] {
    constexpr std::size_t kCount = std::size_t{1} << Layout::kBits;
    std::array<char, kCount * kCount> table{};
    for (unsigned bval = 0; bval < kCount; ++bval) {
        for (unsigned aval = 0; aval < kCount; ++aval) {
            table[bval * kCount + aval] = DigitCharacter(kCount - 1, aval, bval);
        }
    }
    return table;
}();

// The character of each LogicCode.
inline constexpr char kLogicCodeCharacters[] = "01zxxx";

constexpr char LogicCodeCharacter(int code) noexcept {
    return code >= 0 && code <= 5 ? kLogicCodeCharacters[code] : 'x';
}

static_assert(DigitCharacter(15, 10, 0) == 'a' && DigitCharacter(7, 7, 7) == 'x');
static_assert(DigitCharacter(7, 3, 2) == 'X' && DigitCharacter(7, 1, 4) == 'Z');

// What a character of a digit string stands for.
enum class DigitKind : std::uint8_t { kKnown, kSkipped, kZ, kX };

struct Digit {
    DigitKind kind;
    std::uint8_t value;  // of a known digit, in base 16
};

// Characters that are no digit in any base count as 0.
inline constexpr auto kDigits = [] {
    std::array<Digit, 256> table{};
    for (std::uint8_t value = 0; value < 10; ++value) {
        table['0' + value].value = value;
    }
    for (std::uint8_t value = 10; value < 16; ++value) {
        table['a' + value - 10U].value = value;
        table['A' + value - 10U].value = value;
    }
    table['_'].kind = DigitKind::kSkipped;
    table['x'].kind = table['X'].kind = DigitKind::kX;
    table['z'].kind = table['Z'].kind = table['?'].kind = DigitKind::kZ;
    return table;
}();

constexpr Digit DigitOf(char character) noexcept {
    return kDigits[static_cast<unsigned char>(character)];
}

}  // namespace tarn

#endif  // TARN_TEXT_DIGITS_H
