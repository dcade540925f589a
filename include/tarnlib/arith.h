/** @file
 *  Arithmetic. Works on known values: one X or Z bit anywhere in an operand makes the whole result
 *  X. Results are computed in whole words, modulo 2 to the power 32 * N(resultWidth). */
#ifndef TARNLIB_ARITH_H
#define TARNLIB_ARITH_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/** Sum of two vectors: result = a + b.
 *  widths    bits, any. A narrower operand is extended (Signed: by bit 31 of its top word;
 *            Unsigned: by zeros). Of a wider one only the low words of the result's count are
 *            added. An operand of width below 1 counts as 0.
 *  unknown   any bval bit set anywhere in either operand, words above the result included: all X.
 *  top word  holds the full word sum; bits above the width are neither cleared nor extended.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  source    IEEE 1364-2005, 5.1.5
 *  example   8'hff + 8'h01 at width 8 stores {0x100, 0}. */
TARNLIB_API void tarn_SignedAdd(int resultWidth, VectorWord* result, int aWidth,
                                const VectorWord* a, int bWidth,
                                const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedAdd */
TARNLIB_API void tarn_UnsignedAdd(int resultWidth, VectorWord* result, int aWidth,
                                  const VectorWord* a, int bWidth,
                                  const VectorWord* b) TARNLIB_NOEXCEPT;

/** Difference of two vectors: result = a - b.
 *  widths    bits, any; operands are extended or cut as in tarn_SignedAdd.
 *  unknown   any bval bit set anywhere in either operand, words above the result included: all X.
 *  top word  holds the full word difference; a borrow fills the bits above the width.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  source    IEEE 1364-2005, 5.1.5
 *  example   8'h00 - 8'h01 at width 8 stores {0xffffffff, 0}. */
TARNLIB_API void tarn_SignedSub(int resultWidth, VectorWord* result, int aWidth,
                                const VectorWord* a, int bWidth,
                                const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedSub */
TARNLIB_API void tarn_UnsignedSub(int resultWidth, VectorWord* result, int aWidth,
                                  const VectorWord* a, int bWidth,
                                  const VectorWord* b) TARNLIB_NOEXCEPT;

/** Negation: result = -a.
 *  widths    bits, any; the operand is extended or cut as in tarn_SignedAdd.
 *  unknown   any bval bit set anywhere in the operand, words above the result included: all X.
 *  top word  holds the full word difference; bits above the width are neither cleared nor extended.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a itself; partly overlapping storage is not supported.
 *  source    IEEE 1364-2005, 5.1.5
 *  example   -1 at width 64 stores {0xffffffff, 0} twice. */
TARNLIB_API void tarn_SignedMinus(int resultWidth, VectorWord* result, int aWidth,
                                  const VectorWord* a) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedMinus */
TARNLIB_API void tarn_UnsignedMinus(int resultWidth, VectorWord* result, int aWidth,
                                    const VectorWord* a) TARNLIB_NOEXCEPT;

/** The operand itself, under the unknown rule of arithmetic: result = +a. A copy (tarn_SignedCopy)
 *  keeps X and Z bits; this turns any of them into an all-X result.
 *  widths    bits, any; the operand is extended or cut as in tarn_SignedAdd.
 *  unknown   any bval bit set anywhere in the operand, words above the result included: all X.
 *  top word  copied whole; bits above the width are neither cleared nor extended.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a itself; partly overlapping storage is not supported.
 *  source    IEEE 1364-2005, 5.1.5 */
TARNLIB_API void tarn_SignedPlus(int resultWidth, VectorWord* result, int aWidth,
                                 const VectorWord* a) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedPlus */
TARNLIB_API void tarn_UnsignedPlus(int resultWidth, VectorWord* result, int aWidth,
                                   const VectorWord* a) TARNLIB_NOEXCEPT;

/** Increment in place: v = v + 1 (tarn_Inc), and decrement in place: v = v - 1 (tarn_Dec).
 *  widths    bits, any.
 *  unknown   any bval bit set anywhere in v: all X.
 *  top word  takes part as a whole word, so a carry may set the bits above the width, and the value
 *            wraps at 2 to the power 32 * N(width).
 *  writes    the words that the carry or borrow reaches; none for a width below 1.
 *  example   a 16-bit 0 decremented stores {0xffffffff, 0}. */
TARNLIB_API void tarn_Inc(int width, VectorWord* v) TARNLIB_NOEXCEPT;
/** @copydoc tarn_Inc */
TARNLIB_API void tarn_Dec(int width, VectorWord* v) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
