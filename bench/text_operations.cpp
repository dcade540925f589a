// Text in both directions.
#include <cstdlib>

#include <tarnlib.h>

#include "families.h"
#include "ladders.h"

namespace tarn::bench {
namespace {

constexpr Contestant kMpnGetStrCopy = WritesDigits<DigitsOfCopiedLimbs>("mpn_get_str");
constexpr Contestant kMpnGetStr = WritesDigits<DigitsOfLimbs>("mpn_get_str");
constexpr Contestant kMpnSetStr = WritesLimbs<LimbsOfDigits>("mpn_set_str");
constexpr Contestant kMixedText = ReturnsText<MixedDigits>("digit by digit");

const Ladder kText = {{1, 128, kMpnGetStr, kNoLimit}, {512, kWidest, kMpnGetStr, 0.15}};
const Ladder kOctalText = {{1, kWidest, kMpnGetStr, kNoLimit}};
const Ladder kParse = {{1, 128, kMpnSetStr, kNoLimit}, {512, kWidest, kMpnSetStr, 0.5}};

template <auto kExport>
Ladder Mixed() {
    return {{1, kWidest, ReturnsText<TextOfKnown<kExport>>("known"), 4.0}};
}

void RealOfText(const Operands& o) {
    tarn_CreateReal(o.text, o.resultReal);
}

void RealByLibrary(const Operands& o) {
    *o.resultReal = std::atof(o.text);
}

void RealOfCharacters(const Operands& o) {
    tarn_AssignStringToReal(o.resultReal, static_cast<int>(o.digitCount), o.text);
}

// The digits' characters are no tie between two doubles.
void RealOfLastCharacters(const Operands& o) {
    std::uint64_t bytes = 0;
    for (std::size_t i = 0; i < o.digitCount; ++i) {
        bytes = bytes << 8 | static_cast<unsigned char>(o.text[i]);
    }
    *o.resultReal = static_cast<double>(static_cast<std::int64_t>(bytes));
}

constexpr Contestant kAtof = WritesReal<RealByLibrary>("atof");

constexpr Shape kBinary{.radix = 2};
constexpr Shape kOctal{.radix = 8};
constexpr Shape kDecimal{.radix = 10};
constexpr Shape kHex{.radix = 16};

}  // namespace

std::vector<Operation> TextOperations() {
    return {
        {"ConvertToBin", kBinary, kTexts<TextOfKnown<tarn_ConvertToBin>>, kMpnGetStr, kText},
        {"ConvertToOct", kOctal, kTexts<TextOfKnown<tarn_ConvertToOct>>, kMpnGetStr, kOctalText},
        {"ConvertToHex", kHex, kTexts<TextOfKnown<tarn_ConvertToHex>>, kMpnGetStr, kText},
        {"ConvertToBinMixed", kBinary, kTexts<TextOfMixed<tarn_ConvertToBin>>, kMixedText,
         Mixed<tarn_ConvertToBin>()},
        {"ConvertToOctMixed", kOctal, kTexts<TextOfMixed<tarn_ConvertToOct>>, kMixedText,
         Mixed<tarn_ConvertToOct>()},
        {"ConvertToHexMixed", kHex, kTexts<TextOfMixed<tarn_ConvertToHex>>, kMixedText,
         Mixed<tarn_ConvertToHex>()},
        {"UnsignedConvertToDec", kDecimal, kTexts<DecimalOfKnown<tarn_UnsignedConvertToDec>>,
         kMpnGetStrCopy, Product(12, kMpnGetStrCopy, kWidestProduct)},
        {"BinaryStringToVector", kBinary, kWords<OfText<tarn_BinaryStringToVector>>, kMpnSetStr,
         kParse},
        {"HexStringToVector", kHex, kWords<OfText<tarn_HexStringToVector>>, kMpnSetStr, kParse},
        {"DecimalStringToVector", kDecimal, kWords<OfText<tarn_DecimalStringToVector>>, kMpnSetStr,
         Product(12, kMpnSetStr, kWidestProduct)},
        {"CreateReal", kDecimal, kWritesReal<RealOfText>, kAtof, {{1, 128, kAtof, 1.5}}},
        {"AssignStringToReal",
         kHex,
         kWritesReal<RealOfCharacters>,
         WritesReal<RealOfLastCharacters>("by shifts"),
         {{1, 64, kFloor, 3.0}}},
    };
}

}  // namespace tarn::bench
