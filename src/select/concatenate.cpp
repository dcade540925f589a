#include "select/concatenate.h"

#include <algorithm>

namespace tarn {

// From the top down, so that the operand may begin at the destination.
void PlaceWide(int span, VectorWord* destination, Operand operand, unsigned offset) noexcept {
    if (span < 1 || operand.width < 1) return;
    const auto limit = static_cast<unsigned>(span);
    const unsigned end = std::min(limit, offset + static_cast<unsigned>(operand.width));
    const std::size_t top = (end - 1U) / 32U;
    const Word lowest = LoadWord(destination) | ShiftWordUp(LoadWord(operand.words), offset);
    if (offset == 0) {
        CopyWords(destination + 1, operand.words + 1, top);
    } else if (top > 0) {
        // A word of the operand that begins at or above the span is left out.
        const bool beginsInside = top < operand.Count() && limit - 32U * top > offset;
        const Word high = beginsInside ? LoadWord(operand.words + top) : Word{0};
        const Word low = LoadWord(operand.words + top - 1);
        StoreWord(destination + top, JoinWords(low, high, 32 - offset));
        FunnelDown<Overwrite>(destination + 1, operand.words, top - 1, 32 - offset);
    }
    StoreWord(destination, lowest);
}

}  // namespace tarn
