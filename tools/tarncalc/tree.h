// Expressions as trees.
#ifndef TARNCALC_TREE_H
#define TARNCALC_TREE_H

#include <cstddef>
#include <variant>
#include <vector>

#include "literal.h"
#include "operators.h"

namespace tarncalc {

/** The place of a node in its tree. */
using NodeIndex = std::size_t;

struct UnaryNode {
    UnaryOperator op;
    NodeIndex operand;
};

struct BinaryNode {
    BinaryOperator op;
    NodeIndex left, right;
};

struct Node {
    std::size_t position;  // of the operator or of the literal, in the expression's text
    std::variant<Literal, UnaryNode, BinaryNode> content;
};

/** The nodes in postorder: operands stand before their operators, left before right, the root is
 *  the last. A walk up or down the tree is a loop, so the length of an expression (1 + 1 + 1 ... is
 *  as deep as it is long) is not bounded by the call stack. */
using Tree = std::vector<Node>;

}  // namespace tarncalc

#endif
