// Reals from digits and from characters.
#ifndef TARN_TEXT_REAL_PARSE_H
#define TARN_TEXT_REAL_PARSE_H

#include <string_view>

namespace tarn {

// Allocates room for a long text that has a '_'; std::bad_alloc passes through.
double ParseReal(const char* text);

// The characters as a signed 64-bit number.
double PackedReal(std::string_view characters) noexcept;

}  // namespace tarn

#endif  // TARN_TEXT_REAL_PARSE_H
