// Words as hexadecimal digits.
#ifndef TARN_TEXT_WRITE_HEX_H
#define TARN_TEXT_WRITE_HEX_H

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "core/instruction_set.h"
#include "text/write_common.h"

namespace tarn {

// The digits of 128 bits, one a byte, in text order: the upper half goes before the lower.
struct HexDigits {
    Bytes upper;
    Bytes lower;
};

inline HexDigits SpreadNibbles(std::uint64_t low, std::uint64_t high) noexcept {
    const Bytes bytes =
        reinterpret_cast<Bytes>(Limbs{__builtin_bswap64(high), __builtin_bswap64(low)});
    const Bytes even = reinterpret_cast<Bytes>(reinterpret_cast<Limbs>(bytes) >> 4) & AllBytes(15);
    const Bytes odd = bytes & AllBytes(15);
    return {
        __builtin_shufflevector(even, odd, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23),
        __builtin_shufflevector(even, odd, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15,
                                31)};
}

inline Bytes KnownHexCharacters(Bytes value) noexcept {
    constexpr unsigned kFromNineToA = 'a' - '9' - 1;
    // Nibbles are small enough for the signed comparison, which every processor has.
    using SignedBytes = std::int8_t __attribute__((vector_size(16)));
    const Bytes isLetter =
        AsMask(reinterpret_cast<SignedBytes>(value) > reinterpret_cast<SignedBytes>(AllBytes(9)));
    return value + AllBytes('0') + (isLetter & AllBytes(kFromNineToA));
}

inline Bytes HexCharacters(Bytes aval, Bytes bval) noexcept {
    return DigitCharacters<Hexadecimal>(aval, bval, KnownHexCharacters(aval));
}

inline constexpr std::size_t kHexBlockWords = 4;
inline constexpr std::size_t kHexBlockDigits = 8 * kHexBlockWords;

// The 32 digits of four known words in front of end.
inline void WriteKnownHexBlock(char* end, const VectorWord* words) noexcept {
    const HexDigits aval = SpreadNibbles(PackKnownWords(words), PackKnownWords(words + 2));
    StoreBytes(end - 32, KnownHexCharacters(aval.upper));
    StoreBytes(end - 16, KnownHexCharacters(aval.lower));
}

// The 32 digits of four words in front of end, known or not.
inline void WriteMixedHexBlock(char* end, const VectorWord* words) noexcept {
    const Word w0 = LoadWord(words), w1 = LoadWord(words + 1);
    const Word w2 = LoadWord(words + 2), w3 = LoadWord(words + 3);
    const HexDigits aval = SpreadNibbles(PackWords(w0, w1), PackWords(w2, w3));
    const HexDigits bval = SpreadNibbles(JoinBvals(w0, w1), JoinBvals(w2, w3));
    StoreBytes(end - 32, HexCharacters(aval.upper, bval.upper));
    StoreBytes(end - 16, HexCharacters(aval.lower, bval.lower));
}

// The digits of kBlocks blocks under one unknown test; false, with nothing written, where it fails.
template <std::size_t kBlocks>
inline bool WriteKnownHexBlocks(char* end, const VectorWord* words) noexcept {
    Word seen = 0;
    for (std::size_t i = 0; i < kBlocks * kHexBlockWords; ++i) {
        seen |= LoadWord(words + i);
    }
    if (IsUnknown(seen)) return false;
    for (std::size_t i = 0; i < kBlocks; ++i) {
        WriteKnownHexBlock(end - kHexBlockDigits * i, words + kHexBlockWords * i);
    }
    return true;
}

// Any blocks. Out of line: the registers that mixed blocks need would have to be saved for known
// ones too.
[[gnu::noinline]] inline void WriteMixedHexBlocks(char* end, const VectorWord* words,
                                                  std::size_t blocks) noexcept {
    for (; blocks > 0; --blocks) {
        if (!WriteKnownHexBlocks<1>(end, words)) {
            WriteMixedHexBlock(end, words);
        }
        end -= kHexBlockDigits;
        words += kHexBlockWords;
    }
}

// The digits of whole blocks, those of the first in front of end.
struct WriteHexKernel {
    TARN_KERNEL static void Run(char* end, const VectorWord* words, std::size_t blocks) noexcept {
        for (; blocks >= 4; blocks -= 4) {
            if (!WriteKnownHexBlocks<4>(end, words)) {
                WriteMixedHexBlocks(end, words, blocks);
                return;
            }
            end -= 4 * kHexBlockDigits;
            words += 4 * kHexBlockWords;
        }
        WriteMixedHexBlocks(end, words, blocks);
    }

#if defined(__x86_64__)
    // Sixteen digits in each half, one a byte, in text order within the half: bytes 0 to 3 (aval)
    // or 4 to 7 (bval) of each word, `first` names which.
    TARN_TARGET_AVX2 TARN_KERNEL static __m256i SpreadDigits(__m256i words, char first) noexcept {
        // The bytes from the most significant down, each widened to 16 bits.
        const __m256i order = _mm256_broadcastsi128_si256(
            _mm_setr_epi8(11, -1, 10, -1, 9, -1, 8, -1, 3, -1, 2, -1, 1, -1, 0, -1));
        const __m256i bytes =
            _mm256_shuffle_epi8(words, _mm256_add_epi8(order, _mm256_set1_epi16(first)));
        const __m256i nibbles =
            _mm256_or_si256(_mm256_srli_epi16(bytes, 4), _mm256_slli_epi16(bytes, 8));
        return _mm256_and_si256(nibbles, _mm256_set1_epi8(15));
    }

