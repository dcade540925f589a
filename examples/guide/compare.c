/* Equality, case items, order. */
#include "check.h"
#include "top_word.h"

static void Equality(void) {
    //! [equal]
    /* wire y = a == b;  with a = 4'b10x0, b = 4'b1000 */
    VectorWord a[1] = {{0xa, 0x2}}, b[1] = {{0x8, 0}}, y[1];
    y[0] = tarn_LogicVectorLUT[tarn_UnsignedEq(4, a, 4, b)];
    EXPECT_WORDS(y, {1, 1}); /* X */

    a[0].aval |= 0x10; /* a bit above the width, left by an addition, is compared too */
    EXPECT_VALUE(tarn_UnsignedEq(4, a, 4, b), TARN_LOGIC_0);
    ClearAbove(4, a);
    EXPECT_VALUE(tarn_UnsignedEq(4, a, 4, b), TARN_LOGIC_X);
    //! [equal]
}

static void CaseItem(void) {
    //! [case]
    /* casez (code) 4'b1??0: ... */
    VectorWord code[1] = {{0xa, 0}}, item[1] = {{0x8, 0x6}};
    int isMatch = tarn_UnsignedCaseZEq(4, code, 4, item);
    EXPECT_VALUE(isMatch, 1);
    //! [case]
}

static void Order(void) {
    //! [order]
    /* wire y = s >= t;  with signed [7:0] s = -1, t = 1 */
    VectorWord s[1] = {{0xffffffff, 0}}, t[1] = {{1, 0}}, y[1];
    RelationCode relation = tarn_SignedRelation(8, s, 8, t);
    EXPECT_VALUE(relation, TARN_RELATION_LESS);
    LogicCode code = relation == TARN_RELATION_UNKNOWN ? TARN_LOGIC_X
                     : relation == TARN_RELATION_LESS  ? TARN_LOGIC_0
                                                       : TARN_LOGIC_1;
    y[0] = tarn_LogicVectorLUT[code];
    EXPECT_WORDS(y, {0, 0});

    s[0].aval = 0xff; /* without the sign above its 8 bits -1 is 255 */
    EXPECT_VALUE(tarn_SignedRelation(8, s, 8, t), TARN_RELATION_GREATER);
    //! [order]
}

int main(void) {
    Equality();
    CaseItem();
    Order();
    return failureCount;
}
