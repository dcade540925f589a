// The formats that a real can be printed under.
#ifndef TARN_TEXT_REAL_FORMAT_H
#define TARN_TEXT_REAL_FORMAT_H

#include <string_view>

namespace tarn {

// Whether a printf format takes one double and nothing else. %% takes nothing; a width or precision
// given by * would take an int.
inline bool TakesOneReal(std::string_view format) noexcept {
    int conversions = 0;
    const auto skip = [&format](std::string_view characters) {
        const std::size_t behind = format.find_first_not_of(characters);
        format.remove_prefix(behind == format.npos ? format.size() : behind);
    };
    for (;;) {
        const std::size_t percent = format.find('%');
        if (percent == format.npos) return conversions == 1;
        format.remove_prefix(percent + 1);
        if (format.starts_with('%')) {
            format.remove_prefix(1);
            continue;
        }
        if (format.starts_with("1$")) format.remove_prefix(2);
        skip("-+ #'0123456789.");
        // An l changes nothing for a double.
        if (format.starts_with('l')) format.remove_prefix(1);
        if (format.find_first_of("aAeEfFgG") != 0) return false;
        ++conversions;
    }
}

}  // namespace tarn

#endif  // TARN_TEXT_REAL_FORMAT_H
