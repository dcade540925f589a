// Memory words: packed and unpacked, and fields of them read and written.
#include <cstring>
#include <functional>

#include <tarnlib/memory.h>

#include "field_model.h"
#include "support/guarded.h"
#include "support/model.h"
#include "support/property.h"

namespace tarn::test {
namespace {

using WordList = std::vector<VectorWord>;

/*------------------------------------------------------------------------------------------------
 * The model
 *----------------------------------------------------------------------------------------------*/

// All bits above the width the same.
Vec WithBitsAbove(Vec vec, Logic above) {
    std::fill(vec.bits.begin() + vec.width, vec.bits.end(), above);
    return vec;
}

/*------------------------------------------------------------------------------------------------
 * Calls
 *----------------------------------------------------------------------------------------------*/

// What a call left behind: the memory word, the vector beside it, the register's first words.
struct After {
    Bytes memory;
    WordList words;
    WordList registerWords;
    int returned = 0;
    std::string broken;
};

constexpr VectorWord kPaint{0x5A5A5A5A, 0xC3C3C3C3};

bool AreSame(const WordList& a, const WordList& b) {
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(VectorWord)) == 0);
}

using CallOnMemory = std::function<int(std::uint8_t* memory, VectorWord* words)>;

// Both lie in exactly the bytes that they have, at each edge. The register's first words, two more
// than the vectors of a test have, are painted.
After CallAtEveryEdge(const Bytes& memory, const WordList& words, const CallOnMemory& call) {
    static GuardedBlock memoryBlock, wordBlock;
    const std::size_t painted = memory.size() / 8 + 3;
    After first;
    for (const Edge edge : kEdges) {
        auto* const m = reinterpret_cast<std::uint8_t*>(memoryBlock.Place(memory.size(), edge));
        auto* const w =
            reinterpret_cast<VectorWord*>(wordBlock.Place(words.size() * sizeof(VectorWord), edge));
        std::copy(memory.begin(), memory.end(), m);
        std::copy(words.begin(), words.end(), w);
        std::fill_n(tarn_VectorRegister, painted, kPaint);
        After after;
        after.returned = call(m, w);
        after.memory.assign(m, m + memory.size());
        after.words.assign(w, w + words.size());
        after.registerWords.assign(tarn_VectorRegister, tarn_VectorRegister + painted);
        if (!memoryBlock.MarginsAreIntact() || !wordBlock.MarginsAreIntact()) {
            after.broken = "bytes changed beside the storage";
        }
        if (edge == kEdges[0]) first = after;
        if (!after.broken.empty()) first.broken = after.broken;
        if (after.memory != first.memory || !AreSame(after.words, first.words) ||
            !AreSame(after.registerWords, first.registerWords) ||
            after.returned != first.returned) {
            first.broken = "another result at another edge";
        }
    }
    return first;
}

// Compares what a call left behind; `inRegister` is null for a call that leaves the register alone.
void ExpectAfter(const After& after, const Bytes& memory, const Vec& words, const Vec* inRegister,
                 int returned) {
    EXPECT_EQ(after.broken, "");
    EXPECT_EQ(after.memory, memory);
    EXPECT_EQ(Words(words.width, after.words), words);
    WordList registerWords = inRegister == nullptr ? WordList{} : ToWords(*inRegister);
    registerWords.resize(after.registerWords.size(), kPaint);
    EXPECT_TRUE(AreSame(after.registerWords, registerWords));
    EXPECT_EQ(after.returned, returned);
}

#define ASSERT_AFTER(after, memory, words, inRegister, returned, reproducer) \
    do {                                                                     \
        ExpectAfter(after, memory, words, inRegister, returned);             \
        ASSERT_FALSE(testing::Test::HasFailure()) << (reproducer);           \
    } while (false)

/*------------------------------------------------------------------------------------------------
 * Whole memory words
 *----------------------------------------------------------------------------------------------*/

using CopyExport = void(int, VectorWord*, int, const std::uint8_t*, int);

void ExpectUnpacked(Gen& gen, CopyExport* function, Extension extension) {
    const Vec stored = gen.FourState(gen.Width());
    const int width = gen.OneIn(2) ? stored.width : gen.AnyWidth();
    const Bytes memory = ToBytes(stored);
    const After after = CallAtEveryEdge(memory, WordList(WordCount(width), kPaint),
                                        [&](std::uint8_t* m, VectorWord* w) {
                                            function(width, w, stored.width, m, -stored.width & 31);
                                            return 0;
                                        });
    const Logic sign = stored.bits[static_cast<std::size_t>(stored.width) - 1];
    const Logic above = extension == Extension::kSign ? sign : Logic::k0;
    const Vec expected = Extended(WithBitsAbove(stored, above), width, extension);
    ASSERT_AFTER(after, memory, expected, nullptr, 0, gen.Reproducer(width, stored));
}

