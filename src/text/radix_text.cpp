#include "text/radix_text.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "select/partselect.h"
#include "text/text_buffer.h"
#include "text/write_digits.h"

namespace tarn {
namespace {

// The count of digits without leading zeros, 0 for the value 0. A digit is '0' only where all of
// its bits are known zeros, so the highest bit set in aval or bval decides.
template <class Layout>
std::size_t SignificantDigits(Operand value) noexcept {
    std::size_t i = value.Count();
    Word bits = LoadWord(value.words + i - 1) & InBothHalves(LowMask(value.width));
    while (bits == 0) {
        if (--i == 0) return 0;
        bits = LoadWord(value.words + i - 1);
    }
    const auto high = static_cast<unsigned>(std::bit_width(Aval(bits) | Bval(bits)));
    return ((i - 1) * kWordBits + high + Layout::kBits - 1) / Layout::kBits;
}

// The top digit of a width that is no multiple of the digit's bits: `bits` bits are there. Where
// they are all X or all Z the missing ones count as the same; otherwise those are known zeros.
template <class Layout>
char PartialDigit(Operand value, std::size_t index, unsigned bits) noexcept {
    constexpr unsigned kMask = kDigitMask<Layout>;
    const std::size_t position = index * Layout::kBits;
    VectorWord digit;
    ReadField(&digit, value.words + position / kWordBits, position % kWordBits,
              static_cast<int>(bits));
    const unsigned present = (1U << bits) - 1U;
    unsigned a = digit.aval, b = digit.bval;
    if (b == present && (a == present || a == 0)) {
        b = kMask;
        a = a == present ? kMask : 0U;
    }
    return DigitCharacter(kMask, a, b);
}

// All digits of the width, the top one of fewer bits than the others. Out of line, so that the
// frame it needs does not burden whole digits.
template <class Layout>
[[gnu::noinline]] char* WriteBelowPartialDigit(char* end, Operand value, std::size_t all,
                                               unsigned topBits) noexcept {
    char* const first = WriteDigits(Layout{}, end, value.words, all - 1) - 1;
    *first = PartialDigit<Layout>(value, all - 1, topBits);
    return first;
}

// All digits of the width and the terminator behind them; returns the first.
template <class Layout>
char* WriteAllDigits(char* end, Operand value, std::size_t all) noexcept {
    const unsigned topBits = (static_cast<unsigned>(value.width) - 1U) % Layout::kBits + 1U;
    *end = '\0';
    if (topBits != Layout::kBits) {
        return WriteBelowPartialDigit<Layout>(end, value, all, topBits);
    }
    return WriteDigits(Layout{}, end, value.words, all);
}

template <class Layout>
[[gnu::noinline]] char* FormatField(Operand value, std::size_t all, std::size_t field) {
    char* const begin = globalBuffer.Reserve(std::max(all, field) + 1);
    if (field >= all) {
        std::memset(begin, '0', field - all);
        WriteAllDigits<Layout>(begin + field, value, all);
        return begin;
    }
    const std::size_t shown = std::max(field, SignificantDigits<Layout>(value));
    if (shown == all) return WriteAllDigits<Layout>(begin + all, value, all);
    begin[shown] = '\0';
    return WriteDigits(Layout{}, begin + shown, value.words, shown);
}

}  // namespace

template <class Layout>
char* FormatRadix(Operand value, int minDigits) {
    if (value.width < 1) return EmptyText();
    constexpr std::size_t kBits = Layout::kBits;
    const std::size_t all = (static_cast<std::size_t>(value.width) + kBits - 1) / kBits;
    if (minDigits < 0) {
        return WriteAllDigits<Layout>(globalBuffer.Reserve(all + 1) + all, value, all);
    }
    return FormatField<Layout>(value, all, static_cast<std::size_t>(std::max(minDigits, 1)));
}

template char* FormatRadix<Binary>(Operand, int);
template char* FormatRadix<Octal>(Operand, int);
template char* FormatRadix<Hexadecimal>(Operand, int);

char* FormatLogicCode(int code) {
    char* const text = globalBuffer.Reserve(2);
    text[0] = LogicCodeCharacter(code);
    text[1] = '\0';
    return text;
}

}  // namespace tarn
