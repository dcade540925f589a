#include "statement_parser.h"

#include <string>
#include <utility>

#include "diagnostic.h"
#include "expression_parser.h"

namespace tarncalc {

std::optional<Statement> StatementParser::Next() {
    if (!tokens_.BeginStatement()) return std::nullopt;
    Statement statement = ParseStatement();
    if (tokens_.IsStatementEnd()) return statement;
    const Token& token = tokens_.Current();
    for (const std::string_view closing : {")", "]", "}"}) {
        if (token.Is(closing)) throw InputError(token.place, "unmatched " + InQuotes(closing));
    }
    const bool isDeclaration = std::holds_alternative<Declaration>(statement);
    throw InputError(token.place, isDeclaration ? "expected ',' or ';'" : "expected an operator");
}

Statement StatementParser::ParseStatement() {
    const Token& token = tokens_.Current();
    if (token.IsName("reg") || token.IsName("integer")) return ParseDeclaration();
    Expression expression = ParseExpression(tokens_);
    if (!tokens_.Skip("=")) return expression;
    return Assignment{std::move(expression), ParseExpression(tokens_)};
}

Declaration StatementParser::ParseDeclaration() {
    const bool isInteger = tokens_.Current().IsName("integer");
    tokens_.Advance();
    tokens_.SkipLineEnds();
    Declaration declaration{
        isInteger ? Declaration::Kind::kInteger : Declaration::Kind::kReg, isInteger, {}, {}};
    if (!isInteger) {
        declaration.isSigned = tokens_.Current().IsName("signed");
        if (declaration.isSigned) tokens_.Advance();
        declaration.range = ParseRange();
    }
    do {
        tokens_.SkipLineEnds();
        declaration.declarators.push_back(ParseDeclarator());
    } while (tokens_.Skip(","));
    return declaration;
}

Declarator StatementParser::ParseDeclarator() {
    Declarator declarator;
    declarator.place = tokens_.Current().place;
    declarator.name = ParseName(tokens_);
    declarator.elements = ParseRange();
    if (tokens_.Current().Is("[")) {
        throw InputError(tokens_.Current().place, "a memory has one range of words");
    }
    if (tokens_.Skip("=")) declarator.initial = ParseExpression(tokens_);
    return declarator;
}

std::optional<RangeText> StatementParser::ParseRange() {
    if (!tokens_.Current().Is("[")) return std::nullopt;
    RangeText range{tokens_.Current().place, {}, {}};
    tokens_.Open();
    range.left = ParseExpression(tokens_);
    if (!tokens_.Skip(":")) throw InputError(tokens_.Current().place, "expected ':'");
    range.right = ParseExpression(tokens_);
    tokens_.Close("]");
    return range;
}

}  // namespace tarncalc
