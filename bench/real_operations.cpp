// Conversion between vectors and reals, and math functions.
#include <cmath>

#include <tarnlib.h>

#include "families.h"
#include "ladders.h"

namespace tarn::bench {
namespace {

// What the constants that are converted to vectors round to, and what is left of them.
constexpr Contestant kThree = WritesLimbs<LimbOfValue<3>>("value");
constexpr Contestant kTwo = WritesLimbs<LimbOfValue<2>>("value");

// Rounds up where the first bit that a double has no place for is set.
double NearestReal(const mp_limb_t* limbs, mp_size_t count) {
    constexpr std::size_t kPrecision = 53;
    mpz_t alias;
    const mpz_srcptr value = mpz_roinit_n(alias, limbs, count);
    const std::size_t bits = mpz_sizeinbase(value, 2);
    if (bits <= kPrecision) return mpz_get_d(value);
    const std::size_t dropped = bits - kPrecision;
    mpz_t kept;
    mpz_init(kept);
    mpz_tdiv_q_2exp(kept, value, dropped);
    mpz_add_ui(kept, kept, static_cast<unsigned>(mpz_tstbit(value, dropped - 1)));
    const double real = std::ldexp(mpz_get_d(kept), static_cast<int>(dropped));
    mpz_clear(kept);
    return real;
}

double RealOfLimbs(const Operands& o) {
    return NearestReal(o.aLimbs, o.limbCount);
}

// The top bit of every known operand is set.
double NegativeRealOfLimbs(const Operands& o) {
    mpn_neg(o.otherResultLimbs, o.aLimbs, o.limbCount);
    return -NearestReal(o.otherResultLimbs, o.limbCount);
}

// An odd number with its top bit set is above that power of two, but for 1.
int BitsOfOdd(const Operands& o) {
    return o.width == 1 ? 0 : o.width;
}

template <int kValue>
double RightReal(const Operands&) {
    return static_cast<double>(kValue);
}
template <int kValue>
constexpr Contestant kRightReal = ReturnsReal<RightReal<kValue>>("given");

template <void (*kExport)(double*, double), double (*kFunction)(double), int kArgument = kBelowOne>
Operation OfOne(const char* name) {
    const Contestant math = kMath<kFunction, kArgument>;
    return {name, kUnsigned, kWritesReal<OfReal<kExport, kArgument>>, math, MathAndCalls(math)};
}

template <void (*kExport)(double*, double, double), double (*kFunction)(double, double)>
Operation OfTwo(const char* name) {
    const Contestant math = kMathOfTwo<kFunction>;
    return {name, kUnsigned, kWritesReal<OfTwoReals<kExport>>, math, MathAndCalls(math)};
}

double Atan2(double x, double y) {
    return std::atan2(y, x);
}

std::vector<Operation> Conversions() {
    return {
        {"ConvertToVector", kUnsigned, kWords<VectorOfReal<tarn_ConvertToVector, kAboveOne>>,
         kThree, kConvertReal},
        {"TruncatedConvertToVector", kUnsigned,
         kWords<VectorOfReal<tarn_TruncatedConvertToVector, kAboveOne>>, kTwo, kConvertReal},
        {"UnsignedConvertToReal", kUnsigned, kReal<Read<tarn_UnsignedConvertToReal>>,
         ReturnsReal<RealOfLimbs>("GMP"), kConvertReal},
        {"SignedConvertToReal", kSigned, kReal<Read<tarn_SignedConvertToReal>>,
         ReturnsReal<NegativeRealOfLimbs>("GMP"), kConvertReal},
        {"UnsignedConvertToRealOfZeros", kAllZeros, kReal<Read<tarn_UnsignedConvertToReal>>,
         kRightReal<0>, kReadAll},
        {"SignedConvertToRealOfOnes", kAllOnes, kReal<Read<tarn_SignedConvertToReal>>,
         kRightReal<-1>, kReadAll},
        {"Clog2", kEqual, kCode<Read<tarn_Clog2>>, ReturnsCode<BitsOfOdd>("given"), kReadAll},
        {"Clog2OfZeros", kAllZeros, kCode<Read<tarn_Clog2>>, kRightCode<0>, kReadAll},
    };
}

std::vector<Operation> MathFunctions() {
    return {
        OfOne<tarn_AcosR, std::acos>("AcosR"),
        OfOne<tarn_AcoshR, std::acosh, kAboveOne>("AcoshR"),
        OfOne<tarn_AsinR, std::asin>("AsinR"),
        OfOne<tarn_AsinhR, std::asinh>("AsinhR"),
        OfOne<tarn_AtanR, std::atan>("AtanR"),
        OfTwo<tarn_Atan2R, Atan2>("Atan2R"),
        OfOne<tarn_AtanhR, std::atanh>("AtanhR"),
        OfOne<tarn_CeilR, std::ceil>("CeilR"),
        OfOne<tarn_CosR, std::cos>("CosR"),
        OfOne<tarn_CoshR, std::cosh>("CoshR"),
        OfOne<tarn_ExpR, std::exp>("ExpR"),
        OfOne<tarn_FloorR, std::floor>("FloorR"),
        OfTwo<tarn_HypotR, std::hypot>("HypotR"),
        OfOne<tarn_LnR, std::log>("LnR"),
        OfOne<tarn_Log10R, std::log10>("Log10R"),
        OfTwo<tarn_PowerR, std::pow>("PowerR"),
        OfOne<tarn_SinR, std::sin>("SinR"),
        OfOne<tarn_SinhR, std::sinh>("SinhR"),
        OfOne<tarn_SqrtR, std::sqrt>("SqrtR"),
        OfOne<tarn_TanR, std::tan>("TanR"),
        OfOne<tarn_TanhR, std::tanh>("TanhR"),
    };
}

}  // namespace

std::vector<Operation> RealOperations() {
    std::vector<Operation> operations = Conversions();
    const std::vector<Operation> functions = MathFunctions();
    operations.insert(operations.end(), functions.begin(), functions.end());
    return operations;
}

}  // namespace tarn::bench
