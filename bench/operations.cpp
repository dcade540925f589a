#include "operations.h"

#include <iterator>
#include <utility>

#include "families.h"

namespace tarn::bench {
namespace {

std::vector<Operation> MakeOperations() {
    constexpr std::vector<Operation> (*kFamilies[])() = {
        VectorOperations, ArithOperations,  LogicOperations, CompareOperations, SelectOperations,
        AssignOperations, MemoryOperations, ShiftOperations, RealOperations,    TextOperations,
    };
    std::vector<Operation> operations;
    for (const auto family : kFamilies) {
        std::vector<Operation> part = family();
        operations.insert(operations.end(), std::make_move_iterator(part.begin()),
                          std::make_move_iterator(part.end()));
    }
    return operations;
}

}  // namespace

const std::vector<Operation>& Operations() {
    static const std::vector<Operation> operations = MakeOperations();
    return operations;
}

}  // namespace tarn::bench
