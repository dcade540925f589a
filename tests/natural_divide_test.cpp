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
            ASSERT_TRUE(!wantQuotient || quotient.Value() == expected.quotient) << Shape(a, d);
            ASSERT_TRUE(!wantRemainder || remainder.Value() == expected.remainder) << Shape(a, d);
            ASSERT_TRUE(quotient.IsIntact() && remainder.IsIntact()) << Shape(a, d);
            ASSERT_TRUE(scratch.IsIntact()) << Shape(a, d) << ", scratch";
        }
    }
}

// An algorithm on normalised divisors.
enum class Method { kSchoolbook, kHalves, kReciprocal };
struct Form {
    Method method;
    std::size_t leafCount;
};

std::size_t ScratchOf(const Form& form, std::size_t aCount, std::size_t dCount) {
    switch (form.method) {
        case Method::kSchoolbook:
            return 0;
        case Method::kHalves:
            return DivideByHalvesScratch(dCount);
        default:
            return DivideByReciprocalScratch(aCount, dCount);
    }
}

std::string Shape(const Form& form, const Limbs& a, const Limbs& d) {
    return "method " + std::to_string(static_cast<int>(form.method)) + " with leaf " +
           std::to_string(form.leafCount) + ", " + Shape(a, d);
}

void CheckForm(const Form& form, const Limbs& a, const Limbs& d) {
    const Quotient expected = ExpectedQuotient(a, d);
    const std::size_t count = a.size() - d.size();
    const TopDivisor top(d[d.size() - 1], d[d.size() - 2]);
    Guarded quotient(count), dividend(a.size()), scratch(ScratchOf(form, a.size(), d.size()));
    std::copy(a.begin(), a.end(), dividend.Data());
    const auto run = [&](auto divide, auto... more) {
        return divide(quotient.Data(), dividend.Data(), a.size(), d.data(), d.size(), top, more...);
    };
    Limb high = 0;
    switch (form.method) {
        case Method::kSchoolbook:
            high = run(DivideSchoolbook);
            break;
        case Method::kHalves:
            high = run(DivideByHalves, form.leafCount, scratch.Data());
            break;
        default:
            high = run(DivideByReciprocal, form.leafCount, scratch.Data());
            break;
    }
    Limbs found = quotient.Value();
    found.push_back(high);
    ASSERT_EQ(found, expected.quotient) << Shape(form, a, d);
    Limbs remainder = dividend.Value();
    remainder.resize(d.size());
    ASSERT_EQ(remainder, expected.remainder) << Shape(form, a, d);
    ASSERT_TRUE(quotient.IsIntact() && dividend.IsIntact() && scratch.IsIntact())
        << Shape(form, a, d);
}

constexpr Limb kTopBit = Limb{1} << (kLimbBits - 1);

// A divisor with a top limb that is hard on estimates, or any.
Limbs HardDivisor(Generator& generator, std::size_t count) {
    Limbs d = generator.Take(count, generator.AnyKind());
    switch (generator.Between(0, 5)) {
        case 0:
            d.back() = kTopBit;
            break;
        case 1:
            d.back() = ~Limb{0};
            break;
        case 2:
            d.back() = 1;
            break;
        case 3:
            d.back() |= kTopBit;
            break;
        case 4:  // A long run of zeros below the top makes the estimates too great.
            std::fill(d.begin() + static_cast<std::ptrdiff_t>(count / 2), d.end(), Limb{0});
            d.back() = kTopBit;
            break;
        default:
            break;
    }
    if (d.back() == 0) d.back() = 1 + generator.Between(0, 3);
    return d;
}

