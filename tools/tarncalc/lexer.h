// Expressions as a row of tokens.
#ifndef TARNCALC_LEXER_H
#define TARNCALC_LEXER_H

#include <cstddef>
#include <string_view>

#include "literal.h"

namespace tarncalc {

struct Token {
    enum class Kind { kEnd, kLiteral, kSymbol };

    Kind kind = Kind::kEnd;
    std::size_t position = 0;
    std::string_view symbol;  // an operator or a parenthesis; empty for the other kinds
    Literal literal;

    bool Is(std::string_view text) const { return kind == Kind::kSymbol && symbol == text; }
};

class Lexer {
  public:
    /** The text must live as long as the tokens. */
    explicit Lexer(std::string_view text) : text_(text) {}

    /** The next token; at the end of the text, kEnd however often it is called. */
    Token Next();

  private:
    std::string_view text_;
    std::size_t position_ = 0;
};

}  // namespace tarncalc

#endif
