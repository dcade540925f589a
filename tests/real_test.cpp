// Vectors as reals, reals as vectors, real functions, clog2.
#include <bit>
#include <cfenv>
#include <cmath>
#include <limits>

#include <tarnlib/real.h>

#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

// A double that is compared by its bits and printed with them.
struct Real {
    double value;

    std::uint64_t Bits() const { return std::bit_cast<std::uint64_t>(value); }
    friend bool operator==(const Real& a, const Real& b) { return a.Bits() == b.Bits(); }
    friend std::ostream& operator<<(std::ostream& out, const Real& real) {
        return out << std::hexfloat << real.value << " (0x" << std::hex << real.Bits() << ")";
    }
};

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// The exact value with its magnitude rounded to 53 bits, halves away from zero.
double Nearest(const Integer& value) {
    constexpr std::size_t kPrecision = 53;
    const Integer magnitude = abs(value);
    const std::size_t bits = BitCount(magnitude);
    if (bits <= kPrecision) return ToDouble(value);
    const std::size_t dropped = bits - kPrecision;
    const Integer half = Integer(1) << (dropped - 1);
    const Integer significand = (magnitude + half) >> dropped;
    const double rounded = std::ldexp(ToDouble(significand), static_cast<int>(dropped));
    return value < 0 ? -rounded : rounded;
}

Integer SignedValue(const Vec& v) {
    const bool isNegative = v.bits[static_cast<std::size_t>(v.width) - 1] == Logic::k1;
    if (!isNegative && v.width > 32) return ToInteger(v);
    const auto width = static_cast<std::size_t>(v.width);
    const Integer value = LowBits(ToInteger(v), width);
    return isNegative ? Integer(value - PowerOfTwo(width)) : value;
}

using ToReal = double(int, const VectorWord*);

Real Convert(ToReal* function, const Vec& v) {
    const Outcome outcome =
        CallInEveryStorage({v.width, 0, ResultPlace::kNone, {&v}},
                           [&](VectorWord*, const VectorWord* const* operands) {
                               return std::bit_cast<std::int64_t>(function(v.width, operands[0]));
                           });
    EXPECT_EQ(outcome.broken, "");
    return {std::bit_cast<double>(outcome.returned)};
}

// A value with its highest bit anywhere, 54 bits from there on that lie at or beside a rounding
// boundary, and below them nothing, ones alone, one bit or a run of ones: what a carry can pass.
Integer DrawAtBoundary(Gen& gen, int width) {
    const std::uint64_t leading = (gen.OneIn(3) ? ~std::uint64_t{0} : gen.Bits()) >> 10;
    Integer value = (leading ^ gen.Bits() % 4) | std::uint64_t{1} << 53;
    const int below = gen.Between(1, width) - 54;
    if (below <= 0) return value / PowerOfTwo(-below);
    const Integer end = PowerOfTwo(below), inside = PowerOfTwo(gen.Below(below));
    const Integer tails[] = {0, end - 1, inside, end - inside};
    value = value * end + tails[gen.Below(4)];
    return gen.OneIn(3) ? value : gen.OneIn(2) ? Integer(-value) : Integer(~value);
}

Vec DrawInteger(Gen& gen) {
    const int width = gen.OneIn(4) ? gen.Between(1, 2000) : gen.Width();
    if (gen.OneIn(3)) return gen.FourState(width);
    Vec v = FromInteger(width, DrawAtBoundary(gen, width));
    if (gen.OneIn(2)) v = Clean(std::move(v));
    for (int unknown = gen.OneIn(4) ? gen.Between(1, 40) : 0; unknown > 0; --unknown) {
        v.bits[gen.Bits() % v.bits.size()] = gen.OneIn(2) ? Logic::kZ : Logic::kX;
    }
    return v;
}

using ToRealExport = Export<ToReal, Integer(const Vec&)>;
constexpr ToRealExport kToRealExports[] = {
    {"tarn_UnsignedConvertToReal", tarn_UnsignedConvertToReal, ToInteger},
    {"tarn_SignedConvertToReal", tarn_SignedConvertToReal, SignedValue},
};

