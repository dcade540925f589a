/** @file
 *  Shifts of vectors in storage, of any width, by an amount that is a vector of up to 64 bits. */
#ifndef TARNLIB_INLINE_SHIFT_BY_H
#define TARNLIB_INLINE_SHIFT_BY_H

#include <tarnlib/inline/value_select.h>
#include <tarnlib/shift.h>

/* Any amount that no int holds is past the width of any vector. */
TARN_INLINE unsigned tarn_AmountOf(tarn_V64 amount) TARNLIB_NOEXCEPT {
    return amount.aval <= INT_MAX ? TARN_CAST(unsigned, amount.aval) : UINT_MAX;
}

TARN_INLINE void tarn_StoreAllX(int width, VectorWord* result) TARNLIB_NOEXCEPT {
    int i;
    for (i = 0; i < (width + 31) >> 5; ++i)
        tarn_StoreWord(result + i, TARN_ALL_X);
}

/** The shifts of tarnlib/shift.h by a vector: widths, result and source as there.
 *  unknown   any bval bit set in the amount: every word of the result is X.
 *  top word  the amount is clean.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.12
 *  example   v << n is tarn_LogicalShiftLeftBy(w, r, w, v, tarn_V64UnsignedLoad(nWidth, n)). */
TARN_INLINE void tarn_LogicalShiftLeftBy(int resultWidth, VectorWord* result, int sourceWidth,
                                         const VectorWord* source,
                                         tarn_V64 amount) TARNLIB_NOEXCEPT {
    if (amount.bval != 0) {
        tarn_StoreAllX(resultWidth, result);
    } else {
        tarn_LogicalShiftLeft(resultWidth, result, sourceWidth, source, tarn_AmountOf(amount));
    }
}

/** @copydoc tarn_LogicalShiftLeftBy */
TARN_INLINE void tarn_LogicalShiftRightBy(int resultWidth, VectorWord* result, int sourceWidth,
                                          const VectorWord* source,
                                          tarn_V64 amount) TARNLIB_NOEXCEPT {
    if (amount.bval != 0) {
        tarn_StoreAllX(resultWidth, result);
    } else {
        tarn_LogicalShiftRight(resultWidth, result, sourceWidth, source, tarn_AmountOf(amount));
    }
}

/** @copydoc tarn_LogicalShiftLeftBy */
TARN_INLINE void tarn_ArithmeticalShiftRightBy(int resultWidth, VectorWord* result, int sourceWidth,
                                               const VectorWord* source,
                                               tarn_V64 amount) TARNLIB_NOEXCEPT {
    if (amount.bval != 0) {
        tarn_StoreAllX(resultWidth, result);
    } else {
        tarn_ArithmeticalShiftRight(resultWidth, result, sourceWidth, source,
                                    tarn_AmountOf(amount));
    }
}

#endif
