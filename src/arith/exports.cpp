// Exports: the arithmetic operators, increment and decrement.
#include <tarnlib/arith.h>

#include "arith/add.h"
#include "arith/power.h"
#include "arith/product.h"
#include "arith/quotient.h"
#include "arith/scratch.h"
#include "core/contract.h"

// The shared register belongs to these operations during the call; only the first operand of a
// product or a power may lie in it.
#define TARN_REQUIRE_PRODUCT(resultWidth, result, aWidth, a, bWidth, b)   \
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b); \
    TARN_REQUIRE_AT_MOST(resultWidth, kMaxProductWidth);                  \
    TARN_REQUIRE_OUTSIDE_REGISTER(bWidth, b)

#define TARN_REQUIRE_POWER(resultWidth, result, aWidth, a, bWidth, b) \
    TARN_REQUIRE_PRODUCT(resultWidth, result, aWidth, a, bWidth, b);  \
    TARN_REQUIRE_AT_MOST(bWidth, kMaxExponentWidth)

#define TARN_REQUIRE_QUOTIENT(resultWidth, result, aWidth, a, bWidth, b)  \
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b); \
    TARN_REQUIRE_AT_MOST(resultWidth, kMaxQuotientWidth);                 \
    TARN_REQUIRE_AT_MOST(aWidth, kMaxQuotientWidth);                      \
    TARN_REQUIRE_AT_MOST(bWidth, kMaxDivisorWidth);                       \
    TARN_REQUIRE_OUTSIDE_REGISTER(aWidth, a);                             \
    TARN_REQUIRE_OUTSIDE_REGISTER(bWidth, b)

using namespace tarn;

extern "C" {

void tarn_SignedAdd(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                    int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<Addition, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedAdd(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                      int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<Addition, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedSub(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                    int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<Subtraction, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedSub(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                      int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<Subtraction, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
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

void tarn_SignedMul(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                    int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_PRODUCT(resultWidth, result, aWidth, a, bWidth, b);
    Multiply<SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedMul(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                      int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_PRODUCT(resultWidth, result, aWidth, a, bWidth, b);
    Multiply<ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedDiv(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                    int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_QUOTIENT(resultWidth, result, aWidth, a, bWidth, b);
    Divide<SignExtend, Wanted::kQuotient>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedDiv(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                      int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_QUOTIENT(resultWidth, result, aWidth, a, bWidth, b);
    Divide<ZeroExtend, Wanted::kQuotient>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedMod(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                    int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_QUOTIENT(resultWidth, result, aWidth, a, bWidth, b);
    Divide<SignExtend, Wanted::kRemainder>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedMod(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                      int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_QUOTIENT(resultWidth, result, aWidth, a, bWidth, b);
    Divide<ZeroExtend, Wanted::kRemainder>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedUPower(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                       int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_POWER(resultWidth, result, aWidth, a, bWidth, b);
    PowerUnsigned<SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedUPower(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                         int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_POWER(resultWidth, result, aWidth, a, bWidth, b);
    PowerUnsigned<ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedSPower(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                       int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_POWER(resultWidth, result, aWidth, a, bWidth, b);
    PowerSigned<SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedSPower(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                         int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_POWER(resultWidth, result, aWidth, a, bWidth, b);
    PowerSigned<ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

}  // extern "C"
