// The product kernels on naturals, each algorithm on its own, against GMP.
#include <algorithm>
#include <cstddef>
#include <functional>
#include <gmp.h>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "arith/natural/multiply.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/thresholds.h"
#include "natural_support.h"

namespace tarn {
namespace {

Limbs ExpectedProduct(const Limbs& a, const Limbs& b) {
    Limbs product(a.size() + b.size());
    const bool swap = a.size() < b.size();
    const Limbs& wide = swap ? b : a;
    const Limbs& narrow = swap ? a : b;
    mpn_mul(product.data(), wide.data(), static_cast<mp_size_t>(wide.size()), narrow.data(),
            static_cast<mp_size_t>(narrow.size()));
    return product;
}

using Run = std::function<void(Limb* result, const Limbs& a, const Limbs& b, Limb* scratch)>;

// One form of the product: what it takes and how it is called.
struct Form {
    const char* name;
    std::size_t minimum;
    bool isLow;
    bool isSquare;
    std::function<std::size_t(std::size_t)> scratch;
    Run run;
    std::vector<std::size_t> counts;
};

void Check(const Form& form, const Limbs& a, const Limbs& b) {
    const std::size_t count = form.isLow ? a.size() : 2 * a.size();
    Guarded result(count), scratch(form.scratch(a.size()));
    form.run(result.Data(), a, b, scratch.Data());
    Limbs expected = ExpectedProduct(a, form.isSquare ? a : b);
    expected.resize(count);
    ASSERT_TRUE(result.Value() == expected) << form.name << " of " << a.size() << " limbs";
    ASSERT_TRUE(result.IsIntact()) << form.name << " of " << a.size() << " limbs";
    ASSERT_TRUE(scratch.IsIntact()) << form.name << " of " << a.size() << " limbs, scratch";
}

std::vector<std::size_t> Range(std::size_t first, std::size_t last) {
    std::vector<std::size_t> counts;
    for (std::size_t count = first; count <= last; ++count)
        counts.push_back(count);
    return counts;
}

std::size_t NoScratch(std::size_t) {
    return 0;
}

Form Balanced(const char* name,
              void (*multiply)(Limb*, const Limb*, const Limb*, std::size_t, Limb*),
              std::size_t (*scratch)(std::size_t), std::vector<std::size_t> counts) {
    return {name,
            1,
            false,
            false,
            scratch,
            [multiply](Limb* result, const Limbs& a, const Limbs& b, Limb* rest) {
                multiply(result, a.data(), b.data(), a.size(), rest);
            },
            std::move(counts)};
}

Form Squared(const char* name,
             void (*multiply)(Limb*, const Limb*, const Limb*, std::size_t, Limb*),
             std::size_t (*scratch)(std::size_t), std::vector<std::size_t> counts) {
    return {name,
            1,
            false,
            true,
            scratch,
            [multiply](Limb* result, const Limbs& a, const Limbs&, Limb* rest) {
                multiply(result, a.data(), nullptr, a.size(), rest);
            },
            std::move(counts)};
}

Form Low(const char* name, void (*multiply)(Limb*, const Limb*, const Limb*, std::size_t, Limb*),
         std::size_t (*scratch)(std::size_t), std::vector<std::size_t> counts) {
    Form form = Balanced(name, multiply, scratch, std::move(counts));
    form.isLow = true;
    return form;
}

void BasecaseBalanced(Limb* result, const Limb* a, const Limb* b, std::size_t count, Limb*) {
    MultiplyBasecase(result, a, count, b, count);
}
void BasecaseSquare(Limb* result, const Limb* a, const Limb*, std::size_t count, Limb*) {
    SquareBasecase(result, a, count);
}
void BasecaseLow(Limb* result, const Limb* a, const Limb* b, std::size_t count, Limb*) {
    MultiplyLowBasecase(result, a, b, count);
}
void Transform(Limb* result, const Limb* a, const Limb* b, std::size_t count, Limb* scratch) {
    MultiplyNtt(result, a, count, b, count, scratch);
}
std::size_t TransformScratch(std::size_t count) {
    return MultiplyNttScratch(count, count);
}
void AnyBalanced(Limb* result, const Limb* a, const Limb* b, std::size_t count, Limb* scratch) {
    Multiply(result, a, count, b, count, scratch);
}
std::size_t AnyBalancedScratch(std::size_t count) {
    return MultiplyScratch(count, count);
}
void AnySquare(Limb* result, const Limb* a, const Limb*, std::size_t count, Limb* scratch) {
    Square(result, a, count, scratch);
}

std::vector<Form> Forms() {
    const std::size_t k = kKaratsubaThreshold;
    return {
        Balanced("basecase", BasecaseBalanced, NoScratch, Range(1, 2 * k)),
        Squared("square basecase", BasecaseSquare, NoScratch, Range(1, 2 * k)),
        Low("low basecase", BasecaseLow, NoScratch, Range(1, 2 * k)),
        Balanced("Karatsuba", MultiplyKaratsuba, MultiplyKaratsubaScratch,
                 Range(kKaratsubaMinimum, 3 * k)),
        Squared("square Karatsuba", MultiplyKaratsuba, MultiplyKaratsubaScratch,
                Range(kKaratsubaMinimum, 3 * k)),
        Balanced("Toom 3", MultiplyToom3, MultiplyToom3Scratch, Range(kToom3Minimum, 5 * k)),
        Squared("square Toom 3", MultiplyToom3, MultiplyToom3Scratch, Range(kToom3Minimum, 5 * k)),
        Balanced("transform", Transform, TransformScratch, Range(1, 70)),
        Balanced("wider transform", Transform, TransformScratch, {150, 300, 431, 700, 1100, 1750}),
        Squared("square transform", Transform, TransformScratch, Range(1, 70)),
        Low("Mulders", MultiplyLowMulders, MultiplyLowMuldersScratch,
            Range(kMuldersMinimum, 3 * k)),
        Balanced("any", AnyBalanced, AnyBalancedScratch,
                 {1, 2, 3, 27, 64, 100, 255, 256, 257, 600}),
        Squared("any square", AnySquare, SquareScratch, {1, 2, 3, 27, 64, 100, 255, 256, 257, 600}),
        Low("any low", MultiplyLow, MultiplyLowScratch, {1, 2, 3, 27, 64, 100, 255, 256, 257, 600}),
    };
}

TEST(NaturalMultiply, EachFormEqualsGmp) {
    for (const Form& form : Forms()) {
        Generator generator(form.counts.size());
        for (const std::size_t count : form.counts) {
            for (int kind = 0; kind < static_cast<int>(Kind::kCount); ++kind) {
                const Limbs a = generator.Take(count, static_cast<Kind>(kind));
                const Limbs b = generator.Take(count, generator.AnyKind());
                ASSERT_NO_FATAL_FAILURE(Check(form, a, b));
                ASSERT_NO_FATAL_FAILURE(Check(form, b, a));
            }
            const Limbs ones = generator.Take(count, Kind::kOnes);
            ASSERT_NO_FATAL_FAILURE(Check(form, ones, ones));
        }
    }
}

// A product of the top thirds that is all ones, and a middle coefficient that carries into it.
TEST(NaturalMultiply, ToomCarriesThroughTheTopProduct) {
    const Form form = Balanced("Toom 3", MultiplyToom3, MultiplyToom3Scratch, {});
    for (const std::size_t count : {9U, 30U, 99U}) {
        const Limbs a(count, ~Limb{0});
        Limbs b(count, 0);
        const std::size_t part = CountOfThird(count);
        std::fill_n(b.begin(), 2 * part, ~Limb{0});
        b[2 * part] = 1;
        ASSERT_NO_FATAL_FAILURE(Check(form, a, b));
    }
}

void CheckUnbalanced(const Limbs& a, const Limbs& b) {
    Guarded result(a.size() + b.size()), scratch(MultiplyScratch(a.size(), b.size()));
    Multiply(result.Data(), a.data(), a.size(), b.data(), b.size(), scratch.Data());
    ASSERT_TRUE(result.Value() == ExpectedProduct(a, b)) << a.size() << " by " << b.size();
    ASSERT_TRUE(result.IsIntact()) << a.size() << " by " << b.size();
    ASSERT_TRUE(scratch.IsIntact()) << a.size() << " by " << b.size() << ", scratch";
}

TEST(NaturalMultiply, UnbalancedEqualsGmp) {
    Generator generator(7);
    for (std::size_t aCount = 1; aCount <= 14; ++aCount) {
        for (std::size_t bCount = 1; bCount <= 14; ++bCount) {
            const Limbs a = generator.Take(aCount, generator.AnyKind());
            const Limbs b = generator.Take(bCount, generator.AnyKind());
            ASSERT_NO_FATAL_FAILURE(CheckUnbalanced(a, b));
        }
    }
    for (int round = 0; round < 150; ++round) {
        const std::size_t bCount = generator.Between(1, 20 + 2 * kKaratsubaThreshold);
        const std::size_t aCount = generator.Between(1, round % 8 == 0 ? 2000 : 300);
        const Limbs a = generator.Take(aCount, generator.AnyKind());
        const Limbs b = generator.Take(bCount, generator.AnyKind());
        ASSERT_NO_FATAL_FAILURE(CheckUnbalanced(a, b));
    }
}

// Transforms of one, three and five rows, with an even and with an odd number of levels, beyond
// what they do level by level; and the pieces of long operands.
TEST(NaturalMultiply, WideEqualsGmp) {
    Generator generator(13);
    const std::pair<std::size_t, std::size_t> shapes[] = {
        {3600, 3400},  {5000, 5000},   {8000, 6500},  {13000, 13000},   {16384, 16384},
        {16384, 100},  {16384, 1500},  {16384, 4000}, {20000, 9},       {40000, 3001},
        {99999, 2500}, {312500, 5000}, {312500, 40},  {312500, 312500},
    };
    for (const auto& [aCount, bCount] : shapes) {
        const Limbs a = generator.Take(aCount, Kind::kOnes);
        const Limbs b = generator.Take(bCount, Kind::kOnes);
        ASSERT_NO_FATAL_FAILURE(CheckUnbalanced(a, b));
        const Limbs c = generator.Take(aCount, Kind::kRandom);
        const Limbs d = generator.Take(bCount, Kind::kRuns);
        ASSERT_NO_FATAL_FAILURE(CheckUnbalanced(d, c));
    }
}

TEST(NaturalMultiply, WideSquareAndLowHalfEqualGmp) {
    Generator generator(17);
    const Form square = Squared("any square", AnySquare, SquareScratch, {});
    const Form low = Low("any low", MultiplyLow, MultiplyLowScratch, {});
    for (const std::size_t count : {1500U, 2700U, 4100U, 16384U}) {
        const Limbs a = generator.Take(count, Kind::kRandom);
        const Limbs b = generator.Take(count, Kind::kOnes);
        ASSERT_NO_FATAL_FAILURE(Check(square, a, a));
        ASSERT_NO_FATAL_FAILURE(Check(square, b, b));
        ASSERT_NO_FATAL_FAILURE(Check(low, a, b));
    }
}

TEST(NaturalMultiply, ProductOfOneStorageWithItselfIsItsSquare) {
    Generator generator(11);
    for (const std::size_t count : {1U, 5U, 30U, 100U, 300U}) {
        const Limbs a = generator.Take(count, Kind::kRuns);
        ASSERT_NO_FATAL_FAILURE(CheckUnbalanced(a, a));
    }
}

}  // namespace
}  // namespace tarn
