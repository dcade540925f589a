// A program of a user who installed the library and found it by CMake.
#include <cstring>

#include <tarnlib.h>

int main() {
    VectorWord sum[2];
    const VectorWord a[2] = {{0xFFFFFFFF, 0}, {0xFF, 0}};
    tarn_UnsignedAdd(40, sum, 40, a, 1, &tarn_LogicVectorLUT[TARN_LOGIC_X]);
    const bool isSumRight = std::strcmp(tarn_ConvertToHex(40, sum, -1), "xxxxxxxxxx") == 0;
    const bool isVersionRight = std::strcmp(TARNLIB_VERSION_STRING, PACKAGE_VERSION) == 0;
    return isSumRight && isVersionRight ? 0 : 1;
}
