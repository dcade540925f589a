// The linear-time primitives against GMP, out of place and in place.
#include <cstddef>
#include <functional>
#include <gmp.h>
#include <gtest/gtest.h>

#include "arith/natural/span.h"
#include "natural_support.h"

namespace tarn {
namespace {

// One primitive: ours and GMP's on (result, a, b, count, limb), each returning the limb that leaves
// the run. The result holds b before the call where the primitive adds to it.
using Primitive =
    std::function<Limb(Limb* result, const Limb* a, const Limb* b, std::size_t count, Limb limb)>;
struct Row {
    const char* name;
    Primitive ours;
    Primitive gmp;
    bool addsToResult;
};

mp_size_t Signed(std::size_t count) {
    return static_cast<mp_size_t>(count);
}
unsigned ShiftOf(Limb limb) {
    return static_cast<unsigned>(limb % 63 + 1);
}

const Row kRows[] = {
    {"AddN",
     [](Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb limb) -> Limb {
         return AddN(r, a, b, n, limb % 2);
     },
     [](Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb limb) -> Limb {
         const Limb carry = mpn_add_n(r, a, b, Signed(n));
         return carry + mpn_add_1(r, r, Signed(n), limb % 2);
     },
     false},
    {"SubtractN",
     [](Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb limb) -> Limb {
         return SubtractN(r, a, b, n, limb % 2);
     },
     [](Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb limb) -> Limb {
         const Limb borrow = mpn_sub_n(r, a, b, Signed(n));
         return borrow + mpn_sub_1(r, r, Signed(n), limb % 2);
     },
     false},
    {"AddLimb",
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return AddLimb(r, a, n, limb);
     },
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return mpn_add_1(r, a, Signed(n), limb);
     },
     false},
    {"SubtractLimb",
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return SubtractLimb(r, a, n, limb);
     },
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return mpn_sub_1(r, a, Signed(n), limb);
     },
     false},
    {"Add",
     [](Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb) {
         return Add(r, a, n, b, n / 2);
     },
     [](Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb) {
         return mpn_add(r, a, Signed(n), b, Signed(n / 2));
     },
     false},
    {"Subtract",
     [](Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb) {
         return Subtract(r, a, n, b, n / 2);
     },
     [](Limb* r, const Limb* a, const Limb* b, std::size_t n, Limb) {
         return mpn_sub(r, a, Signed(n), b, Signed(n / 2));
     },
     false},
    {"MultiplyByLimb",
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return MultiplyByLimb(r, a, n, limb, ~limb);
     },
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         const Limb high = mpn_mul_1(r, a, Signed(n), limb);
         return high + mpn_add_1(r, r, Signed(n), ~limb);
     },
     false},
    {"AddProduct",
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return AddProduct(r, a, n, limb);
     },
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return mpn_addmul_1(r, a, Signed(n), limb);
     },
     true},
    {"SubtractProduct",
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return SubtractProduct(r, a, n, limb);
     },
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return mpn_submul_1(r, a, Signed(n), limb);
     },
     true},
    {"ShiftLeft",
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return ShiftLeft(r, a, n, static_cast<int>(ShiftOf(limb)));
     },
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return mpn_lshift(r, a, Signed(n), ShiftOf(limb));
     },
     false},
    {"ShiftRight",
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return ShiftRight(r, a, n, static_cast<int>(ShiftOf(limb)));
     },
     [](Limb* r, const Limb* a, const Limb*, std::size_t n, Limb limb) {
         return mpn_rshift(r, a, Signed(n), ShiftOf(limb));
     },
     false},
};

void CheckRow(const Row& row, const Limbs& a, const Limbs& b, Limb limb) {
    const std::size_t count = a.size();
    Limbs expected = b;
    const Limb expectedOut = row.gmp(expected.data(), a.data(), b.data(), count, limb);
    Guarded apart(count), inPlace(count);
    std::copy(b.begin(), b.end(), apart.Data());
    EXPECT_EQ(row.ours(apart.Data(), a.data(), b.data(), count, limb), expectedOut);
    EXPECT_TRUE(apart.Value() == expected && apart.IsIntact());
    if (!row.addsToResult) {
        std::copy(a.begin(), a.end(), inPlace.Data());
        EXPECT_EQ(row.ours(inPlace.Data(), inPlace.Data(), b.data(), count, limb), expectedOut);
        EXPECT_TRUE(inPlace.Value() == expected && inPlace.IsIntact());
    }
}

TEST(NaturalSpan, EachPrimitiveEqualsGmp) {
    for (const Row& row : kRows) {
        Generator generator(19);
        for (std::size_t count = 1; count <= 40; ++count) {
            for (int round = 0; round < 12; ++round) {
                const Limbs a = generator.Take(count, generator.AnyKind());
                const Limbs b = generator.Take(count, generator.AnyKind());
                const Limb limb = generator.Take(1, generator.AnyKind())[0];
                CheckRow(row, a, b, limb);
                ASSERT_FALSE(HasFailure()) << row.name << " of " << count << " limbs by " << limb;
            }
        }
    }
}

TEST(NaturalSpan, OrderAndSignificantLimbs) {
    const Limb a[] = {5, 0, 7, 0, 0};
    const Limb b[] = {6, 0, 7, 0, 0};
    EXPECT_LT(Compare(a, b, 5), 0);
    EXPECT_GT(Compare(b, a, 5), 0);
    EXPECT_EQ(Compare(a + 1, b + 1, 4), 0);
    EXPECT_EQ(Compare(a, b, 0), 0);
    EXPECT_EQ(NormalisedCount(a, 5), 3U);
    EXPECT_EQ(NormalisedCount(a + 3, 2), 0U);
    EXPECT_FALSE(IsZero(a, 5));
    EXPECT_TRUE(IsZero(a + 3, 2));
}

// Shifts may also move a run within its own storage, in the direction of the shift.
TEST(NaturalSpan, ShiftsWithinOneStorage) {
    Generator generator(23);
    const Limbs a = generator.Take(12, Kind::kRandom);
    Limbs expected(12);
    Limbs storage(15);

    mpn_lshift(expected.data(), a.data(), 12, 7);
    std::copy(a.begin(), a.end(), storage.begin());
    ShiftLeft(storage.data() + 3, storage.data(), 12, 7);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), storage.begin() + 3));

    mpn_rshift(expected.data(), a.data(), 12, 7);
    std::copy(a.begin(), a.end(), storage.begin() + 3);
    ShiftRight(storage.data(), storage.data() + 3, 12, 7);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), storage.begin()));
}

}  // namespace
}  // namespace tarn
