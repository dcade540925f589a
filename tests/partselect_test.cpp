// Fields and bits read out of a vector, against a model that reads one bit at a time.
#include <algorithm>
#include <climits>

#include <tarnlib/select.h>

#include "select_model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

// The source is as long as the field needs, so that reading one word more is a stray access.
Outcome ReadField(const Vec& source, int offset, int width) {
    return CallInEveryStorage({width, WordCount(width), ResultPlace::kAnywhere, {&source}},
                              [&](VectorWord* result, const VectorWord* const* operands) {
                                  tarn_Partselect(result, operands[0],
                                                  static_cast<unsigned>(offset), width);
                                  return 0;
                              });
}

Outcome ReadSignedField(int resultWidth, const Vec& source, int offset, int width) {
    const int written = std::max(resultWidth, width);
    return CallInEveryStorage({written, WordCount(written), ResultPlace::kAnywhere, {&source}},
                              [&](VectorWord* result, const VectorWord* const* operands) {
                                  tarn_SignedPartselect(resultWidth, result, operands[0],
                                                        static_cast<unsigned>(offset), width);
                                  return 0;
                              });
}

TEST(Partselect, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.Width();
        const int offset = gen.OneIn(4) ? 0 : gen.Below(32);
        const Vec source = gen.FourState(offset + width);
        ASSERT_EQ(ReadField(source, offset, width),
                  Field(0, source, offset, width, Extension::kZero))
            << gen.Reproducer(offset, width, source);
        const int resultWidth = gen.OneIn(2) ? width : gen.AnyWidth();
        ASSERT_EQ(ReadSignedField(resultWidth, source, offset, width),
                  Field(resultWidth, source, offset, width, Extension::kSign))
            << gen.Reproducer(resultWidth, offset, width, source);
    }
}

// The result may be the vector that the field lies in, from any word up to the field's first one.
TEST(Partselect, InPlaceMatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const int width = gen.Width();
        const int resultWidth = gen.OneIn(2) ? width : gen.Width();
        const int low = gen.OneIn(2) ? gen.Below(200) : 32 * gen.Below(6);
        const Vec v = gen.FourState(low + std::max(width, resultWidth));
        const auto place = static_cast<std::size_t>(gen.Between(0, low / 32));
        const auto offset = static_cast<unsigned>(low) % 32U;
        for (const bool isSigned : {false, true}) {
            std::vector<VectorWord> words = ToWords(v);
            VectorWord* const result = words.data() + place;
            const VectorWord* const source = words.data() + low / 32;
            if (isSigned) {
                tarn_SignedPartselect(resultWidth, result, source, offset, width);
            } else {
                tarn_Partselect(result, source, offset, width);
            }
            const Vec field = Field(isSigned ? resultWidth : 0, v, low, width,
                                    isSigned ? Extension::kSign : Extension::kZero);
            Vec expected = v;
            std::copy(field.bits.begin(), field.bits.end(),
                      expected.bits.begin() + 32 * static_cast<std::ptrdiff_t>(place));
            ASSERT_EQ(Words(v.width, words), expected)
                << gen.Reproducer(isSigned, resultWidth, place, low, width, v);
        }
    }
}

TEST(Partselect, KnownResults) {
    EXPECT_EQ(ReadField("64'h00000002c0000000"_v, 30, 4), "4'hb"_v);
    EXPECT_EQ(ReadField("40'hxz12345678"_v, 0, 40), "40'hxz12345678"_v);
    EXPECT_EQ(ReadSignedField(40, "4'bx010"_v, 0, 4),
              Words(40, {{0xFFFFFFFA, 0xFFFFFFF8}, {~0U, ~0U}}));
    EXPECT_EQ(ReadSignedField(8, "40'hz000000000"_v, 4, 36), Words(36, {{0, 0}, {0, ~0U}}));
}

TEST(Partselect, EmptyFieldTouchesNothing) {
    if (kIsChecked) return;
    for (const int width : {0, -1, -40, INT_MIN}) {
        EXPECT_EQ(ReadField(Vec{}, 5, width), Filled(width, Logic::k0));
        EXPECT_EQ(ReadSignedField(width, Vec{}, 5, width), Filled(width, Logic::k0));
    }
}

