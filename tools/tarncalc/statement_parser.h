// The statements of a source.
#ifndef TARNCALC_STATEMENT_PARSER_H
#define TARNCALC_STATEMENT_PARSER_H

#include <optional>

#include "source.h"
#include "statement.h"
#include "token_stream.h"

namespace tarncalc {

class StatementParser {
  public:
    explicit StatementParser(Source& source) : tokens_(source) {}

    /** The next statement, which refers to the text until the next call; none at the end. Throws
     *  InputError; SkipStatement must follow that. */
    std::optional<Statement> Next();

    void SkipStatement() { tokens_.SkipStatement(); }

  private:
    Statement ParseStatement();
    TaskCall ParseTaskCall(const TaskRow& row);
    Declaration ParseDeclaration();
    Declarator ParseDeclarator();
    std::optional<RangeText> ParseRange();

    TokenStream tokens_;
};

}  // namespace tarncalc

#endif
