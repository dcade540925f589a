// Operators applied to values, by the library's exports.
#ifndef TARNCALC_OPERATIONS_H
#define TARNCALC_OPERATIONS_H

#include <span>

#include "operators.h"
#include "value.h"

namespace tarncalc {

/** The operand, which has the type that the context gave it, becomes the result. A real is only
 *  given to operators that allow reals, here and below. */
void ApplyUnary(Operator op, Value& operand);

/** The left operand becomes the result; the right one is used up. What shares a type (IEEE
 *  1364-2005, 5.4 and 5.5) has it already: both operands, or the left one alone where the right one
 *  determines its own. A vector beside a real has its own type and is converted. */
void ApplyBinary(Operator op, Value& left, Value& right);

/** condition ? left : right. The condition becomes the result; the branches, which have one type
 *  unless one is a real, are used up. */
void ApplyConditional(Value& condition, Value& left, Value& right);

/** The operands behind each other, the first on top, as one vector. They are used up. */
Value Concatenate(std::span<Value> operands);

/** The operand `count` times behind itself. It is used up. */
Value Replicate(Value& operand, int count);

}  // namespace tarncalc

#endif
