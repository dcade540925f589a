/** @file
 *  Values of tarnlib/inline/value.h read as codes: reductions, comparisons; and the operators of
 *  single bits that are codes themselves. All of these may run in any thread. */
#ifndef TARNLIB_INLINE_VALUE_COMPARE_H
#define TARNLIB_INLINE_VALUE_COMPARE_H

#include <tarnlib/compare.h>
#include <tarnlib/inline/value.h>

/* The code where nothing is settled yet and known bits would give `known`, 0 or 1. */
TARN_INLINE LogicCode tarn_LogicUnless(uint64_t unknown, int known) TARNLIB_NOEXCEPT {
    return known | (3 * TARN_CAST(int, unknown != 0));
}

/* The opposite of a code that is not Z. */
TARN_INLINE LogicCode tarn_LogicOpposite(LogicCode code) TARNLIB_NOEXCEPT {
    return (code ^ 1) | code >> 1;
}

/*------------------------------------------------------------------------------------------------
 * Reductions and truth
 *----------------------------------------------------------------------------------------------*/

/** &v.
 *  widths    bits, 1 to 64. */
TARN_INLINE LogicCode tarn_V64ReductionAND(int width, tarn_V64 v) TARNLIB_NOEXCEPT {
    const uint64_t zeros = ~(v.aval | v.bval) & tarn_LowBits64(width);
    return tarn_LogicUnless(v.bval, 1) & -TARN_CAST(int, zeros == 0);
}

/** |v, and the truth of v. */
TARN_INLINE LogicCode tarn_V64ReductionOR(tarn_V64 v) TARNLIB_NOEXCEPT {
    const int hasOne = (v.aval & ~v.bval) != 0;
    return hasOne | (tarn_LogicUnless(v.bval, 0) & (hasOne - 1));
}

/** @copydoc tarn_V64ReductionOR */
TARN_INLINE LogicCode tarn_V64LogicalValue(tarn_V64 v) TARNLIB_NOEXCEPT {
    return tarn_V64ReductionOR(v);
}

/** ^v.
 *  widths    bits, 1 to 64. */
TARN_INLINE LogicCode tarn_V64ReductionXOR(int width, tarn_V64 v) TARNLIB_NOEXCEPT {
    uint64_t bits = v.aval & tarn_LowBits64(width);
#if defined(__GNUC__)
    const int parity = __builtin_parityll(bits);
#else
    int parity;
    bits ^= bits >> 32;
    bits ^= bits >> 16;
    bits ^= bits >> 8;
    bits ^= bits >> 4;
    /* Bit n is the parity of n. */
    parity = 0x6996 >> (bits & 15U) & 1;
#endif
    return tarn_LogicUnless(v.bval, parity);
}

/** Whether v holds as the condition of an if: 1 or 0. */
TARN_INLINE int tarn_V64CheckCondition(tarn_V64 v) TARNLIB_NOEXCEPT {
    return (v.aval & ~v.bval) != 0;
}

/*------------------------------------------------------------------------------------------------
 * Equality
 *----------------------------------------------------------------------------------------------*/

/* What two values say of their equality: aval holds the positions that do not match, bval those
 * that leave it open. */

/* ==: two known bits are equal or not, the others leave it open. */
TARN_INLINE tarn_V64 tarn_FindEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    const uint64_t unknown = a.bval | b.bval;
    return tarn_V64Of((a.aval ^ b.aval) & ~unknown, unknown);
}

/* ===: all four values are told apart. */
TARN_INLINE tarn_V64 tarn_FindCaseEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64Of((a.aval ^ b.aval) | (a.bval ^ b.bval), 0);
}

/* casex: X and Z match everything. */
TARN_INLINE tarn_V64 tarn_FindCaseXEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64Of((a.aval ^ b.aval) & ~(a.bval | b.bval), 0);
}

/* casez: Z matches everything. Where neither bit is unknown the avals decide. Where one is, it
 * mismatches if its aval is 1 (an X). Where both are, X meets X, or one is Z. */
TARN_INLINE tarn_V64 tarn_FindCaseZEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64Of((a.aval & ~b.bval) ^ (b.aval & ~a.bval), 0);
}

/* ==?: X and Z of b match everything, those of a leave open what a known bit of b meets. */
TARN_INLINE tarn_V64 tarn_FindWildEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64Of((a.aval ^ b.aval) & ~(a.bval | b.bval), a.bval & ~b.bval);
}

/* A mismatch anywhere outweighs what is open. */
TARN_INLINE LogicCode tarn_LogicOfMatch(tarn_V64 found) TARNLIB_NOEXCEPT {
    return tarn_LogicUnless(found.bval, 1) & -TARN_CAST(int, found.aval == 0);
}

TARN_INLINE LogicCode tarn_LogicOfMismatch(tarn_V64 found) TARNLIB_NOEXCEPT {
    return tarn_LogicOpposite(tarn_LogicOfMatch(found));
}

/** a == b. */
TARN_INLINE LogicCode tarn_V64Eq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfMatch(tarn_FindEq(a, b));
}

/** a != b. */
TARN_INLINE LogicCode tarn_V64NEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfMismatch(tarn_FindEq(a, b));
}

/** a === b. */
TARN_INLINE LogicCode tarn_V64CaseEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfMatch(tarn_FindCaseEq(a, b));
}

/** a !== b. */
TARN_INLINE LogicCode tarn_V64CaseNEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfMismatch(tarn_FindCaseEq(a, b));
}

