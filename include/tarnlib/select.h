/** @file
 *  Part-selects: reading fields of bits out of a vector. */
#ifndef TARNLIB_SELECT_H
#define TARNLIB_SELECT_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/** A field of bits that lies inside its vector: result = v[p + width - 1 : p], unsigned.
 *  widths    `width` bits are read, from bit `offset` of the word at `source` upward. For the field
 *            at bit p of a vector v pass &v[p >> 5] and p & 31. offset is 0 to 31.
 *  unknown   X and Z bits are read as they are.
 *  top word  clean: the bits of the result above the width are 0 in aval and bval.
 *  writes    exactly N(width) words; none for a width below 1. Only source words that hold bits of
 *            the field are read.
 *  aliasing  result may be source itself; other overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.2.1
 *  example   offset 30 and width 4 read bits 30 and 31 of source[0] and bits 0 and 1 of source[1].
 *            */
TARNLIB_API void tarn_Partselect(VectorWord* result, const VectorWord* source, unsigned offset,
                                 int width) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