Outcome ReadIndexedField(const Vec& source, int index, int width) {
    // Nothing may be read where no bit of the field is the source's.
    const bool isOutside = index >= source.width || std::int64_t{index} + width <= 0;
    const auto* const unreadable = reinterpret_cast<const VectorWord*>(sizeof(VectorWord));
    return CallInEveryStorage({width, WordCount(width), ResultPlace::kAnywhere, {&source}},
                              [&](VectorWord* result, const VectorWord* const* operands) {
                                  tarn_IndexedPartselect(result, source.width,
                                                         isOutside ? unreadable : operands[0],
                                                         index, width);
                                  return 0;
                              });
}

int DrawIndex(Gen& gen, int sourceWidth, int width) {
    const int index = gen.Between(-width - 2, sourceWidth + 2);
    const int edges[] = {INT_MIN, INT_MIN + 31, -width, 1 - width, sourceWidth, INT_MAX};
    const int choice = gen.Below(8);
    return choice == 0   ? edges[gen.Below(std::size(edges))]
           : choice <= 2 ? index & ~31
           : choice == 3 ? gen.Below(sourceWidth)
                         : index;
}

TEST(IndexedPartselect, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec source = gen.FourState(gen.Width());
        const int width = gen.Width();
        const int index = DrawIndex(gen, source.width, width);
        ASSERT_EQ(ReadIndexedField(source, index, width),
                  Field(0, source, index, width, Extension::kZero))
            << gen.Reproducer(index, width, source);
    }
}

// Both ends of the field at, below and above those of a source of a few words.
TEST(IndexedPartselect, MatchesModelAtEveryIndex) {
    Gen gen(1);
    for (const int sourceWidth : {1, 31, 32, 33, 64, 70, 96}) {
        const Vec source = gen.FourState(sourceWidth);
        for (const int width : {1, 5, 32, 40, 64, 130}) {
            for (int index = -width - 1; index <= sourceWidth + 1; ++index) {
                ASSERT_EQ(ReadIndexedField(source, index, width),
                          Field(0, source, index, width, Extension::kZero))
                    << index << ' ' << width << ' ' << source;
            }
        }
    }
}

TEST(IndexedPartselect, KnownResults) {
    EXPECT_EQ(ReadIndexedField("8'b01100101"_v, -3, 8), "8'b00101xxx"_v);
    EXPECT_EQ(ReadIndexedField("8'b01100101"_v, 5, 8), "8'bxxxxx011"_v);
    EXPECT_EQ(ReadIndexedField("8'hff"_v, 8, 5), "5'bx"_v);
    EXPECT_EQ(ReadIndexedField("8'hff"_v, -5, 5), "5'bx"_v);
    EXPECT_EQ(ReadIndexedField("64'h12345678abcdef01"_v, 32, 40), "40'hxx12345678"_v);
    EXPECT_EQ(ReadIndexedField(Words(40, {{0, 0}, {0xFFFFFF5A, 0}}), 36, 8), "8'hx5"_v);
}

// At the ends of the widest vector the end of a field is no int. Of the vector only its last words
// are there.
TEST(IndexedPartselect, DoesNotOverflow) {
    if (kIsChecked) return;
    const std::vector<VectorWord> last = {{0x89ABCDEF, 0x80000001}, {0x36543210, 0x40000000}};
    const auto* const source = reinterpret_cast<const VectorWord*>(
        reinterpret_cast<std::uintptr_t>(last.data()) -
        (WordCount(INT_MAX) - last.size()) * sizeof(VectorWord));
    VectorWord result[2] = {};
    tarn_IndexedPartselect(result, INT_MAX, source, INT_MAX - 39, 64);
    EXPECT_EQ(Words(64, {result[0], result[1]}),
              Field(0, Words(63, last), 24, 64, Extension::kZero));
    EXPECT_EQ(tarn_BitValue(INT_MAX, source, INT_MAX - 1), TARN_LOGIC_Z);
    for (const int index : {INT_MIN, INT_MAX}) {
        EXPECT_EQ(ReadIndexedField(Filled(INT_MIN, Logic::k0), index, 40), Clean(AllX(40)));
        EXPECT_EQ(ReadIndexedField("8'hff"_v, index, INT_MIN), Filled(INT_MIN, Logic::k0));
    }
}

Outcome BitValue(const Vec& source, int index) {
    return CallInEveryStorage({0, 0, ResultPlace::kNone, {&source}},
                              [&](VectorWord*, const VectorWord* const* operands) {
                                  return tarn_BitValue(source.width, operands[0], index);
                              });
}

