#include "compare/equality.h"

#include <algorithm>

#include "core/word_run.h"

namespace tarn {
namespace {

// The words between two tests for a mismatch.
inline constexpr std::size_t kBlock = 16 * kLaneCount;

// Adds what the rule finds in the words, or the lanes, at an index.
template <class Rule, class A, class B, class Words>
TARN_KERNEL void CompareAt(std::size_t index, const A& a, const B& b,
                           Findings<Words>& found) noexcept {
    Words aWords, bWords;
    a.Load(index, aWords);
    b.Load(index, bWords);
    Rule::Compare(aWords, bWords, found);
}

// At least one group of lanes. A mismatch ends the walk after its block; what is open never does.
template <class Rule>
struct MatchKernel {
    template <class A, class B>
    TARN_KERNEL static LogicCode Run(A aRun, B bRun, std::size_t count) noexcept {
        const typename A::Held a(aRun);
        const typename B::Held b(bRun);
        Findings<Lanes> found;
        std::size_t i = 0;
        for (; count - i >= kBlock; i += kBlock) {
            // Unrolled further, this loads a whole block before it compares any of it, which is
            // slow where vectors do not begin at a cache line.
#pragma GCC unroll 2
            for (std::size_t k = 0; k < kBlock; k += kLaneCount) {
                CompareAt<Rule>(i + k, a, b, found);
            }
            if (HasMismatch(FoldLanes(found.mismatch))) return TARN_LOGIC_0;
        }
        for (; count - i >= kLaneCount; i += kLaneCount) {
            CompareAt<Rule>(i, a, b, found);
        }
        // The last words; some were compared before, which changes nothing.
        CompareAt<Rule>(count - kLaneCount, a, b, found);
        return Verdict({FoldLanes(found.mismatch), FoldLanes(found.unknown)});
    }
};

// At least one word. Of many, one is compared first: vectors that differ mostly differ there.
template <class Rule, class A, class B>
[[gnu::noinline]] LogicCode MatchRun(A a, B b, std::size_t count) noexcept {
    const std::size_t ahead = count <= kFewWords ? count : 1;
    Findings<Word> found;
    for (std::size_t i = 0; i < ahead; ++i) {
        CompareAt<Rule>(i, a, b, found);
        if (HasMismatch(found.mismatch)) return TARN_LOGIC_0;
    }
    return ahead == count ? Verdict(found) : RunKernel<MatchKernel<Rule>>(a, b, count);
}

// Operands of unequal counts.
template <class Rule, class Extend>
[[gnu::noinline]] LogicCode MatchUneven(Operand a, Operand b) noexcept {
    const std::size_t aCount = a.Count(), bCount = b.Count();
    const std::size_t shared = std::min(aCount, bCount);
    const LogicCode low = MatchRun<Rule>(OwnWords{a.words}, OwnWords{b.words}, shared);
    if (low == TARN_LOGIC_0) return low;
    const LogicCode high =
        aCount > bCount ? MatchRun<Rule>(OwnWords{a.words + shared},
                                         RepeatedWord{ExtensionWord<Extend>(b)}, aCount - shared)
                        : MatchRun<Rule>(RepeatedWord{ExtensionWord<Extend>(a)},
                                         OwnWords{b.words + shared}, bCount - shared);
    // 1 and 3 are joined as bits.
    return high == TARN_LOGIC_0 ? high : low | high;
}

// Apart from what comes before it, so that two words are compared without a frame.
template <class Rule, class Extend>
[[gnu::noinline]] LogicCode MatchLong(Operand a, Operand b) noexcept {
    if (a.width < 1 || b.width < 1) return TARN_LOGIC_0;
    if (a.Count() != b.Count()) return MatchUneven<Rule, Extend>(a, b);
    return MatchRun<Rule>(OwnWords{a.words}, OwnWords{b.words}, a.Count());
}

}  // namespace

template <class Rule, class Extend>
LogicCode MatchWide(Operand a, Operand b) noexcept {
    if (!AreWithin<64>(a.width, b.width)) return MatchLong<Rule, Extend>(a, b);
    Findings<Word> found;
    const Word aFirst = LoadWord(a.words), bFirst = LoadWord(b.words);
    Rule::Compare(aFirst, bFirst, found);
    Rule::Compare(SecondWord<Extend>(a, aFirst), SecondWord<Extend>(b, bFirst), found);
    return Verdict(found);
}

template LogicCode MatchWide<LogicalRule, SignExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<LogicalRule, ZeroExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<CaseRule, SignExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<CaseRule, ZeroExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<CaseXRule, SignExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<CaseXRule, ZeroExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<CaseZRule, SignExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<CaseZRule, ZeroExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<WildcardRule, SignExtend>(Operand, Operand) noexcept;
template LogicCode MatchWide<WildcardRule, ZeroExtend>(Operand, Operand) noexcept;

}  // namespace tarn
