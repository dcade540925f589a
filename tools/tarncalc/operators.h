// The operators of expressions: their spellings, and how tightly they bind.
#ifndef TARNCALC_OPERATORS_H
#define TARNCALC_OPERATORS_H

#include <string_view>

namespace tarncalc {

enum class UnaryOperator { kPlus, kMinus };
enum class BinaryOperator { kPower, kMultiply, kDivide, kModulo, kAdd, kSubtract };

struct UnarySpelling {
    std::string_view spelling;
    UnaryOperator op;
};

/** Every binary operator groups from left to right. The precedence counts the rows of IEEE
 *  1364-2005, table 5-4, from its foot (the conditional operator is 1): higher binds tighter. */
struct BinarySpelling {
    std::string_view spelling;
    BinaryOperator op;
    int precedence;
};

inline constexpr UnarySpelling kUnaryOperators[] = {
    {"+", UnaryOperator::kPlus},
    {"-", UnaryOperator::kMinus},
};

inline constexpr BinarySpelling kBinaryOperators[] = {
    {"**", BinaryOperator::kPower, 12}, {"*", BinaryOperator::kMultiply, 11},
    {"/", BinaryOperator::kDivide, 11}, {"%", BinaryOperator::kModulo, 11},
    {"+", BinaryOperator::kAdd, 10},    {"-", BinaryOperator::kSubtract, 10},
};

/** Whether the right operand keeps its own type and has no part in the expression's (IEEE
 *  1364-2005, table 5-22 and 5.5.1). */
constexpr bool IsRightSelfDetermined(BinaryOperator op) {
    return op == BinaryOperator::kPower;
}

}  // namespace tarncalc

#endif
