// Copies with extension and conversions of machine values.
#include <bit>

#include <tarnlib/vector.h>

#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

using CopyExport = Export<OneOperand, Vec(int, const Vec&)>;

template <Extension extension>
Vec Copied(int width, const Vec& source) {
    return Extended(source, width, extension);
}

constexpr CopyExport kCopyExports[] = {
    {"tarn_SignedCopy", tarn_SignedCopy, Copied<Extension::kSign>},
    {"tarn_UnsignedCopy", tarn_UnsignedCopy, Copied<Extension::kZero>},
};

class Copy : public testing::TestWithParam<CopyExport> {};
INSTANTIATE_TEST_SUITE_P(Copy, Copy, testing::ValuesIn(kCopyExports), kExportName);

TEST_P(Copy, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const auto [width, a] = gen.OneOperand(gen.OneIn(2));
        ASSERT_EQ(Call(function, width, a), model(width, a)) << gen.Reproducer(width, a);
    }
}

TEST(Copy, KnownExtensions) {
    EXPECT_EQ(Call(tarn_SignedCopy, 64, Words(32, {{0, 0x80000000}})),
              Words(64, {{0, 0x80000000}, {0, ~0U}}));
    EXPECT_EQ(Call(tarn_SignedCopy, 64, "8'h80"_v), "64'h80"_v);  // bit 31 is the sign
}

template <class Value>
Value Draw(Gen& gen) {
    const std::vector<VectorWord> words = ToWords(gen.Vector(64));
    const std::uint64_t bits = words[0].aval | std::uint64_t{words[1].aval} << 32;
    if constexpr (std::is_floating_point_v<Value>) {
        // Half of the values lie where single precision has its numbers and its ties.
        const std::uint64_t exponent = static_cast<std::uint64_t>(gen.Between(870, 1170)) << 52;
        const std::uint64_t fraction = bits & ~(std::uint64_t{0x7FF} << 52);
        return std::bit_cast<double>(gen.OneIn(2) ? bits : fraction | exponent);
    } else {
        return static_cast<Value>(bits);
    }
}

// A conversion is its value as an integer, modulo the storage's size, which is one word at least.
template <class Value, class Pattern>
void ExpectConversions(FromScalar<Value>* function, Pattern pattern) {
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.AnyWidth();
        const Value value = Draw<Value>(gen);
        Vec expected{width, std::vector<Logic>(32 * std::max<std::size_t>(WordCount(width), 1))};
        AssignInteger(expected, Integer(pattern(value)));
        ASSERT_EQ(Call(function, width, value), expected) << gen.Reproducer(width, value);
    }
}

TEST(Convert, IntegersMatchModel) {
    ExpectConversions(tarn_SignedConvert, [](std::int32_t v) { return v; });
    ExpectConversions(tarn_UnsignedConvert, [](std::uint32_t v) { return v; });
    ExpectConversions(tarn_SignedConvertLong, [](std::int64_t v) { return v; });
    ExpectConversions(tarn_UnsignedConvertLong, [](std::uint64_t v) { return v; });
}

TEST(Convert, RealsMatchModel) {
    ExpectConversions(tarn_MapToVector, [](double v) { return std::bit_cast<std::uint64_t>(v); });
    ExpectConversions(tarn_MapToShortVector,
                      [](double v) { return std::bit_cast<std::uint32_t>(static_cast<float>(v)); });
}

// Rounding is to nearest with ties to even; what is too large or too small keeps its sign.
TEST(Convert, KnownReals) {
    EXPECT_EQ(Call(tarn_MapToVector, 64, 1.0), "64'h3ff0000000000000"_v);
    const std::pair<double, std::uint32_t> rows[] = {
        {1.0, 0x3F800000},
        {0x1.000001p0, 0x3F800000},
        {0x1.000003p0, 0x3F800002},
        {0x1.000001000001p0, 0x3F800001},
        {-0.0, 0x80000000},
        {0x1p-149, 1},
        {0x1p-150, 0},
        {-0x1.8p-149, 0x80000002},
        {0x1.fffffefp127, 0x7F7FFFFF},
        {0x1.ffffffp127, 0x7F800000},
        {-1e300, 0xFF800000},
    };
    for (const auto& [value, pattern] : rows) {
        EXPECT_EQ(Call(tarn_MapToShortVector, 40, value), Words(40, {{pattern, 0}, {0, 0}}))
            << value;
    }
}

}  // namespace
}  // namespace tarn::test
