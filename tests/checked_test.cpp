// The checked build names the export, the broken duty in words and the arguments, and aborts.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include <tarnlib.h>

namespace tarn::test {
namespace {

VectorWord words[8];
std::uint8_t memory[16];
char text[] = "1010";
int flag;
double real;
VectorWord* created;

VectorWord* Misaligned() {
    return reinterpret_cast<VectorWord*>(reinterpret_cast<std::uintptr_t>(words) + 2);
}

// Word 0 of `words` as it is given.
VectorWord* Holding(std::uint32_t aval, std::uint32_t bval) {
    words[0] = {aval, bval};
    return words;
}

// A memory word of any width that is apart from a vector.
std::uint8_t* Behind(VectorWord (&vector)[8]) {
    return reinterpret_cast<std::uint8_t*>(vector + 8);
}

void* AllocateWords(std::uint64_t byteCount) {
    return byteCount <= sizeof words ? words : nullptr;
}

struct Violation {
    const char* function;
    void (*call)();
    const char* duty;
    const char* arguments;
};

template <std::size_t kCount>
void ExpectReports(const Violation (&violations)[kCount]) {
    for (const auto& [function, call, duty, arguments] : violations) {
        EXPECT_DEATH(call(), std::string("^tarnlib: ") + function +
                                 ": broken duty of the caller: " + duty + ".*\n  called with " +
                                 arguments)
            << function << ": " << duty;
    }
}

const Violation kAddresses[] = {
    {"tarn_Inc", [] { tarn_Inc(1, nullptr); },
     "v must be the address of a vector: not null, aligned to 4 bytes", "width = 1, v = null\n$"},
    {"tarn_Dec", [] { tarn_Dec(8, Misaligned()); }, "v must be the address of a vector",
     "width = 8, v = 0x[0-9a-f]+[26ae]\n$"},
    {"tarn_SignedMinus", [] { tarn_SignedMinus(8, words, 8, nullptr); },
     "a must be the address of a vector",
     "resultWidth = 8, result = 0x[0-9a-f]+, aWidth = 8, a = null\n$"},
    {"tarn_UnsignedConvert", [] { tarn_UnsignedConvert(0, nullptr, 7); },
     "result must be the address of a vector", "resultWidth = 0, result = null, value = 7\n$"},
    {"tarn_PowerR", [] { tarn_PowerR(nullptr, 1.5, 2.0); },
     "result must be the address of an object: not null, aligned",
     "result = null, x = 1.5, y = 2\n$"},
    {"tarn_CopyToGlobalBuffer", [] { tarn_CopyToGlobalBuffer(nullptr); }, "text must not be null",
     "text = null\n$"},
    {"tarn_AssignStringToReal", [] { tarn_AssignStringToReal(&real, 2, nullptr); },
     "text must not be null", "result = 0x[0-9a-f]+, length = 2, text = null\n$"},
    {"tarn_MemoryWordAssign", [] { tarn_MemoryWordAssign(8, nullptr, words); },
     "memory must not be null", "memoryWidth = 8, memory = null, value = 0x[0-9a-f]+\n$"},
    {"tarn_CreateVector",
     [] { tarn_CreateVector(nullptr, text, &flag, &created, nullptr, nullptr); },
     "allocate must not be null", "sizeText = null, .*, allocate = null, truncated = null\n$"},
    {"tarn_CreateVector",
     [] { tarn_CreateVector("512", text, &flag, &created, AllocateWords, nullptr); },
     "allocate must return the address of words: not null, aligned",
     "bits = 512, \\*words = null\n$"},
};

TEST(CheckedDeathTest, ReportsAddresses) {
    ExpectReports(kAddresses);
}

const Violation kRanges[] = {
    {"tarn_UnsignedEq", [] { tarn_UnsignedEq(8, words, 0, words); }, "bWidth must be at least 1",
     "aWidth = 8, a = 0x[0-9a-f]+, bWidth = 0, b = 0x[0-9a-f]+\n$"},
    {"tarn_SignedMul", [] { tarn_SignedMul(20'000'001, words, 8, words, 8, words); },
     "resultWidth must be at most 20000000", "resultWidth = 20000001, "},
    {"tarn_SignedUPower", [] { tarn_SignedUPower(8, words, 8, words, 40'000'001, words); },
     "bWidth must be at most 40000000", ".*bWidth = 40000001, "},
    {"tarn_UnsignedDiv", [] { tarn_UnsignedDiv(8, words, 10'000'001, words, 8, words); },
     "aWidth must be at most 10000000", ".*aWidth = 10000001, "},
    {"tarn_SignedConvertToDec", [] { tarn_SignedConvertToDec(40'000'001, words, 0, 0); },
     "width must be at most 40000000",
     "width = 40000001, value = 0x[0-9a-f]+, minDigits = 0, zeroPad = 0\n$"},
    {"tarn_MemoryWordIndexedPartselect",
     [] { tarn_MemoryWordIndexedPartselect(words, 20'000'001, Behind(words), 0, 8); },
     "memoryWidth must be at most 20000000", "memoryWidth = 20000001, "},
    {"tarn_MemoryWordPartselectAssign1",
     [] { tarn_MemoryWordPartselectAssign1(33, memory, words, 0, 8); },
     "memoryWidth must be at most 32",
     "memoryWidth = 33, memory = 0x[0-9a-f]+, value = 0x[0-9a-f]+, low = 0, width = 8\n$"},
    {"tarn_Partselect", [] { tarn_Partselect(words, words, 32, 1); }, "offset must be 0 to 31",
     ".*offset = 32, width = 1\n$"},
    {"tarn_CleanBasedFillX", [] { tarn_CleanBasedFillX(words, 1, -1); }, "base must be 0 to 31",
     ".*count = 1, base = -1\n$"},
    {"tarn_MemoryWordPartselectAssign",
     [] { tarn_MemoryWordPartselectAssign(10, memory, words, 8, 3); },
     "the field must lie inside the memory word: low at least 0, low \\+ width at most memoryWidth",
     "memoryWidth = 10, .*, low = 8, width = 3\n$"},
    {"tarn_SignedCopyMemoryValue", [] { tarn_SignedCopyMemoryValue(32, words, 10, memory, 6); },
     "spareBits must be -memoryWidth & 31", ".*memoryWidth = 10, .*, spareBits = 6\n$"},
    {"tarn_ConvertToString0", [] { tarn_ConvertToString0(6, 1); },
     "code must be 0 to 5, a LogicCode", "code = 6, spaceForNul = 1\n$"},
    {"tarn_AssignStringToVector", [] { tarn_AssignStringToVector(8, words, -1, text); },
     "length must be at least 0", "width = 8, .*, length = -1, text = 0x[0-9a-f]+\n$"},
    {"tarn_ConvertToStringR", [] { tarn_ConvertToStringR("%g of %d", 0.5); },
     "format must have exactly one conversion, one for a double, but is \"%g of %d\"",
     "format = 0x[0-9a-f]+, value = 0.5\n$"},
    {"tarn_ConvertToStringR", [] { tarn_ConvertToStringR("%*f", 0.5); },
     "format must have exactly one conversion", ""},
    {"tarn_ConvertToStringR", [] { tarn_ConvertToStringR("100%%", 0.5); },
     "format must have exactly one conversion", ""},
};

TEST(CheckedDeathTest, ReportsRanges) {
    ExpectReports(kRanges);
}

const Violation kOverlaps[] = {
    {"tarn_SignedAdd", [] { tarn_SignedAdd(64, words + 1, 96, words, 64, words + 1); },
     "result and a must not overlap partly: they begin at the same word or lie apart",
     "resultWidth = 64, result = 0x[0-9a-f]+, aWidth = 96, a = 0x"},
    {"tarn_UnsignedCopy", [] { tarn_UnsignedCopy(64, words, 64, words + 1); },
     "result and source must not overlap partly", ""},
    // As a field reaches as far as its last bit does, an operand reaches as far as it is placed.
    {"tarn_Partselect", [] { tarn_Partselect(words + 1, words, 30, 32); },
     "result must begin at source, whole words below it, or lie apart from the field", ""},
    {"tarn_Concatenate", [] { tarn_Concatenate(64, words, 32, words + 1, 1); },
     "destination and operand must not overlap partly", ""},
    {"tarn_PartselectAssign", [] { tarn_PartselectAssign(words, words + 1, 0, 64); },
     "value must begin at target, whole words below it, or lie apart from the field", ""},
    {"tarn_LogicalShiftLeft", [] { tarn_LogicalShiftLeft(64, words + 1, 32, words, 1); },
     "result and source must not overlap partly", "resultWidth = 64, .*, amount = 1\n$"},
    {"tarn_NotIdenticalMemoryWordAssign",
     [] {
         tarn_NotIdenticalMemoryWordAssign(8, reinterpret_cast<std::uint8_t*>(words) + 7, words);
     },
     "the memory word must lie apart from value", ""},
    {"tarn_BinaryStringToVector",
     [] { tarn_BinaryStringToVector(64, words, reinterpret_cast<const char*>(words + 1)); },
     "result must lie apart from the text", ""},
    {"tarn_ConvertToStringR", [] { tarn_ConvertToStringR(tarn_CopyToGlobalBuffer("%g"), 0.5); },
     "format must not lie in the text buffer", ""},
    {"tarn_SignedMul", [] { tarn_SignedMul(8, words, 8, words, 8, tarn_VectorRegister + 1); },
     "b must not lie in tarn_VectorRegister", ""},
    {"tarn_UnsignedMod", [] { tarn_UnsignedMod(8, words, 8, tarn_VectorRegister, 8, words); },
     "a must not lie in tarn_VectorRegister", ""},
    {"tarn_MemoryWordPartselect",
     [] { tarn_MemoryWordPartselect(tarn_VectorRegister, 10, memory, 0, 3); },
     "result must not lie in tarn_VectorRegister", ""},
    {"tarn_MemoryWordPartselect",
     [] {
         tarn_MemoryWordPartselect(words, 10, reinterpret_cast<std::uint8_t*>(tarn_VectorRegister),
                                   0, 3);
     },
     "the memory word must lie apart from tarn_VectorRegister", ""},
};

TEST(CheckedDeathTest, ReportsOverlaps) {
    ExpectReports(kOverlaps);
}

const Violation kStorage[] = {
    {"tarn_ScanShiftCount", [] { tarn_ScanShiftCount(8, Holding(0x105, 0)); },
     "the bits of amount above width must be 0 \\(clean storage\\), but its top word is \\{0x105, "
     "0\\}",
     "width = 8, amount = 0x[0-9a-f]+\n$"},
    {"tarn_UnsignedScanIndexOfSelect", [] { tarn_UnsignedScanIndexOfSelect(31, Holding(0, ~0U)); },
     "the bits of index above width must be 0 \\(clean storage\\), but its top word is \\{0, "
     "0xffffffff\\}",
     ""},
    {"tarn_SignedScanIndexOfSelect", [] { tarn_SignedScanIndexOfSelect(8, Holding(0x80, 0)); },
     "the bits of index above width must copy its top bit \\(signed storage\\), but its top word "
     "is \\{0x80, 0\\}",
     ""},
    {"tarn_SignedScanIndexOfSelect", [] { tarn_SignedScanIndexOfSelect(8, Holding(0, 0x7F80)); },
     "the bits of index above width must copy its top bit \\(signed storage\\), but its top word "
     "is \\{0, 0x7f80\\}",
     ""},
    {"tarn_Concatenate", [] { tarn_Concatenate(40, words + 1, 8, Holding(0, 0x100), 32 - 8); },
     "the bits of operand above operandWidth must be 0 \\(clean storage\\), but its top word is "
     "\\{0, 0x100\\}",
     ""},
    {"tarn_Concatenate", [] { tarn_Concatenate(16, Holding(0x1FF, 0), 8, words + 1, 8); },
     "word 0 of destination must hold 0 from bit offset upward, but is \\{0x1ff, 0\\}",
     "span = 16, .*, offset = 8\n$"},
    {"tarn_ConcatenateShifted",
     [] {
         words[1] = {0x10, 0};
         tarn_ConcatenateShifted(8, words + 1, Holding(0, 0x10));
     },
     "word 0 of destination must hold 0 from the operand's lowest bit upward, but is \\{0x10, 0\\}"
     " where the operand has \\{0, 0x10\\}",
     "span = 8, "},
};

TEST(CheckedDeathTest, ReportsStorage) {
    ExpectReports(kStorage);
}

}  // namespace
}  // namespace tarn::test
