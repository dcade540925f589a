#include "text/real_parse.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "real/convert.h"
#include "text/parse.h"
#include "text/working_area.h"

namespace tarn {

double ParseReal(const char* text) {
    if (std::strchr(text, '_') == nullptr) return std::atof(text);
    const char* const end = text + std::strlen(text);
    // Room for any literal that is meant to be read.
    WorkingArea<char, 128> digits(static_cast<std::size_t>(end - text) + 1);
    *std::remove_copy(text, end, digits.Items(), '_') = '\0';
    return std::atof(digits.Items());
}

double PackedReal(std::string_view characters) noexcept {
    VectorWord words[2];
    PackCharacters({64, words}, characters);
    return ToReal<SignExtend>({64, words});
}

}  // namespace tarn
