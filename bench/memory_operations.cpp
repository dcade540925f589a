// Memory words.
#include <tarnlib.h>

#include "families.h"
#include "ladders.h"

namespace tarn::bench {
namespace {

// The memory word with b in the place of the field, by way of the result as a vector.
int WriteMemoryBits(const Operands& o) {
    BitByBit<AssignedBit>(o);
    const std::size_t half = o.memoryByteCount / 2;
    for (std::size_t i = 0; i < half; ++i) {
        o.resultMemory[i] = static_cast<unsigned char>(o.result[i / 4].aval >> (i % 4 * 8));
        o.resultMemory[half + i] = static_cast<unsigned char>(o.result[i / 4].bval >> (i % 4 * 8));
    }
    return std::memcmp(o.resultMemory, o.memory, o.memoryByteCount) != 0;
}

int CopyOtherMemoryBytes(const Operands& o) {
    CopyMemoryBytes(o);
    return 1;
}

constexpr Contestant kPackedWithFlag = WritesMemoryWithCode<CopyOtherMemoryBytes>("memcpy bytes");
constexpr Contestant kWritten = WritesMemory<WriteMemoryBits>("bit by bit");
constexpr Contestant kWrittenWithFlag = WritesMemoryWithCode<WriteMemoryBits>("bit by bit");

const Ladder kThroughRegister = WithTail(kUnlimited, {{128, kWidest, kMemoryMemcpy, kNoLimit}});

}  // namespace

std::vector<Operation> MemoryOperations() {
    return {
        {"UnsignedCopyMemoryValue", kFourState, kWords<UnpackMemory<tarn_UnsignedCopyMemoryValue>>,
         kMemcpy, kMemoryCopy},
        {"SignedCopyMemoryValue", kSignedFourState,
         kWords<UnpackMemory<tarn_SignedCopyMemoryValue>>, kMemcpy, kMemoryCopy},
        {"MemoryWordAssign", kFourState, kMemory<PackMemory<tarn_MemoryWordAssign>>, kMemoryMemcpy,
         kMemoryCopy},
        {"NotIdenticalMemoryWordAssign", kFourState,
         kMemoryWithCode<PackMemory<tarn_NotIdenticalMemoryWordAssign>>, kPackedWithFlag,
         kMemoryCopy},
        {"MemoryWordPartselect", kFieldRead, kWords<ReadMemoryField<tarn_MemoryWordPartselect>>,
         kField, kThroughRegister},
        {"MemoryWordPartselectAssign", kFieldWrite,
         kMemory<WriteMemoryField<tarn_MemoryWordPartselectAssign>>, kWritten, kThroughRegister},
        {"MemoryWordPartselectAssign1", kFieldWrite,
         kMemory<WriteMemoryField<tarn_MemoryWordPartselectAssign1>>, kWritten, kNarrow},
        {"MemoryWordIndexedPartselectAssign1", kFieldWrite,
         kMemory<WriteMemoryField<tarn_MemoryWordIndexedPartselectAssign1>>, kWritten, kNarrow},
        {"NotIdenticalMemoryWordPartselectAssign1", kFieldWrite,
         kMemoryWithCode<WriteMemoryField<tarn_NotIdenticalMemoryWordPartselectAssign1>>,
         kWrittenWithFlag, kNarrow},
        {"NotIdenticalMemoryWordIndexedPartselectAssign1", kFieldWrite,
         kMemoryWithCode<WriteMemoryField<tarn_NotIdenticalMemoryWordIndexedPartselectAssign1>>,
         kWrittenWithFlag, kNarrow},
    };
}

}  // namespace tarn::bench
