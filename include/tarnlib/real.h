/** @file
 *  Real numbers: doubles into vectors and vectors into doubles, the real math functions, and the
 *  base-2 logarithm of a vector. The functions of this header may run in any thread. */
#ifndef TARNLIB_REAL_H
#define TARNLIB_REAL_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/*------------------------------------------------------------------------------------------------
 * Vectors and reals
 *----------------------------------------------------------------------------------------------*/

/** A real rounded to the nearest integer, halves away from zero, as a vector.
 *  widths    bits, at least 1; below 1 nothing is written.
 *  top word  two's complement in whole words, modulo 2 to the power 32 * N(width): the bits above
 *            the width are those of the value.
 *  writes    exactly N(width) words, known.
 *  limits    one half is added (for a value below 0 subtracted) as doubles are added, and the
 *            fraction of the sum is dropped. Where the sum is inexact the result is that of the
 *            rounded sum: the double just below 0.5 gives 1, and 2^52 + 1 gives 2^52 + 2. Of an
 *            infinity or a NaN the bits are taken for a number with exponent 2^1024, and it is that
 *            number modulo the storage's size that is stored.
 *  source    IEEE 1364-2005, 4.8.2; IEEE 754-2008, 3.4
 *  example   -2.5 at width 8 stores {0xfffffffd, 0}; 2^100 at width 64 stores 0. */
TARNLIB_API void tarn_ConvertToVector(int width, VectorWord* result, double value) TARNLIB_NOEXCEPT;

/** A real without its fraction as a vector ($rtoi).
 *  widths    bits, at least 1; below 1 nothing is written.
 *  top word  as in tarn_ConvertToVector.
 *  writes    exactly N(width) words, known.
 *  limits    what remains of the value goes through tarn_ConvertToVector, so odd numbers from 2^52
 *            up and what is no number give what they give there.
 *  source    IEEE 1364-2005, 17.8
 *  example   -2.7 at width 8 stores {0xfffffffe, 0}. */
TARNLIB_API void tarn_TruncatedConvertToVector(int width, VectorWord* result,
                                               double value) TARNLIB_NOEXCEPT;

/** The value of a vector as a real ($itor): the nearest double. The magnitude of a value of more
 *  than 53 bits is rounded, halves away from zero, whatever rounding the caller has chosen for
 *  doubles.
 *  widths    bits, at least 1; below 1 the value is 0.
 *  unknown   X and Z bits read as 0, a sign bit too.
 *  top word  Signed: the sign is bit width - 1, and for a negative value, and up to 32 bits for any
 *            value, the bits above the width are ignored. Otherwise they count as value bits.
 *  returns   the double. A magnitude that rounds to 2^1024 or more gives infinity of the value's
 *            sign; the value 0 gives 0.0.
 *  source    IEEE 1364-2005, 4.8.2 and 17.8
 *  example   a signed 8'hff, {0xff, 0}, is -1.0; 4'b1x1z is 10.0 unsigned and -6.0 signed. */
TARNLIB_API double tarn_UnsignedConvertToReal(int width, const VectorWord* v) TARNLIB_NOEXCEPT;
/** @copydoc tarn_UnsignedConvertToReal */
TARNLIB_API double tarn_SignedConvertToReal(int width, const VectorWord* v) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Math functions
 *----------------------------------------------------------------------------------------------*/

/** The real math functions: the value of the C math library's function of the same name. Ln is its
 *  log, Power its pow.
 *  writes    *result.
 *  limits    special values are as the C library has them, but for two functions: AcoshR of a value
 *            below 1 is NaN; AtanhR from 1 up is infinity and from -1 down minus infinity, also
 *            beyond 1 and -1.
 *  source    IEEE 1364-2005, 17.11.2 */
TARNLIB_API void tarn_AcosR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_AcoshR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_AsinR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_AsinhR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_AtanR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_AtanhR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_CeilR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_CosR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_CoshR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_ExpR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_FloorR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_LnR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_Log10R(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_SinR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_SinhR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_SqrtR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_TanR(double* result, double x) TARNLIB_NOEXCEPT;
/** @copydoc tarn_AcosR */
TARNLIB_API void tarn_TanhR(double* result, double x) TARNLIB_NOEXCEPT;

/** The real math functions of two operands, under the same rules.
 *  writes    *result: atan2(y, x), the angle of the point (x, y), whose arguments come in the other
 *            order here than in C; hypot(x, y); x to the power y.
 *  source    IEEE 1364-2005, 17.11.2
 *  example   tarn_Atan2R(&r, 0.0, 1.0) stores pi / 2. */
TARNLIB_API void tarn_Atan2R(double* result, double x, double y) TARNLIB_NOEXCEPT;
/** @copydoc tarn_Atan2R */
TARNLIB_API void tarn_HypotR(double* result, double x, double y) TARNLIB_NOEXCEPT;
/** @copydoc tarn_Atan2R */
TARNLIB_API void tarn_PowerR(double* result, double x, double y) TARNLIB_NOEXCEPT;

/** The logarithm of an unsigned vector to base 2, rounded up ($clog2): how many bits the numbers
 *  from 0 to v - 1 need.
 *  widths    bits; a width below 1 returns 0.
 *  unknown   any bval bit set in any word: 0.
 *  top word  counts whole, bits above the width included.
 *  returns   the number of bits; 0 for the values 0 and 1.
 *  source    IEEE 1364-2005, 17.11.1
 *  example   4 gives 2, 5 gives 3. */
TARNLIB_API int tarn_Clog2(int width, const VectorWord* v) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
