// The values of expressions.
#ifndef TARNCALC_EVALUATE_H
#define TARNCALC_EVALUATE_H

#include <span>
#include <string_view>
#include <vector>

#include "tree.h"
#include "value.h"
#include "variable.h"

namespace tarncalc {

/** What expressions are evaluated in. */
struct Context {
    Scope& scope;
    std::vector<std::string_view>& cutLiterals;  // collects those that lose bits to their width
};

/** The values of an expression's constants, in their order. */
std::vector<int> EvaluateConstants(const Expression& expression, Context& context);

/** The value of an expression that must not depend on a variable, a number of 32 bits. */
int EvaluateConstant(const Expression& expression, Context& context);

/** The value of a tree or of a subtree, calculated with the bits of its context where those are
 *  more than its own. Throws InputError where it would need too much storage. */
Value Evaluate(TreeView tree, std::span<const int> constants, Context& context,
               int contextWidth = 0);

inline Value Evaluate(const Expression& expression, Context& context, int contextWidth = 0) {
    return Evaluate(expression.tree, EvaluateConstants(expression, context), context, contextWidth);
}

}  // namespace tarncalc

#endif