TEST(BitValue, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec source = gen.FourState(gen.AnyWidth());
        const int index = DrawIndex(gen, std::max(source.width, 1), 32);
        const bool isInside = index >= 0 && index < source.width;
        const Logic bit = isInside ? source.bits[static_cast<std::size_t>(index)] : Logic::kX;
        ASSERT_EQ(BitValue(source, index), static_cast<int>(bit)) << gen.Reproducer(index, source);
    }
}

Outcome FillX(const Vec& words, int count, int base) {
    const int written = count < 1 ? 0 : base + count;
    return CallInEveryStorage({written, WordCount(written), ResultPlace::kFirstOperand, {&words}},
                              [&](VectorWord* result, const VectorWord* const*) {
                                  tarn_CleanBasedFillX(result, count, base);
                                  return 0;
                              });
}

TEST(CleanBasedFillX, MatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const int base = gen.Below(32), count = gen.Width();
        const Vec words = gen.FourState(base + count);
        Vec expected = Clean(AllX(base + count));
        std::copy_n(words.bits.begin(), base, expected.bits.begin());
        ASSERT_EQ(FillX(words, count, base), expected) << gen.Reproducer(base, count, words);
    }
    EXPECT_EQ(FillX(Words(34, {{1, 2}, {3, 4}}), 4, 30),
              Words(34, {{0xC0000001, 0xC0000002}, {3, 3}}));
    if (kIsChecked) return;
    EXPECT_EQ(FillX("32'h89abcdef"_v, 0, 3), Vec{});
    EXPECT_EQ(FillX("32'h89abcdef"_v, INT_MIN, 31), Vec{});
}

// Whether a vector, read as signed or unsigned, is known and an index that an int can hold.
template <Extension extension>
int IsIndex(const Vec& index) {
    if (index.width < 1 || HasUnknown(index)) return 0;
    const bool isSigned = extension == Extension::kSign;
    Integer value = ToInteger(index);
    if (isSigned && index.bits.back() == Logic::k1) value -= Integer(1) << index.bits.size();
    return value <= INT_MAX && value >= INT_MIN ? 1 : 0;
}

template <Extension extension>
void ExpectScans(ReducesOperand* function) {
    for (Gen& gen : Seeds(kRuns)) {
        Vec index = gen.Vector(kIsChecked ? gen.Width() : gen.AnyWidth());
        // Most have one word and its extension, and some of these a wrong bit.
        if (index.width > 32 && !gen.OneIn(4)) {
            const bool isSigned = gen.OneIn(2);
            index = Extended(Prefix(index, 32), index.width,
                             isSigned ? Extension::kSign : Extension::kZero);
            Logic& any = index.bits[gen.Bits() % index.bits.size()];
            if (gen.OneIn(2)) any = gen.OneIn(2) ? Logic::k1 : Logic::k0;
        }
        if (kIsChecked) {
            index = extension == Extension::kSign ? SignFilled(index) : Clean(index);
        }
        ASSERT_EQ(Call(function, index), IsIndex<extension>(index)) << gen.Reproducer(index);
    }
}

TEST(ScanIndexOfSelect, MatchesModel) {
    ExpectScans<Extension::kSign>(tarn_SignedScanIndexOfSelect);
    ExpectScans<Extension::kZero>(tarn_UnsignedScanIndexOfSelect);
}

TEST(ScanIndexOfSelect, KnownResults) {
    EXPECT_EQ(Call(tarn_UnsignedScanIndexOfSelect, "32'h80000000"_v), 0);
    EXPECT_EQ(Call(tarn_SignedScanIndexOfSelect, "32'h80000000"_v), 1);
    EXPECT_EQ(Call(tarn_UnsignedScanIndexOfSelect, "64'h5"_v), 1);
    EXPECT_EQ(Call(tarn_SignedScanIndexOfSelect, "40'shfffffffffb"_v), 1);
    EXPECT_EQ(Call(tarn_SignedScanIndexOfSelect, "40'h100000000"_v), 0);
    EXPECT_EQ(Call(tarn_SignedScanIndexOfSelect, "40'shz000000005"_v), 0);
    EXPECT_EQ(Call(tarn_UnsignedScanIndexOfSelect, "40'hz000000005"_v), 0);
}

}  // namespace
}  // namespace tarn::test
