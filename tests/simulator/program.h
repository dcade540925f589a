// Random programs in the language that tarncalc and a Verilog simulator share.
#ifndef TARN_TESTS_SIMULATOR_PROGRAM_H
#define TARN_TESTS_SIMULATOR_PROGRAM_H

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tarn::test {

struct Variable {
    std::string name;
    int left;
    int right;
    bool isSigned;
    int wordCount = 0;  // of a memory, else 0

    int Width() const { return (left > right ? left - right : right - left) + 1; }
    std::string Declaration() const;
};

/** A program of declarations and statements. Its names end in its number, so that many programs fit
 *  in one file; each line of its output begins with the number and that of the statement.
 *
 *  It keeps to what the simulator does as the standard says. Where that is not so, departures.v
 *  shows how it departs; here those cases are not drawn:
 *  - no sign "+" in front of an operand;
 *  - the branches of ?: have no Z bits where the condition may be unknown;
 *  - no field of a memory word is written that is not inside it;
 *  - an index is no wider than 32 bits;
 *  - no field of a vector is the amount of a shift;
 *  - what >>> shifts has more than one bit;
 *  - an exponent is not negative;
 *  - octal and hexadecimal digits and characters are printed of variables alone: of an expression
 *    the simulator prints an unknown top digit that is not full as X, a character with X bits as
 *    a blank;
 *  - +: and -: have no constant index: the simulator reads fields that leave an ascending vector
 *    as if they began at its other end;
 *  - a signed number is printed without leading blanks;
 *  - a divisor has few enough bits;
 *  - a vector that becomes a real is known, and not wider than a double's fraction. */
class Program {
  public:
    Program(std::uint64_t seed, int number, int statementCount);

    const std::vector<std::string>& Declarations() const { return declarations_; }
    const std::vector<std::string>& Statements() const { return statements_; }

  private:
    int Below(int bound);
    bool OneIn(int count) { return Below(count) == 0; }
    template <class List>
    const auto& Pick(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

    void Declare();
    void DeclareVector(int width);
    std::string Name(const char* prefix, std::size_t index) const;

    std::string Digits(int width, bool isKnown);
    std::string Literal(int width, bool isKnown);
    std::string Index();
    std::string Select(const Variable& variable, const std::string& whole);
    std::string ConstantSelect(const Variable& variable, const std::string& whole);
    std::string MemoryWord();
    std::string Primary();
    std::string Amount();
    std::string Unary(int depth);
    std::string Binary(int depth);
    std::string Conditional(int depth);
    std::string Concatenation(int depth);
    std::string Vector(int depth);
    std::string Real(int depth);

    std::string Target();
    std::string Assignment();
    std::string RealStatement();
    std::string Display();
    void DisplayAll();
    void Add(const std::string& statement) { statements_.push_back(statement + ";"); }

    std::mt19937_64 random_;
    std::string suffix_;
    std::vector<Variable> variables_;  // the last ones are integers
    std::size_t vectorCount_ = 0;
    Variable memory_{};
    std::vector<std::string> reals_;
    std::vector<std::string> declarations_;
    std::vector<std::string> statements_;
};

}  // namespace tarn::test

#endif  // TARN_TESTS_SIMULATOR_PROGRAM_H
