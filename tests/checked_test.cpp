// The checked build names the export, the broken duty and the values, and aborts.
#include <gtest/gtest.h>
#include <vector>

#include <tarnlib.h>

namespace tarn::test {
namespace {

TEST(CheckedDeathTest, ReportsPartlyOverlappingStorage) {
    VectorWord words[4] = {};
    EXPECT_DEATH(tarn_SignedAdd(64, words + 1, 96, words, 64, words + 1),
                 "tarn_SignedAdd.*resultWidth, result, aWidth, a\\)"
                 ".*resultWidth = 64, result = 0x[0-9a-f]+, aWidth = 96, a = 0x");
    EXPECT_DEATH(tarn_UnsignedCopy(64, words, 64, words + 1),
                 "tarn_UnsignedCopy.*sourceWidth = 64");
    EXPECT_DEATH(tarn_UnsignedCopy(64, words + 1, 64, words), "tarn_UnsignedCopy.*AreSameOrApart");
    tarn_UnsignedCopy(64, words + 2, 64, words);
    // A vector without words lies nowhere, whatever its address.
    tarn_SignedAdd(64, words, 0, words + 1, 64, words);
    tarn_SignedMul(64, words, 64, words, 0, tarn_VectorRegister);
}

// A field reaches as far as its last bit does, an operand as far as it is placed.
TEST(CheckedDeathTest, CountsTheWordsThatAFieldReaches) {
    VectorWord words[4] = {};
    EXPECT_DEATH(tarn_Partselect(words + 1, words, 30, 32), "tarn_Partselect.*SpanFrom");
    tarn_Partselect(words + 1, words, 0, 32);
    EXPECT_DEATH(tarn_Concatenate(64, words, 32, words + 1, 1), "tarn_Concatenate.*SpanFrom");
    tarn_Concatenate(32, words, 32, words + 1, 1);
    EXPECT_DEATH(tarn_LogicalShiftLeft(64, words + 1, 32, words, 1),
                 "tarn_LogicalShiftLeft.*resultWidth = 64.*amount = 1");
}

TEST(CheckedDeathTest, ReportsMissingAndMisalignedVectors) {
    VectorWord words[2] = {};
    EXPECT_DEATH(tarn_Inc(1, nullptr), "tarn_Inc.*IsVector\\(width, v\\).*width = 1, v = 0");
    EXPECT_DEATH(tarn_UnsignedConvert(0, nullptr, 7), "tarn_UnsignedConvert.*value = 7");
    EXPECT_DEATH(tarn_SignedMinus(8, words, 8, nullptr), "tarn_SignedMinus.*aWidth = 8, a = 0");
    const std::uintptr_t odd = reinterpret_cast<std::uintptr_t>(words) + 2;
    EXPECT_DEATH(tarn_Dec(8, reinterpret_cast<VectorWord*>(odd)), "tarn_Dec.*IsVector");
    tarn_Inc(0, nullptr);
}

TEST(CheckedDeathTest, ReportsArgumentsOutOfRange) {
    VectorWord words[2] = {};
    EXPECT_DEATH(tarn_Partselect(words, words, 32, 1),
                 "tarn_Partselect.*offset < 32U.*offset = 32, width = 1");
    EXPECT_DEATH(tarn_UnsignedEq(8, words, 0, words), "tarn_UnsignedEq.*bWidth >= 1.*bWidth = 0");
    EXPECT_DEATH(tarn_CopyToGlobalBuffer(nullptr), "tarn_CopyToGlobalBuffer.*text = 0");
    EXPECT_DEATH(tarn_SignedConvertToReal(0, words), "tarn_SignedConvertToReal.*width = 0");
    EXPECT_DEATH(tarn_PowerR(nullptr, 1.5, 2.0), "tarn_PowerR.*result = 0, x = 1.5, y = 2");
}

TEST(CheckedDeathTest, ReportsFieldsThatDoNotFit) {
    VectorWord words[4] = {};
    std::uint8_t memory[8] = {};
    EXPECT_DEATH(tarn_PartselectAssign(words, words + 1, 0, 64),
                 "tarn_PartselectAssign.*AreSameOrApart");
    tarn_PartselectAssign(words + 1, words, 0, 64);
    EXPECT_DEATH(tarn_MemoryWordPartselectAssign1(33, memory, words, 0, 8),
                 "tarn_MemoryWordPartselectAssign1.*AreOneWord");
    EXPECT_DEATH(tarn_MemoryWordPartselectAssign(10, memory, words, 8, 3),
                 "tarn_MemoryWordPartselectAssign.*LiesInside");
    tarn_MemoryWordIndexedPartselectAssign(10, memory, words, 8, 3);
    EXPECT_DEATH(tarn_SignedCopyMemoryValue(32, words, 10, memory, 6),
                 "tarn_SignedCopyMemoryValue.*spareBits = 6");
    EXPECT_DEATH(tarn_MemoryWordPartselect(tarn_VectorRegister, 10, memory, 0, 3),
                 "tarn_MemoryWordPartselect.*IsOutsideRegister");
}

TEST(Checked, AcceptsTheWidestDecimalText) {
    const std::vector<VectorWord> zeros(1'250'000);
    EXPECT_STREQ(tarn_UnsignedConvertToDec(40'000'000, zeros.data(), 0, 0), "0");
}

}  // namespace
}  // namespace tarn::test
