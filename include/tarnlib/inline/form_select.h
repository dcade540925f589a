/* The inline forms of what moves bits: shifts, fields, concatenation, fills, memory words. */
#ifndef TARNLIB_INLINE_FORM_SELECT_H
#define TARNLIB_INLINE_FORM_SELECT_H

#include <tarnlib/assign.h>
#include <tarnlib/inline/form.h>
#include <tarnlib/inline/value_select.h>
#include <tarnlib/select.h>
#include <tarnlib/shift.h>

/*------------------------------------------------------------------------------------------------
 * Shifts
 *----------------------------------------------------------------------------------------------*/

/* An amount as the shifts of values take it: of the vector's width or more, it leaves nothing. */
TARN_INLINE unsigned tarn_AmountInWidth(int width, unsigned amount) TARNLIB_NOEXCEPT {
    return amount < TARN_CAST(unsigned, width) ? amount : 64U;
}

TARN_INLINE void tarn_InlineLogicalShiftLeft(int resultWidth, VectorWord* result, int sourceWidth,
                                             const VectorWord* source,
                                             unsigned amount) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(resultWidth))) {
        const tarn_V64 v = tarn_V64UnsignedLoad(resultWidth, source);
        tarn_V64Store(resultWidth, result,
                      tarn_V64LogicalShiftLeft(v, tarn_AmountInWidth(resultWidth, amount)));
    } else {
        tarn_LogicalShiftLeft(resultWidth, result, sourceWidth, source, amount);
    }
}

#define TARN_RIGHT_SHIFT_FORM(form, function, load, shift)                                         \
    TARN_INLINE void form(int resultWidth, VectorWord* result, int sourceWidth,                    \
                          const VectorWord* source, unsigned amount) TARNLIB_NOEXCEPT {            \
        if (TARN_IS_NARROW(TARN_BELOW(resultWidth) | TARN_BELOW(sourceWidth))) {                   \
            const tarn_V64 v = load(sourceWidth, source);                                          \
            tarn_V64Store(resultWidth, result, shift(v, tarn_AmountInWidth(sourceWidth, amount))); \
        } else {                                                                                   \
            function(resultWidth, result, sourceWidth, source, amount);                            \
        }                                                                                          \
    }

TARN_RIGHT_SHIFT_FORM(tarn_InlineLogicalShiftRight, tarn_LogicalShiftRight, tarn_V64UnsignedLoad,
                      tarn_V64LogicalShiftRight)
TARN_RIGHT_SHIFT_FORM(tarn_InlineArithmeticalShiftRight, tarn_ArithmeticalShiftRight,
                      tarn_V64SignedLoad, tarn_V64ArithmeticalShiftRight)

/*------------------------------------------------------------------------------------------------
 * Fields that are read
 *----------------------------------------------------------------------------------------------*/

/* The words of the `width` (1 to 64) bits from bit `offset` of the word at source upward, of which
 * the top one goes on above the field. No word is read without a bit of the field: at a place that
 * is not known the word of the highest bit is read in place of one that may not be there. */
TARN_INLINE tarn_Words tarn_FieldWords(const VectorWord* source, unsigned offset,
                                       int width) TARNLIB_NOEXCEPT {
    const unsigned end = offset + TARN_CAST(unsigned, width);
    const uint64_t first = tarn_LoadWord(source);
    const uint64_t last = tarn_LoadWord(source + (end - 1U) / 32U);
    tarn_Words field;
    field.high = 0;
    if (width == 1 || (TARN_IS_KNOWN(end) && end <= 32U)) {
        field.low = first >> offset;
    } else if (width <= 32) {
        field.low = tarn_JoinWords(first, last, offset);
    } else {
        const uint64_t second = tarn_LoadWord(source + 1);
        field.low = tarn_JoinWords(first, second, offset);
        field.high = tarn_JoinWords(second, last, offset);
    }
    return field;
}

TARN_INLINE void tarn_StoreField(VectorWord* result, const VectorWord* source, unsigned offset,
                                 int width) TARNLIB_NOEXCEPT {
    const tarn_Words field = tarn_FieldWords(source, offset, width);
    const uint64_t own = tarn_InBothHalves(tarn_LowBits32(width));
    if (width <= 32) {
        tarn_StoreWord(result, field.low & own);
    } else {
        tarn_StoreWords(width, result, field.low, field.high & own);
    }
}

