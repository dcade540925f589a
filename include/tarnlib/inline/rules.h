/** @file
 *  The rules of the bitwise operators, each written once for a word as a number and for the halves
 *  of a value. Not for generated code. All of these may run in any thread. */
#ifndef TARNLIB_INLINE_RULES_H
#define TARNLIB_INLINE_RULES_H

#include <tarnlib/inline/word.h>

/* Bits of aval, of bval, or of both, as a rule sees them. In the places of aval bits, `bval` holds
 * the bval bits of the same positions, and `aval` is 0; in those of bval bits it is the other way
 * round. */
typedef struct tarn_Half {
    uint64_t own;
    uint64_t aval;
    uint64_t bval;
} tarn_Half;

TARN_INLINE tarn_Half tarn_HalfOf(uint64_t own, uint64_t aval, uint64_t bval) TARNLIB_NOEXCEPT {
    tarn_Half half;
    half.own = own;
    half.aval = aval;
    half.bval = bval;
    return half;
}

/* Both halves of a word. */
TARN_INLINE tarn_Half tarn_HalvesOf(uint64_t word) TARNLIB_NOEXCEPT {
    return tarn_HalfOf(word, word << 32, word >> 32);
}

/* A rule takes its operands and which places are those of aval bits. The tables have a row for each
 * of 0, 1, Z and X of a and, where there is one, a column for each of b. */

/* 01xx, one for all. */
TARN_INLINE uint64_t tarn_RuleBUF(tarn_Half a, uint64_t isAval) TARNLIB_NOEXCEPT {
    (void)isAval;
    return a.own | a.bval;
}

/* 10xx */
TARN_INLINE uint64_t tarn_RuleNOT(tarn_Half a, uint64_t isAval) TARNLIB_NOEXCEPT {
    return (a.own ^ isAval) | a.bval;
}

/* 0000 01xx 0xxx 0xxx: where neither is 0, aval is 1, and bval that of either. */
TARN_INLINE uint64_t tarn_RuleAND(tarn_Half a, tarn_Half b, uint64_t isAval) TARNLIB_NOEXCEPT {
    /* aval and bval of a word joined are the word rotated. */
    const uint64_t aOther = a.aval | a.bval, bOther = b.aval | b.bval;
    const uint64_t neitherIsZero = (a.own | aOther) & (b.own | bOther);
    return neitherIsZero & (a.own | b.own | isAval);
}

/* 01xx 1111 x1xx x1xx: a known 1 has an aval bit without a bval bit. */
TARN_INLINE uint64_t tarn_RuleOR(tarn_Half a, tarn_Half b, uint64_t isAval) TARNLIB_NOEXCEPT {
    (void)isAval;
    return (a.own | b.own | a.bval | b.bval) & ~(a.aval & ~a.own) & ~(b.aval & ~b.own);
}

/* 01xx 10xx xxxx xxxx */
TARN_INLINE uint64_t tarn_RuleXOR(tarn_Half a, tarn_Half b, uint64_t isAval) TARNLIB_NOEXCEPT {
    return ((a.own | b.own) ^ (a.own & b.own & isAval)) | (a.bval | b.bval);
}

/* 0xxx x1xx xxxx xxxx: what differs is unknown. */
TARN_INLINE uint64_t tarn_RuleMix(tarn_Half a, tarn_Half b, uint64_t isAval) TARNLIB_NOEXCEPT {
    (void)isAval;
    return a.own | b.own | (a.bval | b.bval) | (a.aval ^ b.aval);
}

/* z1zx */
TARN_INLINE uint64_t tarn_Rule0ToZ(tarn_Half a, uint64_t isAval) TARNLIB_NOEXCEPT {
    return a.own | ~(a.aval | isAval);
}

/* 0zzx */
TARN_INLINE uint64_t tarn_Rule1ToZ(tarn_Half a, uint64_t isAval) TARNLIB_NOEXCEPT {
    return (a.own & (a.bval | ~isAval)) | a.aval;
}

/* 0100 */
TARN_INLINE uint64_t tarn_RuleXZTo0(tarn_Half a, uint64_t isAval) TARNLIB_NOEXCEPT {
    return a.own & ~a.bval & isAval;
}

/* The rules on words. */

TARN_INLINE uint64_t tarn_WordBUF(uint64_t a) TARNLIB_NOEXCEPT {
    return tarn_RuleBUF(tarn_HalvesOf(a), TARN_AVAL_HALF);
}

TARN_INLINE uint64_t tarn_WordNOT(uint64_t a) TARNLIB_NOEXCEPT {
    return tarn_RuleNOT(tarn_HalvesOf(a), TARN_AVAL_HALF);
}

TARN_INLINE uint64_t tarn_WordAND(uint64_t a, uint64_t b) TARNLIB_NOEXCEPT {
    return tarn_RuleAND(tarn_HalvesOf(a), tarn_HalvesOf(b), TARN_AVAL_HALF);
}

TARN_INLINE uint64_t tarn_WordOR(uint64_t a, uint64_t b) TARNLIB_NOEXCEPT {
    return tarn_RuleOR(tarn_HalvesOf(a), tarn_HalvesOf(b), TARN_AVAL_HALF);
}

TARN_INLINE uint64_t tarn_WordXOR(uint64_t a, uint64_t b) TARNLIB_NOEXCEPT {
    return tarn_RuleXOR(tarn_HalvesOf(a), tarn_HalvesOf(b), TARN_AVAL_HALF);
}

TARN_INLINE uint64_t tarn_WordMix(uint64_t a, uint64_t b) TARNLIB_NOEXCEPT {
    return tarn_RuleMix(tarn_HalvesOf(a), tarn_HalvesOf(b), TARN_AVAL_HALF);
}

TARN_INLINE uint64_t tarn_WordNAND(uint64_t a, uint64_t b) TARNLIB_NOEXCEPT {
    return tarn_WordNOT(tarn_WordAND(a, b));
}

TARN_INLINE uint64_t tarn_WordNOR(uint64_t a, uint64_t b) TARNLIB_NOEXCEPT {
    return tarn_WordNOT(tarn_WordOR(a, b));
}

TARN_INLINE uint64_t tarn_WordXNOR(uint64_t a, uint64_t b) TARNLIB_NOEXCEPT {
    return tarn_WordNOT(tarn_WordXOR(a, b));
}

TARN_INLINE uint64_t tarn_Word0ToZ(uint64_t a) TARNLIB_NOEXCEPT {
    return tarn_Rule0ToZ(tarn_HalvesOf(a), TARN_AVAL_HALF);
}

TARN_INLINE uint64_t tarn_Word1ToZ(uint64_t a) TARNLIB_NOEXCEPT {
    return tarn_Rule1ToZ(tarn_HalvesOf(a), TARN_AVAL_HALF);
}

TARN_INLINE uint64_t tarn_WordXZTo0(uint64_t a) TARNLIB_NOEXCEPT {
    return tarn_RuleXZTo0(tarn_HalvesOf(a), TARN_AVAL_HALF);
}

#endif
