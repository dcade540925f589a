// Exports: the shifts and the classification of their amounts.
#include <tarnlib/shift.h>

#include "core/contract.h"
#include "shift/shift.h"

#define TARN_REQUIRE_RIGHT_SHIFT(resultWidth, result, sourceWidth, source, amount) \
    TARN_ARGUMENTS(resultWidth, result, sourceWidth, source, amount);              \
    TARN_REQUIRE_AT_LEAST_1(resultWidth);                                          \
    TARN_REQUIRE_AT_LEAST_1(sourceWidth);                                          \
    TARN_REQUIRE_VECTOR(resultWidth, result);                                      \
    TARN_REQUIRE_VECTOR(sourceWidth, source);                                      \
    TARN_REQUIRE_SAME_OR_APART(resultWidth, result, sourceWidth, source)

using namespace tarn;

extern "C" {

void tarn_LogicalShiftLeft(int resultWidth, VectorWord* result, int /*sourceWidth*/,
                           const VectorWord* source, unsigned amount) noexcept {
    TARN_ARGUMENTS(resultWidth, result, source, amount);
    TARN_REQUIRE_AT_LEAST_1(resultWidth);
    TARN_REQUIRE_VECTOR(resultWidth, result);
    TARN_REQUIRE_VECTOR(resultWidth, source);
    TARN_REQUIRE_SAME_OR_APART(resultWidth, result, resultWidth, source);
    ShiftLeft({resultWidth, result}, source, amount);
}

void tarn_LogicalShiftRight(int resultWidth, VectorWord* result, int sourceWidth,
                            const VectorWord* source, unsigned amount) noexcept {
    TARN_REQUIRE_RIGHT_SHIFT(resultWidth, result, sourceWidth, source, amount);
    ShiftRight<ZeroExtend>({resultWidth, result}, {sourceWidth, source}, amount);
}

void tarn_ArithmeticalShiftRight(int resultWidth, VectorWord* result, int sourceWidth,
                                 const VectorWord* source, unsigned amount) noexcept {
    TARN_REQUIRE_RIGHT_SHIFT(resultWidth, result, sourceWidth, source, amount);
    ShiftRight<SignExtend>({resultWidth, result}, {sourceWidth, source}, amount);
}

int tarn_ScanShiftCount(int width, const VectorWord* amount) noexcept {
    TARN_REQUIRE_IN_PLACE(width, amount);
    TARN_REQUIRE_AT_LEAST_1(width);
    TARN_REQUIRE_CLEAN(width, amount);
    return static_cast<int>(ScanShiftAmount({width, amount}));
}

}  // extern "C"
