// One word of a vector as a number, and the few bit facts that every family needs.
#ifndef TARN_CORE_WORD_H
#define TARN_CORE_WORD_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <tarnlib/vector.h>

namespace tarn {

// A VectorWord as one 64-bit number: aval in the low half, bval in the high half.
using Word = std::uint64_t;

static_assert(std::endian::native == std::endian::little,
              "a VectorWord is read as one number with aval in its low half");
static_assert(sizeof(VectorWord) == sizeof(Word) && alignof(VectorWord) == 4);

inline constexpr int kWordBits = 32;
inline constexpr Word kValueBits = 0x00000000FFFFFFFF;
inline constexpr Word kUnknownBits = 0xFFFFFFFF00000000;
inline constexpr Word kAllX = 0xFFFFFFFFFFFFFFFF;

// Storage of vectors is only 4-byte aligned, so words move through memcpy, never a pointer cast.
inline Word LoadWord(const VectorWord* from) noexcept {
    Word word;
    std::memcpy(&word, from, sizeof word);
    return word;
}

inline void StoreWord(VectorWord* to, Word word) noexcept {
    std::memcpy(to, &word, sizeof word);
}

constexpr Word MakeWord(std::uint32_t aval, std::uint32_t bval) noexcept {
    return (static_cast<Word>(bval) << kWordBits) | aval;
}

constexpr std::uint32_t Aval(Word word) noexcept {
    return static_cast<std::uint32_t>(word);
}
constexpr std::uint32_t Bval(Word word) noexcept {
    return static_cast<std::uint32_t>(word >> kWordBits);
}

constexpr bool IsUnknown(Word word) noexcept {
    return (word & kUnknownBits) != 0;
}

// The bits that are known ones: X and Z read as 0.
constexpr std::uint32_t KnownOnes(Word word) noexcept {
    return Aval(word) & ~Bval(word);
}

// The same 32 bits in both halves, as a mask for aval and bval alike.
constexpr Word InBothHalves(std::uint32_t bits) noexcept {
    return MakeWord(bits, bits);
}

// The words that a width occupies; none for a width below 1.
constexpr std::size_t WordCount(int width) noexcept {
    return width < 1 ? 0 : static_cast<std::size_t>((width - 1) >> 5) + 1;
}

// The low n bits of a word set, for n = 1 to 32; for another n the low n mod 32, 0 standing for 32.
constexpr std::uint32_t LowMask(int n) noexcept {
    return 0xFFFFFFFFU >> (static_cast<unsigned>(kWordBits - n) & 31U);
}

// Whether every width is 1 to kBits, a power of two. Widths below 1 wrap to large numbers.
template <unsigned kBits, class... Widths>
constexpr bool AreWithin(Widths... widths) noexcept {
    return ((static_cast<unsigned>(widths) - 1U) | ...) < kBits;
}

// Whether every vector is one word.
template <class... Widths>
constexpr bool AreOneWord(Widths... widths) noexcept {
    return AreWithin<kWordBits>(widths...);
}

static_assert(WordCount(0) == 0 && WordCount(1) == 1 && WordCount(32) == 1 && WordCount(33) == 2);
static_assert(LowMask(1) == 1 && LowMask(32) == 0xFFFFFFFF && LowMask(40) == 0xFF);
static_assert(AreOneWord(1, 32) && !AreOneWord(0) && !AreOneWord(33) && !AreOneWord(5, -1));
static_assert(AreWithin<64>(1, 64) && !AreWithin<64>(65) && !AreWithin<64>(64, -1));

}  // namespace tarn

#endif  // TARN_CORE_WORD_H
