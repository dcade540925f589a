/* The inline forms of copies, conversions, arithmetic, bitwise operators and rewriting. */
#ifndef TARNLIB_INLINE_FORM_WORDS_H
#define TARNLIB_INLINE_FORM_WORDS_H

#include <tarnlib/arith.h>
#include <tarnlib/inline/form.h>
#include <tarnlib/inline/value.h>
#include <tarnlib/logic.h>
#include <tarnlib/select.h>

/* Each macro defines the form of a function, which it calls for widths that are not narrow. */

#define TARN_COPY_FORM(form, function, wordsOf)                                  \
    TARN_INLINE void form(int resultWidth, VectorWord* result, int sourceWidth,  \
                          const VectorWord* source) TARNLIB_NOEXCEPT {           \
        if (TARN_IS_NARROW(TARN_BELOW(resultWidth) | TARN_BELOW(sourceWidth))) { \
            const tarn_Words words = wordsOf(sourceWidth, source);               \
            tarn_StoreWords(resultWidth, result, words.low, words.high);         \
        } else {                                                                 \
            function(resultWidth, result, sourceWidth, source);                  \
        }                                                                        \
    }

/* A machine value; its low half is word 0, its high half word 1. */
#define TARN_CONVERT_FORM(form, function, type, numberOf)                                     \
    TARN_INLINE void form(int resultWidth, VectorWord* result, type value) TARNLIB_NOEXCEPT { \
        if (TARN_IS_NARROW(TARN_BELOW(resultWidth))) {                                        \
            const uint64_t number = numberOf(value);                                          \
            tarn_StoreWords(resultWidth, result, number& TARN_AVAL_HALF, number >> 32);       \
        } else {                                                                              \
            function(resultWidth, result, value);                                             \
        }                                                                                     \
    }

#define TARN_SUM_FORM(form, function, load, numberOf)                                            \
    TARN_INLINE void form(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,  \
                          int bWidth, const VectorWord* b) TARNLIB_NOEXCEPT {                    \
        if (TARN_IS_NARROW(TARN_BELOW(resultWidth) | TARN_BELOW(aWidth) | TARN_BELOW(bWidth))) { \
            tarn_StoreNumber(resultWidth, result, numberOf(load(aWidth, a), load(bWidth, b)));   \
        } else {                                                                                 \
            function(resultWidth, result, aWidth, a, bWidth, b);                                 \
        }                                                                                        \
    }

#define TARN_SIGN_FORM(form, function, load, numberOf)                                          \
    TARN_INLINE void form(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a) \
        TARNLIB_NOEXCEPT {                                                                      \
        if (TARN_IS_NARROW(TARN_BELOW(resultWidth) | TARN_BELOW(aWidth))) {                     \
            tarn_StoreNumber(resultWidth, result, numberOf(tarn_V64Of(0, 0), load(aWidth, a))); \
        } else {                                                                                \
            function(resultWidth, result, aWidth, a);                                           \
        }                                                                                       \
    }

#define TARN_BITWISE_FORM(form, function, wordsOf, rule)                                         \
    TARN_INLINE void form(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,  \
                          int bWidth, const VectorWord* b) TARNLIB_NOEXCEPT {                    \
        if (TARN_IS_NARROW(TARN_BELOW(resultWidth) | TARN_BELOW(aWidth) | TARN_BELOW(bWidth))) { \
            const tarn_Words x = wordsOf(aWidth, a), y = wordsOf(bWidth, b);                     \
            tarn_StoreWords(resultWidth, result, rule(x.low, y.low), rule(x.high, y.high));      \
        } else {                                                                                 \
            function(resultWidth, result, aWidth, a, bWidth, b);                                 \
        }                                                                                        \
    }

#define TARN_INVERT_FORM(form, function, wordsOf, rule)                                         \
    TARN_INLINE void form(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a) \
        TARNLIB_NOEXCEPT {                                                                      \
        if (TARN_IS_NARROW(TARN_BELOW(resultWidth) | TARN_BELOW(aWidth))) {                     \
            const tarn_Words x = wordsOf(aWidth, a);                                            \
            tarn_StoreWords(resultWidth, result, rule(x.low), rule(x.high));                    \
        } else {                                                                                \
            function(resultWidth, result, aWidth, a);                                           \
        }                                                                                       \
    }

#define TARN_REWRITE_FORM(form, function, rule)                        \
    TARN_INLINE void form(int width, VectorWord* v) TARNLIB_NOEXCEPT { \
        if (TARN_IS_NARROW(TARN_BELOW(width))) {                       \
            const tarn_Words x = tarn_UnsignedWords(width, v);         \
            tarn_StoreWords(width, v, rule(x.low), rule(x.high));      \
        } else {                                                       \
            function(width, v);                                        \
        }                                                              \
    }

