// The additive operators against the reference model, and at their edges.
#include <tarnlib/arith.h>

#include "arith_model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

using TwoOperandExport = Export<TwoOperands, Vec(int, const Vec&, const Vec&)>;
using OneOperandExport = Export<OneOperand, Vec(int, const Vec&)>;
using InPlaceExport = Export<InPlace, Vec(const Vec&)>;

constexpr TwoOperandExport kTwoOperandExports[] = {
    {"tarn_SignedAdd", tarn_SignedAdd, Sum<kSign, 1>},
    {"tarn_UnsignedAdd", tarn_UnsignedAdd, Sum<kZero, 1>},
    {"tarn_SignedSub", tarn_SignedSub, Sum<kSign, -1>},
    {"tarn_UnsignedSub", tarn_UnsignedSub, Sum<kZero, -1>},
};
constexpr OneOperandExport kOneOperandExports[] = {
    {"tarn_SignedMinus", tarn_SignedMinus, Signed<kSign, -1>},
    {"tarn_UnsignedMinus", tarn_UnsignedMinus, Signed<kZero, -1>},
    {"tarn_SignedPlus", tarn_SignedPlus, Signed<kSign, 1>},
    {"tarn_UnsignedPlus", tarn_UnsignedPlus, Signed<kZero, 1>},
};
constexpr InPlaceExport kInPlaceExports[] = {
    {"tarn_Inc", tarn_Inc, Stepped<1>},
    {"tarn_Dec", tarn_Dec, Stepped<-1>},
};

// A run of ones from bit `first` up to bit `last`, the others zeros.
Vec Ones(int width, std::size_t first, std::size_t last) {
    Vec vec = Filled(width, Logic::k0);
    for (std::size_t i = first; i < last; ++i) {
        vec.bits[i] = Logic::k1;
    }
    return vec;
}

class AddTwoOperands : public testing::TestWithParam<TwoOperandExport> {};
INSTANTIATE_TEST_SUITE_P(Add, AddTwoOperands, testing::ValuesIn(kTwoOperandExports), kExportName);

TEST_P(AddTwoOperands, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const auto [width, a, b] = gen.TwoOperands();
        ASSERT_EQ(Call(function, width, a, b), model(width, a, b)) << gen.Reproducer(width, a, b);
    }
}

// A chain starts and ends in any word of a block and of its tail, and passes from one to the next;
// in the two widest vectors through many blocks.
TEST_P(AddTwoOperands, CarriesThroughBlocksAndTails) {
    const auto& [name, function, model] = GetParam();
    for (int words = 1; words <= 133; words += words < 27 ? 1 : 53) {
        const int width = 32 * words;
        const std::size_t last = 32 * static_cast<std::size_t>(words);
        for (std::size_t first = 0; first < last; first += 32) {
            const Vec ones = Ones(width, first, last), inner = Ones(width, first, last - 13);
            const Vec zeros = Filled(width, Logic::k0);
            const Vec bottom = Ones(width, first, first + 1), one = Ones(1, 0, 1);
            for (const auto& [a, b] : {std::pair{ones, bottom},
                                       {inner, bottom},
                                       {bottom, ones},
                                       {zeros, bottom},
                                       {ones, ones},
                                       {zeros, one},
                                       {ones, one},
                                       {one, inner}}) {
                ASSERT_EQ(Call(function, width, a, b), model(width, a, b)) << a << " " << b;
            }
        }
    }
}

class AddOneOperand : public testing::TestWithParam<OneOperandExport> {};
INSTANTIATE_TEST_SUITE_P(Add, AddOneOperand, testing::ValuesIn(kOneOperandExports), kExportName);

TEST_P(AddOneOperand, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const auto [width, a] = gen.OneOperand();
        ASSERT_EQ(Call(function, width, a), model(width, a)) << gen.Reproducer(width, a);
    }
}

class AddInPlace : public testing::TestWithParam<InPlaceExport> {};
INSTANTIATE_TEST_SUITE_P(Add, AddInPlace, testing::ValuesIn(kInPlaceExports), kExportName);

TEST_P(AddInPlace, MatchesModel) {
    const auto& [name, function, model] = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const Vec v = gen.Vector(gen.AnyWidth());
        ASSERT_EQ(Call(function, v), model(v)) << gen.Reproducer(v);
    }
}

// What the model leaves to conventions of its own: the storage, word for word.
TEST(Add, KnownResults) {
    EXPECT_EQ(Call(tarn_UnsignedAdd, 8, "8'hff"_v, "8'h01"_v), Words(8, {{0x100, 0}}));
    EXPECT_EQ(Call(tarn_SignedAdd, 64, "8'hff"_v, "64'h5"_v), "64'h104"_v);  // bit 31 is the sign
    EXPECT_EQ(Call(tarn_SignedAdd, 8, "64'hz0000000000"_v, "8'h00"_v), AllX(8));
    EXPECT_EQ(Call(tarn_UnsignedAdd, 40, "40'h1"_v, Words(8, {{0, 0x100}})), AllX(40));
    EXPECT_EQ(Call(tarn_UnsignedSub, 8, "8'h00"_v, "8'h01"_v), Words(8, {{0xFFFFFFFF, 0}}));
    EXPECT_EQ(Call(tarn_UnsignedSub, 40, Vec{}, Vec{-1, {}}), "40'h0"_v);
    EXPECT_EQ(Call(tarn_UnsignedMinus, 64, "1'b1"_v), "64'hffffffffffffffff"_v);
    EXPECT_EQ(Call(tarn_SignedPlus, 64, "32'h80000000"_v), "64'hffffffff80000000"_v);
    EXPECT_EQ(Call(tarn_Inc, "40'hffffffffff"_v), Words(40, {{0, 0}, {0x100, 0}}));
    EXPECT_EQ(Call(tarn_Dec, "16'h0"_v), Words(16, {{0xFFFFFFFF, 0}}));
}

}  // namespace
}  // namespace tarn::test
