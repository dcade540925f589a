// Products, quotients, remainders and powers against integers of any size, and at their edges.
#include <tarnlib/arith.h>

#include "arith_model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

using TwoOperandExport = Export<TwoOperands, Vec(int, const Vec&, const Vec&)>;

constexpr TwoOperandExport kProducts[] = {
    {"tarn_SignedMul", tarn_SignedMul, Product<kSign>},
    {"tarn_UnsignedMul", tarn_UnsignedMul, Product<kZero>},
    {"tarn_SignedDiv", tarn_SignedDiv, Quotient<kSign>},
    {"tarn_UnsignedDiv", tarn_UnsignedDiv, Quotient<kZero>},
    {"tarn_SignedMod", tarn_SignedMod, Remainder<kSign>},
    {"tarn_UnsignedMod", tarn_UnsignedMod, Remainder<kZero>},
};
constexpr TwoOperandExport kPowers[] = {
    {"tarn_SignedUPower", tarn_SignedUPower, UPower<kSign>},
    {"tarn_UnsignedUPower", tarn_UnsignedUPower, UPower<kZero>},
    {"tarn_SignedSPower", tarn_SignedSPower, SPower<kSign>},
    {"tarn_UnsignedSPower", tarn_UnsignedSPower, SPower<kZero>},
};

// Around a power of two, in storage of the width: where carries, estimates and signs go wrong.
Vec NearPowerOfTwo(Gen& gen, int width) {
    const std::size_t bits = 32 * WordCount(width);
    const auto position = static_cast<std::size_t>(gen.Below(static_cast<int>(bits)));
    Integer value = PowerOfTwo(position) + gen.Between(-1, 1);
    if (gen.OneIn(3)) value = -value;
    return FromInteger(width, value);
}

class Products : public testing::TestWithParam<TwoOperandExport> {};
INSTANTIATE_TEST_SUITE_P(Multiply, Products, testing::ValuesIn(kProducts), kExportName);

TEST_P(Products, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        auto [width, a, b] = gen.TwoOperands();
        if (gen.OneIn(4) && a.width > 0) a = NearPowerOfTwo(gen, a.width);
        if (gen.OneIn(4) && b.width > 0) b = NearPowerOfTwo(gen, b.width);
        ASSERT_EQ(Call(function, width, a, b), model(width, a, b)) << gen.Reproducer(width, a, b);
    }
}

// Dividends on both sides of a multiple of the divisor, which may begin with the bits that make
// quotient estimates worst: a lone top bit, or ones only.
TEST_P(Products, MatchesModelBesideMultiples) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(1000)) {
        const int bWidth = 64 * gen.Between(1, 12), width = bWidth + 64 * gen.Between(0, 12);
        const Integer top = PowerOfTwo(static_cast<std::size_t>(bWidth) - 1);
        Integer divisor = ToInteger(Clean(Prefix(gen.Vector(bWidth), bWidth))) | top;
        if (gen.OneIn(3)) divisor = top + gen.Below(3);
        if (gen.OneIn(3)) divisor = 2 * top - gen.Between(1, 3);
        const Integer factor = PowerOfTwo(static_cast<std::size_t>(width - bWidth)) - 1;
        const Integer dividend = factor * divisor + gen.Between(-1, 1);
        const Vec a = FromInteger(width, dividend), b = FromInteger(bWidth, divisor);
        ASSERT_EQ(Call(function, width, a, b), model(width, a, b)) << gen.Reproducer(width, a, b);
    }
}

class Powers : public testing::TestWithParam<TwoOperandExport> {};
INSTANTIATE_TEST_SUITE_P(Multiply, Powers, testing::ValuesIn(kPowers), kExportName);

TEST_P(Powers, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        auto [width, base, exponent] = gen.TwoOperands();
        if (gen.OneIn(3) && base.width > 0) base = FromInteger(base.width, gen.Between(-3, 3));
        if (gen.OneIn(2) || exponent.width > 300) {
            // Bits above the width stay.
            exponent = Prefix(exponent, std::min(exponent.width, gen.Between(0, 70)));
        }
        if (width > 1000 && exponent.width > 8) exponent = Prefix(exponent, 8);
        ASSERT_EQ(Call(function, width, base, exponent), model(width, base, exponent))
            << gen.Reproducer(width, base, exponent);
    }
}