// A dividend of aCount limbs close to a multiple of d: q * d + d - 1, q * d - 1 or q * d itself,
// where q is hard as well; or any.
Limbs HardDividend(Generator& generator, std::size_t aCount, const Limbs& d) {
    if (aCount == d.size() || generator.Between(0, 3) == 0) {
        return generator.Take(aCount, generator.AnyKind());
    }
    const Limbs q = generator.Take(aCount - d.size(), generator.AnyKind());
    Limbs a(aCount);
    const bool swap = q.size() > d.size();
    mpn_mul(a.data(), swap ? q.data() : d.data(),
            static_cast<mp_size_t>(std::max(q.size(), d.size())), swap ? d.data() : q.data(),
            static_cast<mp_size_t>(std::min(q.size(), d.size())));
    switch (generator.Between(0, 2)) {
        case 0:
            SubtractLimb(a.data(), a.data(), aCount, 1);
            break;
        case 1:
            Add(a.data(), a.data(), aCount, d.data(), d.size());
            SubtractLimb(a.data(), a.data(), aCount, 1);
            break;
        default:
            break;
    }
    return a;
}

TEST(NaturalDivide, ReciprocalStepsMatchTheHardwaresDivision) {
    Generator generator(1);
    for (int i = 0; i < 20000; ++i) {
        const Limbs d = HardDivisor(generator, 2);
        const Limb divisor = d[1] | kTopBit;
        const LimbDivisor limbDivisor(divisor);
        Limbs r = HardDividend(generator, 3, {d[0], divisor});
        Limb remainder = i % 7 == 0 ? divisor - 1 : r[1] % divisor;
        const DoubleLimb a = MakeDoubleLimb(remainder, r[0]);
        ASSERT_EQ(limbDivisor.Step(&remainder, r[0]), LowLimb(a / divisor));
        ASSERT_EQ(remainder, LowLimb(a % divisor));
    }
    // 3 / 2 limbs: q * d + r in reverse, with r at both ends of its range.
    for (int i = 0; i < 20000; ++i) {
        const Limbs d = HardDivisor(generator, 2);
        const TopDivisor top(d[1] | kTopBit, d[0]);
        const Limb q = generator.Take(1, generator.AnyKind())[0];
        const DoubleLimb rest = i % 2 == 0 ? top.top - 1 : DoubleLimb{d[1]} % top.top;
        const DoubleLimb low = MultiplyLimbs(q, LowLimb(top.top));
        const DoubleLimb sum = low + rest;
        const DoubleLimb upper = MultiplyLimbs(q, HighLimb(top.top)) + HighLimb(sum) +
                                 (sum < low ? DoubleLimb{1} << kLimbBits : DoubleLimb{0});
        DoubleLimb remainder = upper;
        ASSERT_EQ(top.Step(&remainder, LowLimb(sum)), q);
        ASSERT_TRUE(remainder == rest);
    }
}

TEST(NaturalDivide, EveryShapeUpToTwelveLimbs) {
    Generator generator(2);
    for (std::size_t dCount = 1; dCount <= 12; ++dCount) {
        for (std::size_t aCount = dCount; aCount <= 2 * dCount + 12; ++aCount) {
            for (int i = 0; i < 12; ++i) {
                const Limbs d = HardDivisor(generator, dCount);
                ASSERT_NO_FATAL_FAILURE(CheckDivide(HardDividend(generator, aCount, d), d));
            }
        }
    }
}

TEST(NaturalDivide, HardOperandsOnBothSidesOfTheThreshold) {
    Generator generator(3);
    constexpr std::size_t kEdge = kDivideHalvesLimbs;
    for (int i = 0; i < 3000; ++i) {
        const Limbs d = HardDivisor(generator, generator.Between(kEdge - 4, 3 * kEdge));
        const std::size_t count = generator.Between(kEdge - 4, kEdge + 4);
        const std::size_t aCount = d.size() + count * generator.Between(0, 3);
        ASSERT_NO_FATAL_FAILURE(CheckDivide(HardDividend(generator, aCount, d), d));
    }
}

