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
    enum class Kind { kReg, kInteger, kReal };

    Kind kind = Kind::kReg;
    bool isSigned = false;
    std::optional<RangeText> range;
    std::vector<Declarator> declarators;
};

struct Assignment {
    Expression target, value;
};

struct TaskRow;

/** A call of a task; an argument that is left out stands for a space. */
struct TaskCall {
    Place place;
    const TaskRow* row;
    std::vector<std::optional<Expression>> arguments;
};

/** An expression stands for the output of its value. */
using Statement = std::variant<Declaration, Assignment, TaskCall, Expression>;

}  // namespace tarncalc

#endif
