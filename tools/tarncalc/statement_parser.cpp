#include "statement_parser.h"

#include <string>
#include <utility>

#include "diagnostic.h"
#include "display.h"
#include "expression_parser.h"

namespace tarncalc {

namespace {

/** What a declaration begins with; null for any other token. */
const Declaration::Kind* FindKind(const Token& token) {
    struct Row {
        std::string_view name;
        Declaration::Kind kind;
    };
    static constexpr Row kRows[] = {{"reg", Declaration::Kind::kReg},
                                    {"integer", Declaration::Kind::kInteger},
                                    {"real", Declaration::Kind::kReal}};
    for (const Row& row : kRows) {
        if (token.IsName(row.name)) return &row.kind;
    }
    return nullptr;
}

}  // namespace

std::optional<Statement> StatementParser::Next() {
    if (!tokens_.BeginStatement()) return std::nullopt;
    Statement statement = ParseStatement();
    if (tokens_.IsStatementEnd()) return statement;
    const Token& token = tokens_.Current();
    for (const std::string_view closing : {")", "]", "}"}) {
        if (token.Is(closing)) throw InputError(token.place, "unmatched " + InQuotes(closing));
    }
    if (std::holds_alternative<TaskCall>(statement)) throw InputError(token.place, "expected ';'");
    const bool isDeclaration = std::holds_alternative<Declaration>(statement);
    throw InputError(token.place, isDeclaration ? "expected ',' or ';'" : "expected an operator");
}

Statement StatementParser::ParseStatement() {
    const Token& token = tokens_.Current();
    if (FindKind(token) != nullptr) return ParseDeclaration();
    if (token.kind == Token::Kind::kSystemName) {
        if (const TaskRow* const row = FindTask(token.text)) return ParseTaskCall(*row);
    }
    Expression expression = ParseExpression(tokens_);
    if (!tokens_.Skip("=")) return expression;
    return Assignment{std::move(expression), ParseExpression(tokens_)};
}

TaskCall StatementParser::ParseTaskCall(const TaskRow& row) {
    TaskCall call{tokens_.Current().place, &row, {}};
    tokens_.Advance();
    if (!tokens_.Current().Is("(")) return call;
    tokens_.Open();
    const bool isEmpty = tokens_.Current().Is(")");
    while (!isEmpty) {
        const bool isLeftOut = tokens_.Current().Is(",") || tokens_.Current().Is(")");
        call.arguments.emplace_back();
        if (!isLeftOut) call.arguments.back() = ParseExpression(tokens_);
        if (!tokens_.Skip(",")) break;
    }
    tokens_.Close(")", "',' or ");
    return call;
}

Declaration StatementParser::ParseDeclaration() {
    Declaration declaration;
    declaration.kind = *FindKind(tokens_.Current());
    tokens_.Advance();
    tokens_.SkipLineEnds();
    if (declaration.kind == Declaration::Kind::kReg) {
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
