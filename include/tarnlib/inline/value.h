/** @file
 *  Vectors of 1 to 64 bits as values: the type, load and store, arithmetic, bitwise operators, the
 *  conditional operator. What generated code keeps in such a value stays in registers.
 *
 *  A function that bears the name of an export computes what the export does, and its comment names
 *  only what is different. All 64 bits of a value take part, so that operands of any widths up to
 *  64 go together once each is loaded or made fit. All functions may run in any thread. */
#ifndef TARNLIB_INLINE_VALUE_H
#define TARNLIB_INLINE_VALUE_H

#include <tarnlib/inline/rules.h>

/** A vector of 1 to 64 bits. Bit i is the pair (bit i of aval, bit i of bval), as in a VectorWord.
 *  top word  a value of fewer bits is fit where the bits above its width are 0 (unsigned) or copies
 *            of its top bit (signed), of aval and of bval each for itself. Results of the operators
 *            are fit or not as the table of the vector model says of the exports' results. */
typedef struct tarn_V64 {
    uint64_t aval; /**< value bits */
    uint64_t bval; /**< control bits */
} tarn_V64;

/** The value of the given bits. */
TARN_INLINE tarn_V64 tarn_V64Of(uint64_t aval, uint64_t bval) TARNLIB_NOEXCEPT {
    tarn_V64 value;
    value.aval = aval;
    value.bval = bval;
    return value;
}

/* A word as the value of its 32 bits; what stands above them in aval has no meaning. */
TARN_INLINE tarn_V64 tarn_V64OfHalves(uint64_t word) TARNLIB_NOEXCEPT {
    return tarn_V64Of(word, word >> 32);
}

/*------------------------------------------------------------------------------------------------
 * Values and storage
 *----------------------------------------------------------------------------------------------*/

/** The value of a vector in storage.
 *  widths    bits, 1 to 64.
 *  top word  read whole; above it stand zeros (Unsigned) or copies of its bit 31 (Signed). */
TARN_INLINE tarn_V64 tarn_V64UnsignedLoad(int width, const VectorWord* v) TARNLIB_NOEXCEPT {
    const uint64_t low = tarn_LoadWord(v);
    uint64_t high;
    if (width <= 32) return tarn_V64Of(low & TARN_AVAL_HALF, low >> 32);
    high = tarn_LoadWord(v + 1);
    return tarn_V64Of((low & TARN_AVAL_HALF) | high << 32, low >> 32 | (high & TARN_BVAL_HALF));
}

/** @copydoc tarn_V64UnsignedLoad */
TARN_INLINE tarn_V64 tarn_V64SignedLoad(int width, const VectorWord* v) TARNLIB_NOEXCEPT {
    uint64_t low;
    if (width > 32) return tarn_V64UnsignedLoad(width, v);
    low = tarn_LoadWord(v);
    return tarn_V64Of(TARN_CAST(uint64_t, TARN_CAST(int64_t, low << 32) >> 32),
                      TARN_CAST(uint64_t, TARN_CAST(int64_t, low) >> 32));
}

/** A value into storage.
 *  widths    bits, 1 to 64.
 *  top word  written whole, with what the value has there.
 *  writes    exactly N(width) words. */
TARN_INLINE void tarn_V64Store(int width, VectorWord* result, tarn_V64 v) TARNLIB_NOEXCEPT {
    tarn_StoreWords(width, result, (v.aval & TARN_AVAL_HALF) | v.bval << 32,
                    v.aval >> 32 | (v.bval & TARN_BVAL_HALF));
}

/** A value made fit: the bits from `width` upward become 0 (Unsigned) or copies of the bit below
 *  them (Signed). So an operand is widened, too.
 *  widths    bits, 1 to 64. */
TARN_INLINE tarn_V64 tarn_V64UnsignedFit(int width, tarn_V64 v) TARNLIB_NOEXCEPT {
    const uint64_t own = tarn_LowBits64(width);
    return tarn_V64Of(v.aval & own, v.bval & own);
}

/** @copydoc tarn_V64UnsignedFit */
TARN_INLINE tarn_V64 tarn_V64SignedFit(int width, tarn_V64 v) TARNLIB_NOEXCEPT {
    const unsigned above = -TARN_CAST(unsigned, width) & 63U;
    return tarn_V64Of(TARN_CAST(uint64_t, TARN_CAST(int64_t, v.aval << above) >> above),
                      TARN_CAST(uint64_t, TARN_CAST(int64_t, v.bval << above) >> above));
}

/** A vector in storage made fit: the bits of its top word above the width become 0 (Unsigned) or
 *  copies of the top bit (Signed).
 *  widths    bits, at least 1.
 *  writes    the top word. */
