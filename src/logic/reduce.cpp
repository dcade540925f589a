// Reductions of a vector to one value, and the truth of a vector.
#include <tarnlib/logic.h>

#include "core/contract.h"
#include "core/lanes.h"
#include "core/vector.h"

namespace tarn {
namespace {

// What the words so far say: a bit in the low half of `settling` (its high half has no meaning)
// settles the result; while there is none, `seen` is all that the result depends on.
template <class Bits>
struct Findings {
    Bits settling{};
    Bits seen{};
};

// A reduction is how a word enters the findings, as a Word or as Lanes, and what they come to. The
// top word enters as TopWord makes it, from the bits of it that are above the width.
struct SeenByOr {
    template <class Bits>
    TARN_KERNEL static constexpr void See(Bits& seen, const Bits& word) noexcept {
        seen |= word;
    }
};

// A known 0 settles it. Ones are put above the width, so that nothing is settled there.
struct AndReduction : SeenByOr {
    static constexpr LogicCode kSettled = TARN_LOGIC_0;

    template <class Bits>
    TARN_KERNEL static constexpr void Settle(Bits& settling, const Bits& word) noexcept {
        settling |= ~(word | (word >> 32));
    }
    static constexpr Word TopWord(Word top, Word above) noexcept { return top | above; }
    static constexpr LogicCode Rest(Word seen) noexcept {
        return IsUnknown(seen) ? TARN_LOGIC_X : TARN_LOGIC_1;
    }
};

// A known 1 settles it, above the width too.
struct OrReduction : SeenByOr {
    static constexpr LogicCode kSettled = TARN_LOGIC_1;

    template <class Bits>
    TARN_KERNEL static constexpr void Settle(Bits& settling, const Bits& word) noexcept {
        settling |= word & ~(word >> 32);
    }
    static constexpr Word TopWord(Word top, Word) noexcept { return top; }
    static constexpr LogicCode Rest(Word seen) noexcept {
        return IsUnknown(seen) ? TARN_LOGIC_X : TARN_LOGIC_0;
    }
};

// An unknown bit settles it. Ones above the width are no part of the parity.
struct XorReduction {
    static constexpr LogicCode kSettled = TARN_LOGIC_X;

    template <class Bits>
    TARN_KERNEL static constexpr void Settle(Bits& settling, const Bits& word) noexcept {
        settling |= word >> 32;
    }
    template <class Bits>
    TARN_KERNEL static constexpr void See(Bits& seen, const Bits& word) noexcept {
        seen ^= word;
    }
    static constexpr Word TopWord(Word top, Word above) noexcept { return top & ~above; }
    static constexpr LogicCode Rest(Word seen) noexcept { return __builtin_parity(Aval(seen)); }
};

template <class Reduction, class Bits>
TARN_KERNEL void AddWord(Findings<Bits>& found, const Bits& word) noexcept {
    Reduction::Settle(found.settling, word);
    Reduction::See(found.seen, word);
}

// Ends behind the block that settles the result.
template <class Reduction>
struct ReduceKernel {
    TARN_KERNEL static Findings<Word> Run(const VectorWord* words, std::size_t count) noexcept {
        constexpr std::size_t kSteps = 8;
        constexpr std::size_t kBlock = kSteps * kLaneCount;
        Findings<Lanes> lanes;
        Findings<Word> found;
        for (; count >= kBlock; count -= kBlock, words += kBlock) {
#pragma GCC unroll 8
            for (std::size_t k = 0; k < kSteps; ++k) {
                Lanes loaded;
                LoadLanes(loaded, words + k * kLaneCount);
                AddWord<Reduction>(lanes, loaded);
            }
            for (std::size_t k = 0; k < kLaneCount; ++k) {
                found.settling |= lanes.settling[k];
            }
            if (Aval(found.settling) != 0) return found;
        }
        for (std::size_t k = 0; k < kLaneCount; ++k) {
            Reduction::See(found.seen, Word{lanes.seen[k]});
        }
        for (std::size_t i = 0; i < count; ++i) {
            AddWord<Reduction>(found, LoadWord(words + i));
        }
        return found;
    }
};

// The result, once the top word has joined the findings in the words below it. Without a branch:
// what a vector holds can't be foretold.
template <class Reduction>
inline LogicCode Conclude(Findings<Word> found, int width, const VectorWord* top) noexcept {
    AddWord<Reduction>(found, Reduction::TopWord(LoadWord(top), ~LowMask(width)));
    const LogicCode rest = Reduction::Rest(found.seen);
    const int isSettled = Aval(found.settling) != 0 ? 1 : 0;
    return rest ^ (-isSettled & (rest ^ Reduction::kSettled));
}

template <class Reduction>
[[gnu::noinline]] LogicCode ReduceWide(Operand v) noexcept {
    if (v.width < 1) return TARN_LOGIC_0;
    const std::size_t last = v.Count() - 1;
    const auto found = RunKernel<ReduceKernel<Reduction>>(v.words, last);
    if (Aval(found.settling) != 0) return Reduction::kSettled;
    return Conclude<Reduction>(found, v.width, v.words + last);
}

template <class Reduction>
inline LogicCode Reduce(Operand v) noexcept {
    Findings<Word> found;
    if (AreOneWord(v.width)) [[likely]]
        return Conclude<Reduction>(found, v.width, v.words);
    if (AreWithin<64>(v.width)) {
        AddWord<Reduction>(found, LoadWord(v.words));
        return Conclude<Reduction>(found, v.width, v.words + 1);
    }
    return ReduceWide<Reduction>(v);
}

}  // namespace
}  // namespace tarn

using namespace tarn;

extern "C" {

LogicCode tarn_ReductionAND(int width, const VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    TARN_REQUIRE_AT_LEAST_1(width);
    return Reduce<AndReduction>({width, v});
}

LogicCode tarn_ReductionOR(int width, const VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    return Reduce<OrReduction>({width, v});
}

LogicCode tarn_ReductionXOR(int width, const VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    return Reduce<XorReduction>({width, v});
}

LogicCode tarn_LogicalValue(int width, const VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    return Reduce<OrReduction>({width, v});
}

int tarn_CheckCondition(int width, const VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    return Reduce<OrReduction>({width, v}) == TARN_LOGIC_1 ? 1 : 0;
}

}  // extern "C"