    TARN_TARGET_AVX2 TARN_KERNEL static __m256i KnownCharacters(__m256i digits) noexcept {
        const __m256i characters = _mm256_broadcastsi128_si256(_mm_setr_epi8(
            '0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'a', 'b', 'c', 'd', 'e', 'f'));
        return _mm256_shuffle_epi8(characters, digits);
    }

    // The rule of DigitCharacters.
    TARN_TARGET_AVX2 TARN_KERNEL static __m256i Characters(__m256i aval, __m256i bval) noexcept {
        const __m256i zero = _mm256_setzero_si256(), all = _mm256_set1_epi8(15);
        const __m256i noX = _mm256_cmpeq_epi8(_mm256_and_si256(aval, bval), zero);
        const __m256i mixed = _mm256_add_epi8(_mm256_set1_epi8('X'),
                                              _mm256_and_si256(noX, _mm256_set1_epi8('Z' - 'X')));
        const __m256i uniform =
            _mm256_or_si256(_mm256_cmpeq_epi8(aval, all), _mm256_cmpeq_epi8(aval, zero));
        const __m256i isFull = _mm256_and_si256(uniform, _mm256_cmpeq_epi8(bval, all));
        const __m256i unknown =
            _mm256_or_si256(mixed, _mm256_and_si256(isFull, _mm256_set1_epi8('x' - 'X')));
        return _mm256_blendv_epi8(unknown, KnownCharacters(aval), _mm256_cmpeq_epi8(bval, zero));
    }

    TARN_TARGET_AVX2 static void RunAvx2(char* end, const VectorWord* words,
                                         std::size_t blocks) noexcept {
        const __m256i unknownBits = _mm256_set1_epi64x(static_cast<long long>(kUnknownBits));
        for (; blocks > 0; --blocks, words += kHexBlockWords) {
            end -= kHexBlockDigits;
            __m256i four;
            std::memcpy(&four, words, sizeof four);
            const __m256i aval = SpreadDigits(four, 0);
            const __m256i text = _mm256_testz_si256(four, unknownBits) != 0
                                     ? KnownCharacters(aval)
                                     : Characters(aval, SpreadDigits(four, 4));
            StoreBytes(end, _mm256_permute4x64_epi64(text, 0x4E));  // the upper half first
        }
    }
#endif
};

// The eight digits of a word.
inline std::uint64_t HexOfWord(Word word) noexcept {
    const Bytes aval = SpreadNibbles(Aval(word), 0).lower;
    const Bytes text = IsUnknown(word) ? HexCharacters(aval, SpreadNibbles(Bval(word), 0).lower)
                                       : KnownHexCharacters(aval);
    return reinterpret_cast<Limbs>(text)[1];
}

// The last digits, fewer than a block's.
inline char* WriteHexTail(char* end, const VectorWord* words, std::size_t digitCount) noexcept {
    std::size_t left = digitCount;
    for (; left >= 8; left -= 8) {
        end -= 8;
        StoreEight(end, HexOfWord(LoadWord(words++)));
    }
    if (left == 0) return end;
    const Word word = LoadWord(words);
    return WriteSingleDigits<Hexadecimal>(end, Aval(word), Bval(word), left);
}

inline char* WriteDigits(Hexadecimal, char* end, const VectorWord* words,
                         std::size_t digitCount) noexcept {
    constexpr std::size_t kBlocksWorthACall = 4;
    const std::size_t blocks = digitCount / kHexBlockDigits;
    if (blocks >= kBlocksWorthACall) {
        RunKernel<WriteHexKernel>(end, words, blocks);
    } else {
        for (std::size_t i = 0; i < blocks; ++i) {
            if (!WriteKnownHexBlocks<1>(end - kHexBlockDigits * i, words + kHexBlockWords * i)) {
                WriteMixedHexBlocks(end - kHexBlockDigits * i, words + kHexBlockWords * i,
                                    blocks - i);
                break;
            }
        }
    }
    return WriteHexTail(end - kHexBlockDigits * blocks, words + kHexBlockWords * blocks,
                        digitCount % kHexBlockDigits);
}

}  // namespace tarn

#endif  // TARN_TEXT_WRITE_HEX_H
