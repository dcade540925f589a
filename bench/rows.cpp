#include "rows.h"

namespace tarn::bench {
namespace {

void RegisterOurs(const Row& row) {
    // One answer serves all repetitions.
    const auto run = [&row, checked = false](benchmark::State& state) mutable {
        if (!checked && !row.IsRight()) {
            state.SkipWithError("wrong result");
            return;
        }
        checked = true;
        row.Ours().measure(state, row.On());
    };
    benchmark::RegisterBenchmark(row.BenchmarkName(row.Ours()).c_str(), run);
}

void RegisterPeer(const Row& row) {
    const auto run = [&row](benchmark::State& state) { row.Peer().measure(state, row.On()); };
    benchmark::RegisterBenchmark(row.BenchmarkName(row.Peer()).c_str(), run);
}

}  // namespace

std::string Row::BenchmarkName(const Contestant& contestant) const {
    return operation_->name + '/' + std::to_string(width_) + '/' + contestant.name;
}

bool Row::IsRight() const {
    return operation_->ours.outcome(On()) == operation_->oracle.outcome(On());
}

std::vector<Row> MakeRows() {
    std::vector<Row> rows;
    for (const Operation& operation : Operations()) {
        for (const int width : kWidths) {
            for (const Versus& versus : operation.ladder) {
                if (versus.from <= width && width <= versus.to) {
                    rows.emplace_back(operation, width, versus);
                }
            }
        }
    }
    return rows;
}

void RegisterBenchmarks(const std::vector<Row>& rows) {
    const Row* before = nullptr;
    for (const Row& row : rows) {
        if (before == nullptr || !row.SharesOursWith(*before)) RegisterOurs(row);
        RegisterPeer(row);
        before = &row;
    }
}

}  // namespace tarn::bench
