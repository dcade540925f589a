// Literals as they are written: found, taken apart and checked, but not yet turned into values.
#ifndef TARNCALC_LITERAL_H
#define TARNCALC_LITERAL_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "radix.h"
#include "source.h"

namespace tarncalc {

/** The parts of a literal, all of them views of the source's text. */
struct Literal {
    enum class Kind { kNumber, kReal, kString };

    Kind kind = Kind::kNumber;
    std::string_view spelling;  // the whole literal
    std::string_view sizeText;  // 8 of 8'shFF; empty without a size
    std::string_view prefix;    // 'sh of 8'shFF, the quote of a fill digit; empty without a quote
    std::string_view digits;    // FF of 8'shFF; a real, and a string with its double quotes, whole

    /** Null for a real and a string. */
    const Radix* radix = nullptr;

    /** The bits that the digits need, without their leading zeros. An x or z that stands first
     *  needs one, since it fills whatever width there is. Not counted for decimal digits. */
    std::uint64_t significantBits = 0;

    Place GetPlace() const noexcept { return spelling.data(); }

    /** Whether it is a number whose width its context should give. */
    bool IsUnsized() const noexcept {
        return kind == Kind::kNumber && sizeText.empty() && prefix != "'";
    }
};

/** The literal that begins at `position` of a line, which holds a digit, a quote or a double quote.
 *  Every form that the library would read as something that the user didn't write is an
 *  InputError. */
Literal ScanLiteral(std::string_view line, std::size_t position);

constexpr bool BeginsLiteral(char c) {
    return (c >= '0' && c <= '9') || c == '\'' || c == '"';
}

}  // namespace tarncalc

#endif
