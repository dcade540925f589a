/* What generated code does for sum = a + b; $display("%h", sum);
 * with a and b of 40 bits. */
#include <stdio.h>

#include <tarnlib.h>

int main(void) {
    VectorWord a[2], b[2], sum[2];
    tarn_HexStringToVector(40, a, "ff_ffff_fff0");
    tarn_UnsignedConvert(40, b, 0x0f);
    tarn_UnsignedAdd(40, sum, 40, a, 40, b);
    printf("%s\n", tarn_ConvertToHex(40, sum, -1)); /* ffffffffff */

    b[0].bval = 1; /* bit 0 of b is X now, and so is every bit of the sum */
    tarn_UnsignedAdd(40, sum, 40, a, 40, b);
    printf("%s\n", tarn_ConvertToHex(40, sum, -1)); /* xxxxxxxxxx */
    return 0;
}
