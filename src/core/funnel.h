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
// read. Returns the changed bits under OverwriteAndCompare, else 0. `to` lies apart from `from`; or
// FunnelUp: at or below it; FunnelDown: above it. The second for a policy is instantiated in
// funnel.cpp for both.
template <class Policy>
Word FunnelUpLongRun(VectorWord* to, const VectorWord* from, std::size_t count,
                     unsigned offset) noexcept;
template <class Policy>
Word FunnelDownLongRun(VectorWord* to, const VectorWord* from, std::size_t count,
                       unsigned offset) noexcept;

inline constexpr std::size_t kShortFunnel = 4;

template <class Policy>
inline Word FunnelUp(VectorWord* to, const VectorWord* from, std::size_t count,
                     unsigned offset) noexcept {
    if (count > kShortFunnel) return FunnelUpLongRun<Policy>(to, from, count, offset);
    Word changed = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const Word joined = JoinWords(LoadWord(from + i), LoadWord(from + i + 1), offset);
        changed |= Replace<Policy>(to + i, joined);
    }
    return changed;
}

template <class Policy>
inline Word FunnelDown(VectorWord* to, const VectorWord* from, std::size_t count,
                       unsigned offset) noexcept {
    if (count > kShortFunnel) return FunnelDownLongRun<Policy>(to, from, count, offset);
    Word changed = 0;
    for (std::size_t i = count; i-- > 0;) {
        const Word joined = JoinWords(LoadWord(from + i), LoadWord(from + i + 1), offset);
        changed |= Replace<Policy>(to + i, joined);
    }
    return changed;
}

}  // namespace tarn

#endif  // TARN_CORE_FUNNEL_H
