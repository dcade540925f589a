// The widths and signs of an expression's values.
#ifndef TARNCALC_TYPING_H
#define TARNCALC_TYPING_H

#include <functional>
#include <span>
#include <vector>

#include "tree.h"
#include "value.h"

namespace tarncalc {

/** The type of each node's value by the rules of IEEE 1364-2005, 5.4 and 5.5: types are determined
 *  from the operands up, then the root's type goes down to every operand whose size its context
 *  determines. The root is at least as wide as `contextWidth`. `leafType` gives the types of
 *  literals and references by themselves; `constants` are those of the tree's expression. Throws
 *  InputError. */
std::vector<Type> DetermineTypes(TreeView tree, std::span<const int> constants,
                                 const std::function<Type(NodeIndex)>& leafType, int contextWidth);

}  // namespace tarncalc

#endif
