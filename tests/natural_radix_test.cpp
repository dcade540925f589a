// Decimal digits to and from naturals, each algorithm on its own, against GMP.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <gmpxx.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "arith/natural/radix.h"
#include "arith/natural/radix_parse.h"
#include "arith/natural/radix_text.h"
#include "natural_support.h"

namespace tarn {
namespace {

// Digits that are hard themselves, a power of ten, or those of hard limbs.
std::string TakeDigits(Gen& gen, std::size_t count) {
    const int choice = gen.Below(4);
    if (choice == 0 && count > 0) return '1' + std::string(count - 1, '0');
    if (choice == 1) {
        const Limbs limbs = TakeLimbs(gen, 1 + count / 20);
        mpz_t value;
        return mpz_class(mpz_roinit_n(value, limbs.data(), static_cast<mp_size_t>(limbs.size())))
            .get_str();
    }
    std::string digits;
    for (const std::uint8_t digit : Take(gen, count, std::uint8_t{9}))
        digits.push_back(static_cast<char>('0' + digit));
    return digits;
}

// From digits to limbs and back: by halves down to a leaf of so many chunks, or, with kAny, by
// FromDecimal and ToDecimal as they are.
constexpr std::size_t kAny = 0;

void Check(Gen& gen, const std::string& digits, std::size_t leaf) {
    static GuardedBlock digitBlock, limbBlock, scratchBlock, textBlock;
    const std::size_t count = digits.size();
    const std::string where = gen.Reproducer(count, leaf);
    const bool isAny = leaf == kAny;
    mpz_class value;
    value.set_str(digits, 10);
    const std::size_t limbCount = mpz_size(value.get_mpz_t());
    if (limbCount == 0 && !isAny) return;
    Limbs expected(FromDecimalLimbs(count));
    std::copy_n(mpz_limbs_read(value.get_mpz_t()), limbCount, expected.begin());

    std::vector<std::uint8_t> values;
    for (const char digit : digits)
        values.push_back(static_cast<std::uint8_t>(digit - '0'));
    const std::uint8_t* const from = Place(gen, digitBlock, values);
    Limb* const limbs = PlaceJunk(gen, limbBlock, expected.size());
    Limb* scratch = PlaceJunk(
        gen, scratchBlock, isAny ? FromDecimalScratch(count) : ParseByHalvesScratch(count, leaf));
    if (isAny) {
        ASSERT_EQ(FromDecimal(limbs, from, count, scratch), limbCount) << where;
    } else {
        ParseByHalves(limbs, from, count, leaf, scratch);
    }
    ASSERT_TRUE(Holds(limbBlock, limbs, expected) && scratchBlock.MarginsAreIntact()) << where;

    const std::string text = limbCount == 0 ? "0" : digits.substr(digits.find_first_not_of('0'));
    char* const begin = Place(gen, textBlock, std::vector<char>(text.size()));
    char* const end = begin + text.size();
    const std::size_t given = isAny ? expected.size() : limbCount;
    scratch = PlaceJunk(gen, scratchBlock,
                        isAny ? ToDecimalScratch(given) : FormatByHalvesScratch(given, leaf + 1));
    const char* const first = isAny ? ToDecimal(end, limbs, given, scratch)
                                    : FormatByHalves(end, limbs, given, leaf + 1, scratch);
    ASSERT_TRUE(first == begin && text == std::string(begin, end) && textBlock.MarginsAreIntact() &&
                limbBlock.MarginsAreIntact() && scratchBlock.MarginsAreIntact())
        << where;
}

TEST(NaturalRadix, DigitsBecomeLimbsAndBack) {
    for (Gen& gen : Seeds(8)) {
        for (std::size_t count = 0; count <= 6'000; count = NextCount(count, 400)) {
            const std::string digits = TakeDigits(gen, count);
            for (const std::size_t leaf : {kAny, std::size_t{1}, std::size_t{8}, count + 1})
                ASSERT_NO_FATAL_FAILURE(Check(gen, digits, leaf));
        }
    }
}

// The last one has the most digits of 10,000,000 bits.
TEST(NaturalRadix, WideNumbers) {
    for (const std::size_t count : {9'864U, 19'728U, 315'653U, 3'010'300U}) {
        for (Gen& gen : Seeds(1))
            ASSERT_NO_FATAL_FAILURE(Check(gen, '3' + TakeDigits(gen, count - 1), kAny));
    }
}

}  // namespace
}  // namespace tarn
