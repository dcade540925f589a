#include "diagnostic.h"

#include <algorithm>

#include "characters.h"

namespace tarncalc {

namespace {

// How much of a long text is shown before and after the caret.
constexpr std::size_t kBytesBefore = 60;
constexpr std::size_t kBytesAfter = 30;
constexpr std::size_t kQuotedBytes = 40;
constexpr std::string_view kEllipsis = "...";

constexpr bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/** The bytes of the UTF-8 sequence at `position` if it can be shown, else 0. Sequences for the
 *  control characters U+0080 to U+009F can't. */
std::size_t PrintableSequence(std::string_view text, std::size_t position) {
    const auto lead = static_cast<unsigned char>(text[position]);
    if (lead < 0x80) return IsControl(text[position]) ? 0 : 1;
    const std::size_t count = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() - position < count) return 0;
    const std::string_view tail = text.substr(position + 1, count - 1);
    if (!std::all_of(tail.begin(), tail.end(), IsContinuation)) return 0;
    const bool isControl = lead == 0xC2 && static_cast<unsigned char>(tail.front()) < 0xA0;
    return isControl ? 0 : count;
}

/** Appends the character at `position` as it is shown, and returns the bytes that it takes. */
std::size_t AppendShown(std::string& shown, std::string_view text, std::size_t position) {
    const std::size_t count = PrintableSequence(text, position);
    if (count == 0) {
        shown += IsSpace(text[position]) ? ' ' : '?';
        return 1;
    }
    shown += text.substr(position, count);
    return count;
}

std::size_t CharacterStart(std::string_view text, std::size_t position) {
    while (position < text.size() && IsContinuation(text[position])) {
        ++position;
    }
    return position;
}

}  // namespace

std::string CaretLines(std::string_view text, std::size_t position) {
    const std::size_t begin =
        position > kBytesBefore ? CharacterStart(text, position - kBytesBefore) : 0;
    const std::size_t end = position + kBytesAfter < text.size()
                                ? CharacterStart(text, position + kBytesAfter)
                                : text.size();
    std::string shown = "  ";
    if (begin > 0) shown += kEllipsis;
    std::string caret(shown.size(), ' ');
    for (std::size_t at = begin; at < end;) {
        // A tab is as wide in the caret's line as in the text's, so it is copied into both.
        const bool isTab = text[at] == '\t';
        const std::size_t start = at;
        if (isTab) {
            shown += '\t';
            ++at;
        } else {
            at += AppendShown(shown, text, at);
        }
        if (start < position) caret += isTab ? '\t' : ' ';
    }
    if (end < text.size()) shown += kEllipsis;
    return shown + '\n' + caret + "^\n";
}

std::string Quoted(std::string_view text) {
    const std::size_t end =
        text.size() > kQuotedBytes ? CharacterStart(text, kQuotedBytes) : text.size();
    std::string shown;
    for (std::size_t at = 0; at < end;) {
        at += AppendShown(shown, text, at);
    }
    if (end < text.size()) shown += kEllipsis;
    return shown;
}

std::string InQuotes(std::string_view text) {
    return std::string("'").append(Quoted(text)) + '\'';
}

std::string CharacterName(std::string_view text, std::size_t position) {
    constexpr char kDigits[] = "0123456789abcdef";
    const char c = text[position];
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x80) return "character outside ASCII";
    if (!IsControl(c)) return std::string("character '") + c + '\'';
    return std::string("control character 0x") + kDigits[code >> 4U] + kDigits[code & 0xFU];
}

}  // namespace tarncalc
