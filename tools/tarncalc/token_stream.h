// Tokens one at a time, without the line ends that don't end a statement.
#ifndef TARNCALC_TOKEN_STREAM_H
#define TARNCALC_TOKEN_STREAM_H

#include <string>
#include <string_view>

#include "diagnostic.h"
#include "lexer.h"
#include "source.h"

namespace tarncalc {

class TokenStream {
  public:
    explicit TokenStream(Source& source) : lexer_(source) {}

    const Token& Current() const noexcept { return token_; }

    /** Moves to the next token. Inside brackets a line's end is a blank. */
    void Advance();

    /** Moves on to a token in a later line if the current one is a line's end: for a place where a
     *  statement can't end. */
    void SkipLineEnds();

    /** Moves behind an opening bracket, the current token. */
    void Open();

    /** Moves behind the bracket that closes the last one that was opened. `others` tells what may
     *  stand in its place, beside an operator: "", or a list such as "',' or ". */
    void Close(std::string_view closing, std::string_view others = "");

    /** Moves behind the current token if it is this symbol. */
    bool Skip(std::string_view symbol);

    /** Moves to the first token of a statement; false where the source ends. */
    bool BeginStatement();

    /** Moves to the end of the statement in which an error was found: its semicolon, or the end of
     *  the line. */
    void SkipStatement();

    bool IsStatementEnd() const noexcept;

  private:
    // Brackets inside each other. Bounds the call stack.
    static constexpr int kMaxNesting = 1000;

    static constexpr Token kStatementEnd{Token::Kind::kSymbol, nullptr, ";", {}};

    void ReadToken();

    Lexer lexer_;
    Token token_ = kStatementEnd;
    int nesting_ = 0;
};

}  // namespace tarncalc

#endif
