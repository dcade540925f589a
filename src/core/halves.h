// Words with their aval and bval apart: one word, or as many as a vector register has room for.
//
// A rule for single bits, written once on Halves, serves one word and kernels alike. Taken apart,
// no bit of a register is idle: what concerns aval alone would leave half of an interleaved one
// unused.
#ifndef TARN_CORE_HALVES_H
#define TARN_CORE_HALVES_H

#include <cstring>

#include "core/instruction_set.h"
#include "core/word.h"

namespace tarn {

// The bits of aval, or of bval, of kCount words.
template <std::size_t kCount>
struct BitsOfWords {
    using Type [[gnu::vector_size(4 * kCount)]] = std::uint32_t;
};
template <>
struct BitsOfWords<1> {
    using Type = std::uint32_t;
};
template <std::size_t kCount>
using BitsOf = typename BitsOfWords<kCount>::Type;

// The same bits as numbers that nothing is computed with: GCC needs a single instruction to move
// these in the way that LoadHalves does, and three for integers.
template <std::size_t kCount>
using FloatsOf [[gnu::vector_size(4 * kCount)]] = float;

// Taken by reference: how several words are passed by value would depend on the instruction set.
template <std::size_t kCount>
struct Halves {
    BitsOf<kCount> aval, bval;
};

constexpr Halves<1> HalvesOf(Word word) noexcept {
    return {Aval(word), Bval(word)};
}

constexpr Word WordOf(const Halves<1>& halves) noexcept {
    return MakeWord(halves.aval, halves.bval);
}

// The order of the words in the registers is the one that takes a single instruction for each half;
// StoreHalves restores it.
template <std::size_t kCount>
TARN_KERNEL void LoadHalves(Halves<kCount>& halves, const VectorWord* from) noexcept {
    if constexpr (kCount == 1) {
        halves = HalvesOf(LoadWord(from));
    } else {
        static_assert(kCount == 4 || kCount == 8);
        FloatsOf<kCount> low, high, aval, bval;
        std::memcpy(&low, from, sizeof low);
        std::memcpy(&high, from + kCount / 2, sizeof high);
        if constexpr (kCount == 4) {
            aval = __builtin_shufflevector(low, high, 0, 2, 4, 6);
            bval = __builtin_shufflevector(low, high, 1, 3, 5, 7);
        } else {
            aval = __builtin_shufflevector(low, high, 0, 2, 8, 10, 4, 6, 12, 14);
            bval = __builtin_shufflevector(low, high, 1, 3, 9, 11, 5, 7, 13, 15);
        }
        std::memcpy(&halves.aval, &aval, sizeof aval);
        std::memcpy(&halves.bval, &bval, sizeof bval);
    }
}

template <std::size_t kCount>
TARN_KERNEL void StoreHalves(VectorWord* to, const Halves<kCount>& halves) noexcept {
    const auto& [aval, bval] = halves;
    if constexpr (kCount == 1) {
        StoreWord(to, WordOf(halves));
    } else {
        BitsOf<kCount> low, high;
        if constexpr (kCount == 4) {
            low = __builtin_shufflevector(aval, bval, 0, 4, 1, 5);
            high = __builtin_shufflevector(aval, bval, 2, 6, 3, 7);
        } else {
            low = __builtin_shufflevector(aval, bval, 0, 8, 1, 9, 4, 12, 5, 13);
            high = __builtin_shufflevector(aval, bval, 2, 10, 3, 11, 6, 14, 7, 15);
        }
        std::memcpy(to, &low, sizeof low);
        std::memcpy(to + kCount / 2, &high, sizeof high);
    }
}

// The same word kCount times, through memory: GCC would set a register of a newer instruction set
// number by number.
template <std::size_t kCount>
TARN_KERNEL void RepeatWord(Halves<kCount>& halves, Word word) noexcept {
    std::uint32_t avals[kCount], bvals[kCount];
    for (std::size_t k = 0; k < kCount; ++k) {
        avals[k] = Aval(word);
        bvals[k] = Bval(word);
    }
    std::memcpy(&halves.aval, avals, sizeof avals);
    std::memcpy(&halves.bval, bvals, sizeof bvals);
}

}  // namespace tarn

#endif  // TARN_CORE_HALVES_H
