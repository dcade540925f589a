// Values as text, as the conversions of $display have it.
#ifndef TARNCALC_CONVERSION_H
#define TARNCALC_CONVERSION_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "value.h"

namespace tarncalc {

/** %08d: a letter and what stands before it. */
struct Conversion {
    std::string_view spelling;
    char letter = 'd';  // lower case
    bool hasZero = false;
    std::optional<int> width;
    std::optional<int> precision;
};

/** The conversion that begins at `position` of a format, with its %; none where it is wrong. */
std::optional<Conversion> ConversionAt(std::string_view format, std::size_t position);

/** Whether a conversion can show a real or a vector. Those for reals show vectors too. */
bool CanShow(const Conversion& conversion, const Value& value);

/** A real by a format of C. What is no number has no sign, whatever the machine gives it. */
std::string RealText(const std::string& format, double value);

/** The text of a value that the conversion can show. */
std::string TextOf(const Conversion& conversion, Value value);

}  // namespace tarncalc

#endif
