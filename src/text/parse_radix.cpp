#include <algorithm>

#include "core/words.h"
#include "text/byte_vector.h"
#include "text/parse.h"

namespace tarn {
namespace {

// Gathers bits from the least significant upward and stores each word as it fills.
class BitGatherer {
  public:
    explicit BitGatherer(VectorWord* first) noexcept : next_(first) {}

    // Takes the low `count` (1 to 32) bits of aval and bval; the bits above are 0.
    void Push(std::uint64_t aval, std::uint64_t bval, unsigned count) noexcept {
        aval_ |= aval << pending_;
        bval_ |= bval << pending_;
        pending_ += count;
        if (pending_ >= static_cast<unsigned>(kWordBits)) {
            Store();
            aval_ >>= kWordBits;
            bval_ >>= kWordBits;
            pending_ -= static_cast<unsigned>(kWordBits);
        }
    }

    // Takes 64 known bits.
    void PushLimb(std::uint64_t limb) noexcept {
        const std::uint64_t joined = aval_ | limb << pending_;
        StoreWord(next_,
                  MakeWord(static_cast<std::uint32_t>(joined), static_cast<std::uint32_t>(bval_)));
        StoreWord(next_ + 1, joined >> kWordBits);
        next_ += 2;
        // In two steps: with nothing pending a shift by 64 bits would be needed.
        aval_ = (limb >> 1) >> (63 - pending_);
        bval_ = 0;
    }

    // Stores what is left, if any; returns the address behind the last word stored.
    VectorWord* Finish() noexcept {
        if (pending_ > 0) {
            Store();
        }
        return next_;
    }

  private:
    void Store() noexcept {
        StoreWord(next_++,
                  MakeWord(static_cast<std::uint32_t>(aval_), static_cast<std::uint32_t>(bval_)));
    }

    std::uint64_t aval_ = 0;
    std::uint64_t bval_ = 0;
    unsigned pending_ = 0;
    VectorWord* next_;
};

// A block parser reads the kDigits characters in front of `end`, if all of them are known digits,
// into `bits`; otherwise it returns false and the characters are read one by one.
struct BinaryBlock {
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

struct OctalBlock {
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

struct HexadecimalBlock {
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

template <class Layout>
struct BlockOf;
template <>
struct BlockOf<Binary> : BinaryBlock {};
template <>
struct BlockOf<Octal> : OctalBlock {};
template <>
struct BlockOf<Hexadecimal> : HexadecimalBlock {};

// Reads blocks from the end of the text while all their characters are known digits and the width
// has room for them; returns the new end of the text.
template <class Layout>
const char* ReadBlocks(const char* begin, const char* end, std::size_t* bitsLeft,
                       BitGatherer* gatherer) noexcept {
    using Block = BlockOf<Layout>;
    std::uint64_t bits = 0;
    while (*bitsLeft >= Block::kBits && static_cast<std::size_t>(end - begin) >= Block::kDigits &&
           Block::Read(end, &bits)) {
        if constexpr (Block::kBits > kWordBits) {
            gatherer->PushLimb(bits);
        } else {
            gatherer->Push(bits, 0, Block::kBits);
        }
        end -= Block::kDigits;
        *bitsLeft -= Block::kBits;
    }
    return end;
}

// The digit's value and control bits; a digit of a higher base counts as 0.
template <class Layout>
Word BitsOf(Digit digit) noexcept {
    constexpr unsigned kMask = kDigitMask<Layout>;
    switch (digit.kind) {
        case DigitKind::kX:
            return InBothHalves(kMask);
        case DigitKind::kZ:
            return MakeWord(0, kMask);
        default:
            return digit.value <= kMask ? digit.value : Word{0};
    }
}

// Sets the bits from `first` up to the end of the top word to those of `fill`.
void FillFrom(Result result, std::size_t first, Word fill) noexcept {
    const std::size_t index = first / kWordBits;
    VectorWord* const word = result.words + index;
    const Word above = InBothHalves(~std::uint32_t{0} << first % kWordBits);
    StoreWord(word, (LoadWord(word) & ~above) | (fill & above));
    FillWords(word + 1, result.Count() - index - 1, fill);
}

}  // namespace

template <class Layout>
Fit ParseRadixDigits(Result result, std::string_view digits) noexcept {
    if (result.width < 1) return digits.empty() ? Fit::kWhole : Fit::kTruncated;
    const char* const begin = digits.data();
    const char* end = begin + digits.size();
    const auto width = static_cast<std::size_t>(result.width);
    std::size_t bitsLeft = width;
    BitGatherer gatherer(result.words);
    DigitKind leftmost = DigitKind::kKnown;
    while (bitsLeft > 0 && end > begin) {
        const char* const behindBlocks = end;
        end = ReadBlocks<Layout>(begin, end, &bitsLeft, &gatherer);
        if (end != behindBlocks) {
            leftmost = DigitKind::kKnown;
        }
        // A block that holds something else than known digits is read one by one before the next
        // try.
        constexpr std::ptrdiff_t kTogether = BlockOf<Layout>::kDigits;
        const char* const stop = end - std::min(end - begin, kTogether);
        while (bitsLeft > 0 && end > stop) {
            const Digit digit = DigitOf(*--end);
            if (digit.kind == DigitKind::kSkipped) continue;
            leftmost = digit.kind;
            // The last digit may reach past the width; its upper bits must not reach past the
            // storage.
            const auto taken = std::min<std::size_t>(bitsLeft, Layout::kBits);
            const Word bits =
                BitsOf<Layout>(digit) & InBothHalves(LowMask(static_cast<int>(taken)));
            gatherer.Push(Aval(bits), Bval(bits), static_cast<unsigned>(taken));
            bitsLeft -= taken;
        }
    }
    VectorWord* const behind = gatherer.Finish();
    FillWords(behind, static_cast<std::size_t>(result.words + result.Count() - behind), 0);
    if (bitsLeft > 0 && leftmost != DigitKind::kKnown) {
        FillFrom(result, width - bitsLeft, leftmost == DigitKind::kX ? kAllX : kUnknownBits);
    }
    CleanTopWord(result);
    return end == begin ? Fit::kWhole : Fit::kTruncated;
}

template Fit ParseRadixDigits<Binary>(Result, std::string_view) noexcept;
template Fit ParseRadixDigits<Octal>(Result, std::string_view) noexcept;
template Fit ParseRadixDigits<Hexadecimal>(Result, std::string_view) noexcept;

}  // namespace tarn
