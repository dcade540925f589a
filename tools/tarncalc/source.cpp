#include "source.h"

#include <algorithm>
#include <iterator>

namespace tarncalc {

bool Source::ReadLine(bool continuesStatement) {
    std::string text;
    if (!reader_(text, continuesStatement)) return false;
    const std::size_t number = lines_.empty() ? 1 : lines_.back().number + 1;
    const Line& line = lines_.emplace_back(Line{number, std::move(text)});
    linesByPlace_.emplace(line.text.data(), &line);
    return true;
}

std::string_view Source::CurrentLine() const noexcept {
    return lines_.empty() ? std::string_view("") : lines_.back().text;
}

void Source::ForgetEarlierLines() {
    while (lines_.size() > 1) {
        linesByPlace_.erase(lines_.front().text.data());
        lines_.pop_front();
    }
}

Location Source::Locate(Place place) const {
    const auto after = linesByPlace_.upper_bound(place);
    if (after == linesByPlace_.begin()) return {0, 0, {}};
    const Line& line = *std::prev(after)->second;
    return {line.number, static_cast<std::size_t>(place - line.text.data()), line.text};
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
