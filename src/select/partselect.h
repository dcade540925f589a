// A field of bits read out of a vector.
#ifndef TARN_SELECT_PARTSELECT_H
#define TARN_SELECT_PARTSELECT_H

#include "core/word.h"

namespace tarn {

// result = the `width` bits from bit `offset` (0 to 31) of the word at source upward, clean above
// the width. Reads no source word without a bit of the field, and each word before the result word
// of the same index is written.
void ReadField(VectorWord* result, const VectorWord* source, unsigned offset, int width) noexcept;

}  // namespace tarn

#endif  // TARN_SELECT_PARTSELECT_H
