/* The inline forms of what returns a code: reductions, comparisons, scans, single bits. */
#ifndef TARNLIB_INLINE_FORM_CODES_H
#define TARNLIB_INLINE_FORM_CODES_H

#include <tarnlib/assign.h>
#include <tarnlib/compare.h>
#include <tarnlib/inline/form.h>
#include <tarnlib/inline/value_compare.h>
#include <tarnlib/inline/value_select.h>
#include <tarnlib/logic.h>
#include <tarnlib/select.h>
#include <tarnlib/shift.h>

/* Each macro defines the form of a function, which it calls for widths that are not narrow. */

#define TARN_READ_FORM(form, function, load, codeOf)                          \
    TARN_INLINE int form(int width, const VectorWord* v) TARNLIB_NOEXCEPT {   \
        if (TARN_IS_NARROW(TARN_BELOW(width))) return codeOf(load(width, v)); \
        return function(width, v);                                            \
    }

/* The same for a code that depends on the width as well. */
#define TARN_REDUCTION_FORM(form, function, codeOf)                               \
    TARN_INLINE LogicCode form(int width, const VectorWord* v) TARNLIB_NOEXCEPT { \
        if (TARN_IS_NARROW(TARN_BELOW(width))) {                                  \
            return codeOf(width, tarn_V64UnsignedLoad(width, v));                 \
        }                                                                         \
        return function(width, v);                                                \
    }

TARN_INLINE uint64_t tarn_WordsDifference(tarn_Words a, tarn_Words b) TARNLIB_NOEXCEPT {
    return (a.low ^ b.low) | (a.high ^ b.high);
}

/* What is found in the words of two vectors. The high half of what does not match has no meaning in
 * what is found in a word. */
#define TARN_EQUALITY_FORM(form, function, wordsOf, find, codeOf)                                \
    TARN_INLINE LogicCode form(int aWidth, const VectorWord* a, int bWidth, const VectorWord* b) \
        TARNLIB_NOEXCEPT {                                                                       \
        if (TARN_IS_NARROW(TARN_BELOW(aWidth) | TARN_BELOW(bWidth))) {                           \
            const tarn_Words x = wordsOf(aWidth, a), y = wordsOf(bWidth, b);                     \
            tarn_V64 found = find(tarn_V64OfHalves(x.low), tarn_V64OfHalves(y.low));             \
            if (aWidth > 32 || bWidth > 32) {                                                    \
                const tarn_V64 high = find(tarn_V64OfHalves(x.high), tarn_V64OfHalves(y.high));  \
                found = tarn_V64Of(found.aval | high.aval, found.bval | high.bval);              \
            }                                                                                    \
            return codeOf(tarn_V64Of(found.aval & TARN_AVAL_HALF, found.bval));                  \
        }                                                                                        \
        return function(aWidth, a, bWidth, b);                                                   \
    }

#define TARN_COMPARISON_FORM(form, function, load, codeOf)                                 \
    TARN_INLINE int form(int aWidth, const VectorWord* a, int bWidth, const VectorWord* b) \
        TARNLIB_NOEXCEPT {                                                                 \
        if (TARN_IS_NARROW(TARN_BELOW(aWidth) | TARN_BELOW(bWidth))) {                     \
            return codeOf(load(aWidth, a), load(bWidth, b));                               \
        }                                                                                  \
        return function(aWidth, a, bWidth, b);                                             \
    }

/* The same for vectors that are compared bit by bit in aval and bval. */
#define TARN_IDENTITY_FORM(form, function, wordsOf, comparison)                                  \
    TARN_INLINE LogicCode form(int aWidth, const VectorWord* a, int bWidth, const VectorWord* b) \
        TARNLIB_NOEXCEPT {                                                                       \
        if (TARN_IS_NARROW(TARN_BELOW(aWidth) | TARN_BELOW(bWidth))) {                           \
            return tarn_WordsDifference(wordsOf(aWidth, a), wordsOf(bWidth, b)) comparison 0;    \
        }                                                                                        \
        return function(aWidth, a, bWidth, b);                                                   \
    }

TARN_REDUCTION_FORM(tarn_InlineReductionAND, tarn_ReductionAND, tarn_V64ReductionAND)
TARN_READ_FORM(tarn_InlineReductionOR, tarn_ReductionOR, tarn_V64UnsignedLoad, tarn_V64ReductionOR)
TARN_READ_FORM(tarn_InlineLogicalValue, tarn_LogicalValue, tarn_V64UnsignedLoad,
               tarn_V64LogicalValue)
TARN_REDUCTION_FORM(tarn_InlineReductionXOR, tarn_ReductionXOR, tarn_V64ReductionXOR)
TARN_READ_FORM(tarn_InlineCheckCondition, tarn_CheckCondition, tarn_V64UnsignedLoad,
               tarn_V64CheckCondition)

TARN_EQUALITY_FORM(tarn_InlineSignedEq, tarn_SignedEq, tarn_SignedWords, tarn_FindEq,
                   tarn_LogicOfMatch)
