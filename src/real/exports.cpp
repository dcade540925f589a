// Exports: vectors and reals.
#include <tarnlib/real.h>

#include "core/contract.h"
#include "real/convert.h"

#define TARN_REQUIRE_STORE(width, result, value) \
    TARN_ARGUMENTS(width, result, value);        \
    TARN_REQUIRE(width >= 1);                    \
    TARN_REQUIRE(IsVector(width, result))

#define TARN_REQUIRE_VALUE(width, v) \
    TARN_ARGUMENTS(width, v);        \
    TARN_REQUIRE(width >= 1);        \
    TARN_REQUIRE(IsVector(width, v))

using namespace tarn;

extern "C" {

void tarn_ConvertToVector(int width, VectorWord* result, double value) noexcept {
    TARN_REQUIRE_STORE(width, result, value);
    StoreRounded({width, result}, value);
}

void tarn_TruncatedConvertToVector(int width, VectorWord* result, double value) noexcept {
    TARN_REQUIRE_STORE(width, result, value);
    StoreTruncated({width, result}, value);
}

double tarn_UnsignedConvertToReal(int width, const VectorWord* v) noexcept {
    TARN_REQUIRE_VALUE(width, v);
    return ToReal<ZeroExtend>({width, v});
}

double tarn_SignedConvertToReal(int width, const VectorWord* v) noexcept {
    TARN_REQUIRE_VALUE(width, v);
    return ToReal<SignExtend>({width, v});
}

}  // extern "C"
