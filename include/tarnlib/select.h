/** @file
 *  Selection: fields and bits read out of a vector, concatenation, and bits of one value rewritten
 *  as another. */
#ifndef TARNLIB_SELECT_H
#define TARNLIB_SELECT_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/*------------------------------------------------------------------------------------------------
 * Part-selects and bit-selects
 *----------------------------------------------------------------------------------------------*/

/** A field of bits that lies inside its vector: result = v[p + width - 1 : p], unsigned.
 *  widths    `width` bits, at least 1, are read, from bit `offset` of the word at `source` upward.
 *            For the field at bit p of a vector v pass &v[p >> 5] and p & 31. offset is 0 to 31.
 *  unknown   X and Z bits are read as they are.
 *  top word  clean: the bits of the result above the width are 0 in aval and bval.
 *  writes    exactly N(width) words; none for a width below 1. Only source words that hold bits of
 *            the field are read.
 *  aliasing  result may be the vector that the field lies in, and the field is then read as it was
 *            before the call: result may begin at the word at `source` or at one below it. Other
 *            overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.2.1
 *  example   offset 30 and width 4 read bits 30 and 31 of source[0] and bits 0 and 1 of source[1].
 *            */
TARNLIB_API void tarn_Partselect(VectorWord* result, const VectorWord* source, unsigned offset,
                                 int width) TARNLIB_NOEXCEPT;

/** A field of bits that lies inside its vector, sign-extended to another width.
 *  widths    `width` bits, at least 1, are read, from bit `offset` (0 to 31) of the word at
 *            `source` upward, as by tarn_Partselect. The result has the words of the wider of width
 *            and resultWidth, which may be any.
 *  unknown   X and Z bits are read as they are; a sign bit that is X or Z extends as X or Z.
 *  top word  the bits of the result above the field copy the field's top bit, in aval and bval.
 *  writes    exactly N(width) words, or N(resultWidth) if that is more; none for a width below 1.
 *            Only source words that hold bits of the field are read.
 *  aliasing  as for tarn_Partselect.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.2.1
 *  example   4'bx010 read into 40 bits stores {0xfffffffa, 0xfffffff8} and, as word 1, all X. */
TARNLIB_API void tarn_SignedPartselect(int resultWidth, VectorWord* result,
                                       const VectorWord* source, unsigned offset,
                                       int width) TARNLIB_NOEXCEPT;

/** A field of bits anywhere in or beside its vector: result = source[index +: width].
 *  widths    `width` bits, at least 1, are read, from bit `index` of the source upward. The index
 *            may be negative, or above the source, whose width may be any.
 *  unknown   X and Z bits are read as they are; bits that the source does not have read as X.
 *  top word  the source's bits above its width are not used. The result is clean.
 *  writes    exactly N(width) words; none for a width below 1. Only source words that hold bits of
 *            the field are read.
 *  aliasing  result may be source itself; other overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.2.1
 *  example   8'b01100101 read at index -3 with width 8 gives 8'b00101xxx, at 5 8'bxxxxx011. */
TARNLIB_API void tarn_IndexedPartselect(VectorWord* result, int sourceWidth,
                                        const VectorWord* source, int index,
                                        int width) TARNLIB_NOEXCEPT;

/** One bit of a vector.
 *  widths    bits, any; index is any number.
 *  returns   the LogicCode of bit `index`: TARN_LOGIC_0, _1, _Z or _X; _X for an index below 0 or
 *            not below the width. Only the bit's own word is read.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.2.1 */
TARNLIB_API LogicCode tarn_BitValue(int sourceWidth, const VectorWord* source,
                                    int index) TARNLIB_NOEXCEPT;

/** A run of X bits in a vector that is being put together from the low end upward.
 *  widths    `count` bits, at least 1, become X, from bit `base` (0 to 31) of the word at `word`
 *            upward.
 *  top word  the bits of the run's last word above the run become 0.
 *  writes    the words that the run reaches, N(base + count); none for a count below 1. The bits
 *            of the first word below base stay as they were.
 *  limits    may run in any thread.
 *  example   base 30 and count 4 make bits 30 and 31 of word[0] X and store {0x3, 0x3} in word[1].
 *            */
