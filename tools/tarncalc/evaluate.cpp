#include "evaluate.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "diagnostic.h"
#include "operations.h"

namespace tarncalc {

namespace {

// The bits of all values that exist at one time; a bit of a value is two bits of storage. A line of
// text can ask for more than any machine has.
constexpr std::int64_t kMaxLiveBits = 2'000'000'000;

// The bits of a power times those of its exponent, each of which asks for one or two products. At
// this bound they take about half a minute, be it the power or the exponent that is wide.
constexpr std::uint64_t kMaxPowerWork = 10'000'000'000;

// Nothing is wider than the widest literal, so no operator meets an operand beyond its limit;
// division has the lowest.
static_assert(TARN_MAX_LITERAL_WIDTH <= 10'000'000);

/** Whether base ** exponent, as wide as the base, is calculated in bearable time. Even bases,
 *  unknown exponents and those below zero make no work: their powers are found at once. */
bool IsPowerFeasible(const Value& base, const Value& exponent) {
    const std::size_t maxExponentBits = kMaxPowerWork / static_cast<std::size_t>(base.Width());
    const auto exponentWidth = static_cast<std::size_t>(exponent.Width());
    const bool isOdd = (base.Words()->aval & 1U) != 0;
    if (exponentWidth <= maxExponentBits || !isOdd) return true;
    const std::string_view bits = tarn_ConvertToBin(exponent.Width(), exponent.Words(), 0);
    const bool isNegative = exponent.GetType().isSigned && bits.size() == exponentWidth;
    const bool isKnown = bits.find_first_not_of("01") == std::string_view::npos;
    return bits.size() <= maxExponentBits || isNegative || !isKnown;
}

/** The operands that share a type, as places in their operator's row of operands. */
struct SharedOperands {
    std::size_t begin, end;
};

SharedOperands SharedOperandsOf(const OperatorRow& row) {
    const auto count = static_cast<std::size_t>(row.operandCount);
    switch (row.sizing) {
        case Sizing::kAll:
        case Sizing::kCompared:
            return {0, count};
        case Sizing::kAllButFirst:
            return {1, count};
        case Sizing::kAllButLast:
            return {0, count - 1};
        case Sizing::kNone:
            break;
    }
    return {0, 0};
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
            const auto determine = [&](const auto& content) { return OwnType(content, index); };
            types_[index] = std::visit(determine, tree_[index].content);
        }
    }

    /** A literal's type is known when its value is made. */
    Type OwnType(const Literal& literal, NodeIndex /*index*/) {
        bool isCut = false;
        literals_.emplace_back(literal, isCut);
        if (isCut) cutLiterals_.push_back(literal.spelling);
        const Type& type = literals_.back().GetType();
        ClaimBits(type.width, literal.position);
        return type;
    }

    Type OwnType(const OperatorNode& node, NodeIndex index) const {
        const Sizing sizing = node.row->sizing;
        const bool isBit = sizing == Sizing::kCompared || sizing == Sizing::kNone;
        return isBit ? kBit : SharedType(*node.row, index);
    }

    /** The type that the operands of an operator share, from what each of them is by itself. */
    Type SharedType(const OperatorRow& row, NodeIndex index) const {
        const auto operands = OperandsOf(tree_, index, row.operandCount);
        const auto [begin, end] = SharedOperandsOf(row);
        Type shared = types_[operands[begin]];
        for (std::size_t place = begin + 1; place < end; ++place) {
            const Type& type = types_[operands[place]];
            shared = {std::max(shared.width, type.width), shared.isSigned && type.isSigned};
        }
        return shared;
    }

    void PassTypesDown() {
        for (NodeIndex index = tree_.size(); index-- > 0;) {
            const auto* const node = std::get_if<OperatorNode>(&tree_[index].content);
            if (node == nullptr) continue;
            const OperatorRow& row = *node->row;
            const bool isCompared = row.sizing == Sizing::kCompared;
            const Type shared = isCompared ? SharedType(row, index) : types_[index];
            const auto operands = OperandsOf(tree_, index, row.operandCount);
            const auto [begin, end] = SharedOperandsOf(row);
            for (std::size_t place = begin; place < end; ++place) {
                types_[operands[place]] = shared;
            }
        }
    }

    /** Postorder is the order of a stack machine: an operator finds its operands on top. */
    void Calculate() {
        nextLiteral_ = literals_.begin();
        for (NodeIndex index = 0; index < tree_.size(); ++index) {
            const Node& node = tree_[index];
            const auto execute = [&](const auto& content) { Execute(content, node.position); };
            std::visit(execute, node.content);
            // What has a type of its own is extended to that of its context.
            ClaimBits(types_[index].width - stack_.back().Width(), node.position);
            stack_.back().Convert(types_[index]);
        }
    }

    void Execute(const Literal& /*literal*/, std::size_t /*position*/) {
        stack_.push_back(std::move(*nextLiteral_++));
    }

    /** The first operand becomes the result. */
    void Execute(const OperatorNode& node, std::size_t position) {
        const auto operandCount = static_cast<std::size_t>(node.row->operandCount);
        Value* const operands = &stack_[stack_.size() - operandCount];
        for (std::size_t place = 0; place < operandCount; ++place) {
            liveBits_ -= operands[place].Width();
        }
        const Operator op = node.row->op;
        if (op == Operator::kPower && !IsPowerFeasible(operands[0], operands[1])) {
            throw ExpressionError(position, "this power would take too long to calculate");
        }
        if (operandCount == 1) {
            ApplyUnary(op, operands[0]);
        } else if (operandCount == 2) {
            ApplyBinary(op, operands[0], operands[1]);
        } else {
            ApplyConditional(operands[0], operands[1], operands[2]);
        }
        stack_.erase(stack_.end() - node.row->operandCount + 1, stack_.end());
        liveBits_ += stack_.back().Width();
    }

    void ClaimBits(int bitCount, std::size_t position) {
        liveBits_ += bitCount;
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
    std::int64_t liveBits_ = 0;
};

}  // namespace

Evaluation Evaluate(const Tree& tree) {
    return Evaluator(tree).Run();
}

}  // namespace tarncalc
