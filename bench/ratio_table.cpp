#include "ratio_table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>

namespace tarn::bench {
namespace {

void PrintNumber(int columns, int decimals, std::optional<double> number) {
    if (number) {
        std::printf(" %*.*f", columns, decimals, *number);
    } else {
        std::printf(" %*s", columns, "-");
    }
}

// As Linux calls it.
std::string ProcessorName() {
    std::ifstream info("/proc/cpuinfo");
    std::string line;
    while (std::getline(info, line)) {
        if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
    }
    return "a processor";
}

}  // namespace

bool RatioTable::ReportContext(const Context& context) {
    megahertz_ = context.cpu_info.cycles_per_second / 1e6;
    std::printf("%d processors at %.0f MHz; times are the least of all repetitions\n",
                context.cpu_info.num_cpus, megahertz_);
    std::fflush(stdout);
    return true;
}

void RatioTable::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration) continue;
        const std::string& name = run.run_name.function_name;
        if (run.error_occurred) {
            failures_.insert(name + ": " + run.error_message);
            continue;
        }
        const double time = run.GetAdjustedCPUTime();
        const auto [at, isNew] = best_.try_emplace(name, time);
        if (!isNew) at->second = std::min(at->second, time);
    }
}

std::optional<double> RatioTable::TimeOf(const Row& row, const Contestant& contestant) const {
    const auto at = best_.find(row.BenchmarkName(contestant));
    if (at == best_.end()) return std::nullopt;
    return at->second;
}

std::optional<double> RatioTable::Growth(const Row& before, const Row& row) const {
    const auto timeBefore = TimeOf(before, before.Ours());
    const auto time = TimeOf(row, row.Ours());
    if (&before.Of() != &row.Of() || !timeBefore || !time) return std::nullopt;
    if (before.SharesOursWith(row)) return std::nullopt;
    const double doublings = std::log2(static_cast<double>(row.Width()) / before.Width());
    return std::pow(*time / *timeBefore, 1 / doublings);
}

bool RatioTable::PrintRow(const Row* before, const Row& row) const {
    const auto ours = TimeOf(row, row.Ours());
    const auto peer = TimeOf(row, row.Peer());
    if (!ours && !peer) return false;
    std::optional<double> ratio;
    std::optional<double> limit;
    if (ours && peer) ratio = *ours / *peer;
    if (row.Limit() != kNoLimit) limit = row.Limit();
    const bool isMissed = ratio && limit && *ratio > *limit;

    std::printf("%-24s %8d", row.Of().name.c_str(), row.Width());
    PrintNumber(12, 1, ours);
    std::printf("  %-12s", row.Peer().name);
    PrintNumber(12, 1, peer);
    PrintNumber(8, 2, ratio);
    PrintNumber(7, 2, limit);
    PrintNumber(7, 2, before == nullptr ? std::nullopt : Growth(*before, row));
    std::printf("%s\n", isMissed ? "  MISSED" : "");
    return isMissed;
}

void RatioTable::PrintRows() const {
    std::printf("%-24s %8s %12s  %-12s %12s %8s %7s %7s\n", "operation", "bits", "tarnlib ns",
                "peer", "peer ns", "ratio", "limit", "growth");
    int missed = 0;
    const Row* before = nullptr;
    for (const Row& row : rows_) {
        missed += PrintRow(before, row) ? 1 : 0;
        before = &row;
    }
    std::printf("%d limits missed\n", missed);
}

bool RatioTable::WriteRows(const char* path) const {
    std::FILE* file = std::fopen(path, "w");
    if (file == nullptr) return false;
    std::fprintf(file, "# %s, at %.0f MHz\n", ProcessorName().c_str(), megahertz_);
    std::fprintf(file, "# family\toperation\tbits\ttarnlib ns\tpeer\tpeer ns\tlimit\n");
    for (const Row& row : rows_) {
        const auto ours = TimeOf(row, row.Ours());
        const auto peer = TimeOf(row, row.Peer());
        if (!ours || !peer) continue;
        std::fprintf(file, "%s\t%s\t%d\t%.4g\t%s\t%.4g\t%g\n", row.Of().family,
                     row.Of().name.c_str(), row.Width(), *ours, row.Peer().name, *peer,
                     row.Limit());
    }
    const bool isWritten = std::ferror(file) == 0;
    return std::fclose(file) == 0 && isWritten;
}

void RatioTable::PrintFailures() const {
    for (const std::string& failure : failures_) {
        std::fprintf(stderr, "tarnlib_bench: %s\n", failure.c_str());
    }
}

}  // namespace tarn::bench