TARNLIB_API void tarn_CleanBasedFillX(VectorWord* word, int count, int base) TARNLIB_NOEXCEPT;

/** Whether a vector is an index that a 32-bit integer can hold.
 *  widths    bits of the index vector, at least 1.
 *  unknown   any bval bit set in any word: 0.
 *  top word  counts whole: clean (Unsigned) or signed (Signed) storage is required.
 *  returns   1 where the index is known and lies in 0 to 2147483647; Signed with more than 32 bits,
 *            in -2147483648 to 2147483647, and with 32 bits or less, any known index. Else 0, and
 *            for a width below 1 without reading a word.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.2.1
 *  example   32'h80000000 gives 0, Unsigned; a 40-bit -5 in signed storage gives 1, Signed. */
TARNLIB_API int tarn_SignedScanIndexOfSelect(int width, const VectorWord* index) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedScanIndexOfSelect */
TARNLIB_API int tarn_UnsignedScanIndexOfSelect(int width, const VectorWord* index) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Concatenation: put together in the destination, an operand at a time, the lowest first
 *----------------------------------------------------------------------------------------------*/

/** Places an operand at any bit of a vector that is being put together.
 *  widths    bits, at least 1. The operand's bit 0 goes to bit `offset` (0 to 31) of the word at
 *            `destination`. The span counts the bits from bit 0 of that word to the top of the
 *            placed operand, offset + operandWidth; it may be larger, up to the top of the whole
 *            destination.
 *  unknown   X and Z bits are placed as they are.
 *  top word  the operand's is placed whole, as far as the words written reach: clean storage is
 *            required, and then the bits above the operand become 0.
 *  writes    N(offset + operandWidth) words, or N(span) if that is less; none for a span or an
 *            operandWidth below 1. The operand is ORed into the first word, in which the caller
 *            holds 0 from the offset upward, and replaces the words above it. Of an operand that
 *            goes past a smaller span the words that begin at or above the span are not placed.
 *  aliasing  destination may be operand itself, and with offset 0 then stays as it is; other
 *            overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.14
 *  example   an 8-bit a above a 40-bit b: b with tarn_ConcatenateShifted and span 40 at word 0,
 *            then a with span 16 and offset 8 at word 1. */
TARNLIB_API void tarn_Concatenate(int span, VectorWord* destination, int operandWidth,
                                  const VectorWord* operand, unsigned offset) TARNLIB_NOEXCEPT;

/** Places an operand that is laid out as its destination is: its bit k goes to bit k of the word at
 *  `destination`. Its bits below the place are 0.
 *  widths    the span, at least 1, counts the bits from bit 0 of that word to the top of the
 *            operand, and no further: the operand has N(span) words.
 *  unknown   X and Z bits are placed as they are.
 *  top word  copied whole: clean storage is required.
 *  writes    exactly N(span) words; none for a span below 1. The operand is ORed into the first
 *            word, in which the caller holds 0 from the place upward, and replaces the words above
 *            it.
 *  aliasing  destination may be operand itself, and then stays as it is; other overlapping storage
 *            is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.14 */
TARNLIB_API void tarn_ConcatenateShifted(int span, VectorWord* destination,
                                         const VectorWord* operand) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Bits rewritten in place
 *----------------------------------------------------------------------------------------------*/

/** Rewrites bits in place: each 0 as Z (0ToZ), each 1 as Z (1ToZ), each X and Z as 0 (XZTo0).
 *  widths    bits, any.
 *  unknown   X and Z bits stay as they are, but for XZTo0.
 *  top word  rewritten whole: 0ToZ turns the zeros above the width into Z as well.
 *  writes    exactly N(width) words; none for a width below 1.
 *  limits    may run in any thread.
 *  example   8'h0f becomes {0x0f, 0xfffffff0} by 0ToZ and {0, 0x0f} by 1ToZ. */
TARNLIB_API void tarn_Convert0ToZ(int width, VectorWord* v) TARNLIB_NOEXCEPT;
/** @copydoc tarn_Convert0ToZ */
TARNLIB_API void tarn_Convert1ToZ(int width, VectorWord* v) TARNLIB_NOEXCEPT;
/** @copydoc tarn_Convert0ToZ */
TARNLIB_API void tarn_ConvertXZTo0(int width, VectorWord* v) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
