// The product kernels on naturals, each algorithm on its own, against GMP.
#include <algorithm>
#include <cstddef>
#include <gmp.h>
#include <gtest/gtest.h>
#include <utility>

#include "arith/natural/multiply.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/thresholds.h"
#include "natural_support.h"

namespace tarn {
namespace {

Limbs ExpectedProduct(const Limbs& a, const Limbs& b) {
    if (a.size() < b.size()) return ExpectedProduct(b, a);
    Limbs product(a.size() + b.size());
    mpn_mul(product.data(), a.data(), static_cast<mp_size_t>(a.size()), b.data(),
            static_cast<mp_size_t>(b.size()));
    return product;
}

// One form of the product of two operands of one count, from `first` limbs to `last`.
enum class Result { kProduct, kSquare, kLowHalf };
struct Form {
    const char* name;
    Result result;
    std::size_t first, last;
    std::size_t (*scratch)(std::size_t count);
    void (*multiply)(Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb* scratch);
};

void Check(const Form& form, const Limbs& a, const Limbs& b) {
    const bool isSquare = form.result == Result::kSquare;
    Limbs expected = ExpectedProduct(a, isSquare ? a : b);
    if (form.result == Result::kLowHalf) expected.resize(a.size());
    Guarded result(expected.size()), scratch(form.scratch(a.size()));
    form.multiply(result.Data(), a.data(), isSquare ? nullptr : b.data(), a.size(), scratch.Data());
    ASSERT_TRUE(result.Value() == expected) << form.name << " of " << a.size() << " limbs";
    ASSERT_TRUE(result.IsIntact() && scratch.IsIntact()) << form.name << " of " << a.size();
}

std::size_t None(std::size_t) {
    return 0;
}
std::size_t NttScratch(std::size_t n) {
    return MultiplyNttScratch(n, n);
}
void Ntt(Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb* scratch) {
    MultiplyNtt(r, a, n, b, n, scratch);
}

constexpr std::size_t kTwo = 2 * kKaratsubaThreshold, kFive = 5 * kKaratsubaThreshold;
constexpr Result kProduct = Result::kProduct, kSquare = Result::kSquare, kLow = Result::kLowHalf;
const Form kForms[] = {
    {"basecase", kProduct, 1, kTwo, None,
     [](auto* r, auto* a, auto* b, auto n, auto*) { MultiplyBasecase(r, a, n, b, n); }},
    {"square basecase", kSquare, 1, kTwo, None,
     [](auto* r, auto* a, auto*, auto n, auto*) { SquareBasecase(r, a, n); }},
    {"low basecase", kLow, 1, kTwo, None,
     [](auto* r, auto* a, auto* b, auto n, auto*) { MultiplyLowBasecase(r, a, b, n); }},
    {"Karatsuba", kProduct, kKaratsubaMinimum, kFive, MultiplyKaratsubaScratch, MultiplyKaratsuba},
    {"its square", kSquare, kKaratsubaMinimum, kFive, MultiplyKaratsubaScratch, MultiplyKaratsuba},
    {"Toom 3", kProduct, kToom3Minimum, kFive, MultiplyToom3Scratch, MultiplyToom3},
    {"its square", kSquare, kToom3Minimum, kFive, MultiplyToom3Scratch, MultiplyToom3},
    {"Mulders", kLow, kMuldersMinimum, kFive, MultiplyLowMuldersScratch, MultiplyLowMulders},
    {"transform", kProduct, 1, 2000, NttScratch, Ntt},
    {"its square", kSquare, 1, 2000, NttScratch, Ntt},
    {"balanced", kProduct, 1, 20'000, MultiplyBalancedScratch, MultiplyBalanced},
    {"any square", kSquare, 1, 20'000, SquareScratch,
     [](auto* r, auto* a, auto*, auto n, auto* scratch) { Square(r, a, n, scratch); }},
    {"any low half", kLow, 1, 20'000, MultiplyLowScratch, MultiplyLow},
};

TEST(NaturalMultiply, EachFormEqualsGmp) {
    for (const Form& form : kForms) {
        Generator generator(form.last);
        for (std::size_t n = form.first; n <= form.last; n += n < kFive ? 1 : n / 4) {
            for (int kind = 0; kind < static_cast<int>(Kind::kCount); ++kind) {
                const Limbs a = generator.Take(n, static_cast<Kind>(kind));
                const Limbs b = generator.Take(n, generator.AnyKind());
                ASSERT_NO_FATAL_FAILURE(Check(form, a, b));
                ASSERT_NO_FATAL_FAILURE(Check(form, b, a));
                ASSERT_NO_FATAL_FAILURE(Check(form, a, a));
            }
        }
    }
}

// A product of the top thirds that is all ones, and a middle coefficient that carries into it.
TEST(NaturalMultiply, ToomCarriesThroughTheTopProduct) {
    const Form form{"Toom 3", kProduct, 9, 99, MultiplyToom3Scratch, MultiplyToom3};
    for (const std::size_t count : {9U, 30U, 99U}) {
        const Limbs a(count, ~Limb{0});
        Limbs b(count, 0);
        const std::size_t part = CountOfThird(count);
        std::fill_n(b.begin(), 2 * part, ~Limb{0});
        b[2 * part] = 1;
        ASSERT_NO_FATAL_FAILURE(Check(form, a, b));
    }
}

void CheckAny(const Limbs& a, const Limbs& b) {
    Guarded result(a.size() + b.size()), scratch(MultiplyScratch(a.size(), b.size()));
    Multiply(result.Data(), a.data(), a.size(), b.data(), b.size(), scratch.Data());
    ASSERT_TRUE(result.Value() == ExpectedProduct(a, b)) << a.size() << " by " << b.size();
    ASSERT_TRUE(result.IsIntact() && scratch.IsIntact()) << a.size() << " by " << b.size();
}

// The wide ones have transforms of one, three and five rows, with an even and with an odd number of
// levels, beyond what they do level by level; and the pieces of long operands.
TEST(NaturalMultiply, AnyCountsEqualGmp) {
    Generator generator(7);
    for (int round = 0; round < 600; ++round) {
        const std::size_t most = round % 2 == 0 ? 14 : round % 9 == 0 ? 2000 : 300;
        const Limbs a = generator.Take(generator.Between(1, most), generator.AnyKind());
        const Limbs b = generator.Take(generator.Between(1, most / 2), generator.AnyKind());
        ASSERT_NO_FATAL_FAILURE(CheckAny(a, b));
        ASSERT_NO_FATAL_FAILURE(CheckAny(b, b));
    }
    const std::pair<std::size_t, std::size_t> shapes[] = {
        {3600, 3400},  {5000, 5000},   {8000, 6500},  {13000, 13000},   {16384, 16384},
        {16384, 100},  {16384, 1500},  {16384, 4000}, {20000, 9},       {40000, 3001},
        {99999, 2500}, {312500, 5000}, {312500, 40},  {312500, 312500},
    };
    for (const auto& [aCount, bCount] : shapes) {
        ASSERT_NO_FATAL_FAILURE(
            CheckAny(generator.Take(aCount, Kind::kOnes), generator.Take(bCount, Kind::kOnes)));
        ASSERT_NO_FATAL_FAILURE(
            CheckAny(generator.Take(bCount, Kind::kRuns), generator.Take(aCount, Kind::kRandom)));
    }
}

}  // namespace
}  // namespace tarn
