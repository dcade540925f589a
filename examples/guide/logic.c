/* Bitwise operators, conditions. */
#include "check.h"
#include "top_word.h"

static void Inversion(void) {
    //! [not]
    /* wire [3:0] y = ~a & 4'b1110;  with a = 4'b01zx */
    VectorWord a[1] = {{0x5, 0x3}}, mask[1] = {{0xe, 0}}, y[1];
    tarn_UnsignedBitwiseNOT(4, y, 4, a);
    EXPECT_WORDS(y, {0xfffffffb, 0x3}); /* 10xx, and ones above it */
    tarn_UnsignedBitwiseAND(4, y, 4, y, 4, mask);
    EXPECT_WORDS(y, {0xa, 0x2}); /* 10x0: the clean mask has made it clean */
    //! [not]
}

static void UnfitOperand(void) {
    //! [unfit]
    /* wire [7:0] y = ((a + b) | 8'hff) + 1;  with an X in a */
    VectorWord a[1] = {{0, 0x1}}, b[1] = {{1, 0}}, ones[1] = {{0xff, 0}}, one[1] = {{1, 0}}, y[1];
    tarn_UnsignedAdd(8, y, 8, a, 8, b);
    EXPECT_WORDS(y, {0xffffffff, 0xffffffff});
    tarn_UnsignedBitwiseOR(8, y, 8, y, 8, ones);
    EXPECT_WORDS(y, {0xffffffff, 0xffffff00}); /* eight ones, below X bits that a sum would see */
    ClearAbove(8, y);
    tarn_UnsignedAdd(8, y, 8, y, 8, one);
    EXPECT_WORDS(y, {0x100, 0});
    //! [unfit]
}

static void Condition(void) {
    //! [conditional]
    /* wire [3:0] y = c ? a : b;  with c = 2'b0x, a = 4'b0110, b = 4'b0101 */
    VectorWord c[1] = {{0x1, 0x1}}, a[1] = {{0x6, 0}}, b[1] = {{0x5, 0}}, y[1];
    switch (tarn_LogicalValue(2, c)) {
        case TARN_LOGIC_0:
            tarn_UnsignedCopy(4, y, 4, b);
            break;
        case TARN_LOGIC_1:
            tarn_UnsignedCopy(4, y, 4, a);
            break;
        default:
            tarn_UnsignedConditionalMix(4, y, 4, a, 4, b);
            break;
    }
    EXPECT_WORDS(y, {0x7, 0x3}); /* 01xx */

    /* if (c) -- X is not true */
    EXPECT_VALUE(tarn_CheckCondition(2, c), 0);
    //! [conditional]
}

static void LogicalAnd(void) {
    //! [logical]
    /* wire y = a && b;  with a = 2'b10, b = 2'b0x: 1 and X */
    VectorWord a[1] = {{0x2, 0}}, b[1] = {{0x1, 0x1}}, y[1];
    const VectorWord* aValue = &tarn_LogicVectorLUT[tarn_LogicalValue(2, a)];
    const VectorWord* bValue = &tarn_LogicVectorLUT[tarn_LogicalValue(2, b)];
    tarn_UnsignedBitwiseAND(1, y, 1, aValue, 1, bValue);
    EXPECT_WORDS(y, {1, 1});
    //! [logical]
}

int main(void) {
    Inversion();
    UnfitOperand();
    Condition();
    LogicalAnd();
    return failureCount;
}
