// Runs random programs on tarncalc and on a Verilog simulator and compares what they print.
//
//     simulator_programs TARNCALC IVERILOG VVP DIRECTORY COUNT [SEED]
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "program.h"

namespace {

constexpr int kProgramsPerRun = 250;  // a simulator starts slowly

/** The programs `first` to `last` - 1: the same for both, but that the simulator's are tasks. */
void WriteFiles(std::uint64_t seed, int first, int last) {
    std::ofstream calculator("programs.txt");
    std::ofstream simulator("programs.v");
    simulator << "module programs;\n";
    for (int i = first; i < last; ++i) {
        const auto [declarations, statements] =
            tarn::test::RandomProgram(seed * 1'000'003 + static_cast<std::uint64_t>(i), i);
        calculator << declarations << statements;
        simulator << declarations << "task run" << i << "; begin\n"
                  << statements << "end endtask\ninitial #" << i << " run" << i << ";\n";
    }
    simulator << "endmodule\n";
}

/** Both have printed a line for each $display, in the same order. */
void Compare(int& lines, int& differences) {
    std::ifstream simulator("simulator.out");
    std::ifstream calculator("tarncalc.out");
    std::string simulated, calculated;
    while (true) {
        if (!std::getline(simulator, simulated)) simulated = "nothing";
        if (!std::getline(calculator, calculated)) calculated = "nothing";
        if (!simulator && !calculator) return;
        ++lines;
        if (simulated == calculated) continue;
        ++differences;
        std::cout << "tarncalc  " << calculated << "\nsimulator " << simulated << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 6) {
        std::cerr << "usage: simulator_programs TARNCALC IVERILOG VVP DIRECTORY COUNT [SEED]\n";
        return 2;
    }
    const std::string tarncalc = std::filesystem::absolute(argv[1]), iverilog = argv[2],
                      vvp = argv[3];
    const std::string run = iverilog + " -g2012 -o programs.vvp programs.v 2>iverilog.log && " +
                            vvp + " -n programs.vvp >simulator.out </dev/null && " + tarncalc +
                            " -f programs.txt >tarncalc.out 2>tarncalc.log";
    const int programCount = std::atoi(argv[5]);
    const std::uint64_t seed = argc > 6 ? std::strtoull(argv[6], nullptr, 10) : 1;
    std::filesystem::create_directories(argv[4]);
    std::filesystem::current_path(argv[4]);
    int lines = 0, differences = 0;
    for (int first = 0; first < programCount; first += kProgramsPerRun) {
        WriteFiles(seed, first, std::min(programCount, first + kProgramsPerRun));
        if (std::system(run.c_str()) != 0) {
            std::cerr << "failed: " << run << '\n';
            return 2;
        }
        Compare(lines, differences);
    }
    std::cout << programCount << " programs, " << lines << " comparisons, " << differences
              << " differences\n";
    return differences == 0 && lines > 0 ? 0 : 1;
}
