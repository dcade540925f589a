// Vectors as decimal digits.
#ifndef TARN_TEXT_DECIMAL_TEXT_H
#define TARN_TEXT_DECIMAL_TEXT_H

#include "core/vector.h"

namespace tarn {

// How the digits stand in their field.
struct DecimalField {
    int minDigits;  // below 0: as many as the width can need
    bool zeroPad;
};

// The text of a value in the buffer; with SignExtend of a two's-complement one.
template <class Extend>
char* FormatDecimal(Operand value, DecimalField field);

// The decimal text of a signed one-bit value: 1 is -1.
char* FormatSignedLogicCode(int code);

// The text that the C library makes of one double.
char* FormatReal(const char* format, double value);

}  // namespace tarn

#endif  // TARN_TEXT_DECIMAL_TEXT_H
