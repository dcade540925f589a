// The rows of the result: one operation at one width against one peer.
#ifndef TARN_BENCH_ROWS_H
#define TARN_BENCH_ROWS_H

#include <string>
#include <vector>

#include "operations.h"

namespace tarn::bench {

class Row {
  public:
    Row(const Operation& operation, int width, const Versus& versus)
        : operation_(&operation), versus_(&versus), width_(width) {}

    const Operation& Of() const { return *operation_; }
    int Width() const { return width_; }
    const Operands& On() const { return OperandsFor(operation_->shape, width_); }
    const Contestant& Ours() const { return operation_->ours; }
    const Contestant& Peer() const { return versus_->peer; }
    double Limit() const { return versus_->limit; }

    // "UnsignedAdd/64/floor": what the benchmark of a contestant is called.
    std::string BenchmarkName(const Contestant& contestant) const;

    // Whether this is the same operation at the same width, against another peer.
    bool SharesOursWith(const Row& other) const {
        return operation_ == other.operation_ && width_ == other.width_;
    }

    // Whether one call of ours has the outcome of the oracle.
    bool IsRight() const;

  private:
    const Operation* operation_;
    const Versus* versus_;
    int width_;
};

// All rows of the list of operations, in its order.
std::vector<Row> MakeRows();

// Makes the benchmarks of ours and of the peer of each row known. The rows stay where they are
// while these run.
void RegisterBenchmarks(const std::vector<Row>& rows);

}  // namespace tarn::bench

#endif  // TARN_BENCH_ROWS_H
