/** @file
 *  Bitwise operators and gates, reductions, and the truth value of a vector. Each bit of a bitwise
 *  result depends on the operands' bits at its own position alone; X and Z stay where they are, and
 *  no result bit is ever Z. */
#ifndef TARNLIB_LOGIC_H
#define TARNLIB_LOGIC_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/*------------------------------------------------------------------------------------------------
 * Bitwise operators of two operands
 *----------------------------------------------------------------------------------------------*/

/** Bitwise and: result = a & b.
 *  widths    bits, any. An operand of fewer words than the result is extended (Signed: by bit 31 of
 *            its top word, aval and bval each by its own; Unsigned: by zeros). Of one with more
 *            words the low words are taken. An operand of width below 1 counts as 0.
 *  unknown   0 with anything is 0, 1 with 1 is 1, all else is X. A sign bit that is X or Z extends
 *            as X or Z.
 *  top word  all 32 bits of each top word take part, and the bits of the result above the width
 *            are what the rule gives there; none is cleared.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.10 and 7.2
 *  example   4'b01zx & 4'b1111 is 4'b01xx; 4'b01zx & 4'b0000 is 4'b0000. */
TARNLIB_API void tarn_SignedBitwiseAND(int resultWidth, VectorWord* result, int aWidth,
                                       const VectorWord* a, int bWidth,
                                       const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedBitwiseAND */
TARNLIB_API void tarn_UnsignedBitwiseAND(int resultWidth, VectorWord* result, int aWidth,
                                         const VectorWord* a, int bWidth,
                                         const VectorWord* b) TARNLIB_NOEXCEPT;

/** Inverted bitwise and, the nand gate: result = ~(a & b).
 *  widths    bits, any; operands are extended or cut as in tarn_SignedBitwiseAND.
 *  unknown   0 with anything is 1, 1 with 1 is 0, all else is X.
 *  top word  as in tarn_SignedBitwiseAND; above the width of unsigned operands that makes ones.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 7.2
 *  example   Unsigned, a 64-bit a and an 8-bit b at width 64: word 1 is {0xffffffff, 0}. */
TARNLIB_API void tarn_SignedBitwiseNAND(int resultWidth, VectorWord* result, int aWidth,
                                        const VectorWord* a, int bWidth,
                                        const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedBitwiseNAND */
TARNLIB_API void tarn_UnsignedBitwiseNAND(int resultWidth, VectorWord* result, int aWidth,
                                          const VectorWord* a, int bWidth,
                                          const VectorWord* b) TARNLIB_NOEXCEPT;

/** Bitwise or: result = a | b.
 *  widths    bits, any; operands are extended or cut as in tarn_SignedBitwiseAND.
 *  unknown   1 with anything is 1, 0 with 0 is 0, all else is X.
 *  top word  as in tarn_SignedBitwiseAND.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.10 and 7.2
 *  example   4'b01zx | 4'b0000 is 4'b01xx; 4'b01zx | 4'b1111 is 4'b1111. */
TARNLIB_API void tarn_SignedBitwiseOR(int resultWidth, VectorWord* result, int aWidth,
                                      const VectorWord* a, int bWidth,
                                      const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedBitwiseOR */
TARNLIB_API void tarn_UnsignedBitwiseOR(int resultWidth, VectorWord* result, int aWidth,
                                        const VectorWord* a, int bWidth,
                                        const VectorWord* b) TARNLIB_NOEXCEPT;

/** Inverted bitwise or, the nor gate: result = ~(a | b).
 *  widths    bits, any; operands are extended or cut as in tarn_SignedBitwiseAND.
 *  unknown   1 with anything is 0, 0 with 0 is 1, all else is X.
 *  top word  as in tarn_SignedBitwiseAND; above the width of unsigned operands that makes ones.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 7.2
 *  example   Signed, a 32-bit b with bit 31 set and a wider a: every word above b's is {0, 0}. */
TARNLIB_API void tarn_SignedBitwiseNOR(int resultWidth, VectorWord* result, int aWidth,
                                       const VectorWord* a, int bWidth,
                                       const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedBitwiseNOR */
TARNLIB_API void tarn_UnsignedBitwiseNOR(int resultWidth, VectorWord* result, int aWidth,
                                         const VectorWord* a, int bWidth,
                                         const VectorWord* b) TARNLIB_NOEXCEPT;

/** Bitwise exclusive or: result = a ^ b.
 *  widths    bits, any; operands are extended or cut as in tarn_SignedBitwiseAND.
 *  unknown   X or Z in either operand is X.
 *  top word  as in tarn_SignedBitwiseAND.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.10 and 7.2
 *  example   4'b01zx ^ 4'b1111 is 4'b10xx. */
TARNLIB_API void tarn_SignedBitwiseXOR(int resultWidth, VectorWord* result, int aWidth,
                                       const VectorWord* a, int bWidth,
                                       const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedBitwiseXOR */
TARNLIB_API void tarn_UnsignedBitwiseXOR(int resultWidth, VectorWord* result, int aWidth,
                                         const VectorWord* a, int bWidth,
                                         const VectorWord* b) TARNLIB_NOEXCEPT;

/** Bitwise equivalence, the xnor gate: result = a ~^ b.
 *  widths    bits, any; operands are extended or cut as in tarn_SignedBitwiseAND.
 *  unknown   X or Z in either operand is X.
 *  top word  as in tarn_SignedBitwiseAND; above the width of unsigned operands that makes ones.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.10 and 7.2
 *  example   4'b01zx ~^ 4'b1111 is 4'b01xx. */
TARNLIB_API void tarn_SignedBitwiseXNOR(int resultWidth, VectorWord* result, int aWidth,
                                        const VectorWord* a, int bWidth,
                                        const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedBitwiseXNOR */
TARNLIB_API void tarn_UnsignedBitwiseXNOR(int resultWidth, VectorWord* result, int aWidth,
                                          const VectorWord* a, int bWidth,
                                          const VectorWord* b) TARNLIB_NOEXCEPT;

/** What (condition ? a : b) gives where the condition is X or Z: the branches merged bit by bit.
 *  widths    bits, any; operands are extended or cut as in tarn_SignedBitwiseAND.
 *  unknown   0 with 0 is 0 and 1 with 1 is 1; all else is X, Z with Z too.
 *  top word  as in tarn_SignedBitwiseAND.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a or b itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.13
 *  example   1'bx ? 4'b01z0 : 4'b11z1 is 4'bx1xx. */
TARNLIB_API void tarn_SignedConditionalMix(int resultWidth, VectorWord* result, int aWidth,
                                           const VectorWord* a, int bWidth,
                                           const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedConditionalMix */
TARNLIB_API void tarn_UnsignedConditionalMix(int resultWidth, VectorWord* result, int aWidth,
                                             const VectorWord* a, int bWidth,
                                             const VectorWord* b) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Bitwise operators of one operand
 *----------------------------------------------------------------------------------------------*/

/** The buf gate: a copy in which Z has become X (tarn_SignedCopy keeps it).
 *  widths    bits, any; the operand is extended or cut as in tarn_SignedBitwiseAND.
 *  unknown   X and Z are X; a sign bit that is X or Z extends as X.
 *  top word  as in tarn_SignedBitwiseAND.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 7.3
 *  example   4'b01zx gives 4'b01xx. */
TARNLIB_API void tarn_SignedBitwiseBUF(int resultWidth, VectorWord* result, int aWidth,
                                       const VectorWord* a) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedBitwiseBUF */
TARNLIB_API void tarn_UnsignedBitwiseBUF(int resultWidth, VectorWord* result, int aWidth,
                                         const VectorWord* a) TARNLIB_NOEXCEPT;

/** Bitwise inversion: result = ~a.
 *  widths    bits, any; the operand is extended or cut as in tarn_SignedBitwiseAND.
 *  unknown   X and Z are X; a sign bit that is X or Z extends as X.
 *  top word  as in tarn_SignedBitwiseAND; above the width of an unsigned operand that makes ones.
 *  writes    exactly N(resultWidth) words; none for a width below 1.
 *  aliasing  result may be a itself; partly overlapping storage is not supported.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.10 and 7.3
 *  example   an unsigned 4'b0101 gives {0xfffffffa, 0}. */
TARNLIB_API void tarn_SignedBitwiseNOT(int resultWidth, VectorWord* result, int aWidth,
                                       const VectorWord* a) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedBitwiseNOT */
TARNLIB_API void tarn_UnsignedBitwiseNOT(int resultWidth, VectorWord* result, int aWidth,
                                         const VectorWord* a) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Reductions and truth
 *----------------------------------------------------------------------------------------------*/

/** All bits of a vector joined by and: &v.
 *  widths    bits, at least 1.
 *  unknown   a 0 anywhere settles it; otherwise X or Z makes the result X.
 *  top word  bits above the width need not be 1, but a set bval bit there counts as unknown.
 *  returns   0, 1 or 3 (X); 0 for a width below 1.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.11
 *  example   &4'b1x11 is X; &4'b0x11 is 0. */
TARNLIB_API LogicCode tarn_ReductionAND(int width, const VectorWord* v) TARNLIB_NOEXCEPT;

/** All bits of a vector joined by or, |v, which is also the truth of v as an operand of &&, || and
 *  !. The two functions are the same; each says in generated code which one is meant.
 *  widths    bits, any.
 *  unknown   a 1 anywhere settles it; otherwise X or Z makes the result X.
 *  top word  takes part with all its bits, those above the width included.
 *  returns   0, 1 or 3 (X); 0 for a width below 1.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.11 and 5.1.9
 *  example   |4'b00z0 is X; |4'b0z10 is 1. */
TARNLIB_API LogicCode tarn_ReductionOR(int width, const VectorWord* v) TARNLIB_NOEXCEPT;
/** @copydoc tarn_ReductionOR */
TARNLIB_API LogicCode tarn_LogicalValue(int width, const VectorWord* v) TARNLIB_NOEXCEPT;

/** All bits of a vector joined by exclusive or, its parity: ^v.
 *  widths    bits, any.
 *  unknown   X or Z anywhere makes the result X.
 *  top word  ones above the width are left out of the parity, but a set bval bit there counts as
 *            unknown.
 *  returns   0, 1 or 3 (X); 0 for a width below 1.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.11
 *  example   ^8'b00000111 is 1; so is that of a signed 8'b10000011, though its top word holds ones
 *            above bit 7. */
TARNLIB_API LogicCode tarn_ReductionXOR(int width, const VectorWord* v) TARNLIB_NOEXCEPT;

/** Whether a condition holds, as the test of an if: X and Z count as false.
 *  widths    bits, any.
 *  unknown   only a 1 makes a condition hold.
 *  top word  takes part with all its bits, those above the width included.
 *  returns   1 where any bit is 1, else 0; 0 for a width below 1.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 9.4
 *  example   4'b0x10 gives 1; 4'b00x0 gives 0. */
TARNLIB_API int tarn_CheckCondition(int width, const VectorWord* v) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