/** Whether a matches b as an item of casex. */
TARN_INLINE LogicCode tarn_V64CaseXEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfMatch(tarn_FindCaseXEq(a, b));
}

/** Whether a matches b as an item of casez. */
TARN_INLINE LogicCode tarn_V64CaseZEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfMatch(tarn_FindCaseZEq(a, b));
}

/** a ==? b. */
TARN_INLINE LogicCode tarn_V64WildEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfMatch(tarn_FindWildEq(a, b));
}

/** a !=? b. */
TARN_INLINE LogicCode tarn_V64WildNEq(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfMismatch(tarn_FindWildEq(a, b));
}

/** Whether a and b differ in a bit, of aval or bval: 1 or 0. */
TARN_INLINE int tarn_V64NotIdentical(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_FindCaseEq(a, b).aval != 0;
}

/*------------------------------------------------------------------------------------------------
 * Order
 *----------------------------------------------------------------------------------------------*/

/** The order of a and b; a signed value is fit for Signed, an unsigned one for Unsigned. */
TARN_INLINE RelationCode tarn_V64SignedRelation(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    const int isGreater = TARN_CAST(int64_t, a.aval) > TARN_CAST(int64_t, b.aval);
    const RelationCode order = isGreater - (a.aval == b.aval);
    return (a.bval | b.bval) != 0 ? TARN_RELATION_UNKNOWN : order;
}

/** @copydoc tarn_V64SignedRelation */
TARN_INLINE RelationCode tarn_V64UnsignedRelation(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    const int isGreater = a.aval > b.aval;
    const RelationCode order = isGreater - (a.aval == b.aval);
    return (a.bval | b.bval) != 0 ? TARN_RELATION_UNKNOWN : order;
}

/* The code that two bits of a table give for a relation: from the lowest for equal, less, greater,
 * unknown. */
TARN_INLINE LogicCode tarn_LogicFromTable(int table, RelationCode relation) TARNLIB_NOEXCEPT {
    return table >> (2 * relation + 2) & 3;
}

/** What a relation says of a < b (Less), a <= b (LessEqual), a > b (Greater), a >= b
 *  (GreaterEqual).
 *  returns   TARN_LOGIC_0, _1, or _X for TARN_RELATION_UNKNOWN. */
TARN_INLINE LogicCode tarn_LogicLess(RelationCode relation) TARNLIB_NOEXCEPT {
    return tarn_LogicFromTable(0xC4, relation);
}

/** @copydoc tarn_LogicLess */
TARN_INLINE LogicCode tarn_LogicLessEqual(RelationCode relation) TARNLIB_NOEXCEPT {
    return tarn_LogicFromTable(0xC5, relation);
}

/** @copydoc tarn_LogicLess */
TARN_INLINE LogicCode tarn_LogicGreater(RelationCode relation) TARNLIB_NOEXCEPT {
    return tarn_LogicFromTable(0xD0, relation);
}

/** @copydoc tarn_LogicLess */
TARN_INLINE LogicCode tarn_LogicGreaterEqual(RelationCode relation) TARNLIB_NOEXCEPT {
    return tarn_LogicFromTable(0xD1, relation);
}

/*------------------------------------------------------------------------------------------------
 * Single bits
 *----------------------------------------------------------------------------------------------*/

/** The one-bit value of a code, an unsigned bit; tarn_V64SignedFit makes it a signed one.
 *  unknown   the code is 0 to 5. */
TARN_INLINE tarn_V64 tarn_V64OfLogic(LogicCode code) TARNLIB_NOEXCEPT {
    const unsigned bits = TARN_CAST(unsigned, code);
    return tarn_V64Of((bits | bits >> 2) & 1U, (bits >> 1 | bits >> 2) & 1U);
}

/** The code of bit 0 of a value. */
TARN_INLINE LogicCode tarn_LogicOfV64(tarn_V64 v) TARNLIB_NOEXCEPT {
    return TARN_CAST(LogicCode, (v.aval & 1U) | (v.bval & 1U) << 1);
}

/** The operators on codes: a & b, a | b, a ^ b, ~a, and so &&, || and ! of truth values.
 *  unknown   the codes are 0 to 5. Z is like X, as in the bitwise operators.
 *  returns   TARN_LOGIC_0, _1 or _X. */
TARN_INLINE LogicCode tarn_LogicAND(LogicCode a, LogicCode b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfV64(tarn_V64BitwiseAND(tarn_V64OfLogic(a), tarn_V64OfLogic(b)));
}

/** @copydoc tarn_LogicAND */
TARN_INLINE LogicCode tarn_LogicOR(LogicCode a, LogicCode b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfV64(tarn_V64BitwiseOR(tarn_V64OfLogic(a), tarn_V64OfLogic(b)));
}

/** @copydoc tarn_LogicAND */
TARN_INLINE LogicCode tarn_LogicXOR(LogicCode a, LogicCode b) TARNLIB_NOEXCEPT {
    return tarn_LogicOfV64(tarn_V64BitwiseXOR(tarn_V64OfLogic(a), tarn_V64OfLogic(b)));
}

/** @copydoc tarn_LogicAND */
TARN_INLINE LogicCode tarn_LogicNOT(LogicCode a) TARNLIB_NOEXCEPT {
    return tarn_LogicOfV64(tarn_V64BitwiseNOT(tarn_V64OfLogic(a)));
}

#endif
