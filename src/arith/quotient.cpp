#include "arith/quotient.h"

#include "arith/natural/divide.h"
#include "arith/natural/span.h"
#include "arith/pack.h"
#include "arith/scratch.h"
#include "arith/short.h"

namespace tarn {
namespace {

template <Wanted kWanted>
Whole DivideWholes(const Whole& a, const Whole& b, Scratch* scratch) noexcept {
    constexpr bool kRemainder = kWanted == Wanted::kRemainder;
    const bool negative = kRemainder ? a.negative : a.negative != b.negative;
    if (a.count < b.count || (a.count == b.count && Compare(a.limbs, b.limbs, a.count) < 0)) {
        return kRemainder ? a : Whole{a.limbs, 0, false};
    }
    const std::size_t count = kRemainder ? b.count : a.count - b.count + 1;
    Limb* const limbs = scratch->Take(count);
    Divide(kRemainder ? nullptr : limbs, kRemainder ? limbs : nullptr, a.limbs, a.count, b.limbs,
           b.count, scratch->Take(DivideScratch(a.count, b.count)));
    return {limbs, NormalisedCount(limbs, count), negative};
}

}  // namespace

template <class Extend, Wanted kWanted>
void DivideWide(Result result, Operand a, Operand b) noexcept {
    if (result.width < 1) return;
    const auto divide = [](auto x, auto y) -> decltype(x) {
        if (x.unknown || y.unknown || y.number == 0) return {0, true};
        return {DivideNumbers<Extend, kWanted>(x.number, y.number), false};
    };
    if (ComputeShort<Extend>(result, divide, a, b)) return;
    Scratch scratch;
    Whole dividend, divisor;
    Limb* const aLimbs = scratch.Take(LimbCount(a.Count()));
    Limb* const bLimbs = scratch.Take(LimbCount(b.Count()));
    if (!PackWhole<Extend>(&divisor, bLimbs, b, b.Count()) || divisor.count == 0 ||
        !PackWhole<Extend>(&dividend, aLimbs, a, a.Count())) {
        FillX(result);
        return;
    }
    StoreWhole(result, DivideWholes<kWanted>(dividend, divisor, &scratch));
}

template void DivideWide<SignExtend, Wanted::kQuotient>(Result, Operand, Operand) noexcept;
template void DivideWide<ZeroExtend, Wanted::kQuotient>(Result, Operand, Operand) noexcept;
template void DivideWide<SignExtend, Wanted::kRemainder>(Result, Operand, Operand) noexcept;
template void DivideWide<ZeroExtend, Wanted::kRemainder>(Result, Operand, Operand) noexcept;

}  // namespace tarn