TARN_INLINE void tarn_InlinePartselect(VectorWord* result, const VectorWord* source,
                                       unsigned offset, int width) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(width))) {
        tarn_StoreField(result, source, offset, width);
    } else {
        tarn_Partselect(result, source, offset, width);
    }
}

TARN_INLINE void tarn_InlineSignedPartselect(int resultWidth, VectorWord* result,
                                             const VectorWord* source, unsigned offset,
                                             int width) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(resultWidth) | TARN_BELOW(width))) {
        tarn_Words field = tarn_FieldWords(source, offset, width);
        if (width <= 32) {
            field.low = tarn_SignFillWord(field.low, width);
            field.high = tarn_WordBeyond(field.low);
        } else {
            field.high = tarn_SignFillWord(field.high, width);
        }
        tarn_StoreWords(resultWidth > width ? resultWidth : width, result, field.low, field.high);
    } else {
        tarn_SignedPartselect(resultWidth, result, source, offset, width);
    }
}

/* Whether a field lies inside a vector; a width of 1 to 64 is subtracted without overflow from any
 * other that is not below it. */
TARN_INLINE int tarn_LiesInside(int vectorWidth, int index, int width) TARNLIB_NOEXCEPT {
    return index >= 0 && vectorWidth >= width && index <= vectorWidth - width;
}

/* The vector may have any width. A field that is not all inside is rare, and left to the export. */
#define TARN_IS_INDEXED(vectorWidth, index, width)                      \
    (TARN_IS_NARROW(TARN_BELOW(width)) && TARN_IS_KNOWN(vectorWidth) && \
     tarn_LiesInside(vectorWidth, index, width))

TARN_INLINE void tarn_InlineIndexedPartselect(VectorWord* result, int sourceWidth,
                                              const VectorWord* source, int index,
                                              int width) TARNLIB_NOEXCEPT {
    if (TARN_IS_INDEXED(sourceWidth, index, width)) {
        tarn_StoreField(result, source + (index >> 5), TARN_CAST(unsigned, index) & 31U, width);
    } else {
        tarn_IndexedPartselect(result, sourceWidth, source, index, width);
    }
}

/*------------------------------------------------------------------------------------------------
 * Fields that are written
 *----------------------------------------------------------------------------------------------*/

/* The bits of `own` in a word become those of `bits`. Returns the changed ones. */
TARN_INLINE uint64_t tarn_ReplaceBits(VectorWord* to, uint64_t bits,
                                      uint64_t own) TARNLIB_NOEXCEPT {
    const uint64_t old = tarn_LoadWord(to);
    const uint64_t changed = (old ^ bits) & own;
    tarn_StoreWord(to, old ^ changed);
    return changed;
}

/* Writes the `width` (1 to 64) bits and returns whether one changed. The value is read before a
 * word is written: it may be the target. */
TARN_INLINE int tarn_AssignField(VectorWord* target, const VectorWord* value, unsigned offset,
                                 int width) TARNLIB_NOEXCEPT {
    const tarn_Words v = tarn_UnsignedWords(width, value);
    const unsigned end = offset + TARN_CAST(unsigned, width);
    const uint64_t top = tarn_InBothHalves(tarn_LowBits32(TARN_CAST(int, end)));
    const uint64_t low = tarn_ShiftWordUp(v.low, offset);
    uint64_t own = tarn_InBothHalves(UINT32_C(0xFFFFFFFF) << offset);
    uint64_t middle, changed;
    if (width == 1 || end <= 32U) return tarn_ReplaceBits(target, low, own & top) != 0;
    changed = tarn_ReplaceBits(target, low, own);
    middle = tarn_ShiftWordUp(v.high, offset) | tarn_CarriedWord(v.low, offset);
    own = end <= 64U ? top : TARN_ALL_X;
    changed |= tarn_ReplaceBits(target + 1, middle, own);
    if (end > 64U) {
        changed |= tarn_ReplaceBits(target + 2, tarn_CarriedWord(v.high, offset), top);
    }
    return changed != 0;
}

TARN_INLINE void tarn_InlinePartselectAssign(VectorWord* target, const VectorWord* value,
                                             unsigned offset, int width) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(width))) {
        tarn_AssignField(target, value, offset, width);
    } else {
        tarn_PartselectAssign(target, value, offset, width);
    }
}

