// The division kernels on naturals, each algorithm on its own, against GMP and by construction.
#include <algorithm>
#include <cstddef>
#include <gmp.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "arith/natural/divide.h"
#include "arith/natural/divide_base.h"
#include "arith/natural/product_scratch.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"
#include "natural_support.h"

namespace tarn {
namespace {

struct Quotient {
    Limbs quotient;
    Limbs remainder;
};

Quotient ExpectedQuotient(const Limbs& a, const Limbs& d) {
    Quotient expected{Limbs(a.size() - d.size() + 1), Limbs(d.size())};
    mpn_tdiv_qr(expected.quotient.data(), expected.remainder.data(), 0, a.data(),
                static_cast<mp_size_t>(a.size()), d.data(), static_cast<mp_size_t>(d.size()));
    return expected;
}

std::string Shape(const Limbs& a, const Limbs& d) {
    return std::to_string(a.size()) + " limbs by " + std::to_string(d.size());
}

// Divide with both results wanted, and with either one left out.
void CheckDivide(const Limbs& a, const Limbs& d) {
    const Quotient expected = ExpectedQuotient(a, d);
    for (const bool wantQuotient : {true, false}) {
        for (const bool wantRemainder : {true, false}) {
            Guarded quotient(expected.quotient.size()), remainder(d.size());
            Guarded scratch(DivideScratch(a.size(), d.size()));
            Divide(wantQuotient ? quotient.Data() : nullptr,
                   wantRemainder ? remainder.Data() : nullptr, a.data(), a.size(), d.data(),
                   d.size(), scratch.Data());
            ASSERT_TRUE((!wantQuotient || quotient.Value() == expected.quotient) &&
                        (!wantRemainder || remainder.Value() == expected.remainder) &&
                        quotient.IsIntact() && remainder.IsIntact() && scratch.IsIntact())
                << Shape(a, d) << (wantQuotient ? ", quotient" : "")
                << (wantRemainder ? ", remainder" : "");
        }
    }
}

// An algorithm on normalised divisors, and the fewest limbs of a quotient that it takes.
struct Form {
    const char* name;
    decltype(&DivideByHalves) divide;
    decltype(&DivideScratch) scratch;
    std::size_t leafCount, least;
};

Limb ByLimbs(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d, std::size_t dCount,
             const TopDivisor& top, std::size_t, Limb*) noexcept {
    return DivideSchoolbook(quotient, a, aCount, d, dCount, top);
}
std::size_t HalvesScratch(std::size_t, std::size_t dCount) noexcept {
    return DivideByHalvesScratch(dCount);
}

void CheckForm(const Form& form, const Limbs& a, const Limbs& d) {
    const Quotient expected = ExpectedQuotient(a, d);
    Guarded quotient(a.size() - d.size()), dividend(a.size());
    Guarded scratch(form.scratch(a.size(), d.size()));
    std::copy(a.begin(), a.end(), dividend.Data());
    const TopDivisor top(d[d.size() - 1], d[d.size() - 2]);
    const Limb high = form.divide(quotient.Data(), dividend.Data(), a.size(), d.data(), d.size(),
                                  top, form.leafCount, scratch.Data());
    Limbs found = quotient.Value(), remainder = dividend.Value();
    found.push_back(high);
    remainder.resize(d.size());
    ASSERT_TRUE(found == expected.quotient && remainder == expected.remainder &&
                quotient.IsIntact() && dividend.IsIntact() && scratch.IsIntact())
        << form.name << " with leaf " << form.leafCount << ", " << Shape(a, d);
}

constexpr Limb kTopBit = Limb{1} << (kLimbBits - 1);

// A divisor with a top limb that is hard on estimates, or any.
Limbs HardDivisor(Generator& generator, std::size_t count) {
    Limbs d = generator.Take(count, generator.AnyKind());
    const Limb tops[] = {kTopBit, ~Limb{0}, 1, d.back() | kTopBit, kTopBit, d.back()};
    const std::size_t choice = generator.Between(0, 5);
    // A long run of zeros below the top makes the estimates too great.
    if (choice == 4) std::fill_n(d.rbegin(), count - count / 2, Limb{0});
    d.back() = tops[choice] != 0 ? tops[choice] : 1 + generator.Between(0, 3);
    return d;
}

// A dividend of aCount limbs close to a multiple of d: q * d + d - 1, q * d - 1 or q * d itself,
// where q is hard as well; or any.
Limbs HardDividend(Generator& generator, std::size_t aCount, const Limbs& d) {
    if (aCount == d.size() || generator.Between(0, 3) == 0) {
        return generator.Take(aCount, generator.AnyKind());
    }
    const Limbs q = generator.Take(aCount - d.size(), generator.AnyKind());
    const auto& [narrow, wide] =
        std::minmax(q, d, [](const Limbs& x, const Limbs& y) { return x.size() < y.size(); });
    Limbs a(aCount);
    mpn_mul(a.data(), wide.data(), static_cast<mp_size_t>(wide.size()), narrow.data(),
            static_cast<mp_size_t>(narrow.size()));
    const std::size_t choice = generator.Between(0, 2);
    if (choice == 1) Add(a.data(), a.data(), aCount, d.data(), d.size());
    if (choice != 2) SubtractLimb(a.data(), a.data(), aCount, 1);
    return a;
}

TEST(NaturalDivide, AnyCountsEqualGmp) {
    Generator generator(2);
    const auto check = [&](std::size_t aCount, std::size_t dCount) {
        const Limbs d = HardDivisor(generator, dCount);
        ASSERT_NO_FATAL_FAILURE(CheckDivide(HardDividend(generator, aCount, d), d));
    };
    for (int i = 0; i < 6000; ++i) {
        const std::size_t most[] = {2, 12, 3 * kDivideHalvesLimbs};
        const std::size_t dCount = generator.Between(1, most[i % 3]);
        check(dCount + generator.Between(0, i % 2 == 0 ? 24 : 4 * kDivideHalvesLimbs), dCount);
        ASSERT_FALSE(HasFailure());
    }
    const std::size_t shapes[][2] = {{1024, 512},    {1024, 1000},    {1024, 30},     {2049, 700},
                                     {16384, 8192},  {16384, 100},    {16384, 16300}, {16384, 5000},
                                     {16384, 12000}, {312500, 156250}};
    for (const auto& [aCount, dCount] : shapes) {
        check(aCount, dCount);
    }
}

TEST(NaturalDivide, EachAlgorithmOnItsOwn) {
    Generator generator(4);
    for (const Form& form :
         {Form{"schoolbook", ByLimbs, HalvesScratch, 0, 0},
          Form{"halves", DivideByHalves, HalvesScratch, 4, 0},
          Form{"halves", DivideByHalves, HalvesScratch, 7, 0},
          Form{"halves", DivideByHalves, HalvesScratch, 20, 0},
          Form{"reciprocal", DivideByReciprocal, DivideByReciprocalScratch, 2, 4},
          Form{"reciprocal", DivideByReciprocal, DivideByReciprocalScratch, 9, 4}}) {
        for (int i = 0; i < 3000; ++i) {
            const std::size_t dCount = generator.Between(2, 70);
            const std::size_t most = generator.Between(0, 1) == 0 ? dCount : 150;
            const std::size_t count = generator.Between(form.least, std::max(form.least, most));
            Limbs d = HardDivisor(generator, dCount);
            d.back() |= kTopBit;
            ASSERT_NO_FATAL_FAILURE(CheckForm(form, HardDividend(generator, dCount + count, d), d));
        }
    }
}

// X d < 2^(128 count) < (X + 2) d, for X = 2^(64 count) + x.
TEST(NaturalDivide, ReciprocalsAreAtMostTwoTooSmall) {
    Generator generator(7);
    for (int i = 0; i < 3000; ++i) {
        const std::size_t count = generator.Between(2, i % 10 == 0 ? 300 : 40);
        const std::size_t leafCount = generator.Between(2, 12);
        Limbs d = HardDivisor(generator, count);
        d.back() |= kTopBit;
        const TopDivisor top(d[count - 1], d[count - 2]);
        Guarded x(count), scratch(ApproximateReciprocalScratch(count));
        ApproximateReciprocal(x.Data(), d.data(), count, top, leafCount, scratch.Data());
        ASSERT_TRUE(x.IsIntact() && scratch.IsIntact()) << count << " limbs, leaf " << leafCount;
        Limbs product(2 * count);
        mpn_mul_n(product.data(), x.Data(), d.data(), static_cast<mp_size_t>(count));
        Limb carry = AddN(product.data() + count, product.data() + count, d.data(), count);
        const bool isBelow = carry == 0;
        carry += Add(product.data(), product.data(), 2 * count, d.data(), count);
        carry += Add(product.data(), product.data(), 2 * count, d.data(), count);
        ASSERT_TRUE(isBelow && carry == 1 && !IsZero(product.data(), 2 * count))
            << count << " limbs, leaf " << leafCount;
    }
}

TEST(NaturalDivide, ScratchCoversAllSmallerOperands) {
    Generator generator(6);
    for (int i = 0; i < 20000; ++i) {
        const std::size_t most = std::size_t{1} << generator.Between(3, 17);
        const std::size_t aCount = generator.Between(1, most), b = generator.Between(1, most);
        const std::size_t a = generator.Between(1, aCount), d = generator.Between(1, a);
        ASSERT_GE(DivideScratch(aCount, aCount), DivideScratch(a, d)) << a << " by " << d;
        ASSERT_GE(ProductScratch(aCount + b), MultiplyScratch(a, b)) << a << " times " << b;
    }
}

}  // namespace
}  // namespace tarn
