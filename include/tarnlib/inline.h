/** @file
 *  Narrow vectors without a call. Included instead of tarnlib.h, or after it, this header gives
 *  most functions an inline form: where the compiler knows that all widths of a call are 1 to 64,
 *  `tarn_UnsignedAdd(32, result, 32, a, 32, b)` becomes a few instructions, and the library is not
 *  called. Besides, it has vectors of up to 64 bits as values, `tarn_V64` of
 *  tarnlib/inline/value.h, which stay in registers.
 *
 *  Generated code stays as it is. A form does what the function does, word for word, and the
 *  function's comment holds for it: the words that are read and written, the storage that may be
 *  shared, the threads that it may run in. Other widths, and widths that the compiler does not
 *  know, mean the function; so do `(tarn_UnsignedAdd)(...)`, in brackets, and the name without
 *  arguments, as an address. Of a vector in which a field or a bit is read or written by its index,
 *  and of one that an operand is placed in, any known width will do.
 *
 *  Without optimisation, without the built-in functions of GCC and Clang, and where TARNLIB_CHECKED
 *  is defined so that the checked library sees every call, all names mean the functions. Where
 *  TARNLIB_INLINE_ANY_WIDTH is defined in front of the first inclusion, the forms ask for the
 *  widths while the program runs, so that no compiler needs to know them.
 *
 *  No form, because their work outweighs a call: quotients and powers, all of tarnlib/real.h and
 *  tarnlib/text.h. */
#ifndef TARNLIB_INLINE_H
#define TARNLIB_INLINE_H

#include <tarnlib.h>
#include <tarnlib/inline/value.h>
#include <tarnlib/inline/value_compare.h>
#include <tarnlib/inline/value_select.h>

#if defined(TARNLIB_INLINE_ANY_WIDTH) || \
    (defined(__GNUC__) && defined(__OPTIMIZE__) && !defined(TARNLIB_CHECKED))

#include <tarnlib/inline/form_codes.h>
#include <tarnlib/inline/form_memory.h>
#include <tarnlib/inline/form_select.h>
#include <tarnlib/inline/form_words.h>

/* Copies and conversions, arithmetic, bitwise operators, rewriting. */
#define tarn_SignedCopy(...) tarn_InlineSignedCopy(__VA_ARGS__)
#define tarn_UnsignedCopy(...) tarn_InlineUnsignedCopy(__VA_ARGS__)
#define tarn_SignedConvert(...) tarn_InlineSignedConvert(__VA_ARGS__)
#define tarn_UnsignedConvert(...) tarn_InlineUnsignedConvert(__VA_ARGS__)
#define tarn_SignedConvertLong(...) tarn_InlineSignedConvertLong(__VA_ARGS__)
#define tarn_UnsignedConvertLong(...) tarn_InlineUnsignedConvertLong(__VA_ARGS__)
#define tarn_MapToVector(...) tarn_InlineMapToVector(__VA_ARGS__)
#define tarn_MapToShortVector(...) tarn_InlineMapToShortVector(__VA_ARGS__)
#define tarn_SignedAdd(...) tarn_InlineSignedAdd(__VA_ARGS__)
#define tarn_UnsignedAdd(...) tarn_InlineUnsignedAdd(__VA_ARGS__)
#define tarn_SignedSub(...) tarn_InlineSignedSub(__VA_ARGS__)
#define tarn_UnsignedSub(...) tarn_InlineUnsignedSub(__VA_ARGS__)
#define tarn_SignedMul(...) tarn_InlineSignedMul(__VA_ARGS__)
#define tarn_UnsignedMul(...) tarn_InlineUnsignedMul(__VA_ARGS__)
#define tarn_SignedMinus(...) tarn_InlineSignedMinus(__VA_ARGS__)
#define tarn_UnsignedMinus(...) tarn_InlineUnsignedMinus(__VA_ARGS__)
#define tarn_SignedPlus(...) tarn_InlineSignedPlus(__VA_ARGS__)
#define tarn_UnsignedPlus(...) tarn_InlineUnsignedPlus(__VA_ARGS__)
#define tarn_Inc(...) tarn_InlineInc(__VA_ARGS__)
#define tarn_Dec(...) tarn_InlineDec(__VA_ARGS__)
#define tarn_SignedBitwiseAND(...) tarn_InlineSignedBitwiseAND(__VA_ARGS__)
#define tarn_UnsignedBitwiseAND(...) tarn_InlineUnsignedBitwiseAND(__VA_ARGS__)
#define tarn_SignedBitwiseNAND(...) tarn_InlineSignedBitwiseNAND(__VA_ARGS__)
#define tarn_UnsignedBitwiseNAND(...) tarn_InlineUnsignedBitwiseNAND(__VA_ARGS__)
#define tarn_SignedBitwiseOR(...) tarn_InlineSignedBitwiseOR(__VA_ARGS__)
#define tarn_UnsignedBitwiseOR(...) tarn_InlineUnsignedBitwiseOR(__VA_ARGS__)
#define tarn_SignedBitwiseNOR(...) tarn_InlineSignedBitwiseNOR(__VA_ARGS__)
#define tarn_UnsignedBitwiseNOR(...) tarn_InlineUnsignedBitwiseNOR(__VA_ARGS__)
#define tarn_SignedBitwiseXOR(...) tarn_InlineSignedBitwiseXOR(__VA_ARGS__)
#define tarn_UnsignedBitwiseXOR(...) tarn_InlineUnsignedBitwiseXOR(__VA_ARGS__)
#define tarn_SignedBitwiseXNOR(...) tarn_InlineSignedBitwiseXNOR(__VA_ARGS__)
#define tarn_UnsignedBitwiseXNOR(...) tarn_InlineUnsignedBitwiseXNOR(__VA_ARGS__)
#define tarn_SignedConditionalMix(...) tarn_InlineSignedConditionalMix(__VA_ARGS__)
#define tarn_UnsignedConditionalMix(...) tarn_InlineUnsignedConditionalMix(__VA_ARGS__)
#define tarn_SignedBitwiseBUF(...) tarn_InlineSignedBitwiseBUF(__VA_ARGS__)
#define tarn_UnsignedBitwiseBUF(...) tarn_InlineUnsignedBitwiseBUF(__VA_ARGS__)
#define tarn_SignedBitwiseNOT(...) tarn_InlineSignedBitwiseNOT(__VA_ARGS__)
#define tarn_UnsignedBitwiseNOT(...) tarn_InlineUnsignedBitwiseNOT(__VA_ARGS__)
#define tarn_Convert0ToZ(...) tarn_InlineConvert0ToZ(__VA_ARGS__)
#define tarn_Convert1ToZ(...) tarn_InlineConvert1ToZ(__VA_ARGS__)
#define tarn_ConvertXZTo0(...) tarn_InlineConvertXZTo0(__VA_ARGS__)

