/* Reals. */
#include "check.h"
#include "top_word.h"

int main(void) {
    //! [vector]
    /* real r;  reg signed [7:0] s = -3;  r = s / 2.0;  s = r; */
    VectorWord s[1] = {{0xfffffffd, 0}};
    double r = tarn_SignedConvertToReal(8, s) / 2.0;
    EXPECT_VALUE(r, -1.5);
    tarn_ConvertToVector(8, s, r);
    EXPECT_WORDS(s, {0xfffffffe, 0}); /* rounded, halves away from zero: -2 */

    /* reg [7:0] n;  n = 1000.0;  n = $rtoi(2.9); */
    VectorWord n[1];
    tarn_ConvertToVector(8, n, 1000.0);
    EXPECT_WORDS(n, {1000, 0}); /* the bits above the width are those of the value */
    ClearAbove(8, n);
    EXPECT_WORDS(n, {232, 0});
    tarn_TruncatedConvertToVector(8, n, 2.9);
    EXPECT_WORDS(n, {2, 0});
    //! [vector]

    //! [math]
    /* r = $sqrt($atan2(0.0, 1.0) + 4.0);  and $clog2(n) for n = 232 */
    double angle;
    tarn_Atan2R(&angle, 1.0, 0.0); /* x comes first here */
    tarn_SqrtR(&r, angle + 4.0);
    EXPECT_VALUE(r, 2.0);
    n[0].aval = 232;
    EXPECT_VALUE(tarn_Clog2(8, n), 8);
    //! [math]
    return failureCount;
}
