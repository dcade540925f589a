/** @file
 *  Memory words: the elements of an array of vectors, packed in bytes.
 *
 *  A memory word of `width` bits, 1 or more, takes 2 * N bytes, N = (width + 7) >> 3: the bits of
 *  aval, least significant byte first, and behind them the bits of bval in the same order. There is
 *  no header and no padding, and any address will do. The bits of the last byte of each half above
 *  the width are the spare bits. No function reads or writes a byte outside the 2 * N.
 *
 *  A memory word never overlaps a vector of the same call, tarn_VectorRegister among them where a
 *  function uses it. */
#ifndef TARNLIB_MEMORY_H
#define TARNLIB_MEMORY_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/** A memory word as a vector: result = memory word.
 *  widths    bits: resultWidth any, memoryWidth at least 1. A narrower memory word is extended
 *            (Signed: by its top bit, aval and bval each by its own; Unsigned: by zeros). Of a
 *            wider one the low words are unpacked. spareBits is -memoryWidth & 31.
 *  unknown   X and Z bits are unpacked as they are; a sign bit that is X or Z extends as X or Z.
 *  top word  the word that holds the memory word's top bit is extended above it; a word below that
 *            one is unpacked whole, bits above resultWidth included.
 *  writes    exactly N(resultWidth) words; none where either width is below 1.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 4.9
 *  example   the bytes a5 02 01 00 are a memory word of 10 bits; Unsigned, at width 40, they give
 *            {0x2a5, 0x1} and {0, 0}. */
TARNLIB_API void tarn_UnsignedCopyMemoryValue(int resultWidth, VectorWord* result, int memoryWidth,
                                              const uint8_t* memory,
                                              int spareBits) TARNLIB_NOEXCEPT;
/** @copydoc tarn_UnsignedCopyMemoryValue */
TARNLIB_API void tarn_SignedCopyMemoryValue(int resultWidth, VectorWord* result, int memoryWidth,
                                            const uint8_t* memory, int spareBits) TARNLIB_NOEXCEPT;

/** A vector as a memory word: memory word = value.
 *  widths    bits, at least 1; the value has memoryWidth bits as well.
 *  unknown   X and Z bits are packed as they are.
 *  top word  the spare bits take the bits that the value's top word holds there.
 *  writes    all bytes of the memory word; none for a width below 1.
 *  returns   NotIdentical: 1 if a byte changed, spare bits included, else 0.
 *  limits    may run in any thread.
 *  example   {0x2a5, 0x1} at width 10 is stored as the bytes a5 02 01 00. */
TARNLIB_API void tarn_MemoryWordAssign(int memoryWidth, uint8_t* memory,
                                       const VectorWord* value) TARNLIB_NOEXCEPT;
/** @copydoc tarn_MemoryWordAssign */
TARNLIB_API int tarn_NotIdenticalMemoryWordAssign(int memoryWidth, uint8_t* memory,
                                                  const VectorWord* value) TARNLIB_NOEXCEPT;

/** A field of bits that lies inside its memory word, unsigned, as tarn_Partselect reads it.
 *  widths    bits, at least 1. `width` bits are read, from bit `low` (0 or more) of the memory
 *            word upward.
 *  unknown   X and Z bits are read as they are.
 *  top word  clean: the bits of the result above the width are 0 in aval and bval.
 *  writes    exactly N(width) words; none where either width is below 1.
 *  scratch   when the call returns, tarn_VectorRegister holds the memory word, with zeros above
 *            memoryWidth in the top word; the words above that one keep their contents. The result
 *            must not lie in it.
 *  limits    20,000,000 bits for the memory word; not checked.
 *  source    IEEE 1364-2005, 5.2.2 */
TARNLIB_API void tarn_MemoryWordPartselect(VectorWord* result, int memoryWidth,
                                           const uint8_t* memory, int low,
                                           int width) TARNLIB_NOEXCEPT;

/** A field of bits that may reach past either end of its memory word, unsigned, as
 *  tarn_IndexedPartselect reads it.
 *  widths    bits, at least 1. `width` bits are read, from bit `index` of the memory word upward;
 *            index may be negative.
 *  unknown   X and Z bits are read as they are; bits outside the memory word read as X.
 *  top word  clean: the bits of the result above the width are 0 in aval and bval.
 *  writes    exactly N(width) words; none where either width is below 1.
 *  scratch   tarn_VectorRegister as in tarn_MemoryWordPartselect.
 *  limits    20,000,000 bits for the memory word; not checked.
 *  source    IEEE 1364-2005, 5.2.2
 *  example   index 6 and width 4 of a memory word of 8 bits give its bits 6 and 7 and two X. */
