// The checked build lets every legal call pass, and each export has a duty that it reports.
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <vector>

#include <tarnlib.h>

namespace tarn::test {
namespace {

VectorWord words[8];
std::uint8_t memory[16];
const char* const noText = nullptr;

VectorWord* Holding(std::uint32_t aval, std::uint32_t bval) {
    words[0] = {aval, bval};
    return words;
}

// A vector of zeros, never freed.
VectorWord* Wide(int width) {
    return (new std::vector<VectorWord>(static_cast<std::size_t>(width) / 32 + 1))->data();
}

struct Legal {
    const char* what;
    void (*call)();
};

const Legal kLegal[] = {
    {"vectors without words lie nowhere",
     [] {
         tarn_SignedAdd(0, nullptr, 0, nullptr, -1, nullptr);
         tarn_UnsignedBitwiseXOR(64, words, 0, words + 1, 64, words);
         tarn_SignedMul(64, words, 64, words, 0, tarn_VectorRegister);
         tarn_Inc(0, nullptr);
         tarn_Convert1ToZ(-1, nullptr);
         tarn_Clog2(0, nullptr);
         tarn_NotIdentical(0, nullptr, nullptr);
         tarn_BitValue(0, nullptr, 0);
         tarn_IndexedPartselect(words, 0, nullptr, 0, 8);
         tarn_AssignStringToVector(8, words, 0, noText);
     }},
    {"vectors side by side are apart",
     [] {
         tarn_UnsignedCopy(64, words + 2, 64, words);
         tarn_UnsignedSub(64, words + 2, 64, words, 64, words + 4);
         tarn_Partselect(words + 1, words, 0, 32);
         tarn_PartselectAssign(words + 2, words + 4, 31, 33);
         tarn_Concatenate(32, words, 32, words + 1, 1);
     }},
    {"a field is read to and written from below its own words",
     [] {
         tarn_Partselect(words, words + 1, 5, 96);
         tarn_SignedPartselect(160, words, words + 2, 5, 96);
         tarn_PartselectAssign(words + 1, words, 0, 64);
         tarn_IndexedPartselect(words, 96, words, -7, 96);
     }},
    {"bits above the width",
     [] {
         tarn_SignedAdd(8, words + 1, 8, Holding(~0U, 0xFF00), 8, words);
         tarn_UnsignedEq(8, words, 3, Holding(0x105, 0));
         tarn_LogicalShiftRight(8, words, 8, words, 3);
         tarn_SignedConvertToReal(8, Holding(0x105, ~0U));
         tarn_NotIdentical(8, words, words + 1);
         tarn_MemoryWordAssign(8, memory, Holding(~0U, ~0U));
         tarn_SignedConvertToDec(8, Holding(0x105, 0), 0, 0);
     }},
    {"clean and signed storage",
     [] {
         tarn_ScanShiftCount(32, Holding(~0U, ~0U));
         tarn_UnsignedScanIndexOfSelect(8, Holding(0xFF, 0x80));
         tarn_SignedScanIndexOfSelect(8, Holding(~0U - 3, 0));
         tarn_SignedScanIndexOfSelect(8, Holding(0x7F, 0xFFFFFF80));
         tarn_Concatenate(40, words + 1, 8, Holding(0xFF, 0xFF), 31);
     }},
    {"places that are free",
     [] {
         tarn_Concatenate(8, Holding(0xF, 0), 4, words, 4);
         tarn_Concatenate(8, Holding(0xFF, 0), 8, words, 0);
         words[1] = {0xF, 0x7};
         tarn_ConcatenateShifted(8, words + 1, Holding(0x10, 0xF0));
         tarn_ConcatenateShifted(8, words, words);
         words[1] = {~0U, ~0U};
         tarn_ConcatenateShifted(8, words + 1, Holding(0, 0));
     }},
    {"the widest products, quotients and exponents",
     [] {
         tarn_UnsignedMul(20'000'000, Wide(20'000'000), 8, tarn_VectorRegister, 8, words);
         tarn_SignedMod(10'000'000, Wide(10'000'000), 10'000'000, Wide(10'000'000), 40'000'000,
                        Wide(40'000'000));
         tarn_UnsignedUPower(8, words, 8, words, 40'000'000, Wide(40'000'000));
     }},
    {"the widest decimal text, and one from the register",
     [] {
         tarn_UnsignedConvertToDec(40'000'000, Wide(40'000'000), 0, 0);
         tarn_SignedConvertToDec(64, tarn_VectorRegister + 1, 0, 0);
     }},
    {"the widest memory word, and fields outside of one",
     [] {
         auto* const wide = new std::uint8_t[5'000'000]();
         tarn_MemoryWordPartselect(words, 20'000'000, wide, 19'999'999, 1);
         tarn_MemoryWordIndexedPartselectAssign(10, memory + 1, words, 10, 3);
         tarn_MemoryWordIndexedPartselectAssign1(32, memory + 3, words, -40, 3);
     }},
    {"formats of one real",
     [] {
         tarn_ConvertToStringR("%%%-+ #012.5lG%%d", 1.5);
         tarn_ConvertToStringR("%1$a", 1.5);
     }},
};

TEST(CheckedDeathTest, LetsLegalCallsPass) {
    for (const auto& [what, call] : kLegal) {
        EXPECT_EXIT((call(), std::exit(0)), testing::ExitedWithCode(0), "^$") << what;
    }
}

// Calls an export without storage, first with 1 for every number, then with -1.
template <class Parameter>
Parameter Number(int number) {
    if constexpr (std::is_pointer_v<Parameter>) {
        return nullptr;
    } else {
        return static_cast<Parameter>(number);
    }
}

template <class Returned, class... Parameters>
void CallWithoutStorage(Returned (*function)(Parameters...)) {
    for (const int number : {1, -1}) {
        function(Number<Parameters>(number)...);
    }
}

template <class Export>
void ExpectContract(const std::string& name, Export* exported) {
    if constexpr (std::is_function_v<Export>) {
        EXPECT_DEATH(CallWithoutStorage(exported),
                     "^tarnlib: " + name + ": broken duty of the caller: ")
            << name;
    }
}

// All but tarn_GetGlobalBuffer, which takes any count.
TEST(CheckedDeathTest, EachExportHasAContract) {
#define TARN_EXPORT(name) \
    if (std::string(#name) != "tarn_GetGlobalBuffer") ExpectContract(#name, &name);
#include "exports.inc"
#undef TARN_EXPORT
}

}  // namespace
}  // namespace tarn::test
