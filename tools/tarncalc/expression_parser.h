// Expressions as they are written, turned into trees.
#ifndef TARNCALC_EXPRESSION_PARSER_H
#define TARNCALC_EXPRESSION_PARSER_H

#include "token_stream.h"
#include "tree.h"

namespace tarncalc {

/** The expression that begins at the current token, as far as it goes. It refers to the text.
 *  Throws InputError. */
Expression ParseExpression(TokenStream& tokens);

/** The name at the current token, and a move behind it. */
std::string_view ParseName(TokenStream& tokens);

}  // namespace tarncalc

#endif
