// Values written to variables.
#ifndef TARNCALC_ASSIGN_H
#define TARNCALC_ASSIGN_H

#include <vector>

#include "evaluate.h"
#include "select.h"
#include "tree.h"

namespace tarncalc {

/** The fields of a target, which is a reference or a concatenation of targets, the least
 *  significant first. Throws InputError for any other expression. */
std::vector<Field> FieldsOf(const Expression& target, Context& context);

/** Evaluates a value in the context of the fields and divides it among them. */
void Assign(const std::vector<Field>& fields, const Expression& value, Context& context);

}  // namespace tarncalc

#endif
