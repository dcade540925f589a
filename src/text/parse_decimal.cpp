#include <algorithm>
#include <bit>
#include <cstdint>

#include "arith/natural/decimal_power.h"
#include "arith/natural/radix.h"
#include "arith/natural/radix_parse.h"
#include "arith/natural/span.h"
#include "arith/pack.h"
#include "core/words.h"
#include "text/parse.h"
#include "text/working_area.h"

namespace tarn {
namespace {

// Eight characters as bytes, digits as their values.
std::uint64_t LoadEight(const char* characters) noexcept {
    std::uint64_t eight;
    std::memcpy(&eight, characters, sizeof eight);
    return eight ^ 0x3030303030303030;
}

// Whether one of eight such bytes is above 9. The addition carries a byte of 10 to 0x7f into bit 7;
// a higher one has that bit, and only such a byte can carry into the next.
constexpr bool HasOther(std::uint64_t eight) noexcept {
    return (((eight + 0x7676767676767676) | eight) & 0x8080808080808080) != 0;
}

// The value of up to 19 characters; false where one is no digit.
bool ReadChunk(const char* characters, std::size_t count, Limb* value) noexcept {
    Limb read = 0;
    for (; count % 8 != 0; --count) {
        const auto digit = static_cast<unsigned char>(*characters++ ^ '0');
        if (digit > 9) return false;
        read = 10 * read + digit;
    }
    for (; count > 0; count -= 8, characters += 8) {
        const std::uint64_t eight = LoadEight(characters);
        if (HasOther(eight)) return false;
        read = read * 100'000'000U + JoinEightDigits(eight);
    }
    *value = read;
    return true;
}

// The value of a text of up to three chunks that are digits and nothing else; false for any other.
constexpr std::size_t kShortDigits = 3 * kChunkDigits;
bool ReadShort(std::string_view digits, Limb (&value)[3]) noexcept {
    if (digits.size() > kShortDigits) return false;
    Limb chunks[3] = {};
    for (Limb& chunk : chunks) {
        const std::size_t count = std::min(digits.size(), kChunkDigits);
        const std::size_t rest = digits.size() - count;
        if (!ReadChunk(digits.data() + rest, count, &chunk)) return false;
        digits.remove_suffix(count);
        if (rest == 0) break;
    }
    const DoubleLimb upper = MultiplyLimbs(chunks[2], kChunkPower) + chunks[1];
    const DoubleLimb low = MultiplyLimbs(LowLimb(upper), kChunkPower) + chunks[0];
    const DoubleLimb high = MultiplyLimbs(HighLimb(upper), kChunkPower) + HighLimb(low);
    value[0] = LowLimb(low);
    value[1] = LowLimb(high);
    value[2] = HighLimb(high);
    return true;
}

// Copies the values of the digits without underscores; returns their count. A character that is no
// digit counts as 0.
std::size_t CopyDigitValues(std::uint8_t* values, std::string_view digits) noexcept {
    bool hasOther = false;
    std::size_t i = 0;
    for (; i + 8 <= digits.size(); i += 8) {
        const std::uint64_t eight = LoadEight(digits.data() + i);
        hasOther |= HasOther(eight);
        std::memcpy(values + i, &eight, sizeof eight);
    }
    for (; i < digits.size(); ++i) {
        values[i] = static_cast<std::uint8_t>(digits[i] ^ '0');
        hasOther |= values[i] > 9;
    }
    if (!hasOther) return digits.size();
    std::size_t count = 0;
    for (const char character : digits) {
        if (character == '_') continue;
        const bool isDigit = character >= '0' && character <= '9';
        values[count++] = static_cast<std::uint8_t>(isDigit ? character - '0' : 0);
    }
    return count;
}

// Whether a value other than 0 has a bit at `width` or above.
bool ReachesBit(std::size_t width, const Whole& value) noexcept {
    const auto top = static_cast<std::size_t>(std::bit_width(value.limbs[value.count - 1]));
    return (value.count - 1) * kLimbBits + top > width;
}

// Stores the value, of at least one limb but perhaps 0; for 0 there is no verdict.
Fit StoreValue(Result result, const Whole& value) noexcept {
    StoreWhole(result, value);
    CleanTopWord(result);
    if (value.limbs[value.count - 1] == 0) return Fit::kUnsettled;
    const auto width = static_cast<std::size_t>(result.width);
    return ReachesBit(width, value) ? Fit::kTruncated : Fit::kWhole;
}

Fit ParseLong(Result result, std::string_view digits) {
    constexpr std::size_t kShortText = 512;
    WorkingArea<std::uint8_t, kShortText> values(digits.size());
    std::size_t count = CopyDigitValues(values.Items(), digits);
    const std::uint8_t* significant = values.Items();
    while (count > 1 && *significant == 0) {
        ++significant;
        --count;
    }
    if (count == 0) {  // underscores only
        FillWords(result.words, result.Count(), 0);
        return Fit::kUnsettled;
    }
    // 10^width is a multiple of 2^width and greater: digits in front of the last `width` ones
    // change nothing but the verdict.
    const auto width = static_cast<std::size_t>(result.width);
    const bool isCut = count > width;
    if (isCut) {
        significant += count - width;
        count = width;
    }
    const std::size_t room = FromDecimalLimbs(count);
    WorkingArea<Limb, kShortText / 4> limbs(room + FromDecimalScratch(count));
    const std::size_t limbCount =
        FromDecimal(limbs.Items(), significant, count, limbs.Items() + room);
    const Fit fit = StoreValue(result, {limbs.Items(), std::max<std::size_t>(limbCount, 1), false});
    return isCut ? Fit::kTruncated : fit;
}

}  // namespace

Fit ParseDecimalDigits(Result result, std::string_view digits) {
    if (result.width < 1) return Fit::kUnsettled;
    const DigitKind first = digits.empty() ? DigitKind::kKnown : DigitOf(digits.front()).kind;
    if (first == DigitKind::kX || first == DigitKind::kZ) {
        FillWords(result.words, result.Count(), first == DigitKind::kX ? kAllX : kUnknownBits);
        CleanTopWord(result);
        return Fit::kUnsettled;
    }
    if (Limb limbs[3]; ReadShort(digits, limbs)) {
        const std::size_t count = std::max<std::size_t>(NormalisedCount(limbs, 3), 1);
        return StoreValue(result, {limbs, count, false});
    }
    return ParseLong(result, digits);
}

}  // namespace tarn
