// Fields of bits written into a vector, and the flag of a change.
#include <tarnlib/assign.h>

#include "field_model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

// Both forms of a write are called. The one with the flag must write the same, and return whether
// that differs from what the target held.
template <class Write, class WriteWithFlag>
Outcome AssignBoth(const Vec& target, const Vec& value, const Write& write,
                   const WriteWithFlag& writeWithFlag) {
    const CallShape shape{
        target.width, WordCount(target.width), ResultPlace::kFirstOperand, {&target, &value}};
    const Outcome written =
        CallInEveryStorage(shape, [&](VectorWord* result, const VectorWord* const* operands) {
            write(result, operands[1]);
            return 0;
        });
    Outcome flagged =
        CallInEveryStorage(shape, [&](VectorWord* result, const VectorWord* const* operands) {
            return writeWithFlag(result, operands[1]);
        });
    if (flagged.broken.empty()) flagged.broken = written.broken;
    if (!(written.result == flagged.result)) flagged.broken = "the forms differ";
    if (flagged.returned != (flagged.result == target ? 0 : 1)) flagged.broken = "wrong flag";
    return flagged;
}

Outcome Assign(const Vec& target, const Vec& value, unsigned offset, int width) {
    return AssignBoth(
        target, value,
        [&](VectorWord* t, const VectorWord* v) { tarn_PartselectAssign(t, v, offset, width); },
        [&](VectorWord* t, const VectorWord* v) {
            return tarn_NotIdenticalPartselectAssign(t, v, offset, width);
        });
}

Outcome AssignIndexed(const Vec& target, const Vec& value, int index, int width) {
    return AssignBoth(
        target, value,
        [&](VectorWord* t, const VectorWord* v) {
            tarn_IndexedPartselectAssign(target.width, t, v, index, width);
        },
        [&](VectorWord* t, const VectorWord* v) {
            return tarn_NotIdenticalIndexedPartselectAssign(target.width, t, v, index, width);
        });
}

// The target ends with the field.
TEST(Assign, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.Width();
        const int offset = gen.OneIn(4) ? 0 : gen.Below(32);
        const Vec target = gen.FourState(offset + width);
        const Vec value = DrawFieldValue(gen, target, offset, width);
        ASSERT_EQ(Assign(target, value, static_cast<unsigned>(offset), width),
                  WithField(target, value, offset, width))
            << gen.Reproducer(offset, width, target, value);
    }
}

TEST(Assign, IndexedMatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec target = gen.FourState(gen.Width());
        const auto [index, width, value] = DrawField(gen, target);
        ASSERT_EQ(AssignIndexed(target, value, index, width),
                  WithField(target, value, index, width))
            << gen.Reproducer(index, width, target, value);
    }
}

// The value begins below the target word, because it is the vector that the field lies in.
TEST(Assign, FieldTakesItsOwnVector) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec vector = gen.FourState(gen.Width());
        const auto [low, width, unused] = DrawInnerField(gen, vector);
        std::vector<VectorWord> plain = ToWords(vector), flagged = plain;
        const unsigned offset = static_cast<unsigned>(low) % 32;
        const std::size_t word = static_cast<std::size_t>(low) / 32;
        tarn_PartselectAssign(&plain[word], plain.data(), offset, width);
        const int flag =
            tarn_NotIdenticalPartselectAssign(&flagged[word], flagged.data(), offset, width);
        const Vec expected = WithField(vector, vector, low, width);
        const std::string reproducer = gen.Reproducer(low, width, vector);
        ASSERT_EQ(Words(vector.width, plain), expected) << reproducer;
        ASSERT_EQ(Words(vector.width, flagged), expected) << reproducer;
        ASSERT_EQ(flag, expected == vector ? 0 : 1) << reproducer;
    }
}

// One bit decides, in the first word, in the last one and between, in aval alone or bval alone.
TEST(Assign, FlagSeesEveryBit) {
    for (const int offset : {0, 7}) {
        const Vec target = Filled(offset + 700, Logic::k1);
        for (std::size_t i = 0; i < 700; ++i) {
            Vec value = Filled(700, Logic::k1);
            value.bits[i] = i % 2 == 0 ? Logic::kX : Logic::k0;
            ASSERT_EQ(Assign(target, value, static_cast<unsigned>(offset), 700),
                      WithField(target, value, offset, 700))
                << i;
            ASSERT_EQ(AssignIndexed(target, value, offset, 700),
                      WithField(target, value, offset, 700))
                << i;
            ASSERT_EQ(AssignIndexed(target, value, -100 - offset, 700),
                      WithField(target, value, -100 - offset, 700))
                << i;
        }
    }
}

TEST(Assign, EmptyFieldTouchesNothing) {
    const Vec target = "8'b01zx01zx"_v;
    for (const int width : {0, -1, -40, INT_MIN}) {
        if (kIsChecked) break;
        EXPECT_EQ(Assign(target, Vec{}, 5, width), target);
        EXPECT_EQ(AssignIndexed(target, Vec{}, 5, width), target);
        EXPECT_EQ(AssignIndexed(target, Vec{}, -1, width), target);
        EXPECT_EQ(AssignIndexed(Vec{width, {}}, Vec{}, 0, 8), (Vec{width, {}}));
    }
}

Outcome Differ(const Vec& a, const Vec& b) {
    return CallInEveryStorage({0, 0, ResultPlace::kNone, {&a, &b}},
                              [&](VectorWord*, const VectorWord* const* operands) {
                                  return tarn_NotIdentical(a.width, operands[0], operands[1]);
                              });
}

// Bits above the width count.
TEST(NotIdentical, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec a = gen.FourState(gen.AnyWidth());
        Vec b = a;
        if (gen.OneIn(2) && !b.bits.empty()) {
            b.bits[gen.Bits() % b.bits.size()] = static_cast<Logic>(gen.Below(4));
        }
        ASSERT_EQ(Differ(a, b), a == b ? 0 : 1) << gen.Reproducer(a, b);
    }
}

}  // namespace
}  // namespace tarn::test
