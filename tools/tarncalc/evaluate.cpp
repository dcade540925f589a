#include "evaluate.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "diagnostic.h"

namespace tarncalc {

namespace {

// The bits of all values that exist at one time; a bit of a value is two bits of storage. A line of
// text can ask for more than any machine has.
constexpr std::uint64_t kMaxLiveBits = 2'000'000'000;

// The bits of a power times those of its exponent, each of which asks for one or two products. At
// this bound they take about half a minute, be it the power or the exponent that is wide.
constexpr std::uint64_t kMaxPowerWork = 10'000'000'000;

// Nothing is wider than the widest literal, so no operator meets an operand beyond its limit;
// division has the lowest.
static_assert(TARN_MAX_LITERAL_WIDTH <= 10'000'000);

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

/** The signs are those of the operands; they differ at most where the right one determines its own
 *  type. */
BinaryFunction FunctionOf(BinaryOperator op, bool isSigned, bool isRightSigned) {
    switch (op) {
        case BinaryOperator::kPower:
            if (isRightSigned) return isSigned ? tarn_SignedSPower : tarn_UnsignedSPower;
            return isSigned ? tarn_SignedUPower : tarn_UnsignedUPower;
        case BinaryOperator::kMultiply:
            return isSigned ? tarn_SignedMul : tarn_UnsignedMul;
        case BinaryOperator::kDivide:
            return isSigned ? tarn_SignedDiv : tarn_UnsignedDiv;
        case BinaryOperator::kModulo:
            return isSigned ? tarn_SignedMod : tarn_UnsignedMod;
        case BinaryOperator::kAdd:
            return isSigned ? tarn_SignedAdd : tarn_UnsignedAdd;
        case BinaryOperator::kSubtract:
            return isSigned ? tarn_SignedSub : tarn_UnsignedSub;
    }
    return nullptr;
}

/** Whether base ** exponent, as wide as the base, is calculated in bearable time. Even bases,
 *  unknown exponents and those below zero make no work: their powers are found at once. */
bool IsPowerFeasible(const Value& base, const Value& exponent) {
    const std::size_t maxExponentBits = kMaxPowerWork / std::size_t(base.GetType().width);
    const auto exponentWidth = std::size_t(exponent.GetType().width);
    const bool isOdd = (base.Words()->aval & 1U) != 0;
    if (exponentWidth <= maxExponentBits || !isOdd) return true;
    const std::string_view bits = tarn_ConvertToBin(exponent.GetType().width, exponent.Words(), 0);
    const bool isNegative = exponent.GetType().isSigned && bits.size() == exponentWidth;
    const bool isKnown = bits.find_first_not_of("01") == std::string_view::npos;
    return bits.size() <= maxExponentBits || isNegative || !isKnown;
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
            const auto determine = [this](const auto& content) { return DetermineType(content); };
            types_[index] = std::visit(determine, tree_[index].content);
        }
    }

    /** A literal's type is known when its value is made. */
    Type DetermineType(const Literal& literal) {
        bool isCut = false;
        literals_.emplace_back(literal, isCut);
        if (isCut) cutLiterals_.push_back(literal.spelling);
        const Type& type = literals_.back().GetType();
        ClaimBits(type.width, literal.position);
        return type;
    }

    Type DetermineType(const UnaryNode& node) const { return types_[node.operand]; }

    Type DetermineType(const BinaryNode& node) const {
        const Type& left = types_[node.left];
        if (IsRightSelfDetermined(node.op)) return left;
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
                if (!IsRightSelfDetermined(binary->op)) types_[binary->right] = type;
            }
        }
    }

    /** Postorder is the order of a stack machine: an operator finds its operands on top. */
    void Calculate() {
        nextLiteral_ = literals_.begin();
        for (NodeIndex index = 0; index < tree_.size(); ++index) {
            const auto execute = [&](const auto& content) {
                Execute(content, types_[index], tree_[index].position);
            };
            std::visit(execute, tree_[index].content);
        }
    }

    void Execute(const Literal& /*literal*/, Type type, std::size_t position) {
        Value value = std::move(*nextLiteral_++);
        ClaimBits(type.width - value.GetType().width, position);
        value.Convert(type);
        stack_.push_back(std::move(value));
    }

    void Execute(const UnaryNode& node, Type type, std::size_t /*position*/) {
        Value& operand = stack_.back();
        FunctionOf(node.op, type.isSigned)(type.width, operand.Words(), type.width,
                                           operand.Words());
        operand.RestoreTopWord();
    }

    void Execute(const BinaryNode& node, Type type, std::size_t position) {
        const Value right = std::move(stack_.back());
        stack_.pop_back();
        Value& left = stack_.back();
        if (node.op == BinaryOperator::kPower && !IsPowerFeasible(left, right)) {
            throw ExpressionError(position, "this power would take too long to calculate");
        }
        const auto [rightWidth, isRightSigned] = right.GetType();
        FunctionOf(node.op, type.isSigned, isRightSigned)(type.width, left.Words(), type.width,
                                                          left.Words(), rightWidth, right.Words());
        left.RestoreTopWord();
        liveBits_ -= static_cast<std::uint64_t>(rightWidth);
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
    std::vector<Value>::iterator nextLiteral_;
    std::vector<Value> stack_;
    std::vector<std::string_view> cutLiterals_;
    std::uint64_t liveBits_ = 0;
};

}  // namespace

Evaluation Evaluate(const Tree& tree) {
    return Evaluator(tree).Run();
}

}  // namespace tarncalc