TEST(MemoryWord, CopiesMatchModel) {
    for (Gen& gen : Seeds(kRuns)) {
        ExpectUnpacked(gen, tarn_UnsignedCopyMemoryValue, Extension::kZero);
        ExpectUnpacked(gen, tarn_SignedCopyMemoryValue, Extension::kSign);
        if (HasFailure()) break;
    }
}

// What the memory word holds before the call is often the value, or differs from it in one bit.
TEST(MemoryWord, AssignMatchesModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec value = gen.FourState(gen.Width());
        const Bytes expected = ToBytes(value);
        Bytes before = gen.OneIn(2) ? expected : ToBytes(gen.FourState(value.width));
        if (gen.OneIn(2)) {
            before[gen.Bits() % before.size()] ^= static_cast<std::uint8_t>(1U << gen.Below(8));
        }
        const After plain =
            CallAtEveryEdge(before, ToWords(value), [&](std::uint8_t* m, VectorWord* w) {
                tarn_MemoryWordAssign(value.width, m, w);
                return 0;
            });
        const After flagged =
            CallAtEveryEdge(before, ToWords(value), [&](std::uint8_t* m, VectorWord* w) {
                return tarn_NotIdenticalMemoryWordAssign(value.width, m, w);
            });
        ASSERT_AFTER(plain, expected, value, nullptr, 0, gen.Reproducer(value));
        ASSERT_AFTER(flagged, expected, value, nullptr, before == expected ? 0 : 1,
                     gen.Reproducer(value));
    }
}

TEST(MemoryWord, KnownBytes) {
    const Bytes expected = {0xA5, 0x02, 0x01, 0x00};
    const VectorWord value{0x2A5, 0x1};
    Bytes memory(4, 0xFF);
    tarn_MemoryWordAssign(10, memory.data(), &value);
    EXPECT_EQ(memory, expected);
    WordList words(2, kPaint);
    tarn_UnsignedCopyMemoryValue(40, words.data(), 10, memory.data(), 22);
    EXPECT_EQ(Words(40, words), Words(40, {{0x2A5, 0x1}, {0, 0}}));
}

/*------------------------------------------------------------------------------------------------
 * Fields
 *----------------------------------------------------------------------------------------------*/

using ReadExport = void(VectorWord*, int, const std::uint8_t*, int, int);

void ExpectRead(Gen& gen, ReadExport* function, const Vec& stored, int position, int width) {
    const Bytes memory = ToBytes(stored);
    const After after = CallAtEveryEdge(memory, WordList(WordCount(width), kPaint),
                                        [&](std::uint8_t* m, VectorWord* w) {
                                            function(w, stored.width, m, position, width);
                                            return 0;
                                        });
    Vec expected = WithBitsAbove(Filled(width, Logic::kX), Logic::k0);
    for (std::size_t i = 0; i < static_cast<std::size_t>(width); ++i) {
        const std::int64_t from = std::int64_t{position} + static_cast<std::int64_t>(i);
        if (0 <= from && from < stored.width) {
            expected.bits[i] = stored.bits[static_cast<std::size_t>(from)];
        }
    }
    const Vec clean = Clean(stored);
    ASSERT_AFTER(after, memory, expected, &clean, 0, gen.Reproducer(position, width, stored));
}

TEST(MemoryWord, FieldReadsMatchModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec stored = gen.FourState(gen.Width());
        const FieldDraw inner = DrawInnerField(gen, stored);
        ExpectRead(gen, tarn_MemoryWordPartselect, stored, inner.index, inner.width);
        const int width = gen.Width();
        ExpectRead(gen, tarn_MemoryWordIndexedPartselect, stored,
                   DrawIndex(gen, stored.width, width), width);
        if (HasFailure()) break;
    }
}

// The plain write of a field and the one with the flag.
struct FieldWrites {
    void (*write)(int, std::uint8_t*, const VectorWord*, int, int);
    int (*writeWithFlag)(int, std::uint8_t*, const VectorWord*, int, int);
    bool usesRegister;
};

constexpr FieldWrites kConstant{tarn_MemoryWordPartselectAssign,
                                tarn_NotIdenticalMemoryWordPartselectAssign, true};
constexpr FieldWrites kIndexed{tarn_MemoryWordIndexedPartselectAssign,
                               tarn_NotIdenticalMemoryWordIndexedPartselectAssign, true};
constexpr FieldWrites kNarrow{tarn_MemoryWordPartselectAssign1,
                              tarn_NotIdenticalMemoryWordPartselectAssign1, false};
constexpr FieldWrites kNarrowIndexed{tarn_MemoryWordIndexedPartselectAssign1,
                                     tarn_NotIdenticalMemoryWordIndexedPartselectAssign1, false};

