#include "operations.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace tarncalc {

namespace {

/** The exports of an operator for operands of one type, signed or unsigned. */
template <typename Function>
struct Twins {
    Operator op;
    Function* forSigned;
    Function* forUnsigned;
};

using Unary = void(int, VectorWord*, int, const VectorWord*);
using Binary = void(int, VectorWord*, int, const VectorWord*, int, const VectorWord*);
using Comparison = int(int, const VectorWord*, int, const VectorWord*);
using Reduction = int(int, const VectorWord*);

constexpr Twins<Unary> kUnary[] = {
    {Operator::kPlus, tarn_SignedPlus, tarn_UnsignedPlus},
    {Operator::kMinus, tarn_SignedMinus, tarn_UnsignedMinus},
    {Operator::kNot, tarn_SignedBitwiseNOT, tarn_UnsignedBitwiseNOT},
};

constexpr Twins<Binary> kBinary[] = {
    {Operator::kMultiply, tarn_SignedMul, tarn_UnsignedMul},
    {Operator::kDivide, tarn_SignedDiv, tarn_UnsignedDiv},
    {Operator::kModulo, tarn_SignedMod, tarn_UnsignedMod},
    {Operator::kAdd, tarn_SignedAdd, tarn_UnsignedAdd},
    {Operator::kSubtract, tarn_SignedSub, tarn_UnsignedSub},
    {Operator::kAnd, tarn_SignedBitwiseAND, tarn_UnsignedBitwiseAND},
    {Operator::kXor, tarn_SignedBitwiseXOR, tarn_UnsignedBitwiseXOR},
    {Operator::kXnor, tarn_SignedBitwiseXNOR, tarn_UnsignedBitwiseXNOR},
    {Operator::kOr, tarn_SignedBitwiseOR, tarn_UnsignedBitwiseOR},
};

/** By the sign of the exponent, one pair each for signed and unsigned bases. */
constexpr Twins<Binary> kPowerOfSigned{Operator::kPower, tarn_SignedSPower, tarn_SignedUPower};
constexpr Twins<Binary> kPowerOfUnsigned{Operator::kPower, tarn_UnsignedSPower,
                                         tarn_UnsignedUPower};

constexpr Twins<Comparison> kEquality[] = {
    {Operator::kEqual, tarn_SignedEq, tarn_UnsignedEq},
    {Operator::kNotEqual, tarn_SignedNEq, tarn_UnsignedNEq},
    {Operator::kCaseEqual, tarn_SignedCaseEq, tarn_UnsignedCaseEq},
    {Operator::kCaseNotEqual, tarn_SignedCaseNEq, tarn_UnsignedCaseNEq},
    {Operator::kWildEqual, tarn_SignedWildEq, tarn_UnsignedWildEq},
    {Operator::kWildNotEqual, tarn_SignedWildNEq, tarn_UnsignedWildNEq},
};

struct ReductionRow {
    Operator op;
    Reduction* function;
    bool isInverted;
};

constexpr ReductionRow kReductions[] = {
    {Operator::kReduceAnd, tarn_ReductionAND, false},
    {Operator::kReduceNand, tarn_ReductionAND, true},
    {Operator::kReduceOr, tarn_ReductionOR, false},
    {Operator::kReduceNor, tarn_ReductionOR, true},
    {Operator::kReduceXor, tarn_ReductionXOR, false},
    {Operator::kReduceXnor, tarn_ReductionXOR, true},
};

template <typename Row, std::size_t kCount>
const Row* Find(const Row (&rows)[kCount], Operator op) {
    const Row* const found = std::find_if(std::begin(rows), std::end(rows),
                                          [op](const Row& row) { return row.op == op; });
    return found == std::end(rows) ? nullptr : found;
}

template <typename Function>
Function* Choose(const Twins<Function>& twins, bool isSigned) {
    return isSigned ? twins.forSigned : twins.forUnsigned;
}

void Write(Binary* function, Value& left, const Value& right) {
    function(left.Width(), left.Words(), left.Width(), left.Words(), right.Width(), right.Words());
    left.RestoreTopWord();
}

LogicCode TruthOf(const Value& value) {
    if (value.IsReal()) return LogicCode{value.Real() != 0};
    return tarn_LogicalValue(value.Width(), value.Words());
}

/** What an order of two values (equal, less, greater, unknown) makes of a relation. */
LogicCode OutcomeOf(Operator op, int relation) {
    if (relation == TARN_RELATION_UNKNOWN) return TARN_LOGIC_X;
    const bool isLess = relation == TARN_RELATION_LESS;
    const bool isGreater = relation == TARN_RELATION_GREATER;
    switch (op) {
        case Operator::kLess:
            return LogicCode{isLess};
        case Operator::kLessEqual:
            return LogicCode{!isGreater};
        case Operator::kGreater:
            return LogicCode{isGreater};
        default:
            return LogicCode{!isLess};
    }
}

LogicCode Compare(Operator op, const Value& left, const Value& right) {
    const bool isSigned = left.GetType().isSigned;
    const Twins<Comparison>* const row = Find(kEquality, op);
    Comparison* const function = row != nullptr
                                     ? Choose(*row, isSigned)
                                     : (isSigned ? tarn_SignedRelation : tarn_UnsignedRelation);
    const int result = function(left.Width(), left.Words(), right.Width(), right.Words());
    return row != nullptr ? result : OutcomeOf(op, result);
}

LogicCode CompareReals(Operator op, double left, double right) {
    switch (op) {
        case Operator::kLess:
            return LogicCode{left < right};
        case Operator::kLessEqual:
            return LogicCode{left <= right};
        case Operator::kGreater:
            return LogicCode{left > right};
        case Operator::kGreaterEqual:
            return LogicCode{left >= right};
        case Operator::kEqual:
            return LogicCode{left == right};
        default:
            return LogicCode{left != right};
    }
}

/** An operator one of whose operands at least is a real. */
Value CalculateReals(Operator op, double left, double right) {
    switch (op) {
        case Operator::kAdd:
            return Value(left + right);
        case Operator::kSubtract:
            return Value(left - right);
        case Operator::kMultiply:
            return Value(left * right);
        case Operator::kDivide:
            return Value(left / right);
        case Operator::kPower: {
            double power = 0;
            tarn_PowerR(&power, left, right);
            return Value(power);
        }
        default:
            return Value::OfCode(CompareReals(op, left, right));
    }
}

void Shift(Operator op, Value& operand, Value& amount) {
    // An amount has no sign, whatever its own type.
    amount.Convert({amount.Width(), false});
    const int scan = tarn_ScanShiftCount(amount.Width(), amount.Words());
    if (scan == TARN_LOGIC_X) return operand.SetUnknown();
    const std::uint32_t places = scan == 0 ? amount.Words()->aval : UINT32_MAX;
    const Type type = operand.GetType();
    const bool isArithmetic = op == Operator::kArithmeticShiftRight && type.isSigned;
    // A logical shift to the right moves in what stands above the width.
    if (!isArithmetic) operand.Convert({type.width, false});
    const auto shift = op == Operator::kShiftLeft ? tarn_LogicalShiftLeft
                       : isArithmetic             ? tarn_ArithmeticalShiftRight
                                                  : tarn_LogicalShiftRight;
    shift(type.width, operand.Words(), type.width, operand.Words(), places);
    operand.Convert(type);
}

/** The gates of && and || on truth values. */
void Combine(Operator op, Value& left, const Value& right) {
    left = Value::OfCode(TruthOf(left));
    const Value other = Value::OfCode(TruthOf(right));
    Write(op == Operator::kLogicalAnd ? tarn_UnsignedBitwiseAND : tarn_UnsignedBitwiseOR, left,
          other);
}

/** Puts an operand into a vector that is put together from its low end, and moves behind it. */
void Put(Value& operand, Value& result, int& position) {
    const int width = operand.Width();
    if (width == 0) return;
    operand.Convert({width, false});
    const auto offset = static_cast<unsigned>(position % kWordBits);
    VectorWord* const word = result.Words() + position / kWordBits;
    if (offset == 0) {
        tarn_ConcatenateShifted(width, word, operand.Words());
    } else {
        tarn_Concatenate(static_cast<int>(offset) + width, word, width, operand.Words(), offset);
    }
    position += width;
}

}  // namespace

