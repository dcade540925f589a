#include "text/decimal_text.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "arith/natural/radix.h"
#include "arith/natural/span.h"
#include "arith/pack.h"
#include "arith/scratch.h"
#include "text/digits.h"
#include "text/radix_text.h"
#include "text/text_buffer.h"

namespace tarn {
namespace {

// The digits that a width can need.
std::size_t DigitsOfWidth(std::size_t width) noexcept {
    return static_cast<std::size_t>(std::ceil(std::log10(2.0) * static_cast<double>(width)));
}

// The one character of a value with unknown bits, NUL for a known one. The top word's bits above
// the width count as unknown bits, but not as known ones.
char UnknownCharacter(Operand value) noexcept {
    const std::size_t last = value.Count() - 1;
    if (!HasUnknown(value.words, last + 1)) return '\0';
    std::uint32_t anyX = 0, anyZ = 0, anyKnown = 0;
    for (std::size_t i = 0; i <= last; ++i) {
        const Word word = LoadWord(value.words + i);
        const std::uint32_t within = i == last ? LowMask(value.width) : ~std::uint32_t{0};
        anyX |= Aval(word) & Bval(word);
        anyZ |= Bval(word) & ~Aval(word);
        anyKnown |= ~Bval(word) & within;
    }
    if (anyX != 0) return (anyZ | anyKnown) == 0 ? 'x' : 'X';
    return anyKnown == 0 ? 'z' : 'Z';
}

// The value as a natural with a sign. A negative one is cut to its width; of others all words
// count.
template <class Extend>
Whole TakeValue(Operand value, Limb* limbs) noexcept {
    const std::size_t count = value.Count();
    Whole whole;
    if (Extend::kIsSigned && AreTopBitsSet(value)) {
        PackWhole<ZeroExtend>(&whole, limbs, value, count);
        NegateLimbs(limbs, count);
        const std::size_t top = (count - 1) / 2;
        const unsigned shift = (count - 1) % 2 * kWordBits;
        limbs[top] &= ~(static_cast<Limb>(~LowMask(value.width)) << shift);
        return {limbs, NormalisedCount(limbs, top + 1), true};
    }
    PackWhole<ZeroExtend>(&whole, limbs, value, count);
    return whole;
}

// The words that the digits were taken from are left 0 at the start of the shared register, as
// plain 32-bit numbers; the value 0 takes all of its words.
void ClearRegister(const Whole& value, std::size_t wordCount) noexcept {
    std::size_t count = wordCount;
    if (value.count > 0) {
        const bool half = (value.limbs[value.count - 1] >> kWordBits) == 0;
        count = 2 * value.count - (half ? 1 : 0);
    }
    std::memset(tarn_VectorRegister, 0, count * sizeof(std::uint32_t));
}

// Moves the text's start left until it fills the field; a sign stays in front of zeros.
char* Pad(char* first, const char* end, std::size_t field, bool zeroPad) noexcept {
    const auto used = static_cast<std::size_t>(end - first);
    if (field <= used) return first;
    char* const start = first - (field - used);
    if (zeroPad && *first == '-') {
        std::memset(start + 1, '0', field - used);
        *start = '-';
    } else {
        std::memset(start, zeroPad ? '0' : ' ', field - used);
    }
    return start;
}

}  // namespace

template <class Extend>
char* FormatDecimal(Operand value, DecimalField style) {
    if (value.width < 1) return EmptyText();
    constexpr std::size_t kSignRoom = Extend::kIsSigned ? 1 : 0;
    const std::size_t digits = DigitsOfWidth(static_cast<std::size_t>(value.width)) + kSignRoom;
    const std::size_t field =
        style.minDigits < 0 ? digits
                            : std::max<std::size_t>(static_cast<std::size_t>(style.minDigits), 1);
    std::size_t length = std::max(digits, field);
    const char unknown = UnknownCharacter(value);
    // Bits stored above the width make digits of their own, but in no signed value: they make it
    // negative and are dropped from its magnitude.
    if (const Word top = LoadWord(value.words + value.Count() - 1);
        !Extend::kIsSigned && unknown == '\0' && top > LowMask(value.width)) {
        const auto topBits = static_cast<std::size_t>(std::bit_width(top));
        length = std::max(length, DigitsOfWidth((value.Count() - 1) * kWordBits + topBits));
    }
    char* const end = globalBuffer.Reserve(length + 1) + length;
    *end = '\0';
    char* first = end;
    if (unknown != '\0') {
        *--first = unknown;
    } else {
        Scratch scratch;
        const std::size_t limbs = LimbCount(value.Count());
        const Whole whole = TakeValue<Extend>(value, scratch.Take(limbs));
        ClearRegister(whole, value.Count());
        first =
            ToDecimal(end, whole.limbs, whole.count, scratch.Take(ToDecimalScratch(whole.count)));
        if (whole.negative) {
            *--first = '-';
        }
    }
    return Pad(first, end, field, style.zeroPad);
}

template char* FormatDecimal<SignExtend>(Operand, DecimalField);
template char* FormatDecimal<ZeroExtend>(Operand, DecimalField);

char* FormatSignedLogicCode(int code) {
    if (code != TARN_LOGIC_1) {
        globalBuffer.Reserve(3);
        return FormatLogicCode(code);
    }
    return CopyText("-1");
}

char* FormatReal(const char* format, double value) {
    constexpr std::uint64_t kUsualRoom = 4096;
    char* text = globalBuffer.Reserve(kUsualRoom);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"  // the format is the caller's, by contract
    int length = std::snprintf(text, kUsualRoom, format, value);
    if (length >= 0 && static_cast<std::uint64_t>(length) >= kUsualRoom) {
        const auto room = static_cast<std::uint64_t>(length) + 1;
        text = globalBuffer.Reserve(room);
        length = std::snprintf(text, room, format, value);
    }
#pragma GCC diagnostic pop
    return length < 0 ? EmptyText() : text;
}

}  // namespace tarn