class ToRealTest : public testing::TestWithParam<ToRealExport> {};
INSTANTIATE_TEST_SUITE_P(Real, ToRealTest, testing::ValuesIn(kToRealExports), kExportName);

TEST_P(ToRealTest, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(2 * kRuns)) {
        const Vec v = DrawInteger(gen);
        ASSERT_EQ(Convert(function, v), Real{Nearest(model(v))}) << gen.Reproducer(v);
    }
}

// The leading bit anywhere in vectors of many blocks of words, with and without a bit below it that
// stops the carry.
TEST_P(ToRealTest, FindsTheTopOfWideVectors) {
    const auto& [name, function, model] = GetParam();
    for (const int width : {1020, 1056, 1057, 2080, 3333, 1'000'003}) {
        const int step = width > 10'000 ? 199'999 : 31;
        for (int top = 0; top < width - 1; top += top < 1025 && step > 31 ? 341 : step) {
            for (const Integer& value : {PowerOfTwo(top), Integer(PowerOfTwo(top) + 1)}) {
                for (const int sign : {1, -1}) {
                    const Vec v = FromInteger(width, sign * value);
                    ASSERT_EQ(Convert(function, v), Real{Nearest(model(v))}) << v << top;
                }
            }
        }
    }
}

TEST(Real, KnownValuesOfVectors) {
    struct Row {
        ToReal* function;
        Vec v;
        double expected;
    };
    const Vec ones = Filled(1024, Logic::k1), x = Filled(100, Logic::kX);
    const Row rows[] = {
        {tarn_UnsignedConvertToReal, Words(64, {{~0U, 0}, {~0U, 0}}), 0x1p64},
        {tarn_UnsignedConvertToReal, Words(32, {{5, 4}}), 1.0},
        {tarn_UnsignedConvertToReal, Words(8, {{0x1FF, 0}}), 511.0},
        {tarn_UnsignedConvertToReal, "4'b1x1z"_v, 10.0},
        {tarn_UnsignedConvertToReal, x, 0.0},
        {tarn_UnsignedConvertToReal, ones, kInfinity},
        {tarn_UnsignedConvertToReal, Words(1025, std::vector<VectorWord>(33)), 0.0},
        {tarn_SignedConvertToReal, x, 0.0},
        {tarn_SignedConvertToReal, "4'b1x1z"_v, -6.0},
        {tarn_SignedConvertToReal, "8'hff"_v, -1.0},
        {tarn_SignedConvertToReal, Words(8, {{0x17F, 0}}), 127.0},
        {tarn_SignedConvertToReal, Words(40, {{0, 0}, {0x17F, 0}}), 0x17Fp32},
        {tarn_SignedConvertToReal, Words(64, {{0x7FFFFFFF, 0}, {~0U, 0}}), -2147483649.0},
        {tarn_SignedConvertToReal, Words(64, {{1, 0}, {0xFFC00000, 0}}), -0x1p54},
        {tarn_SignedConvertToReal, Words(96, {{0, 0}, {0, 0}, {~0U, 0}}), -0x1p64},
        {tarn_SignedConvertToReal, ones, -1.0},
    };
    for (const int rounding : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO, FE_TONEAREST}) {
        ASSERT_EQ(std::fesetround(rounding), 0);
        for (const auto& [function, v, expected] : rows) {
            EXPECT_EQ(Convert(function, v), Real{expected}) << v << rounding;
        }
    }
    if (kIsChecked) return;
    EXPECT_EQ(Convert(tarn_UnsignedConvertToReal, Vec{}), Real{0.0});
    EXPECT_EQ(Convert(tarn_SignedConvertToReal, Vec{-32, {}}), Real{0.0});
}

using FromReal = FromScalar<double>;

// What is no number counts as one with the exponent that its field names.
Integer WholePart(double value) {
    if (std::isfinite(value)) return Integer(value);
    const Integer fraction(Real{value}.Bits() << 12 >> 12 | std::uint64_t{1} << 52);
    return (std::signbit(value) ? -fraction : fraction) << (2047 - 1075);
}

