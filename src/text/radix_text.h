// Vectors as binary, octal and hexadecimal digits.
#ifndef TARN_TEXT_RADIX_TEXT_H
#define TARN_TEXT_RADIX_TEXT_H

#include "core/vector.h"
#include "text/digits.h"

namespace tarn {

// The text of `value` in the buffer: minDigits < 0 for every digit of the width, else at least that
// many (and one), leading zeros left out. Instantiated for the three layouts.
template <class Layout>
char* FormatRadix(Operand value, int minDigits);

// The one digit of a logic code.
char* FormatLogicCode(int code);

}  // namespace tarn

#endif  // TARN_TEXT_RADIX_TEXT_H