TARN_EQUALITY_FORM(tarn_InlineUnsignedEq, tarn_UnsignedEq, tarn_UnsignedWords, tarn_FindEq,
                   tarn_LogicOfMatch)
TARN_EQUALITY_FORM(tarn_InlineSignedNEq, tarn_SignedNEq, tarn_SignedWords, tarn_FindEq,
                   tarn_LogicOfMismatch)
TARN_EQUALITY_FORM(tarn_InlineUnsignedNEq, tarn_UnsignedNEq, tarn_UnsignedWords, tarn_FindEq,
                   tarn_LogicOfMismatch)
TARN_IDENTITY_FORM(tarn_InlineSignedCaseEq, tarn_SignedCaseEq, tarn_SignedWords, ==)
TARN_IDENTITY_FORM(tarn_InlineUnsignedCaseEq, tarn_UnsignedCaseEq, tarn_UnsignedWords, ==)
TARN_IDENTITY_FORM(tarn_InlineSignedCaseNEq, tarn_SignedCaseNEq, tarn_SignedWords, !=)
TARN_IDENTITY_FORM(tarn_InlineUnsignedCaseNEq, tarn_UnsignedCaseNEq, tarn_UnsignedWords, !=)
TARN_EQUALITY_FORM(tarn_InlineSignedCaseXEq, tarn_SignedCaseXEq, tarn_SignedWords, tarn_FindCaseXEq,
                   tarn_LogicOfMatch)
TARN_EQUALITY_FORM(tarn_InlineUnsignedCaseXEq, tarn_UnsignedCaseXEq, tarn_UnsignedWords,
                   tarn_FindCaseXEq, tarn_LogicOfMatch)
TARN_EQUALITY_FORM(tarn_InlineSignedCaseZEq, tarn_SignedCaseZEq, tarn_SignedWords, tarn_FindCaseZEq,
                   tarn_LogicOfMatch)
TARN_EQUALITY_FORM(tarn_InlineUnsignedCaseZEq, tarn_UnsignedCaseZEq, tarn_UnsignedWords,
                   tarn_FindCaseZEq, tarn_LogicOfMatch)
TARN_EQUALITY_FORM(tarn_InlineSignedWildEq, tarn_SignedWildEq, tarn_SignedWords, tarn_FindWildEq,
                   tarn_LogicOfMatch)
TARN_EQUALITY_FORM(tarn_InlineUnsignedWildEq, tarn_UnsignedWildEq, tarn_UnsignedWords,
                   tarn_FindWildEq, tarn_LogicOfMatch)
TARN_EQUALITY_FORM(tarn_InlineSignedWildNEq, tarn_SignedWildNEq, tarn_SignedWords, tarn_FindWildEq,
                   tarn_LogicOfMismatch)
TARN_EQUALITY_FORM(tarn_InlineUnsignedWildNEq, tarn_UnsignedWildNEq, tarn_UnsignedWords,
                   tarn_FindWildEq, tarn_LogicOfMismatch)

TARN_COMPARISON_FORM(tarn_InlineSignedRelation, tarn_SignedRelation, tarn_SignedNumber,
                     tarn_V64SignedRelation)
TARN_COMPARISON_FORM(tarn_InlineUnsignedRelation, tarn_UnsignedRelation, tarn_UnsignedNumber,
                     tarn_V64UnsignedRelation)

TARN_INLINE int tarn_InlineNotIdentical(int width, const VectorWord* a,
                                        const VectorWord* b) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(width))) {
        return tarn_WordsDifference(tarn_UnsignedWords(width, a), tarn_UnsignedWords(width, b)) !=
               0;
    }
    return tarn_NotIdentical(width, a, b);
}

TARN_READ_FORM(tarn_InlineScanShiftCount, tarn_ScanShiftCount, tarn_UnsignedNumber,
               tarn_V64ScanShiftCount)
TARN_READ_FORM(tarn_InlineSignedScanIndexOfSelect, tarn_SignedScanIndexOfSelect, tarn_SignedNumber,
               tarn_V64SignedScanIndexOfSelect)
TARN_READ_FORM(tarn_InlineUnsignedScanIndexOfSelect, tarn_UnsignedScanIndexOfSelect,
               tarn_UnsignedNumber, tarn_V64UnsignedScanIndexOfSelect)

/* The source may have any width: one word of it is read. */
TARN_INLINE LogicCode tarn_InlineBitValue(int sourceWidth, const VectorWord* source,
                                          int index) TARNLIB_NOEXCEPT {
    uint64_t bits;
    if (!TARN_IS_KNOWN(sourceWidth)) return tarn_BitValue(sourceWidth, source, index);
    if (index < 0 || index >= sourceWidth) return TARN_LOGIC_X;
    bits = tarn_LoadWord(source + (index >> 5)) >> (index & 31);
    return TARN_CAST(LogicCode, (bits & 1U) | (bits >> 31 & 2U));
}

#endif
