// Vectors as naturals and back: two words' avals make one limb.
#ifndef TARN_ARITH_PACK_H
#define TARN_ARITH_PACK_H

#include "arith/natural/limb.h"
#include "core/words.h"

namespace tarn {

constexpr std::size_t LimbCount(std::size_t wordCount) noexcept {
    return (wordCount + 1) / 2;
}

constexpr Limb PackWords(Word low, Word high) noexcept {
    return (low & kValueBits) | (high << kWordBits);
}

// Two known words: what lies between their avals in memory is a bval of 0.
inline Limb PackKnownWords(const VectorWord* words) noexcept {
    Limb upper;
    std::memcpy(&upper, &words[0].bval, sizeof upper);
    return upper | words[0].aval;
}

inline void StoreLimb(VectorWord* to, Limb limb) noexcept {
    StoreWord(to, limb & kValueBits);
    StoreWord(to + 1, limb >> kWordBits);
}

// limbs[0 .. LimbCount(count)) = the value of known words; false, with the limbs unspecified, where
// a word has an unknown bit.
bool PackKnown(Limb* limbs, const VectorWord* words, std::size_t count) noexcept;

// limbs = 2^(32 * wordCount) - limbs, for the LimbCount(wordCount) limbs of a value of these words.
void NegateLimbs(Limb* limbs, std::size_t wordCount) noexcept;

// A whole number with its sign: limbs[0 .. count) without zeros at the top. Passed by reference: a
// copy would read its fields back with wider loads than they were just written with, and wait for
// that.
struct Whole {
    Limb* limbs;
    std::size_t count;
    bool negative;
};

// The value of the low `wordCount` (at most its own count) words of an operand in
// limbs[0 .. LimbCount(wordCount)); with SignExtend bit 31 of the last of them is the sign. False
// where one of these words has an unknown bit.
template <class Extend>
bool PackWhole(Whole* whole, Limb* limbs, Operand operand, std::size_t wordCount) noexcept;

// result = value, continued above its limbs by its sign and cut where the result ends. The limbs of
// a negative value are destroyed.
void StoreWhole(Result result, const Whole& value) noexcept;

}  // namespace tarn

#endif  // TARN_ARITH_PACK_H