TARN_INLINE void tarn_UnsignedFit(int width, VectorWord* v) TARNLIB_NOEXCEPT {
    VectorWord* const top = v + ((width - 1) >> 5);
    tarn_StoreWord(top, tarn_LoadWord(top) & tarn_InBothHalves(tarn_LowBits32(width)));
}

/** @copydoc tarn_UnsignedFit */
TARN_INLINE void tarn_SignedFit(int width, VectorWord* v) TARNLIB_NOEXCEPT {
    VectorWord* const top = v + ((width - 1) >> 5);
    tarn_StoreWord(top, tarn_SignFillWord(tarn_LoadWord(top), width));
}

/*------------------------------------------------------------------------------------------------
 * Arithmetic: any bval bit set anywhere in an operand makes all 64 bits of the result X
 *----------------------------------------------------------------------------------------------*/

/* Numbers: aval is the number, and any bit of bval makes it unknown. The operators are this and, at
 * the end, X for what is unknown. Of a vector in storage the unknown bits are those of both words
 * joined, so that they are 32. */
TARN_INLINE tarn_V64 tarn_UnsignedNumber(int width, const VectorWord* v) TARNLIB_NOEXCEPT {
    const uint64_t low = tarn_LoadWord(v);
    uint64_t high;
    if (width <= 32) return tarn_V64Of(low & TARN_AVAL_HALF, low >> 32);
    high = tarn_LoadWord(v + 1);
    return tarn_V64Of((low & TARN_AVAL_HALF) | high << 32, (low | high) >> 32);
}

TARN_INLINE tarn_V64 tarn_SignedNumber(int width, const VectorWord* v) TARNLIB_NOEXCEPT {
    const uint64_t low = tarn_LoadWord(v);
    if (width > 32) return tarn_UnsignedNumber(width, v);
    return tarn_V64Of(TARN_CAST(uint64_t, TARN_CAST(int64_t, low << 32) >> 32), low >> 32);
}

TARN_INLINE tarn_V64 tarn_NumberSum(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64Of(a.aval + b.aval, a.bval | b.bval);
}

TARN_INLINE tarn_V64 tarn_NumberDifference(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64Of(a.aval - b.aval, a.bval | b.bval);
}

TARN_INLINE tarn_V64 tarn_NumberProduct(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64Of(a.aval * b.aval, a.bval | b.bval);
}

TARN_INLINE tarn_V64 tarn_V64OfNumber(tarn_V64 number) TARNLIB_NOEXCEPT {
    const uint64_t x = 0U - TARN_CAST(uint64_t, number.bval != 0);
    return tarn_V64Of(number.aval | x, x);
}

/* The number has 32 unknown bits, so the sign of the negative tells whether one is set. */
TARN_INLINE void tarn_StoreNumber(int width, VectorWord* result, tarn_V64 number) TARNLIB_NOEXCEPT {
    const uint64_t x = TARN_CAST(uint64_t, TARN_CAST(int64_t, 0U - number.bval) >> 63);
    tarn_StoreWords(width, result, (number.aval & TARN_AVAL_HALF) | x, number.aval >> 32 | x);
}

/** a + b. */
TARN_INLINE tarn_V64 tarn_V64Add(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64OfNumber(tarn_NumberSum(a, b));
}

/** a - b. */
TARN_INLINE tarn_V64 tarn_V64Sub(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64OfNumber(tarn_NumberDifference(a, b));
}

/** a * b. */
TARN_INLINE tarn_V64 tarn_V64Mul(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64OfNumber(tarn_NumberProduct(a, b));
}

/** -a. */
TARN_INLINE tarn_V64 tarn_V64Minus(tarn_V64 a) TARNLIB_NOEXCEPT {
    return tarn_V64Sub(tarn_V64Of(0, 0), a);
}

/** +a. */
TARN_INLINE tarn_V64 tarn_V64Plus(tarn_V64 a) TARNLIB_NOEXCEPT {
    return tarn_V64OfNumber(a);
}

/** v + 1. */
TARN_INLINE tarn_V64 tarn_V64Inc(tarn_V64 v) TARNLIB_NOEXCEPT {
    return tarn_V64Add(v, tarn_V64Of(1, 0));
}

/** v - 1. */
TARN_INLINE tarn_V64 tarn_V64Dec(tarn_V64 v) TARNLIB_NOEXCEPT {
    return tarn_V64Sub(v, tarn_V64Of(1, 0));
}

/*------------------------------------------------------------------------------------------------
 * Bitwise operators
 *----------------------------------------------------------------------------------------------*/

