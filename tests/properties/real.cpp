// Machine numbers and reals as vectors, vectors as reals, real functions, clog2.
#include <bit>
#include <cfenv>
#include <limits>

#include <tarnlib/real.h>

#include "families.h"

namespace tarn::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/*------------------------------------------------------------------------------------------------
 * Vectors from machine numbers and reals
 *----------------------------------------------------------------------------------------------*/

// A number modulo the storage's size, which is one word at least.
Vec Stored(int width, const Integer& value) {
    Vec vec = FromInteger(std::max(width, 1), value);
    vec.width = width;
    return vec;
}

template <class Value>
Vec IntegerValue(int width, Value value) {
    return Stored(width, Integer(value));
}
Vec Pattern(int width, double value) {
    return Stored(width, Integer(std::bit_cast<std::uint64_t>(value)));
}
Vec ShortPattern(int width, double value) {
    return Stored(width, Integer(std::bit_cast<std::uint32_t>(static_cast<float>(value))));
}

// Where halves are added as doubles are; what is no number counts as one with the exponent that its
// field names.
Vec RoundedValue(int width, double value) {
    const double whole = value >= 0 ? value + 0.5 : value - 0.5;
    if (std::isfinite(whole)) return FromInteger(width, Integer(whole));
    const std::uint64_t fraction = std::bit_cast<std::uint64_t>(whole) << 12 >> 12;
    const Integer magnitude = Integer(fraction | std::uint64_t{1} << 52) * PowerOfTwo(2047 - 1075);
    return FromInteger(width, std::signbit(whole) ? Integer(-magnitude) : magnitude);
}
Vec TruncatedValue(int width, double value) {
    double whole = 0;
    std::modf(value, &whole);
    return RoundedValue(width, whole);
}

using Scalar = std::tuple<Width, double>;

template <class Value>
std::tuple<Width, Value> DrawNumber(Gen& gen) {
    const std::vector<VectorWord> words = ToWords(gen.Vector(64));
    return {gen.AnyWidth(), static_cast<Value>(words[0].aval | std::uint64_t{words[1].aval} << 32)};
}

// Any bits, but for NaNs that signal: what the processor makes of those is not ours to say.
double DrawWithExponent(Gen& gen, int least, int most) {
    const auto exponent = static_cast<std::uint64_t>(gen.Between(least, most) + 1023);
    const std::uint64_t fraction = gen.OneIn(2) ? gen.Bits() : gen.Bits() << gen.Below(52);
    const std::uint64_t bits = gen.Bits() >> 63 << 63 | exponent << 52 | fraction >> 12;
    const double value = std::bit_cast<double>(bits);
    return std::isnan(value) ? std::bit_cast<double>(bits | std::uint64_t{1} << 51) : value;
}

double DrawReal(Gen& gen) {
    constexpr double kEdges[] = {0.0,    0.5,    1.0,   2.5,       0x1p31,
                                 0x1p52, 0x1p63, 1e300, kInfinity, kNaN};
    switch (gen.Below(8)) {
        case 0: {
            const double edge = gen.Pick(kEdges), toward[] = {edge, 0.0, kInfinity};
            const double magnitude = std::nextafter(edge, gen.Pick(toward));
            return gen.OneIn(2) ? magnitude : -magnitude;
        }
        case 1:
            return DrawWithExponent(gen, -1023, 1024);
        case 2:
        case 3:
            return DrawWithExponent(gen, -9, 9);
        default:
            return DrawWithExponent(gen, -2, 130);
    }
}

// Half of the values lie where single precision has its numbers and its ties.
Scalar DrawPattern(Gen& gen) {
    const int width = gen.AnyWidth();
    return {width, gen.OneIn(2) ? DrawWithExponent(gen, -153, 147) : DrawReal(gen)};
}

Scalar DrawConverted(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    return {gen.OneIn(8) ? gen.Between(960, 1200) : width, DrawReal(gen)};
}

/*------------------------------------------------------------------------------------------------
 * Reals from vectors
 *----------------------------------------------------------------------------------------------*/

// X and Z bits are 0, the sign's too.
double UnsignedReal(const Vec& v) {
    return Nearest(ToInteger(v));
}
double SignedReal(const Vec& v) {
    if (v.width < 1) return 0;
    const auto width = static_cast<std::size_t>(v.width);
    const bool isNegative = v.bits[width - 1] == Logic::k1;
    if (!isNegative && width > 32) return UnsignedReal(v);
    const Integer value = LowBits(ToInteger(v), width);
    return Nearest(isNegative ? Integer(value - PowerOfTwo(width)) : value);
}

// The same whatever rounding the caller has chosen; else a number that no model gives.
template <double (*function)(int, const VectorWord*)>
double InEveryRounding(int width, const VectorWord* v) {
    const double nearest = function(width, v);
    bool isSame = true;
    for (const int rounding : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        std::fesetround(rounding);
        isSame = isSame && std::bit_cast<std::uint64_t>(function(width, v)) ==
                               std::bit_cast<std::uint64_t>(nearest);
    }
    std::fesetround(FE_TONEAREST);
    return isSame ? nearest : kNaN;
}