void ApplyUnary(Operator op, Value& operand) {
    if (op == Operator::kMinus && operand.IsReal()) operand = Value(-operand.Real());
    if (operand.IsReal() && op != Operator::kLogicalNot) return;
    const auto apply = [&operand](const Twins<Unary>& twins) {
        const int width = operand.Width();
        Choose(twins, operand.GetType().isSigned)(width, operand.Words(), width, operand.Words());
        operand.RestoreTopWord();
    };
    if (const Twins<Unary>* const twins = Find(kUnary, op)) return apply(*twins);
    const ReductionRow* const row = Find(kReductions, op);
    operand = Value::OfCode(row == nullptr ? TruthOf(operand)
                                           : row->function(operand.Width(), operand.Words()));
    if (row == nullptr || row->isInverted) apply(*Find(kUnary, Operator::kNot));
}

void ApplyBinary(Operator op, Value& left, Value& right) {
    const bool isLogical = op == Operator::kLogicalAnd || op == Operator::kLogicalOr;
    if (isLogical) return Combine(op, left, right);
    if (left.IsReal() || right.IsReal()) {
        left = CalculateReals(op, left.Real(), right.Real());
        return;
    }
    const bool isSigned = left.GetType().isSigned;
    if (const Twins<Binary>* const twins = Find(kBinary, op)) {
        Write(Choose(*twins, isSigned), left, right);
        return;
    }
    switch (op) {
        case Operator::kPower:
            Write(Choose(isSigned ? kPowerOfSigned : kPowerOfUnsigned, right.GetType().isSigned),
                  left, right);
            break;
        case Operator::kShiftLeft:
        case Operator::kShiftRight:
        case Operator::kArithmeticShiftRight:
            Shift(op, left, right);
            break;
        default:
            left = Value::OfCode(Compare(op, left, right));
    }
}

void ApplyConditional(Value& condition, Value& left, Value& right) {
    const LogicCode truth = TruthOf(condition);
    if (left.IsReal() || right.IsReal()) {
        const Value& chosen = truth == TARN_LOGIC_0 ? right : left;
        condition = Value(truth == TARN_LOGIC_X ? 0 : chosen.Real());
        return;
    }
    if (truth == TARN_LOGIC_X) {
        const bool isSigned = left.GetType().isSigned;
        Write(isSigned ? tarn_SignedConditionalMix : tarn_UnsignedConditionalMix, left, right);
    }
    condition = std::move(truth == TARN_LOGIC_0 ? right : left);
}

Value Concatenate(std::span<Value> operands) {
    int width = 0;
    for (const Value& operand : operands) {
        width += operand.Width();
    }
    Value result(Type{width, false});
    int position = 0;
    for (std::size_t place = operands.size(); place-- > 0;) {
        Put(operands[place], result, position);
    }
    return result;
}

Value Replicate(Value& operand, int count) {
    Value result(Type{operand.Width() * count, false});
    int position = 0;
    for (int copy = 0; copy < count; ++copy) {
        Put(operand, result, position);
    }
    return result;
}

}  // namespace tarncalc
