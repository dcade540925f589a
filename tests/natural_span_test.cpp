// The linear-time primitives: carries, and results that lie where an operand does. What they
// compute in all other storage shows in the tests of the kernels that are made of them.
#include <algorithm>
#include <cstddef>
#include <gmp.h>
#include <gtest/gtest.h>

#include "arith/natural/span.h"
#include "natural_support.h"

namespace tarn {
namespace {

// Runs a step from a to the expected limbs, into other storage and into a's place.
template <class Step>
void Expect(const Limbs& expected, Limb expectedOut, const Limbs& a, Step step) {
    for (const bool inPlace : {false, true}) {
        Guarded result(a.size());
        std::copy(a.begin(), a.end(), result.Data());
        EXPECT_EQ(step(result.Data(), inPlace ? result.Data() : a.data()), expectedOut);
        EXPECT_TRUE(result.Value() == expected && result.IsIntact());
    }
}

TEST(NaturalSpan, StepsMatchGmpAndInvertEachOther) {
    Generator generator(19);
    for (int i = 0; i < 5000; ++i) {
        const std::size_t n = generator.Between(1, 40);
        const auto count = static_cast<mp_size_t>(n);
        const Limbs a = generator.Take(n, generator.AnyKind());
        const Limbs b = generator.Take(n, generator.AnyKind());
        const Limb limb = generator.Take(1, generator.AnyKind())[0];
        const auto in = static_cast<CarryFlag>(limb % 2);
        Limbs sum(n);

        Limb out = mpn_add_n(sum.data(), a.data(), b.data(), count);
        out += mpn_add_1(sum.data(), sum.data(), count, in);
        Expect(sum, out, a, [&](Limb* r, const Limb* s) { return AddN(r, s, b.data(), n, in); });
        Expect(a, out, sum,
               [&](Limb* r, const Limb* s) { return SubtractN(r, s, b.data(), n, in); });
        out = mpn_add_1(sum.data(), a.data(), count, limb);
        Expect(sum, out, a, [&](Limb* r, const Limb* s) { return AddLimb(r, s, n, limb); });
        Expect(a, out, sum, [&](Limb* r, const Limb* s) { return SubtractLimb(r, s, n, limb); });
        sum = a;
        out = mpn_addmul_1(sum.data(), b.data(), count, limb);
        Expect(sum, out, a, [&](Limb* r, auto) { return AddProduct(r, b.data(), n, limb); });
        Expect(a, out, sum, [&](Limb* r, auto) { return SubtractProduct(r, b.data(), n, limb); });
        out = mpn_mul_1(sum.data(), a.data(), count, limb);
        out += mpn_add_1(sum.data(), sum.data(), count, ~limb);
        Expect(sum, out, a,
               [&](Limb* r, const Limb* s) { return MultiplyByLimb(r, s, n, limb, ~limb); });

        // Shifts may also move a run within its own storage, in the direction of the shift.
        const unsigned shift = 1 + static_cast<unsigned>(limb % 63);
        const std::size_t gap = generator.Between(0, 3);
        Limbs storage(a);
        storage.resize(n + gap);
        const auto moved = storage.begin() + static_cast<std::ptrdiff_t>(gap);
        EXPECT_EQ(ShiftLeft(&*moved, storage.data(), n, static_cast<int>(shift)),
                  mpn_lshift(sum.data(), a.data(), count, shift));
        EXPECT_TRUE(std::equal(sum.begin(), sum.end(), moved));
        EXPECT_EQ(ShiftRight(storage.data(), &*moved, n, static_cast<int>(shift)),
                  mpn_rshift(sum.data(), sum.data(), count, shift));
        EXPECT_TRUE(std::equal(sum.begin(), sum.end(), storage.begin()));
        ASSERT_FALSE(HasFailure()) << n << " limbs, " << limb;
    }
}

}  // namespace
}  // namespace tarn
