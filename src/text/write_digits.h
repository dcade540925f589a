// The loops that turn words into digit characters: one overload of WriteDigits for each layout.
//
//     char* WriteDigits(Layout, char* end, const VectorWord* words, std::size_t digitCount)
//
// writes the digits 0 to digitCount - 1 of a vector, the last character (digit 0) at end[-1]; each
// has all its bits within the vector's words. It returns the address of the first. Text runs from
// the most significant digit to the least and words the other way, so every loop walks the words
// upward and the text downward.
#ifndef TARN_TEXT_WRITE_DIGITS_H
#define TARN_TEXT_WRITE_DIGITS_H

#include "text/write_binary.h"
#include "text/write_hex.h"
#include "text/write_octal.h"

#endif  // TARN_TEXT_WRITE_DIGITS_H
