// The checked build names the export, the broken duty in words and the arguments, and aborts; legal
// calls pass, as the properties of all exports show.
#include <climits>
#include <cstdlib>
#include <gtest/gtest.h>
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
double real;
int number;
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
                at[i] = nullptr;
                at[i] -= party.offset;
                ExpectReport(call, property.name, ".* must (be the address of|not be null)");
                at[i] += 2;
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

// Word 0 as it is given.
VectorWord* Holding(std::uint32_t aval, std::uint32_t bval) {
    words[0] = {aval, bval};
    return words;
}

void* AllocateWords(std::uint64_t byteCount) {
    return byteCount <= sizeof storage.words ? words : nullptr;
}

struct Violation {
    const char* call;
    void (*function)();
    const char* duty;
};
#define TARN_CALL(...) #__VA_ARGS__, [] { __VA_ARGS__; }

const Violation kViolations[] = {
    // The whole report.
    {TARN_CALL(tarn_Inc(1, nullptr)),
     "v must be the address of a vector: not null, aligned to 4 bytes\n  called with width = 1, v "
     "= null\n$"},
    {TARN_CALL(tarn_PowerR(nullptr, 1.5, 2.0)),
     "result must .*\n  called with result = null, x = 1.5, y = 2\n$"},
    {TARN_CALL(tarn_CreateVector(nullptr, text, &number, nullptr, nullptr, nullptr)),
     "result must be the address"},
    // What a literal may leave out, and what not.
    {TARN_CALL(tarn_CreateVector(nullptr, nullptr, &number, nullptr, AllocateWords, nullptr)),
     "valueText must not be null"},
    {TARN_CALL(VectorWord * v;
               tarn_CreateVector(nullptr, text, nullptr, &v, AllocateWords, nullptr)),
     "width must be"},
    {TARN_CALL(VectorWord * v; tarn_CreateVector(nullptr, text, &number, &v, nullptr, nullptr)),
     "allocate must not be null\n.*allocate = null, truncated = null\n$"},
    {TARN_CALL(VectorWord * v; tarn_CreateVector("512", text, &number, &v, AllocateWords, nullptr)),
     "allocate must return the address of words: not null, aligned\n  called with bits = 512, "
     "\\*words = null\n$"},
    // Places and formats.
    {TARN_CALL(tarn_MemoryWordPartselectAssign(10, memory, words, 8, 3)),
     "the field must lie inside the memory word: low at least 0, low \\+ width at most "
     "memoryWidth"},
    {TARN_CALL(tarn_SignedCopyMemoryValue(32, words, 10, memory, 6)),
     "spareBits must be -memoryWidth & 31"},
    {TARN_CALL(tarn_ConvertToStringR("%g of %d", 0.5)),
     "format must have exactly one conversion, one for a double, but is \"%g of %d\""},
    {TARN_CALL(tarn_ConvertToStringR("%*f", 0.5)), "format must have exactly one conversion"},
    {TARN_CALL(tarn_ConvertToStringR("100%%", 0.5)), "format must have exactly one conversion"},
    {TARN_CALL(tarn_ConvertToStringR(tarn_CopyToGlobalBuffer("%g"), 0.5)),
     "format must not lie in the text buffer"},
    // Storage that overlaps: a field reaches as far as its last bit does, an operand as it is placed.
    {TARN_CALL(tarn_SignedAdd(64, words + 1, 96, words, 64, words + 1)),
     "result and a must not overlap partly: they begin at the same word or lie apart"},
    {TARN_CALL(tarn_UnsignedBitwiseOR(64, words, 64, words, 64, words + 1)),
     "result and b must not overlap partly"},
    {TARN_CALL(tarn_UnsignedCopy(64, words, 64, words + 1)),
     "result and source must not overlap partly"},
    {TARN_CALL(tarn_LogicalShiftLeft(64, words + 1, 32, words, 1)),
     "result and source must not overlap partly"},
    {TARN_CALL(tarn_Partselect(words + 1, words, 30, 32)),
     "result must begin at source, whole words below it, or lie apart from the field"},
    {TARN_CALL(tarn_PartselectAssign(words, words + 1, 0, 64)),
     "value must begin at target, whole words below it, or lie apart from the field"},
    {TARN_CALL(tarn_Concatenate(64, words, 32, words + 1, 1)),
     "destination and operand must not overlap partly"},
    {TARN_CALL(tarn_NotIdenticalMemoryWordAssign(8, memory - 57, words)),
     "the memory word must lie apart from value"},
    {TARN_CALL(tarn_BinaryStringToVector(64, words, reinterpret_cast<const char*>(words + 1))),
     "result must lie apart from the text"},
    {TARN_CALL(tarn_SignedMul(8, words, 8, words, 8, tarn_VectorRegister + 1)),
     "b must not lie in tarn_VectorRegister"},
    {TARN_CALL(tarn_UnsignedMod(8, words, 8, tarn_VectorRegister, 8, words)),
     "a must not lie in tarn_VectorRegister"},
    {TARN_CALL(tarn_MemoryWordPartselect(tarn_VectorRegister, 10, memory, 0, 3)),
     "result must not lie in tarn_VectorRegister"},
    {TARN_CALL(tarn_MemoryWordPartselect(
         words, 10, reinterpret_cast<std::uint8_t*>(tarn_VectorRegister), 0, 3)),
     "the memory word must lie apart from tarn_VectorRegister"},
    // Bits above a width, and below a place.
    {TARN_CALL(tarn_ScanShiftCount(8, Holding(0x105, 0))),
     "the bits of amount above width must be 0 \\(clean storage\\), but its top word is \\{0x105, "
     "0\\}"},
    {TARN_CALL(tarn_UnsignedScanIndexOfSelect(31, Holding(0, ~0U))),
     "the bits of index above width must be 0"},
    {TARN_CALL(tarn_SignedScanIndexOfSelect(8, Holding(0, 0x7F80))),
     "the bits of index above width must copy its top bit \\(signed storage\\), but its top word "
     "is \\{0, 0x7f80\\}"},
    {TARN_CALL(tarn_Concatenate(40, words + 1, 8, Holding(0, 0x100), 32 - 8)),
     "the bits of operand above operandWidth must be 0"},
    {TARN_CALL(tarn_Concatenate(16, Holding(0x1FF, 0), 8, words + 1, 8)),
     "word 0 of destination must hold 0 from bit offset upward, but is \\{0x1ff, 0\\}"},
    {TARN_CALL(words[1] = {0x10, 0}; tarn_ConcatenateShifted(8, words + 1, Holding(0, 0x10))),
     "word 0 of destination must hold 0 from the operand's lowest bit upward, but is \\{0x10, 0\\} "
     "where the operand has \\{0, 0x10\\}"},
};

TEST(CheckedDeathTest, ReportsWhatArgumentsOweEachOther) {
    for (const auto& [call, function, duty] : kViolations) {
        const std::string code = call;
        const std::size_t name = code.rfind("tarn_", code.find('(', code.find("tarn_")));
        ExpectReport(function, code.substr(name, code.find('(', name) - name), duty);
    }
}

// A vector of zeros, never freed.
VectorWord* Wide(int width) {
    return (new std::vector<VectorWord>(static_cast<std::size_t>(width) / 32 + 1))->data();
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
    words[1] = {0xF, 0x7};
    tarn_ConcatenateShifted(8, words + 1, Holding(0x10, 0xF0));
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
    tarn_CreateReal(text, &real);
    EXPECT_EQ(real, 1010.0);
}

}  // namespace
}  // namespace tarn::test
