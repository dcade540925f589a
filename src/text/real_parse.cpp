#include "text/real_parse.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "real/convert.h"
#include "text/working_area.h"

namespace tarn {

double ParseReal(const char* text) {
    if (std::strchr(text, '_') == nullptr) return std::strtod(text, nullptr);
    const char* const end = text + std::strlen(text);
    // Room for any literal that is meant to be read.
    WorkingArea<char, 128> digits(static_cast<std::size_t>(end - text) + 1);
    *std::remove_copy(text, end, digits.Items(), '_') = '\0';
    return std::strtod(digits.Items(), nullptr);
}

double PackedReal(std::string_view characters) noexcept {
    characters.remove_prefix(characters.size() - std::min<std::size_t>(characters.size(), 8));
    std::uint64_t packed = 0;
    for (const char character : characters) {
        packed = packed << 8 | static_cast<unsigned char>(character);
    }
    return NearestReal(static_cast<std::int64_t>(packed));
}

}  // namespace tarn
