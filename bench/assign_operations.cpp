// Writing fields of bits, with and without the flag of a change; concatenation.
#include <tarnlib.h>

#include "families.h"
#include "ladders.h"

namespace tarn::bench {
namespace {

int WriteBitsWithFlag(const Operands& o) {
    BitByBit<AssignedBit>(o);
    return std::memcmp(o.result, o.a, o.wordCount * sizeof(VectorWord)) != 0;
}

constexpr Contestant kAssignedWithFlag = WritesWordsWithCode<WriteBitsWithFlag>("bit by bit");

}  // namespace

std::vector<Operation> AssignOperations() {
    return {
        {"PartselectAssign", kFieldWrite, kWords<WriteField<tarn_PartselectAssign>>, kAssigned,
         kFieldCopy},
        {"IndexedPartselectAssign", kFieldWrite,
         kWords<WriteIndexedField<tarn_IndexedPartselectAssign>>, kAssigned, kFieldCopy},
        {"NotIdenticalPartselectAssign", kFieldWrite,
         kWordsWithCode<WriteField<tarn_NotIdenticalPartselectAssign>>, kAssignedWithFlag,
         kFieldCopy},
        {"NotIdenticalIndexedPartselectAssign", kFieldWrite,
         kWordsWithCode<WriteIndexedField<tarn_NotIdenticalIndexedPartselectAssign>>,
         kAssignedWithFlag, kFieldCopy},
        {"KeepField", kFieldWrite, kWords<KeepFieldTwice<tarn_NotIdenticalPartselectAssign>>,
         kAssigned, AgainstChanges<tarn_NotIdenticalPartselectAssign>()},
        {"NotIdentical", kEqualFourState, kCode<CompareSameWidth<tarn_NotIdentical>>, kRightCode<0>,
         kReadAll},
    };
}

}  // namespace tarn::bench
