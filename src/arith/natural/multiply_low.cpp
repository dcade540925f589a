#include <algorithm>

#include "arith/natural/multiply.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

// The limbs of the full product in Mulders' scheme. Seven tenths are near the best for the
// exponents between Karatsuba's and Toom's.
constexpr std::size_t FullPart(std::size_t count) noexcept {
    return count - count * 3 / 10;
}

}  // namespace

// T. Mulders, "On short multiplications and divisions" (2000): with the operands cut below `full`
// limbs, the low limbs of a b are those of a0 b0 plus, above, the low limbs of a1 b0 and of a0 b1.
void MultiplyLowMulders(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                        Limb* scratch) noexcept {
    const std::size_t full = FullPart(count);
    const std::size_t part = count - full;
    Limb* product = scratch;
    Limb* rest = scratch + 2 * full;
    MultiplyBalanced(product, a, b, full, rest);
    MultiplyLow(result, a + full, b, part, rest);
    AddN(product + full, product + full, result, part);
    MultiplyLow(result, a, b + full, part, rest);
    AddN(product + full, product + full, result, part);
    std::copy_n(product, count, result);
}

std::size_t MultiplyLowMuldersScratch(std::size_t count) noexcept {
    const std::size_t full = FullPart(count);
    return 2 * full + std::max(MultiplyBalancedScratch(full), MultiplyLowScratch(count - full));
}

void MultiplyLow(Limb* result, const Limb* a, const Limb* b, std::size_t count,
                 Limb* scratch) noexcept {
    if (count < kMuldersThreshold) return MultiplyLowBasecase(result, a, b, count);
    if (count < kLowByFullThreshold) return MultiplyLowMulders(result, a, b, count, scratch);
    MultiplyBalanced(scratch, a, b, count, scratch + 2 * count);
    std::copy_n(scratch, count, result);
}

std::size_t MultiplyLowScratch(std::size_t count) noexcept {
    if (count < kMuldersThreshold) return 0;
    if (count < kLowByFullThreshold) return MultiplyLowMuldersScratch(count);
    return 2 * count + MultiplyBalancedScratch(count);
}

}  // namespace tarn