// A few sizes on every storey of the kernels, up to a million bits; operands of one size, and one
// much shorter than the other.
TEST(MultiplyFull, WideOperands) {
    Gen gen(1);
    for (const int width : {2000, 5000, 20'000, 65'536, 130'000, 300'000, 1'048'576}) {
        for (const int bWidth : {width, width / 2, width / 7}) {
            const Vec a = Clean(Prefix(gen.Vector(width), width));
            const Vec b = FromInteger(bWidth, ToInteger(Clean(gen.Vector(bWidth))) | 1);
            if (HasUnknown(a)) continue;
            for (const auto& [name, function, model] : kProducts) {
                Vec result = Filled(width, Logic::kX);
                std::vector<VectorWord> words = ToWords(result);
                const std::vector<VectorWord> aWords = ToWords(a), bWords = ToWords(b);
                function(width, words.data(), width, aWords.data(), bWidth, bWords.data());
                EXPECT_TRUE(Words(width, words) == model(width, a, b))
                    << name << " " << width << " " << bWidth;
            }
        }
    }
}

TEST(Multiply, KnownResults) {
    struct Row {
        TwoOperands* function;
        int width;
        Vec a, b, expected;
    };
    const Vec allOnes = "32'hffffffff"_v, two = "32'h2"_v, minusTwo = "32'hfffffffe"_v;
    const Vec minusSeven = "32'hfffffff9"_v, seven = "32'h7"_v, zero = "32'h0"_v, one = "32'h1"_v;
    const Row rows[] = {
        {tarn_SignedMul, 64, allOnes, two, "64'hfffffffffffffffe"_v},
        {tarn_UnsignedMul, 64, allOnes, two, "64'h1fffffffe"_v},
        {tarn_UnsignedMul, 8, "64'hz0000000000"_v, "8'h00"_v, AllX(8)},
        {tarn_SignedDiv, 32, minusSeven, two, "32'hfffffffd"_v},
        {tarn_SignedMod, 32, minusSeven, two, allOnes},
        {tarn_SignedMod, 32, seven, minusTwo, one},
        {tarn_SignedDiv, 32, "32'h80000000"_v, allOnes, "32'h80000000"_v},
        {tarn_UnsignedDiv, 40, "40'h5"_v, zero, AllX(40)},
        {tarn_UnsignedMod, 40, "40'h5"_v, Vec{}, AllX(40)},
        {tarn_UnsignedDiv, 32, "64'h10000000000000"_v, "32'h100000"_v, zero},  // 2^32 is dropped
        {tarn_UnsignedDiv, 96, "96'h10000000000000000"_v, "64'h100000001"_v, "96'hffffffff"_v},
        {tarn_SignedUPower, 32, minusTwo, "8'h3"_v, "32'hfffffff8"_v},
        {tarn_UnsignedUPower, 32, two, "8'h28"_v, zero},
        {tarn_UnsignedUPower, 32, "32'bx"_v, "8'h0"_v, AllX(32)},
        {tarn_UnsignedUPower, 32, zero, Words(4, {{0x10, 0}}), one},
        {tarn_SignedSPower, 32, two, "8'shff"_v, zero},
        {tarn_SignedSPower, 32, one, "8'shfb"_v, one},
        {tarn_SignedSPower, 40, allOnes, "8'shfd"_v, Words(40, {{~0U, 0}, {~0U, 0}})},
        {tarn_SignedSPower, 32, allOnes, "8'shfe"_v, one},
        {tarn_SignedSPower, 32, zero, "8'shff"_v, AllX(32)},
        {tarn_UnsignedSPower, 32, allOnes, "8'shff"_v, zero},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Call(row.function, row.width, row.a, row.b), row.expected)
            << row.a << " " << row.b;
    }
}

// The first operand may lie in the shared register, the result too.
TEST(Multiply, FirstOperandInRegister) {
    const Vec a = "100'h123456789abcdef0123456789"_v, b = "100'hfedcba9876543210fedcba987"_v;
    const std::vector<VectorWord> aWords = ToWords(a), bWords = ToWords(b);
    std::copy(aWords.begin(), aWords.end(), tarn_VectorRegister);
    tarn_UnsignedMul(100, tarn_VectorRegister, 100, tarn_VectorRegister, 100, bWords.data());
    const std::vector<VectorWord> result(tarn_VectorRegister, tarn_VectorRegister + 4);
    EXPECT_EQ(Words(100, result), Product<kZero>(100, a, b));
}

}  // namespace
}  // namespace tarn::test
