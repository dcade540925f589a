#include <algorithm>
#include <cstdint>

#include "arith/natural/radix.h"
#include "core/words.h"
#include "text/parse.h"
#include "text/working_area.h"

namespace tarn {
namespace {

// Copies the values of the digits without underscores; returns their count. A character that is no
// digit counts as 0.
std::size_t CopyDigitValues(std::uint8_t* values, std::string_view digits) noexcept {
    std::uint8_t highest = 0;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        values[i] = static_cast<std::uint8_t>(digits[i] - '0');
        highest = std::max(highest, values[i]);
    }
    if (highest <= 9) return digits.size();
    std::size_t count = 0;
    for (const char character : digits) {
        if (character == '_') continue;
        const bool isDigit = character >= '0' && character <= '9';
        values[count++] = static_cast<std::uint8_t>(isDigit ? character - '0' : 0);
    }
    return count;
}

// Stores a natural as a vector of known bits; tells whether bits above the width were lost.
Fit StoreNatural(Result result, const Limb* limbs, std::size_t limbCount) noexcept {
    const std::size_t count = result.Count();
    const std::size_t shared = std::min(count, 2 * limbCount);
    const auto wordOf = [limbs](std::size_t i) -> Word {
        const Limb limb = limbs[i / 2];
        return i % 2 == 0 ? limb & kValueBits : limb >> kWordBits;
    };
    for (std::size_t i = 0; i < shared; ++i) {
        StoreWord(result.words + i, wordOf(i));
    }
    FillWords(result.words + shared, count - shared, 0);
    Word lost = 0;
    if (shared == count) {
        lost = wordOf(count - 1) & ~static_cast<Word>(LowMask(result.width));
    }
    for (std::size_t i = count; i < 2 * limbCount && lost == 0; ++i) {
        lost = wordOf(i);
    }
    CleanTopWord(result);
    return lost == 0 ? Fit::kWhole : Fit::kTruncated;
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
    return StoreNatural(result, limbs.Items(), limbCount);
}

}  // namespace tarn
