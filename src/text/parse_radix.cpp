#include <algorithm>

#include "core/words.h"
#include "text/digit_blocks.h"
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

    // Where the next word goes, if nothing is pending; null otherwise.
    VectorWord* NextWord() const noexcept { return pending_ == 0 ? next_ : nullptr; }

    // Takes words that have been stored there.
    void Skip(std::size_t count) noexcept { next_ += count; }

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

// Reads words from the end of the text as long as they are known digits, if there are enough of
// them to be worth a call; returns the new end of the text.
template <class Layout>
const char* ReadWords(const char* begin, const char* end, std::size_t* bitsLeft,
                      BitGatherer* gatherer) noexcept {
    constexpr std::size_t kWordsWorthACall = 4;
    constexpr std::size_t kDigits = kWordBits / Layout::kBits;
    const std::size_t most =
        std::min(*bitsLeft / kWordBits, static_cast<std::size_t>(end - begin) / kDigits);
    VectorWord* const next = gatherer->NextWord();
    if (most < kWordsWorthACall || next == nullptr) return end;
    const std::size_t count = RunKernel<ReadDigitsKernel<Layout>>(next, end, most);
    gatherer->Skip(count);
    *bitsLeft -= count * kWordBits;
    return end - count * kDigits;
}

// Reads blocks from the end of the text while all their characters are known digits and the width
// has room for them; returns the new end of the text.
template <class Layout>
const char* ReadBlocks(const char* begin, const char* end, std::size_t* bitsLeft,
                       BitGatherer* gatherer) noexcept {
    using Block = DigitBlock<Layout>;
    if constexpr (kWordBits % Layout::kBits == 0) {
        end = ReadWords<Layout>(begin, end, bitsLeft, gatherer);
    }
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
        constexpr std::ptrdiff_t kTogether = DigitBlock<Layout>::kDigits;
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
