#include "arith/pack.h"

#include <algorithm>

#include "arith/natural/span.h"

namespace tarn {

namespace {

// kPairs limbs from twice as many words; returns the words' bits, of which the upper ones must be 0
// for the limbs to be right.
template <std::size_t kPairs>
inline Word PackPairs(Limb* limbs, const VectorWord* words) noexcept {
    Word seen = 0;
    for (std::size_t i = 0; i < kPairs; ++i) {
        seen |= LoadWord(words + 2 * i) | LoadWord(words + 2 * i + 1);
        limbs[i] = PackKnownWords(words + 2 * i);
    }
    return seen;
}

}  // namespace

bool PackKnown(Limb* limbs, const VectorWord* words, std::size_t count) noexcept {
    // One test a block: an early unknown bit ends a long run soon.
    constexpr std::size_t kBlock = 8;
    for (; count >= 2 * kBlock; count -= 2 * kBlock, words += 2 * kBlock, limbs += kBlock) {
        if (IsUnknown(PackPairs<kBlock>(limbs, words))) return false;
    }
    Word seen = 0;
    if ((count & 8U) != 0) {
        seen |= PackPairs<4>(limbs, words);
        words += 8;
        limbs += 4;
    }
    if ((count & 4U) != 0) {
        seen |= PackPairs<2>(limbs, words);
        words += 4;
        limbs += 2;
    }
    if ((count & 2U) != 0) {
        seen |= PackPairs<1>(limbs, words);
        words += 2;
        limbs += 1;
    }
    if ((count & 1U) != 0) {
        const Word top = LoadWord(words);
        seen |= top;
        *limbs = top & kValueBits;
    }
    return !IsUnknown(seen);
}

void NegateLimbs(Limb* limbs, std::size_t wordCount) noexcept {
    const std::size_t count = LimbCount(wordCount);
    CarryFlag borrow = 0;
    for (std::size_t i = 0; i < count; ++i) {
        borrow = SubtractWithBorrow(borrow, 0, limbs[i], &limbs[i]);
    }
    if (wordCount % 2 != 0) {
        limbs[count - 1] &= kValueBits;
    }
}

template <class Extend>
bool PackWhole(Whole* whole, Limb* limbs, Operand operand, std::size_t wordCount) noexcept {
    *whole = {limbs, 0, false};
    if (wordCount == 0) return true;
    if (!PackKnown(limbs, operand.words, wordCount)) return false;
    whole->negative = Extend::Beyond(LoadWord(operand.words + wordCount - 1)) != 0;
    if (whole->negative) {
        NegateLimbs(limbs, wordCount);
    }
    whole->count = NormalisedCount(limbs, LimbCount(wordCount));
    return true;
}

template bool PackWhole<SignExtend>(Whole*, Limb*, Operand, std::size_t) noexcept;
template bool PackWhole<ZeroExtend>(Whole*, Limb*, Operand, std::size_t) noexcept;

void StoreWhole(Result result, const Whole& value) noexcept {
    // A value of 0 has no limbs and no sign.
    const bool isNegative = value.negative && value.count > 0;
    if (isNegative) {
        NegateLimbs(value.limbs, 2 * value.count);
    }
    const std::size_t count = result.Count();
    const std::size_t limbs = std::min(value.count, count / 2);
    for (std::size_t i = 0; i < limbs; ++i) {
        StoreLimb(result.words + 2 * i, value.limbs[i]);
    }
    std::size_t stored = 2 * limbs;
    if (stored < count && limbs < value.count) {
        StoreWord(result.words + stored, value.limbs[limbs] & kValueBits);
        ++stored;
    }
    FillWords(result.words + stored, count - stored, isNegative ? kValueBits : 0);
}

}  // namespace tarn
