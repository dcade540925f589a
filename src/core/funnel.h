// Runs of words moved by a number of bits that is no multiple of 32: what reading and writing
// fields, shifts and concatenation have in common.
#ifndef TARN_CORE_FUNNEL_H
#define TARN_CORE_FUNNEL_H

#include "core/word.h"

namespace tarn {

// The 32 bits from bit `offset` (1 to 31) of `low` upward, in aval and bval alike; `high` is the
// word above low.
constexpr Word JoinWords(Word low, Word high, unsigned offset) noexcept {
    const auto fromLow = (low >> offset) & InBothHalves(0xFFFFFFFFU >> offset);
    const auto fromHigh = (high << (32 - offset)) & InBothHalves(0xFFFFFFFFU << (32 - offset));
    return fromLow | fromHigh;
}

// A word shifted away from bit 0 by 0 to 31 bits, aval and bval each for itself.
constexpr Word ShiftWordUp(Word word, unsigned bits) noexcept {
    return (word & kUnknownBits) << bits | Word{Aval(word) << bits};
}

static_assert(ShiftWordUp(MakeWord(0xC0000001, 0x80000003), 1) == MakeWord(0x80000002, 6));
static_assert(JoinWords(MakeWord(0xC0000001, 0x80000000), MakeWord(0xE, 0x7), 30) ==
              MakeWord(0x3B, 0x1E));

// What a write does besides writing. The bits that Replace returns are collected over a run: any
// bit set tells that a stored bit changed.
struct Overwrite {
    static constexpr bool kCompares = false;
};
struct OverwriteAndCompare {
    static constexpr bool kCompares = true;
};

template <class Policy>
inline Word Replace(VectorWord* to, Word word) noexcept {
    Word changed = 0;
    if constexpr (Policy::kCompares) changed = LoadWord(to) ^ word;
    StoreWord(to, word);
    return changed;
}

// to[i] = JoinWords(from[i], from[i + 1], offset) for i from 0 to count - 1, so count + 1 words are
// read, none for a count of 0. Returns the changed bits under OverwriteAndCompare, else 0. `to`
// lies apart from `from`; or FunnelUp: at or below it; FunnelDown: above it. The long runs are
// instantiated in funnel.cpp for both policies.
template <class Policy>
Word FunnelUpLongRun(VectorWord* to, const VectorWord* from, std::size_t count,
                     unsigned offset) noexcept;
template <class Policy>
Word FunnelDownLongRun(VectorWord* to, const VectorWord* from, std::size_t count,
                       unsigned offset) noexcept;

inline constexpr std::size_t kShortFunnel = 4;

// The loops of short runs have a constant bound and leave early, so that they become straight code.
template <class Policy>
inline Word FunnelUp(VectorWord* to, const VectorWord* from, std::size_t count,
                     unsigned offset) noexcept {
    if (count > kShortFunnel) return FunnelUpLongRun<Policy>(to, from, count, offset);
    if (count == 0) return 0;
    Word changed = 0;
    Word low = LoadWord(from);
#pragma GCC unroll 4
    for (std::size_t i = 0; i < kShortFunnel; ++i) {
        if (i == count) break;
        const Word high = LoadWord(from + i + 1);
        changed |= Replace<Policy>(to + i, JoinWords(low, high, offset));
        low = high;
    }
    return changed;
}

template <class Policy>
inline Word FunnelDown(VectorWord* to, const VectorWord* from, std::size_t count,
                       unsigned offset) noexcept {
    if (count > kShortFunnel) return FunnelDownLongRun<Policy>(to, from, count, offset);
    if (count == 0) return 0;
    Word changed = 0;
    Word high = LoadWord(from + count);
#pragma GCC unroll 4
    for (std::size_t i = 1; i <= kShortFunnel; ++i) {
        if (i > count) break;
        const Word low = LoadWord(from + count - i);
        changed |= Replace<Policy>(to + count - i, JoinWords(low, high, offset));
        high = low;
    }
    return changed;
}

}  // namespace tarn

#endif  // TARN_CORE_FUNNEL_H
