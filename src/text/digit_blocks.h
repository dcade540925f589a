// Blocks of known digits, many at once: what most of a digit string is.
#ifndef TARN_TEXT_DIGIT_BLOCKS_H
#define TARN_TEXT_DIGIT_BLOCKS_H

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "core/instruction_set.h"
#include "core/word.h"
#include "text/byte_vector.h"
#include "text/digits.h"

namespace tarn {

// A block parser reads the kDigits characters in front of `end`, if all of them are known digits,
// into `bits`; otherwise it returns false and the characters are read one by one.
template <class Layout>
struct DigitBlock;

template <>
struct DigitBlock<Binary> {
    static constexpr std::size_t kDigits = 32;
    static constexpr unsigned kBits = 32;

    static bool Read(const char* end, std::uint64_t* bits) noexcept {
        std::uint64_t value = 0, other = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            std::uint64_t eight;
            std::memcpy(&eight, end - kDigits + 8 * i, sizeof eight);
            eight ^= 0x3030303030303030;  // the bytes of eight zeros
            other |= eight;
            // Byte k (of 0 or 1, the first character in byte 0) moves to bit 63 - k of the product.
            value = value << 8 | (eight * 0x8040201008040201) >> 56;
        }
        *bits = value;
        return (other & 0xFEFEFEFEFEFEFEFE) == 0;
    }
};

template <>
struct DigitBlock<Octal> {
    static constexpr std::size_t kDigits = 8;
    static constexpr unsigned kBits = 24;

    static bool Read(const char* end, std::uint64_t* bits) noexcept {
        std::uint64_t eight;
        std::memcpy(&eight, end - kDigits, sizeof eight);
        eight = __builtin_bswap64(eight) ^ 0x3030303030303030;
        if ((eight & 0xF8F8F8F8F8F8F8F8) != 0) return false;
        // Pairs of 3-bit lanes close up: to 6 bits of 16, 12 of 32, 24 of 64.
        eight = (eight | eight >> 5) & 0x003F003F003F003F;
        eight = (eight | eight >> 10) & 0x00000FFF00000FFF;
        *bits = (eight | eight >> 20) & 0xFFFFFF;
        return true;
    }
};

template <>
struct DigitBlock<Hexadecimal> {
    static constexpr std::size_t kDigits = 16;
    static constexpr unsigned kBits = 64;

    static bool Read(const char* end, std::uint64_t* bits) noexcept {
        const Bytes text = LoadBytes(end - kDigits);
        const Bytes digit = text - AllBytes('0');
        const Bytes letter = (text | AllBytes('a' - 'A')) - AllBytes('a');
        const Bytes isDigit = AsMask(digit < AllBytes(10));
        const Bytes isLetter = AsMask(letter < AllBytes(6));
        const Limbs valid = reinterpret_cast<Limbs>(isDigit | isLetter);
        const Bytes value = (isDigit & digit) | (isLetter & (letter + AllBytes(10)));
        // In each pair the first character holds the upper nibble; the low byte of the pair takes
        // both.
        using Pairs = std::uint16_t __attribute__((vector_size(16)));
        const Pairs pairs = reinterpret_cast<Pairs>(value);
        using HalfBytes = std::uint8_t __attribute__((vector_size(8)));
        const auto packed = __builtin_convertvector((pairs << 4 | pairs >> 8) & 0xFF, HalfBytes);
        *bits = __builtin_bswap64(reinterpret_cast<std::uint64_t>(packed));
        return (valid[0] & valid[1]) == ~std::uint64_t{0};
    }
};

