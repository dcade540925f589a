// Concatenation against a model that places one bit at a time, and bits rewritten in place.
#include <array>

#include <tarnlib/select.h>

#include "select_model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

Outcome Concatenate(int span, const Vec& destination, const Vec& operand, int offset) {
    const int written = std::min(span, offset + operand.width);
    return CallInEveryStorage(
        {written, WordCount(written), ResultPlace::kFirstOperand, {&destination, &operand}},
        [&](VectorWord* result, const VectorWord* const* operands) {
            tarn_Concatenate(span, result, operand.width, operands[1],
                             static_cast<unsigned>(offset));
            return 0;
        });
}

// Destinations that begin as the operand does can be the same storage.
Vec DrawDestination(Gen& gen, const Vec& operand, int width) {
    Vec destination = gen.FourState(width);
    if (gen.OneIn(4)) {
        std::copy_n(operand.bits.begin(), std::min(operand.bits.size(), destination.bits.size()),
                    destination.bits.begin());
    }
    return destination;
}

// What the checked build asks for: a clean operand without bits below the place, and a destination
// without bits from there on in its word 0.
void MakePlace(Vec& destination, Vec& operand, int place, int lowestOfOperand) {
    operand = Clean(operand);
    std::fill_n(operand.bits.begin(), lowestOfOperand, Logic::k0);
    std::fill(destination.bits.begin() + place, destination.bits.begin() + 32, Logic::k0);
}

TEST(Concatenate, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        Vec operand = gen.FourState(gen.Width());
        const int offset = gen.OneIn(4) ? 0 : gen.Below(32);
        const int end = offset + operand.width;
        const int span = gen.OneIn(2) ? end : gen.OneIn(2) ? end + gen.Below(99) : gen.Width();
        Vec destination = DrawDestination(gen, operand, span);
        if (kIsChecked) MakePlace(destination, operand, offset, 0);
        ASSERT_EQ(Concatenate(span, destination, operand, offset),
                  Placed(destination, std::min(span, end), operand, offset, span))
            << gen.Reproducer(span, offset, operand, destination);
    }
}

Outcome ConcatenateShifted(const Vec& destination, const Vec& operand) {
    const int span = destination.width;
    return CallInEveryStorage(
        {span, WordCount(span), ResultPlace::kFirstOperand, {&destination, &operand}},
        [&](VectorWord* result, const VectorWord* const* operands) {
            tarn_ConcatenateShifted(span, result, operands[1]);
            return 0;
        });
}

TEST(ConcatenateShifted, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        Vec operand = gen.FourState(gen.Width());
        Vec destination = DrawDestination(gen, operand, operand.width);
        const int place = gen.Between(0, 32);
        if (kIsChecked) MakePlace(destination, operand, place, place);
        ASSERT_EQ(ConcatenateShifted(destination, operand),
                  Placed(destination, operand.width, operand, 0, operand.width))
            << gen.Reproducer(operand, destination);
    }
}

// As generated code puts {c, b, a} together: each operand at the bit where the one before it ends.
TEST(Concatenate, PutsAWholeVectorTogether) {
    for (Gen& gen : Seeds(kRuns / 10)) {
        std::vector<Vec> operands;
        std::vector<Logic> expected;
        for (int i = gen.Between(1, 6); i-- > 0;) {
            operands.push_back(Clean(gen.FourState(gen.Width())));
            const Vec& last = operands.back();
            expected.insert(expected.end(), last.bits.begin(), last.bits.begin() + last.width);
        }
        const auto width = static_cast<int>(expected.size());
        std::vector<VectorWord> words(WordCount(width), VectorWord{~0U, ~0U});
        words[0] = {0, 0};
        int end = 0;
        for (const Vec& operand : operands) {
            const int first = end;
            end += operand.width;
            // The words above the one that an operand ended in do not hold anything yet.
            if (first % 32 == 0) words[static_cast<std::size_t>(first) / 32] = {0, 0};
            tarn_Concatenate(end - first / 32 * 32, &words[static_cast<std::size_t>(first) / 32],
                             operand.width, ToWords(operand).data(),
                             static_cast<unsigned>(first) % 32U);
        }
        expected.resize(32 * words.size(), Logic::k0);
        ASSERT_EQ(Words(width, words), (Vec{width, expected})) << gen.Reproducer(width);
    }
}

TEST(Concatenate, KnownResults) {
    const Vec zeros = Filled(40, Logic::k0);
    EXPECT_EQ(Concatenate(16, "16'h0034"_v, "8'hxz"_v, 8), "16'hxz34"_v);
    EXPECT_EQ(Concatenate(50, Words(50, {{0x3FF, 0}, {~0U, ~0U}}), "40'hz000000001"_v, 10),
              Words(50, {{0x7FF, 0}, {0, 0x3C000}}));
    EXPECT_EQ(Concatenate(64, "64'h0"_v, "64'h200000002"_v, 0), "64'h200000002"_v);
    EXPECT_EQ(ConcatenateShifted("64'h1"_v, "64'h200000002"_v), "64'h200000003"_v);
    EXPECT_EQ(ConcatenateShifted(zeros, "40'hxz00000001"_v), "40'hxz00000001"_v);
}

TEST(Concatenate, OfWidthBelowOneWritesNothing) {
    if (kIsChecked) return;
    EXPECT_EQ(Concatenate(0, Vec{}, Vec{}, 3), Vec{});
    EXPECT_EQ(Concatenate(-40, Filled(-40, Logic::k0), "8'hff"_v, 3), Filled(-40, Logic::k0));
    EXPECT_EQ(ConcatenateShifted(Vec{}, Vec{}), Vec{});
}

// What becomes of 0, 1, Z and X.
using Rewriting = std::array<Logic, 4>;

struct RewriteExport {
    const char* name;
    InPlace* function;
    Rewriting rewriting;
};

constexpr RewriteExport kRewriteExports[] = {
    {"tarn_Convert0ToZ", tarn_Convert0ToZ, {Logic::kZ, Logic::k1, Logic::kZ, Logic::kX}},
    {"tarn_Convert1ToZ", tarn_Convert1ToZ, {Logic::k0, Logic::kZ, Logic::kZ, Logic::kX}},
    {"tarn_ConvertXZTo0", tarn_ConvertXZTo0, {Logic::k0, Logic::k1, Logic::k0, Logic::k0}},
};

TEST(Rewrite, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec v = gen.FourState(gen.AnyWidth());
        for (const auto& [name, function, rewriting] : kRewriteExports) {
            Vec expected = v;
            for (Logic& bit : expected.bits) {
                bit = rewriting[static_cast<std::size_t>(bit)];
            }
            ASSERT_EQ(Call(function, v), expected) << name << ": " << gen.Reproducer(v);
        }
    }
}

TEST(Rewrite, KnownResults) {
    EXPECT_EQ(Call(tarn_Convert0ToZ, "8'h0f"_v), Words(8, {{0xF, 0xFFFFFFF0}}));
    EXPECT_EQ(Call(tarn_Convert1ToZ, "8'h0f"_v), Words(8, {{0, 0xF}}));
    EXPECT_EQ(Call(tarn_ConvertXZTo0, "4'bx1z0"_v), "4'b0100"_v);
}

}  // namespace
}  // namespace tarn::test
