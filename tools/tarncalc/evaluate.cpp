#include "evaluate.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "diagnostic.h"
#include "operations.h"
#include "select.h"
#include "typing.h"

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
    if (base.IsReal() || exponent.IsReal()) return true;
    const std::size_t maxExponentBits = kMaxPowerWork / static_cast<std::size_t>(base.Width());
    const auto exponentWidth = static_cast<std::size_t>(exponent.Width());
    const bool isOdd = (base.Words()->aval & 1U) != 0;
    if (exponentWidth <= maxExponentBits || !isOdd) return true;
    const std::string_view bits = tarn_ConvertToBin(exponent.Width(), exponent.Words(), 0);
    const bool isNegative = exponent.GetType().isSigned && bits.size() == exponentWidth;
    const bool isKnown = bits.find_first_not_of("01") == std::string_view::npos;
    return bits.size() <= maxExponentBits || isNegative || !isKnown;
}

/** Postorder is the order of a stack machine: an operator finds its operands on top. */
class Evaluator {
  public:
    /** Without a scope the tree is a constant. */
    Evaluator(TreeView tree, std::span<const int> constants, Scope* scope,
              std::vector<std::string_view>& cutLiterals)
        : tree_(tree), constants_(constants), scope_(scope), cutLiterals_(cutLiterals) {}

    Value Run(int contextWidth) {
        const auto leafType = [this](NodeIndex index) { return LeafType(tree_[index]); };
        const std::vector<Type> types = DetermineTypes(tree_, constants_, leafType, contextWidth);
        nextLiteral_ = literals_.begin();
        for (NodeIndex index = 0; index < tree_.size(); ++index) {
            Calculate(tree_[index], types[index]);
        }
        return std::move(stack_.back());
    }

  private:
    /** A literal's type is known when its value is made. */
    Type LeafType(const Node& node) {
        const auto* const literal = std::get_if<Literal>(&node.content);
        if (literal == nullptr) {
            return SelectionOf(std::get<ReferenceNode>(node.content), node.place).type;
        }
        bool isCut = false;
        literals_.emplace_back(*literal, isCut);
        if (isCut) cutLiterals_.push_back(literal->spelling);
        const Type type = literals_.back().GetType();
        ClaimBits(type.width, node.place);
        return type;
    }

    Selection SelectionOf(const ReferenceNode& node, Place place) const {
        if (scope_ == nullptr) {
            throw InputError(
                place, "a constant is needed here, but " + InQuotes(node.name) + " is a variable");
        }
        return Select(node, place, *scope_, constants_);
    }

    /** Replaces a node's operands on the stack by its value. */
    void Calculate(const Node& node, Type type) {
        ClaimBits(type.width, node.place);
        const std::span<Value> operands = std::span(stack_).last(OperandCountOf(node));
        for (const Value& operand : operands) {
            liveBits_ -= operand.Width();
        }
        const auto valueOf = [&](const auto& content) {
            return ValueOf(content, operands, node.place);
        };
        Value value = std::visit(valueOf, node.content);
        // What has a type of its own is extended to that of its context.
        value.Convert(type);
        stack_.erase(stack_.end() - std::ssize(operands), stack_.end());
        stack_.push_back(std::move(value));
    }

    Value ValueOf(const Literal& /*literal*/, std::span<Value> /*operands*/, Place /*place*/) {
        liveBits_ -= nextLiteral_->Width();
        return std::move(*nextLiteral_++);
    }

    Value ValueOf(const ReferenceNode& node, std::span<Value> indices, Place place) const {
        return Read(Locate(SelectionOf(node, place), indices));
    }

    Value ValueOf(const OperatorNode& node, std::span<Value> operands, Place place) const {
        const Operator op = node.row->op;
        if (op == Operator::kPower && !IsPowerFeasible(operands[0], operands[1])) {
            throw InputError(place, "this power would take too long to calculate");
        }
        if (operands.size() == 1) {
            ApplyUnary(op, operands[0]);
        } else if (operands.size() == 2) {
            ApplyBinary(op, operands[0], operands[1]);
        } else {
            ApplyConditional(operands[0], operands[1], operands[2]);
        }
        return std::move(operands[0]);
    }

    Value ValueOf(const ConcatenationNode& /*node*/, std::span<Value> operands,
                  Place /*place*/) const {
        return Concatenate(operands);
    }

    Value ValueOf(const ReplicationNode& node, std::span<Value> operands, Place /*place*/) const {
        return Replicate(operands.front(), constants_[node.count]);
    }

    Value ValueOf(const CallNode& node, std::span<Value> arguments, Place /*place*/) const {
        return node.row->call(*node.row, arguments);
    }

    void ClaimBits(int bitCount, Place place) {
        liveBits_ += bitCount;
        if (liveBits_ > kMaxLiveBits) {
            throw InputError(place, "the expression needs too much storage");
        }
    }

    TreeView tree_;
    std::span<const int> constants_;
    Scope* scope_;
    std::vector<std::string_view>& cutLiterals_;
    std::vector<Value> literals_;  // in the order of the text; each moves to the stack in its turn
    std::vector<Value>::iterator nextLiteral_;
    std::vector<Value> stack_;
    std::int64_t liveBits_ = 0;
};

int EvaluateInteger(TreeView tree, std::span<const int> constants,
                    std::vector<std::string_view>& cutLiterals) {
    const Value value = Evaluator(tree, constants, nullptr, cutLiterals).Run(0);
    const std::optional<int> integer = IntegerOf(value);
    if (!integer) throw InputError(tree.back().place, "this must be a known number of 32 bits");
    return *integer;
}

}  // namespace

std::vector<int> EvaluateConstants(const Expression& expression, Context& context) {
    std::vector<int> constants;
    for (const Tree& tree : expression.constants) {
        constants.push_back(EvaluateInteger(tree, constants, context.cutLiterals));
    }
    return constants;
}

int EvaluateConstant(const Expression& expression, Context& context) {
    return EvaluateInteger(expression.tree, EvaluateConstants(expression, context),
                           context.cutLiterals);
}

Value Evaluate(TreeView tree, std::span<const int> constants, Context& context, int contextWidth) {
    return Evaluator(tree, constants, &context.scope, context.cutLiterals).Run(contextWidth);
}

}  // namespace tarncalc
