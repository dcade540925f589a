// Shifts against a model that moves one bit at a time, and the classification of amounts.
#include <climits>

#include <tarnlib/shift.h>

#include "select_model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

using Shift = void(int, VectorWord*, int, const VectorWord*, unsigned);
using ShiftModel = Vec(int width, const Vec& source, std::uint64_t amount);

using ShiftExport = Export<Shift, ShiftModel>;

constexpr ShiftExport kLeft{"tarn_LogicalShiftLeft", tarn_LogicalShiftLeft, Left};
constexpr ShiftExport kRight{"tarn_LogicalShiftRight", tarn_LogicalShiftRight,
                             Right<Extension::kZero>};
constexpr ShiftExport kArithmeticRight{"tarn_ArithmeticalShiftRight", tarn_ArithmeticalShiftRight,
                                       Right<Extension::kSign>};

// Not by the export: an export of a Windows module has two addresses.
bool IsLeft(const ShiftExport& shift) {
    return shift.model == Left;
}

// The left shift is not to look at the source's width.
Outcome CallShift(const ShiftExport& shift, int width, const Vec& source, unsigned amount) {
    const int sourceWidth = IsLeft(shift) ? -7 : source.width;
    return CallInEveryStorage({width, WordCount(width), ResultPlace::kAnywhere, {&source}},
                              [&](VectorWord* result, const VectorWord* const* operands) {
                                  shift.function(width, result, sourceWidth, operands[0], amount);
                                  return 0;
                              });
}

unsigned DrawAmount(Gen& gen, int width) {
    const auto any = static_cast<unsigned>(gen.Below(width + 70));
    switch (gen.Below(8)) {
        case 0:
            return any & ~31U;
        case 1:
            return static_cast<unsigned>(width + gen.Between(-1, 1));
        case 2:
            return static_cast<unsigned>(gen.Bits() >> gen.Between(32, 63));
        case 3:
        case 4:
            return any;
        default:
            return static_cast<unsigned>(gen.Below(32));
    }
}

class Shifts : public testing::TestWithParam<ShiftExport> {};
INSTANTIATE_TEST_SUITE_P(Shift, Shifts, testing::Values(kLeft, kRight, kArithmeticRight),
                         kExportName);

TEST_P(Shifts, MatchesModel) {
    const ShiftExport& shift = GetParam();
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.Width();
        const bool isSameWidth = IsLeft(shift) || gen.OneIn(2);
        const Vec source = gen.FourState(isSameWidth ? width : gen.Width());
        const unsigned amount = DrawAmount(gen, source.width);
        ASSERT_EQ(CallShift(shift, width, source, amount), shift.model(width, source, amount))
            << gen.Reproducer(width, amount, source);
    }
}

// Every count of words up to several blocks, and one so large that a vector moved onto itself meets
// its own words a page away; moved by bits, by words and by both.
TEST_P(Shifts, MatchesModelAtEveryCountOfWords) {
    const ShiftExport& shift = GetParam();
    Gen gen(1);
    for (int words = 1; words <= 71; ++words) {
        const int width = 32 * (words <= 70 ? words : 900);
        const Vec source = gen.FourState(width);
        for (const unsigned amount : {1U, 31U, 32U, 45U, 160U, 32U * 60, 32U * 410 + 9}) {
            ASSERT_EQ(CallShift(shift, width, source, amount), shift.model(width, source, amount))
                << width << " by " << amount;
        }
    }
}

// A result without bits is not written, a source without bits is not read.
TEST_P(Shifts, OfWidthBelowOneTouchNothing) {
    const ShiftExport& shift = GetParam();
    for (const int width : {0, -1, INT_MIN}) {
        if (kIsChecked) break;
        const Vec empty = Filled(width, Logic::k0);
        EXPECT_EQ(CallShift(shift, width, empty, 1), empty);
        if (IsLeft(shift)) continue;
        EXPECT_EQ(CallShift(shift, 40, empty, 1), "40'h0"_v);
    }
}

TEST(Shift, KnownResults) {
    EXPECT_EQ(CallShift(kLeft, 8, "8'b10110001"_v, 3), Words(8, {{0x588, 0}}));
    EXPECT_EQ(CallShift(kLeft, 8, "8'hff"_v, ~0U), "8'h00"_v);
    EXPECT_EQ(CallShift(kLeft, 64, "64'h1z"_v, 32), "64'h1z00000000"_v);
    EXPECT_EQ(CallShift(kRight, 40, "40'hxz00000001"_v, 32), "40'h0xz"_v);
    EXPECT_EQ(CallShift(kRight, 40, "40'hxz00000001"_v, 36), "40'h0x"_v);
    EXPECT_EQ(CallShift(kArithmeticRight, 8, "8'sh80"_v, 3), "8'shf0"_v);
    EXPECT_EQ(CallShift(kArithmeticRight, 40, "40'shz000000000"_v, 36), "40'shz"_v);
    EXPECT_EQ(CallShift(kArithmeticRight, 64, "8'sh80"_v, 8), Words(64, {{~0U, 0}, {~0U, 0}}));
}

int KindOfAmount(const Vec& amount) {
    if (amount.width < 1) return 0;
    if (HasUnknown(amount)) return 3;
    return ToInteger(amount) > 0xFFFFFFFFU ? 1 : 0;
}

TEST(ScanShiftCount, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        Vec amount = gen.Vector(kIsChecked ? gen.Width() : gen.AnyWidth());
        if (gen.OneIn(2) && amount.width > 32) {
            amount = Extended(Prefix(amount, 32), amount.width, Extension::kZero);
            const std::size_t i = gen.Bits() % amount.bits.size();
            amount.bits[i] = gen.OneIn(2) ? Logic::k1 : amount.bits[i];
        }
        if (kIsChecked) amount = Clean(amount);
        ASSERT_EQ(Call(tarn_ScanShiftCount, amount), KindOfAmount(amount))
            << gen.Reproducer(amount);
    }
}

TEST(ScanShiftCount, KnownResults) {
    EXPECT_EQ(Call(tarn_ScanShiftCount, "64'h5"_v), 0);
    EXPECT_EQ(Call(tarn_ScanShiftCount, "32'hffffffff"_v), 0);
    EXPECT_EQ(Call(tarn_ScanShiftCount, "64'h100000000"_v), 1);
    EXPECT_EQ(Call(tarn_ScanShiftCount, "96'hz0000000100000005"_v), 3);
    EXPECT_EQ(Call(tarn_ScanShiftCount, "8'bx"_v), 3);
}

}  // namespace
}  // namespace tarn::test
