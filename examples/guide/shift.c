/* Shifts. */
#include "check.h"
#include "top_word.h"

static void ByNumbers(void) {
    //! [number]
    /* wire [11:0] y = a << 3;  with reg [7:0] a = 8'hb1: shifted in 12 bits */
    VectorWord a[1] = {{0xb1, 0}}, y[1];
    tarn_UnsignedCopy(12, y, 8, a);
    tarn_LogicalShiftLeft(12, y, 12, y, 3);
    EXPECT_WORDS(y, {0x588, 0});
    tarn_LogicalShiftLeft(12, y, 12, y, 4); /* now bits are moved out */
    EXPECT_WORDS(y, {0x5880, 0});
    ClearAbove(12, y);
    EXPECT_WORDS(y, {0x880, 0});
    //! [number]
}

static void SignedOperands(void) {
    //! [signed]
    /* reg signed [7:0] s = -128;  s >>> 3 and s >> 3 */
    VectorWord s[1] = {{0xffffff80, 0}}, y[1];
    tarn_ArithmeticalShiftRight(8, y, 8, s, 3);
    EXPECT_WORDS(y, {0xfffffff0, 0}); /* -16, in signed storage */

    tarn_Partselect(y, s, 0, 8); /* the copies of the sign must not move in: a clean copy */
    tarn_LogicalShiftRight(8, y, 8, y, 3);
    EXPECT_WORDS(y, {0x10, 0});
    //! [signed]
}

//! [vector]
/* y = a >> n;  for reg [39:0] a and a vector n of any width, in clean storage */
static void ShiftRight(VectorWord* y, const VectorWord* a, int nWidth, const VectorWord* n) {
    switch (tarn_ScanShiftCount(nWidth, n)) {
        case 0:
            tarn_LogicalShiftRight(40, y, 40, a, n[0].aval);
            break;
        case 1:
            tarn_LogicalShiftRight(40, y, 40, a, 40);
            break; /* more than any width */
        default:
            tarn_CleanBasedFillX(y, 40, 0);
            break; /* an unknown amount */
    }
}
//! [vector]

static void ByVectors(void) {
    VectorWord a[2] = {{0, 0}, {0x80, 0}}, n[2] = {{36, 0}, {0, 0}}, y[2] = {{0, 0}, {0, 0}};
    //! [vector values]
    ShiftRight(y, a, 64, n); /* 40'h80_0000_0000 >> 36 */
    EXPECT_WORDS(y, {0x8, 0}, {0, 0});
    n[1].aval = 1; /* 2 ** 32 + 36 */
    ShiftRight(y, a, 64, n);
    EXPECT_WORDS(y, {0, 0}, {0, 0});
    n[1].bval = 1;
    ShiftRight(y, a, 64, n);
    EXPECT_WORDS(y, {0xffffffff, 0xffffffff}, {0xff, 0xff});
    //! [vector values]
}

int main(void) {
    ByNumbers();
    SignedOperands();
    ByVectors();
    return failureCount;
}
