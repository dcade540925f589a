// The one list of what tarn.vpi offers.
#ifndef TARN_VPI_OPERATIONS_H
#define TARN_VPI_OPERATIONS_H

#include <variant>

#include "shapes.h"

namespace tarnvpi {

using Shape =
    std::variant<OneOperand, TwoOperands, Power, InPlace, Reduction, Equality, Relation, Select,
                 SignedSelect, IndexedSelect, BitSelect, Concatenation, Shift, SelectAssign,
                 IndexedSelectAssign, SelectUpdate, IndexedSelectUpdate, MemoryCopy, MemorySelect,
                 MemoryAssign, Text, DecimalText, ParseText, ToReal, FromReal, RealFunction,
                 RealFunctionOfTwo, IntegerOf, RealText, ParseReal>;

struct Operation {
    const char* name;
    Shape shape;
};

inline constexpr Operation kOperations[] = {
    {"$tarn_plus", OneOperand{tarn_UnsignedPlus, tarn_SignedPlus}},
    {"$tarn_minus", OneOperand{tarn_UnsignedMinus, tarn_SignedMinus}},
    {"$tarn_add", TwoOperands{tarn_UnsignedAdd, tarn_SignedAdd}},
    {"$tarn_sub", TwoOperands{tarn_UnsignedSub, tarn_SignedSub}},
    {"$tarn_mul", TwoOperands{tarn_UnsignedMul, tarn_SignedMul}},
    {"$tarn_div", TwoOperands{tarn_UnsignedDiv, tarn_SignedDiv}},
    {"$tarn_mod", TwoOperands{tarn_UnsignedMod, tarn_SignedMod}},
    {"$tarn_power",
     Power{tarn_UnsignedUPower, tarn_UnsignedSPower, tarn_SignedUPower, tarn_SignedSPower}},
    {"$tarn_inc", InPlace{tarn_Inc}},
    {"$tarn_dec", InPlace{tarn_Dec}},

    {"$tarn_and", TwoOperands{tarn_UnsignedBitwiseAND, tarn_SignedBitwiseAND}},
    {"$tarn_nand", TwoOperands{tarn_UnsignedBitwiseNAND, tarn_SignedBitwiseNAND}},
    {"$tarn_or", TwoOperands{tarn_UnsignedBitwiseOR, tarn_SignedBitwiseOR}},
    {"$tarn_nor", TwoOperands{tarn_UnsignedBitwiseNOR, tarn_SignedBitwiseNOR}},
    {"$tarn_xor", TwoOperands{tarn_UnsignedBitwiseXOR, tarn_SignedBitwiseXOR}},
    {"$tarn_xnor", TwoOperands{tarn_UnsignedBitwiseXNOR, tarn_SignedBitwiseXNOR}},
    {"$tarn_mix", TwoOperands{tarn_UnsignedConditionalMix, tarn_SignedConditionalMix}},
    {"$tarn_buf", OneOperand{tarn_UnsignedBitwiseBUF, tarn_SignedBitwiseBUF}},
    {"$tarn_not", OneOperand{tarn_UnsignedBitwiseNOT, tarn_SignedBitwiseNOT}},

    {"$tarn_reduce_and", Reduction{tarn_ReductionAND}},
    {"$tarn_reduce_or", Reduction{tarn_ReductionOR}},
    {"$tarn_reduce_xor", Reduction{tarn_ReductionXOR}},
    {"$tarn_truth", Reduction{tarn_LogicalValue}},
    {"$tarn_condition", Reduction{tarn_CheckCondition}},

    {"$tarn_eq", Equality{tarn_UnsignedEq, tarn_SignedEq}},
    {"$tarn_neq", Equality{tarn_UnsignedNEq, tarn_SignedNEq}},
    {"$tarn_case_eq", Equality{tarn_UnsignedCaseEq, tarn_SignedCaseEq}},
    {"$tarn_case_neq", Equality{tarn_UnsignedCaseNEq, tarn_SignedCaseNEq}},
    {"$tarn_casex", Equality{tarn_UnsignedCaseXEq, tarn_SignedCaseXEq}},
    {"$tarn_casez", Equality{tarn_UnsignedCaseZEq, tarn_SignedCaseZEq}},
    {"$tarn_wild_eq", Equality{tarn_UnsignedWildEq, tarn_SignedWildEq}},
    {"$tarn_wild_neq", Equality{tarn_UnsignedWildNEq, tarn_SignedWildNEq}},
    {"$tarn_lt", Relation{tarn_UnsignedRelation, tarn_SignedRelation, 1, 0, 0}},
    {"$tarn_le", Relation{tarn_UnsignedRelation, tarn_SignedRelation, 1, 1, 0}},
    {"$tarn_gt", Relation{tarn_UnsignedRelation, tarn_SignedRelation, 0, 0, 1}},
    {"$tarn_ge", Relation{tarn_UnsignedRelation, tarn_SignedRelation, 0, 1, 1}},

    {"$tarn_select", Select{tarn_Partselect}},
    {"$tarn_signed_select", SignedSelect{tarn_SignedPartselect}},
    {"$tarn_indexed_select", IndexedSelect{tarn_IndexedPartselect}},
    {"$tarn_bit", BitSelect{tarn_BitValue}},
    {"$tarn_concatenate", Concatenation{tarn_Concatenate}},
    {"$tarn_select_assign", SelectAssign{tarn_PartselectAssign}},
    {"$tarn_indexed_select_assign", IndexedSelectAssign{tarn_IndexedPartselectAssign}},
    {"$tarn_select_update", SelectUpdate{tarn_NotIdenticalPartselectAssign}},
    {"$tarn_indexed_select_update", IndexedSelectUpdate{tarn_NotIdenticalIndexedPartselectAssign}},
    {"$tarn_memory_copy", MemoryCopy{tarn_UnsignedCopyMemoryValue, tarn_SignedCopyMemoryValue}},
    {"$tarn_memory_select", MemorySelect{tarn_MemoryWordPartselect, false}},
    {"$tarn_indexed_memory_select", MemorySelect{tarn_MemoryWordIndexedPartselect, true}},
    {"$tarn_memory_assign",
     MemoryAssign{tarn_MemoryWordPartselectAssign, tarn_MemoryWordPartselectAssign1, false}},
    {"$tarn_indexed_memory_assign", MemoryAssign{tarn_MemoryWordIndexedPartselectAssign,
                                                 tarn_MemoryWordIndexedPartselectAssign1, true}},

    {"$tarn_0_to_z", InPlace{tarn_Convert0ToZ}},
    {"$tarn_1_to_z", InPlace{tarn_Convert1ToZ}},
    {"$tarn_xz_to_0", InPlace{tarn_ConvertXZTo0}},

    {"$tarn_shl", Shift{tarn_LogicalShiftLeft, tarn_LogicalShiftLeft}},
    {"$tarn_shr", Shift{tarn_LogicalShiftRight, tarn_LogicalShiftRight}},
    {"$tarn_ashr", Shift{tarn_LogicalShiftRight, tarn_ArithmeticalShiftRight}},

    // The option of a text of digits: the least number of them, -1 for as many as the width has.
    {"$tarn_bin_text", Text{tarn_ConvertToBin}},
    {"$tarn_oct_text", Text{tarn_ConvertToOct}},
    {"$tarn_hex_text", Text{tarn_ConvertToHex}},
    {"$tarn_dec_text", DecimalText{tarn_UnsignedConvertToDec, tarn_SignedConvertToDec}},
    // Of a text of characters: whether a NUL becomes a blank.
    {"$tarn_string_text", Text{tarn_ConvertToString}},

    {"$tarn_parse_bin", ParseText{tarn_BinaryStringToVector}},
    {"$tarn_parse_oct", ParseText{tarn_OctalStringToVector}},
    {"$tarn_parse_hex", ParseText{tarn_HexStringToVector}},
    {"$tarn_parse_dec", ParseText{tarn_DecimalStringToVector}},
    {"$tarn_parse_string", ParseText{tarn_StringToVector}},

    {"$tarn_to_real", ToReal{tarn_UnsignedConvertToReal, tarn_SignedConvertToReal}},
    {"$tarn_from_real", FromReal{tarn_ConvertToVector}},
    {"$tarn_truncate_real", FromReal{tarn_TruncatedConvertToVector}},
    {"$tarn_real_bits", FromReal{tarn_MapToVector}},
    {"$tarn_short_real_bits", FromReal{tarn_MapToShortVector}},
    {"$tarn_real_text", RealText{tarn_ConvertToStringR}},
    {"$tarn_parse_real", ParseReal{tarn_CreateReal}},
    {"$tarn_clog2", IntegerOf{tarn_Clog2}},
    {"$tarn_acos", RealFunction{tarn_AcosR}},
    {"$tarn_acosh", RealFunction{tarn_AcoshR}},
    {"$tarn_asin", RealFunction{tarn_AsinR}},
    {"$tarn_asinh", RealFunction{tarn_AsinhR}},
    {"$tarn_atan", RealFunction{tarn_AtanR}},
    {"$tarn_atanh", RealFunction{tarn_AtanhR}},
    {"$tarn_ceil", RealFunction{tarn_CeilR}},
    {"$tarn_cos", RealFunction{tarn_CosR}},
    {"$tarn_cosh", RealFunction{tarn_CoshR}},
    {"$tarn_exp", RealFunction{tarn_ExpR}},
    {"$tarn_floor", RealFunction{tarn_FloorR}},
    {"$tarn_ln", RealFunction{tarn_LnR}},
    {"$tarn_log10", RealFunction{tarn_Log10R}},
    {"$tarn_sin", RealFunction{tarn_SinR}},
    {"$tarn_sinh", RealFunction{tarn_SinhR}},
    {"$tarn_sqrt", RealFunction{tarn_SqrtR}},
    {"$tarn_tan", RealFunction{tarn_TanR}},
    {"$tarn_tanh", RealFunction{tarn_TanhR}},
    // The arguments of atan2 are swapped: (real, x, y) gives the angle of the point (x, y).
    {"$tarn_atan2", RealFunctionOfTwo{tarn_Atan2R}},
    {"$tarn_hypot", RealFunctionOfTwo{tarn_HypotR}},
    {"$tarn_pow", RealFunctionOfTwo{tarn_PowerR}},
};

}  // namespace tarnvpi

#endif
