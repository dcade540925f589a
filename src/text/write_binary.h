// Words as binary digits.
#ifndef TARN_TEXT_WRITE_BINARY_H
#define TARN_TEXT_WRITE_BINARY_H

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "core/instruction_set.h"
#include "text/write_common.h"

namespace tarn {

// The bits of a byte as eight bytes of 0 or 1 in text order: bit 7 in the first.
inline constexpr auto kSpreadBits = [] {
    std::array<std::uint64_t, 256> table{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            table[byte] |= static_cast<std::uint64_t>((byte >> bit) & 1U) << (8 * (7 - bit));
        }
    }
    return table;
}();

// From '0' and '1' an unknown bit leads to 'z' and 'x' by exclusive or with one of these.
inline constexpr std::uint8_t kToUnknown = '0' ^ 'z';
inline constexpr std::uint8_t kOneToUnknown = '1' ^ 'x' ^ kToUnknown;

// Eight binary digits.
inline std::uint64_t BinaryDigits(std::uint32_t aval, std::uint32_t bval) noexcept {
    return (kEightZeros | kSpreadBits[aval & 0xFF]) ^ (kSpreadBits[bval & 0xFF] * kToUnknown) ^
           (kSpreadBits[aval & bval & 0xFF] * kOneToUnknown);
}

// The 32 digits of a word in front of end.
inline void WriteBinaryWord(char* end, Word word) noexcept {
    const std::uint32_t aval = Aval(word), bval = Bval(word);
    if (bval == 0) {
        for (std::size_t byte = 0; byte < 4; ++byte) {
            StoreEight(end - 8 * (byte + 1), kEightZeros | kSpreadBits[(aval >> 8 * byte) & 0xFF]);
        }
        return;
    }
    for (std::size_t byte = 0; byte < 4; ++byte) {
        StoreEight(end - 8 * (byte + 1), BinaryDigits(aval >> 8 * byte, bval >> 8 * byte));
    }
}

// The digits of whole words, those of the first in front of end.
struct WriteBinaryKernel {
    TARN_KERNEL static void Run(char* end, const VectorWord* words, std::size_t count) noexcept {
        for (std::size_t i = 0; i < count; ++i) {
            WriteBinaryWord(end - 32 * i, LoadWord(words + i));
        }
    }

#if defined(__x86_64__)
    // A byte of all ones for every set bit, in text order.
    TARN_TARGET_AVX2 TARN_KERNEL static __m256i SpreadSetBits(std::uint32_t bits) noexcept {
        const __m256i order = _mm256_setr_epi8(3, 3, 3, 3, 3, 3, 3, 3, 2, 2, 2, 2, 2, 2, 2, 2,  //
                                               1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0);
        const __m256i bit = _mm256_set1_epi64x(0x0102040810204080);
        const __m256i bytes = _mm256_shuffle_epi8(Broadcast(bits), order);
        return _mm256_cmpeq_epi8(_mm256_and_si256(bytes, bit), bit);
    }

    TARN_TARGET_AVX2 TARN_KERNEL static __m256i Broadcast(std::uint32_t number) noexcept {
        return _mm256_set1_epi32(static_cast<int>(number));
    }

    TARN_TARGET_AVX2 static void RunAvx2(char* end, const VectorWord* words,
                                         std::size_t count) noexcept {
        const __m256i zeros = _mm256_set1_epi8('0');
        const __m256i toUnknown = _mm256_set1_epi8(kToUnknown);
        const __m256i oneToUnknown = _mm256_set1_epi8(kOneToUnknown);
        for (; count > 0; --count, ++words) {
            end -= 32;
            const __m256i ones = SpreadSetBits(words->aval);
            __m256i text = _mm256_sub_epi8(zeros, ones);
            if (words->bval != 0) {
                const __m256i change =
                    _mm256_xor_si256(toUnknown, _mm256_and_si256(ones, oneToUnknown));
                text = _mm256_xor_si256(text, _mm256_and_si256(SpreadSetBits(words->bval), change));
            }
            StoreBytes(end, text);
        }
    }
#endif
};

inline char* WriteDigits(Binary, char* end, const VectorWord* words,
                         std::size_t digitCount) noexcept {
    constexpr std::size_t kWordsWorthACall = 4;
    std::size_t count = digitCount / 32;
    if (count >= kWordsWorthACall) {
        RunKernel<WriteBinaryKernel>(end, words, count);
        words += count;
        end -= 32 * count;
        count = 0;
    }
    for (; count > 0; --count) {
        WriteBinaryWord(end, LoadWord(words++));
        end -= 32;
    }
    std::size_t left = digitCount % 32;
    if (left == 0) return end;
    Word word = LoadWord(words);
    for (; left >= 8; left -= 8) {
        StoreEight(end - 8, BinaryDigits(Aval(word), Bval(word)));
        end -= 8;
        word >>= 8;
    }
    return WriteSingleDigits<Binary>(end, word, word >> kWordBits, left);
}

}  // namespace tarn

#endif  // TARN_TEXT_WRITE_BINARY_H
