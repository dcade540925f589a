// The text that is calculated, a line at a time.
#ifndef TARNCALC_SOURCE_H
#define TARNCALC_SOURCE_H

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tarncalc {

/** A byte of a source's text, or the end of one of its lines. */
using Place = const char*;

struct Location {
    std::size_t line;       // its number, from 1
    std::size_t column;     // in bytes, from 0
    std::string_view text;  // of the line
};

class Source {
  public:
    /** Gives the next line without its newline, or false where there is none. The second argument
     *  tells whether it continues a statement. */
    using Reader = std::function<bool(std::string&, bool)>;

    explicit Source(Reader reader) : reader_(std::move(reader)) {}

    /** Reads another line. What was read before stays where it is. */
    bool ReadLine(bool continuesStatement);

    /** The line that was read last; empty before the first one. */
    std::string_view CurrentLine() const noexcept;

    /** Lets go of all lines before the current one. */
    void ForgetEarlierLines();

    /** The line of a place that wasn't let go, and its place there. */
    Location Locate(Place place) const;

  private:
    Reader reader_;
    std::deque<std::string> lines_;  // one that grows at its ends leaves its elements in place
    std::size_t linesForgotten_ = 0;
};

/** The lines of a text. */
Source::Reader LinesOf(std::string text);

}  // namespace tarncalc

#endif
