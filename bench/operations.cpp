#include "operations.h"

#include <utility>

#include "families.h"

namespace tarn::bench {
namespace {

std::vector<Operation> MakeOperations() {
    constexpr struct {
        const char* name;
        std::vector<Operation> (*make)();
    } kFamilies[] = {
        {"vector", VectorOperations},   {"arith", ArithOperations},   {"logic", LogicOperations},
        {"compare", CompareOperations}, {"select", SelectOperations}, {"assign", AssignOperations},
        {"memory", MemoryOperations},   {"shift", ShiftOperations},   {"real", RealOperations},
        {"text", TextOperations},
    };
    std::vector<Operation> operations;
    for (const auto& family : kFamilies) {
        for (Operation& operation : family.make()) {
            operation.family = family.name;
            operations.push_back(std::move(operation));
        }
    }
    return operations;
}

}  // namespace

const std::vector<Operation>& Operations() {
    static const std::vector<Operation> operations = MakeOperations();
    return operations;
}

}  // namespace tarn::bench