Integer Rounded(double value) {
    return WholePart(value >= 0 ? value + 0.5 : value - 0.5);
}

Integer Truncated(double value) {
    double whole;
    std::modf(value, &whole);
    return Rounded(whole);
}

// Any bits, but for NaNs that signal: what the processor makes of those is not ours to say.
double DrawReal(Gen& gen, int leastExponent, int mostExponent) {
    const int exponent = gen.Between(leastExponent, mostExponent) + 1023;
    std::uint64_t fraction = gen.Bits() << gen.Below(52);
    if (gen.OneIn(2)) fraction = gen.Bits();
    const std::uint64_t sign = gen.Bits() >> 63;
    const std::uint64_t bits =
        sign << 63 | static_cast<std::uint64_t>(exponent) << 52 | fraction >> 12;
    const double value = std::bit_cast<double>(bits);
    return std::isnan(value) ? std::bit_cast<double>(bits | std::uint64_t{1} << 51) : value;
}

using FromRealExport = Export<FromReal, Integer(double)>;
constexpr FromRealExport kFromRealExports[] = {
    {"tarn_ConvertToVector", tarn_ConvertToVector, Rounded},
    {"tarn_TruncatedConvertToVector", tarn_TruncatedConvertToVector, Truncated},
};

class FromRealTest : public testing::TestWithParam<FromRealExport> {};
INSTANTIATE_TEST_SUITE_P(Real, FromRealTest, testing::ValuesIn(kFromRealExports), kExportName);

TEST_P(FromRealTest, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(2 * kRuns)) {
        const int width = gen.Width();
        const double value = gen.OneIn(8) ? DrawReal(gen, -1023, 1024) : DrawReal(gen, -2, 130);
        ASSERT_EQ(Call(function, width, value), FromInteger(width, model(value)))
            << gen.Reproducer(width, Real{value});
    }
}

TEST_P(FromRealTest, MatchesModelAtSpecialValues) {
    const auto& [name, function, model] = GetParam();
    for (const double magnitude :
         {0.0, 0x1p-1074, 0.49999999999999994, 0.5, 1.5, 0x1p31, 0x1p32, 0x1p52 + 1, 0x1p62,
          0x1.fffffffffffffp62, 0x1p63, 0x1p64, 0x1.fffffffffffffp1023, kInfinity, kNaN}) {
        for (const double value : {magnitude, -magnitude}) {
            for (const int width : {1, 32, 33, 64, 65, 96, 97, 1000, 1024, 1056, 2000}) {
                ASSERT_EQ(Call(function, width, value), FromInteger(width, model(value)))
                    << width << ' ' << Real{value};
            }
        }
    }
}

TEST(Real, EmptyVectorsAreNotWritten) {
    if (kIsChecked) return;
    for (FromReal* function : {tarn_ConvertToVector, tarn_TruncatedConvertToVector}) {
        for (const int width : {0, -1, -33, std::numeric_limits<int>::min()}) {
            const auto call = [&](VectorWord* result, const VectorWord* const*) {
                function(width, result, -1.0);
                function(width, result, 0x1p100);
                return 0;
            };
            EXPECT_EQ(CallInEveryStorage({width, 0, ResultPlace::kAnywhere, {}}, call),
                      Filled(width, Logic::k0));
        }
    }
}

TEST(Real, KnownVectorsOfReals) {
    EXPECT_EQ(Call(tarn_ConvertToVector, 32, 2.5), "32'h3"_v);
    EXPECT_EQ(Call(tarn_ConvertToVector, 8, -2.5), Words(8, {{0xFFFFFFFD, 0}}));
    EXPECT_EQ(Call(tarn_ConvertToVector, 32, -0.4), "32'h0"_v);
    EXPECT_EQ(Call(tarn_ConvertToVector, 32, 0.49999999999999994), "32'h1"_v);
    EXPECT_EQ(Call(tarn_ConvertToVector, 64, 4503599627370497.0), "64'h10000000000002"_v);
    EXPECT_EQ(Call(tarn_ConvertToVector, 64, 0x1p100), "64'h0"_v);
    EXPECT_EQ(Call(tarn_ConvertToVector, 100, -1.0), Words(100, {4, {~0U, 0}}));
    EXPECT_EQ(Call(tarn_TruncatedConvertToVector, 32, 2.7), "32'h2"_v);
    EXPECT_EQ(Call(tarn_TruncatedConvertToVector, 8, -2.7), Words(8, {{0xFFFFFFFE, 0}}));
}

