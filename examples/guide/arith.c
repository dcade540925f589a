/* Arithmetic. */
#include "check.h"
#include "top_word.h"

static void Sum(void) {
    //! [sum]
    /* wire [39:0] sum = a + b; */
    VectorWord a[2] = {{0xffffffff, 0}, {0xff, 0}}, b[1] = {{1, 0}}, sum[2];
    tarn_UnsignedAdd(40, sum, 40, a, 8, b);
    EXPECT_WORDS(sum, {0, 0}, {0x100, 0}); /* the carry out of bit 39 is in the top word */
    ClearAbove(40, sum);
    EXPECT_WORDS(sum, {0, 0}, {0, 0});
    //! [sum]

    //! [unknown]
    b[0].bval = 0x100; /* above b's 8 bits, and yet unknown */
    tarn_UnsignedAdd(40, sum, 40, a, 8, b);
    EXPECT_WORDS(sum, {0xffffffff, 0xffffffff}, {0xffffffff, 0xffffffff});
    ClearAbove(40, sum); /* 40 bits of X, with zeros above them */
    EXPECT_WORDS(sum, {0xffffffff, 0xffffffff}, {0xff, 0xff});
    //! [unknown]
}

static void Quotient(void) {
    //! [quotient]
    /* reg signed [7:0] s = -7, q;  q = s / 2; */
    VectorWord s[1] = {{0xfffffff9, 0}}, two[1] = {{2, 0}}, q[1];
    tarn_SignedDiv(8, q, 8, s, 32, two);
    EXPECT_WORDS(q, {0xfffffffd, 0}); /* -3 */

    s[0].aval = 0xf9; /* the same 8 bits without the sign above them are 249 */
    tarn_SignedDiv(8, q, 8, s, 32, two);
    EXPECT_WORDS(q, {124, 0});
    //! [quotient]
}

static void Power(void) {
    //! [power]
    /* wire signed [39:0] y = b ** e;  reg signed [7:0] b = -3;  reg [7:0] e = 3; */
    VectorWord b[1] = {{0xfffffffd, 0}}, e[1] = {{3, 0}}, y[2];
    tarn_SignedUPower(40, y, 8, b, 8, e);
    EXPECT_WORDS(y, {0xffffffe5, 0}, {0xffffffff, 0}); /* -27 */

    /* reg signed [7:0] e = -1;  -- 1 divided by a number that is not 1 or -1 */
    e[0].aval = 0xffffffff;
    tarn_SignedSPower(40, y, 8, b, 8, e);
    EXPECT_WORDS(y, {0, 0}, {0, 0});
    //! [power]
}

static void Product(void) {
    //! [product]
    /* wire [63:0] y = a * b + c; -- the product in scratch space, and from there into the sum */
    VectorWord a[2] = {{0xffffffff, 0}, {0, 0}}, b[2] = {{3, 0}, {0, 0}}, c[2] = {{5, 0}, {0, 0}};
    VectorWord y[2];
    VectorWord* product = tarn_VectorRegister;
    tarn_UnsignedMul(64, y, 64, a, 64, b);
    EXPECT_WORDS(y, {0xfffffffd, 0}, {2, 0});
    tarn_UnsignedCopy(64, product, 64, y); /* no multiplication or division runs from here ... */
    tarn_UnsignedAdd(64, y, 64, product, 64, c); /* ... to here */
    EXPECT_WORDS(y, {2, 0}, {3, 0});
    //! [product]
}

static void Step(void) {
    //! [step]
    /* reg [7:0] n = 255;  n = n + 1; */
    VectorWord n[1] = {{0xff, 0}};
    tarn_Inc(8, n);
    EXPECT_WORDS(n, {0x100, 0});
    ClearAbove(8, n);
    EXPECT_WORDS(n, {0, 0});
    //! [step]
}

int main(void) {
    Sum();
    Quotient();
    Power();
    Product();
    Step();
    return failureCount;
}
