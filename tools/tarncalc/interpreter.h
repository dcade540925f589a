// Statements carried out.
#ifndef TARNCALC_INTERPRETER_H
#define TARNCALC_INTERPRETER_H

#include <iosfwd>
#include <string_view>
#include <vector>

#include "evaluate.h"
#include "radix.h"
#include "statement.h"
#include "variable.h"

namespace tarncalc {

class Interpreter {
  public:
    /** Values are written to `output`, those of expressions in the radix. */
    Interpreter(const Radix& radix, std::ostream& output) : radix_(radix), output_(output) {}

    /** Returns the literals of the statement that lose bits to their width. Throws InputError. */
    std::vector<std::string_view> Execute(const Statement& statement);

  private:
    void Execute(const Declaration& declaration, Context& context);
    void Execute(const Assignment& assignment, Context& context);
    void Execute(const TaskCall& call, Context& context);
    void Execute(const Expression& expression, Context& context);

    const Radix& radix_;
    std::ostream& output_;
    Scope scope_;
};

}  // namespace tarncalc

#endif