const double kSpecialReals[] = {0.0,        -0.0,      0x1p-1074,
                                -0x1p-1074, 0x1p-1022, 1e-9,
                                0.5,        -0.5,      0.9999999999999999,
                                1.0,        -1.0,      2.0,
                                -2.0,       2.5,       1.0000000000000002,
                                -3.0,       3.25,      10.0,
                                22.5,       -710.5,    710.5,
                                0x1p53 + 2, 1e22,      -1e300,
                                1e300,      kNaN,      -kNaN,
                                kInfinity,  -kInfinity};

using OneReal = void(double*, double);
using TwoReals = void(double*, double, double);

template <class Function, class... Operands>
Real ValueOf(Function* function, Operands... operands) {
    double result[] = {1.25, 2.5, 5.0};
    function(result + 1, operands...);
    EXPECT_TRUE(result[0] == 1.25 && result[2] == 5.0);
    return {result[1]};
}

using OneRealExport = Export<OneReal, double(double)>;
constexpr OneRealExport kOneRealExports[] = {
    {"tarn_AcosR", tarn_AcosR, [](double x) { return std::acos(x); }},
    {"tarn_AcoshR", tarn_AcoshR, [](double x) { return x < 1 ? kNaN : std::acosh(x); }},
    {"tarn_AsinR", tarn_AsinR, [](double x) { return std::asin(x); }},
    {"tarn_AsinhR", tarn_AsinhR, [](double x) { return std::asinh(x); }},
    {"tarn_AtanR", tarn_AtanR, [](double x) { return std::atan(x); }},
    {"tarn_AtanhR", tarn_AtanhR,
     [](double x) { return std::fabs(x) >= 1 ? std::copysign(kInfinity, x) : std::atanh(x); }},
    {"tarn_CeilR", tarn_CeilR, [](double x) { return std::ceil(x); }},
    {"tarn_CosR", tarn_CosR, [](double x) { return std::cos(x); }},
    {"tarn_CoshR", tarn_CoshR, [](double x) { return std::cosh(x); }},
    {"tarn_ExpR", tarn_ExpR, [](double x) { return std::exp(x); }},
    {"tarn_FloorR", tarn_FloorR, [](double x) { return std::floor(x); }},
    {"tarn_LnR", tarn_LnR, [](double x) { return std::log(x); }},
    {"tarn_Log10R", tarn_Log10R, [](double x) { return std::log10(x); }},
    {"tarn_SinR", tarn_SinR, [](double x) { return std::sin(x); }},
    {"tarn_SinhR", tarn_SinhR, [](double x) { return std::sinh(x); }},
    {"tarn_SqrtR", tarn_SqrtR, [](double x) { return std::sqrt(x); }},
    {"tarn_TanR", tarn_TanR, [](double x) { return std::tan(x); }},
    {"tarn_TanhR", tarn_TanhR, [](double x) { return std::tanh(x); }},
};
using TwoRealExport = Export<TwoReals, double(double, double)>;
constexpr TwoRealExport kTwoRealExports[] = {
    {"tarn_Atan2R", tarn_Atan2R, [](double x, double y) { return std::atan2(y, x); }},
    {"tarn_HypotR", tarn_HypotR, [](double x, double y) { return std::hypot(x, y); }},
    {"tarn_PowerR", tarn_PowerR, [](double x, double y) { return std::pow(x, y); }},
};

