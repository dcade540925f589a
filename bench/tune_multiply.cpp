// Measures each product algorithm on both sides of its threshold (src/arith/natural/thresholds.h)
// against the next one and against GMP. A row is one algorithm at one count; the counter `gmp` is
// its time over that of mpn_mul or mpn_sqr on the same values, measured in the same row. Rows
// called long multiply by an operand four times as long.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <gmp.h>
#include <random>
#include <string>
#include <vector>

#include "arith/natural/multiply.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

// a is `longer` times as long as b.
struct Operands {
    Operands(std::size_t limbs, std::size_t longer)
        : count(limbs),
          a(longer * limbs),
          b(limbs),
          result(a.size() + limbs),
          gmpResult(a.size() + limbs) {
        std::mt19937_64 random(limbs);
        std::generate(a.begin(), a.end(), random);
        std::generate(b.begin(), b.end(), random);
    }
    std::size_t count;
    std::vector<Limb> a, b, result, gmpResult;
};

using Call = void (*)(Operands&, Limb* scratch);
using Scratch = std::size_t (*)(std::size_t count);

struct Form {
    const char* name;
    bool isSquare;
    Call call;
    Scratch scratch;
    std::size_t longer = 1;
};

constexpr std::size_t kLonger = 4;

std::size_t NoScratch(std::size_t) {
    return 0;
}
std::size_t TransformScratch(std::size_t count) {
    return MultiplyNttScratch(count, count);
}

void Gmp(Operands& o, bool isSquare) {
    const auto aCount = static_cast<mp_size_t>(o.a.size());
    const auto bCount = static_cast<mp_size_t>(o.b.size());
    if (isSquare) {
        mpn_sqr(o.gmpResult.data(), o.a.data(), aCount);
    } else {
        mpn_mul(o.gmpResult.data(), o.a.data(), aCount, o.b.data(), bCount);
    }
}

template <auto kMultiply>
void Product(Operands& o, Limb* scratch) {
    kMultiply(o.result.data(), o.a.data(), o.b.data(), o.count, scratch);
}
template <auto kMultiply>
void SquareOf(Operands& o, Limb* scratch) {
    kMultiply(o.result.data(), o.a.data(), nullptr, o.count, scratch);
}

const Form kBasecase = {"basecase", false,
                        [](Operands& o, Limb*) {
                            MultiplyBasecase(o.result.data(), o.a.data(), o.count, o.b.data(),
                                             o.count);
                        },
                        NoScratch};
const Form kSquareBasecase = {
    "basecase", true,
    [](Operands& o, Limb*) { SquareBasecase(o.result.data(), o.a.data(), o.count); }, NoScratch};
const Form kLowBasecase = {"low_basecase", false,
                           [](Operands& o, Limb*) {
                               MultiplyLowBasecase(o.result.data(), o.a.data(), o.b.data(),
                                                   o.count);
                           },
                           NoScratch};
const Form kTransform = {"ntt", false,
                         [](Operands& o, Limb* scratch) {
                             MultiplyNtt(o.result.data(), o.a.data(), o.count, o.b.data(), o.count,
                                         scratch);
                         },
                         TransformScratch};
const Form kSquareTransform = {"ntt", true,
                               [](Operands& o, Limb* scratch) {
                                   MultiplyNtt(o.result.data(), o.a.data(), o.count, nullptr,
                                               o.count, scratch);
                               },
                               TransformScratch};
const Form kKaratsuba = {"karatsuba", false, Product<MultiplyKaratsuba>, MultiplyKaratsubaScratch};
const Form kSquareKaratsuba = {"karatsuba", true, SquareOf<MultiplyKaratsuba>,
                               MultiplyKaratsubaScratch};
const Form kToom3 = {"toom3", false, Product<MultiplyToom3>, MultiplyToom3Scratch};
const Form kSquareToom3 = {"toom3", true, SquareOf<MultiplyToom3>, MultiplyToom3Scratch};
const Form kMulders = {"low_mulders", false, Product<MultiplyLowMulders>,
                       MultiplyLowMuldersScratch};
