// Random programs in the language that tarncalc and a Verilog simulator share.
#ifndef TARN_TESTS_SIMULATOR_PROGRAM_H
#define TARN_TESTS_SIMULATOR_PROGRAM_H

#include <cstdint>
#include <string>

namespace tarn::test {

/** Its names end in its number, so that many programs fit in one file; each line of its output
 *  begins with the number and that of the statement. */
struct Program {
    std::string declarations;
    std::string statements;
};

Program RandomProgram(std::uint64_t seed, int number);

}  // namespace tarn::test

#endif  // TARN_TESTS_SIMULATOR_PROGRAM_H
