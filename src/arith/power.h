// Powers of vectors.
#ifndef TARN_ARITH_POWER_H
#define TARN_ARITH_POWER_H

#include "core/words.h"

namespace tarn {

// result = base ** exponent with the exponent read as unsigned.
template <class Extend>
void PowerUnsigned(Result result, Operand base, Operand exponent) noexcept;

// result = base ** exponent with the exponent read as signed.
template <class Extend>
void PowerSigned(Result result, Operand base, Operand exponent) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_POWER_H