const Form kPieces = {
    "pieces", false,
    [](Operands& o, Limb* scratch) {
        MultiplyPieces(o.result.data(), o.a.data(), o.a.size(), o.b.data(), o.b.size(), scratch);
    },
    [](std::size_t count) { return MultiplyPiecesScratch(kLonger * count, count); }, kLonger};
const Form kWideTransform = {
    "ntt", false,
    [](Operands& o, Limb* scratch) {
        MultiplyNtt(o.result.data(), o.a.data(), o.a.size(), o.b.data(), o.b.size(), scratch);
    },
    [](std::size_t count) { return MultiplyNttScratch(kLonger * count, count); }, kLonger};
const Form kAny = {"any", false, Product<MultiplyBalanced>, MultiplyBalancedScratch};
const Form kAnySquare = {"any", true, SquareOf<MultiplyBalanced>, MultiplyBalancedScratch};
const Form kAnyLow = {"low_any", false, Product<MultiplyLow>, MultiplyLowScratch};

// The least time of a few batches: what a noisy machine can't fake.
template <class Step>
double Seconds(std::size_t calls, Step&& step) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    for (std::size_t i = 0; i < calls; ++i)
        step();
    return std::chrono::duration<double>(Clock::now() - start).count() / static_cast<double>(calls);
}

void Measure(benchmark::State& state, const Form& form, std::size_t count) {
    Operands operands(count, form.longer);
    std::vector<Limb> scratch(form.scratch(count) + 1);
    const std::size_t calls = std::max<std::size_t>(1, 200000 / (count * 10));
    double ours = 1e9;
    double gmp = 1e9;
    for (auto _ : state) {
        const double oursNow = Seconds(calls, [&] { form.call(operands, scratch.data()); });
        const double gmpNow = Seconds(calls, [&] { Gmp(operands, form.isSquare); });
        ours = std::min(ours, oursNow);
        gmp = std::min(gmp, gmpNow);
        state.SetIterationTime(oursNow);
    }
    state.counters["best_ns"] = ours * 1e9;
    state.counters["gmp"] = ours / gmp;
}

void Register(const Form& form, const std::vector<std::size_t>& counts) {
    for (const std::size_t count : counts) {
        const char* const kind = form.isSquare ? "square/" : form.longer > 1 ? "long/" : "product/";
        const std::string name = kind + std::to_string(count) + "/" + form.name;
        benchmark::RegisterBenchmark(
            name.c_str(), [&form, count](benchmark::State& state) { Measure(state, form, count); })
            ->UseManualTime()
            ->Iterations(count < 2000 ? 40 : 5);
    }
}

// Counts from two thirds of the threshold to one and a half times it.
void RegisterPair(const Form& below, const Form& above, std::size_t threshold) {
    for (std::size_t twelfths = 8; twelfths <= 18; twelfths += twelfths < 14 ? 1 : 2) {
        const std::vector<std::size_t> counts = {threshold * twelfths / 12};
        Register(below, counts);
        Register(above, counts);
    }
}

void RegisterAll() {
    RegisterPair(kBasecase, kKaratsuba, kKaratsubaThreshold);
    RegisterPair(kKaratsuba, kToom3, kToom3Threshold);
    RegisterPair(kToom3, kTransform, kNttThreshold);
    RegisterPair(kPieces, kWideTransform, kNttUnbalancedThreshold);
    RegisterPair(kSquareBasecase, kSquareKaratsuba, kSquareKaratsubaThreshold);
    RegisterPair(kSquareKaratsuba, kSquareToom3, kSquareToom3Threshold);
    RegisterPair(kSquareToom3, kSquareTransform, kSquareNttThreshold);
    RegisterPair(kLowBasecase, kMulders, kMuldersThreshold);
    RegisterPair(kMulders, kAny, kLowByFullThreshold);
    const std::vector<std::size_t> counts = {
        2,   3,   4,   6,   8,   12,   16,   24,   32,   48,    64,    96,     128,
        192, 256, 384, 512, 768, 1024, 2048, 4096, 8192, 16384, 65536, 250000, 312500};
    Register(kAny, counts);
    Register(kAnySquare, counts);
    Register(kAnyLow, counts);
}

}  // namespace
}  // namespace tarn

int main(int argc, char** argv) {
    tarn::RegisterAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