/* The step is 1 or -1; word 1 is written only where the carry or borrow reaches it. */
#define TARN_STEP_FORM(form, function, step)                           \
    TARN_INLINE void form(int width, VectorWord* v) TARNLIB_NOEXCEPT { \
        if (TARN_IS_NARROW(TARN_BELOW(width))) {                       \
            tarn_StepNumber(width, v, step);                           \
        } else {                                                       \
            function(width, v);                                        \
        }                                                              \
    }

/*------------------------------------------------------------------------------------------------
 * Copies and conversions
 *----------------------------------------------------------------------------------------------*/

TARN_INLINE uint64_t tarn_NumberOfInt32(int32_t value) TARNLIB_NOEXCEPT {
    return TARN_CAST(uint64_t, TARN_CAST(int64_t, value));
}

TARN_INLINE uint64_t tarn_NumberOfUint32(uint32_t value) TARNLIB_NOEXCEPT {
    return value;
}

TARN_INLINE uint64_t tarn_NumberOfInt64(int64_t value) TARNLIB_NOEXCEPT {
    return TARN_CAST(uint64_t, value);
}

TARN_INLINE uint64_t tarn_NumberOfUint64(uint64_t value) TARNLIB_NOEXCEPT {
    return value;
}

TARN_INLINE uint64_t tarn_PatternOfDouble(double value) TARNLIB_NOEXCEPT {
    uint64_t pattern;
    memcpy(&pattern, &value, sizeof pattern);
    return pattern;
}

TARN_INLINE uint64_t tarn_PatternOfFloat(double value) TARNLIB_NOEXCEPT {
    const float rounded = TARN_CAST(float, value);
    uint32_t pattern;
    memcpy(&pattern, &rounded, sizeof pattern);
    return pattern;
}

TARN_COPY_FORM(tarn_InlineSignedCopy, tarn_SignedCopy, tarn_SignedWords)
TARN_COPY_FORM(tarn_InlineUnsignedCopy, tarn_UnsignedCopy, tarn_UnsignedWords)
TARN_CONVERT_FORM(tarn_InlineSignedConvert, tarn_SignedConvert, int32_t, tarn_NumberOfInt32)
TARN_CONVERT_FORM(tarn_InlineUnsignedConvert, tarn_UnsignedConvert, uint32_t, tarn_NumberOfUint32)
TARN_CONVERT_FORM(tarn_InlineSignedConvertLong, tarn_SignedConvertLong, int64_t, tarn_NumberOfInt64)
TARN_CONVERT_FORM(tarn_InlineUnsignedConvertLong, tarn_UnsignedConvertLong, uint64_t,
                  tarn_NumberOfUint64)
TARN_CONVERT_FORM(tarn_InlineMapToVector, tarn_MapToVector, double, tarn_PatternOfDouble)
TARN_CONVERT_FORM(tarn_InlineMapToShortVector, tarn_MapToShortVector, double, tarn_PatternOfFloat)

/*------------------------------------------------------------------------------------------------
 * Arithmetic
 *----------------------------------------------------------------------------------------------*/

TARN_INLINE void tarn_StepNumber(int width, VectorWord* v, int step) TARNLIB_NOEXCEPT {
    const tarn_V64 stepped =
        tarn_NumberSum(tarn_UnsignedNumber(width, v), tarn_V64Of(TARN_CAST(uint64_t, step), 0));
    const uint32_t wrapped = step > 0 ? 0 : UINT32_C(0xFFFFFFFF);
    const int isWrapped = TARN_CAST(uint32_t, stepped.aval) == wrapped;
    tarn_StoreNumber(isWrapped || stepped.bval != 0 ? width : 1, v, stepped);
}

TARN_SUM_FORM(tarn_InlineSignedAdd, tarn_SignedAdd, tarn_SignedNumber, tarn_NumberSum)
TARN_SUM_FORM(tarn_InlineUnsignedAdd, tarn_UnsignedAdd, tarn_UnsignedNumber, tarn_NumberSum)
TARN_SUM_FORM(tarn_InlineSignedSub, tarn_SignedSub, tarn_SignedNumber, tarn_NumberDifference)
TARN_SUM_FORM(tarn_InlineUnsignedSub, tarn_UnsignedSub, tarn_UnsignedNumber, tarn_NumberDifference)
TARN_SUM_FORM(tarn_InlineSignedMul, tarn_SignedMul, tarn_SignedNumber, tarn_NumberProduct)
TARN_SUM_FORM(tarn_InlineUnsignedMul, tarn_UnsignedMul, tarn_UnsignedNumber, tarn_NumberProduct)
TARN_SIGN_FORM(tarn_InlineSignedMinus, tarn_SignedMinus, tarn_SignedNumber, tarn_NumberDifference)
TARN_SIGN_FORM(tarn_InlineUnsignedMinus, tarn_UnsignedMinus, tarn_UnsignedNumber,
               tarn_NumberDifference)
