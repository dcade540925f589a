#include "interpreter.h"

#include <optional>
#include <ostream>
#include <variant>

#include "assign.h"
#include "diagnostic.h"
#include "display.h"
#include "format.h"

namespace tarncalc {

namespace {

// Of the bounds of a range: far enough from those of the machine's integers.
constexpr int kMaxBound = 1'000'000'000;

Range RangeOf(const RangeText& text, Context& context) {
    const Range range{EvaluateConstant(text.left, context), EvaluateConstant(text.right, context)};
    for (const int bound : {range.left, range.right}) {
        if (bound > kMaxBound || bound < -kMaxBound) {
            throw InputError(text.place, "a bound can't be beyond " + std::to_string(kMaxBound));
        }
    }
    return range;
}

}  // namespace

std::vector<std::string_view> Interpreter::Execute(const Statement& statement) {
    std::vector<std::string_view> cutLiterals;
    Context context{scope_, cutLiterals};
    std::visit([&](const auto& kind) { Execute(kind, context); }, statement);
    return cutLiterals;
}

void Interpreter::Execute(const Declaration& declaration, Context& context) {
    constexpr Range kIntegerBits{31, 0};
    Shape shape;
    shape.isReal = declaration.kind == Declaration::Kind::kReal;
    shape.isSigned = declaration.isSigned;
    if (declaration.kind == Declaration::Kind::kInteger) {
        shape.isSigned = true;
        shape.bits = kIntegerBits;
    } else if (declaration.range) {
        shape.bits = RangeOf(*declaration.range, context);
        CheckWidth(shape.bits->Count(), declaration.range->place);
    }
    for (const Declarator& declarator : declaration.declarators) {
        shape.elements.reset();
        if (declarator.elements && shape.isReal) {
            throw InputError(declarator.elements->place, "a memory can't hold reals");
        }
        if (declarator.elements) shape.elements = RangeOf(*declarator.elements, context);
        if (declarator.initial && shape.IsMemory()) {
            throw InputError(declarator.initial->tree.back().place,
                             "a memory can't be given a value as a whole");
        }
        Variable& variable = scope_.Declare(declarator.place, declarator.name, shape);
        if (!declarator.initial) continue;
        Assign({Field{&variable, true, true, 0, 0, shape.GetType()}}, *declarator.initial, context);
    }
}

void Interpreter::Execute(const Assignment& assignment, Context& context) {
    Assign(FieldsOf(assignment.target, context), assignment.value, context);
}

void Interpreter::Execute(const TaskCall& call, Context& context) {
    output_ << TextOf(call, context);
}

void Interpreter::Execute(const Expression& expression, Context& context) {
    output_ << FormatValue(Evaluate(expression, context), radix_) << '\n';
}

}  // namespace tarncalc
