// The parts of the list of operations, one a family.
#ifndef TARN_BENCH_FAMILIES_H
#define TARN_BENCH_FAMILIES_H

#include <vector>

#include "operations.h"

namespace tarn::bench {

std::vector<Operation> VectorOperations();
std::vector<Operation> ArithOperations();
std::vector<Operation> LogicOperations();
std::vector<Operation> CompareOperations();
std::vector<Operation> SelectOperations();
std::vector<Operation> AssignOperations();
std::vector<Operation> MemoryOperations();
std::vector<Operation> ShiftOperations();
std::vector<Operation> RealOperations();
std::vector<Operation> TextOperations();

}  // namespace tarn::bench

#endif  // TARN_BENCH_FAMILIES_H
