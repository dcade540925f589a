// Runs random programs on tarncalc and on a Verilog simulator and compares what they print.
//
//     simulator_programs TARNCALC IVERILOG VVP DIRECTORY COUNT [SEED]
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "program.h"

namespace {

using tarn::test::Program;

constexpr int kStatementCount = 20;
constexpr int kProgramsPerRun = 250;  // a simulator starts slowly

struct Tools {
    std::string tarncalc;
    std::string iverilog;
    std::string vvp;
    std::filesystem::path directory;
};

void Execute(const std::string& command) {
    if (std::system(command.c_str()) == 0) return;
    std::cerr << "failed: " << command << '\n';
    std::exit(2);
}

std::vector<std::string> LinesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

/** The same statements for both, but that the simulator's stand in a module. */
void WriteFiles(const std::vector<Program>& programs, const std::filesystem::path& directory) {
    std::ofstream calculator(directory / "programs.txt");
    std::ofstream simulator(directory / "programs.v");
    simulator << "module programs;\n";
    for (const Program& program : programs) {
        for (const std::string& declaration : program.Declarations()) {
            calculator << declaration << ";\n";
            simulator << declaration << ";\n";
        }
        simulator << "task run" << &program - programs.data() << "; begin\n";
        for (const std::string& statement : program.Statements()) {
            calculator << statement << '\n';
            simulator << statement << '\n';
        }
        simulator << "end endtask\n";
    }
    simulator << "initial begin\n";
    for (std::size_t i = 0; i < programs.size(); ++i)
        simulator << "run" << i << ";\n";
    simulator << "end\nendmodule\n";
}

struct Count {
    std::size_t lines = 0;
    std::size_t differences = 0;
};

/** Compares one batch; both print a line for each $display, in the same order. */
Count Compare(const std::vector<Program>& programs, const Tools& tools) {
    WriteFiles(programs, tools.directory);
    const std::string in = tools.directory.string() + "/";
    Execute(tools.iverilog + " -g2012 -o " + in + "programs.vvp " + in + "programs.v 2>" + in +
            "iverilog.log");
    Execute(tools.vvp + " -n " + in + "programs.vvp >" + in + "simulator.out </dev/null");
    Execute(tools.tarncalc + " -f " + in + "programs.txt >" + in + "tarncalc.out 2>" + in +
            "tarncalc.log");
    const std::vector<std::string> simulated = LinesOf(tools.directory / "simulator.out");
    const std::vector<std::string> calculated = LinesOf(tools.directory / "tarncalc.out");
    Count count{std::min(simulated.size(), calculated.size()), 0};
    if (simulated.size() != calculated.size()) {
        std::cout << "the simulator prints " << simulated.size() << " lines, tarncalc "
                  << calculated.size() << '\n';
        ++count.differences;
    }
    for (std::size_t i = 0; i < count.lines; ++i) {
        if (simulated[i] == calculated[i]) continue;
        ++count.differences;
        std::cout << "tarncalc  " << calculated[i] << "\nsimulator " << simulated[i] << '\n';
    }
    return count;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 6) {
        std::cerr << "usage: simulator_programs TARNCALC IVERILOG VVP DIRECTORY COUNT [SEED]\n";
        return 2;
    }
    const Tools tools{argv[1], argv[2], argv[3], argv[4]};
    const int programCount = std::atoi(argv[5]);
    const std::uint64_t seed = argc > 6 ? std::strtoull(argv[6], nullptr, 10) : 1;
    std::filesystem::create_directories(tools.directory);
    Count total;
    for (int first = 0; first < programCount; first += kProgramsPerRun) {
        std::vector<Program> programs;
        for (int i = first; i < std::min(programCount, first + kProgramsPerRun); ++i) {
            programs.emplace_back(seed * 1'000'003 + static_cast<std::uint64_t>(i), i,
                                  kStatementCount);
        }
        const Count count = Compare(programs, tools);
        total.lines += count.lines;
        total.differences += count.differences;
    }
    std::cout << programCount << " programs, " << total.lines << " comparisons, "
              << total.differences << " differences\n";
    return total.differences == 0 && total.lines > 0 ? 0 : 1;
}
