// Runs random programs on tarncalc and on a Verilog simulator and compares what they print.
//
//     simulator_programs TARNCALC IVERILOG VVP DIRECTORY COUNT [SEED]
#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "generator.h"

namespace tarn::test {
namespace {

constexpr int kProgramsPerRun = 250;  // a simulator starts slowly

/** The programs `first` to `last` - 1: the same for both, but that the simulator's are tasks. */
void WriteFiles(std::uint64_t seed, int first, int last) {
    std::ofstream calculator("programs.txt");
    std::ofstream simulator("programs.v");
    simulator << "module programs;\n";
    for (int i = first; i < last; ++i) {
        Generator generator(seed * 1'000'003 + static_cast<std::uint64_t>(i), i);
        const auto& [declarations, statements] = generator.Make();
        calculator << declarations << statements;
        simulator << declarations << "task run" << i << "; begin\n"
                  << statements << "end endtask\ninitial #" << i << " run" << i << ";\n";
    }
    simulator << "endmodule\n";
}

/** Counts the lines, one for each $display, and those that differ. */
std::array<int, 2> Compare() {
    std::array<int, 2> counts{};
    std::ifstream simulator("simulator.out");
    std::ifstream calculator("tarncalc.out");
    while (true) {
        std::array<std::string, 2> lines;
        const bool isSimulated{std::getline(simulator, lines[0])};
        const bool isCalculated{std::getline(calculator, lines[1])};
        if (!isSimulated && !isCalculated) return counts;
        ++counts[0];
        if (isSimulated == isCalculated && lines[0] == lines[1]) continue;
        ++counts[1];
        std::cout << "simulator " << lines[0] << "\ntarncalc  " << lines[1] << '\n';
    }
}

}  // namespace
}  // namespace tarn::test
