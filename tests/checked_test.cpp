// The checked build names the export, the broken duty in words and the arguments, and aborts; legal
// calls pass, as the properties of all exports show.
#include <climits>
#include <cstdlib>
#include <gtest/gtest.h>
#include <list>
#include <type_traits>

#include <tarnlib.h>

#include "support/property.h"

namespace tarn::test {
namespace {

// Bytes lie behind the words, so that a memory word of any width is apart from them.
struct {
    VectorWord words[8];
    std::uint8_t bytes[16];
} storage;
VectorWord* const words = storage.words;
std::uint8_t* const memory = storage.bytes;
char text[] = "1010";
int number;
VectorWord* vector;
const char* const noText = nullptr;

void ExpectReport(const std::function<void()>& call, const std::string& name,
                  const std::string& duty) {
    EXPECT_DEATH(call(), "^tarnlib: " + name + ": broken duty of the caller: " + duty) << name;
}

/*------------------------------------------------------------------------------------------------
 * Each address null, and not aligned
 *----------------------------------------------------------------------------------------------*/

// A call in which every party has bytes, so that its address counts.
Case CaseWithStorage(const Property& property) {
    for (std::uint64_t seed = 1;; ++seed) {
        Gen gen(seed);
        Case drawn = property.draw(gen);
        bool isEach = true;
        for (const Party& party : drawn.Parties()) {
            isEach = isEach && (!party.before.empty() || !party.after.empty());
        }
        if (isEach) return drawn;
    }
}

TEST(CheckedDeathTest, ReportsEachAddress) {
    static std::byte room[6][1 << 16];
    for (const Family& family : AllFamilies()) {
        for (const Property& property : family.random) {
            // Two of a literal's addresses may be null, and a wide operand asks for too much room.
            if (property.name == "tarn_CreateVector" || property.name.ends_with("Wide")) continue;
            const Case drawn = CaseWithStorage(property);
            for (std::size_t i = 0; i < drawn.Parties().size(); ++i) {
                const Party& party = drawn.Parties()[i];
                Places at(std::begin(room), std::begin(room) + drawn.Parties().size());
                const auto call = [&] { drawn.CallAt(at); };
                if (!drawn.HasArgument(i)) continue;
                at[i] = reinterpret_cast<std::byte*>(0 - party.offset);
                ExpectReport(call, property.name, ".* must (be the address of|not be null)");
                at[i] = reinterpret_cast<std::byte*>(2 - party.offset);
                if (party.isWords) ExpectReport(call, property.name, ".* aligned");
            }
        }
    }
}

/*------------------------------------------------------------------------------------------------
 * Each number beside its bounds
 *----------------------------------------------------------------------------------------------*/

// An argument of an export: its place, name and bounds.
struct Bound {
    int argument;
    const char* name;
    int least, most;
};
constexpr int kNone = INT_MIN;

// Calls with `value` for one argument, 8 for every other number and storage for every address.
template <class Returned, class... Parameters>
void CallWith(Returned (*function)(Parameters...), int argument, int value) {
    auto choose = [&, at = 0]<class Parameter>(Parameter*) mutable -> Parameter {
        const int chosen = at++ == argument ? value : 8;
        if constexpr (!std::is_pointer_v<Parameter>) {
            return static_cast<Parameter>(chosen);
        } else if constexpr (sizeof(std::remove_pointer_t<Parameter>) == 1) {
            return reinterpret_cast<Parameter>(memory);
        } else {
            return reinterpret_cast<Parameter>(words);
        }
    };
    // Braces, so that the arguments are counted from left to right.
    const std::tuple<Parameters...> arguments{
        choose(static_cast<std::remove_reference_t<Parameters>*>(nullptr))...};
    std::apply(function, arguments);
}

template <class Function>
void ExpectBounds(const std::vector<Bound>& bounds, const char* name, Function* function) {
    for (const auto& [argument, what, least, most] : bounds) {
        const std::string duty = std::string(what) + " must be ";
        for (const bool isLeast : {true, false}) {
            const int bound = isLeast ? least : most;
            if (bound == kNone) continue;
            const int value = isLeast ? bound - 1 : bound + 1;
            ExpectReport([&, i = argument] { CallWith(function, i, value); }, name, duty);
        }
    }
}

// Exports whose arguments have the same bounds.
#define TARN_NAMED(name) std::pair<const char*, decltype(&(name))>(#name, &(name))
void ExpectEach(const std::vector<Bound>& bounds, auto... exports) {
    (ExpectBounds(bounds, exports.first, exports.second), ...);
}

TEST(CheckedDeathTest, ReportsNumbersBeyondTheirBounds) {
    constexpr int kHalf = 10'000'000, kWidest = 20'000'000, kDouble = 40'000'000;
    ExpectEach({{0, "resultWidth", kNone, kWidest}}, TARN_NAMED(tarn_SignedMul),
               TARN_NAMED(tarn_UnsignedMul));
    ExpectEach({{0, "resultWidth", kNone, kHalf},
                {2, "aWidth", kNone, kHalf},
                {4, "bWidth", kNone, kDouble}},
               TARN_NAMED(tarn_SignedDiv), TARN_NAMED(tarn_UnsignedDiv), TARN_NAMED(tarn_SignedMod),
               TARN_NAMED(tarn_UnsignedMod));
    ExpectEach({{0, "resultWidth", kNone, kWidest}, {4, "bWidth", kNone, kDouble}},
               TARN_NAMED(tarn_SignedUPower), TARN_NAMED(tarn_UnsignedUPower),
               TARN_NAMED(tarn_SignedSPower), TARN_NAMED(tarn_UnsignedSPower));
    ExpectEach({{0, "width", 1, kDouble}}, TARN_NAMED(tarn_SignedConvertToDec),
               TARN_NAMED(tarn_UnsignedConvertToDec));
    ExpectEach({{1, "memoryWidth", 1, kWidest}, {4, "width", 1, kNone}},
               TARN_NAMED(tarn_MemoryWordPartselect), TARN_NAMED(tarn_MemoryWordIndexedPartselect));
    ExpectEach({{0, "memoryWidth", 1, kWidest}, {4, "width", 1, kNone}},
               TARN_NAMED(tarn_MemoryWordPartselectAssign),
               TARN_NAMED(tarn_NotIdenticalMemoryWordPartselectAssign),
               TARN_NAMED(tarn_MemoryWordIndexedPartselectAssign),
               TARN_NAMED(tarn_NotIdenticalMemoryWordIndexedPartselectAssign));
    ExpectEach({{0, "memoryWidth", 1, 32}, {4, "width", 1, kNone}},
               TARN_NAMED(tarn_MemoryWordPartselectAssign1),
               TARN_NAMED(tarn_NotIdenticalMemoryWordPartselectAssign1),
               TARN_NAMED(tarn_MemoryWordIndexedPartselectAssign1),
               TARN_NAMED(tarn_NotIdenticalMemoryWordIndexedPartselectAssign1));
    ExpectEach({{0, "code", 0, 5}}, TARN_NAMED(tarn_ConvertToBin0), TARN_NAMED(tarn_ConvertToOct0),
               TARN_NAMED(tarn_ConvertToHex0), TARN_NAMED(tarn_SignedConvertToDec0),
               TARN_NAMED(tarn_UnsignedConvertToDec0), TARN_NAMED(tarn_ConvertToChar0),
               TARN_NAMED(tarn_ConvertToString0));
    ExpectEach({{0, "aWidth", 1, kNone}, {2, "bWidth", 1, kNone}}, TARN_NAMED(tarn_SignedEq),
               TARN_NAMED(tarn_UnsignedWildNEq), TARN_NAMED(tarn_SignedRelation));
    ExpectEach({{2, "offset", 0, 31}, {3, "width", 1, kNone}}, TARN_NAMED(tarn_Partselect),
               TARN_NAMED(tarn_NotIdenticalPartselectAssign));
    ExpectEach({{1, "count", 1, kNone}, {2, "base", 0, 31}}, TARN_NAMED(tarn_CleanBasedFillX));
    ExpectEach({{0, "width", 1, kNone}, {2, "length", 0, kNone}},
               TARN_NAMED(tarn_AssignStringToVector));
}

/*------------------------------------------------------------------------------------------------
 * What arguments owe each other, and what storage must hold
 *----------------------------------------------------------------------------------------------*/

// Words 1 and 0 as they are given.
VectorWord* HoldingBoth(const VectorWord& word1, const VectorWord& word0) {
    words[1] = word1;
    words[0] = word0;
    return words;
}
VectorWord* Holding(std::uint32_t aval, std::uint32_t bval) {
    return HoldingBoth({0, 0}, {aval, bval});
}

void* AllocateWords(std::uint64_t byteCount) {
    return byteCount <= sizeof storage.words ? words : nullptr;
}

void CreateVector(const char* valueText, int* width, VectorWord** result,
                  void* (*allocate)(std::uint64_t byteCount)) {
    tarn_CreateVector("512", valueText, width, result, allocate, nullptr);
}

struct Violation {
    const char* function;
    void (*call)();
    const char* duty;
};
#define TARN_BROKEN(name, ...) #name, [] { name(__VA_ARGS__); }

const Violation kViolations[] = {
    // The whole report.
    {TARN_BROKEN(tarn_Dec, 8, nullptr),
     "v must be the address of a vector: not null, aligned to 4 bytes\n"
     "  called with width = 8, v = null\n$"},
    {TARN_BROKEN(tarn_PowerR, nullptr, 1.5, 2.0),
     ".*\n  called with result = null, x = 1.5, y = 2\n$"},
    // What a literal may not leave out.
    {"tarn_CreateVector", [] { CreateVector(nullptr, &number, &vector, AllocateWords); },
     "valueText must not be null"},
    {"tarn_CreateVector", [] { CreateVector(text, nullptr, &vector, AllocateWords); },
     "width must be the address"},
    {"tarn_CreateVector", [] { CreateVector(text, &number, nullptr, AllocateWords); },
     "result must be the address"},
    {"tarn_CreateVector", [] { CreateVector(text, &number, &vector, nullptr); },
     "allocate must not be null\n.*allocate = null, truncated = null\n$"},
    {"tarn_CreateVector", [] { CreateVector(text, &number, &vector, AllocateWords); },
     "allocate must return the address of words: not null, aligned\n  called with bits = 512, "},
    // Places and formats.
    {TARN_BROKEN(tarn_MemoryWordPartselectAssign, 10, memory, words, 8, 3),
     "the field must lie inside the memory word"},
    {TARN_BROKEN(tarn_SignedCopyMemoryValue, 32, words, 10, memory, 6), "spareBits must be "},
    {TARN_BROKEN(tarn_ConvertToStringR, "%g of %d", 0.5), "format .* but is \"%g of %d\"\n"},
    {TARN_BROKEN(tarn_ConvertToStringR, "%*f", 0.5), "format must have exactly one conversion"},
    {TARN_BROKEN(tarn_ConvertToStringR, "100%%", 0.5), "format must have exactly one conversion"},
    {TARN_BROKEN(tarn_ConvertToStringR, tarn_CopyToGlobalBuffer("%g"), 0.5), "format must not lie"},
    // Storage that overlaps; a field reaches as far as its last bit, an operand as it is placed.
    {TARN_BROKEN(tarn_SignedAdd, 64, words + 1, 96, words, 64, words + 1), "result and a must not"},
    {TARN_BROKEN(tarn_UnsignedBitwiseOR, 64, words, 64, words, 64, words + 1), "result and b must"},
    {TARN_BROKEN(tarn_UnsignedCopy, 64, words, 64, words + 1), "result and source must not "},
    {TARN_BROKEN(tarn_LogicalShiftLeft, 64, words + 1, 32, words, 1), "result and source must not"},
    {TARN_BROKEN(tarn_Partselect, words + 1, words, 30, 32), "result must begin at source, "},
    {TARN_BROKEN(tarn_PartselectAssign, words, words + 1, 0, 64), "value must begin at target, "},
    {TARN_BROKEN(tarn_Concatenate, 64, words, 32, words + 1, 1), "destination and operand must "},
    {TARN_BROKEN(tarn_NotIdenticalMemoryWordAssign, 8, memory - 57, words), "the memory word must"},
    {TARN_BROKEN(tarn_HexStringToVector, 64, words, reinterpret_cast<const char*>(words + 1)),
     "result must lie apart from the text"},
    {TARN_BROKEN(tarn_SignedMul, 8, words, 8, words, 8, tarn_VectorRegister + 1),
     "b must not lie "},
    {TARN_BROKEN(tarn_UnsignedMod, 8, words, 8, tarn_VectorRegister, 8, words), "a must not lie "},
    {TARN_BROKEN(tarn_MemoryWordPartselect, tarn_VectorRegister, 10, memory, 0, 3), "result must "},
    {TARN_BROKEN(tarn_MemoryWordPartselect, words, 10,
                 reinterpret_cast<std::uint8_t*>(tarn_VectorRegister), 0, 3),
     "the memory word must lie apart from tarn_VectorRegister"},
    // Bits above a width, and below a place.
    {TARN_BROKEN(tarn_ScanShiftCount, 8, Holding(0x105, 0)),
     "the bits of amount above width must be 0 .*, but its top word is \\{0x105, 0\\}"},
    {TARN_BROKEN(tarn_UnsignedScanIndexOfSelect, 31, Holding(0, ~0U)), "the bits of index above "},
    {TARN_BROKEN(tarn_SignedScanIndexOfSelect, 8, Holding(0, 0x7F80)),
     "the bits of index above width must copy its top bit .* is \\{0, 0x7f80\\}"},
    {TARN_BROKEN(tarn_Concatenate, 40, words + 1, 8, Holding(0, 0x100), 24),
     "the bits of operand "},
    {TARN_BROKEN(tarn_Concatenate, 16, Holding(0x1FF, 0), 8, words + 1, 8),
     "word 0 of destination must hold 0 from bit offset upward, but is \\{0x1ff, 0\\}"},
    {TARN_BROKEN(tarn_ConcatenateShifted, 8, HoldingBoth({0x10, 0}, {0, 0x10}) + 1, words),
     "word 0 of destination must .* is \\{0x10, 0\\} where the operand has \\{0, 0x10\\}"},
};

TEST(CheckedDeathTest, ReportsWhatArgumentsOweEachOther) {
    for (const auto& [function, call, duty] : kViolations) {
        ExpectReport(call, function, duty);
    }
}

// A vector of zeros that lasts.
VectorWord* Wide(int width) {
    static std::list<std::vector<VectorWord>> vectors;
    return vectors.emplace_back(static_cast<std::size_t>(width) / 32 + 1).data();
}

// Legal at the border of a duty, where the properties draw nothing.
TEST(Checked, LetsLegalCallsPass) {
    // Vectors without words lie nowhere.
    tarn_SignedAdd(0, nullptr, 0, nullptr, -1, nullptr);
    tarn_SignedMul(64, words, 64, words, 0, tarn_VectorRegister);
    tarn_NotIdentical(0, nullptr, nullptr);
    tarn_IndexedPartselect(words, 0, nullptr, 0, 8);
    tarn_AssignStringToVector(8, words, 0, noText);
    // Vectors side by side are apart; a field lies above what is read or written.
    tarn_UnsignedSub(64, words + 2, 64, words, 64, words + 4);
    tarn_Partselect(words + 1, words, 0, 32);
    tarn_PartselectAssign(words + 2, words + 4, 31, 33);
    tarn_Partselect(words, words + 1, 5, 96);
    tarn_SignedPartselect(160, words, words + 2, 5, 96);
    tarn_PartselectAssign(words + 1, words, 0, 64);
    // Clean and signed storage; places that are free.
    EXPECT_EQ(tarn_ScanShiftCount(32, Holding(~0U, ~0U)), 3);
    EXPECT_EQ(tarn_SignedScanIndexOfSelect(8, Holding(0x7F, 0xFFFFFF80)), 0);
    tarn_ConcatenateShifted(8, HoldingBoth({0xF, 0x7}, {0x10, 0xF0}) + 1, words);
    EXPECT_EQ(words[1].aval, 0x1FU);
    // The widest operands.
    constexpr int kWidest = 20'000'000;
    tarn_UnsignedMul(kWidest, Wide(kWidest), 8, tarn_VectorRegister, 8, words);
    tarn_SignedMod(kWidest / 2, Wide(kWidest), kWidest / 2, Wide(kWidest), 2 * kWidest,
                   Wide(2 * kWidest));
    tarn_UnsignedUPower(8, words, 8, words, 2 * kWidest, Wide(2 * kWidest));
    EXPECT_STREQ(tarn_UnsignedConvertToDec(2 * kWidest, Wide(2 * kWidest), 0, 0), "0");
    tarn_MemoryWordPartselect(words, kWidest, reinterpret_cast<std::uint8_t*>(Wide(kWidest)),
                              kWidest - 1, 1);
}

}  // namespace
}  // namespace tarn::test
