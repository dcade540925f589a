#include "arith/add.h"

#include <algorithm>

#include "arith/combine_span.h"
#include "arith/short.h"

namespace tarn {
namespace {

// result = a Operation b, of which the first words are done, for operands of any widths; each is
// continued above its words by `beyond`.
template <class Operation>
[[gnu::noinline]] void CombineRegions(Result result, Operand a, RepeatedWord aBeyond, Operand b,
                                      RepeatedWord bBeyond, Progress done) noexcept {
    const std::size_t count = result.Count();
    const std::size_t aCount = std::min(a.Count(), count);
    const std::size_t bCount = std::min(b.Count(), count);
    const std::size_t both = std::min(aCount, bCount);
    const std::size_t either = std::max(aCount, bCount);
    const OwnWords aWords{a.words}, bWords{b.words};

    const auto combine = [&](std::size_t end, auto aFrom, auto bFrom) {
        return CombineUpTo<Operation>(end, result.words, aFrom, bFrom, done);
    };
    const bool known =
        combine(both, aWords, bWords) &&
        (aCount > both ? combine(either, aWords, bBeyond) : combine(either, aBeyond, bWords)) &&
        combine(count, aBeyond, bBeyond);
    if (!known || HasUnknownFrom(count, a) || HasUnknownFrom(count, b)) {
        FillX(result);
    }
}

// The operands that the kernel mostly gets all through: as many words as the result has. Out of
// line, so that its frame does not burden short operands.
template <class Operation, class Extend>
[[gnu::noinline]] void CombineVectors(Result result, Operand a, Operand b) noexcept {
    const std::size_t count = result.Count();
    Progress done{0, 0};
    if (a.Count() == count && b.Count() == count) {
        done = RunKernel<CombineKernel<Operation>>(result.words, OwnWords{a.words},
                                                   OwnWords{b.words}, count, CarryFlag{0});
        if (done.count == count) return;
    }
    CombineRegions<Operation>(result, a, {ExtensionWord<Extend>(a)}, b, {ExtensionWord<Extend>(b)},
                              done);
}

template <class Extend>
[[gnu::noinline]] void NegateVector(Result result, Operand a) noexcept {
    const std::size_t count = result.Count();
    Progress done{0, 0};
    if (a.Count() == count) {
        done = RunKernel<CombineKernel<Subtraction>>(result.words, RepeatedWord{0},
                                                     OwnWords{a.words}, count, CarryFlag{0});
        if (done.count == count) return;
    }
    CombineRegions<Subtraction>(result, {0, nullptr}, {0}, a, {ExtensionWord<Extend>(a)}, done);
}

}  // namespace

template <class Operation, class Extend>
void CombineWide(Result result, Operand a, Operand b) noexcept {
    const auto combine = [](auto x, auto y) -> decltype(x) {
        return {Operation::Combine(x.number, y.number), x.unknown || y.unknown};
    };
    if (ComputeShort<Extend>(result, combine, a, b)) return;
    CombineVectors<Operation, Extend>(result, a, b);
}

template void CombineWide<Addition, SignExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Addition, ZeroExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Subtraction, SignExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Subtraction, ZeroExtend>(Result, Operand, Operand) noexcept;

template <class Extend>
void NegateWide(Result result, Operand a) noexcept {
    const auto negate = [](auto x) -> decltype(x) { return {0 - x.number, x.unknown}; };
    if (ComputeShort<Extend>(result, negate, a)) return;
    NegateVector<Extend>(result, a);
}

template void NegateWide<SignExtend>(Result, Operand) noexcept;
template void NegateWide<ZeroExtend>(Result, Operand) noexcept;

template <class Extend>
void PlusWide(Result result, Operand a) noexcept {
    const auto keep = [](auto x) { return x; };
    if (ComputeShort<Extend>(result, keep, a)) return;
    // The unknown test runs first: a copy on top of the operand would still be right, but a copy
    // that is then overwritten with X would be done for nothing.
    if (result.width < 1) return;
    if (HasUnknown(a.words, a.Count())) {
        FillX(result);
        return;
    }
    const std::size_t shared = std::min(result.Count(), a.Count());
    const Word beyond = ExtensionWord<Extend>(a);
    CopyWords(result.words, a.words, shared);
    FillWords(result.words + shared, result.Count() - shared, beyond);
}

template void PlusWide<SignExtend>(Result, Operand) noexcept;
template void PlusWide<ZeroExtend>(Result, Operand) noexcept;

void StepWide(Result v, std::uint32_t delta) noexcept {
    if (HasUnknown(v.words, v.Count())) {
        FillX(v);
        return;
    }
    // The carry passes on where a word wraps: from all ones to 0, or from 0 to all ones.
    const std::uint32_t wrapped = delta == 1U ? 0U : ~0U;
    const std::size_t count = v.Count();
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t sum = Aval(LoadWord(v.words + i)) + delta;
        StoreWord(v.words + i, sum);
        if (sum != wrapped) return;
    }
}

}  // namespace tarn
