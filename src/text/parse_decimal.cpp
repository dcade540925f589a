#include <algorithm>
#include <bit>
#include <cstdint>

#include "arith/natural/radix.h"
#include "arith/pack.h"
#include "core/words.h"
#include "text/parse.h"
#include "text/working_area.h"

namespace tarn {
namespace {

// Copies the values of the digits without underscores; returns their count. A character that is no
// digit counts as 0.
std::size_t CopyDigitValues(std::uint8_t* values, std::string_view digits) noexcept {
    // Eight at a time while all are digits: a byte of 10 to 0x7f reaches bit 7 by the addition, a
    // higher one has it; a carry into the next byte comes from such a byte only.
    std::uint64_t other = 0;
    std::size_t i = 0;
    for (; i + 8 <= digits.size(); i += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, digits.data() + i, sizeof eight);
        eight ^= 0x3030303030303030;
        other |= (eight + 0x7676767676767676) | eight;
        std::memcpy(values + i, &eight, sizeof eight);
    }
    for (; i < digits.size(); ++i) {
        values[i] = static_cast<std::uint8_t>(digits[i] ^ '0');
        other |= values[i] > 9 ? 0x80U : 0U;
    }
    if ((other & 0x8080808080808080) == 0) return digits.size();
    std::size_t count = 0;
    for (const char character : digits) {
        if (character == '_') continue;
        const bool isDigit = character >= '0' && character <= '9';
        values[count++] = static_cast<std::uint8_t>(isDigit ? character - '0' : 0);
    }
    return count;
}

// Whether a value other than 0 has a bit at `width` or above.
bool ReachesBit(std::size_t width, Whole value) noexcept {
    const auto top = static_cast<std::size_t>(std::bit_width(value.limbs[value.count - 1]));
    return (value.count - 1) * kLimbBits + top > width;
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
    constexpr std::size_t kShortText = 512;
    WorkingArea<std::uint8_t, kShortText> values(digits.size());
    std::size_t count = CopyDigitValues(values.Items(), digits);
    const std::uint8_t* significant = values.Items();
    while (count > 0 && *significant == 0) {
        ++significant;
        --count;
    }
    if (count == 0) {
        FillWords(result.words, result.Count(), 0);
        return Fit::kUnsettled;
    }
    const std::size_t room = FromDecimalLimbs(count);
    WorkingArea<Limb, kShortText / 4> limbs(room + FromDecimalScratch(count));
    const std::size_t limbCount =
        FromDecimal(limbs.Items(), significant, count, limbs.Items() + room);
    const Whole value{limbs.Items(), limbCount, false};
    StoreWhole(result, value);
    CleanTopWord(result);
    const auto width = static_cast<std::size_t>(result.width);
    return ReachesBit(width, value) ? Fit::kTruncated : Fit::kWhole;
}

}  // namespace tarn
