// Exports: the shifts and the classification of their amounts.
#include <tarnlib/shift.h>

#include "core/contract.h"
#include "shift/shift.h"

using namespace tarn;

extern "C" {

void tarn_LogicalShiftLeft(int resultWidth, VectorWord* result, int /*sourceWidth*/,
                           const VectorWord* source, unsigned amount) noexcept {
    TARN_ARGUMENTS(resultWidth, result, source, amount);
    TARN_REQUIRE(resultWidth >= 1);
    TARN_REQUIRE(IsVector(resultWidth, result) && IsVector(resultWidth, source));
    TARN_REQUIRE(AreSameOrApart(resultWidth, result, resultWidth, source));
    ShiftLeft({resultWidth, result}, source, amount);
}

void tarn_LogicalShiftRight(int resultWidth, VectorWord* result, int sourceWidth,
                            const VectorWord* source, unsigned amount) noexcept {
    TARN_ARGUMENTS(resultWidth, result, sourceWidth, source, amount);
    TARN_REQUIRE(resultWidth >= 1 && sourceWidth >= 1);
    TARN_REQUIRE(IsVector(resultWidth, result) && IsVector(sourceWidth, source));
    TARN_REQUIRE(AreSameOrApart(resultWidth, result, sourceWidth, source));
    ShiftRight<ZeroExtend>({resultWidth, result}, {sourceWidth, source}, amount);
}

void tarn_ArithmeticalShiftRight(int resultWidth, VectorWord* result, int sourceWidth,
                                 const VectorWord* source, unsigned amount) noexcept {
    TARN_ARGUMENTS(resultWidth, result, sourceWidth, source, amount);
    TARN_REQUIRE(resultWidth >= 1 && sourceWidth >= 1);
    TARN_REQUIRE(IsVector(resultWidth, result) && IsVector(sourceWidth, source));
    TARN_REQUIRE(AreSameOrApart(resultWidth, result, sourceWidth, source));
    ShiftRight<SignExtend>({resultWidth, result}, {sourceWidth, source}, amount);
}

int tarn_ScanShiftCount(int width, const VectorWord* amount) noexcept {
    TARN_ARGUMENTS(width, amount);
    TARN_REQUIRE(width >= 1);
    TARN_REQUIRE(IsVector(width, amount));
    return static_cast<int>(ScanShiftAmount({width, amount}));
}

}  // extern "C"
