/** @file
 *  Comparison: the equality operators, the matches of casex and casez items, the order of two
 *  vectors. Functions here return a code and write nothing.
 *
 *  A narrower operand counts as if it went on to the other's words: Signed: with bit 31 of its top
 *  word, of aval and of bval each for itself; Unsigned: with zeros. Whole words are compared. */
#ifndef TARNLIB_COMPARE_H
#define TARNLIB_COMPARE_H

#include <tarnlib/vector.h>

TARNLIB_BEGIN_C

/*------------------------------------------------------------------------------------------------
 * Equality
 *----------------------------------------------------------------------------------------------*/

/** Logical equality, a == b (Eq), and inequality, a != b (NEq).
 *  widths    bits, at least 1, and either operand may be the wider one. With a width below 1
 *            both return 0.
 *  unknown   a position where a or b is X or Z leaves the result X, unless another position has
 *            two known bits that differ.
 *  top word  takes part as a whole: bits above the width are compared like the others.
 *  returns   Eq: 0 where two known bits differ, else 3 (X) where any bit is X or Z, else 1.
 *            NEq: 1, 3, 0 in the same cases.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.8
 *  example   4'b10x0 == 4'b1000 is 3; 4'b11x0 == 4'b1000 is 0. */
TARNLIB_API LogicCode tarn_SignedEq(int aWidth, const VectorWord* a, int bWidth,
                                    const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedEq */
TARNLIB_API LogicCode tarn_UnsignedEq(int aWidth, const VectorWord* a, int bWidth,
                                      const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedEq */
TARNLIB_API LogicCode tarn_SignedNEq(int aWidth, const VectorWord* a, int bWidth,
                                     const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedEq */
TARNLIB_API LogicCode tarn_UnsignedNEq(int aWidth, const VectorWord* a, int bWidth,
                                       const VectorWord* b) TARNLIB_NOEXCEPT;

/** Case equality, a === b (CaseEq), and inequality, a !== b (CaseNEq).
 *  widths    bits, at least 1, and either operand may be the wider one. With a width below 1
 *            both return 0.
 *  unknown   X and Z are values like 0 and 1: X equals X alone, Z equals Z alone.
 *  top word  takes part as a whole: bits above the width are compared like the others.
 *  returns   CaseEq: 1 where all bits are the same, else 0. CaseNEq: 0 and 1.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.8
 *  example   4'b10xz === 4'b10xz is 1; 4'b10xz === 4'b10zz is 0. */
TARNLIB_API LogicCode tarn_SignedCaseEq(int aWidth, const VectorWord* a, int bWidth,
                                        const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedCaseEq */
TARNLIB_API LogicCode tarn_UnsignedCaseEq(int aWidth, const VectorWord* a, int bWidth,
                                          const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedCaseEq */
TARNLIB_API LogicCode tarn_SignedCaseNEq(int aWidth, const VectorWord* a, int bWidth,
                                         const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedCaseEq */
TARNLIB_API LogicCode tarn_UnsignedCaseNEq(int aWidth, const VectorWord* a, int bWidth,
                                           const VectorWord* b) TARNLIB_NOEXCEPT;

/** The match of a casex item (CaseXEq) and of a casez item (CaseZEq).
 *  widths    bits, at least 1, and either operand may be the wider one. With a width below 1 the
 *            result is 0.
 *  unknown   CaseXEq: a position where a or b is X or Z matches. CaseZEq: a position where a or b
 *            is Z matches; X is a value like 0 and 1, equal to X alone.
 *  top word  takes part as a whole: bits above the width are compared like the others.
 *  returns   1 where every position matches or holds the same bit twice, else 0.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 9.5.1
 *  example   CaseXEq of 4'b10x1 and 4'b1z01 is 1, CaseZEq of them 0. */
TARNLIB_API LogicCode tarn_SignedCaseXEq(int aWidth, const VectorWord* a, int bWidth,
                                         const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedCaseXEq */
TARNLIB_API LogicCode tarn_UnsignedCaseXEq(int aWidth, const VectorWord* a, int bWidth,
                                           const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedCaseXEq */
TARNLIB_API LogicCode tarn_SignedCaseZEq(int aWidth, const VectorWord* a, int bWidth,
                                         const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedCaseXEq */
TARNLIB_API LogicCode tarn_UnsignedCaseZEq(int aWidth, const VectorWord* a, int bWidth,
                                           const VectorWord* b) TARNLIB_NOEXCEPT;

/** Wildcard equality, a ==? b (WildEq), and inequality, a !=? b (WildNEq).
 *  widths    bits, at least 1, and either operand may be the wider one. With a width below 1
 *            both return 0.
 *  unknown   an X or Z of b is a wildcard and matches any bit of a. An X or Z of a at a known bit
 *            of b leaves the result X, unless another position has two known bits that differ.
 *  top word  takes part as a whole: bits above the width are compared like the others.
 *  returns   WildEq: 0 where two known bits differ, else 3 (X) where an X or Z of a stands at a
 *            known bit of b, else 1. WildNEq: 1, 3, 0 in the same cases.
 *  limits    may run in any thread.
 *  source    IEEE 1800-2012, 11.4.6
 *  example   4'b1010 ==? 4'b1x1z is 1; 4'b10x0 ==? 4'b1000 is 3. */
TARNLIB_API LogicCode tarn_SignedWildEq(int aWidth, const VectorWord* a, int bWidth,
                                        const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedWildEq */
TARNLIB_API LogicCode tarn_UnsignedWildEq(int aWidth, const VectorWord* a, int bWidth,
                                          const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedWildEq */
TARNLIB_API LogicCode tarn_SignedWildNEq(int aWidth, const VectorWord* a, int bWidth,
                                         const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedWildEq */
TARNLIB_API LogicCode tarn_UnsignedWildNEq(int aWidth, const VectorWord* a, int bWidth,
                                           const VectorWord* b) TARNLIB_NOEXCEPT;

/*------------------------------------------------------------------------------------------------
 * Order
 *----------------------------------------------------------------------------------------------*/

/** How two vectors compare as numbers. No LogicCode: 2 is not Z, and equality is not 1. */
typedef int RelationCode;

enum {
    TARN_RELATION_EQUAL = -1,  /**< a equals b */
    TARN_RELATION_LESS = 0,    /**< a is less than b */
    TARN_RELATION_GREATER = 1, /**< a is greater than b */
    TARN_RELATION_UNKNOWN = 2  /**< some bit of a or b is X or Z */
};

/** The order of two vectors, for <, <=, > and >=.
 *  widths    bits, at least 1, and either operand may be the wider one. With a width below 1 the
 *            result is TARN_RELATION_UNKNOWN.
 *  unknown   any bval bit set anywhere in either operand: TARN_RELATION_UNKNOWN, even where the
 *            words above it already differ.
 *  top word  takes part as a whole. Unsigned: the words form a number of 32 * N(width) bits;
 *            Signed: the same in two's complement, so that bit 31 of the top word is the sign.
 *  returns   a RelationCode.
 *  limits    may run in any thread.
 *  source    IEEE 1364-2005, 5.1.7
 *  example   8-bit -1 and 1: Signed returns TARN_RELATION_LESS. */
TARNLIB_API RelationCode tarn_SignedRelation(int aWidth, const VectorWord* a, int bWidth,
                                             const VectorWord* b) TARNLIB_NOEXCEPT;
/** @copydoc tarn_SignedRelation */
TARNLIB_API RelationCode tarn_UnsignedRelation(int aWidth, const VectorWord* a, int bWidth,
                                               const VectorWord* b) TARNLIB_NOEXCEPT;

TARNLIB_END_C

#endif
