// The text that is calculated, a line at a time.
#ifndef TARNCALC_SOURCE_H
#define TARNCALC_SOURCE_H

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
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
    struct Line {
        std::size_t number;
        std::string text;
    };

    Reader reader_;
    std::deque<Line> lines_;  // growing at its end leaves the others in place
    std::map<Place, const Line*, std::less<>> linesByPlace_;  // by where they begin
};

/** The lines of a text. */
Source::Reader LinesOf(std::string text);

}  // namespace tarncalc

#endif