TEST(NaturalDivide, EachAlgorithmOnItsOwn) {
    Generator generator(4);
    for (const Form& form :
         {Form{Method::kSchoolbook, 0}, Form{Method::kHalves, 4}, Form{Method::kHalves, 7},
          Form{Method::kHalves, 20}, Form{Method::kReciprocal, 2}, Form{Method::kReciprocal, 9}}) {
        const std::size_t least = form.method == Method::kReciprocal ? 4 : 0;
        for (int i = 0; i < 3000; ++i) {
            const std::size_t dCount = generator.Between(2, 70);
            const std::size_t most = generator.Between(0, 1) == 0 ? dCount : 150;
            const std::size_t count = generator.Between(least, std::max(least, most));
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
        ASSERT_EQ(AddN(product.data() + count, product.data() + count, d.data(), count), 0)
            << count << " limbs, leaf " << leafCount;
        Limb carry = Add(product.data(), product.data(), 2 * count, d.data(), count);
        carry += Add(product.data(), product.data(), 2 * count, d.data(), count);
        ASSERT_EQ(carry, 1U) << count << " limbs, leaf " << leafCount;
        ASSERT_FALSE(IsZero(product.data(), 2 * count)) << count << " limbs, leaf " << leafCount;
    }
}

TEST(NaturalDivide, WideOperands) {
    Generator generator(5);
    const std::size_t shapes[][2] = {{1024, 512},    {1024, 1000},  {1024, 30},
                                     {2049, 700},    {16384, 8192}, {16384, 100},
                                     {16384, 16300}, {16384, 5000}, {16384, 12000}};
    for (const auto& [aCount, dCount] : shapes) {
        const Limbs d = HardDivisor(generator, dCount);
        ASSERT_NO_FATAL_FAILURE(CheckDivide(HardDividend(generator, aCount, d), d));
    }
}

// The widest division, by construction: a = q * d + r with hard q, d and r.
TEST(NaturalDivide, OperandsAtTheLimit) {
    Generator generator(8);
    const std::size_t dCount = 156250, count = 312500 - dCount;
    const Limbs d = HardDivisor(generator, dCount);
    const Limbs q = generator.Take(count, Kind::kRuns);
    Limbs r(d);
    SubtractLimb(r.data(), r.data(), dCount, 1);
    Limbs a(dCount + count);
    mpn_mul(a.data(), d.data(), static_cast<mp_size_t>(dCount), q.data(),
            static_cast<mp_size_t>(count));
    Add(a.data(), a.data(), a.size(), r.data(), dCount);
    Guarded quotient(count + 1), remainder(dCount), scratch(DivideScratch(a.size(), dCount));
    Divide(quotient.Data(), remainder.Data(), a.data(), a.size(), d.data(), dCount, scratch.Data());
    Limbs found = quotient.Value();
    EXPECT_EQ(found.back(), 0U);
    found.pop_back();
    EXPECT_TRUE(found == q);
    EXPECT_TRUE(remainder.Value() == r);
    EXPECT_TRUE(quotient.IsIntact() && remainder.IsIntact() && scratch.IsIntact());
}

TEST(NaturalDivide, ScratchIsASmallMultipleAndCoversAllSmallerOperands) {
    Generator generator(6);
    EXPECT_LT(DivideScratch(312500, 312500), 12 * std::size_t{312500});
    EXPECT_LT(DivideScratch(312500, 156250), 12 * std::size_t{312500});
    for (int i = 0; i < 20000; ++i) {
        const std::size_t most = std::size_t{1} << generator.Between(3, 17);
        const std::size_t aCount = generator.Between(1, most);
        const std::size_t a = generator.Between(1, aCount), d = generator.Between(1, a);
        ASSERT_GE(DivideScratch(aCount, aCount), DivideScratch(a, d)) << a << " by " << d;
        const std::size_t b = generator.Between(1, most);
        ASSERT_GE(ProductScratch(aCount + b), MultiplyScratch(a, b)) << a << " times " << b;
    }
}

}  // namespace
}  // namespace tarn
