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

using Digits = std::vector<std::uint8_t>;

// What decimal text can be hard about: carries through nines, chunks of zeros, a lone digit.
enum class DigitKind { kRandom, kNines, kPowerOfTen, kZeros, kLeadingZeros, kRuns, kCount };

Digits TakeDigits(Generator& generator, std::size_t count, DigitKind kind) {
    Digits digits(count, 0);
    const auto random = [&] { return static_cast<std::uint8_t>(generator.Between(0, 9)); };
    switch (kind) {
        case DigitKind::kNines:
            std::fill(digits.begin(), digits.end(), std::uint8_t{9});
            break;
        case DigitKind::kPowerOfTen:
            digits[0] = 1;
            break;
        case DigitKind::kZeros:
            break;
        case DigitKind::kLeadingZeros:
            std::generate(digits.begin() + static_cast<std::ptrdiff_t>(count / 2), digits.end(),
                          random);
            break;
        case DigitKind::kRuns:
            for (std::size_t i = 0; i < count;) {
                const std::uint8_t digit = generator.Between(0, 1) == 0 ? 0 : 9;
                for (std::size_t run = generator.Between(1, 60); run > 0 && i < count; --run)
                    digits[i++] = digit;
            }
            break;
        default:
            std::generate(digits.begin(), digits.end(), random);
            break;
    }
    return digits;
}

Limbs ExpectedLimbs(const Digits& digits) {
    // GMP wants a first digit that is not 0 and room for a limb more than the value may need.
    const auto first =
        std::find_if(digits.begin(), digits.end(), [](std::uint8_t digit) { return digit != 0; });
    Limbs limbs(FromDecimalLimbs(digits.size()) + 2, 0);
    if (first != digits.end()) {
        const auto count = static_cast<std::size_t>(digits.end() - first);
        const mp_size_t written = mpn_set_str(limbs.data(), &*first, count, 10);
        std::fill(limbs.begin() + written, limbs.end(), Limb{0});
    }
    limbs.resize(FromDecimalLimbs(digits.size()));
    return limbs;
}

std::string ExpectedText(Limbs limbs) {
    limbs.resize(NormalisedCount(limbs.data(), limbs.size()));
    if (limbs.empty()) return "0";
    std::string text(limbs.size() * 20 + 2, ' ');
    const auto count = static_cast<mp_size_t>(limbs.size());
    text.resize(
        mpn_get_str(reinterpret_cast<unsigned char*>(text.data()), 10, limbs.data(), count));
    for (char& digit : text)
        digit = static_cast<char>(digit + '0');
    return text.substr(std::min(text.find_first_not_of('0'), text.size() - 1));
}

// leafChunks picks the algorithm: 0 for chunks, kAny for FromDecimal as a whole.
constexpr std::size_t kAny = ~std::size_t{0};

void CheckParse(const Digits& digits, std::size_t leafChunks) {
    const Limbs expected = ExpectedLimbs(digits);
    Guarded result(expected.size());
    Guarded scratch(leafChunks == kAny ? FromDecimalScratch(digits.size())
                                       : ParseByHalvesScratch(digits.size(), leafChunks));
    // A vector of its own for the digits, so that a sanitizer sees a read behind the last.
    const Digits exact(digits);
    if (leafChunks == kAny) {
        ASSERT_EQ(FromDecimal(result.Data(), exact.data(), exact.size(), scratch.Data()),
                  NormalisedCount(expected.data(), expected.size()))
            << digits.size() << " digits";
    } else if (leafChunks == 0) {
        ParseByChunks(result.Data(), exact.data(), exact.size());
    } else {
        ParseByHalves(result.Data(), exact.data(), exact.size(), leafChunks, scratch.Data());
    }
    ASSERT_TRUE(result.Value() == expected) << digits.size() << " digits, leaf " << leafChunks;
    ASSERT_TRUE(result.IsIntact() && scratch.IsIntact())
        << digits.size() << " digits, leaf " << leafChunks;
}

void CheckFormat(const Limbs& limbs, std::size_t leafCount) {
    const std::string expected = ExpectedText(limbs);
    constexpr std::size_t kGuard = 32;
    std::string text(expected.size() + 2 * kGuard, '#');
    char* const end = text.data() + kGuard + expected.size();
    Guarded a(limbs.size());
    Guarded scratch(leafCount == kAny ? ToDecimalScratch(limbs.size())
                                      : FormatByHalvesScratch(limbs.size(), leafCount));
    std::copy(limbs.begin(), limbs.end(), a.Data());
    char* begin = nullptr;
    if (leafCount == kAny) {
        begin = ToDecimal(end, a.Data(), limbs.size(), scratch.Data());
    } else if (leafCount == 0) {
        begin = FormatByChunks(end, a.Data(), limbs.size());
    } else {
        begin = FormatByHalves(end, a.Data(), limbs.size(), leafCount, scratch.Data());
    }
    ASSERT_EQ(begin, text.data() + kGuard) << limbs.size() << " limbs, leaf " << leafCount;
    ASSERT_EQ(text, std::string(kGuard, '#') + expected + std::string(kGuard, '#'))
        << limbs.size() << " limbs, leaf " << leafCount;
    ASSERT_TRUE(a.IsIntact() && scratch.IsIntact()) << limbs.size() << " limbs, leaf " << leafCount;
}

