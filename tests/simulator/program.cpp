#include "program.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <string_view>
#include <vector>

namespace tarn::test {

namespace {

constexpr int kStatementCount = 20;
constexpr int kMaxDepth = 4;
constexpr int kWidths[] = {1, 2, 3, 4, 7, 8, 12, 16, 24, 31, 32, 33, 40, 63, 64, 65, 96, 100, 128};

// What may stand for a word in capitals: one of the texts, in which such words are replaced again.
// N9 is a number below 9 and @ the end of a name; LABEL, LITERAL, SELECT and FIELD are made by
// Generator. A remark names the entry of departures.v that a rule avoids.
const std::map<std::string, std::vector<std::string>, std::less<>> kRules = {
    {"STATEMENT",
     {"TARGET = VECTOR", "TARGET = VECTOR", "TARGET = VECTOR", "$display(\"LABEL FORMAT\", VECTOR)",
      "$display(\"LABEL FORMAT\", VECTOR)", "$display(\"LABEL %d\", $unsigned(VECTOR))",  // places
      "$display(\"LABEL NAMEFORMAT\", NAME)", "REALSTATEMENT"}},
    {"REALSTATEMENT",
     {"r0@ = REAL", "r1@ = REAL", "m@[0] = REAL RELATION REAL",
      "$display(\"LABEL REALFORMAT\", REAL)"}},
    {"FORMAT", {"%b", "%0b", "%0d"}},
    {"NAMEFORMAT", {"%o", "%0o", "%h", "%0h", "%s", "%50d", "%050d"}},  // digits, characters
    {"REALFORMAT", {"%g", "%e", "%f", "%0.3f", "%12.4e"}},

    {"TARGET", {"WORD", "m@[N4]FIELD", "{NAME, SELECT}", "SELECT", "REG", "REG"}},  // memory
    {"NAME", {"REG", "REG", "REG", "REG", "REG", "i@"}},
    {"REG", {"v0@", "v1@", "v2@", "v3@", "v4@", "v5@"}},
    {"WORD", {"m@[N4]", "m@[INDEX]"}},
    {"INDEX", {"i@", "i@", "(i@ + N45)", "(i@ - N6)"}},  // index

    // A vector that is nested deep enough is a PRIMARY. It has no sign + (plus).
    {"VECTOR",
     {"PRIMARY", "PRIMARY", "(UNARY(VECTOR))", "(UNARY(VECTOR))", "BINARY", "BINARY", "BINARY",
      "BINARY", "CONDITIONAL", "CONCATENATION"}},
    {"PRIMARY", {"LITERAL", "WORD", "SELECT", "NAME", "NAME", "NAME"}},
    {"UNARY", {"-", "~", "!", "&", "~&", "|", "~|", "^", "~^", "^~", "$signed", "$unsigned"}},
    {"BINARY",
     {"(VECTOR OPERATOR VECTOR)", "(VECTOR OPERATOR VECTOR)", "VECTOR OPERATOR VECTOR",
      "VECTOR OPERATOR VECTOR", "(VECTOR / v5@)", "(VECTOR % v5@)",  // quotient
      "((VECTOR) SHIFT AMOUNT)", "(((VECTOR) + 2'sd0) >>> AMOUNT)",  // ashr
      "((VECTOR) ** N6)"}},                                          // power
    {"OPERATOR",
     {"+", "-", "*", "&", "|", "^", "~^", "&&", "||", "===", "!==", "==?", "!=?", "RELATION"}},
    {"RELATION", {"==", "!=", "<", "<=", ">", ">="}},
    {"SHIFT", {"<<", ">>", "<<<"}},
    {"AMOUNT", {"N70", "NAME"}},  // amount
    {"CONDITIONAL",               // mix
     {"((VECTOR) === 1'b1 ? VECTOR : VECTOR)", "((VECTOR) ? ~(~(VECTOR)) : ~(~(VECTOR)))"}},
    {"CONCATENATION", {"{VECTOR}", "{VECTOR, PRIMARY}", "{2{VECTOR, PRIMARY}}", "{3{VECTOR}}"}},

    {"REAL",  // not of vectors: real
     {"REALTERM", "(REALTERM + REALTERM)", "(REALTERM - REALTERM)", "(REALTERM * REALTERM)",
      "((REALTERM - REALTERM) * REALTERM)"}},
    {"REALTERM", {"r0@", "r1@", "N50.25"}},
};

struct Variable {
    std::string name;
    int left;
    int right;

    int Width() const { return std::abs(left - right) + 1; }
};

class Generator {
  public:
    Generator(std::uint64_t seed, int number)
        : random_(seed), number_(std::to_string(number)), suffix_("_" + number_) {}

    Program Make();

