/* Copies, machine values, codes. */
#include "check.h"
#include "top_word.h"

static void Copies(void) {
    //! [copy]
    /* reg signed [7:0] s = -128;  reg signed [39:0] w;  w = s; */
    VectorWord s[1] = {{0xffffff80, 0}}, w[2];
    tarn_SignedCopy(40, w, 8, s);
    EXPECT_WORDS(w, {0xffffff80, 0}, {0xffffffff, 0});

    /* reg [7:0] n;  n = w; -- the low words come whole, so the rest of w is cleared away */
    VectorWord n[1];
    tarn_UnsignedCopy(8, n, 40, w);
    EXPECT_WORDS(n, {0xffffff80, 0});
    ClearAbove(8, n);
    EXPECT_WORDS(n, {0x80, 0});
    //! [copy]
}

static void MachineValues(void) {
    //! [integer]
    /* reg signed [69:0] w;  w = -1; */
    VectorWord w[3];
    tarn_SignedConvert(70, w, -1);
    EXPECT_WORDS(w, {0xffffffff, 0}, {0xffffffff, 0}, {0xffffffff, 0});

    /* reg [7:0] n;  n = 300; -- word 0 takes all 32 bits */
    VectorWord n[1];
    tarn_UnsignedConvert(8, n, 300);
    EXPECT_WORDS(n, {300, 0});
    ClearAbove(8, n);
    EXPECT_WORDS(n, {44, 0});
    //! [integer]
}

static void Codes(void) {
    //! [one bit]
    /* wire y = a[2];  with a = 4'b0z01 */
    VectorWord a[1] = {{0x1, 0x4}}, y[1];
    LogicCode code = tarn_BitValue(4, a, 2);
    EXPECT_VALUE(code, TARN_LOGIC_Z);
    y[0] = tarn_LogicVectorLUT[code]; /* tarn_LogicSignedVectorLUT where y is signed */
    EXPECT_WORDS(y, {0, 1});
    //! [one bit]
}

int main(void) {
    Copies();
    MachineValues();
    Codes();
    return failureCount;
}
