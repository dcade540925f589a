/** @file
 *  Shifts by an amount of bits, and the classification of amounts that are vectors themselves. */
#ifndef TARNLIB_SHIFT_H
#define TARNLIB_SHIFT_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/** Shift toward the high bits, << and <<<: result = source << amount.
 *  widths    bits, at least 1. The source is read as a vector of the result's width: the caller
 *            widens it first. sourceWidth is ignored.
 *  unknown   X and Z bits move as they are; zeros move in.
 *  top word  keeps the bits that were moved past the width.
 *  writes    exactly N(resultWidth) words; none for a width below 1. An amount of the result's
 *            width or more gives 0.
 *  aliasing  result may be source itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.12
 *  example   8'b10110001 shifted by 3 at width 8 stores {0x588, 0}. */
TARNLIB_API void tarn_LogicalShiftLeft(int resultWidth, VectorWord* result, int sourceWidth,
                                       const VectorWord* source, unsigned amount) TARNLIB_NOEXCEPT;

/** Shift toward the low bits, >> (Logical) and >>> of a signed vector (Arithmetical):
 *  result = source >> amount.
 *  widths    bits, at least 1. Above the source the result goes on with what moves in; of a source
 *            that reaches further than the result the low words of the shifted value are stored.
 *            A source of width below 1 counts as 0.
 *  unknown   X and Z bits move as they are. What moves in: zeros (Logical), or the sign, bit 31 of
 *            the source's top word, aval and bval each by its own (Arithmetical), so that a sign
 *            of X moves in as X and one of Z as Z.
 *  top word  the source's is moved whole, its bits above the width included. The result's holds
 *            the full word: its bits above the width are neither cleared nor extended.
 *  writes    exactly N(resultWidth) words; none for a width below 1. An amount of the source's
 *            width or more gives only what moves in.
 *  aliasing  result may be source itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.12
 *  example   -128 in 8 bits, {0xffffff80, 0}, shifted by 3 stores {0xfffffff0, 0}, Arithmetical. */
TARNLIB_API void tarn_LogicalShiftRight(int resultWidth, VectorWord* result, int sourceWidth,
                                        const VectorWord* source, unsigned amount) TARNLIB_NOEXCEPT;
/** @copydoc tarn_LogicalShiftRight */
TARNLIB_API void tarn_ArithmeticalShiftRight(int resultWidth, VectorWord* result, int sourceWidth,
                                             const VectorWord* source,
                                             unsigned amount) TARNLIB_NOEXCEPT;

/** Whether a vector is an amount that the shifts can take.
 *  widths    bits, at least 1.
 *  unknown   any bval bit set in any word: 3.
 *  top word  counts whole: clean storage is required.
 *  returns   0: the amount is amount[0].aval; 1: it is known and 2 to the power 32 or more, past
 *            the width of any vector; 3: it is unknown, and the caller makes the shift all X. 0
 *            for a width below 1, without reading a word.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.12
 *  example   64'd5 gives 0, 64'h100000000 gives 1, 40'hz00000005 gives 3. */
TARNLIB_API int tarn_ScanShiftCount(int width, const VectorWord* amount) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
