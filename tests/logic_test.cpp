// The bitwise operators against their truth tables, the reductions against their definitions.
#include <tarnlib/logic.h>

#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

using TwoOperandExport = Export<TwoOperands, Vec(int, const Vec&, const Vec&)>;
using OneOperandExport = Export<OneOperand, Vec(int, const Vec&)>;
using ReductionExport = Export<ReducesOperand, int(const Vec&)>;

constexpr Extension kSign = Extension::kSign;
constexpr Extension kZero = Extension::kZero;

// A row for each of 0, 1, Z and X of one operand, in it a result for each of the other's.
using TruthTable = char[4][5];
constexpr TruthTable kAnd = {"0000", "01xx", "0xxx", "0xxx"};
constexpr TruthTable kNand = {"1111", "10xx", "1xxx", "1xxx"};
constexpr TruthTable kOr = {"01xx", "1111", "x1xx", "x1xx"};
constexpr TruthTable kNor = {"10xx", "0000", "x0xx", "x0xx"};
constexpr TruthTable kXor = {"01xx", "10xx", "xxxx", "xxxx"};
constexpr TruthTable kXnor = {"10xx", "01xx", "xxxx", "xxxx"};
constexpr TruthTable kMix = {"0xxx", "x1xx", "xxxx", "xxxx"};
// For one operand, the same whatever the other's.
constexpr TruthTable kBuffer = {"0000", "1111", "xxxx", "xxxx"};
constexpr TruthTable kNot = {"1111", "0000", "xxxx", "xxxx"};

template <Extension extension, const TruthTable& table>
Vec Combined(int width, const Vec& a, const Vec& b) {
    Vec result = Extended(a, width, extension);
    const Vec other = Extended(b, width, extension);
    for (std::size_t i = 0; i < result.bits.size(); ++i) {
        const char value = table[static_cast<int>(result.bits[i])][static_cast<int>(other.bits[i])];
        result.bits[i] = value == 'x' ? Logic::kX : value == '1' ? Logic::k1 : Logic::k0;
    }
    return result;
}

template <Extension extension, const TruthTable& table>
Vec Transformed(int width, const Vec& a) {
    return Combined<extension, table>(width, a, Vec{});
}

constexpr TwoOperandExport kTwoOperandExports[] = {
    {"tarn_SignedBitwiseAND", tarn_SignedBitwiseAND, Combined<kSign, kAnd>},
    {"tarn_UnsignedBitwiseAND", tarn_UnsignedBitwiseAND, Combined<kZero, kAnd>},
    {"tarn_SignedBitwiseNAND", tarn_SignedBitwiseNAND, Combined<kSign, kNand>},
    {"tarn_UnsignedBitwiseNAND", tarn_UnsignedBitwiseNAND, Combined<kZero, kNand>},
    {"tarn_SignedBitwiseOR", tarn_SignedBitwiseOR, Combined<kSign, kOr>},
    {"tarn_UnsignedBitwiseOR", tarn_UnsignedBitwiseOR, Combined<kZero, kOr>},
    {"tarn_SignedBitwiseNOR", tarn_SignedBitwiseNOR, Combined<kSign, kNor>},
    {"tarn_UnsignedBitwiseNOR", tarn_UnsignedBitwiseNOR, Combined<kZero, kNor>},
    {"tarn_SignedBitwiseXOR", tarn_SignedBitwiseXOR, Combined<kSign, kXor>},
    {"tarn_UnsignedBitwiseXOR", tarn_UnsignedBitwiseXOR, Combined<kZero, kXor>},
    {"tarn_SignedBitwiseXNOR", tarn_SignedBitwiseXNOR, Combined<kSign, kXnor>},
    {"tarn_UnsignedBitwiseXNOR", tarn_UnsignedBitwiseXNOR, Combined<kZero, kXnor>},
    {"tarn_SignedConditionalMix", tarn_SignedConditionalMix, Combined<kSign, kMix>},
    {"tarn_UnsignedConditionalMix", tarn_UnsignedConditionalMix, Combined<kZero, kMix>},
};
constexpr OneOperandExport kOneOperandExports[] = {
    {"tarn_SignedBitwiseBUF", tarn_SignedBitwiseBUF, Transformed<kSign, kBuffer>},
    {"tarn_UnsignedBitwiseBUF", tarn_UnsignedBitwiseBUF, Transformed<kZero, kBuffer>},
    {"tarn_SignedBitwiseNOT", tarn_SignedBitwiseNOT, Transformed<kSign, kNot>},
    {"tarn_UnsignedBitwiseNOT", tarn_UnsignedBitwiseNOT, Transformed<kZero, kNot>},
};

class LogicTwoOperands : public testing::TestWithParam<TwoOperandExport> {};
INSTANTIATE_TEST_SUITE_P(Logic, LogicTwoOperands, testing::ValuesIn(kTwoOperandExports),
                         kExportName);

TEST_P(LogicTwoOperands, MatchesTruthTable) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const auto [width, a, b] = gen.TwoOperands(true);
        ASSERT_EQ(Call(function, width, a, b), model(width, a, b)) << gen.Reproducer(width, a, b);
    }
}

class LogicOneOperand : public testing::TestWithParam<OneOperandExport> {};
INSTANTIATE_TEST_SUITE_P(Logic, LogicOneOperand, testing::ValuesIn(kOneOperandExports),
                         kExportName);

TEST_P(LogicOneOperand, MatchesTruthTable) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const auto [width, a] = gen.OneOperand(true);
        ASSERT_EQ(Call(function, width, a), model(width, a)) << gen.Reproducer(width, a);
    }
}

