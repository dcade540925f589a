// Decimal digits to and from naturals, each algorithm on its own, against GMP.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <gmp.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "arith/natural/radix.h"
#include "arith/natural/radix_parse.h"
#include "arith/natural/radix_text.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"
#include "natural_support.h"

namespace tarn {
namespace {

// Digits as values, not characters.
using Digits = std::basic_string<std::uint8_t>;

// What text can be hard about: carries through nines, chunks of zeros, a lone digit; and the
// decimal digits of what limbs can be hard about.
enum class DigitKind { kRandom, kNines, kPowerOfTen, kLeadingZeros, kRuns, kLimbs, kCount };

Digits TakeDigits(Generator& generator, std::size_t count, DigitKind kind) {
    if (kind == DigitKind::kLimbs) {
        Limbs limbs = generator.Take(1 + count / 19, generator.AnyKind());
        limbs.resize(NormalisedCount(limbs.data(), limbs.size()));
        if (limbs.empty()) return Digits(1, 0);
        Digits digits(20 * limbs.size() + 2, 0);
        const auto limbCount = static_cast<mp_size_t>(limbs.size());
        digits.resize(mpn_get_str(digits.data(), 10, limbs.data(), limbCount));
        return digits;
    }
    Digits digits(count, kind == DigitKind::kNines ? 9 : 0);
    const bool isRandom = kind == DigitKind::kRandom || kind == DigitKind::kLeadingZeros;
    std::size_t i = kind == DigitKind::kLeadingZeros ? count / 2 : 0;
    for (; isRandom && i < count; ++i) {
        digits[i] = static_cast<std::uint8_t>(generator.Between(0, 9));
    }
    for (; kind == DigitKind::kRuns && i < count; i += generator.Between(1, 60)) {
        std::fill_n(&digits[i], std::min(count - i, std::size_t{60}),
                    generator.Between(0, 1) == 0 ? std::uint8_t{0} : std::uint8_t{9});
    }
    if (kind == DigitKind::kPowerOfTen) {
        digits.back() = static_cast<std::uint8_t>(generator.Between(0, 1));
        digits.front() = 1;
    }
    return digits;
}

// From digits to limbs and back. The leaf picks the algorithms: 0 for chunks, kAny for FromDecimal
// and ToDecimal as they are.
constexpr std::size_t kAny = ~std::size_t{0};

void Check(const Digits& digits, std::size_t leaf) {
    const std::size_t count = digits.size();
    const std::string shape = std::to_string(count) + " digits, leaf " + std::to_string(leaf);
    // GMP wants a first digit that is not 0 and room for a limb more than the value may need.
    const Digits significant =
        digits.substr(std::min(digits.find_first_not_of(std::uint8_t{0}), count));
    Limbs expected(FromDecimalLimbs(count) + 2, 0);
    if (!significant.empty()) {
        mpn_set_str(expected.data(), significant.data(), significant.size(), 10);
    }
    const std::size_t limbCount = NormalisedCount(expected.data(), expected.size());
    std::fill(expected.begin() + static_cast<std::ptrdiff_t>(limbCount), expected.end(), Limb{0});
    expected.resize(FromDecimalLimbs(count));

    Guarded limbs(expected.size());
    Guarded scratch(leaf == kAny ? FromDecimalScratch(count) : ParseByHalvesScratch(count, leaf));
    // A vector of its own for the digits, so that a sanitizer sees a read behind the last.
    const std::vector<std::uint8_t> exact(digits.begin(), digits.end());
    if (leaf == kAny) {
        ASSERT_EQ(FromDecimal(limbs.Data(), exact.data(), count, scratch.Data()), limbCount)
            << shape;
    } else if (leaf == 0) {
        ParseByChunks(limbs.Data(), exact.data(), count);
    } else {
        ParseByHalves(limbs.Data(), exact.data(), count, leaf, scratch.Data());
    }
    ASSERT_TRUE(limbs.Value() == expected && limbs.IsIntact() && scratch.IsIntact()) << shape;
    if (limbCount == 0 && leaf != kAny) return;

    std::string expectedText(significant.begin(), significant.end());
    for (char& digit : expectedText) {
        digit = static_cast<char>(digit + '0');
    }
    if (expectedText.empty()) expectedText = "0";
    const std::string guard(32, '#');
    std::string text = guard + std::string(expectedText.size(), ' ') + guard;
    char* const end = text.data() + text.size() - guard.size();
    const std::size_t given = leaf == kAny ? expected.size() : limbCount;
    const std::size_t leafLimbs = leaf < 2 ? 2 : leaf;
    Guarded rest(leaf == kAny ? ToDecimalScratch(given) : FormatByHalvesScratch(given, leafLimbs));
    const char* const begin =
        leaf == kAny ? ToDecimal(end, limbs.Data(), given, rest.Data())
        : leaf == 0  ? FormatByChunks(end, limbs.Data(), given)
                     : FormatByHalves(end, limbs.Data(), given, leafLimbs, rest.Data());
    ASSERT_EQ(begin, text.data() + guard.size()) << shape;
    ASSERT_TRUE(text == guard + expectedText + guard) << shape;
    ASSERT_TRUE(limbs.IsIntact() && rest.IsIntact()) << shape;
}

TEST(NaturalRadix, EveryKindAtEveryCountOfDigits) {
    Generator generator(1);
    for (std::size_t count = 1; count <= 6'000; count += count < 400 ? 1 : 23) {
        for (int kind = 0; kind < static_cast<int>(DigitKind::kCount); ++kind) {
            const Digits digits = TakeDigits(generator, count, static_cast<DigitKind>(kind));
            for (const std::size_t leaf : {kAny, std::size_t{0}, std::size_t{1}, std::size_t{9}}) {
                ASSERT_NO_FATAL_FAILURE(Check(digits, leaf));
            }
        }
    }
}

// The last one has the most digits of 20,000,000 bits.
TEST(NaturalRadix, WideNumbers) {
    Generator generator(2);
    for (const std::size_t count : {9'864U, 19'728U, 315'653U, 1'000'000U, 6'020'599U}) {
        Digits digits = TakeDigits(generator, count, DigitKind::kRuns);
        digits[0] = 3;
        ASSERT_NO_FATAL_FAILURE(Check(digits, kAny));
    }
}

TEST(NaturalRadix, NoDigitsAreZero) {
    Guarded result(FromDecimalLimbs(0));
    EXPECT_EQ(FromDecimal(result.Data(), nullptr, 0, nullptr), 0U);
    EXPECT_EQ(result.Value(), Limbs(FromDecimalLimbs(0), 0));
}

TEST(NaturalRadix, ScratchGrowsWithTheCount) {
    for (std::size_t count = 1; count < 400000; count += 1 + count / 500) {
        ASSERT_LE(FromDecimalScratch(count), FromDecimalScratch(count + 1)) << count;
        ASSERT_LE(ToDecimalScratch(count), ToDecimalScratch(count + 1)) << count;
    }
}

}  // namespace
}  // namespace tarn
