#include "arith/add.h"

#include <algorithm>

#include "arith/short.h"

namespace tarn {
namespace {

// Where the words of an operand come from in one region of the result: its own storage, or the one
// word that stands in for all that it does not have.
struct OwnWords {
    const VectorWord* words;

    Word At(std::size_t i) const noexcept { return LoadWord(words + i); }
    std::uint32_t AvalAt(std::size_t i) const noexcept { return words[i].aval; }
    OwnWords From(std::size_t first) const noexcept { return {words + first}; }
};

struct SameWord {
    Word word;

    Word At(std::size_t) const noexcept { return word; }
    std::uint32_t AvalAt(std::size_t) const noexcept { return Aval(word); }
};

struct SpanEnd {
    CarryFlag carry;
    bool unknown;
};

// result[0 .. count) = a Operation b with a carry or borrow in, kBlock words at a time: first the
// unknown test of the whole block, then a chain of additions that nothing else comes between, so
// that the carry stays in the processor's flag. Stops in front of the block that has an unknown
// bit. Word i of a and b is read before word i of the result is written, so the result may start at
// either's first word.
template <class Operation, class A, class B>
SpanEnd CombineSpan(VectorWord* result, A a, B b, std::size_t count, CarryFlag carry) noexcept {
    constexpr std::size_t kBlock = 16;
    std::size_t i = 0;
    for (; i + kBlock <= count; i += kBlock) {
        Word seen = 0;
        for (std::size_t k = i; k < i + kBlock; ++k) {
            seen |= a.At(k) | b.At(k);
        }
        if (IsUnknown(seen)) return {carry, true};
#pragma GCC unroll 16
        for (std::size_t k = i; k < i + kBlock; ++k) {
            std::uint32_t sum = 0;
            carry = Operation::Step(carry, a.AvalAt(k), b.AvalAt(k), &sum);
            StoreWord(result + k, sum);
        }
    }
    for (; i < count; ++i) {
        const Word aWord = a.At(i), bWord = b.At(i);
        if (IsUnknown(aWord | bWord)) return {carry, true};
        std::uint32_t sum = 0;
        carry = Operation::Step(carry, Aval(aWord), Aval(bWord), &sum);
        StoreWord(result + i, sum);
    }
    return {carry, false};
}

// The same for operands of any widths, each continued above its words by `beyond`.
template <class Operation>
void CombineVectors(Result result, Operand a, SameWord aBeyond, Operand b,
                    SameWord bBeyond) noexcept {
    const std::size_t count = result.Count();
    const std::size_t aCount = std::min(a.Count(), count);
    const std::size_t bCount = std::min(b.Count(), count);
    const std::size_t both = std::min(aCount, bCount);
    const std::size_t either = std::max(aCount, bCount);
    const OwnWords aWords{a.words}, bWords{b.words};

    SpanEnd end = CombineSpan<Operation>(result.words, aWords, bWords, both, 0);
    if (!end.unknown && aCount > both) {
        end = CombineSpan<Operation>(result.words + both, aWords.From(both), bBeyond, aCount - both,
                                     end.carry);
    } else if (!end.unknown && bCount > both) {
        end = CombineSpan<Operation>(result.words + both, aBeyond, bWords.From(both), bCount - both,
                                     end.carry);
    }
    if (!end.unknown && count > either) {
        end = CombineSpan<Operation>(result.words + either, aBeyond, bBeyond, count - either,
                                     end.carry);
    }
    if (end.unknown || HasUnknownFrom(count, a) || HasUnknownFrom(count, b)) {
        FillX(result);
    }
}

}  // namespace

template <class Operation, class Extend>
void CombineWide(Result result, Operand a, Operand b) noexcept {
    const auto combine = [](auto x, auto y) -> decltype(x) {
        return {Operation::Combine(x.number, y.number), x.unknown || y.unknown};
    };
    if (ComputeShort<Extend>(result, combine, a, b)) return;
    CombineVectors<Operation>(result, a, {ExtensionWord<Extend>(a)}, b, {ExtensionWord<Extend>(b)});
}

template void CombineWide<Addition, SignExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Addition, ZeroExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Subtraction, SignExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Subtraction, ZeroExtend>(Result, Operand, Operand) noexcept;

template <class Extend>
void NegateWide(Result result, Operand a) noexcept {
    const auto negate = [](auto x) -> decltype(x) { return {0 - x.number, x.unknown}; };
    if (ComputeShort<Extend>(result, negate, a)) return;
    CombineVectors<Subtraction>(result, {0, nullptr}, {0}, a, {ExtensionWord<Extend>(a)});
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
