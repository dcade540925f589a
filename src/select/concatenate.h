// Operands placed in a vector that is put together from the low end upward.
#ifndef TARN_SELECT_CONCATENATE_H
#define TARN_SELECT_CONCATENATE_H

#include "core/funnel.h"
#include "core/vector.h"
#include "core/words.h"

namespace tarn {

void PlaceWide(int span, VectorWord* destination, Operand operand, unsigned offset) noexcept;

// Places bit 0 of the operand at bit `offset` (0 to 31) of the word at destination: the operand is
// ORed into that word and replaces those above it, up to the span and to its own top bit.
inline void Place(int span, VectorWord* destination, Operand operand, unsigned offset) noexcept {
    if (AreOneWord(span) && operand.width >= 1) {
        const Word placed = ShiftWordUp(LoadWord(operand.words), offset);
        StoreWord(destination, LoadWord(destination) | placed);
        return;
    }
    PlaceWide(span, destination, operand, offset);
}

// The same for an operand that is laid out from bit 0 of the word at destination.
inline void PlaceShifted(int span, VectorWord* destination, const VectorWord* operand) noexcept {
    if (span < 1) return;
    StoreWord(destination, LoadWord(destination) | LoadWord(operand));
    if (span > 32) CopyWords(destination + 1, operand + 1, WordCount(span) - 1);
}

}  // namespace tarn

#endif  // TARN_SELECT_CONCATENATE_H
