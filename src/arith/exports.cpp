// Exports: the operators + and - with two operands and with one, increment and decrement.
#include <tarnlib/arith.h>

#include "arith/add.h"
#include "core/contract.h"

using namespace tarn;

extern "C" {

void tarn_SignedAdd(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                    int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<Add, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedAdd(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                      int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<Add, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedSub(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                    int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<Subtract, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedSub(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                      int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<Subtract, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedMinus(int resultWidth, VectorWord* result, int aWidth,
                      const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Negate<SignExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_UnsignedMinus(int resultWidth, VectorWord* result, int aWidth,
                        const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Negate<ZeroExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_SignedPlus(int resultWidth, VectorWord* result, int aWidth,
                     const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Plus<SignExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_UnsignedPlus(int resultWidth, VectorWord* result, int aWidth,
                       const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Plus<ZeroExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_Inc(int width, VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    Step({width, v}, 1U);
}

void tarn_Dec(int width, VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    Step({width, v}, ~0U);
}

}  // extern "C"
