// Division by halves, after C. Burnikel and J. Ziegler, "Fast recursive division", 1998, in the
// form of R. Brent and P. Zimmermann, "Modern computer arithmetic", 2010, section 1.4.3.
#include <algorithm>

#include "arith/natural/divide_base.h"
#include "arith/natural/multiply.h"
#include "arith/natural/product_scratch.h"
#include "arith/natural/span.h"

namespace tarn {
namespace {

struct Halves {
    const TopDivisor& top;
    std::size_t leafCount;
    Limb* scratch;

    // 2 * count limbs by count.
    Limb Balanced(Limb* quotient, Limb* a, const Limb* d, std::size_t count) const noexcept {
        if (count < leafCount) return DivideSchoolbook(quotient, a, 2 * count, d, count, top);
        const std::size_t low = count / 2;
        const Limb high = Short(quotient + low, a + low, count - low, d, count);
        Short(quotient, a, low, d, count);
        return high;
    }

    // dCount + count limbs by dCount, for a quotient no longer than the divisor: the top limbs of
    // the divisor, as many as the quotient has, give a quotient that the rest takes down by at
    // most two.
    Limb Short(Limb* quotient, Limb* a, std::size_t count, const Limb* d,
               std::size_t dCount) const noexcept {
        const std::size_t rest = dCount - count;
        Limb high = Balanced(quotient, a + rest, d + rest, count);
        if (rest == 0) return high;
        Limb* const product = scratch;
        Multiply(product, quotient, count, d, rest, scratch + dCount);
        Limb missing = SubtractN(a, a, product, dCount);
        if (high != 0) missing += SubtractN(a + count, a + count, d, rest);
        while (missing != 0) {
            high -= SubtractLimb(quotient, quotient, count, 1);
            missing -= AddN(a, a, d, dCount);
        }
        return high;
    }
};

// How many quotient limbs to find first, so that blocks of dCount limbs remain.
constexpr std::size_t FirstPart(std::size_t count, std::size_t dCount) noexcept {
    const std::size_t part = count % dCount;
    return part == 0 ? std::min(count, dCount) : part;
}

}  // namespace

Limb DivideByHalves(Limb* quotient, Limb* a, std::size_t aCount, const Limb* d, std::size_t dCount,
                    const TopDivisor& top, std::size_t leafCount, Limb* scratch) noexcept {
    const Halves halves = {top, leafCount, scratch};
    std::size_t count = aCount - dCount;
    const std::size_t first = FirstPart(count, dCount);
    count -= first;
    const Limb high =
        first < leafCount
            ? DivideSchoolbook(quotient + count, a + count, dCount + first, d, dCount, top)
            : halves.Short(quotient + count, a + count, first, d, dCount);
    while (count > 0) {
        count -= dCount;
        halves.Balanced(quotient + count, a + count, d, dCount);
    }
    return high;
}

std::size_t DivideByHalvesScratch(std::size_t dCount) noexcept {
    // The factors of each product have dCount limbs together.
    return dCount + ProductScratch(dCount);
}

}  // namespace tarn
