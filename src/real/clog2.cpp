#include "real/clog2.h"

#include "real/top_words.h"

namespace tarn {

int CeilingLog2TwoWords(Operand value) noexcept {
    const Word low = LoadWord(value.words), high = LoadWord(value.words + 1);
    return IsUnknown(low | high) ? 0 : BitsBelow(high << kWordBits | low);
}

int CeilingLog2Wide(Operand value) noexcept {
    const std::size_t count = CountToTop<AnyBit>(value.words, value.Count());
    if (count == 0) return 0;
    const Word top = LoadWord(value.words + count - 1);
    if (IsUnknown(top)) return 0;
    // Of a power of two the value less one has a bit less. What is zero needs no other test.
    const bool mayBePower = std::has_single_bit(top);
    const std::size_t below = mayBePower ? CountToTop<AnyBit>(value.words, count - 1) : count - 1;
    if (HasUnknown(value.words, below)) return 0;
    const std::size_t bits = 32 * (count - 1) + static_cast<unsigned>(std::bit_width(top));
    return static_cast<int>(bits - (mayBePower && below == 0 ? 1 : 0));
}

}  // namespace tarn
