// The one way in which a wide kernel uses what newer processors have.
//
// A kernel is a struct with one static function, a loop over words in plain C++:
//
//     struct InvertKernel {
//         TARN_KERNEL static void Run(VectorWord* to, const VectorWord* from, std::size_t n);
//     };
//
// RunKernel<InvertKernel>(to, from, count) calls it. Run is compiled once for every instruction set
// below, each time as the compiler vectorises it there, and the newest that the processor has was
// chosen when the library was loaded. What Run calls must be inlined into it: TARN_KERNEL as well,
// or short inline functions.
//
// Where the compiler's code is too slow, a kernel may add a form by hand, RunAvx2 or RunAvx512
// under TARN_TARGET_AVX2 or TARN_TARGET_AVX512; it takes the place of Run from that instruction set
// on. Run stays, and gives the same results.
//
// A test that links the objects of the library can choose another instruction set with
// ForceInstructionSet; the suite of tests/ runs once for each that the processor has.
#ifndef TARN_CORE_INSTRUCTION_SET_H
#define TARN_CORE_INSTRUCTION_SET_H

#include <cstdint>

namespace tarn {

// In ascending order: each has everything that the ones before it have.
enum class InstructionSet : std::uint8_t { kBaseline, kAvx2, kAvx512 };

struct NamedInstructionSet {
    const char* name;
    InstructionSet set;
};

inline constexpr NamedInstructionSet kInstructionSets[] = {
    {"baseline", InstructionSet::kBaseline},
    {"avx2", InstructionSet::kAvx2},
    {"avx512", InstructionSet::kAvx512},
};

bool IsSupported(InstructionSet set) noexcept;

// Makes kernels run as on a processor that has nothing newer; the processor must support the set.
void ForceInstructionSet(InstructionSet set) noexcept;

#define TARN_KERNEL [[gnu::always_inline]] inline

#if defined(__x86_64__)

#define TARN_TARGET_AVX2 [[gnu::target("avx2,bmi,bmi2,popcnt")]]
#define TARN_TARGET_AVX512 \
    [[gnu::target("avx2,bmi,bmi2,popcnt,avx512f,avx512bw,avx512cd,avx512dq,avx512vl")]]

// The set that kernels run on. Until the library's initialisers have run it is the baseline.
extern InstructionSet chosenInstructionSet;

template <class Kernel, class... Arguments>
[[gnu::noinline]] auto RunOnBaseline(Arguments... arguments) noexcept {
    return Kernel::Run(arguments...);
}

template <class Kernel, class... Arguments>
[[gnu::noinline]] TARN_TARGET_AVX2 auto RunOnAvx2(Arguments... arguments) noexcept {
    if constexpr (requires { Kernel::RunAvx2(arguments...); }) {
        return Kernel::RunAvx2(arguments...);
    } else {
        return Kernel::Run(arguments...);
    }
}

template <class Kernel, class... Arguments>
[[gnu::noinline]] TARN_TARGET_AVX512 auto RunOnAvx512(Arguments... arguments) noexcept {
    if constexpr (requires { Kernel::RunAvx512(arguments...); }) {
        return Kernel::RunAvx512(arguments...);
    } else if constexpr (requires { Kernel::RunAvx2(arguments...); }) {
        return Kernel::RunAvx2(arguments...);
    } else {
        return Kernel::Run(arguments...);
    }
}

template <class Kernel, class... Arguments>
inline auto RunKernel(Arguments... arguments) noexcept {
    switch (chosenInstructionSet) {
        case InstructionSet::kAvx512:
            return RunOnAvx512<Kernel>(arguments...);
        case InstructionSet::kAvx2:
            return RunOnAvx2<Kernel>(arguments...);
        case InstructionSet::kBaseline:
            break;
    }
    return RunOnBaseline<Kernel>(arguments...);
}

#else

template <class Kernel, class... Arguments>
inline auto RunKernel(Arguments... arguments) noexcept {
    return Kernel::Run(arguments...);
}

#endif

}  // namespace tarn

#endif  // TARN_CORE_INSTRUCTION_SET_H
