#include "evaluate.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "diagnostic.h"

namespace tarncalc {

namespace {

// The bits of all values that exist at one time; a bit of a value is two bits of storage. A line of
// text can ask for more than any machine has.
constexpr std::uint64_t kMaxLiveBits = 2'000'000'000;

using UnaryFunction = decltype(&tarn_SignedMinus);
using BinaryFunction = decltype(&tarn_SignedAdd);

UnaryFunction FunctionOf(UnaryOperator op, bool isSigned) {
    switch (op) {
        case UnaryOperator::kPlus:
            return isSigned ? tarn_SignedPlus : tarn_UnsignedPlus;
        case UnaryOperator::kMinus:
            return isSigned ? tarn_SignedMinus : tarn_UnsignedMinus;
    }
    return nullptr;
}

BinaryFunction FunctionOf(BinaryOperator op, bool isSigned) {
    switch (op) {
        case BinaryOperator::kAdd:
            return isSigned ? tarn_SignedAdd : tarn_UnsignedAdd;
        case BinaryOperator::kSubtract:
            return isSigned ? tarn_SignedSub : tarn_UnsignedSub;
    }
    return nullptr;
}

/** The rules of IEEE 1364-2005, 5.4 and 5.5: types are determined from the operands up, then the
 *  root's type goes down to every operand whose size its context determines, and the operands are
 *  extended to it before anything is calculated. */
class Evaluator {
  public:
    explicit Evaluator(const Tree& tree) : tree_(tree), types_(tree.size()) {}

    Evaluation Run() {
        DetermineTypes();
        PassTypesDown();
        Calculate();
        return {std::move(stack_.back()), std::move(cutLiterals_)};
    }

  private:
    void DetermineTypes() {
        for (NodeIndex index = 0; index < tree_.size(); ++index) {
            types_[index] =
                std::visit([&](const auto& node) { return TypeOf(node); }, tree_[index].content);
            if (std::holds_alternative<Literal>(tree_[index].content)) {
                ClaimBits(types_[index].width, tree_[index].position);
            }
        }
    }

    Type TypeOf(const Literal& literal) {
        bool isCut = false;
        literals_.emplace_back(literal, isCut);
        if (isCut) cutLiterals_.push_back(literal.spelling);
        return literals_.back().GetType();
    }

    Type TypeOf(const UnaryNode& node) const { return types_[node.operand]; }

    Type TypeOf(const BinaryNode& node) const {
        const Type& left = types_[node.left];
        const Type& right = types_[node.right];
        return {std::max(left.width, right.width), left.isSigned && right.isSigned};
    }

    void PassTypesDown() {
        for (NodeIndex index = tree_.size(); index-- > 0;) {
            const Type type = types_[index];
            if (const auto* const unary = std::get_if<UnaryNode>(&tree_[index].content)) {
                types_[unary->operand] = type;
            } else if (const auto* const binary = std::get_if<BinaryNode>(&tree_[index].content)) {
                types_[binary->left] = type;
                types_[binary->right] = type;
            }
        }
    }

    /** Postorder is the order of a stack machine: an operator finds its operands on top. */
    void Calculate() {
        auto nextLiteral = literals_.begin();
        for (NodeIndex index = 0; index < tree_.size(); ++index) {
            const Type type = types_[index];
            if (const auto* const unary = std::get_if<UnaryNode>(&tree_[index].content)) {
                Apply(*unary, type);
            } else if (const auto* const binary = std::get_if<BinaryNode>(&tree_[index].content)) {
                Apply(*binary, type);
            } else {
                Value value = std::move(*nextLiteral++);
                ClaimBits(type.width - value.GetType().width, tree_[index].position);
                value.Convert(type);
                stack_.push_back(std::move(value));
            }
        }
    }

    void Apply(const UnaryNode& node, Type type) {
        Value& operand = stack_.back();
        FunctionOf(node.op, type.isSigned)(type.width, operand.Words(), type.width,
                                           operand.Words());
        operand.RestoreTopWord();
    }

    void Apply(const BinaryNode& node, Type type) {
        const Value right = std::move(stack_.back());
        stack_.pop_back();
        Value& left = stack_.back();
        FunctionOf(node.op, type.isSigned)(type.width, left.Words(), type.width, left.Words(),
                                           type.width, right.Words());
        left.RestoreTopWord();
        liveBits_ -= static_cast<std::uint64_t>(type.width);
    }

    void ClaimBits(int bitCount, std::size_t position) {
        liveBits_ += static_cast<std::uint64_t>(bitCount);
        if (liveBits_ > kMaxLiveBits) {
            throw ExpressionError(position, "the expression needs too much storage");
        }
    }

    const Tree& tree_;
    std::vector<Type> types_;
    std::vector<Value> literals_;  // in the order of the text; each moves to the stack in its turn
    std::vector<Value> stack_;
    std::vector<std::string_view> cutLiterals_;
    std::uint64_t liveBits_ = 0;
};

}  // namespace

Evaluation Evaluate(const Tree& tree) {
    return Evaluator(tree).Run();
}

}  // namespace tarncalc
