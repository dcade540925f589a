// Vectors as 8-bit characters.
#ifndef TARN_TEXT_CHARACTERS_H
#define TARN_TEXT_CHARACTERS_H

#include "core/vector.h"

namespace tarn {

// One character; the NUL shows as a space or as nothing.
char* FormatCharacter(char character, bool spaceForNul);

// The vector's bytes from the most significant one down; NULs show as spaces or are left out.
char* FormatString(Operand value, bool spaceForNul);

}  // namespace tarn

#endif  // TARN_TEXT_CHARACTERS_H
