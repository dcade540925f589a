/** @file
 *  Words of vectors as numbers: what the values of tarnlib/inline/value.h and the inline forms are
 *  made of. Not for generated code. All of these may run in any thread. */
#ifndef TARNLIB_INLINE_WORD_H
#define TARNLIB_INLINE_WORD_H

#include <stdint.h>
#include <string.h>

#include <tarnlib/vector.h>

/* Without optimisation nothing is gained where these are inlined. */
#if defined(__GNUC__) && defined(__OPTIMIZE__)
#define TARN_INLINE static inline __attribute__((always_inline))
#else
#define TARN_INLINE static inline
#endif

#ifdef __cplusplus
#define TARN_CAST(type, value) static_cast<type>(value)
#else
#define TARN_CAST(type, value) ((type)(value))
#endif

/* A word as one number has aval in its low half and bval in its high half. */
#define TARN_AVAL_HALF UINT64_C(0x00000000FFFFFFFF)
#define TARN_BVAL_HALF UINT64_C(0xFFFFFFFF00000000)
#define TARN_ALL_X UINT64_C(0xFFFFFFFFFFFFFFFF)

/* Storage is aligned to 4 bytes and may be declared as another type of the same layout, so words
 * move through memcpy. They move whole, as the library moves them: a load of the halves together
 * would wait for two stores of one half each. */
TARN_INLINE uint64_t tarn_LoadWord(const VectorWord* from) TARNLIB_NOEXCEPT {
    uint64_t word;
    memcpy(&word, from, sizeof word);
    return word;
}

TARN_INLINE void tarn_StoreWord(VectorWord* to, uint64_t word) TARNLIB_NOEXCEPT {
    memcpy(to, &word, sizeof word);
}

/* The low n bits of a half set, for n = 1 to 32; for another n the low n mod 32, 0 standing for 32.
 * tarn_LowBits64 is the same for 64. */
TARN_INLINE uint32_t tarn_LowBits32(int n) TARNLIB_NOEXCEPT {
    return UINT32_C(0xFFFFFFFF) >> (-TARN_CAST(unsigned, n) & 31U);
}

TARN_INLINE uint64_t tarn_LowBits64(int n) TARNLIB_NOEXCEPT {
    return UINT64_C(0xFFFFFFFFFFFFFFFF) >> (-TARN_CAST(unsigned, n) & 63U);
}

/* The same 32 bits in both halves, as a mask for aval and bval alike. */
TARN_INLINE uint64_t tarn_InBothHalves(uint32_t bits) TARNLIB_NOEXCEPT {
    return TARN_CAST(uint64_t, bits) << 32 | bits;
}

/* A half shifted up and down again, so that the bits from n = 1 to 32 upward copy bit n - 1. */
TARN_INLINE uint32_t tarn_SignFillHalf(uint32_t half, int n) TARNLIB_NOEXCEPT {
    const unsigned above = -TARN_CAST(unsigned, n) & 31U;
    return TARN_CAST(uint32_t, TARN_CAST(int32_t, half << above) >> above);
}

TARN_INLINE uint64_t tarn_SignFillWord(uint64_t word, int n) TARNLIB_NOEXCEPT {
    const uint32_t aval = TARN_CAST(uint32_t, word), bval = TARN_CAST(uint32_t, word >> 32);
    return TARN_CAST(uint64_t, tarn_SignFillHalf(bval, n)) << 32 | tarn_SignFillHalf(aval, n);
}

/* What stands above a top word in signed storage: copies of its bits 31 and 63. */
TARN_INLINE uint64_t tarn_WordBeyond(uint64_t top) TARNLIB_NOEXCEPT {
    return (top >> 31 & UINT64_C(0x0000000100000001)) * TARN_AVAL_HALF;
}

/* The 32 bits from bit `offset` (0 to 31) of `low` upward, in aval and bval alike; `high` is the
 * word above low. */
TARN_INLINE uint64_t tarn_JoinWords(uint64_t low, uint64_t high, unsigned offset) TARNLIB_NOEXCEPT {
    const uint64_t fromLow = tarn_InBothHalves(UINT32_C(0xFFFFFFFF) >> offset);
    return (low >> offset & fromLow) | (high << (32U - offset) & ~fromLow);
}

/* A word shifted up by `offset` (0 to 31), and what the shift carries into the word above. */
TARN_INLINE uint64_t tarn_ShiftWordUp(uint64_t word, unsigned offset) TARNLIB_NOEXCEPT {
    return word << offset & tarn_InBothHalves(UINT32_C(0xFFFFFFFF) << offset);
}

TARN_INLINE uint64_t tarn_CarriedWord(uint64_t word, unsigned offset) TARNLIB_NOEXCEPT {
    const uint32_t carried = ~(UINT32_C(0xFFFFFFFF) << offset);
    return word >> (32U - offset) & tarn_InBothHalves(carried);
}

/* The words of a vector of 1 to 64 bits; a second one that it does not have is its extension. */
typedef struct tarn_Words {
    uint64_t low;
    uint64_t high;
} tarn_Words;

TARN_INLINE tarn_Words tarn_UnsignedWords(int width, const VectorWord* from) TARNLIB_NOEXCEPT {
    tarn_Words words;
    words.low = tarn_LoadWord(from);
    words.high = width > 32 ? tarn_LoadWord(from + 1) : 0;
    return words;
}

TARN_INLINE tarn_Words tarn_SignedWords(int width, const VectorWord* from) TARNLIB_NOEXCEPT {
    tarn_Words words;
    words.low = tarn_LoadWord(from);
    words.high = width > 32 ? tarn_LoadWord(from + 1) : tarn_WordBeyond(words.low);
    return words;
}

TARN_INLINE void tarn_StoreWords(int width, VectorWord* to, uint64_t low,
                                 uint64_t high) TARNLIB_NOEXCEPT {
    tarn_StoreWord(to, low);
    if (width > 32) tarn_StoreWord(to + 1, high);
}

#endif
