#include "core/instruction_set.h"

namespace tarn {

#if defined(__x86_64__)

namespace {

bool HasAvx2() noexcept {
    return __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("bmi") != 0 &&
           __builtin_cpu_supports("bmi2") != 0 && __builtin_cpu_supports("popcnt") != 0;
}

bool HasAvx512() noexcept {
    return HasAvx2() && __builtin_cpu_supports("avx512f") != 0 &&
           __builtin_cpu_supports("avx512bw") != 0 && __builtin_cpu_supports("avx512cd") != 0 &&
           __builtin_cpu_supports("avx512dq") != 0 && __builtin_cpu_supports("avx512vl") != 0;
}

InstructionSet NewestSupported() noexcept {
    __builtin_cpu_init();
    InstructionSet newest = InstructionSet::kBaseline;
    for (const auto& [name, set] : kInstructionSets) {
        if (IsSupported(set)) newest = set;
    }
    return newest;
}

}  // namespace

bool IsSupported(InstructionSet set) noexcept {
    switch (set) {
        case InstructionSet::kAvx512:
            return HasAvx512();
        case InstructionSet::kAvx2:
            return HasAvx2();
        case InstructionSet::kBaseline:
            break;
    }
    return true;
}

InstructionSet chosenInstructionSet = NewestSupported();

void ForceInstructionSet(InstructionSet set) noexcept {
    chosenInstructionSet = set;
}

#else

bool IsSupported(InstructionSet set) noexcept {
    return set == InstructionSet::kBaseline;
}

void ForceInstructionSet(InstructionSet) noexcept {}

#endif

}  // namespace tarn
