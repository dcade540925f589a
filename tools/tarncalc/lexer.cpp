#include "lexer.h"

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

}  // namespace

Token Lexer::Next() {
    while (position_ < text_.size() && IsSpace(text_[position_])) {
        ++position_;
    }
    Token token;
    token.position = position_;
    if (position_ == text_.size()) return token;
    if (BeginsLiteral(text_[position_])) {
        token.kind = Token::Kind::kLiteral;
        token.literal = ScanLiteral(text_, position_);
        position_ += token.literal.spelling.size();
        return token;
    }
    token.kind = Token::Kind::kSymbol;
    token.symbol = LongestSymbol(text_.substr(position_));
    if (token.symbol.empty()) {
        throw ExpressionError(position_, "unexpected " + CharacterName(text_, position_));
    }
    position_ += token.symbol.size();
    return token;
}

}  // namespace tarncalc
