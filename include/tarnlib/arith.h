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

/** Product of two vectors: result = a * b.
 *  widths    bits, any; operands are extended or cut as in tarn_SignedAdd.
 *  unknown   any bval bit set anywhere in either operand, words above the result included: all X.
 *  top word  holds the full word product; bits above the width are neither cleared nor extended.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  scratch   tarn_VectorRegister is the function's own during the call; b must not lie in it.
 *  limits    20,000,000 bits for the result; not checked.
 *  source    IEEE 1364-2005, 5.1.5
 *  example   32'hffffffff * 32'd2 at width 64 stores {0xfffffffe, 0} and, Signed, {0xffffffff, 0},
 *            Unsigned, {1, 0}. */
TARNLIB_API void tarn_SignedMul(int resultWidth, VectorWord* result, int aWidth,
                                const VectorWord* a, int bWidth,
                                const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedMul */
TARNLIB_API void tarn_UnsignedMul(int resultWidth, VectorWord* result, int aWidth,
                                  const VectorWord* a, int bWidth,
                                  const VectorWord* b) TARNLIB_NOEXCEPT;

/** Quotient (Div), truncated toward zero, and remainder (Mod), with the sign of a, of two vectors.
 *  widths    bits, any. Both operands enter with all their words. Words of the result above the
 *            quotient or remainder continue it (zeros, or the sign's); words that the result does
 *            not have are dropped. An empty dividend (width below 1) counts as 0.
 *  unknown   any bval bit set anywhere in either operand, a divisor of 0 or of no words: all X.
 *  top word  Signed takes the sign of an operand from bit 31 of its top word. The result holds the
 *            full words; bits above the width are neither cleared nor extended.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  scratch   tarn_VectorRegister is the function's own during the call; no operand may lie in it.
 *  limits    10,000,000 bits for dividend and result, 40,000,000 for the divisor; not checked.
 *  source    IEEE 1364-2005, 5.1.5
 *  example   -7 / 2 is -3 and -7 % 2 is -1; 7 % -2 is 1. */
TARNLIB_API void tarn_SignedDiv(int resultWidth, VectorWord* result, int aWidth,
                                const VectorWord* a, int bWidth,
                                const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedDiv */
TARNLIB_API void tarn_UnsignedDiv(int resultWidth, VectorWord* result, int aWidth,
                                  const VectorWord* a, int bWidth,
                                  const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedDiv */
TARNLIB_API void tarn_SignedMod(int resultWidth, VectorWord* result, int aWidth,
                                const VectorWord* a, int bWidth,
                                const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedDiv */
TARNLIB_API void tarn_UnsignedMod(int resultWidth, VectorWord* result, int aWidth,
                                  const VectorWord* a, int bWidth,
                                  const VectorWord* b) TARNLIB_NOEXCEPT;

/** Power: result = a ** b. The first word of the name is the signedness of the base a, the letter
 *  in front of Power that of the exponent b.
 *  widths    bits, any; the base is extended or cut as an operand of tarn_SignedAdd, the exponent
 *            enters with all its bits. An exponent of width below 1 counts as 0.
 *  unknown   any bval bit set anywhere in either operand: all X, whatever the exponent.
 *            0 to a negative power: all X.
 *  top word  bits of an unsigned exponent above its width are ignored; a signed exponent is
 *            negative where its top bit or any bit above that is set. The result holds the full
 *            words; bits above the width are neither cleared nor extended.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  scratch   tarn_VectorRegister is the function's own during the call; b must not lie in it.
 *  limits    20,000,000 bits for the result, 40,000,000 bits for the exponent; not checked.
 *  source    IEEE 1364-2005, 5.1.5, table 5-6 (negative exponents: 1 gives 1, -1 gives 1 or -1, any
 *            other base but 0 gives 0; all ones is -1 for a signed base only)
 *  example   (-2) ** 3 is -8; 2 ** -1 is 0; (-1) ** -3 is -1. */
TARNLIB_API void tarn_SignedUPower(int resultWidth, VectorWord* result, int aWidth,
                                   const VectorWord* a, int bWidth,
                                   const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedUPower */
TARNLIB_API void tarn_UnsignedUPower(int resultWidth, VectorWord* result, int aWidth,
                                     const VectorWord* a, int bWidth,
                                     const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedUPower */
TARNLIB_API void tarn_SignedSPower(int resultWidth, VectorWord* result, int aWidth,
                                   const VectorWord* a, int bWidth,
                                   const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedUPower */
TARNLIB_API void tarn_UnsignedSPower(int resultWidth, VectorWord* result, int aWidth,
                                     const VectorWord* a, int bWidth,
                                     const VectorWord* b) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