void ExpectWritten(Gen& gen, const FieldWrites& writes, const Vec& stored, const FieldDraw& field) {
    const auto& [index, width, value] = field;
    const Bytes before = ToBytes(stored);
    const After plain =
        CallAtEveryEdge(before, ToWords(value), [&](std::uint8_t* m, VectorWord* w) {
            writes.write(stored.width, m, w, field.index, field.width);
            return 0;
        });
    const After flagged =
        CallAtEveryEdge(before, ToWords(value), [&](std::uint8_t* m, VectorWord* w) {
            return writes.writeWithFlag(stored.width, m, w, field.index, field.width);
        });
    const Vec written = WithField(Clean(stored), value, index, width);
    const bool isInside = HasBitInside(stored.width, index, width);
    const Bytes expected = isInside ? ToBytes(written) : before;
    const Vec* const inRegister = writes.usesRegister ? &written : nullptr;
    const std::string reproducer = gen.Reproducer(index, width, stored, value);
    ASSERT_AFTER(plain, expected, value, inRegister, 0, reproducer);
    ASSERT_AFTER(flagged, expected, value, inRegister, before == expected ? 0 : 1, reproducer);
}

TEST(MemoryWord, FieldWritesMatchModel) {
    for (Gen& gen : Seeds(kRuns)) {
        const Vec stored = gen.FourState(gen.Width());
        ExpectWritten(gen, kConstant, stored, DrawInnerField(gen, stored));
        ExpectWritten(gen, kIndexed, stored, DrawField(gen, stored));
        const Vec narrow = gen.FourState(gen.Between(1, 32));
        ExpectWritten(gen, kNarrow, narrow, DrawInnerField(gen, narrow));
        ExpectWritten(gen, kNarrowIndexed, narrow, DrawField(gen, narrow));
        if (HasFailure()) break;
    }
}

// Nothing is written, and nothing read: neither the memory word nor the vector has a byte.
TEST(MemoryWord, EmptyWidthsTouchNothing) {
    if (kIsChecked) return;
    const Vec nothing;
    for (const int empty : {0, -1, -8, -40, INT_MIN}) {
        const auto expectNothing = [&](const auto& call) {
            const After after = CallAtEveryEdge({}, {}, call);
            ExpectAfter(after, {}, nothing, nullptr, 0);
        };
        expectNothing([&](std::uint8_t* m, VectorWord* w) {
            tarn_UnsignedCopyMemoryValue(empty, w, 40, m, 24);
            tarn_SignedCopyMemoryValue(40, w, empty, m, 24);
            tarn_MemoryWordAssign(empty, m, w);
            tarn_MemoryWordPartselect(w, empty, m, 0, 8);
            tarn_MemoryWordPartselect(w, 8, m, 0, empty);
            tarn_MemoryWordIndexedPartselect(w, empty, m, -3, 8);
            tarn_MemoryWordIndexedPartselect(w, 8, m, -3, empty);
            return tarn_NotIdenticalMemoryWordAssign(empty, m, w);
        });
        for (const FieldWrites& writes : {kConstant, kIndexed, kNarrow, kNarrowIndexed}) {
            for (const int index : {0, 1, -1, INT_MIN, INT_MAX}) {
                expectNothing([&](std::uint8_t* m, VectorWord* w) {
                    writes.write(empty, m, w, index, 8);
                    writes.write(8, m, w, index, empty);
                    return writes.writeWithFlag(empty, m, w, index, 8) +
                           writes.writeWithFlag(8, m, w, index, empty);
                });
            }
        }
    }
}

// The widest memory word fills the register.
TEST(MemoryWord, WidestFitsTheRegister) {
    constexpr int kWidest = 32 * TARN_VECTOR_REGISTER_WORDS;
    Bytes memory(std::size_t{kWidest} / 4, 0x5A);
    Bytes expected = memory;
    const VectorWord value[] = {{0xFFFFFFFF, 0}, {0xFF, 0xFF}};
    std::fill_n(expected.begin() + kWidest / 8 - 5, 5, 0xFF);
    std::fill_n(expected.end() - 5, 5, 0);
    expected.back() = 0xFF;
    EXPECT_EQ(tarn_NotIdenticalMemoryWordPartselectAssign(kWidest, memory.data(), value,
                                                          kWidest - 40, 40),
              1);
    EXPECT_EQ(memory, expected);
    const VectorWord& top = tarn_VectorRegister[TARN_VECTOR_REGISTER_WORDS - 1];
    EXPECT_EQ(top.aval, 0xFFFFFFFF);
    EXPECT_EQ(top.bval, 0xFF000000);
}

}  // namespace
}  // namespace tarn::test