/* The halves of a value, and what a rule makes of those of one value or two. */
TARN_INLINE tarn_Half tarn_AvalOf(tarn_V64 v) TARNLIB_NOEXCEPT {
    return tarn_HalfOf(v.aval, 0, v.bval);
}

TARN_INLINE tarn_Half tarn_BvalOf(tarn_V64 v) TARNLIB_NOEXCEPT {
    return tarn_HalfOf(v.bval, v.aval, 0);
}

#define TARN_RULED1(rule, a) tarn_V64Of(rule(tarn_AvalOf(a), TARN_ALL_X), rule(tarn_BvalOf(a), 0))
#define TARN_RULED2(rule, a, b)                                  \
    tarn_V64Of(rule(tarn_AvalOf(a), tarn_AvalOf(b), TARN_ALL_X), \
               rule(tarn_BvalOf(a), tarn_BvalOf(b), 0))

/** a & b. */
TARN_INLINE tarn_V64 tarn_V64BitwiseAND(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return TARN_RULED2(tarn_RuleAND, a, b);
}

/** a | b. */
TARN_INLINE tarn_V64 tarn_V64BitwiseOR(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return TARN_RULED2(tarn_RuleOR, a, b);
}

/** a ^ b. */
TARN_INLINE tarn_V64 tarn_V64BitwiseXOR(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return TARN_RULED2(tarn_RuleXOR, a, b);
}

/** ~a. */
TARN_INLINE tarn_V64 tarn_V64BitwiseNOT(tarn_V64 a) TARNLIB_NOEXCEPT {
    return TARN_RULED1(tarn_RuleNOT, a);
}

/** a, in which Z has become X. */
TARN_INLINE tarn_V64 tarn_V64BitwiseBUF(tarn_V64 a) TARNLIB_NOEXCEPT {
    return TARN_RULED1(tarn_RuleBUF, a);
}

/** ~(a & b). */
TARN_INLINE tarn_V64 tarn_V64BitwiseNAND(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64BitwiseNOT(tarn_V64BitwiseAND(a, b));
}

/** ~(a | b). */
TARN_INLINE tarn_V64 tarn_V64BitwiseNOR(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64BitwiseNOT(tarn_V64BitwiseOR(a, b));
}

/** a ~^ b. */
TARN_INLINE tarn_V64 tarn_V64BitwiseXNOR(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return tarn_V64BitwiseNOT(tarn_V64BitwiseXOR(a, b));
}

/** a and b merged, as where a condition is X or Z. */
TARN_INLINE tarn_V64 tarn_V64ConditionalMix(tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    return TARN_RULED2(tarn_RuleMix, a, b);
}

/** condition ? a : b, without a branch.
 *  unknown   where the condition has no bit that is 1 but one that is X or Z, a and b are merged.
 *  source    IEEE 1364-2005, 5.1.13 */
TARN_INLINE tarn_V64 tarn_V64Mux(tarn_V64 condition, tarn_V64 a, tarn_V64 b) TARNLIB_NOEXCEPT {
    const uint64_t isTrue = 0U - TARN_CAST(uint64_t, (condition.aval & ~condition.bval) != 0);
    const uint64_t isFalse = 0U - TARN_CAST(uint64_t, (condition.aval | condition.bval) == 0);
    /* Merged, a bit that is the same known one in both stays, and any other becomes X. */
    const uint64_t differs = a.aval ^ b.aval;
    const uint64_t x = (differs | a.bval | b.bval) & ~(isTrue | isFalse);
    return tarn_V64Of((b.aval ^ (differs & isTrue)) | x,
                      (b.bval ^ ((a.bval ^ b.bval) & isTrue)) | x);
}

/*------------------------------------------------------------------------------------------------
 * Bits rewritten
 *----------------------------------------------------------------------------------------------*/

/** Each 0 as Z. */
TARN_INLINE tarn_V64 tarn_V64Convert0ToZ(tarn_V64 v) TARNLIB_NOEXCEPT {
    return TARN_RULED1(tarn_Rule0ToZ, v);
}

/** Each 1 as Z. */
TARN_INLINE tarn_V64 tarn_V64Convert1ToZ(tarn_V64 v) TARNLIB_NOEXCEPT {
    return TARN_RULED1(tarn_Rule1ToZ, v);
}

/** Each X and Z as 0. */
TARN_INLINE tarn_V64 tarn_V64ConvertXZTo0(tarn_V64 v) TARNLIB_NOEXCEPT {
    return TARN_RULED1(tarn_RuleXZTo0, v);
}

#endif
