/** @file
 *  Part-select writes: fields of bits written into a vector, with and without the news whether that
 *  changed a bit; and the comparison of two vectors as they are stored. All of these may run in any
 *  thread. */
#ifndef TARNLIB_ASSIGN_H
#define TARNLIB_ASSIGN_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/** A field of bits that lies inside its vector is written: target[p + width - 1 : p] = value.
 *  widths    `width` bits, at least 1, are written, from bit `offset` of the word at `target`
 *            upward. For the field at bit p of a vector v pass &v[p >> 5] and p & 31. offset is 0
 *            to 31.
 *  unknown   X and Z bits are written as they are.
 *  top word  bits of the value above the field's width are not used; all bits of the target below
 *            and above the field keep their values.
 *  writes    the words that hold bits of the field; none for a width below 1. Only words of the
 *            value that hold bits of the field are read.
 *  returns   NotIdentical: 1 if a bit of the field changed, in aval or in bval, else 0.
 *  aliasing  value may be the target or the vector that the field lies in, and is then read as it
 *            was before the call: it may begin at the word at `target` or at one below it. Other
 *            overlapping storage is not supported.
 *  source    IEEE 1364-2005, 5.2.1, 9.2
 *  example   0xff at offset 4 and width 8 turns a word {0, 0} into {0xff0, 0}. */
TARNLIB_API void tarn_PartselectAssign(VectorWord* target, const VectorWord* value, unsigned offset,
                                       int width) TARNLIB_NOEXCEPT;
/** @copydoc tarn_PartselectAssign */
TARNLIB_API int tarn_NotIdenticalPartselectAssign(VectorWord* target, const VectorWord* value,
                                                  unsigned offset, int width) TARNLIB_NOEXCEPT;

/** A field of bits that may reach past either end of its vector is written, as far as it lies
 *  inside: target[index + width - 1 : index] = value.
 *  widths    bits, at least 1. The field's lowest bit has the number `index` in the target, which
 *            may be negative. Bits of the value that would land below bit 0 or at targetWidth and
 *            above are dropped.
 *  unknown   X and Z bits are written as they are.
 *  top word  bits of the value above the field's width are not used; all bits of the target outside
 *            the field, those above targetWidth included, keep their values.
 *  writes    the words of the target that hold bits of the field; none for a field that lies wholly
 *            outside or for a width below 1. Only words of the value with a bit that is written are
 *            read.
 *  returns   NotIdentical: 1 if a bit of the target changed, in aval or in bval, else 0.
 *  aliasing  value may be target itself, and is then read as it was before the call; other
 *            overlapping storage is not supported.
 *  source    IEEE 1364-2005, 5.2.1, 9.2
 *  example   index -2 and width 4 write bits 2 and 3 of the value to bits 0 and 1 of the target. */
TARNLIB_API void tarn_IndexedPartselectAssign(int targetWidth, VectorWord* target,
                                              const VectorWord* value, int index,
                                              int width) TARNLIB_NOEXCEPT;
/** @copydoc tarn_IndexedPartselectAssign */
TARNLIB_API int tarn_NotIdenticalIndexedPartselectAssign(int targetWidth, VectorWord* target,
                                                         const VectorWord* value, int index,
                                                         int width) TARNLIB_NOEXCEPT;

/** Whether two vectors of one width differ in a stored bit.
 *  widths    bits, any.
 *  unknown   X and Z are values like 0 and 1: X equals X and differs from Z.
 *  top word  compared whole: for vectors that hold the same extension above the width the answer is
 *            whether the values differ.
 *  returns   1 if they differ, 0 if not or for a width below 1.
 *  aliasing  a and b may share storage in any way.
 *  example   {0x105, 0} and {0x005, 0} differ, at width 8 too. */
TARNLIB_API int tarn_NotIdentical(int width, const VectorWord* a,
                                  const VectorWord* b) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
