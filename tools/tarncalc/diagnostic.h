// What the user is told about what can't be calculated.
#ifndef TARNCALC_DIAGNOSTIC_H
#define TARNCALC_DIAGNOSTIC_H

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "source.h"

namespace tarncalc {

/** A statement that is rejected, and the place in its text that the user should look at. */
class InputError : public std::runtime_error {
  public:
    InputError(Place place, const std::string& message)
        : std::runtime_error(message), place_(place) {}

    Place GetPlace() const noexcept { return place_; }

  private:
    Place place_;
};

/** Two lines, each with its newline: the text, and a caret under the byte at `position` (which may
 *  be the end of the text). Of a long text only the neighbourhood of the caret is shown, and
 *  nothing is shown as it is that a terminal would obey. */
std::string CaretLines(std::string_view text, std::size_t position);

/** A text for use inside a message: on one line, shortened where it is long. */
std::string Quoted(std::string_view text);

/** The same between single quotes. */
std::string InQuotes(std::string_view text);

/** A name for the character that begins at `position`, fit for a message. */
std::string CharacterName(std::string_view text, std::size_t position);

}  // namespace tarncalc

#endif
