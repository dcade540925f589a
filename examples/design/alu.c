/* module alu */
#include "design.h"

VectorWord alu_y[3] = {X_BITS(0xffffffff), X_BITS(0xffffffff), X_BITS(0xffff)};
LogicCode alu_less = TARN_LOGIC_X;
LogicCode alu_zero = TARN_LOGIC_X;

/* wire signed [79:0] left, right: bit 79 is repeated in the sixteen bits above it. */
static VectorWord alu_left[3] = {X_BITS(0xffffffff), X_BITS(0xffffffff), X_BITS(0xffffffff)};
static VectorWord alu_right[3] = {X_BITS(0xffffffff), X_BITS(0xffffffff), X_BITS(0xffffffff)};

/* An unsigned vector assigned to a signed one: the select copies bit 79 through the top word. */
static void assign_signed(VectorWord* signal, const VectorWord* source, Set readers) {
    VectorWord value[3];
    tarn_SignedPartselect(80, value, source, 0, 80);
    if (tarn_NotIdentical(80, signal, value)) {
        tarn_SignedCopy(80, signal, 80, value);
        Wake(readers);
    }
}

/* wire signed [79:0] left = a; */
void alu_left_assign(void) {
    assign_signed(alu_left, alu_a, LEFT_READERS);
}

/* wire signed [79:0] right = b; */
void alu_right_assign(void) {
    assign_signed(alu_right, alu_b, RIGHT_READERS);
}

/* assign less = left < right; */
void alu_less_assign(void) {
    LogicCode value = TARN_LOGIC_0;
    switch (tarn_SignedRelation(80, alu_left, 80, alu_right)) {
        case TARN_RELATION_LESS:
            value = TARN_LOGIC_1;
            break;
        case TARN_RELATION_UNKNOWN:
            value = TARN_LOGIC_X;
            break;
        default:
            break;
    }
    AssignBit(&alu_less, value, LESS_READERS);
}

/* assign zero = y == 0; */
void alu_zero_assign(void) {
    static const VectorWord kZero[1] = {{0, 0}};
    alu_zero = tarn_UnsignedEq(80, alu_y, 32, kZero);
}

typedef void Shift(int, VectorWord*, int, const VectorWord*, unsigned);

/* A shift by a vector. An amount with X or Z bits leaves nothing known; one that no machine word
 * holds is as good as any that is larger than the width. */
static void shift_by_vector(Shift* shift, VectorWord* result, const VectorWord* source,
                            int amountWidth, const VectorWord* amount) {
    switch (tarn_ScanShiftCount(amountWidth, amount)) {
        case 0:
            shift(80, result, 80, source, amount[0].aval);
            break;
        case 1:
            shift(80, result, 80, source, UINT32_MAX);
            break;
        default:
            tarn_CleanBasedFillX(result, 80, 0);
            break;
    }
}

/* (a + b) >> 1: the carry above bit 79 is no part of the sum and must not be shifted into it. */
static void average(VectorWord* result) {
    tarn_UnsignedAdd(80, result, 80, alu_a, 80, alu_b);
    tarn_Partselect(result, result, 0, 80);
    tarn_LogicalShiftRight(80, result, 80, result, 1);
}

/* {a[39:0], b[39:0]}: the lowest operand comes first; bit 40 is bit 8 of word 1. */
static void concatenate_halves(VectorWord* result) {
    VectorWord high[2];
    tarn_Partselect(result, alu_b, 0, 40);
    tarn_Partselect(high, alu_a, 0, 40);
    tarn_Concatenate(48, &result[1], 40, high, 8);
}

/* always @*
 *     case (op)
 *
 * No item of a case matches an op with X or Z bits; among the others machine code chooses. */
void alu_y_always(void) {
    VectorWord value[3];
    switch (alu_op[0].bval == 0 ? alu_op[0].aval : UINT32_MAX) {
        case 0: /* y = a + b; */
            tarn_UnsignedAdd(80, value, 80, alu_a, 80, alu_b);
            break;
        case 1: /* y = a - b; */
            tarn_UnsignedSub(80, value, 80, alu_a, 80, alu_b);
            break;
        case 2: /* y = a & b; */
            tarn_UnsignedBitwiseAND(80, value, 80, alu_a, 80, alu_b);
            break;
        case 3: /* y = a | b; */
            tarn_UnsignedBitwiseOR(80, value, 80, alu_a, 80, alu_b);
            break;
        case 4: /* y = a ^ b; */
            tarn_UnsignedBitwiseXOR(80, value, 80, alu_a, 80, alu_b);
            break;
        case 5: /* y = a << b; */
            shift_by_vector(tarn_LogicalShiftLeft, value, alu_a, 80, alu_b);
            break;
        case 6: /* y = a >> b; */
            shift_by_vector(tarn_LogicalShiftRight, value, alu_a, 80, alu_b);
            break;
        case 7: /* y = left >>> b; */
            shift_by_vector(tarn_ArithmeticalShiftRight, value, alu_left, 80, alu_b);
            break;
        case 8: /* y = a * b; */
            tarn_UnsignedMul(80, value, 80, alu_a, 80, alu_b);
            break;
        case 9: /* y = (a + b) >> 1; */
            average(value);
            break;
        case 10: /* y = {a[39:0], b[39:0]}; */
            concatenate_halves(value);
            break;
        case 11: /* y = less; */
            tarn_UnsignedCopy(80, value, 1, &tarn_LogicVectorLUT[alu_less]);
            break;
        default: /* y = 80'bx; */
            tarn_CleanBasedFillX(value, 80, 0);
            break;
    }
    AssignVector(80, alu_y, value, Y_READERS);
}
