// Quotient and remainder of naturals. Temporaries come from `scratch`, as in multiply.h.
#ifndef TARN_ARITH_NATURAL_DIVIDE_H
#define TARN_ARITH_NATURAL_DIVIDE_H

#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// quotient[0 .. aCount - dCount + 1) = a / d, remainder[0 .. dCount) = a % d, for
// aCount >= dCount >= 1 and d[dCount - 1] != 0. Either result may be null where it is not wanted;
// neither overlaps an operand or the other.
void Divide(Limb* quotient, Limb* remainder, const Limb* a, std::size_t aCount, const Limb* d,
            std::size_t dCount, Limb* scratch) noexcept;
// Grows with both counts: DivideScratch(a, a) is enough for any operands of up to a limbs.
std::size_t DivideScratch(std::size_t aCount, std::size_t dCount) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_DIVIDE_H
