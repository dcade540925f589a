// Expressions as they are written, turned into trees.
#ifndef TARNCALC_PARSER_H
#define TARNCALC_PARSER_H

#include <string_view>

#include "tree.h"

namespace tarncalc {

/** The tree of an expression, which refers to the text. Throws ExpressionError. */
Tree Parse(std::string_view text);

}  // namespace tarncalc

#endif
