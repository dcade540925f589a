// The report: collects the times of all repetitions and prints the rows with their ratios.
#ifndef TARN_BENCH_RATIO_TABLE_H
#define TARN_BENCH_RATIO_TABLE_H

#include <benchmark/benchmark.h>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "rows.h"

namespace tarn::bench {

class RatioTable : public benchmark::BenchmarkReporter {
  public:
    explicit RatioTable(const std::vector<Row>& rows) : rows_(rows) {}

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    void PrintRows() const;
    // The rows as values behind tabs, for programs to read; returns whether they could be written.
    bool WriteRows(const char* path) const;
    void PrintFailures() const;

    std::size_t BenchmarkCount() const { return best_.size(); }
    bool HasFailures() const { return !failures_.empty(); }

  private:
    // The least processor time of all repetitions, in ns: what disturbs a run only adds to it.
    std::optional<double> TimeOf(const Row& row, const Contestant& contestant) const;
    // The factor of ours for every doubling of the width since `before`.
    std::optional<double> Growth(const Row& before, const Row& row) const;
    // Returns whether the limit was missed.
    bool PrintRow(const Row* before, const Row& row) const;

    const std::vector<Row>& rows_;
    std::map<std::string, double> best_;
    std::set<std::string> failures_;
    double megahertz_ = 0;
};

}  // namespace tarn::bench

#endif  // TARN_BENCH_RATIO_TABLE_H
