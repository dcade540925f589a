#include "select/partselect.h"

#include <algorithm>

#include "core/funnel.h"
#include "core/words.h"

namespace tarn {
namespace {

// How many bits of a width of at least 1 lie in its top word.
int TopBits(int width) noexcept {
    return (width - 1) % 32 + 1;
}

// All words of a field of at least 1 bit. Returns the top one, which Cut ends.
template <class Cut>
Word ReadWords(VectorWord* result, const VectorWord* source, unsigned offset, int width) noexcept {
    const std::size_t last = WordCount(width) - 1;
    if (offset == 0) {
        CopyWords(result, source, last);
    } else {
        FunnelUp<Overwrite>(result, source, last, offset);
    }
    const Word top = ReadShortField(source + last, offset, TopBits(width), Cut(width));
    StoreWord(result + last, top);
    return top;
}

}  // namespace

void ReadWideField(VectorWord* result, const VectorWord* source, unsigned offset,
                   int width) noexcept {
    if (width >= 1) ReadWords<CleanCut>(result, source, offset, width);
}

void ReadWideSignedField(Result result, const VectorWord* source, unsigned offset,
                         int width) noexcept {
    if (width < 1) return;
    const Word top = ReadWords<SignedCut>(result.words, source, offset, width);
    const std::size_t count = WordCount(width);
    if (result.Count() > count) {
        FillWords(result.words + count, result.Count() - count, SignExtend::Beyond(top));
    }
}

namespace {

// The `count` bits of the source from bit 0 upward at bit `below` of the result, X below them and 0
// above them in their last word. The walk goes down, so the result may be the source.
void PlaceAboveX(VectorWord* result, const VectorWord* source, unsigned below,
                 unsigned count) noexcept {
    const std::size_t skipped = below / 32U;
    const unsigned bits = below % 32U;
    const std::size_t available = (count - 1U) / 32U + 1U;
    const std::size_t top = (bits + count - 1U) / 32U;
    const Word topMask = InBothHalves(LowMask(static_cast<int>(below + count)));
    VectorWord* const lowest = result + skipped;
    if (bits == 0) {
        const Word highest = LoadWord(source + top) & topMask;
        CopyWordsDown(lowest, source, top);
        StoreWord(lowest + top, highest);
    } else {
        // The word below the source is X, the one above it 0.
        const Word high = top < available ? LoadWord(source + top) : Word{0};
        const Word low = top > 0 ? LoadWord(source + top - 1) : kAllX;
        StoreWord(lowest + top, JoinWords(low, high, 32 - bits) & topMask);
        if (top > 0) {
            FunnelDown<Overwrite>(lowest + 1, source, top - 1, 32 - bits);
            StoreWord(lowest, JoinWords(kAllX, LoadWord(source), 32 - bits));
        }
    }
    FillWords(result, skipped, kAllX);
}

}  // namespace

void ReadFieldAcrossEnds(VectorWord* result, Operand source, int index, int width) noexcept {
    if (width < 1) return;
    // Bit 0 of the source is bit `below` of the field; bit `end` of the field is the first that the
    // source or the field does not have.
    const std::int64_t below = -std::int64_t{index};
    const std::int64_t end = std::min(below + source.width, std::int64_t{width});
    unsigned filled = 0;
    if (end > 0 && below < end) {
        filled = static_cast<unsigned>(end);
        if (below > 0) {
            PlaceAboveX(result, source.words, static_cast<unsigned>(below),
                        static_cast<unsigned>(end - below));
        } else {
            ReadField(result, source.words + index / 32, static_cast<unsigned>(index) % 32U,
                      static_cast<int>(end));
        }
    }
    const auto wanted = static_cast<unsigned>(width);
    if (filled < wanted) {
        const unsigned whole = filled / 32U * 32U;
        FillWithX(result + filled / 32U, filled - whole, wanted - whole);
    }
}

void FillWideWithX(VectorWord* words, unsigned first, unsigned end) noexcept {
    const std::size_t last = (end - 1U) / 32U;
    StoreWord(words, LoadWord(words) | InBothHalves(0xFFFFFFFFU << first));
    FillWords(words + 1, last - 1, kAllX);
    StoreWord(words + last, InBothHalves(LowMask(static_cast<int>(end))));
}

}  // namespace tarn