  private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<std::uint64_t>(bound)); }
    bool OneIn(int count) { return Below(count) == 0; }

    template <class List>
    const auto& Pick(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

    std::string Range(const Variable& variable) {
        return std::string(OneIn(2) ? "signed [" : "[") + std::to_string(variable.left) + ":" +
               std::to_string(variable.right) + "] ";
    }

    void Declare(const std::string& name, int width) {
        const int low = OneIn(3) ? Below(20) - 10 : 0;
        const int high = low + width - 1;
        const bool ascends = OneIn(4);
        vectors_.push_back({name, ascends ? low : high, ascends ? high : low});
        program_.declarations += "reg " + Range(vectors_.back()) + name + ";\n";
        Add(name + " = " + Literal(width));
    }

    void Add(const std::string& text) {
        program_.statements += Expand(text) + ";\n";
        ++statementCount_;
    }

    std::string Expand(std::string_view text, int depth = kMaxDepth) {
        std::string result;
        while (!text.empty()) {
            std::size_t length = 1;
            if (text[0] == '@') {
                result += suffix_;
            } else if (text[0] < 'A' || text[0] > 'Z') {
                result += text[0];
            } else {
                length = text.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789");
                result += Replacement(text.substr(0, length), depth);
            }
            text.remove_prefix(std::min(length, text.size()));
        }
        return result;
    }

    std::string Replacement(std::string_view word, int depth) {
        if (word == "LABEL") return number_ + "." + std::to_string(statementCount_);
        if (word == "LITERAL") return Literal(Pick(kWidths));
        if (word == "SELECT") return Select(Pick(vectors_));
        if (word == "FIELD") return Field(memory_);
        if (word == "VECTOR" && depth-- <= 0) word = "PRIMARY";
        const auto rule = kRules.find(word);
        if (rule != kRules.end()) return Expand(Pick(rule->second), depth);
        return std::to_string(Below(std::stoi(std::string(word.substr(1)))));
    }

    std::string Literal(int width) {
        const bool isKnown = !OneIn(3);
        const std::string sign = OneIn(2) ? "'s" : "'";
        if (isKnown && OneIn(4))
            return std::to_string(std::max(width, 7)) + sign + "d" + std::to_string(Below(100));
        const int kind = Below(5);
        std::string digits(static_cast<std::size_t>(width), kind == 0 ? '1' : '0');
        for (char& digit : digits) {
            if (kind > 2) digit = "01"[Below(2)];
            if (!isKnown && OneIn(6)) digit = "xz"[Below(2)];
        }
        return std::to_string(width) + sign + "b" + digits;
    }

    std::string Field(const Variable& variable) {
        const int first = Below(variable.Width());
        const int second = first + Below(variable.Width() - first);
        const int step = variable.left < variable.right ? 1 : -1;
        return "[" + std::to_string(variable.left + step * first) + ":" +
               std::to_string(variable.left + step * second) + "]";
    }

    // Only an INDEX, which the simulator doesn't know beforehand, begins a field that may leave the
    // vector (field).
    std::string Select(const Variable& variable) {
        if (OneIn(4)) return variable.name + Field(variable);
        const char* const kind = Pick(std::array{"", " +: ", " -: "});
        const std::string width = *kind != 0 ? std::to_string(1 + Below(variable.Width())) : "";
        return variable.name + Expand("[INDEX") + kind + width + "]";
    }

    std::mt19937_64 random_;
    std::string number_;
    std::string suffix_;
    std::vector<Variable> vectors_;
    Variable memory_{};
    int statementCount_ = 0;
    Program program_;
};

Program Generator::Make() {
    for (int i = 0; i < 5; ++i)
        Declare("v" + std::to_string(i) + suffix_, Pick(kWidths));
    Declare("v5" + suffix_, 1 + Below(40));  // a divisor
    program_.declarations += Expand("integer i@;\nreal r0@;\nreal r1@;\n");
    memory_ = {"m" + suffix_, Pick(kWidths) - 1, 0};
    program_.declarations += "reg " + Range(memory_) + memory_.name + " [0:3];\n";
    for (const char* text : {"i@ = N9", "r0@ = N1000.N1000", "r1@ = N9.5e-N5"})
        Add(text);
    for (int i = 0; i < kStatementCount; ++i)
        Add("STATEMENT");
    for (const char* name :
         {"v0@", "v1@", "v2@", "v3@", "v4@", "v5@", "i@", "m@[0]", "m@[1]", "m@[2]", "m@[3]"})
        Add(std::string("$display(\"LABEL %b\", ") + name + ")");
    return program_;
}

}  // namespace

Program RandomProgram(std::uint64_t seed, int number) {
    return Generator(seed, number).Make();
}

}  // namespace tarn::test
