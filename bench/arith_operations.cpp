// Arithmetic.
#include <tarnlib.h>

#include "families.h"
#include "ladders.h"

namespace tarn::bench {
namespace {

constexpr Contestant kMpnAdd = WritesLimbs<BinaryLimbs<mpn_add_n>>("mpn_add_n");
constexpr Contestant kMpnSub = WritesLimbs<BinaryLimbs<mpn_sub_n>>("mpn_sub_n");
constexpr Contestant kMpnNeg = WritesLimbs<NegateLimbs>("mpn_neg");
constexpr Contestant kMpnMul = WritesLimbs<MultiplyLimbs>("mpn_mul_n");
constexpr Contestant kMpnQuotient = WritesLimbs<QuotientLimbs>("mpn_tdiv_qr");
constexpr Contestant kMpnRemainder = WritesLimbs<RemainderLimbs>("mpn_tdiv_qr");
constexpr Contestant kMpnPower = WritesLimbs<PowerLimbs>("mpn_sqr, mul");

// These only say what is right.
constexpr Contestant kMpnAddOne = WritesLimbs<IncrementLimbs>("mpn_add_1");
constexpr Contestant kMpnSubOne = WritesLimbs<DecrementLimbs>("mpn_sub_1");

// The portable form of addition has a carry chain of one word at a time; the lower limit is meant
// for the form in lanes.
double WideSumLimit() {
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2") != 0) return 2.2;
#endif
    return 6.0;
}

const Ladder kStep = WithTail(kMove, {{128, kWidest, kMemcpy, kNoLimit}});
const Ladder kNegate = WithTail(kCompute, {{128, kWidest, kMpnNeg, kNoLimit}});

Ladder Sum(const Contestant& peer) {
    return WithTail(kCompute, {{128, 512, peer, kNoLimit}, {4096, kWidest, peer, WideSumLimit()}});
}

// With a narrower operand the sum is made in two runs.
Ladder SumOfHalf(const Contestant& peer) {
    return WithTail(kCompute, {{128, 512, peer, kNoLimit},
                               {4096, 4096, peer, 1.3 * WideSumLimit()},
                               {65536, kWidest, peer, WideSumLimit()}});
}

}  // namespace

std::vector<Operation> ArithOperations() {
    return {
        {"UnsignedPlus", kUnsigned, kWords<Unary<tarn_UnsignedPlus>>, kMemcpy, kStep},
        {"Inc", kInPlace, kWords<InPlace<tarn_Inc>>, kMpnAddOne, kStep},
        {"Dec", kInPlace, kWords<InPlace<tarn_Dec>>, kMpnSubOne, kStep},
        {"SignedAdd", kSigned, kWords<Binary<tarn_SignedAdd>>, kMpnAdd, Sum(kMpnAdd)},
        {"UnsignedAdd", kUnsigned, kWords<Binary<tarn_UnsignedAdd>>, kMpnAdd, Sum(kMpnAdd)},
        {"UnsignedSub", kUnsigned, kWords<Binary<tarn_UnsignedSub>>, kMpnSub, Sum(kMpnSub)},
        {"SignedMinus", kSigned, kWords<Unary<tarn_SignedMinus>>, kMpnNeg, kNegate},
        {"SignedAddHalf", kSignedHalf, kWords<Binary<tarn_SignedAdd>>, kMpnAdd, SumOfHalf(kMpnAdd)},
        {"UnsignedAddHalf", kHalf, kWords<Binary<tarn_UnsignedAdd>>, kMpnAdd, SumOfHalf(kMpnAdd)},
        {"UnsignedMul", kUnsigned, kWords<Binary<tarn_UnsignedMul>>, kMpnMul,
         Product(3, kMpnMul, kWidestProduct)},
        {"UnsignedDiv", kHalf, kWords<Binary<tarn_UnsignedDiv>>, kMpnQuotient,
         Product(8, kMpnQuotient, kWidestQuotient)},
        {"UnsignedMod", kHalf, kWords<Binary<tarn_UnsignedMod>>, kMpnRemainder,
         Product(8, kMpnRemainder, kWidestQuotient)},
        {"UnsignedUPower", kUnsigned, kWords<Power<tarn_UnsignedUPower>>, kMpnPower,
         Product(12, kMpnPower)},
    };
}

}  // namespace tarn::bench