// What the storage holds where it is not the values that count.
TEST(Logic, KnownResults) {
    const Vec dirty = Words(64, {{0x1234, 0xF}, {0xFFFF0000, 0xFF}});
    EXPECT_EQ(Call(tarn_UnsignedBitwiseNOT, 4, "4'b0101"_v), Words(4, {{0xFFFFFFFA, 0}}));
    EXPECT_EQ(Call(tarn_UnsignedBitwiseNAND, 64, dirty, "8'h00"_v),
              Words(64, {{~0U, 0}, {~0U, 0}}));
    EXPECT_EQ(Call(tarn_UnsignedBitwiseNOR, 96, "64'hff00000001"_v, "32'h2"_v),
              Words(96, {{0xFFFFFFFC, 0}, {0xFFFFFF00, 0}, {~0U, 0}}));
    EXPECT_EQ(Call(tarn_SignedBitwiseNOR, 96, "64'h1"_v, "32'h80000000"_v),
              Words(96, {{0x7FFFFFFE, 0}, {0, 0}, {0, 0}}));
    EXPECT_EQ(Call(tarn_SignedBitwiseAND, 64, "64'hfz00000000"_v, Words(32, {{~0U, ~0U}})),
              Words(64, {{0, 0}, {0xFF, 0xFF}}));
    EXPECT_EQ(Call(tarn_SignedBitwiseBUF, 64, Words(32, {{0, 0x80000000}})),
              Words(64, {{0x80000000, 0x80000000}, {~0U, ~0U}}));
    EXPECT_EQ(Call(tarn_UnsignedBitwiseXNOR, 20, "20'h0"_v, "10'h0"_v), Words(20, {{~0U, 0}}));
    // Either order of the widths.
    EXPECT_EQ(Call(tarn_SignedBitwiseOR, 32, "32'h80000000"_v, "64'h100000001"_v),
              "32'h80000001"_v);
    EXPECT_EQ(Call(tarn_SignedBitwiseOR, 64, "32'h80000000"_v, "64'h100000001"_v),
              "64'hffffffff80000001"_v);
}

bool Holds(const Vec& v, int width, Logic value) {
    const auto end = v.bits.begin() + width;
    return std::find(v.bits.begin(), end, value) != end;
}

int StorageWidth(const Vec& v) {
    return static_cast<int>(v.bits.size());
}

int AllOnes(const Vec& v) {
    if (v.width < 1 || Holds(v, v.width, Logic::k0)) return TARN_LOGIC_0;
    return HasUnknown(v) ? TARN_LOGIC_X : TARN_LOGIC_1;
}

int AnyOne(const Vec& v) {
    if (Holds(v, StorageWidth(v), Logic::k1)) return TARN_LOGIC_1;
    return HasUnknown(v) ? TARN_LOGIC_X : TARN_LOGIC_0;
}

int Parity(const Vec& v) {
    if (HasUnknown(v)) return TARN_LOGIC_X;
    const auto begin = v.bits.begin();
    return static_cast<int>(std::count(begin, begin + std::max(v.width, 0), Logic::k1) % 2);
}

int IsTrue(const Vec& v) {
    return Holds(v, StorageWidth(v), Logic::k1) ? 1 : 0;
}

constexpr ReductionExport kReductionExports[] = {
    {"tarn_ReductionAND", tarn_ReductionAND, AllOnes},
    {"tarn_ReductionOR", tarn_ReductionOR, AnyOne},
    {"tarn_ReductionXOR", tarn_ReductionXOR, Parity},
    {"tarn_LogicalValue", tarn_LogicalValue, AnyOne},
    {"tarn_CheckCondition", tarn_CheckCondition, IsTrue},
};

class LogicReduction : public testing::TestWithParam<ReductionExport> {};
INSTANTIATE_TEST_SUITE_P(Logic, LogicReduction, testing::ValuesIn(kReductionExports), kExportName);

TEST_P(LogicReduction, MatchesDefinition) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const bool isDefined = !kIsChecked || function != &tarn_ReductionAND;
        const int width = isDefined ? gen.AnyWidth() : gen.Width();
        // Either anything, or few bits among equal ones, which every word must be looked at for.
        Vec v = gen.OneIn(4) ? gen.FourState(width)
                             : Filled(width, gen.OneIn(2) ? Logic::k0 : Logic::k1);
        for (int count = gen.OneIn(4) ? 0 : gen.Below(3); count-- > 0 && width > 0;) {
            v.bits[gen.Bits() % v.bits.size()] = static_cast<Logic>(gen.Below(4));
        }
        if (gen.OneIn(4)) v = gen.OneIn(2) ? Clean(std::move(v)) : SignFilled(std::move(v));
        ASSERT_EQ(Call(function, v), model(v)) << gen.Reproducer(v);
    }
}

TEST(Logic, KnownReductions) {
    EXPECT_EQ(Call(tarn_ReductionAND, "40'hffffffffff"_v), 1);
    EXPECT_EQ(Call(tarn_ReductionAND, "4'b1x11"_v), 3);
    EXPECT_EQ(Call(tarn_ReductionAND, "64'h0fffffffffffffzf"_v), 0);
    EXPECT_EQ(Call(tarn_ReductionAND, Words(4, {{0xF, 0x80}})), 3);
    EXPECT_EQ(Call(tarn_ReductionOR, "4'b0z10"_v), 1);
    EXPECT_EQ(Call(tarn_LogicalValue, "33'h100000000"_v), 1);
    EXPECT_EQ(Call(tarn_ReductionXOR, "8'sb10000011"_v), 1);
    EXPECT_EQ(Call(tarn_ReductionXOR, Words(8, {{7, 0x100}})), 3);
    EXPECT_EQ(Call(tarn_CheckCondition, "4'b00x0"_v), 0);
}

}  // namespace
}  // namespace tarn::test
