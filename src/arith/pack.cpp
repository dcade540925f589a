#include "arith/pack.h"

#include <algorithm>

#include "arith/natural/span.h"

namespace tarn {

bool PackKnown(Limb* limbs, const VectorWord* words, std::size_t count) noexcept {
    // A block without a branch, then one test: an early unknown bit ends a long run soon.
    constexpr std::size_t kBlock = 64;
    const std::size_t pairs = count / 2;
    for (std::size_t first = 0; first < pairs; first += kBlock) {
        const std::size_t last = std::min(first + kBlock, pairs);
        Word seen = 0;
        for (std::size_t i = first; i < last; ++i) {
            const Word low = LoadWord(words + 2 * i), high = LoadWord(words + 2 * i + 1);
            seen |= low | high;
            limbs[i] = PackWords(low, high);
        }
        if (IsUnknown(seen)) return false;
    }
    if (count % 2 != 0) {
        const Word top = LoadWord(words + count - 1);
        limbs[pairs] = top;
        return !IsUnknown(top);
    }
    return true;
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

void StoreWhole(Result result, Whole value) noexcept {
    const std::size_t count = result.Count();
    const std::size_t limbs = std::min(value.count, count / 2);
    // A negative value is ~limbs + 1, and all ones above; an empty one is 0 whatever its sign says.
    const Limb invert = value.negative && value.count > 0 ? ~Limb{0} : Limb{0};
    CarryFlag carry = invert != 0 ? 1 : 0;
    for (std::size_t i = 0; i < limbs; ++i) {
        Limb limb = 0;
        carry = AddWithCarry(carry, value.limbs[i] ^ invert, 0, &limb);
        StoreLimb(result.words + 2 * i, limb);
    }
    std::size_t stored = 2 * limbs;
    if (stored < count && limbs < value.count) {
        StoreWord(result.words + stored, ((value.limbs[limbs] ^ invert) + carry) & kValueBits);
        ++stored;
    }
    FillWords(result.words + stored, count - stored, invert & kValueBits);
}

}  // namespace tarn