#if defined(__x86_64__)
// The characters in front of `end` as a vector, the last one in byte 0.
TARN_TARGET_AVX2 TARN_KERNEL __m256i LoadReversed(const char* end) noexcept {
    const __m256i order = _mm256_broadcastsi128_si256(
        _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
    __m256i text;
    std::memcpy(&text, end - sizeof text, sizeof text);
    return _mm256_permute4x64_epi64(_mm256_shuffle_epi8(text, order), 0x4E);
}
#endif

// Reads up to `count` words of known digits in front of `end`, the last ones into words[0], and
// returns how many it read: it stops in front of one (of four for Hexadecimal) that holds anything
// else. It reads only whole fours for Hexadecimal.
template <class Layout>
struct ReadDigitsKernel;

template <>
struct ReadDigitsKernel<Binary> {
    TARN_KERNEL static std::size_t Run(VectorWord* words, const char* end,
                                       std::size_t count) noexcept {
        using Block = DigitBlock<Binary>;
        for (std::size_t i = 0; i < count; ++i) {
            std::uint64_t bits = 0;
            if (!Block::Read(end - Block::kDigits * i, &bits)) return i;
            StoreWord(words + i, bits);
        }
        return count;
    }

#if defined(__x86_64__)
    TARN_TARGET_AVX2 static std::size_t RunAvx2(VectorWord* words, const char* end,
                                                std::size_t count) noexcept {
        for (std::size_t i = 0; i < count; ++i) {
            const __m256i digits =
                _mm256_xor_si256(LoadReversed(end - 32 * i), _mm256_set1_epi8('0'));
            if (_mm256_testz_si256(digits, _mm256_set1_epi8(~1)) == 0) return i;
            const int bits = _mm256_movemask_epi8(_mm256_slli_epi16(digits, 7));
            StoreWord(words + i, static_cast<std::uint32_t>(bits));
        }
        return count;
    }
#endif
};

template <>
struct ReadDigitsKernel<Hexadecimal> {
    static constexpr std::size_t kWords = 4;

    TARN_KERNEL static std::size_t Run(VectorWord* words, const char* end,
                                       std::size_t count) noexcept {
        using Block = DigitBlock<Hexadecimal>;
        for (std::size_t i = 0; i + kWords <= count; i += kWords) {
            std::uint64_t low = 0, high = 0;
            if (!Block::Read(end - 8 * i, &low)) return i;
            if (!Block::Read(end - 8 * i - Block::kDigits, &high)) return i;
            StoreKnownPair(words + i, low);
            StoreKnownPair(words + i + 2, high);
        }
        return count - count % kWords;
    }

    TARN_KERNEL static void StoreKnownPair(VectorWord* words, std::uint64_t bits) noexcept {
        StoreWord(words, bits & kValueBits);
        StoreWord(words + 1, bits >> kWordBits);
    }

#if defined(__x86_64__)
    TARN_TARGET_AVX2 static std::size_t RunAvx2(VectorWord* words, const char* end,
                                                std::size_t count) noexcept {
        const __m256i nine = _mm256_set1_epi8(9), five = _mm256_set1_epi8(5);
        for (std::size_t i = 0; i + kWords <= count; i += kWords) {
            const __m256i text = LoadReversed(end - 8 * i);
            const __m256i digit = _mm256_sub_epi8(text, _mm256_set1_epi8('0'));
            const __m256i letter = _mm256_sub_epi8(
                _mm256_or_si256(text, _mm256_set1_epi8('a' - 'A')), _mm256_set1_epi8('a'));
            const __m256i isDigit = _mm256_cmpeq_epi8(_mm256_min_epu8(digit, nine), digit);
            const __m256i isLetter = _mm256_cmpeq_epi8(_mm256_min_epu8(letter, five), letter);
            if (_mm256_movemask_epi8(_mm256_or_si256(isDigit, isLetter)) != -1) return i;
            const __m256i value =
                _mm256_blendv_epi8(_mm256_add_epi8(letter, _mm256_set1_epi8(10)), digit, isDigit);
            // In each pair the first byte is the lower nibble. The low bytes of eight pairs are
            // two words, which the last step parts.
            const __m256i pairs = _mm256_maddubs_epi16(value, _mm256_set1_epi16(0x1001));
            const __m256i bytes = _mm256_packus_epi16(pairs, pairs);
            const __m256i avals = _mm256_unpacklo_epi32(bytes, _mm256_setzero_si256());
            std::memcpy(words + i, &avals, sizeof avals);
        }
        return count - count % kWords;
    }
#endif
};

}  // namespace tarn

#endif  // TARN_TEXT_DIGIT_BLOCKS_H