TARNLIB_API void tarn_MemoryWordIndexedPartselect(VectorWord* result, int memoryWidth,
                                                  const uint8_t* memory, int index,
                                                  int width) TARNLIB_NOEXCEPT;

/** A field of bits that lies inside its memory word is written, as by tarn_PartselectAssign.
 *  widths    bits, at least 1. `width` bits are written, from bit `low` (0 or more) of the memory
 *            word upward.
 *  unknown   X and Z bits are written as they are.
 *  top word  bits of the value above the field's width are not used; spare bits become 0.
 *  writes    bytes of the memory word; none where either width is below 1.
 *  returns   NotIdentical: 1 if a byte changed, cleared spare bits included, else 0.
 *  scratch   when the call returns, tarn_VectorRegister holds the memory word with the field in it
 *            and zeros above memoryWidth in the top word; the words above that one keep their
 *            contents. The value must not lie in it.
 *  limits    20,000,000 bits for the memory word; not checked.
 *  source    IEEE 1364-2005, 5.2.2, 9.2 */
TARNLIB_API void tarn_MemoryWordPartselectAssign(int memoryWidth, uint8_t* memory,
                                                 const VectorWord* value, int low,
                                                 int width) TARNLIB_NOEXCEPT;
/** @copydoc tarn_MemoryWordPartselectAssign */
TARNLIB_API int tarn_NotIdenticalMemoryWordPartselectAssign(int memoryWidth, uint8_t* memory,
                                                            const VectorWord* value, int low,
                                                            int width) TARNLIB_NOEXCEPT;

/** A field of bits that may reach past either end of its memory word is written, as far as it lies
 *  inside, as by tarn_IndexedPartselectAssign.
 *  widths    bits, at least 1. `width` bits are written, from bit `index` of the memory word
 *            upward; index may be negative. Bits of the value that would land outside the memory
 *            word are dropped.
 *  unknown   X and Z bits are written as they are.
 *  top word  bits of the value above the field's width are not used; spare bits become 0.
 *  writes    bytes of the memory word; none for a field that lies wholly outside, or where either
 *            width is below 1.
 *  returns   NotIdentical: 1 if a byte changed, cleared spare bits included, else 0.
 *  scratch   tarn_VectorRegister as in tarn_MemoryWordPartselectAssign.
 *  limits    20,000,000 bits for the memory word; not checked.
 *  source    IEEE 1364-2005, 5.2.2, 9.2 */
TARNLIB_API void tarn_MemoryWordIndexedPartselectAssign(int memoryWidth, uint8_t* memory,
                                                        const VectorWord* value, int index,
                                                        int width) TARNLIB_NOEXCEPT;
/** @copydoc tarn_MemoryWordIndexedPartselectAssign */
TARNLIB_API int tarn_NotIdenticalMemoryWordIndexedPartselectAssign(int memoryWidth, uint8_t* memory,
                                                                   const VectorWord* value,
                                                                   int index,
                                                                   int width) TARNLIB_NOEXCEPT;

/** The same writes for memory words of at most 32 bits, at less cost and without the register.
 *  widths    bits, at least 1; memoryWidth at most 32. PartselectAssign1: the field of `width` bits
 *            lies inside the memory word, from bit `low` upward. IndexedPartselectAssign1: bits of
 *            the value that would land outside the memory word are dropped.
 *  unknown   X and Z bits are written as they are.
 *  top word  bits of the value above the field's width are not used; spare bits become 0.
 *  writes    bytes of the memory word; none for a field that lies wholly outside, or where either
 *            width is below 1.
 *  returns   NotIdentical: 1 if a byte changed, cleared spare bits included, else 0.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.2.2, 9.2 */
TARNLIB_API void tarn_MemoryWordPartselectAssign1(int memoryWidth, uint8_t* memory,
                                                  const VectorWord* value, int low,
                                                  int width) TARNLIB_NOEXCEPT;
/** @copydoc tarn_MemoryWordPartselectAssign1 */
TARNLIB_API int tarn_NotIdenticalMemoryWordPartselectAssign1(int memoryWidth, uint8_t* memory,
                                                             const VectorWord* value, int low,
                                                             int width) TARNLIB_NOEXCEPT;
/** @copydoc tarn_MemoryWordPartselectAssign1 */
TARNLIB_API void tarn_MemoryWordIndexedPartselectAssign1(int memoryWidth, uint8_t* memory,
                                                         const VectorWord* value, int index,
                                                         int width) TARNLIB_NOEXCEPT;
/** @copydoc tarn_MemoryWordPartselectAssign1 */
TARNLIB_API int tarn_NotIdenticalMemoryWordIndexedPartselectAssign1(int memoryWidth,
                                                                    uint8_t* memory,
                                                                    const VectorWord* value,
                                                                    int index,
                                                                    int width) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
