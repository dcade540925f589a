/* Part-select writes. */
#include "check.h"
#include "top_word.h"

static void Fields(void) {
    //! [field]
    /* v[38:31] = d;  @(v) must wake up if that changes a bit */
    VectorWord v[2] = {{0, 0}, {0, 0}},
               d[1] = {{0xffffffc3, 0}}; /* above bit 7 d may hold anything */
    int isChanged = tarn_NotIdenticalPartselectAssign(&v[31 >> 5], d, 31 & 31, 8);
    EXPECT_WORDS(v, {0x80000000, 0}, {0x61, 0});
    EXPECT_VALUE(isChanged, 1);
    EXPECT_VALUE(tarn_NotIdenticalPartselectAssign(&v[31 >> 5], d, 31 & 31, 8), 0);
    //! [field]
}

static void IndexedFields(void) {
    //! [indexed]
    /* v[i +: 4] = d;  for reg [7:0] v, integer i = -2 */
    VectorWord v[1] = {{0, 0}}, d[1] = {{0xf, 0}}, i[1] = {{0xfffffffe, 0}};
    if (tarn_SignedScanIndexOfSelect(32, i)) { /* a write at an unknown index is no write */
        tarn_IndexedPartselectAssign(8, v, d, (int)i[0].aval, 4);
    }
    EXPECT_WORDS(v, {0x3, 0});
    //! [indexed]
}

static void SignedTarget(void) {
    //! [signed]
    /* reg signed [7:0] s = 1;  s[7:4] = 4'hf; -- the field has s's top bit */
    VectorWord s[1] = {{0x01, 0}}, d[1] = {{0xf, 0}};
    tarn_PartselectAssign(s, d, 4, 4);
    EXPECT_WORDS(s, {0xf1, 0});
    ExtendAbove(8, s);
    EXPECT_WORDS(s, {0xfffffff1, 0}); /* -15 */
    //! [signed]
}

int main(void) {
    Fields();
    IndexedFields();
    SignedTarget();
    return failureCount;
}
