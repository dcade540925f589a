// Lines as rows of tokens.
#ifndef TARNCALC_LEXER_H
#define TARNCALC_LEXER_H

#include <cstddef>
#include <string_view>

#include "literal.h"
#include "source.h"

namespace tarncalc {

struct Token {
    enum class Kind { kNone, kLiteral, kName, kSystemName, kSymbol, kLineEnd, kEnd };

    Kind kind = Kind::kNone;
    Place place = nullptr;
    std::string_view text;  // of a name, with its $ if it has one, or of a symbol
    Literal literal;

    bool Is(std::string_view symbol) const { return kind == Kind::kSymbol && text == symbol; }
    bool IsName(std::string_view name) const { return kind == Kind::kName && text == name; }
};

class Lexer {
  public:
    /** The source must live as long as the tokens, and nothing else may read from it. */
    explicit Lexer(Source& source) : source_(source) {}

    /** The next token of the line, or its end; at the end of the source, kEnd however often it is
     *  called. */
    Token Next();

    /** Moves on to the next line. Tokens of earlier ones are gone unless a statement goes on. */
    void ReadLine(bool continuesStatement);

    /** Moves behind the next semicolon of the line, or to its end. */
    void SkipStatement();

  private:
    /** Moves to the next character that isn't blank. A comment is a blank, however many lines it
     *  has. */
    void SkipBlanks();
    void SkipComment();

    bool At(std::string_view text) const { return line_.substr(position_).starts_with(text); }
    Place Here() const { return line_.data() + position_; }

    Source& source_;
    std::string_view line_;
    std::size_t position_ = 0;
    bool isAtEnd_ = false;
};

}  // namespace tarncalc

#endif
