// Words as octal digits.
#ifndef TARN_TEXT_WRITE_OCTAL_H
#define TARN_TEXT_WRITE_OCTAL_H

#include "text/write_common.h"

namespace tarn {

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

// The eight octal digits of 24 bits, one a byte, in text order. Groups of 12, then 6, then 3 bits
// move apart until each has a byte.
inline std::uint64_t SpreadOctal(std::uint64_t bits) noexcept {
    bits = (bits | bits << 20) & 0x00000FFF00000FFF;
    bits = (bits | bits << 10) & 0x003F003F003F003F;
    bits = (bits | bits << 5) & 0x0707070707070707;
    return __builtin_bswap64(bits);
}

// 96 bits in groups of 24: what 32 digits are made of.
struct OctalGroups {
    std::uint64_t digits[4];
};

inline OctalGroups SpreadOctalGroups(std::uint64_t low, std::uint64_t high) noexcept {
    constexpr std::uint64_t kGroup = 0xFFFFFF;
    return {{SpreadOctal(low & kGroup), SpreadOctal((low >> 24) & kGroup),
             SpreadOctal((low >> 48 | high << 16) & kGroup), SpreadOctal(high >> 8)}};
}

inline constexpr std::size_t kOctalBlockWords = 3;
inline constexpr std::size_t kOctalBlockDigits = 32;

// The 32 digits of three words in front of end.
inline void WriteOctalBlock(char* end, const VectorWord* words) noexcept {
    const Word w0 = LoadWord(words), w1 = LoadWord(words + 1), w2 = LoadWord(words + 2);
    const OctalGroups aval = SpreadOctalGroups(PackWords(w0, w1), Aval(w2));
    if (!IsUnknown(w0 | w1 | w2)) {
        for (std::size_t i = 0; i < 4; ++i) {
            StoreEight(end - 8 * (i + 1), aval.digits[i] | kEightZeros);
        }
        return;
    }
    const OctalGroups bval = SpreadOctalGroups(JoinBvals(w0, w1), Bval(w2));
    for (std::size_t i = 0; i < 4; i += 2) {
        const Bytes a = reinterpret_cast<Bytes>(Limbs{aval.digits[i + 1], aval.digits[i]});
        const Bytes b = reinterpret_cast<Bytes>(Limbs{bval.digits[i + 1], bval.digits[i]});
        StoreBytes(end - 8 * (i + 2), DigitCharacters<Octal>(a, b, a + AllBytes('0')));
    }
}

inline char* WriteDigits(Octal, char* end, const VectorWord* words,
                         std::size_t digitCount) noexcept {
    std::size_t left = digitCount;
    for (; left >= kOctalBlockDigits; left -= kOctalBlockDigits) {
        WriteOctalBlock(end, words);
        end -= kOctalBlockDigits;
        words += kOctalBlockWords;
    }
    std::size_t bit = 0;
    constexpr unsigned kGroupBits = 8 * Octal::kBits;
    for (; left >= 8; left -= 8, bit += kGroupBits) {
        const ShortField field = ReadShortField(words, bit, kGroupBits);
        if (field.bval == 0) {
            end -= 8;
            StoreEight(end, SpreadOctal(field.aval) | kEightZeros);
        } else {
            end = WriteSingleDigits<Octal>(end, field.aval, field.bval, 8);
        }
    }
    if (left == 0) return end;
    const auto bitsLeft = static_cast<unsigned>(left) * Octal::kBits;
    const ShortField field = ReadShortField(words, bit, bitsLeft);
    return WriteSingleDigits<Octal>(end, field.aval, field.bval, left);
}

}  // namespace tarn

#endif  // TARN_TEXT_WRITE_OCTAL_H
