#include "lexer.h"

#include <algorithm>

#include "characters.h"
#include "diagnostic.h"
#include "operators.h"

namespace tarncalc {

namespace {

/** The longest symbol at the front of the text; empty where there is none. */
std::string_view LongestSymbol(std::string_view text) {
    std::string_view longest;
    const auto tryOne = [&](std::string_view spelling) {
        if (spelling.size() > longest.size() && text.starts_with(spelling)) longest = spelling;
    };
    for (const OperatorRow& row : kOperators) {
        tryOne(row.spelling);
    }
    for (const std::string_view spelling : kPunctuation) {
        tryOne(spelling);
    }
    return longest;
}

constexpr bool BeginsName(char c) {
    return IsLetter(c) || c == '_';
}

std::string_view NameAt(std::string_view text) {
    const auto continuesName = [](char c) { return IsWord(c) || c == '$'; };
    const auto* const end = std::find_if_not(text.begin(), text.end(), continuesName);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

/** The place behind the string that begins at `position`, or the text's end if it isn't closed. */
std::size_t SkipString(std::string_view text, std::size_t position) {
    for (++position; position < text.size() && text[position] != '"'; ++position) {
        if (text[position] == '\\') ++position;
    }
    return std::min(position + 1, text.size());
}

}  // namespace

Token Lexer::Next() {
    SkipBlanks();
    Token token;
    token.place = Here();
    const std::string_view rest = line_.substr(position_);
    if (rest.empty()) {
        token.kind = isAtEnd_ ? Token::Kind::kEnd : Token::Kind::kLineEnd;
    } else if (BeginsLiteral(rest.front())) {
        token.kind = Token::Kind::kLiteral;
        token.literal = ScanLiteral(line_, position_);
        token.text = token.literal.spelling;
    } else if (BeginsName(rest.front())) {
        token.kind = Token::Kind::kName;
        token.text = NameAt(rest);
    } else if (rest.front() == '$' && rest.size() > 1 && BeginsName(rest[1])) {
        token.kind = Token::Kind::kSystemName;
        token.text = NameAt(rest);
    } else {
        token.kind = Token::Kind::kSymbol;
        token.text = LongestSymbol(rest);
        if (token.text.empty()) {
            throw InputError(token.place, "unexpected " + CharacterName(line_, position_));
        }
    }
    position_ += token.text.size();
    return token;
}

void Lexer::ReadLine(bool continuesStatement) {
    isAtEnd_ = !source_.ReadLine(continuesStatement);
    if (isAtEnd_) return;
    if (!continuesStatement) source_.ForgetEarlierLines();
    line_ = source_.CurrentLine();
    position_ = 0;
}

void Lexer::SkipBlanks() {
    for (;;) {
        if (position_ < line_.size() && IsSpace(line_[position_])) {
            ++position_;
        } else if (At("//")) {
            position_ = line_.size();
        } else if (At("/*")) {
            SkipComment();
        } else {
            return;
        }
    }
}

void Lexer::SkipComment() {
    const Place begin = Here();
    position_ += 2;
    for (;;) {
        const std::size_t end = line_.find("*/", position_);
        if (end != std::string_view::npos) {
            position_ = end + 2;
            return;
        }
        position_ = line_.size();
        ReadLine(true);
        if (isAtEnd_) throw InputError(begin, "missing '*/'");
    }
}

void Lexer::SkipStatement() {
    while (position_ < line_.size()) {
        if (At("//")) {
            position_ = line_.size();
        } else if (At("/*")) {
            const std::size_t end = line_.find("*/", position_ + 2);
            position_ = end == std::string_view::npos ? line_.size() : end + 2;
        } else if (At("\"")) {
            position_ = SkipString(line_, position_);
        } else if (line_[position_++] == ';') {
            return;
        }
    }
}

}  // namespace tarncalc
