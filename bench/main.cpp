// tarnlib_bench: tarnlib and its peers on the same values in one run, with the ratios.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "ratio_table.h"
#include "rows.h"

namespace {

using tarn::bench::RatioTable;
using tarn::bench::Row;

// Many short repetitions in random order: a disturbance of the machine then falls on all
// contestants alike, and the least time of each is free of it.
constexpr const char* kMeasuring[] = {"--benchmark_repetitions=13", "--benchmark_min_time=0.008",
                                      "--benchmark_enable_random_interleaving=true"};
constexpr const char* kSmoke[] = {"--benchmark_repetitions=1", "--benchmark_min_time=0"};

void PrintHelp() {
    std::puts(
        "tarnlib_bench: tarnlib and its peers on the same values in one run\n\n"
        "  --smoke      run everything once and check the results only\n"
        "  --rows=FILE  also write the rows to a file, values behind tabs\n\n"
        "and the options of Google Benchmark, which override what tarnlib_bench sets:\n");
    benchmark::PrintDefaultHelp();
}

// The two take the options of our own out of the arguments.
bool TakeSmoke(std::vector<char*>& arguments) {
    const auto isSmoke = [](std::string_view argument) { return argument == "--smoke"; };
    return std::erase_if(arguments, isSmoke) != 0;
}

// The file's path; null without that option.
const char* TakeRows(std::vector<char*>& arguments) {
    constexpr std::string_view kOption = "--rows=";
    const char* path = nullptr;
    std::erase_if(arguments, [&](const char* argument) {
        if (!std::string_view(argument).starts_with(kOption)) return false;
        path = argument + kOption.size();
        return true;
    });
    return path;
}

// The defaults stand in front of the caller's arguments, of which the last one counts.
void InsertDefaults(bool isSmoke, std::vector<char*>& arguments) {
    const auto insert = [&](const auto& defaults) {
        std::vector<char*> texts;
        for (const char* text : defaults) {
            texts.push_back(const_cast<char*>(text));
        }
        arguments.insert(arguments.begin() + 1, texts.begin(), texts.end());
    };
    isSmoke ? insert(kSmoke) : insert(kMeasuring);
}

}  // namespace

int main(int argumentCount, char** argumentTexts) {
    std::vector<char*> arguments(argumentTexts, argumentTexts + argumentCount);
    const bool isSmoke = TakeSmoke(arguments);
    const char* rowsPath = TakeRows(arguments);
    InsertDefaults(isSmoke, arguments);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data(), PrintHelp);
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return EXIT_FAILURE;

    const std::vector<Row> rows = tarn::bench::MakeRows();
    tarn::bench::RegisterBenchmarks(rows);
    RatioTable table(rows);
    const std::size_t ran = benchmark::RunSpecifiedBenchmarks(&table);
    if (isSmoke) {
        std::printf("%zu benchmarks ran\n", table.BenchmarkCount());
    } else if (table.BenchmarkCount() != 0) {
        table.PrintRows();
    }
    table.PrintFailures();
    if (rowsPath != nullptr && !table.WriteRows(rowsPath)) {
        std::fprintf(stderr, "tarnlib_bench: cannot write %s\n", rowsPath);
        return EXIT_FAILURE;
    }
    benchmark::Shutdown();
    return ran == 0 || table.HasFailures() ? EXIT_FAILURE : EXIT_SUCCESS;
}
