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

struct Tools {
    std::string tarncalc;
    std::string iverilog;
    std::string vvp;
    std::string directory;
};

struct Count {
    int lines = 0;
    int differences = 0;
};

void Execute(const std::string& command) {
    if (std::system(command.c_str()) == 0) return;
    std::cerr << "failed: " << command << '\n';
    std::exit(2);
}

/** The programs `first` to `last` - 1: the same for both, but that the simulator's are tasks. */
void WriteFiles(const std::string& in, std::uint64_t seed, int first, int last) {
    std::ofstream calculator(in + "programs.txt");
    std::ofstream simulator(in + "programs.v");
    simulator << "module programs;\n";
    for (int i = first; i < last; ++i) {
        const auto [declarations, statements] =
            tarn::test::RandomProgram(seed * 1'000'003 + static_cast<std::uint64_t>(i), i);
        calculator << declarations << statements;
        simulator << declarations << "task run" << i << "; begin\n"
                  << statements << "end endtask\n"
                  << "initial #" << i << " run" << i << ";\n";
    }
    simulator << "endmodule\n";
}

/** Both print a line for each $display, in the same order. */
void Compare(const Tools& tools, Count& count) {
    const std::string& in = tools.directory;
    Execute(tools.iverilog + " -g2012 -o " + in + "programs.vvp " + in + "programs.v 2>" + in +
            "iverilog.log");
    Execute(tools.vvp + " -n " + in + "programs.vvp >" + in + "simulator.out </dev/null");
    Execute(tools.tarncalc + " -f " + in + "programs.txt >" + in + "tarncalc.out 2>" + in +
            "tarncalc.log");
    std::ifstream simulator(in + "simulator.out");
    std::ifstream calculator(in + "tarncalc.out");
    std::string simulated;
    std::string calculated;
    while (std::getline(simulator, simulated)) {
        ++count.lines;
        if (!std::getline(calculator, calculated)) calculated = "nothing";
        if (simulated == calculated) continue;
        ++count.differences;
        std::cout << "tarncalc  " << calculated << "\nsimulator " << simulated << '\n';
    }
    if (!std::getline(calculator, calculated)) return;
    ++count.differences;
    std::cout << "tarncalc  " << calculated << "\nsimulator nothing\n";
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 6) {
        std::cerr << "usage: simulator_programs TARNCALC IVERILOG VVP DIRECTORY COUNT [SEED]\n";
        return 2;
    }
    const Tools tools{argv[1], argv[2], argv[3], std::string(argv[4]) + "/"};
    const int programCount = std::atoi(argv[5]);
    const std::uint64_t seed = argc > 6 ? std::strtoull(argv[6], nullptr, 10) : 1;
    std::filesystem::create_directories(tools.directory);
    Count count;
    for (int first = 0; first < programCount; first += kProgramsPerRun) {
        WriteFiles(tools.directory, seed, first, std::min(programCount, first + kProgramsPerRun));
        Compare(tools, count);
    }
    std::cout << programCount << " programs, " << count.lines << " comparisons, "
              << count.differences << " differences\n";
    return count.differences == 0 && count.lines > 0 ? 0 : 1;
}