TARN_SIGN_FORM(tarn_InlineSignedPlus, tarn_SignedPlus, tarn_SignedNumber, tarn_NumberSum)
TARN_SIGN_FORM(tarn_InlineUnsignedPlus, tarn_UnsignedPlus, tarn_UnsignedNumber, tarn_NumberSum)
TARN_STEP_FORM(tarn_InlineInc, tarn_Inc, 1)
TARN_STEP_FORM(tarn_InlineDec, tarn_Dec, -1)

/*------------------------------------------------------------------------------------------------
 * Bitwise operators and rewriting
 *----------------------------------------------------------------------------------------------*/

TARN_BITWISE_FORM(tarn_InlineSignedBitwiseAND, tarn_SignedBitwiseAND, tarn_SignedWords,
                  tarn_WordAND)
TARN_BITWISE_FORM(tarn_InlineUnsignedBitwiseAND, tarn_UnsignedBitwiseAND, tarn_UnsignedWords,
                  tarn_WordAND)
TARN_BITWISE_FORM(tarn_InlineSignedBitwiseNAND, tarn_SignedBitwiseNAND, tarn_SignedWords,
                  tarn_WordNAND)
TARN_BITWISE_FORM(tarn_InlineUnsignedBitwiseNAND, tarn_UnsignedBitwiseNAND, tarn_UnsignedWords,
                  tarn_WordNAND)
TARN_BITWISE_FORM(tarn_InlineSignedBitwiseOR, tarn_SignedBitwiseOR, tarn_SignedWords, tarn_WordOR)
TARN_BITWISE_FORM(tarn_InlineUnsignedBitwiseOR, tarn_UnsignedBitwiseOR, tarn_UnsignedWords,
                  tarn_WordOR)
TARN_BITWISE_FORM(tarn_InlineSignedBitwiseNOR, tarn_SignedBitwiseNOR, tarn_SignedWords,
                  tarn_WordNOR)
TARN_BITWISE_FORM(tarn_InlineUnsignedBitwiseNOR, tarn_UnsignedBitwiseNOR, tarn_UnsignedWords,
                  tarn_WordNOR)
TARN_BITWISE_FORM(tarn_InlineSignedBitwiseXOR, tarn_SignedBitwiseXOR, tarn_SignedWords,
                  tarn_WordXOR)
TARN_BITWISE_FORM(tarn_InlineUnsignedBitwiseXOR, tarn_UnsignedBitwiseXOR, tarn_UnsignedWords,
                  tarn_WordXOR)
TARN_BITWISE_FORM(tarn_InlineSignedBitwiseXNOR, tarn_SignedBitwiseXNOR, tarn_SignedWords,
                  tarn_WordXNOR)
TARN_BITWISE_FORM(tarn_InlineUnsignedBitwiseXNOR, tarn_UnsignedBitwiseXNOR, tarn_UnsignedWords,
                  tarn_WordXNOR)
TARN_BITWISE_FORM(tarn_InlineSignedConditionalMix, tarn_SignedConditionalMix, tarn_SignedWords,
                  tarn_WordMix)
TARN_BITWISE_FORM(tarn_InlineUnsignedConditionalMix, tarn_UnsignedConditionalMix,
                  tarn_UnsignedWords, tarn_WordMix)
TARN_INVERT_FORM(tarn_InlineSignedBitwiseBUF, tarn_SignedBitwiseBUF, tarn_SignedWords, tarn_WordBUF)
TARN_INVERT_FORM(tarn_InlineUnsignedBitwiseBUF, tarn_UnsignedBitwiseBUF, tarn_UnsignedWords,
                 tarn_WordBUF)
TARN_INVERT_FORM(tarn_InlineSignedBitwiseNOT, tarn_SignedBitwiseNOT, tarn_SignedWords, tarn_WordNOT)
TARN_INVERT_FORM(tarn_InlineUnsignedBitwiseNOT, tarn_UnsignedBitwiseNOT, tarn_UnsignedWords,
                 tarn_WordNOT)
TARN_REWRITE_FORM(tarn_InlineConvert0ToZ, tarn_Convert0ToZ, tarn_Word0ToZ)
TARN_REWRITE_FORM(tarn_InlineConvert1ToZ, tarn_Convert1ToZ, tarn_Word1ToZ)
TARN_REWRITE_FORM(tarn_InlineConvertXZTo0, tarn_ConvertXZTo0, tarn_WordXZTo0)

#endif
