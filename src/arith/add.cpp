#include "arith/add.h"

#include <algorithm>

#include "arith/pack.h"

namespace tarn {
namespace {

// Where the words of an operand come from in one region of the result: its own storage, or the one
// word that stands in for all that it does not have.
struct OwnWords {
    const VectorWord* words;

    Word At(std::size_t i) const noexcept { return LoadWord(words + i); }
    OwnWords From(std::size_t first) const noexcept { return {words + first}; }
};

struct SameWord {
    Word word;

    Word At(std::size_t) const noexcept { return word; }
};

struct SpanEnd {
    CarryFlag carry;
    bool unknown;
};

// result[0 .. count) = a Operation b + carry, eight words a block. Stops behind the block (or the
// last words) in which an unknown bit turned up. Word i of a and b is read before word i of the
// result is written, so the result may start at either's first word.
template <class Operation, class A, class B>
SpanEnd CombineSpan(VectorWord* result, A a, B b, std::size_t count, CarryFlag carry) noexcept {
    constexpr std::size_t kBlock = 8;
    std::size_t i = 0;
    for (; i + kBlock <= count; i += kBlock) {
        Word seen = 0;
        for (std::size_t k = i; k < i + kBlock; k += 2) {
            const Word aLow = a.At(k), aHigh = a.At(k + 1);
            const Word bLow = b.At(k), bHigh = b.At(k + 1);
            seen |= aLow | aHigh | bLow | bHigh;
            Limb sum = 0;
            carry = AddWithCarry(carry, PackWords(aLow, aHigh),
                                 Operation::Enter(PackWords(bLow, bHigh)), &sum);
            StoreLimb(result + k, sum);
        }
        if (IsUnknown(seen)) return {carry, true};
    }
    Word seen = 0;
    for (; i < count; ++i) {
        const Word aWord = a.At(i);
        const Word bWord = b.At(i);
        seen |= aWord | bWord;
        const Word sum = (aWord & kValueBits) + (Operation::Enter(bWord) & kValueBits) + carry;
        StoreWord(result + i, sum & kValueBits);
        carry = static_cast<CarryFlag>((sum >> kWordBits) & 1U);
    }
    return {carry, IsUnknown(seen)};
}

// Two words each: one limb.
template <class Operation>
inline void CombineTwoWords(VectorWord* result, const VectorWord* a, const VectorWord* b) noexcept {
    const Word aLow = LoadWord(a), aHigh = LoadWord(a + 1);
    const Word bLow = LoadWord(b), bHigh = LoadWord(b + 1);
    const Limb sum =
        PackWords(aLow, aHigh) + Operation::Enter(PackWords(bLow, bHigh)) + Operation::kFirstCarry;
    const Word beyond = IsUnknown(aLow | aHigh | bLow | bHigh) ? kAllX : 0;
    StoreWord(result, (sum & kValueBits) | beyond);
    StoreWord(result + 1, (sum >> kWordBits) | beyond);
}

}  // namespace

template <class Operation, class Extend>
void CombineWide(Result result, Operand a, Operand b) noexcept {
    if (AreTwoWords(result.width, a.width, b.width)) {
        CombineTwoWords<Operation>(result.words, a.words, b.words);
        return;
    }
    const std::size_t count = result.Count();
    const std::size_t aCount = std::min(a.Count(), count);
    const std::size_t bCount = std::min(b.Count(), count);
    const std::size_t both = std::min(aCount, bCount);
    const std::size_t either = std::max(aCount, bCount);
    const OwnWords aWords{a.words}, bWords{b.words};
    const SameWord aBeyond{ExtensionWord<Extend>(a)}, bBeyond{ExtensionWord<Extend>(b)};

    const CarryFlag firstCarry = Operation::kFirstCarry;
    SpanEnd end = CombineSpan<Operation>(result.words, aWords, bWords, both, firstCarry);
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

template void CombineWide<Addition, SignExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Addition, ZeroExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Subtraction, SignExtend>(Result, Operand, Operand) noexcept;
template void CombineWide<Subtraction, ZeroExtend>(Result, Operand, Operand) noexcept;

template <class Extend>
void PlusWide(Result result, Operand a) noexcept {
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
