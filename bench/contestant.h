// A contestant: a call on operands, how to time it and what came out of it.
#ifndef TARN_BENCH_CONTESTANT_H
#define TARN_BENCH_CONTESTANT_H

#include <benchmark/benchmark.h>
#include <string>
#include <type_traits>

#include "operands.h"

namespace tarn::bench {

struct Contestant {
    const char* name;
    void (*measure)(benchmark::State& state, const Operands& operands);
    // What a call writes, as bytes, or returns, as text; null for a contestant that computes
    // nothing.
    std::string (*outcome)(const Operands& operands);
};

// The call is a constant of the template, so that the loop holds the direct call that generated
// code would make. The copy of the operands lets the compiler keep the arguments in registers.
template <auto kCall>
void Measure(benchmark::State& state, const Operands& operands) {
    ResetResults(operands);
    const Operands own = operands;
    for (auto _ : state) {
        if constexpr (std::is_void_v<decltype(kCall(own))>) {
            kCall(own);
        } else {
            benchmark::DoNotOptimize(kCall(own));
        }
        benchmark::ClobberMemory();
    }
}

std::string ResultBytes(const Operands& operands);
std::string MemoryBytes(const Operands& operands);
std::string CodeText(int code);
std::string RealText(double real);
void UnpackResultLimbs(const Operands& operands);
std::string DigitText(const Operands& operands, std::size_t digitCount);

// A call that writes operands.result.
template <auto kCall>
constexpr Contestant WritesWords(const char* name) {
    return {name, Measure<kCall>, [](const Operands& operands) {
                ResetResults(operands);
                static_cast<void>(kCall(operands));
                return ResultBytes(operands);
            }};
}

// A call that writes operands.result and returns a code.
template <auto kCall>
constexpr Contestant WritesWordsWithCode(const char* name) {
    return {name, Measure<kCall>, [](const Operands& operands) {
                ResetResults(operands);
                const int code = kCall(operands);
                return CodeText(code) + ' ' + ResultBytes(operands);
            }};
}

// A call that writes operands.resultMemory.
template <auto kCall>
constexpr Contestant WritesMemory(const char* name) {
    return {name, Measure<kCall>, [](const Operands& operands) {
                ResetResults(operands);
                static_cast<void>(kCall(operands));
                return MemoryBytes(operands);
            }};
}

// A call that writes operands.resultMemory and returns a code.
template <auto kCall>
constexpr Contestant WritesMemoryWithCode(const char* name) {
    return {name, Measure<kCall>, [](const Operands& operands) {
                ResetResults(operands);
                const int code = kCall(operands);
                return CodeText(code) + ' ' + MemoryBytes(operands);
            }};
}

// A call that returns a code.
template <auto kCall>
constexpr Contestant ReturnsCode(const char* name) {
    return {name, Measure<kCall>,
            [](const Operands& operands) { return CodeText(kCall(operands)); }};
}

// A call that returns a real.
template <auto kCall>
constexpr Contestant ReturnsReal(const char* name) {
    return {name, Measure<kCall>,
            [](const Operands& operands) { return RealText(kCall(operands)); }};
}

// A call that writes operands.resultReal.
template <auto kCall>
constexpr Contestant WritesReal(const char* name) {
    return {name, Measure<kCall>, [](const Operands& operands) {
                ResetResults(operands);
                kCall(operands);
                return RealText(*operands.resultReal);
            }};
}

// A call that writes operands.resultLimbs.
template <auto kCall>
constexpr Contestant WritesLimbs(const char* name) {
    return {name, Measure<kCall>, [](const Operands& operands) {
                ResetResults(operands);
                static_cast<void>(kCall(operands));
                UnpackResultLimbs(operands);
                return ResultBytes(operands);
            }};
}

// A call that returns a text.
template <auto kCall>
constexpr Contestant ReturnsText(const char* name) {
    return {name, Measure<kCall>,
            [](const Operands& operands) { return std::string(kCall(operands)); }};
}

// A call that writes operands.resultDigits and returns their count.
template <auto kCall>
constexpr Contestant WritesDigits(const char* name) {
    return {name, Measure<kCall>,
            [](const Operands& operands) { return DigitText(operands, kCall(operands)); }};
}

}  // namespace tarn::bench

#endif  // TARN_BENCH_CONTESTANT_H
