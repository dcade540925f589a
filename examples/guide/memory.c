/* Words of memories. */
#include "check.h"

static void Words(void) {
    //! [words]
    /* reg [9:0] mem [0:3];  a word of 10 bits takes 2 * ((10 + 7) >> 3) = 4 bytes */
    enum { kWidth = 10, kBytes = 4 };
    uint8_t mem[4 * kBytes];
    memset(mem, 0xff, sizeof(mem)); /* all X, spare bits set */

    /* mem[2] = d;  with d = 10'b10_1010_010x */
    VectorWord d[1] = {{0x2a5, 0x1}};
    tarn_MemoryWordAssign(kWidth, &mem[2 * kBytes], d);
    EXPECT_VALUE(mem[8], 0xa5);
    EXPECT_VALUE(mem[9], 0x02);
    EXPECT_VALUE(mem[10], 0x01);
    EXPECT_VALUE(mem[11], 0x00);

    /* wire [39:0] y = mem[2];  wire signed [39:0] s = $signed(mem[2]); */
    VectorWord y[2], s[2];
    tarn_UnsignedCopyMemoryValue(40, y, kWidth, &mem[2 * kBytes], -kWidth & 31);
    EXPECT_WORDS(y, {0x2a5, 0x1}, {0, 0});
    tarn_SignedCopyMemoryValue(40, s, kWidth, &mem[2 * kBytes], -kWidth & 31);
    EXPECT_WORDS(s, {0xfffffea5, 0x1}, {0xffffffff, 0});
    //! [words]
}

static void Fields(void) {
    //! [fields]
    /* reg [39:0] mem [0:1];  mem[1][35:28] = 8'hff;  y = mem[1][39:32]; */
    enum { kWidth = 40, kBytes = 10 };
    uint8_t mem[2 * kBytes] = {0};
    VectorWord d[1] = {{0xff, 0}}, y[1];
    int isChanged = tarn_NotIdenticalMemoryWordPartselectAssign(kWidth, &mem[1 * kBytes], d, 28, 8);
    EXPECT_VALUE(isChanged, 1);
    EXPECT_WORDS(tarn_VectorRegister, {0xf0000000, 0}, {0xf, 0}); /* the memory word, unpacked */
    tarn_MemoryWordPartselect(y, kWidth, &mem[1 * kBytes], 32, 8);
    EXPECT_WORDS(y, {0xf, 0});
    //! [fields]
}

static void NarrowFields(void) {
    //! [narrow]
    /* reg [7:0] mem [0:3];  mem[0][i +: 4] = 4'hf;  with i = 6; no register is touched */
    uint8_t mem[4 * 2] = {0};
    VectorWord d[1] = {{0xf, 0}};
    tarn_MemoryWordIndexedPartselectAssign1(8, &mem[0], d, 6, 4);
    EXPECT_VALUE(mem[0], 0xc0);
    //! [narrow]
}

int main(void) {
    Words();
    Fields();
    NarrowFields();
    return failureCount;
}
