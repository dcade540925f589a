// Exports: vectors and reals, real functions, clog2.
#include <cmath>
#include <limits>

#include <tarnlib/real.h>

#include "core/contract.h"
#include "real/clog2.h"
#include "real/convert.h"

#define TARN_REQUIRE_STORE(width, result, value) \
    TARN_ARGUMENTS(width, result, value);        \
    TARN_REQUIRE_AT_LEAST_1(width);              \
    TARN_REQUIRE_VECTOR(width, result)

#define TARN_REQUIRE_VALUE(width, v) \
    TARN_REQUIRE_IN_PLACE(width, v); \
    TARN_REQUIRE_AT_LEAST_1(width)

#define TARN_REQUIRE_REAL(result, ...)   \
    TARN_ARGUMENTS(result, __VA_ARGS__); \
    TARN_REQUIRE_OBJECT(result)

using namespace tarn;

namespace {

// Outside their domains these two don't ask the math library. A NaN fails each comparison and
// passes through it.
double GuardedAcosh(double x) noexcept {
    return 1.0 > x ? std::numeric_limits<double>::quiet_NaN() : std::acosh(x);
}

double GuardedAtanh(double x) noexcept {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    if (x >= 1.0) return kInfinity;
    return x <= -1.0 ? -kInfinity : std::atanh(x);
}

}  // namespace

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

int tarn_Clog2(int width, const VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    return CeilingLog2({width, v});
}

void tarn_AcosR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::acos(x);
}

void tarn_AcoshR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = GuardedAcosh(x);
}

void tarn_AsinR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::asin(x);
}

void tarn_AsinhR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::asinh(x);
}

void tarn_AtanR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::atan(x);
}

void tarn_Atan2R(double* result, double x, double y) noexcept {
    TARN_REQUIRE_REAL(result, x, y);
    *result = std::atan2(y, x);
}

void tarn_AtanhR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = GuardedAtanh(x);
}

void tarn_CeilR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::ceil(x);
}

void tarn_CosR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::cos(x);
}

void tarn_CoshR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::cosh(x);
}

void tarn_ExpR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::exp(x);
}

void tarn_FloorR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::floor(x);
}

void tarn_HypotR(double* result, double x, double y) noexcept {
    TARN_REQUIRE_REAL(result, x, y);
    *result = std::hypot(x, y);
}

void tarn_LnR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::log(x);
}

void tarn_Log10R(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::log10(x);
}

void tarn_PowerR(double* result, double x, double y) noexcept {
    TARN_REQUIRE_REAL(result, x, y);
    *result = std::pow(x, y);
}

void tarn_SinR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::sin(x);
}

void tarn_SinhR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::sinh(x);
}

void tarn_SqrtR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::sqrt(x);
}

void tarn_TanR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::tan(x);
}

void tarn_TanhR(double* result, double x) noexcept {
    TARN_REQUIRE_REAL(result, x);
    *result = std::tanh(x);
}

}  // extern "C"
