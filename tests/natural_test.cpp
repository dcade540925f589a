// The kernels on naturals, each algorithm on its own, against GMP; then the storage that they take.
// Products come before quotients, whose corrections a wrong product keeps busy without end.
#include <algorithm>
#include <cstddef>
#include <gmp.h>
#include <gtest/gtest.h>
#include <span>
#include <utility>

#include "arith/natural/divide.h"
#include "arith/natural/divide_base.h"
#include "arith/natural/multiply.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/product_scratch.h"
#include "arith/natural/radix.h"
#include "arith/natural/span.h"
#include "arith/product.h"
#include "arith/scratch.h"
#include "natural_support.h"

namespace tarn {
namespace {

// What an algorithm computes of operands of a longer and a shorter count: their product; of the
// shorter count both: the product, the square of the first if there is no second, the low half of
// the product; quotient and remainder, by any divisor or one with its top bit set.
enum class Kind { kProduct, kBalanced, kLow, kQuotient, kNormalised };
using enum Kind;

struct Algorithm {
    const char* name;
    Kind kind;
    std::size_t least, most;  // limbs of the shorter operand, or of divisor and quotient
    std::size_t (*scratch)(std::size_t aCount, std::size_t bCount);
    void (*run)(Limb* result, const Limb* a, std::size_t aCount, const Limb* b, std::size_t bCount,
                Limb* scratch);
};

Limbs Expected(Kind kind, const Limbs& a, const Limbs& b) {
    const auto aCount = static_cast<mp_size_t>(a.size()), bCount = static_cast<mp_size_t>(b.size());
    Limbs result(a.size() + (kind < kQuotient ? b.size() : 1));
    if (kind < kQuotient) {
        mpn_mul(result.data(), a.data(), aCount, b.data(), bCount);
        if (kind == kLow) result.resize(a.size());
    } else {
        Limb* const remainder = result.data() + (a.size() - b.size() + 1);
        mpn_tdiv_qr(result.data(), remainder, 0, a.data(), aCount, b.data(), bCount);
    }
    return result;
}

void Check(Gen& gen, const Algorithm& algorithm, const Limbs& a, const Limbs& b) {
    static GuardedBlock aBlock, bBlock, resultBlock, scratchBlock;
    const Limbs expected = Expected(algorithm.kind, a, b);
    const Limb* const aPlaced = Place(gen, aBlock, a);
    const bool isSquare = algorithm.kind == kBalanced && a == b;
    const Limb* const bPlaced = isSquare ? nullptr : Place(gen, bBlock, b);
    Limb* const result = PlaceJunk(gen, resultBlock, expected.size());
    Limb* const scratch = PlaceJunk(gen, scratchBlock, algorithm.scratch(a.size(), b.size()));
    algorithm.run(result, aPlaced, a.size(), bPlaced, b.size(), scratch);
    ASSERT_TRUE(Holds(resultBlock, result, expected) && scratchBlock.MarginsAreIntact())
        << gen.Reproducer(algorithm.name, a.size(), b.size());
}

// Quotient limbs are hardest to estimate where the divisor's top limb is an extreme one and zeros
// follow, or where the limb below takes the reciprocal to the border of its correction.
Limbs TakeDivisor(Gen& gen, std::size_t count, bool isNormalised) {
    constexpr Limb kTopBit = Limb{1} << (kLimbBits - 1);
    Limbs d = TakeLimbs(gen, count);
    Limb& top = d.back();
    const Limb tops[] = {kTopBit, ~Limb{0}, 1 + gen.Bits() % 4, std::max<Limb>(top, 1)};
    top = tops[gen.Below(4)];
    if (isNormalised || gen.OneIn(2)) top |= kTopBit;
    if (gen.OneIn(4)) std::fill_n(d.rbegin() + 1, (count - 1) / 2, Limb{0});
    if (count > 1 && top >= kTopBit && gen.OneIn(4)) {
        d[count - 2] = top * (1 - LimbDivisor(top).reciprocal);
    }
    return d;
}

// Any dividend, or one close to a multiple of d: q d, q d - 1 or q d + d - 1.
Limbs TakeDividend(Gen& gen, std::size_t quotientCount, const Limbs& d) {
    if (quotientCount == 0 || gen.OneIn(4)) return TakeLimbs(gen, quotientCount + d.size());
    const Limbs q = TakeLimbs(gen, quotientCount);
    Limbs a = q.size() < d.size() ? Expected(kProduct, d, q) : Expected(kProduct, q, d);
    const int choice = gen.Below(3);
    if (choice == 2) Add(a.data(), a.data(), a.size(), d.data(), d.size());
    if (choice != 0) SubtractLimb(a.data(), a.data(), a.size(), 1);
    return a;
}

void CheckCounts(Gen& gen, const Algorithm& algorithm, std::size_t longer, std::size_t shorter) {
    if (algorithm.kind < kQuotient) {
        const Limbs a = TakeLimbs(gen, algorithm.kind == kProduct ? longer : shorter);
        const bool isSquare = algorithm.kind == kBalanced && gen.OneIn(3);
        return Check(gen, algorithm, a, isSquare ? a : TakeLimbs(gen, shorter));
    }
    if (gen.OneIn(2)) std::swap(longer, shorter);
    const bool isNormalised = algorithm.kind == kNormalised;
    const std::size_t dCount = std::max<std::size_t>(shorter, isNormalised ? 2 : 1);
    const Limbs d = TakeDivisor(gen, dCount, isNormalised);
    Check(gen, algorithm, TakeDividend(gen, longer, d), d);
}

// Up to kShort limbs each count is tried, the shorter the more often; up to kWide some runs try
// those beside the borders.
constexpr std::size_t kShort = 5 * kKaratsubaThreshold, kWide = 6000;

void CheckAll(std::span<const Algorithm> algorithms) {
    for (const Algorithm& algorithm : algorithms) {
        for (Gen& gen : Seeds(40)) {
            const std::size_t most = std::min(algorithm.most, gen.OneIn(8) ? kWide : 2 * kShort);
            for (std::size_t n = algorithm.least; n <= most; n = NextCount(n, kShort)) {
                for (std::size_t i = 0; i <= kShort / (n + 1); ++i) {
                    const std::size_t more = gen.Bits() % (gen.OneIn(2) ? 4 : 3 * n + 1);
                    ASSERT_NO_FATAL_FAILURE(CheckCounts(gen, algorithm, n + more, n));
                }
            }
        }
    }
}

constexpr auto kNone = [](std::size_t, std::size_t) { return std::size_t{0}; };
template <auto kScratch>
constexpr auto kOf = [](std::size_t count, std::size_t) { return kScratch(count); };
template <auto kMultiply>
constexpr auto kEven =
    [](auto r, auto a, auto n, auto b, auto, auto s) { kMultiply(r, a, b, n, s); };

constexpr Algorithm kMultiply = {"Multiply", kProduct, 1, 400'000, MultiplyScratch, Multiply};
constexpr Algorithm kToom3 = {
    "Toom 3", kBalanced, kToom3Minimum, kShort, kOf<MultiplyToom3Scratch>, kEven<MultiplyToom3>};
constexpr Algorithm kProducts[] = {
    {"basecase", kProduct, 1, kShort, kNone,
     [](auto r, auto a, auto m, auto b, auto n, auto) { MultiplyBasecase(r, a, m, b, n); }},
    {"balanced basecase", kBalanced, 1, kShort, kNone,
     [](auto r, auto a, auto n, auto b, auto, auto) {
         b == nullptr ? SquareBasecase(r, a, n) : MultiplyBasecase(r, a, n, b, n);
     }},
    {"rows", kProduct, 1, kShort, kNone,
     [](auto r, auto a, auto m, auto b, auto n, auto) {
         std::fill_n(r, m, Limb{0});
         for (std::size_t i = 0; i < n; ++i)
             r[m + i] = AddProduct(r + i, a, m, b[i]);
     }},
    {"low basecase", kLow, 1, kShort, kNone,
     [](auto r, auto a, auto n, auto b, auto, auto) { MultiplyLowBasecase(r, a, b, n); }},
    {"Karatsuba", kBalanced, kKaratsubaMinimum, kShort, kOf<MultiplyKaratsubaScratch>,
     kEven<MultiplyKaratsuba>},
    kToom3,
    {"Mulders", kLow, kMuldersMinimum, kShort, kOf<MultiplyLowMuldersScratch>,
     kEven<MultiplyLowMulders>},
    {"transform", kProduct, 1, 2000, MultiplyNttScratch, MultiplyNtt},
    {"balanced transform", kBalanced, 1, 2000, MultiplyNttScratch, MultiplyNtt},
    {"pieces", kProduct, 1, kShort, MultiplyPiecesScratch, MultiplyPieces},
    {"balanced", kBalanced, 1, kWide, kOf<MultiplyBalancedScratch>, kEven<MultiplyBalanced>},
    {"Square", kBalanced, 1, kWide, MultiplyScratch,
     [](auto r, auto a, auto n, auto b, auto, auto s) {
         b == nullptr ? Square(r, a, n, s) : Multiply(r, a, n, b, n, s);
     }},
    {"MultiplyLow", kLow, 1, kWide, kOf<MultiplyLowScratch>, kEven<MultiplyLow>},
    kMultiply};

TEST(NaturalMultiply, EachAlgorithmEqualsGmp) {
    CheckAll(kProducts);
    // A product of the top thirds that is all ones, and a middle coefficient that carries into it.
    for (Gen& gen : Seeds(1)) {
        for (const std::size_t count : {9U, 30U, 75U}) {
            Limbs b(count);
            *std::fill_n(b.begin(), 2 * CountOfThird(count), ~Limb{0}) = 1;
            ASSERT_NO_FATAL_FAILURE(Check(gen, kToom3, Limbs(count, ~Limb{0}), b));
        }
    }
}

// By a normalised divisor, where the remainder replaces the dividend.
template <auto kDivide, std::size_t kLeaf>
void Divided(Limb* r, const Limb* a, std::size_t m, const Limb* d, std::size_t n, Limb* scratch) {
    static GuardedBlock block;
    auto* const rest = reinterpret_cast<Limb*>(block.Place(m * sizeof *a, test::kEdges[m % 2]));
    std::copy_n(a, m, rest);
    Limb* const high = r + (m - n);
    *high = kDivide(r, rest, m, d, n, TopDivisor(d[n - 1], d[n - 2]), kLeaf, scratch);
    std::copy_n(rest, n, high + 1);
    EXPECT_TRUE(block.MarginsAreIntact());
}
constexpr auto kSchoolbook = [](auto q, auto a, auto m, auto d, auto n, auto top, auto, auto) {
    return DivideSchoolbook(q, a, m, d, n, top);
};
constexpr auto kHalvesScratch = [](std::size_t, std::size_t n) { return DivideByHalvesScratch(n); };

void DivideOnce(Limb* r, const Limb* a, std::size_t m, const Limb* d, std::size_t n,
                Limb* scratch) {
    Divide(r, r + (m - n + 1), a, m, d, n, scratch);
}
void DivideTwice(Limb* r, const Limb* a, std::size_t m, const Limb* d, std::size_t n,
                 Limb* scratch) {
    Divide(r, nullptr, a, m, d, n, scratch);
    Divide(nullptr, r + (m - n + 1), a, m, d, n, scratch);
}
constexpr Algorithm kDivide = {"Divide", kQuotient, 0, 200'000, DivideScratch, DivideOnce};
constexpr Algorithm kQuotients[] = {
    {"schoolbook", kNormalised, 0, kShort, kNone, Divided<kSchoolbook, 0>},
    {"halves, 4", kNormalised, 0, kShort, kHalvesScratch, Divided<DivideByHalves, 4>},
    {"halves, 7", kNormalised, 0, kShort, kHalvesScratch, Divided<DivideByHalves, 7>},
    {"halves, 20", kNormalised, 0, kShort, kHalvesScratch, Divided<DivideByHalves, 20>},
    {"Newton, 2", kNormalised, 4, kShort, DivideByReciprocalScratch,
     Divided<DivideByReciprocal, 2>},
    {"Newton, 9", kNormalised, 4, kShort, DivideByReciprocalScratch,
     Divided<DivideByReciprocal, 9>},
    kDivide,
    {"each alone", kQuotient, 0, kWide, DivideScratch, DivideTwice}};

TEST(NaturalDivide, EachAlgorithmEqualsGmp) {
    CheckAll(kQuotients);
}

// X d < 2^(128 count) < (X + 2) d, for X = 2^(64 count) + x.
TEST(NaturalDivide, ReciprocalsAreAtMostOneTooSmall) {
    static GuardedBlock dBlock, xBlock, scratchBlock;
    for (Gen& gen : Seeds(3000)) {
        const std::size_t count = 2 + gen.Bits() % (gen.OneIn(10) ? 300 : 40);
        const std::size_t leaf = 2 + gen.Bits() % 12;
        const Limbs d = TakeDivisor(gen, count, true);
        const Limbs exact = Expected(kNormalised, Limbs(2 * count, ~Limb{0}), d);
        const Limb* const placed = Place(gen, dBlock, d);
        Limb* const x = PlaceJunk(gen, xBlock, count);
        Limb* const scratch = PlaceJunk(gen, scratchBlock, ApproximateReciprocalScratch(count));
        const TopDivisor top(d[count - 1], d[count - 2]);
        ApproximateReciprocal(x, placed, count, top, leaf, scratch);
        mpn_sub_n(x, exact.data(), x, static_cast<mp_size_t>(count));
        ASSERT_TRUE(x[0] <= 1 && IsZero(x + 1, count - 1) && xBlock.MarginsAreIntact() &&
                    scratchBlock.MarginsAreIntact())
            << gen.Reproducer(count, leaf);
    }
}

// Transforms of one, three and five rows, with an even and with an odd number of levels, beyond
// what they do level by level; the pieces of long operands; reciprocals.
TEST(NaturalWide, ProductsAndQuotientsEqualGmp) {
    constexpr std::size_t kShapes[][2] = {
        {3600, 3400},   {5000, 5000},     {8000, 6500},   {8192, 8192},
        {13000, 13000}, {16384, 100},     {16384, 1500},  {16384, 4000},
        {16384, 16384}, {20000, 9},       {40000, 3001},  {99999, 2500},
        {312500, 40},   {156250, 156250}, {312500, 5000}, {312500, 312500}};
    for (const auto& [longer, shorter] : kShapes) {
        for (Gen& gen : Seeds(2)) {
            for (const Algorithm& algorithm : {kMultiply, kDivide}) {
                if (longer > algorithm.most) continue;
                ASSERT_NO_FATAL_FAILURE(CheckCounts(gen, algorithm, longer, shorter));
            }
        }
    }
}

constexpr std::size_t LimbsOf(int width) {
    return LimbCount(WordCount(width));
}

TEST(Scratch, HoldsWhatOperationsTake) {
    const std::size_t product = LimbsOf(kMaxProductWidth);
    const std::size_t temporary = LowProductScratch(product, product, product);
    EXPECT_LE(2 * product + 2 * product + temporary, kScratchLimbs);  // two operands, one product
    EXPECT_LE(product + 4 * product + temporary, kScratchLimbs);      // the base, two products

    const std::size_t quotient = LimbsOf(kMaxQuotientWidth);
    const std::size_t held = 2 * quotient + LimbsOf(kMaxDivisorWidth);
    for (const std::size_t divisor : {std::size_t{1}, quotient / 3, quotient / 2, quotient})
        EXPECT_LE(held + DivideScratch(quotient, divisor), kScratchLimbs) << divisor;

    const std::size_t decimal = LimbsOf(kMaxDecimalWidth);
    EXPECT_LE(decimal + ToDecimalScratch(decimal), kScratchLimbs);
}

TEST(Scratch, CoversAllSmallerOperands) {
    for (Gen& gen : Seeds(20'000)) {
        const std::size_t most = std::size_t{8} << gen.Below(17);
        const std::size_t aCount = 1 + gen.Bits() % most, b = 1 + gen.Bits() % most;
        const std::size_t a = 1 + gen.Bits() % aCount, d = 1 + gen.Bits() % a;
        ASSERT_GE(DivideScratch(aCount, aCount), DivideScratch(a, d)) << gen.Reproducer(a, d);
        const std::size_t total = a + b + gen.Bits() % 3;
        ASSERT_GE(ProductScratch(total), MultiplyScratch(a, b)) << gen.Reproducer(a, b, total);
        ASSERT_GE(FromDecimalScratch(aCount), FromDecimalScratch(a)) << gen.Reproducer(aCount, a);
        ASSERT_GE(ToDecimalScratch(aCount), ToDecimalScratch(a)) << gen.Reproducer(aCount, a);
    }
}

}  // namespace
}  // namespace tarn