class OneRealTest : public testing::TestWithParam<OneRealExport> {};
INSTANTIATE_TEST_SUITE_P(Real, OneRealTest, testing::ValuesIn(kOneRealExports), kExportName);

TEST_P(OneRealTest, MatchesMathLibrary) {
    const auto& [name, function, model] = GetParam();
    for (const double x : kSpecialReals) {
        EXPECT_EQ(ValueOf(function, x), Real{model(x)}) << Real{x};
    }
    for (Gen& gen : Seeds(kRuns)) {
        const double x = gen.OneIn(4) ? DrawReal(gen, -1023, 1024) : DrawReal(gen, -9, 9);
        ASSERT_EQ(ValueOf(function, x), Real{model(x)}) << gen.Reproducer(Real{x});
    }
}

class TwoRealTest : public testing::TestWithParam<TwoRealExport> {};
INSTANTIATE_TEST_SUITE_P(Real, TwoRealTest, testing::ValuesIn(kTwoRealExports), kExportName);

TEST_P(TwoRealTest, MatchesMathLibrary) {
    const auto& [name, function, model] = GetParam();
    for (const double x : kSpecialReals) {
        for (const double y : kSpecialReals) {
            EXPECT_EQ(ValueOf(function, x, y), Real{model(x, y)}) << Real{x} << Real{y};
        }
    }
    for (Gen& gen : Seeds(kRuns)) {
        const double x = DrawReal(gen, -9, 9), y = DrawReal(gen, -9, 9);
        ASSERT_EQ(ValueOf(function, x, y), Real{model(x, y)}) << gen.Reproducer(Real{x}, Real{y});
    }
}

TEST(Real, KnownValuesOfFunctions) {
    EXPECT_EQ(ValueOf(tarn_AcoshR, 0.5), Real{kNaN});
    EXPECT_EQ(ValueOf(tarn_AtanhR, -3.0), Real{-kInfinity});
    EXPECT_EQ(ValueOf(tarn_Atan2R, 1.0, 0.0), Real{0.0});
    EXPECT_EQ(ValueOf(tarn_Atan2R, 0.0, 1.0), Real{std::acos(0.0)});
    EXPECT_EQ(ValueOf(tarn_PowerR, 2.0, 10.0), Real{1024.0});
}

int BitsBelow(const Vec& v) {
    const Integer value = ToInteger(v);
    if (HasUnknown(v) || value <= 1) return 0;
    return static_cast<int>(BitCount(value - 1));
}

TEST(Clog2, MatchesModel) {
    for (Gen& gen : Seeds(2 * kRuns)) {
        Vec v = gen.Vector(gen.OneIn(4) ? gen.Between(1, 5000) : gen.AnyWidth());
        if (gen.OneIn(2) && v.width > 0) {
            // Beside a power of two, where the vector begins and where a block of words does.
            AssignInteger(v, PowerOfTwo(gen.Below(v.width)) + gen.Between(-1, 1));
            if (gen.OneIn(4)) v.bits[gen.Bits() % v.bits.size()] = Logic::kZ;
        }
        const Outcome outcome = Call(tarn_Clog2, v);
        ASSERT_EQ(outcome.broken, "") << gen.Reproducer(v);
        ASSERT_EQ(outcome.returned, BitsBelow(v)) << gen.Reproducer(v);
    }
}

TEST(Clog2, KnownValues) {
    const std::pair<Vec, int> rows[] = {
        {"32'h0"_v, 0},          {"32'h1"_v, 0},         {"32'h2"_v, 1},
        {"32'h3"_v, 2},          {"32'h4"_v, 2},         {"32'h5"_v, 3},
        {"32'h80000000"_v, 31},  {"32'h80000001"_v, 32}, {"64'h100000000"_v, 32},
        {"64'h100000001"_v, 33}, {"9'b0z0000001"_v, 0},  {Words(4, {{0x101, 0}}), 9},
    };
    for (const auto& [v, expected] : rows) {
        EXPECT_EQ(Call(tarn_Clog2, v).returned, expected) << v;
    }
}

}  // namespace
}  // namespace tarn::test
