/* Part-select reads, concatenation, rewriting. */
#include "check.h"
#include "top_word.h"

static void Fields(void) {
    //! [field]
    /* wire [7:0] y = v[38:31];  wire signed [39:0] w = $signed(v[38:31]); */
    VectorWord v[2] = {{0x80000000, 0}, {0xff, 0x40}}, y[1], w[2];
    tarn_Partselect(y, &v[31 >> 5], 31 & 31, 8);
    EXPECT_WORDS(y, {0xff, 0x80}); /* x1111111, clean */
    tarn_SignedPartselect(40, w, &v[31 >> 5], 31 & 31, 8);
    EXPECT_WORDS(w, {0xffffffff, 0xffffff80}, {0xffffffff, 0xffffffff}); /* the sign is X */
    //! [field]
}

//! [indexed]
/* y = v[i +: 8];  for reg [39:0] v and a vector i of any width */
static void ReadByte(VectorWord* y, const VectorWord* v, int iWidth, const VectorWord* i) {
    if (tarn_UnsignedScanIndexOfSelect(iWidth, i)) {
        tarn_IndexedPartselect(y, 40, v, (int)i[0].aval, 8);
    } else {
        tarn_CleanBasedFillX(y, 8, 0); /* an unknown index reads as X */
    }
}
//! [indexed]

static void IndexedFields(void) {
    VectorWord v[2] = {{0, 0}, {0x5a, 0}}, i[2] = {{36, 0}, {0, 0}}, y[1] = {{0, 0}};
    //! [indexed values]
    ReadByte(y, v, 64, i); /* v[36 +: 8] of 40 bits */
    EXPECT_WORDS(y, {0xf5, 0xf0});
    i[1].bval = 1; /* i is unknown */
    ReadByte(y, v, 64, i);
    EXPECT_WORDS(y, {0xff, 0xff});
    //! [indexed values]
}

static void Concatenation(void) {
    //! [concatenation]
    /* wire [47:0] y = {a, b};  reg [7:0] a = 8'h12;  reg [39:0] b = 40'h34_5678_9abc; */
    VectorWord a[1] = {{0x12, 0}}, b[2] = {{0x56789abc, 0}, {0x34, 0}};
    VectorWord y[2] = {{0, 0}, {0, 0}};    /* words are ORed into */
    tarn_ConcatenateShifted(40, &y[0], b); /* b stands in y as it stands itself */
    tarn_Concatenate(16, &y[1], 8, a, 8);  /* a from bit 40 of y on: bit 8 of word 1 */
    EXPECT_WORDS(y, {0x56789abc, 0}, {0x1234, 0});
    //! [concatenation]
}

static void Rewriting(void) {
    //! [rewrite]
    /* An open-drain bus of 8 bits: what is not driven to 0 floats. */
    VectorWord v[1] = {{0x0f, 0}};
    tarn_Convert1ToZ(8, v);
    EXPECT_WORDS(v, {0, 0x0f});

    /* The other way round the zeros above the width change as well. */
    v[0] = (VectorWord){0x0f, 0};
    tarn_Convert0ToZ(8, v);
    EXPECT_WORDS(v, {0x0f, 0xfffffff0});
    ClearAbove(8, v);
    EXPECT_WORDS(v, {0x0f, 0xf0});
    //! [rewrite]
}

int main(void) {
    Fields();
    IndexedFields();
    Concatenation();
    Rewriting();
    return failureCount;
}