// A value with its highest bit anywhere, 54 bits from there on that lie at or beside a rounding
// boundary, and below them nothing, ones alone, one bit or a run of ones: what a carry can pass.
Integer DrawAtBoundary(Gen& gen, int width) {
    const std::uint64_t leading = (gen.OneIn(3) ? ~std::uint64_t{0} : gen.Bits()) >> 10;
    Integer value = (leading ^ static_cast<unsigned>(gen.Below(4))) | std::uint64_t{1} << 53;
    const int below = gen.Between(1, width) - 54;
    if (below <= 0) return value / PowerOfTwo(-below);
    const Integer end = PowerOfTwo(below), inside = PowerOfTwo(gen.Below(below));
    const Integer tails[] = {0, end - 1, inside, end - inside};
    value = value * end + gen.Pick(tails);
    return gen.OneIn(3) ? value : gen.OneIn(2) ? Integer(-value) : Integer(~value);
}

// The leading bit anywhere in vectors of many blocks of words, with and without a bit below it that
// stops the carry of a negation.
Integer DrawLeadingBit(Gen& gen, int width) {
    const Integer value =
        PowerOfTwo(gen.Below(gen.OneIn(2) ? std::min(width, 1024) : width)) + gen.Below(2);
    return gen.OneIn(2) ? value : Integer(-value);
}

Only DrawInteger(Gen& gen) {
    constexpr int kBlocks[] = {1020, 1056, 1057, 2080, 3333};
    if (gen.OneIn(4)) {
        const int width = gen.OneIn(2000) ? 1'000'003 : gen.Pick(kBlocks);
        return {FromInteger(width, DrawLeadingBit(gen, width))};
    }
    const int width = gen.OneIn(4) ? gen.Between(1, 2000) : DrawDefinedWidth(gen);
    if (width < 1 || gen.OneIn(3)) return {gen.FourState(width)};
    Vec v = FromInteger(width, DrawAtBoundary(gen, width));
    if (gen.OneIn(2)) v = Clean(std::move(v));
    for (int unknown = gen.OneIn(4) ? gen.Between(1, 40) : 0; unknown > 0; --unknown) {
        v.bits[gen.Bits() % v.bits.size()] = gen.OneIn(2) ? Logic::kZ : Logic::kX;
    }
    return {std::move(v)};
}

int CeilingLog2(const Vec& v) {
    const Integer value = ToInteger(v);
    return HasUnknown(v) || value <= 1 ? 0 : static_cast<int>(BitCount(value - 1));
}

// Often beside a power of two, where the vector begins and where a block of words does.
Only DrawBesidePower(Gen& gen) {
    Vec v = gen.Vector(gen.OneIn(4) ? gen.Between(1, 5000) : gen.AnyWidth());
    if (gen.OneIn(2) && v.width > 0) {
        AssignInteger(v, PowerOfTwo(gen.Below(v.width)) + gen.Between(-1, 1));
        if (gen.OneIn(4)) v.bits[gen.Bits() % v.bits.size()] = Logic::kZ;
    }
    return {std::move(v)};
}

/*------------------------------------------------------------------------------------------------
 * Real functions
 *----------------------------------------------------------------------------------------------*/

using OneReal = std::tuple<ToReal, double>;
using TwoReals = std::tuple<ToReal, double, double>;

OneReal DrawOne(Gen& gen) {
    return {ToReal{}, DrawReal(gen)};
}
TwoReals DrawTwo(Gen& gen) {
    const double x = DrawReal(gen);
    return {ToReal{}, x, DrawReal(gen)};
}

// A function of the C library by its name: std's are overloaded, and their addresses nobody's.
#define TARN_LIBRARY(function) [](auto... x) { return std::function(x...); }

double Acosh(double x) {
    return x < 1 ? kNaN : std::acosh(x);
}
double Atanh(double x) {
    return std::fabs(x) >= 1 ? std::copysign(kInfinity, x) : std::atanh(x);
}
double Atan2(double x, double y) {
    return std::atan2(y, x);
}

/*------------------------------------------------------------------------------------------------
 * Rows
 *----------------------------------------------------------------------------------------------*/

