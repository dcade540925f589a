// The operators of expressions: their spellings, and how tightly they bind.
#ifndef TARNCALC_OPERATORS_H
#define TARNCALC_OPERATORS_H

#include <string_view>

namespace tarncalc {

enum class UnaryOperator { kPlus, kMinus };
enum class BinaryOperator { kAdd, kSubtract };

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
    {"+", BinaryOperator::kAdd, 10},
    {"-", BinaryOperator::kSubtract, 10},
};

}  // namespace tarncalc

#endif
