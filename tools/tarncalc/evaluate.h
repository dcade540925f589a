// The values of expressions.
#ifndef TARNCALC_EVALUATE_H
#define TARNCALC_EVALUATE_H

#include <string_view>
#include <vector>

#include "tree.h"
#include "value.h"

namespace tarncalc {

struct Evaluation {
    Value value;
    std::vector<std::string_view> cutLiterals;  // those whose digits need more than their width
};

/** The value of an expression. Throws ExpressionError where it would need too much storage. */
Evaluation Evaluate(const Tree& tree);

}  // namespace tarncalc

#endif