Properties Random() {
    return {
        TARN_ROW(tarn_SignedConvert, IntegerValue<std::int32_t>, DrawNumber<std::int32_t>),
        TARN_ROW(tarn_UnsignedConvert, IntegerValue<std::uint32_t>, DrawNumber<std::uint32_t>),
        TARN_ROW(tarn_SignedConvertLong, IntegerValue<std::int64_t>, DrawNumber<std::int64_t>),
        TARN_ROW(tarn_UnsignedConvertLong, IntegerValue<std::uint64_t>, DrawNumber<std::uint64_t>),
        TARN_ROW(tarn_MapToVector, Pattern, DrawPattern),
        TARN_ROW(tarn_MapToShortVector, ShortPattern, DrawPattern),
        TARN_ROW(tarn_ConvertToVector, RoundedValue, DrawConverted),
        TARN_ROW(tarn_TruncatedConvertToVector, TruncatedValue, DrawConverted),
        Row("tarn_UnsignedConvertToReal", InEveryRounding<tarn_UnsignedConvertToReal>, UnsignedReal,
            DrawInteger),
        Row("tarn_SignedConvertToReal", InEveryRounding<tarn_SignedConvertToReal>, SignedReal,
            DrawInteger),
        TARN_ROW(tarn_Clog2, CeilingLog2, DrawBesidePower),
        TARN_ROW(tarn_AcosR, TARN_LIBRARY(acos), DrawOne),
        TARN_ROW(tarn_AcoshR, Acosh, DrawOne),
        TARN_ROW(tarn_AsinR, TARN_LIBRARY(asin), DrawOne),
        TARN_ROW(tarn_AsinhR, TARN_LIBRARY(asinh), DrawOne),
        TARN_ROW(tarn_AtanR, TARN_LIBRARY(atan), DrawOne),
        TARN_ROW(tarn_AtanhR, Atanh, DrawOne),
        TARN_ROW(tarn_CeilR, TARN_LIBRARY(ceil), DrawOne),
        TARN_ROW(tarn_CosR, TARN_LIBRARY(cos), DrawOne),
        TARN_ROW(tarn_CoshR, TARN_LIBRARY(cosh), DrawOne),
        TARN_ROW(tarn_ExpR, TARN_LIBRARY(exp), DrawOne),
        TARN_ROW(tarn_FloorR, TARN_LIBRARY(floor), DrawOne),
        TARN_ROW(tarn_LnR, TARN_LIBRARY(log), DrawOne),
        TARN_ROW(tarn_Log10R, TARN_LIBRARY(log10), DrawOne),
        TARN_ROW(tarn_SinR, TARN_LIBRARY(sin), DrawOne),
        TARN_ROW(tarn_SinhR, TARN_LIBRARY(sinh), DrawOne),
        TARN_ROW(tarn_SqrtR, TARN_LIBRARY(sqrt), DrawOne),
        TARN_ROW(tarn_TanR, TARN_LIBRARY(tan), DrawOne),
        TARN_ROW(tarn_TanhR, TARN_LIBRARY(tanh), DrawOne),
        TARN_ROW(tarn_Atan2R, Atan2, DrawTwo),
        TARN_ROW(tarn_HypotR, TARN_LIBRARY(hypot), DrawTwo),
        TARN_ROW(tarn_PowerR, TARN_LIBRARY(pow), DrawTwo),
    };
}

std::vector<Case> ByHand() {
    const Vec half = Words(40, {{0, 0}, {0x17F, 0}});
    return {
        // To single precision: to nearest, ties to even, overflow to infinity.
        TARN_CALL(tarn_MapToShortVector, 32, Result("32'h3f800000"_v), 0x1.000001p0),
        TARN_CALL(tarn_MapToShortVector, 32, Result("32'h3f800002"_v), 0x1.000003p0),
        TARN_CALL(tarn_MapToShortVector, 32, Result("32'h80000002"_v), -0x1.8p-149),
        TARN_CALL(tarn_MapToShortVector, 32, Result("32'h7f800000"_v), 0x1.ffffffp127),
        // Word 0 is written whatever the width.
        TARN_CALL(tarn_SignedConvert, -3, Result("32'hffffffff"_v), -1),
        // Halves go away from zero, by the sum as doubles add it.
        TARN_CALL(tarn_ConvertToVector, 8, Result(Words(8, {{0xFFFFFFFD, 0}})), -2.5),
        TARN_CALL(tarn_ConvertToVector, 32, Result("32'h1"_v), 0.49999999999999994),
        TARN_CALL(tarn_ConvertToVector, 64, Result("64'h10000000000002"_v), 4503599627370497.0),
        TARN_CALL(tarn_TruncatedConvertToVector, 8, Result(Words(8, {{0xFFFFFFFE, 0}})), -2.7),
        // X and Z are 0; bits above the width count but in signed numbers of one word.
        TARN_CALL(tarn_UnsignedConvertToReal, Words(8, {{0x1FF, 0}})).Returns(511.0),
        TARN_CALL(tarn_SignedConvertToReal, "4'b1x1z"_v).Returns(-6.0),
        TARN_CALL(tarn_SignedConvertToReal, Words(8, {{0x17F, 0}})).Returns(127.0),
        TARN_CALL(tarn_SignedConvertToReal, half).Returns(0x17Fp32),
        TARN_CALL(tarn_UnsignedConvertToReal, Filled(1024, Logic::k1)).Returns(kInfinity),
        TARN_CALL(tarn_Clog2, Words(4, {{0x101, 0}})).Returns(9),
        TARN_CALL(tarn_AcoshR, RealResult(kNaN), 0.5),
        TARN_CALL(tarn_AtanhR, RealResult(-kInfinity), -3.0),
        TARN_CALL(tarn_Atan2R, RealResult(std::acos(0.0)), 0.0, 1.0),
    };
}

}  // namespace

Family RealFamily() {
    return {"Real", Random(), ByHand};
}

}  // namespace tarn::test
