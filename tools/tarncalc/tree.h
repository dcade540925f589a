// Expressions as trees.
#ifndef TARNCALC_TREE_H
#define TARNCALC_TREE_H

#include <array>
#include <cstddef>
#include <variant>
#include <vector>

#include "literal.h"
#include "operators.h"

namespace tarncalc {

/** The place of a node in its tree. */
using NodeIndex = std::size_t;

struct OperatorNode {
    const OperatorRow* row;
};

struct Node {
    std::size_t position;   // of the operator or of the literal, in the expression's text
    std::size_t nodeCount;  // of the subtree: this node and everything below it
    std::variant<Literal, OperatorNode> content;
};

/** The nodes in postorder: operands stand before their operators, left before right, the root is
 *  the last. A walk up or down the tree is a loop, so the length of an expression (1 + 1 + 1 ... is
 *  as deep as it is long) is not bounded by the call stack. The nodes of a subtree are neighbours
 *  and mean the same wherever they stand. */
using Tree = std::vector<Node>;

/** The operands of an operator, in the order of the text; places beyond their count are unused. */
inline std::array<NodeIndex, kMaxOperands> OperandsOf(const Tree& tree, NodeIndex index,
                                                      int operandCount) {
    std::array<NodeIndex, kMaxOperands> operands{};
    NodeIndex operand = index - 1;
    for (auto place = static_cast<std::size_t>(operandCount); place-- > 0;) {
        operands[place] = operand;
        operand -= tree[operand].nodeCount;
    }
    return operands;
}

}  // namespace tarncalc

#endif
