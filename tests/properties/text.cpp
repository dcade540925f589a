// Text of vectors, codes and reals; vectors as machine integers; copies to the text buffer.
#include <climits>
#include <cstdio>

#include <tarnlib/text.h>

#include "text_model.h"

namespace tarn::test {
namespace {

/*------------------------------------------------------------------------------------------------
 * Models
 *----------------------------------------------------------------------------------------------*/

// The character of a digit's bits, least significant first, by the first rule that fits.
char DigitCharacter(const std::vector<Logic>& bits) {
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
    if (minDigits < 0 || text.empty()) return text;
    const std::size_t least = std::max<std::size_t>(static_cast<std::size_t>(minDigits), 1);
    const std::size_t zeros = std::min(text.find_first_not_of('0'), text.size());
    text.erase(0, std::min(zeros, text.size() - std::min(least, text.size())));
    return text.size() < least ? text.insert(0, least - text.size(), '0') : text;
}

// The one character of a value with unknown bits: whole words count, but only bits within the width
// are known.
std::string UnknownText(const Vec& vec) {
    const auto has = [](auto begin, auto end, auto test) { return std::any_of(begin, end, test); };
    const auto begin = vec.bits.begin(), end = vec.bits.end();
    const bool hasX = has(begin, end, [](Logic bit) { return bit == Logic::kX; });
    const bool hasZ = has(begin, end, [](Logic bit) { return bit == Logic::kZ; });
    const bool hasKnown = has(begin, begin + vec.width, [](Logic bit) { return bit < Logic::kZ; });
    if (hasX) return hasZ || hasKnown ? "X" : "x";
    return hasKnown ? "Z" : "z";
}

// Signed, negative where the top bit or a bit stored above it is set; the magnitude has the width's
// bits, and the sign stands also in front of a 0.
template <Extension extension>
std::string DecimalText(const Vec& vec, int minDigits, int zeroPad) {
    if (vec.width < 1) return "";
    const auto width = static_cast<std::size_t>(vec.width);
    const Integer value = ToInteger(vec);
    const bool isNegative = extension == kSign && value != 0 && BitCount(value) >= width;
    const std::string sign = isNegative && !HasUnknown(vec) ? "-" : "";
    const std::string digits = HasUnknown(vec) ? UnknownText(vec)
                               : isNegative    ? ToDigits(LowBits(-value, width))
                                               : ToDigits(value);
    // The largest number of the width has as many digits as the width can need.
    const std::size_t most = ToDigits(PowerOfTwo(width) - 1).size() + (extension == kSign ? 1 : 0);
    const std::size_t field = minDigits < 0 ? most : static_cast<std::size_t>(minDigits);
    const std::size_t length = sign.size() + digits.size();
    const std::string padding(std::max(field, length) - length, zeroPad != 0 ? '0' : ' ');
    return zeroPad != 0 ? sign + padding + digits : padding + sign + digits;
}

// The characters of the storage's bytes, as many as hold bits of the width.
std::string CharacterText(const Vec& vec, int spaceForNul) {
    std::string text;
    for (std::size_t first = 0; first < std::size_t(std::max(vec.width, 0)); first += 8) {
        unsigned character = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            character |= (vec.bits[first + i] == Logic::k1 ? 1U : 0U) << i;
        }
        if (character == 0 && spaceForNul != 0) character = ' ';
        if (character != 0) text.insert(text.begin(), static_cast<char>(character));
    }
    return text;
}

std::string CodeDigit(int code) {
    return code >= 0 && code <= 2 ? std::string(1, "01z"[code]) : "x";
}
std::string SignedCodeDigit(int code) {
    return code == 1 ? "-1" : CodeDigit(code);
}
std::string CodeCharacter(int code, int spaceForNul) {
    return code == 1 ? "\1" : spaceForNul != 0 ? " " : "";
}

// X and Z bits are 0; signed, the low word's bits above the width copy its top bit.
template <Extension extension>
std::int64_t MachineInteger(const Vec& value) {
    if (value.width < 1) return 0;
    const auto low = static_cast<std::uint32_t>(ToDouble(LowBits(ToInteger(value), 32)));
    if (extension == kZero) return low;
    const int above = std::max(32 - value.width, 0);
    return static_cast<std::int32_t>(low << above) >> above;
}

/*------------------------------------------------------------------------------------------------
 * Calls
 *----------------------------------------------------------------------------------------------*/

using Digits = std::tuple<Vec, int>;
using Decimal = std::tuple<Vec, int, int>;
using Character = std::tuple<Bare, int>;
using Code = std::tuple<int>;

/*------------------------------------------------------------------------------------------------
 * Draws
 *----------------------------------------------------------------------------------------------*/

// Half of them with leading zeros, up to a digit of any kind.
Vec DrawValue(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    Vec value = gen.OneIn(2) ? gen.FourState(width) : gen.Vector(width);
    if (gen.OneIn(2) && width > 0) {
        std::fill(value.bits.begin() + gen.Below(width), value.bits.begin() + width, Logic::k0);
    }
    return value;
}

int DrawMinDigits(Gen& gen, int width) {
    const int most = std::max(width, 1);
    switch (gen.Below(8)) {
        case 0:
            return INT_MIN;
        case 1:
            return 1;
        case 2:
            return gen.Below(most + 50);
        case 3:
            return gen.Below(most / 3 + 3);
        case 4:
        case 5:
            return 0;
        default:
            return -1;
    }
}

Digits DrawDigits(Gen& gen) {
    Vec value = DrawValue(gen);
    const int minDigits = DrawMinDigits(gen, value.width);
    return {std::move(value), minDigits};
}
Decimal DrawDecimal(Gen& gen) {
    auto [value, minDigits] = DrawDigits(gen);
    if (gen.OneIn(2)) value = gen.Vector(value.width);
    return {std::move(value), minDigits, gen.OneIn(2) ? gen.Between(-1, 1) : 0};
}
Digits DrawCharacters(Gen& gen) {
    return {gen.FourState(DrawDefinedWidth(gen)), gen.OneIn(2) ? gen.Between(-1, 1) : 0};
}
Character DrawCharacter(Gen& gen) {
    return {Bare{gen.FourState(8)}, gen.OneIn(2) ? gen.Between(-1, 1) : 0};
}
Code DrawCode(Gen& gen) {
    if (kIsChecked) return {gen.Between(0, 5)};
    return {gen.OneIn(4) ? static_cast<int>(gen.Bits()) : gen.Between(-1, 6)};
}
std::tuple<int, int> DrawCodeWithSpace(Gen& gen) {
    return {std::get<0>(DrawCode(gen)), gen.Between(-1, 1)};
}

// One conversion for a double, with text around it that holds no other.
std::tuple<std::string, double> DrawReal(Gen& gen) {
    constexpr std::string_view kPlain[] = {"", "a ", "%%", "100%% d", "%%-5d ["};
    std::string format(gen.Pick(kPlain));
    format += '%';
    for (int flags = gen.Below(32), i = 0; i < 5; ++i) {
        if ((flags >> i & 1) != 0) format += "-+ #0"[i];
    }
    if (gen.OneIn(2)) format += std::to_string(gen.Between(1, gen.OneIn(64) ? 5000 : 50));
    if (gen.OneIn(2)) format += '.' + std::to_string(gen.Below(gen.OneIn(64) ? 5000 : 50));
    format += "aefgAEFG"[gen.Below(8)];
    format += gen.Pick(kPlain);
    double value = 0;
    const std::uint64_t bits = gen.Bits();
    std::memcpy(&value, &bits, sizeof value);
    return {std::move(format), gen.OneIn(2) ? value : gen.Between(-2000, 2000) / 8.0};
}

std::string Printed(const std::string& format, double value) {
    std::string text(20'000, '\0');
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"  // it was drawn
    const int count = std::snprintf(text.data(), text.size(), format.c_str(), value);
#pragma GCC diagnostic pop
    return text.substr(0, static_cast<std::size_t>(std::max(count, 0)));
}

std::tuple<std::string> DrawCopy(Gen& gen) {
    const std::string text = gen.Text(
        [&] { return std::string(std::size_t(gen.Below(gen.OneIn(8) ? 5000 : 40)), 'a'); });
    return {text.c_str()};
}
std::string Same(const std::string& text) {
    return text;
}

// The value of a vector, and whether it has a bit that no size has.
template <Extension extension>
Property Size(const char* name, auto* function) {
    return {name, [=](Gen& gen) {
                const Vec value = DrawValue(gen);
                const auto begin = value.bits.begin() + std::min(std::max(value.width, 0), 64);
                const auto end = value.bits.begin() + std::max(value.width, 0);
                const int isHigh = std::find(begin, end, Logic::k1) == end ? 0 : 1;
                return Case(function, Operand(value), value.width, Apart(NumberResult(isHigh)))
                    .Returns(MachineInteger<extension>(value));
            }};
}

// A text that is as long as the count needs no NUL.
Case CopyCounted(Gen& gen) {
    const std::string text = std::get<0>(DrawCopy(gen));
    const auto count = static_cast<unsigned>(gen.Below(gen.OneIn(8) ? 5000 : 40));
    return Case(tarn_CopyNToGlobalBuffer, Text(count > text.size() ? text + '\0' : text), count)
        .Returns(text.substr(0, count));
}

/*------------------------------------------------------------------------------------------------
 * Rows
 *----------------------------------------------------------------------------------------------*/

Properties Random() {
    return {
        TARN_ROW(tarn_ConvertToBin, DigitText<1>, DrawDigits),
        TARN_ROW(tarn_ConvertToOct, DigitText<3>, DrawDigits),
        TARN_ROW(tarn_ConvertToHex, DigitText<4>, DrawDigits),
        TARN_ROW(tarn_UnsignedConvertToDec, DecimalText<kZero>, DrawDecimal),
        TARN_ROW(tarn_SignedConvertToDec, DecimalText<kSign>, DrawDecimal),
        TARN_ROW(tarn_ConvertToString, CharacterText, DrawCharacters),
        TARN_ROW(tarn_ConvertToChar, CharacterText, DrawCharacter, 1000),
        TARN_ROW(tarn_ConvertToBin0, CodeDigit, DrawCode, 100),
        TARN_ROW(tarn_ConvertToOct0, CodeDigit, DrawCode, 100),
        TARN_ROW(tarn_ConvertToHex0, CodeDigit, DrawCode, 100),
        TARN_ROW(tarn_UnsignedConvertToDec0, CodeDigit, DrawCode, 100),
        TARN_ROW(tarn_SignedConvertToDec0, SignedCodeDigit, DrawCode, 100),
        TARN_ROW(tarn_ConvertToChar0, CodeCharacter, DrawCodeWithSpace, 100),
        TARN_ROW(tarn_ConvertToString0, CodeCharacter, DrawCodeWithSpace, 100),
        TARN_ROW_OF(Size<kZero>, tarn_UnsignedConvertToSizeT),
        TARN_ROW_OF(Size<kSign>, tarn_SignedConvertToSizeT),
        TARN_ROW(tarn_ConvertToStringR, Printed, DrawReal),
        TARN_ROW(tarn_CopyToGlobalBuffer, Same, DrawCopy, 1000),
        {"tarn_CopyNToGlobalBuffer", CopyCounted, 1000},
    };
}

std::vector<Case> ByHand() {
    Party value = Target("70'h3fffffffffffffffff"_v, Words(70, {{0, 0}, {0, 0}, {0x3F, 0}}));
    value.fixed = tarn_VectorRegister;
    return {
        // Where it is a process's first, the text fills its buffer, up to which the zeros reach.
        TARN_CALL(tarn_ConvertToBin, "16'h1"_v, 19).Returns("0000000000000000001"),
        // Only zeros are left out or put in front; a short top digit of X alone is an x.
        TARN_CALL(tarn_ConvertToHex, "16'h00x0"_v, 0).Returns("x0"),
        TARN_CALL(tarn_ConvertToHex, "6'bxx0101"_v, -1).Returns("x5"),
        TARN_CALL(tarn_ConvertToHex, "6'bx00101"_v, -1).Returns("X5"),
        // Bits above the width are no digits, but in decimal text.
        TARN_CALL(tarn_ConvertToOct, Words(4, {{~8U, ~15U}}), 0).Returns("7"),
        TARN_CALL(tarn_UnsignedConvertToDec, Words(8, {{~0U, 0}}), -1, 0).Returns("4294967295"),
        // The field of a signed number has a place for the sign, in front of zeros.
        TARN_CALL(tarn_SignedConvertToDec, "8'shfb"_v, -1, 1).Returns("-005"),
        TARN_CALL(tarn_SignedConvertToDec, "1'sb0"_v, -1, 0).Returns(" 0"),
        TARN_CALL(tarn_UnsignedConvertToDec, "8'bz0"_v, 0, 0).Returns("Z"),
        TARN_CALL(tarn_ConvertToString, "32'h00610063"_v, 1).Returns(" a c"),
        TARN_CALL(tarn_ConvertToString, "16'hx1e9"_v, 0).Returns("\1\xE9"),
        // A value in the register is divided down to 0 where it stands; the rest is the caller's.
        TARN_CALL(tarn_UnsignedConvertToDec, 70, value, 0, 0).Returns("1180591620717411303423"),
    };
}

}  // namespace

Family TextFamily() {
    return {"Text", Random(), ByHand};
}

}  // namespace tarn::test
