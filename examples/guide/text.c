/* Text in both directions, literals. */
#include <stdlib.h>

#include "check.h"

static void Display(void) {
    //! [display]
    /* $display("%h %0d", a, s);  with a = 8'bzzzz_1010, reg signed [7:0] s = -5 */
    VectorWord a[1] = {{0x0a, 0xf0}}, s[1] = {{0xfffffffb, 0}};
    char hex[2 + 1]; /* 8 bits are two digits */
    strcpy(hex, tarn_ConvertToHex(8, a, -1));
    const char* decimal =
        tarn_SignedConvertToDec(8, s, 0, 0); /* the buffer's text is this one now */
    EXPECT_TEXT(hex, "za");
    EXPECT_TEXT(decimal, "-5");
    //! [display]

    //! [one bit]
    /* $display("%b", a == 8'h0a); */
    VectorWord b[1] = {{0x0a, 0}};
    EXPECT_TEXT(tarn_ConvertToBin0(tarn_UnsignedEq(8, a, 8, b)), "x");
    //! [one bit]
}

static void Digits(void) {
    //! [digits]
    /* $value$plusargs("mask=%h", v);  with reg [11:0] v and +mask=x_f0 */
    VectorWord v[1];
    tarn_HexStringToVector(12, v, "x_f0");
    EXPECT_WORDS(v, {0xff0, 0xf00}); /* clean */

    /* v = "AB"; */
    tarn_AssignStringToVector(12, v, 2, "AB");
    EXPECT_WORDS(v, {0x142, 0}); /* of 16'h4142 the low 12 bits, clean */
    //! [digits]
}

//! [literal]
static void* Allocate(uint64_t byteCount) {
    return malloc(byteCount);
}
//! [literal]

static void Literals(void) {
    //! [literal values]
    /* 12'shx1, as the compiler read it */
    int width = 0;
    VectorWord* value = NULL;
    unsigned char isTruncated = 0;
    bool isSigned = tarn_CreateVector("12", "'shx1", &width, &value, Allocate, &isTruncated);
    EXPECT_VALUE(width, 12);
    EXPECT_VALUE(isSigned, true);
    EXPECT_VALUE(isTruncated, 0);
    EXPECT_WORDS(value,
                 {0xff1, 0xff0}); /* clean: for a signed operand it is still to be extended */
    free(value);
    //! [literal values]
}

int main(void) {
    Display();
    Digits();
    Literals();
    return failureCount;
}
