#include "operations.h"

#include <tarnlib.h>

#include "ours.h"
#include "peers.h"

namespace tarn::bench {
namespace {

using Ladder = std::vector<Versus>;

constexpr const char* kOurs = "tarnlib";

constexpr Contestant kFloor{"floor", Measure<CallNothing>, nullptr};
constexpr Contestant kMemcpy = WritesWords<CopyBytes>("memcpy");
constexpr Contestant kMpnAdd = WritesLimbs<BinaryLimbs<mpn_add_n>>("mpn_add_n");
constexpr Contestant kMpnSub = WritesLimbs<BinaryLimbs<mpn_sub_n>>("mpn_sub_n");
constexpr Contestant kMpnNeg = WritesLimbs<NegateLimbs>("mpn_neg");
constexpr Contestant kMpnMul = WritesLimbs<MultiplyLimbs>("mpn_mul_n");
constexpr Contestant kMpnQuotient = WritesLimbs<QuotientLimbs>("mpn_tdiv_qr");
constexpr Contestant kMpnRemainder = WritesLimbs<RemainderLimbs>("mpn_tdiv_qr");
constexpr Contestant kMpnPower = WritesLimbs<PowerLimbs>("mpn_sqr, mul");
constexpr Contestant kMpnGetStrCopy = WritesDigits<DigitsOfCopiedLimbs>("mpn_get_str");
constexpr Contestant kMpnGetStr = WritesDigits<DigitsOfLimbs>("mpn_get_str");
constexpr Contestant kMpnSetStr = WritesLimbs<LimbsOfDigits>("mpn_set_str");

// These only say what is right.
constexpr Contestant kMpnAddOne = WritesLimbs<IncrementLimbs>("mpn_add_1");
constexpr Contestant kMpnSubOne = WritesLimbs<DecrementLimbs>("mpn_sub_1");
constexpr Contestant kInteger32 = WritesLimbs<LimbOfValue<kInteger>>("value");
constexpr Contestant kInteger64 = WritesLimbs<LimbOfValue<kLongInteger>>("value");
constexpr Contestant kField = WritesWords<FieldBitByBit>("bit by bit");
constexpr Contestant kMixedText = ReturnsText<MixedDigits>("digit by digit");

// The portable form of addition has a carry chain of one word at a time; the vector form that the
// lower limit is meant for needs AVX-512.
double WideSumLimit() {
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx512f") != 0) return 2.0;
#endif
    return 6.0;
}

Ladder WithTail(Ladder ladder, const Ladder& tail) {
    ladder.insert(ladder.end(), tail.begin(), tail.end());
    return ladder;
}

// Up to 64 bits the call itself is what an operation is measured by.
const Ladder kMove = {{1, 32, kFloor, 2.0}, {64, 64, kFloor, 3.0}};
const Ladder kCompute = {{1, 32, kFloor, 2.5}, {64, 64, kFloor, 3.0}};
const Ladder kUnlimited = {{1, 64, kFloor, kNoLimit}};

const Ladder kCopy =
    WithTail(kMove, {{128, 512, kMemcpy, kNoLimit}, {4096, kWidest, kMemcpy, 1.3}});
const Ladder kStep = WithTail(kMove, {{128, kWidest, kMemcpy, kNoLimit}});
const Ladder kSelect = WithTail(kUnlimited, {{128, kWidest, kMemcpy, kNoLimit}});
const Ladder kNegate = WithTail(kCompute, {{128, kWidest, kMpnNeg, kNoLimit}});

Ladder Sum(const Contestant& peer) {
    return WithTail(kCompute, {{128, 512, peer, kNoLimit}, {4096, kWidest, peer, WideSumLimit()}});
}

// What grows faster than its operands: by the call up to 64 bits, by the peer above.
Ladder Product(double callLimit, const Contestant& peer) {
    return {{1, 64, kFloor, callLimit}, {128, 65536, peer, 1.5}, {kWidest, kWidest, peer, 2.5}};
}

Ladder Product(double callLimit, const Contestant& peer, int widest) {
    return WithTail(Product(callLimit, peer), {{widest, widest, peer, 3.0}});
}

const Ladder kText = {{1, 128, kMpnGetStr, kNoLimit}, {512, kWidest, kMpnGetStr, 0.15}};
const Ladder kOctalText = {{1, kWidest, kMpnGetStr, kNoLimit}};
const Ladder kParse = {{1, 128, kMpnSetStr, kNoLimit}, {512, kWidest, kMpnSetStr, 0.5}};

template <auto kExport>
Ladder Mixed() {
    return {{1, kWidest, ReturnsText<TextOfKnown<kExport>>("known"), 4.0}};
}

constexpr Shape kHalf{.bShare = 2};
constexpr Shape kSignedHalf{.isSigned = true, .bShare = 2};
constexpr Shape kInPlace{.inPlace = true};
constexpr Shape kBinary{.radix = 2};
constexpr Shape kOctal{.radix = 8};
constexpr Shape kDecimal{.radix = 10};
constexpr Shape kHex{.radix = 16};

template <auto kCall>
constexpr Contestant kWords = WritesWords<kCall>(kOurs);
template <auto kCall>
constexpr Contestant kTexts = ReturnsText<kCall>(kOurs);

}  // namespace

const std::vector<Operation>& Operations() {
    static const std::vector<Operation> operations = {
        {"SignedCopy", kSigned, kWords<Unary<tarn_SignedCopy>>, kMemcpy, kCopy},
        {"UnsignedCopy", kUnsigned, kWords<Unary<tarn_UnsignedCopy>>, kMemcpy, kCopy},
        {"SignedConvert", kSigned, kWords<OfValue<tarn_SignedConvert, kInteger>>, kInteger32,
         kMove},
        {"UnsignedConvertLong", kUnsigned, kWords<OfValue<tarn_UnsignedConvertLong, kLongInteger>>,
         kInteger64, kMove},
        {"UnsignedPlus", kUnsigned, kWords<Unary<tarn_UnsignedPlus>>, kMemcpy, kStep},
        {"Inc", kInPlace, kWords<InPlace<tarn_Inc>>, kMpnAddOne, kStep},
        {"Dec", kInPlace, kWords<InPlace<tarn_Dec>>, kMpnSubOne, kStep},
        {"SignedAdd", kSigned, kWords<Binary<tarn_SignedAdd>>, kMpnAdd, Sum(kMpnAdd)},
        {"UnsignedAdd", kUnsigned, kWords<Binary<tarn_UnsignedAdd>>, kMpnAdd, Sum(kMpnAdd)},
        {"UnsignedSub", kUnsigned, kWords<Binary<tarn_UnsignedSub>>, kMpnSub, Sum(kMpnSub)},
        {"SignedMinus", kSigned, kWords<Unary<tarn_SignedMinus>>, kMpnNeg, kNegate},
        {"SignedAddHalf", kSignedHalf, kWords<Binary<tarn_SignedAdd>>, kMpnAdd, Sum(kMpnAdd)},
        {"UnsignedAddHalf", kHalf, kWords<Binary<tarn_UnsignedAdd>>, kMpnAdd, Sum(kMpnAdd)},
        {"UnsignedMul", kUnsigned, kWords<Binary<tarn_UnsignedMul>>, kMpnMul,
         Product(3, kMpnMul, kWidestProduct)},
        {"UnsignedDiv", kHalf, kWords<Binary<tarn_UnsignedDiv>>, kMpnQuotient,
         Product(8, kMpnQuotient, kWidestQuotient)},
        {"UnsignedMod", kHalf, kWords<Binary<tarn_UnsignedMod>>, kMpnRemainder,
         Product(8, kMpnRemainder, kWidestQuotient)},
        {"UnsignedUPower", kUnsigned, kWords<Power<tarn_UnsignedUPower>>, kMpnPower,
         Product(12, kMpnPower)},
        {"Partselect", kUnsigned, kWords<OfField<tarn_Partselect>>, kField, kSelect},
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
    };
    return operations;
}

}  // namespace tarn::bench
