#include "compare/relation.h"

#include <algorithm>

#include "core/word_run.h"
#include "core/words.h"

namespace tarn {
namespace {

// Takes kCount words at once from the top of a count while all of them are equal and known.
template <std::size_t kCount, class B>
TARN_KERNEL void SkipBlocks(const OwnWords& a, const B& b, std::size_t& count) noexcept {
    for (; count >= kCount; count -= kCount) {
        Lanes difference{}, all{};
#pragma GCC unroll 2
        for (std::size_t i = 0; i < kCount; i += kLaneCount) {
            Lanes aLanes, bLanes;
            a.Load(count - kLaneCount - i, aLanes);
            b.Load(count - kLaneCount - i, bLanes);
            difference |= aLanes ^ bLanes;
            all |= aLanes | bLanes;
        }
        if (IsAnyLaneSet(difference | (all & kUnknownBits))) return;
    }
}

template <class B>
TARN_KERNEL bool AreEqualAndKnown(const OwnWords& a, const B& b, std::size_t index) noexcept {
    Word aWord, bWord;
    a.Load(index, aWord);
    b.Load(index, bWord);
    return aWord == bWord && !IsUnknown(aWord);
}

struct SkipEqualKernel {
    template <class B>
    TARN_KERNEL static std::size_t Run(OwnWords a, B bRun, std::size_t count) noexcept {
        const typename B::Held b(bRun);
        SkipBlocks<16 * kLaneCount>(a, b, count);
        SkipBlocks<4 * kLaneCount>(a, b, count);
        SkipBlocks<kLaneCount>(a, b, count);
        while (count > 0 && AreEqualAndKnown(a, b, count - 1)) {
            --count;
        }
        return count;
    }
};

// The number of words that are left up to the topmost pair that is not equal and known, that pair
// included; 0 where all are. Numbers that differ mostly differ in their topmost words.
template <class B>
std::size_t SkipEqual(OwnWords a, B b, std::size_t count) noexcept {
    if (!AreEqualAndKnown(a, b, count - 1)) return count;
    return RunKernel<SkipEqualKernel>(a, b, count);
}

// a has at least as many words as b, and b has words.
template <class Extend>
RelationCode RelateLong(Operand a, Operand b) noexcept {
    const std::size_t count = a.Count(), shared = b.Count();
    const Word beyond = ExtensionWord<Extend>(b);
    std::size_t left = shared;
    if (count > shared) {
        left += SkipEqual(OwnWords{a.words + shared}, RepeatedWord{beyond}, count - shared);
    }
    if (left == shared) {
        left = SkipEqual(OwnWords{a.words}, OwnWords{b.words}, shared);
    }
    if (left == 0) return TARN_RELATION_EQUAL;
    const std::size_t below = left - 1;
    const Word aWord = LoadWord(a.words + below);
    const Word bWord = below < shared ? LoadWord(b.words + below) : beyond;
    if (IsUnknown(aWord | bWord) || HasUnknown(a.words, below) ||
        HasUnknown(b.words, std::min(below, shared))) {
        return TARN_RELATION_UNKNOWN;
    }
    return left == count ? Order<Extend>(Aval(aWord), Aval(bWord))
                         : Order<ZeroExtend>(Aval(aWord), Aval(bWord));
}

constexpr RelationCode Mirrored(RelationCode code) noexcept {
    if (code == TARN_RELATION_LESS) return TARN_RELATION_GREATER;
    return code == TARN_RELATION_GREATER ? TARN_RELATION_LESS : code;
}

// From the lowest word up: the last word that differs decides.
template <class Extend>
RelationCode RelateFew(const VectorWord* a, const VectorWord* b, std::size_t count) noexcept {
    RelationCode order = TARN_RELATION_EQUAL;
    for (std::size_t i = 0; i < count; ++i) {
        const Word aWord = LoadWord(a + i), bWord = LoadWord(b + i);
        if (IsUnknown(aWord | bWord)) return TARN_RELATION_UNKNOWN;
        if (aWord == bWord) continue;
        order = i == count - 1 ? Order<Extend>(Aval(aWord), Aval(bWord))
                               : Order<ZeroExtend>(Aval(aWord), Aval(bWord));
    }
    return order;
}

// Apart from what comes before it, so that two words are compared without a frame.
template <class Extend>
[[gnu::noinline]] RelationCode RelateEither(Operand a, Operand b) noexcept {
    if (a.width < 1 || b.width < 1) return TARN_RELATION_UNKNOWN;
    const std::size_t aCount = a.Count(), bCount = b.Count();
    if (aCount == bCount && aCount <= kFewWords) {
        return RelateFew<Extend>(a.words, b.words, aCount);
    }
    return aCount >= bCount ? RelateLong<Extend>(a, b) : Mirrored(RelateLong<Extend>(b, a));
}

std::uint64_t JoinAvals(Word low, Word high) noexcept {
    return (high << kWordBits) | Aval(low);
}

}  // namespace

template <class Extend>
RelationCode RelateWide(Operand a, Operand b) noexcept {
    if (!AreWithin<64>(a.width, b.width)) return RelateEither<Extend>(a, b);
    const Word aLow = LoadWord(a.words), aHigh = SecondWord<Extend>(a, aLow);
    const Word bLow = LoadWord(b.words), bHigh = SecondWord<Extend>(b, bLow);
    const RelationCode order = Order<Extend>(JoinAvals(aLow, aHigh), JoinAvals(bLow, bHigh));
    return IsUnknown(aLow | aHigh | bLow | bHigh) ? TARN_RELATION_UNKNOWN : order;
}

template RelationCode RelateWide<SignExtend>(Operand, Operand) noexcept;
template RelationCode RelateWide<ZeroExtend>(Operand, Operand) noexcept;

}  // namespace tarn