/* Reductions, comparisons, scans, single bits. */
#define tarn_ReductionAND(...) tarn_InlineReductionAND(__VA_ARGS__)
#define tarn_ReductionOR(...) tarn_InlineReductionOR(__VA_ARGS__)
#define tarn_LogicalValue(...) tarn_InlineLogicalValue(__VA_ARGS__)
#define tarn_ReductionXOR(...) tarn_InlineReductionXOR(__VA_ARGS__)
#define tarn_CheckCondition(...) tarn_InlineCheckCondition(__VA_ARGS__)
#define tarn_SignedEq(...) tarn_InlineSignedEq(__VA_ARGS__)
#define tarn_UnsignedEq(...) tarn_InlineUnsignedEq(__VA_ARGS__)
#define tarn_SignedNEq(...) tarn_InlineSignedNEq(__VA_ARGS__)
#define tarn_UnsignedNEq(...) tarn_InlineUnsignedNEq(__VA_ARGS__)
#define tarn_SignedCaseEq(...) tarn_InlineSignedCaseEq(__VA_ARGS__)
#define tarn_UnsignedCaseEq(...) tarn_InlineUnsignedCaseEq(__VA_ARGS__)
#define tarn_SignedCaseNEq(...) tarn_InlineSignedCaseNEq(__VA_ARGS__)
#define tarn_UnsignedCaseNEq(...) tarn_InlineUnsignedCaseNEq(__VA_ARGS__)
#define tarn_SignedCaseXEq(...) tarn_InlineSignedCaseXEq(__VA_ARGS__)
#define tarn_UnsignedCaseXEq(...) tarn_InlineUnsignedCaseXEq(__VA_ARGS__)
#define tarn_SignedCaseZEq(...) tarn_InlineSignedCaseZEq(__VA_ARGS__)
#define tarn_UnsignedCaseZEq(...) tarn_InlineUnsignedCaseZEq(__VA_ARGS__)
#define tarn_SignedWildEq(...) tarn_InlineSignedWildEq(__VA_ARGS__)
#define tarn_UnsignedWildEq(...) tarn_InlineUnsignedWildEq(__VA_ARGS__)
#define tarn_SignedWildNEq(...) tarn_InlineSignedWildNEq(__VA_ARGS__)
#define tarn_UnsignedWildNEq(...) tarn_InlineUnsignedWildNEq(__VA_ARGS__)
#define tarn_SignedRelation(...) tarn_InlineSignedRelation(__VA_ARGS__)
#define tarn_UnsignedRelation(...) tarn_InlineUnsignedRelation(__VA_ARGS__)
#define tarn_NotIdentical(...) tarn_InlineNotIdentical(__VA_ARGS__)
#define tarn_ScanShiftCount(...) tarn_InlineScanShiftCount(__VA_ARGS__)
#define tarn_SignedScanIndexOfSelect(...) tarn_InlineSignedScanIndexOfSelect(__VA_ARGS__)
#define tarn_UnsignedScanIndexOfSelect(...) tarn_InlineUnsignedScanIndexOfSelect(__VA_ARGS__)
#define tarn_BitValue(...) tarn_InlineBitValue(__VA_ARGS__)

