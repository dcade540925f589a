// The product kernels on naturals, each algorithm on its own, against GMP.
#include <algorithm>
#include <cstddef>
#include <functional>
#include <gmp.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "arith/natural/multiply.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

static_assert(std::is_same_v<Limb, mp_limb_t>, "GMP takes our limbs as they are");

using Limbs = std::vector<Limb>;

// Operands that break carries: each kind is hard on another step.
enum class Kind { kRandom, kRuns, kOnes, kSingleBit, kZeroTop, kZero, kCount };

class Generator {
  public:
    explicit Generator(std::uint64_t seed) : random_(seed) {}

    Limbs Take(std::size_t count, Kind kind) {
        Limbs limbs(count, 0);
        switch (kind) {
            case Kind::kRuns:
                FillRuns(limbs);
                break;
            case Kind::kOnes:
                std::fill(limbs.begin(), limbs.end(), ~Limb{0});
                break;
            case Kind::kSingleBit:
                limbs[random_() % count] = Limb{1} << (random_() % kLimbBits);
                break;
            case Kind::kZero:
                break;
            default:
                std::generate(limbs.begin(), limbs.end(), std::ref(random_));
                break;
        }
        if (kind == Kind::kZeroTop) {
            const auto zeros = static_cast<std::ptrdiff_t>(random_() % count);
            std::fill(limbs.end() - zeros, limbs.end(), Limb{0});
        }
        return limbs;
    }

    Kind AnyKind() { return static_cast<Kind>(random_() % static_cast<int>(Kind::kCount)); }
    std::size_t Between(std::size_t first, std::size_t last) {
        return first + random_() % (last - first + 1);
    }

  private:
    void FillRuns(Limbs& limbs) {
        const std::size_t width = limbs.size() * kLimbBits;
        bool set = random_() % 2 == 0;
        for (std::size_t index = 0; index < width; set = !set) {
            std::size_t run = 1 + random_() % (random_() % 4 == 0 ? 300 : 70);
            for (; run > 0 && index < width; --run, ++index) {
                if (set) limbs[index / kLimbBits] |= Limb{1} << (index % kLimbBits);
            }
        }
    }

    std::mt19937_64 random_;
};

// Storage of a fixed count of limbs between two guards, so that a stray write shows.
class Guarded {
  public:
    explicit Guarded(std::size_t count) : limbs_(count + 2 * kGuard, kPattern), count_(count) {}
    Limb* Data() { return limbs_.data() + kGuard; }
    Limbs Value() const {
        const auto first = limbs_.begin() + kGuard;
        return {first, first + static_cast<std::ptrdiff_t>(count_)};
    }
    bool IsIntact() const {
        const auto isPattern = [](Limb limb) { return limb == kPattern; };
        return std::all_of(limbs_.begin(), limbs_.begin() + kGuard, isPattern) &&
               std::all_of(limbs_.end() - kGuard, limbs_.end(), isPattern);
    }

  private:
    static constexpr std::ptrdiff_t kGuard = 8;
    static constexpr Limb kPattern = 0xA5C3F00DDEADBEA7;
    Limbs limbs_;
    std::size_t count_;
};

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

TEST(NaturalMultiply, ProductOfOneStorageWithItselfIsItsSquare) {
    Generator generator(11);
    for (const std::size_t count : {1U, 5U, 30U, 100U, 300U}) {
        const Limbs a = generator.Take(count, Kind::kRuns);
        ASSERT_NO_FATAL_FAILURE(CheckUnbalanced(a, a));
    }
}

}  // namespace
}  // namespace tarn