TEST(NaturalFromDecimal, EveryKindAroundChunkBorders) {
    Generator generator(1);
    for (std::size_t count = 1; count <= 160; ++count) {
        for (int kind = 0; kind < static_cast<int>(DigitKind::kCount); ++kind) {
            const Digits digits = TakeDigits(generator, count, static_cast<DigitKind>(kind));
            for (const std::size_t leaf : {kAny, std::size_t{0}, std::size_t{1}, std::size_t{3}})
                ASSERT_NO_FATAL_FAILURE(CheckParse(digits, leaf));
        }
    }
}

TEST(NaturalFromDecimal, BothSidesOfTheThresholdAndWide) {
    Generator generator(2);
    for (int i = 0; i < 600; ++i) {
        const auto kind = static_cast<DigitKind>(i % static_cast<int>(DigitKind::kCount));
        const std::size_t chunks =
            generator.Between(kParseHalvesChunks - 2, 5 * kParseHalvesChunks);
        const std::size_t count = chunks * 19 - generator.Between(0, 20);
        ASSERT_NO_FATAL_FAILURE(CheckParse(TakeDigits(generator, count, kind), kAny));
    }
    for (const std::size_t count : {9864U, 19728U, 315653U, 1000000U})
        ASSERT_NO_FATAL_FAILURE(CheckParse(TakeDigits(generator, count, DigitKind::kRuns), kAny));
}

TEST(NaturalFromDecimal, NoDigitsAreZero) {
    Guarded result(FromDecimalLimbs(0));
    EXPECT_EQ(FromDecimal(result.Data(), nullptr, 0, nullptr), 0U);
    EXPECT_EQ(result.Value(), Limbs(FromDecimalLimbs(0), 0));
}

TEST(NaturalToDecimal, EveryCountOfDigits) {
    // 10^n - 1, 10^n and 10^n + 1 for each n: the borders of the text's length.
    for (std::size_t count = 1; count <= 400; ++count) {
        Digits digits(count + 1, 0);
        digits[0] = 1;
        Limbs power = ExpectedLimbs(digits);
        for (const Limb addend : {Limb{0}, Limb{1}}) {
            Limbs above(power);
            AddLimb(above.data(), above.data(), above.size(), addend);
            ASSERT_NO_FATAL_FAILURE(CheckFormat(above, kAny));
        }
        SubtractLimb(power.data(), power.data(), power.size(), 1);
        ASSERT_NO_FATAL_FAILURE(CheckFormat(power, kAny));
    }
}

TEST(NaturalToDecimal, EachAlgorithmOnHardValues) {
    Generator generator(3);
    for (std::size_t count = 1; count <= 90; ++count) {
        for (int kind = 0; kind < static_cast<int>(Kind::kCount); ++kind) {
            Limbs limbs = generator.Take(count, static_cast<Kind>(kind));
            ASSERT_NO_FATAL_FAILURE(CheckFormat(limbs, kAny));
            if (limbs.back() == 0) limbs.back() = 1;
            for (const std::size_t leaf : {std::size_t{0}, std::size_t{2}, std::size_t{9}})
                ASSERT_NO_FATAL_FAILURE(CheckFormat(limbs, leaf));
        }
    }
}

TEST(NaturalToDecimal, RoundTripsOfRunsAndWideValues) {
    Generator generator(4);
    const auto roundTrip = [&](std::size_t count) {
        const Digits digits = TakeDigits(generator, count, DigitKind::kRuns);
        ASSERT_NO_FATAL_FAILURE(CheckFormat(ExpectedLimbs(digits), kAny));
    };
    for (int i = 0; i < 300; ++i)
        ASSERT_NO_FATAL_FAILURE(roundTrip(generator.Between(500, 5000)));
    for (const std::size_t count : {19728U, 315653U})
        ASSERT_NO_FATAL_FAILURE(roundTrip(count));
    for (const std::size_t count : {1024U, 16384U})
        ASSERT_NO_FATAL_FAILURE(CheckFormat(generator.Take(count, Kind::kOnes), kAny));
}

// The most digits of 20,000,000 bits, there and back.
TEST(NaturalRadix, RoundTripAtTheLimit) {
    Generator generator(5);
    Digits digits = TakeDigits(generator, 6'020'599, DigitKind::kRuns);
    digits[0] = 3;
    Guarded limbs(FromDecimalLimbs(digits.size())), scratch(FromDecimalScratch(digits.size()));
    const std::size_t count =
        FromDecimal(limbs.Data(), digits.data(), digits.size(), scratch.Data());
    ASSERT_EQ(count, 312'500U);
    Guarded textScratch(ToDecimalScratch(count));
    std::string text(digits.size(), ' ');
    ASSERT_EQ(ToDecimal(text.data() + text.size(), limbs.Data(), count, textScratch.Data()),
              text.data());
    for (std::uint8_t& digit : digits)
        digit = static_cast<std::uint8_t>(digit + '0');
    EXPECT_TRUE(std::equal(text.begin(), text.end(), digits.begin()));
    EXPECT_TRUE(limbs.IsIntact() && scratch.IsIntact() && textScratch.IsIntact());
}

TEST(NaturalRadix, ScratchIsASmallMultipleAndGrowsWithTheCount) {
    EXPECT_LT(FromDecimalScratch(6'020'600), 12 * std::size_t{312500});
    EXPECT_LT(ToDecimalScratch(312500), 12 * std::size_t{312500});
    for (std::size_t count = 1; count < 400000; count += 1 + count / 500) {
        ASSERT_LE(FromDecimalScratch(count), FromDecimalScratch(count + 1)) << count;
        ASSERT_LE(ToDecimalScratch(count), ToDecimalScratch(count + 1)) << count;
    }
}

}  // namespace
}  // namespace tarn
