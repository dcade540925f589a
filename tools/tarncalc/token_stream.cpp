#include "token_stream.h"

namespace tarncalc {

void TokenStream::Advance() {
    ReadToken();
    if (nesting_ > 0) SkipLineEnds();
}

void TokenStream::SkipLineEnds() {
    while (token_.kind == Token::Kind::kLineEnd) {
        lexer_.ReadLine(true);
        ReadToken();
    }
}

void TokenStream::Open() {
    if (nesting_ == kMaxNesting) {
        throw InputError(token_.place,
                         "nested more than " + std::to_string(kMaxNesting) + " levels deep");
    }
    ++nesting_;
    Advance();
}

void TokenStream::Close(std::string_view closing, std::string_view others) {
    if (!token_.Is(closing)) {
        const std::string expected = std::string("'").append(closing) + '\'';
        const bool atEnd = token_.kind == Token::Kind::kEnd;
        std::string message = atEnd ? "expected " : "expected an operator";
        if (!atEnd) message.append(others.empty() ? " or " : ", ").append(others);
        throw InputError(token_.place, message + expected);
    }
    --nesting_;
    Advance();
}

bool TokenStream::Skip(std::string_view symbol) {
    if (!token_.Is(symbol)) return false;
    Advance();
    return true;
}

bool TokenStream::BeginStatement() {
    while (IsStatementEnd()) {
        if (token_.kind == Token::Kind::kEnd) return false;
        if (token_.kind == Token::Kind::kLineEnd) lexer_.ReadLine(false);
        ReadToken();
    }
    return true;
}

void TokenStream::SkipStatement() {
    nesting_ = 0;
    if (IsStatementEnd()) return;
    lexer_.SkipStatement();
    token_ = kStatementEnd;
}

bool TokenStream::IsStatementEnd() const noexcept {
    return token_.kind == Token::Kind::kLineEnd || token_.kind == Token::Kind::kEnd ||
           token_.Is(";");
}

void TokenStream::ReadToken() {
    token_ = Token{};  // should the next one be none
    token_ = lexer_.Next();
}

}  // namespace tarncalc
