// The four-state vectors of SystemC as peers. Their results are clean above the width.
#ifndef TARN_BENCH_SYSTEMC_PEER_H
#define TARN_BENCH_SYSTEMC_PEER_H

#include "contestant.h"

namespace tarn::bench {

// a with b, which is as wide.
Contestant SystemcAnd();
Contestant SystemcOr();
Contestant SystemcXor();
Contestant SystemcEqual();

// a alone; the shifts go by the amount of the operands.
Contestant SystemcNot();
Contestant SystemcShiftLeft();
Contestant SystemcShiftRight();

}  // namespace tarn::bench

#endif  // TARN_BENCH_SYSTEMC_PEER_H
