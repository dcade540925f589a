#include "program.h"

#include <algorithm>
#include <iterator>

namespace tarn::test {

namespace {

constexpr int kMaxDepth = 4;
constexpr int kMaxDivisorWidth = 40;

constexpr const char* kUnary[] = {"-", "~", "!", "&", "~&", "|", "~|", "^", "~^", "^~"};
constexpr const char* kBinary[] = {"+",  "-", "*",  "&", "|",  "^",   "~^",  "&&",  "||", "==",
                                   "!=", "<", "<=", ">", ">=", "===", "!==", "==?", "!=?"};
constexpr const char* kShifts[] = {"<<", ">>", "<<<"};
constexpr const char* kRealBinary[] = {"+", "-", "*"};
constexpr const char* kRealComparisons[] = {"<", "<=", ">", ">=", "==", "!="};
constexpr const char* kConversions[] = {"%b", "%0b", "%0d"};
constexpr const char* kVariableConversions[] = {"%o", "%0o", "%h", "%0h", "%s", "%50d", "%050d"};
constexpr const char* kRealConversions[] = {"%g", "%e", "%f", "%0.3f", "%12.4e"};
constexpr int kWidths[] = {1, 2, 3, 4, 7, 8, 12, 16, 24, 31, 32, 33, 40, 63, 64, 65, 96, 100, 128};

std::string Parenthesised(const std::string& text) {
    return "(" + text + ")";
}

}  // namespace

std::string Variable::Declaration() const {
    std::string text = isSigned ? "reg signed " : "reg ";
    text += "[" + std::to_string(left) + ":" + std::to_string(right) + "] " + name;
    if (wordCount > 0) text += " [0:" + std::to_string(wordCount - 1) + "]";
    return text;
}

Program::Program(std::uint64_t seed, int number, int statementCount)
    : random_(seed), suffix_("_" + std::to_string(number)) {
    Declare();
    for (int i = 0; i < statementCount; ++i) {
        const int kind = Below(10);
        if (kind < 4) {
            Add(Assignment());
        } else if (kind < 9) {
            Add(Display());
        } else {
            Add(RealStatement());
        }
    }
    DisplayAll();
}

int Program::Below(int bound) {
    return static_cast<int>(random_() % static_cast<std::uint64_t>(bound));
}

std::string Program::Name(const char* prefix, std::size_t index) const {
    return prefix + std::to_string(index) + suffix_;
}

void Program::DeclareVector(int width) {
    const int low = OneIn(3) ? Below(20) - 10 : 0;
    const int high = low + width - 1;
    const bool ascends = OneIn(4);
    variables_.push_back(
        {Name("v", variables_.size()), ascends ? low : high, ascends ? high : low, OneIn(2)});
}

void Program::Declare() {
    for (int i = 0; i < 5; ++i)
        DeclareVector(Pick(kWidths));
    DeclareVector(1 + Below(kMaxDivisorWidth));
    vectorCount_ = variables_.size();
    memory_ = {Name("m", 0), Pick(kWidths) - 1, 0, OneIn(2), 4};
    for (const Variable& variable : variables_)
        declarations_.push_back(variable.Declaration());
    declarations_.push_back(memory_.Declaration());
    variables_.push_back({Name("i", 0), 31, 0, true});
    declarations_.push_back("integer " + variables_.back().name);
    for (std::size_t i = 0; i < 2; ++i) {
        reals_.push_back(Name("r", i));
        declarations_.push_back("real " + reals_.back());
    }
    for (const Variable& variable : variables_) {
        Add(variable.name + " = " + Literal(variable.Width(), !OneIn(3)));
    }
    Add(variables_.back().name + " = " + std::to_string(Below(9)));
    Add(reals_[0] + " = " + std::to_string(Below(1000)) + "." + std::to_string(Below(1000)));
    Add(reals_[1] + " = " + std::to_string(1 + Below(9)) + ".5e-" + std::to_string(Below(5)));
}

std::string Program::Digits(int width, bool isKnown) {
    const int kind = Below(5);
    std::string digits(static_cast<std::size_t>(width), kind == 0 ? '1' : '0');
    for (char& digit : digits) {
        if (kind > 2) digit = "01"[Below(2)];
        if (!isKnown && OneIn(6)) digit = "xz"[Below(2)];
    }
    return digits;
}

std::string Program::Literal(int width, bool isKnown) {
    if (isKnown && OneIn(4)) {
        return std::to_string(std::max(width, 7)) + (OneIn(2) ? "'sd" : "'d") +
               std::to_string(Below(100));
    }
    return std::to_string(width) + (OneIn(2) ? "'sb" : "'b") + Digits(width, isKnown);
}

/** An index that is known only when the program runs. */
std::string Program::Index() {
    const std::string& integer = variables_.back().name;
    return OneIn(2) ? integer : Parenthesised(integer + " + " + std::to_string(Below(50) - 5));
}

/** Some bits of a variable; `whole` is how it is written. */
std::string Program::Select(const Variable& variable, const std::string& whole) {
    const int width = variable.Width();
    const std::string fieldWidth = std::to_string(1 + Below(width));
    switch (Below(4)) {
        case 0:
            return whole + "[" + Index() + "]";
        case 1:
            return whole + "[" + Index() + " +: " + fieldWidth + "]";
        case 2:
            return whole + "[" + Index() + " -: " + fieldWidth + "]";
        default:
            return ConstantSelect(variable, whole);
    }
}

std::string Program::ConstantSelect(const Variable& variable, const std::string& whole) {
    const int first = Below(variable.Width());
    const int second = first + Below(variable.Width() - first);
    const int step = variable.left < variable.right ? 1 : -1;
    return whole + "[" + std::to_string(variable.left + step * first) + ":" +
           std::to_string(variable.left + step * second) + "]";
}

/** The whole word at any index. */
std::string Program::MemoryWord() {
    const bool isConstant = OneIn(2);
    return memory_.name + "[" + (isConstant ? std::to_string(Below(memory_.wordCount)) : Index()) +
           "]";
}

std::string Program::Primary() {
    switch (Below(6)) {
        case 0:
            return Literal(Pick(kWidths), !OneIn(3));
        case 1:
            return MemoryWord();
        case 2: {
            const Variable& variable =
                variables_[static_cast<std::size_t>(Below(static_cast<int>(vectorCount_)))];
            return Select(variable, variable.name);
        }
        default:
            return Pick(variables_).name;
    }
}

std::string Program::Unary(int depth) {
    const std::string operand = Parenthesised(Vector(depth - 1));
    switch (Below(8)) {
        case 0:
            return "$signed" + operand;
        case 1:
            return "$unsigned" + operand;
        default:
            return Parenthesised(Pick(kUnary) + operand);
    }
}

std::string Program::Amount() {
    return OneIn(2) ? std::to_string(Below(70)) : Pick(variables_).name;
}

/** Parentheses are left out now and then, where any grouping will do. */
std::string Program::Binary(int depth) {
    const std::string left = Vector(depth - 1);
    switch (Below(8)) {
        case 0:
            return Parenthesised(left + (OneIn(2) ? " / " : " % ") +
                                 variables_[vectorCount_ - 1].name);
        case 1:
            if (OneIn(3)) {
                return Parenthesised(Parenthesised(left + " + 2'sd0") + " >>> " + Amount());
            }
            return Parenthesised(Parenthesised(left) + " " + Pick(kShifts) + " " + Amount());
        case 2:
            return Parenthesised(Parenthesised(left) + " ** " + std::to_string(Below(6)));
        default: {
            const std::string text = left + " " + Pick(kBinary) + " " + Vector(depth - 1);
            return OneIn(4) ? text : Parenthesised(text);
        }
    }
}

std::string Program::Conditional(int depth) {
    const std::string condition = Vector(depth - 1);
    const std::string ifTrue = Vector(depth - 1);
    const std::string ifFalse = Vector(depth - 1);
    if (OneIn(2)) {
        return Parenthesised(Parenthesised(condition) + " === 1'b1 ? " + ifTrue + " : " + ifFalse);
    }
    return Parenthesised(Parenthesised(condition) + " ? ~(~" + Parenthesised(ifTrue) + ") : ~(~" +
                         Parenthesised(ifFalse) + ")");
}

std::string Program::Concatenation(int depth) {
    if (OneIn(3)) return "{" + std::to_string(1 + Below(3)) + "{" + Vector(depth - 1) + "}}";
    std::string text = "{" + Vector(depth - 1);
    for (int count = Below(3); count > 0; --count)
        text += ", " + Primary();
    return text + "}";
}

std::string Program::Vector(int depth) {
    if (depth <= 0 || OneIn(5)) return Primary();
    const int kind = Below(10);
    if (kind < 2) return Unary(depth);
    if (kind < 7) return Binary(depth);
    return kind < 8 ? Conditional(depth) : Concatenation(depth);
}

std::string Program::Real(int depth) {
    if (depth <= 0 || OneIn(3)) {
        return OneIn(3) ? std::to_string(Below(50)) + ".25" : Pick(reals_);
    }
    return Parenthesised(Real(depth - 1) + " " + Pick(kRealBinary) + " " + Real(depth - 1));
}

std::string Program::Target() {
    const Variable& variable =
        variables_[static_cast<std::size_t>(Below(static_cast<int>(vectorCount_)))];
    switch (Below(6)) {
        case 0:
            return MemoryWord();
        case 1: {
            const std::string word = std::to_string(Below(memory_.wordCount));
            return ConstantSelect(memory_, memory_.name + "[" + word + "]");
        }
        case 2:
            return "{" + Pick(variables_).name + ", " + Select(variable, variable.name) + "}";
        case 3:
            return Select(variable, variable.name);
        default:
            return variable.name;
    }
}

std::string Program::Assignment() {
    return Target() + " = " + Vector(kMaxDepth);
}

std::string Program::RealStatement() {
    if (OneIn(2)) return Pick(reals_) + " = " + Real(2);
    return memory_.name + "[0] = " + Real(1) + " " + Pick(kRealComparisons) + " " + Real(1);
}

std::string Program::Display() {
    const std::string label = "\"" + suffix_.substr(1) + "." + std::to_string(statements_.size());
    if (OneIn(8))
        return "$display(" + label + " " + Pick(kRealConversions) + "\", " + Real(2) + ")";
    if (OneIn(4)) {
        return "$display(" + label + " " + Pick(kVariableConversions) + "\", " +
               Pick(variables_).name + ")";
    }
    if (OneIn(6)) return "$display(" + label + " %d\", $unsigned(" + Vector(kMaxDepth) + "))";
    return "$display(" + label + " " + Pick(kConversions) + "\", " + Vector(kMaxDepth) + ")";
}

void Program::DisplayAll() {
    const std::string label = "$display(\"" + suffix_.substr(1) + " %b\", ";
    for (const Variable& variable : variables_)
        Add(label + variable.name + ")");
    for (int word = 0; word < memory_.wordCount; ++word) {
        Add(label + memory_.name + "[" + std::to_string(word) + "])");
    }
}

}  // namespace tarn::test
