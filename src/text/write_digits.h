// The loops that turn words into digit characters. Text runs from the most significant digit to the
// least and words the other way, so every loop walks the words upward and the text downward.
#ifndef TARN_TEXT_WRITE_DIGITS_H
#define TARN_TEXT_WRITE_DIGITS_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "arith/pack.h"
#include "text/byte_vector.h"
#include "text/digits.h"

namespace tarn {

inline void StoreEight(char* to, std::uint64_t characters) noexcept {
    std::memcpy(to, &characters, sizeof characters);
}

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

inline constexpr std::uint64_t kEightZeros = 0x3030303030303030;

// Eight binary digits. From '0' and '1' an unknown bit leads to 'z' and 'x' by exclusive or:
// '0' ^ 'z' = 0x4a, '1' ^ 'x' = 0x49 = 0x4a ^ 3.
static_assert(('0' ^ 0x4a) == 'z' && ('1' ^ 0x4a ^ 3) == 'x');
inline std::uint64_t BinaryDigits(std::uint32_t aval, std::uint32_t bval) noexcept {
    return (kEightZeros | kSpreadBits[aval & 0xFF]) ^ (kSpreadBits[bval & 0xFF] * 0x4a) ^
           (kSpreadBits[aval & bval & 0xFF] * 3);
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

// Single digits in front of end, from the low bits of aval and bval; for what no block covers.
template <class Layout>
char* WriteSingleDigits(char* end, std::uint64_t aval, std::uint64_t bval,
                        std::size_t count) noexcept {
    constexpr unsigned kBits = Layout::kBits;
    for (std::size_t i = 0; i < count; ++i) {
        const auto index = ((bval & kDigitMask<Layout>) << kBits) | (aval & kDigitMask<Layout>);
        *--end = kDigitCharacters<Layout>[index];
        aval >>= kBits;
        bval >>= kBits;
    }
    return end;
}

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

// The rule of DigitCharacter for sixteen digits at once.
inline Bytes HexCharacters(Bytes aval, Bytes bval) noexcept {
    const Bytes full = AsMask(bval == AllBytes(15));
    const Bytes anyX = AsMask((aval & bval) != Bytes{});
    const Bytes mixed = Select(anyX, AllBytes('X'), AllBytes('Z'));
    const Bytes uniform = AsMask(aval == AllBytes(15)) | AsMask(aval == Bytes{});
    const Bytes unknown = mixed | (full & uniform & AllBytes('x' - 'X'));
    return Select(AsMask(bval == Bytes{}), KnownHexCharacters(aval), unknown);
}
static_assert(('X' | ('x' - 'X')) == 'x' && ('Z' | ('x' - 'X')) == 'z');

inline std::uint64_t JoinBvals(Word low, Word high) noexcept {
    return (low >> kWordBits) | (high & kUnknownBits);
}

// A field of up to 32 bits that may lie across two words; the second is read only where it does.
struct ShortField {
    std::uint64_t aval;
    std::uint64_t bval;
};

inline ShortField ReadShortField(const VectorWord* words, std::size_t bit,
                                 unsigned bitCount) noexcept {
    const VectorWord* const from = words + bit / kWordBits;
    const unsigned offset = bit % kWordBits;
    const Word low = LoadWord(from);
    const Word high = offset + bitCount > kWordBits ? LoadWord(from + 1) : Word{0};
    const std::uint64_t mask = LowMask(static_cast<int>(bitCount));
    return {(PackWords(low, high) >> offset) & mask, (JoinBvals(low, high) >> offset) & mask};
}

// Eight known octal digits from 24 bits, in text order. Groups of 12, then 6, then 3 bits move
// apart until each has a byte.
inline std::uint64_t KnownOctalDigits(std::uint64_t bits) noexcept {
    bits = (bits | bits << 20) & 0x00000FFF00000FFF;
    bits = (bits | bits << 10) & 0x003F003F003F003F;
    bits = (bits | bits << 5) & 0x0707070707070707;
    return __builtin_bswap64(bits | kEightZeros);
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

// As WriteDigits, for a value that has shown an unknown bit. Out of line: the registers that mixed
// blocks need would have to be saved for known ones too.
[[gnu::noinline]] inline char* WriteMixedHexDigits(char* end, const VectorWord* words,
                                                   std::size_t digitCount) noexcept {
    std::size_t left = digitCount;
    for (; left >= kHexBlockDigits; left -= kHexBlockDigits) {
        if (!WriteKnownHexBlocks<1>(end, words)) {
            WriteMixedHexBlock(end, words);
        }
        end -= kHexBlockDigits;
        words += kHexBlockWords;
    }
    return WriteHexTail(end, words, left);
}

// The digits 0 to digitCount - 1 of a vector, the last character (digit 0) at end[-1]; each has all
// its bits within the vector's words. Returns the address of the first. One for each layout.
inline char* WriteDigits(Binary, char* end, const VectorWord* words,
                         std::size_t digitCount) noexcept {
    std::size_t left = digitCount;
    for (; left >= 32; left -= 32) {
        WriteBinaryWord(end, LoadWord(words++));
        end -= 32;
    }
    if (left == 0) return end;
    Word word = LoadWord(words);
    for (; left >= 8; left -= 8) {
        StoreEight(end - 8, BinaryDigits(Aval(word), Bval(word)));
        end -= 8;
        word >>= 8;
    }
    return WriteSingleDigits<Binary>(end, word, word >> kWordBits, left);
}

inline char* WriteDigits(Octal, char* end, const VectorWord* words,
                         std::size_t digitCount) noexcept {
    std::size_t bit = 0;
    std::size_t left = digitCount;
    constexpr unsigned kBlockBits = 8 * Octal::kBits;
    for (; left >= 8; left -= 8, bit += kBlockBits) {
        const ShortField field = ReadShortField(words, bit, kBlockBits);
        if (field.bval == 0) {
            end -= 8;
            StoreEight(end, KnownOctalDigits(field.aval));
        } else {
            end = WriteSingleDigits<Octal>(end, field.aval, field.bval, 8);
        }
    }
    if (left == 0) return end;
    const auto bitsLeft = static_cast<unsigned>(left) * Octal::kBits;
    const ShortField field = ReadShortField(words, bit, bitsLeft);
    return WriteSingleDigits<Octal>(end, field.aval, field.bval, left);
}

inline char* WriteDigits(Hexadecimal, char* end, const VectorWord* words,
                         std::size_t digitCount) noexcept {
    std::size_t left = digitCount;
    for (; left >= 4 * kHexBlockDigits; left -= 4 * kHexBlockDigits) {
        if (!WriteKnownHexBlocks<4>(end, words)) return WriteMixedHexDigits(end, words, left);
        end -= 4 * kHexBlockDigits;
        words += 4 * kHexBlockWords;
    }
    for (; left >= kHexBlockDigits; left -= kHexBlockDigits) {
        if (!WriteKnownHexBlocks<1>(end, words)) return WriteMixedHexDigits(end, words, left);
        end -= kHexBlockDigits;
        words += kHexBlockWords;
    }
    return WriteHexTail(end, words, left);
}

}  // namespace tarn

#endif  // TARN_TEXT_WRITE_DIGITS_H
