// The operators of expressions: one table of what the parser and the rules of types need to know.
#ifndef TARNCALC_OPERATORS_H
#define TARNCALC_OPERATORS_H

#include <cstddef>
#include <string_view>

namespace tarncalc {

enum class Operator {
    kPlus,
    kMinus,
    kLogicalNot,
    kNot,
    kReduceAnd,
    kReduceNand,
    kReduceOr,
    kReduceNor,
    kReduceXor,
    kReduceXnor,
    kPower,
    kMultiply,
    kDivide,
    kModulo,
    kAdd,
    kSubtract,
    kShiftLeft,
    kShiftRight,
    kArithmeticShiftRight,
    kLess,
    kLessEqual,
    kGreater,
    kGreaterEqual,
    kEqual,
    kNotEqual,
    kCaseEqual,
    kCaseNotEqual,
    kWildEqual,
    kWildNotEqual,
    kAnd,
    kXor,
    kXnor,
    kOr,
    kLogicalAnd,
    kLogicalOr,
    kConditional,
};

/** Which operands share a type with the operator's result, after IEEE 1364-2005, 5.4 and 5.5. Every
 *  other operand determines its own. */
enum class Sizing {
    kAll,          // all of them
    kAllButFirst,  // the branches, not the condition
    kAllButLast,   // what is shifted or raised, not by how much
    kCompared,     // the operands share a type among themselves; the result is one unsigned bit
    kNone,         // the result is one unsigned bit
};

struct OperatorRow {
    std::string_view spelling;
    Operator op;
    std::size_t operandCount;
    int precedence;
    Sizing sizing;
    bool allowsReals = false;
};

inline constexpr int kUnaryPrecedence = 13;
inline constexpr int kConditionalPrecedence = 1;

/** The precedence counts the rows of IEEE 1364-2005, table 5-4, from its foot: higher binds
 *  tighter. Operators of one precedence group from the left, but ?: from the right. Table 5-3 tells
 *  which operators allow reals. */
inline constexpr OperatorRow kOperators[] = {
    {"+", Operator::kPlus, 1, kUnaryPrecedence, Sizing::kAll, true},
    {"-", Operator::kMinus, 1, kUnaryPrecedence, Sizing::kAll, true},
    {"!", Operator::kLogicalNot, 1, kUnaryPrecedence, Sizing::kNone, true},
    {"~", Operator::kNot, 1, kUnaryPrecedence, Sizing::kAll},
    {"&", Operator::kReduceAnd, 1, kUnaryPrecedence, Sizing::kNone},
    {"~&", Operator::kReduceNand, 1, kUnaryPrecedence, Sizing::kNone},
    {"|", Operator::kReduceOr, 1, kUnaryPrecedence, Sizing::kNone},
    {"~|", Operator::kReduceNor, 1, kUnaryPrecedence, Sizing::kNone},
    {"^", Operator::kReduceXor, 1, kUnaryPrecedence, Sizing::kNone},
    {"~^", Operator::kReduceXnor, 1, kUnaryPrecedence, Sizing::kNone},
    {"^~", Operator::kReduceXnor, 1, kUnaryPrecedence, Sizing::kNone},
    {"**", Operator::kPower, 2, 12, Sizing::kAllButLast, true},
    {"*", Operator::kMultiply, 2, 11, Sizing::kAll, true},
    {"/", Operator::kDivide, 2, 11, Sizing::kAll, true},
    {"%", Operator::kModulo, 2, 11, Sizing::kAll},
    {"+", Operator::kAdd, 2, 10, Sizing::kAll, true},
    {"-", Operator::kSubtract, 2, 10, Sizing::kAll, true},
    {"<<", Operator::kShiftLeft, 2, 9, Sizing::kAllButLast},
    {"<<<", Operator::kShiftLeft, 2, 9, Sizing::kAllButLast},
    {">>", Operator::kShiftRight, 2, 9, Sizing::kAllButLast},
    {">>>", Operator::kArithmeticShiftRight, 2, 9, Sizing::kAllButLast},
    {"<", Operator::kLess, 2, 8, Sizing::kCompared, true},
    {"<=", Operator::kLessEqual, 2, 8, Sizing::kCompared, true},
    {">", Operator::kGreater, 2, 8, Sizing::kCompared, true},
    {">=", Operator::kGreaterEqual, 2, 8, Sizing::kCompared, true},
    {"==", Operator::kEqual, 2, 7, Sizing::kCompared, true},
    {"!=", Operator::kNotEqual, 2, 7, Sizing::kCompared, true},
    {"===", Operator::kCaseEqual, 2, 7, Sizing::kCompared},
    {"!==", Operator::kCaseNotEqual, 2, 7, Sizing::kCompared},
    {"==?", Operator::kWildEqual, 2, 7, Sizing::kCompared},
    {"!=?", Operator::kWildNotEqual, 2, 7, Sizing::kCompared},
    {"&", Operator::kAnd, 2, 6, Sizing::kAll},
    {"^", Operator::kXor, 2, 5, Sizing::kAll},
    {"~^", Operator::kXnor, 2, 5, Sizing::kAll},
    {"^~", Operator::kXnor, 2, 5, Sizing::kAll},
    {"|", Operator::kOr, 2, 4, Sizing::kAll},
    {"&&", Operator::kLogicalAnd, 2, 3, Sizing::kNone, true},
    {"||", Operator::kLogicalOr, 2, 2, Sizing::kNone, true},
    {"?", Operator::kConditional, 3, kConditionalPrecedence, Sizing::kAllButFirst, true},
};

inline constexpr std::size_t kMaxOperands = 3;

/** What stands between the operands and is no operator of its own. */
inline constexpr std::string_view kPunctuation[] = {"(", ")",  "[",  "]", "{", "}",
                                                    ":", "+:", "-:", ",", ";", "="};

}  // namespace tarncalc

#endif
