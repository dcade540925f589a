// The one list of what is measured: operations, their widths, peers and limits.
#ifndef TARN_BENCH_OPERATIONS_H
#define TARN_BENCH_OPERATIONS_H

#include <string>
#include <vector>

#include "contestant.h"

namespace tarn::bench {

inline constexpr int kWidths[] = {1, 8, 32, 64, 128, 512, 4096, 65536, 1048576, 8000000, 16000000};
// The widest that every operation is measured at, and near the limits of quotients and of products.
inline constexpr int kWidest = 1048576;
inline constexpr int kWidestQuotient = 8000000;
inline constexpr int kWidestProduct = 16000000;

inline constexpr double kNoLimit = 0;

// At the widths of kWidths from `from` to `to` an operation is set against this peer, and may take
// `limit` times as long.
struct Versus {
    int from;
    int to;
    Contestant peer;
    double limit;
};

struct Operation {
    std::string name;
    Shape shape;
    Contestant ours;
    Contestant oracle;  // its outcome is the right one; often the peer of the wide rows
    std::vector<Versus> ladder;
    const char* family = "";  // named by the list of families
};

const std::vector<Operation>& Operations();

}  // namespace tarn::bench

#endif  // TARN_BENCH_OPERATIONS_H
