// Expressions as trees.
#ifndef TARNCALC_TREE_H
#define TARNCALC_TREE_H

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "functions.h"
#include "literal.h"
#include "operators.h"
#include "source.h"

namespace tarncalc {

/** The place of a node in its tree. */
using NodeIndex = std::size_t;

/** The place of a constant among those of its expression. */
using ConstantIndex = std::size_t;

struct OperatorNode {
    const OperatorRow* row;
};

/** What the last brackets behind a name select. */
enum class Part {
    kNone,    // the bit or memory word of an index, or there are no brackets
    kBounds,  // [constant:constant]
    kUp,      // [index +: constant]
    kDown,    // [index -: constant]
};

/** A variable or a part of one. Its operands are the indices of its brackets that needn't be
 *  constant. */
struct ReferenceNode {
    std::string_view name;
    std::size_t indexCount = 0;
    Part part = Part::kNone;
    ConstantIndex left = 0;   // for kBounds
    ConstantIndex right = 0;  // for kBounds; for kUp and kDown the width
};

/** {a, b, c} */
struct ConcatenationNode {
    std::size_t operandCount;
};

/** {count{a, b, c}}; its operand is the concatenation. */
struct ReplicationNode {
    ConstantIndex count;
};

struct CallNode {
    const FunctionRow* row;
};

struct Node {
    Place place;            // of the operator or of the operand
    std::size_t nodeCount;  // of the subtree: this node and everything below it
    std::variant<Literal, OperatorNode, ReferenceNode, ConcatenationNode, ReplicationNode, CallNode>
        content;
};

/** The nodes in postorder: operands stand before their operators, left before right, the root is
 *  the last. A walk up or down the tree is a loop, so the length of an expression (1 + 1 + 1 ... is
 *  as deep as it is long) is not bounded by the call stack. The nodes of a subtree are neighbours
 *  and mean the same wherever they stand. */
using Tree = std::vector<Node>;
using TreeView = std::span<const Node>;

/** A tree and the constants that it needs, each after those that it needs itself. */
struct Expression {
    Tree tree;
    std::vector<Tree> constants;
};

/** How many operands a node has. */
inline std::size_t OperandCountOf(const Node& node) {
    struct Count {
        std::size_t operator()(const Literal&) const { return 0; }
        std::size_t operator()(const OperatorNode& node) const { return node.row->operandCount; }
        std::size_t operator()(const ReferenceNode& node) const { return node.indexCount; }
        std::size_t operator()(const ConcatenationNode& node) const { return node.operandCount; }
        std::size_t operator()(const ReplicationNode&) const { return 1; }
        std::size_t operator()(const CallNode& node) const { return node.row->argumentCount; }
    };
    return std::visit(Count{}, node.content);
}

/** Calls visit(operand) for each operand of a node, from the last to the first. */
template <typename Visitor>
void ForEachOperand(TreeView tree, NodeIndex index, Visitor visit) {
    NodeIndex operand = index - 1;
    for (std::size_t place = OperandCountOf(tree[index]); place-- > 0;) {
        visit(operand);
        operand -= tree[operand].nodeCount;
    }
}

/** The operands of an operator, in the order of the text; places beyond their count are unused. */
inline std::array<NodeIndex, kMaxOperands> OperandsOf(TreeView tree, NodeIndex index) {
    std::array<NodeIndex, kMaxOperands> operands{};
    auto* place = operands.begin() + OperandCountOf(tree[index]);
    ForEachOperand(tree, index, [&](NodeIndex operand) { *--place = operand; });
    return operands;
}

}  // namespace tarncalc

#endif
