// Statements as they are written.
#ifndef TARNCALC_STATEMENT_H
#define TARNCALC_STATEMENT_H

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "source.h"
#include "tree.h"

namespace tarncalc {

/** [left:right] of a declaration. */
struct RangeText {
    Place place;
    Expression left, right;
};

/** What a declaration says of one name. */
struct Declarator {
    Place place;
    std::string_view name;
    std::optional<RangeText> elements;  // of a memory
    std::optional<Expression> initial;
};

struct Declaration {
    enum class Kind { kReg, kInteger };

    Kind kind;
    bool isSigned;
    std::optional<RangeText> range;
    std::vector<Declarator> declarators;
};

struct Assignment {
    Expression target, value;
};

/** An expression stands for the output of its value. */
using Statement = std::variant<Declaration, Assignment, Expression>;

}  // namespace tarncalc

#endif
