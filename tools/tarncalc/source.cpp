#include "source.h"

#include <algorithm>
#include <functional>

namespace tarncalc {

bool Source::ReadLine(bool continuesStatement) {
    std::string line;
    if (!reader_(line, continuesStatement)) return false;
    lines_.push_back(std::move(line));
    return true;
}

std::string_view Source::CurrentLine() const noexcept {
    return lines_.empty() ? std::string_view("") : lines_.back();
}

void Source::ForgetEarlierLines() {
    while (lines_.size() > 1) {
        lines_.pop_front();
        ++linesForgotten_;
    }
}

Location Source::Locate(Place place) const {
    const std::less_equal<> isNotAfter;  // orders addresses of unrelated storage too
    std::size_t number = linesForgotten_;
    for (const std::string& line : lines_) {
        ++number;
        const char* const begin = line.data();
        if (isNotAfter(begin, place) && isNotAfter(place, begin + line.size())) {
            return {number, static_cast<std::size_t>(place - begin), line};
        }
    }
    return {number, 0, CurrentLine()};
}

Source::Reader LinesOf(std::string text) {
    return [text = std::move(text), begin = std::size_t{0}](std::string& line, bool) mutable {
        if (begin > text.size()) return false;
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        line = text.substr(begin, end - begin);
        begin = end + 1;
        return true;
    };
}

}  // namespace tarncalc
