// Products by convolution: the operands are cut into coefficients of 48 to 60 bits, the
// coefficients of the product are computed modulo two primes and put together by the Chinese
// remainder theorem.
#include <algorithm>
#include <bit>

#include "arith/natural/multiply_internal.h"
#include "arith/natural/ntt.h"
#include "arith/natural/ntt_columns.h"

namespace tarn {
namespace {

constexpr NttPrime kLowPrime{0x3ffffa9800000001};
constexpr NttPrime kHighPrime{0x3ffffbe200000001};
// The product of the primes is above 2^kModulusBits.
constexpr int kModulusBits = 123;

constexpr std::size_t CeilingOf(std::size_t a, std::size_t b) noexcept {
    return (a + b - 1) / b;
}

// How a product is cut.
struct Plan {
    int bits;              // of a coefficient
    std::size_t aTerms;    // coefficients of a
    std::size_t bTerms;    // and of b
    std::size_t rows;      // 1, 3 or 5
    std::size_t rowCount;  // coefficients of a row, a power of two
    std::size_t Count() const noexcept { return rows * rowCount; }
};

Plan MakePlan(std::size_t aCount, std::size_t bCount) noexcept {
    Plan plan{};
    // A coefficient of the product is a sum of at most `terms` products below 2^(2 bits). Operands
    // below 10^8 limbs never need fewer than the 48 bits supposed here.
    const auto terms = CeilingOf(std::min(aCount, bCount) * kLimbBits, 48);
    plan.bits = (kModulusBits - static_cast<int>(std::bit_width(terms))) / 2;
    const auto bits = static_cast<std::size_t>(plan.bits);
    plan.aTerms = CeilingOf(aCount * kLimbBits, bits);
    plan.bTerms = CeilingOf(bCount * kLimbBits, bits);
    const std::size_t count = std::max<std::size_t>(plan.aTerms + plan.bTerms - 1, 16);
    const std::size_t power = std::bit_ceil(count);
    plan.rows = 1;
    plan.rowCount = power;
    if (count <= power / 8 * 5) {
        plan.rows = 5;
        plan.rowCount = power / 8;
    } else if (count <= power / 4 * 3) {
        plan.rows = 3;
        plan.rowCount = power / 4;
    }
    return plan;
}

// x[0 .. count) = the coefficients of a, zeros above.
void Cut(Limb* x, std::size_t count, const Limb* a, std::size_t aCount, int bits) noexcept {
    const Limb mask = (Limb{1} << bits) - 1;
    std::size_t limb = 0;
    int shift = 0;
    std::size_t i = 0;
    for (; limb + 1 < aCount && i < count; ++i) {
        const DoubleLimb window = MakeDoubleLimb(a[limb + 1], a[limb]);
        x[i] = LowLimb(window >> shift) & mask;
        shift += bits;
        limb += shift >= kLimbBits ? 1U : 0U;
        shift &= kLimbBits - 1;
    }
    for (; limb < aCount && i < count; ++i) {
        x[i] = (a[limb] >> shift) & mask;
        shift += bits;
        limb += shift >= kLimbBits ? 1U : 0U;
        shift &= kLimbBits - 1;
    }
    std::fill(x + i, x + count, Limb{0});
}

void ForwardRows(const NttPrime& prime, const NttTransform& transform, Limb* x,
                 const Plan& plan) noexcept {
    if (plan.rows == 3) TransformColumns<3>(prime, x, plan.rowCount);
    if (plan.rows == 5) TransformColumns<5>(prime, x, plan.rowCount);
    for (std::size_t row = 0; row < plan.rows; ++row)
        transform.Forward(x + row * plan.rowCount);
}

// x = the coefficients of a * b modulo the prime, times a constant. y is a temporary for b.
void Convolve(const NttPrime& prime, const Plan& plan, Limb* x, Limb* y, Limb* table, const Limb* a,
              std::size_t aCount, const Limb* b, std::size_t bCount) noexcept {
    const NttTransform transform(prime, table, plan.rowCount);
    const std::size_t count = plan.Count();
    Cut(x, count, a, aCount, plan.bits);
    ForwardRows(prime, transform, x, plan);
    if (b != nullptr) {
        Cut(y, count, b, bCount, plan.bits);
        ForwardRows(prime, transform, y, plan);
    } else {
        y = x;
    }
    for (std::size_t i = 0; i < count; ++i) {
        x[i] = prime.TimesOver(prime.Halve(x[i]), prime.Halve(y[i]));
    }
    for (std::size_t row = 0; row < plan.rows; ++row)
        transform.Inverse(x + row * plan.rowCount);
    if (plan.rows == 3) RestoreColumns<3>(prime, x, plan.rowCount);
    if (plan.rows == 5) RestoreColumns<5>(prime, x, plan.rowCount);
}

// What takes off the constant that Convolve leaves: 2^64 / count.
Factor ScaleOf(const NttPrime& prime, std::size_t count) noexcept {
    const Limb scale = prime.Product(prime.Power(2, kLimbBits), prime.Inverse(count % prime.p));
    return prime.MakeFactor(scale);
}

// result = the sum of the coefficients, each at its place. A coefficient is
// low + p (high - low) / p mod q, with p the lower prime and q the higher.
void Combine(Limb* result, std::size_t resultCount, const Limb* low, const Limb* high,
             const Plan& plan) noexcept {
    const NttPrime& p = kLowPrime;
    const NttPrime& q = kHighPrime;
    static_assert(kLowPrime.p < kHighPrime.p);
    const Factor lowScale = ScaleOf(p, plan.Count());
    const Factor highScale = ScaleOf(q, plan.Count());
    constexpr Factor kInverse = kHighPrime.MakeFactor(kHighPrime.Inverse(kLowPrime.p));

    const std::size_t terms = plan.aTerms + plan.bTerms - 1;
    const Limb mask = (Limb{1} << plan.bits) - 1;
    DoubleLimb sum = 0;  // of what lies at and above this coefficient's place
    Limb window = 0;     // the limb under way
    int filled = 0;      // its bits so far
    std::size_t limb = 0;
    for (std::size_t i = 0; limb < resultCount; ++i) {
        if (i < terms) {
            const Limb lowValue = p.Reduce(p.Times(low[i], lowScale));
            const Limb highValue = q.Times(high[i], highScale);
            const Limb times = q.Reduce(q.Times(highValue - lowValue + q.p, kInverse));
            sum += MultiplyLimbs(times, p.p) + lowValue;
        }
        const Limb bits = LowLimb(sum) & mask;
        sum >>= plan.bits;
        window |= bits << filled;
        filled += plan.bits;
        if (filled >= kLimbBits) {
            filled -= kLimbBits;
            result[limb++] = window;
            window = bits >> (plan.bits - filled);
        }
    }
}

}  // namespace

void MultiplyNtt(Limb* result, const Limb* a, std::size_t aCount, const Limb* b, std::size_t bCount,
                 Limb* scratch) noexcept {
    const Plan plan = MakePlan(aCount, bCount);
    const std::size_t count = plan.Count();
    Limb* low = scratch;
    Limb* high = low + count;
    Limb* table = high + count;
    Limb* other = table + NttTransform::TableLimbs(plan.rowCount);
    Convolve(kLowPrime, plan, low, other, table, a, aCount, b, bCount);
    Convolve(kHighPrime, plan, high, other, table, a, aCount, b, bCount);
    Combine(result, aCount + bCount, low, high, plan);
}

std::size_t MultiplyNttScratch(std::size_t aCount, std::size_t bCount) noexcept {
    const Plan plan = MakePlan(aCount, bCount);
    return 3 * plan.Count() + NttTransform::TableLimbs(plan.rowCount);
}

}  // namespace tarn
