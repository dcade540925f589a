// Static working storage for the operations of arithmetic that can't work in the result alone.
#ifndef TARN_ARITH_SCRATCH_H
#define TARN_ARITH_SCRATCH_H

#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// The widest result of a product or power, the widest dividend and quotient, the widest divisor and
// the widest exponent; the widest value with a decimal text, whose words' values fill the shared
// register.
inline constexpr int kMaxProductWidth = 20'000'000;
inline constexpr int kMaxQuotientWidth = 10'000'000;
inline constexpr int kMaxDivisorWidth = 40'000'000;
inline constexpr int kMaxExponentWidth = 40'000'000;
inline constexpr int kMaxDecimalWidth = 40'000'000;

// Limbs for the largest need of any operation at those widths, its kernels' temporaries included.
// Pages that are never touched cost nothing.
inline constexpr std::size_t kScratchLimbs = std::size_t{8} << 20;

extern Limb scratchLimbs[kScratchLimbs];

// Hands out the static storage piece by piece; each operation starts from the beginning.
class Scratch {
  public:
    Limb* Take(std::size_t count) noexcept {
        Limb* const piece = next_;
        next_ += count;
        return piece;
    }

  private:
    Limb* next_ = scratchLimbs;
};

}  // namespace tarn

#endif  // TARN_ARITH_SCRATCH_H