TARN_INLINE int tarn_InlineNotIdenticalPartselectAssign(VectorWord* target, const VectorWord* value,
                                                        unsigned offset,
                                                        int width) TARNLIB_NOEXCEPT {
    return TARN_IS_NARROW(TARN_BELOW(width))
               ? tarn_AssignField(target, value, offset, width)
               : tarn_NotIdenticalPartselectAssign(target, value, offset, width);
}

TARN_INLINE void tarn_InlineIndexedPartselectAssign(int targetWidth, VectorWord* target,
                                                    const VectorWord* value, int index,
                                                    int width) TARNLIB_NOEXCEPT {
    if (TARN_IS_INDEXED(targetWidth, index, width)) {
        tarn_AssignField(target + (index >> 5), value, TARN_CAST(unsigned, index) & 31U, width);
    } else {
        tarn_IndexedPartselectAssign(targetWidth, target, value, index, width);
    }
}

TARN_INLINE int tarn_InlineNotIdenticalIndexedPartselectAssign(int targetWidth, VectorWord* target,
                                                               const VectorWord* value, int index,
                                                               int width) TARNLIB_NOEXCEPT {
    return TARN_IS_INDEXED(targetWidth, index, width)
               ? tarn_AssignField(target + (index >> 5), value, TARN_CAST(unsigned, index) & 31U,
                                  width)
               : tarn_NotIdenticalIndexedPartselectAssign(targetWidth, target, value, index, width);
}

/*------------------------------------------------------------------------------------------------
 * Concatenation and fills
 *----------------------------------------------------------------------------------------------*/

/* The operand has 1 to 64 bits. Its word 1 has bits to place where it begins below the span. */
TARN_INLINE void tarn_Place(int span, VectorWord* destination, int operandWidth,
                            const VectorWord* operand, unsigned offset) TARNLIB_NOEXCEPT {
    const unsigned limit = TARN_CAST(unsigned, span);
    const unsigned top = offset + TARN_CAST(unsigned, operandWidth);
    const unsigned end = top < limit ? top : limit;
    const tarn_Words v = tarn_UnsignedWords(limit > offset + 32U ? operandWidth : 1, operand);
    tarn_StoreWord(destination, tarn_LoadWord(destination) | tarn_ShiftWordUp(v.low, offset));
    if (end <= 32U) return;
    tarn_StoreWord(destination + 1,
                   tarn_ShiftWordUp(v.high, offset) | tarn_CarriedWord(v.low, offset));
    if (end > 64U) tarn_StoreWord(destination + 2, tarn_CarriedWord(v.high, offset));
}

TARN_INLINE void tarn_InlineConcatenate(int span, VectorWord* destination, int operandWidth,
                                        const VectorWord* operand,
                                        unsigned offset) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(operandWidth)) && TARN_IS_KNOWN(span) && span >= 1) {
        tarn_Place(span, destination, operandWidth, operand, offset);
    } else {
        tarn_Concatenate(span, destination, operandWidth, operand, offset);
    }
}

TARN_INLINE void tarn_InlineConcatenateShifted(int span, VectorWord* destination,
                                               const VectorWord* operand) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(span))) {
        const tarn_Words v = tarn_UnsignedWords(span, operand);
        tarn_StoreWords(span, destination, tarn_LoadWord(destination) | v.low, v.high);
    } else {
        tarn_ConcatenateShifted(span, destination, operand);
    }
}

TARN_INLINE void tarn_InlineCleanBasedFillX(VectorWord* word, int count,
                                            int base) TARNLIB_NOEXCEPT {
    if (TARN_IS_NARROW(TARN_BELOW(count))) {
        const int end = base + count;
        const uint64_t top = tarn_InBothHalves(tarn_LowBits32(end));
        const uint64_t first =
            tarn_LoadWord(word) | tarn_InBothHalves(UINT32_C(0xFFFFFFFF) << base);
        tarn_StoreWord(word, end <= 32 ? first & top : first);
        if (end > 32) tarn_StoreWord(word + 1, end <= 64 ? top : TARN_ALL_X);
        if (end > 64) tarn_StoreWord(word + 2, top);
    } else {
        tarn_CleanBasedFillX(word, count, base);
    }
}

#endif