/* Shifts, fields, concatenation, fills. */
#define tarn_LogicalShiftLeft(...) tarn_InlineLogicalShiftLeft(__VA_ARGS__)
#define tarn_LogicalShiftRight(...) tarn_InlineLogicalShiftRight(__VA_ARGS__)
#define tarn_ArithmeticalShiftRight(...) tarn_InlineArithmeticalShiftRight(__VA_ARGS__)
#define tarn_Partselect(...) tarn_InlinePartselect(__VA_ARGS__)
#define tarn_SignedPartselect(...) tarn_InlineSignedPartselect(__VA_ARGS__)
#define tarn_IndexedPartselect(...) tarn_InlineIndexedPartselect(__VA_ARGS__)
#define tarn_PartselectAssign(...) tarn_InlinePartselectAssign(__VA_ARGS__)
#define tarn_NotIdenticalPartselectAssign(...) tarn_InlineNotIdenticalPartselectAssign(__VA_ARGS__)
#define tarn_IndexedPartselectAssign(...) tarn_InlineIndexedPartselectAssign(__VA_ARGS__)
#define tarn_NotIdenticalIndexedPartselectAssign(...) \
    tarn_InlineNotIdenticalIndexedPartselectAssign(__VA_ARGS__)
#define tarn_Concatenate(...) tarn_InlineConcatenate(__VA_ARGS__)
#define tarn_ConcatenateShifted(...) tarn_InlineConcatenateShifted(__VA_ARGS__)
#define tarn_CleanBasedFillX(...) tarn_InlineCleanBasedFillX(__VA_ARGS__)

/* Memory words. */
#define tarn_UnsignedCopyMemoryValue(...) tarn_InlineUnsignedCopyMemoryValue(__VA_ARGS__)
#define tarn_SignedCopyMemoryValue(...) tarn_InlineSignedCopyMemoryValue(__VA_ARGS__)
#define tarn_MemoryWordAssign(...) tarn_InlineMemoryWordAssign(__VA_ARGS__)
#define tarn_NotIdenticalMemoryWordAssign(...) tarn_InlineNotIdenticalMemoryWordAssign(__VA_ARGS__)
#define tarn_MemoryWordPartselect(...) tarn_InlineMemoryWordPartselect(__VA_ARGS__)
#define tarn_MemoryWordIndexedPartselect(...) tarn_InlineMemoryWordIndexedPartselect(__VA_ARGS__)
#define tarn_MemoryWordPartselectAssign(...) tarn_InlineMemoryWordPartselectAssign(__VA_ARGS__)
#define tarn_MemoryWordIndexedPartselectAssign(...) \
    tarn_InlineMemoryWordIndexedPartselectAssign(__VA_ARGS__)
#define tarn_NotIdenticalMemoryWordPartselectAssign(...) \
    tarn_InlineNotIdenticalMemoryWordPartselectAssign(__VA_ARGS__)
#define tarn_NotIdenticalMemoryWordIndexedPartselectAssign(...) \
    tarn_InlineNotIdenticalMemoryWordIndexedPartselectAssign(__VA_ARGS__)
#define tarn_MemoryWordPartselectAssign1(...) tarn_InlineMemoryWordPartselectAssign1(__VA_ARGS__)
#define tarn_MemoryWordIndexedPartselectAssign1(...) \
    tarn_InlineMemoryWordIndexedPartselectAssign1(__VA_ARGS__)
#define tarn_NotIdenticalMemoryWordPartselectAssign1(...) \
    tarn_InlineNotIdenticalMemoryWordPartselectAssign1(__VA_ARGS__)
#define tarn_NotIdenticalMemoryWordIndexedPartselectAssign1(...) \
    tarn_InlineNotIdenticalMemoryWordIndexedPartselectAssign1(__VA_ARGS__)

#endif

/* These shift narrow vectors by the forms. */
#include <tarnlib/inline/shift_by.h>

#endif
