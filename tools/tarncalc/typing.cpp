#include "typing.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "diagnostic.h"

namespace tarncalc {

namespace {

/** The operands that share a type, as places among an operator's operands. */
struct SharedOperands {
    std::size_t begin, end;
};

SharedOperands SharedOperandsOf(const OperatorRow& row) {
    switch (row.sizing) {
        case Sizing::kAll:
        case Sizing::kCompared:
            return {0, row.operandCount};
        case Sizing::kAllButFirst:
            return {1, row.operandCount};
        case Sizing::kAllButLast:
            return {0, row.operandCount - 1};
        case Sizing::kNone:
            break;
    }
    return {0, 0};
}

class TypeRules {
  public:
    TypeRules(TreeView tree, std::span<const int> constants,
              const std::function<Type(NodeIndex)>& leafType)
        : tree_(tree),
          constants_(constants),
          leafType_(leafType),
          types_(tree.size()),
          mayBeEmpty_(tree.size()) {}

    std::vector<Type> Run(int contextWidth) {
        for (NodeIndex index = 0; index < tree_.size(); ++index) {
            const auto ownType = [&](const auto& content) { return OwnType(content, index); };
            types_[index] = std::visit(ownType, tree_[index].content);
        }
        Type& root = types_.back();
        if (root.width > 0 && !root.isReal) root.width = std::max(root.width, contextWidth);
        for (NodeIndex index = tree_.size(); index-- > 0;) {
            if (types_[index].width == 0 && !mayBeEmpty_[index]) {
                Reject(index, "an empty replication must stand in a concatenation");
            }
            const auto passDown = [&](const auto& content) { PassDown(content, index); };
            std::visit(passDown, tree_[index].content);
        }
        return std::move(types_);
    }

  private:
    Type OwnType(const Literal& /*literal*/, NodeIndex index) const { return leafType_(index); }

    Type OwnType(const ReferenceNode& /*node*/, NodeIndex index) const {
        ForEachOperand(tree_, index, [&](NodeIndex operand) {
            if (types_[operand].isReal) Reject(operand, "an index can't be a real");
        });
        return leafType_(index);
    }

    Type OwnType(const OperatorNode& node, NodeIndex index) const {
        ForEachOperand(tree_, index, [&](NodeIndex operand) {
            if (!types_[operand].isReal || node.row->allowsReals) return;
            Reject(index, InQuotes(node.row->spelling) + " can't be applied to a real");
        });
        const Sizing sizing = node.row->sizing;
        const bool isBit = sizing == Sizing::kCompared || sizing == Sizing::kNone;
        return isBit ? kBitType : SharedType(*node.row, index);
    }

    Type OwnType(const ConcatenationNode& /*node*/, NodeIndex index) const {
        std::int64_t width = 0;
        ForEachOperand(tree_, index, [&](NodeIndex operand) {
            const auto* const literal = std::get_if<Literal>(&tree_[operand].content);
            if (literal != nullptr && literal->IsUnsized()) {
                Reject(operand, "a number in a concatenation must have a size");
            }
            if (types_[operand].isReal) Reject(operand, "a real can't be concatenated");
            width += types_[operand].width;
        });
        if (width == 0) Reject(index, "this concatenation has no bits");
        return VectorOf(width, index);
    }

    Type OwnType(const ReplicationNode& node, NodeIndex index) const {
        const int count = constants_[node.count];
        if (count < 0)
            throw InputError(tree_[index].place, "a replication count can't be negative");
        return VectorOf(std::int64_t{count} * types_[index - 1].width, index);
    }

    Type OwnType(const CallNode& node, NodeIndex index) const {
        const FunctionRow& row = *node.row;
        Type type;
        ForEachOperand(tree_, index, [&](NodeIndex operand) {
            type = types_[operand];
            if (type.isReal && row.taken == Taken::kVector) {
                Reject(operand, InQuotes(row.name) + " needs a vector");
            }
        });
        return ResultTypeOf(row, type);
    }

    [[noreturn]] void Reject(NodeIndex index, const std::string& message) const {
        throw InputError(tree_[index].place, message);
    }

    Type VectorOf(std::int64_t width, NodeIndex index) const {
        CheckWidth(width, tree_[index].place);
        return {static_cast<int>(width), false};
    }

    /** The type that the operands of an operator share, from what each of them is by itself. */
    Type SharedType(const OperatorRow& row, NodeIndex index) const {
        const auto operands = OperandsOf(tree_, index);
        const auto [begin, end] = SharedOperandsOf(row);
        Type shared = types_[operands[begin]];
        for (std::size_t place = begin + 1; place < end; ++place) {
            const Type& type = types_[operands[place]];
            const bool isReal = shared.isReal || type.isReal;
            shared =
                isReal ? kRealType
                       : Type{std::max(shared.width, type.width), shared.isSigned && type.isSigned};
        }
        // A real exponent makes a real power, though it doesn't share its type.
        const bool isPower = row.op == Operator::kPower;
        return isPower && types_[operands[1]].isReal ? kRealType : shared;
    }

    template <typename Content>
    void PassDown(const Content& /*leaf*/, NodeIndex /*index*/) {}

    void PassDown(const OperatorNode& node, NodeIndex index) {
        const OperatorRow& row = *node.row;
        const bool isCompared = row.sizing == Sizing::kCompared;
        const Type shared = isCompared ? SharedType(row, index) : types_[index];
        const auto operands = OperandsOf(tree_, index);
        const auto [begin, end] = SharedOperandsOf(row);
        for (std::size_t place = begin; place < end; ++place) {
            Type& type = types_[operands[place]];
            // Beside a real a vector keeps the type that it determines itself.
            if (type.width > 0 && !shared.isReal) type = shared;
        }
    }

    void PassDown(const ConcatenationNode& /*node*/, NodeIndex index) {
        ForEachOperand(tree_, index, [&](NodeIndex operand) { mayBeEmpty_[operand] = true; });
    }

    TreeView tree_;
    std::span<const int> constants_;
    const std::function<Type(NodeIndex)>& leafType_;
    std::vector<Type> types_;
    std::vector<bool> mayBeEmpty_;
};

}  // namespace

std::vector<Type> DetermineTypes(TreeView tree, std::span<const int> constants,
                                 const std::function<Type(NodeIndex)>& leafType, int contextWidth) {
    return TypeRules(tree, constants, leafType).Run(contextWidth);
}

}  // namespace tarncalc
