// Measures division and decimal conversion of naturals: each algorithm on both sides of its
// threshold (src/arith/natural/thresholds.h), and the whole over all widths, against GMP. A row is
// one algorithm at one count; `gmp` is its time over that of mpn_tdiv_qr, mpn_set_str or
// mpn_get_str on the same values, `doubling` its time at twice the count over that at the count.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <gmp.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "arith/natural/decimal_power.h"
#include "arith/natural/divide.h"
#include "arith/natural/divide_base.h"
#include "arith/natural/radix.h"
#include "arith/natural/radix_parse.h"
#include "arith/natural/radix_text.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

using Limbs = std::vector<Limb>;

// One measured call and GMP's call for the same result.
struct Work {
    std::function<void()> ours;
    std::function<void()> gmp;
};
using MakeWork = std::function<Work(std::size_t count)>;

Limbs RandomLimbs(std::size_t count, unsigned seed) {
    std::mt19937_64 random(seed);
    Limbs limbs(count);
    std::generate(limbs.begin(), limbs.end(), random);
    limbs.back() |= 1;
    return limbs;
}

// 2 * count limbs by count limbs.
struct Division {
    explicit Division(std::size_t count)
        : dCount(count),
          a(RandomLimbs(2 * count, 1)),
          d(RandomLimbs(count, 2)),
          quotient(count + 1),
          remainder(count),
          scratch(std::max({DivideScratch(2 * count, count), DivideByHalvesScratch(count),
                            DivideByReciprocalScratch(2 * count, count)}) +
                  1) {}
    void Gmp() {
        const auto limbs = static_cast<mp_size_t>(dCount);
        mpn_tdiv_qr(quotient.data(), remainder.data(), 0, a.data(), 2 * limbs, d.data(), limbs);
    }
    std::size_t dCount;
    Limbs a, d, quotient, remainder, scratch;
};

Work AnyDivision(std::size_t count) {
    const auto data = std::make_shared<Division>(count / 2);
    return {[data] {
                Divide(data->quotient.data(), data->remainder.data(), data->a.data(),
                       2 * data->dCount, data->d.data(), data->dCount, data->scratch.data());
            },
            [data] { data->Gmp(); }};
}

using DivideInPlace = Limb (*)(Division& data, Limb* a, const TopDivisor& top);

Work NormalisedDivision(std::size_t count, DivideInPlace divide) {
    const auto data = std::make_shared<Division>(count);
    data->d.back() |= Limb{1} << (kLimbBits - 1);
    const TopDivisor top(data->d[count - 1], data->d[count - 2]);
    const auto a = std::make_shared<Limbs>(2 * count);
    return {[data, a, top, divide] {
                *a = data->a;
                benchmark::DoNotOptimize(divide(*data, a->data(), top));
            },
            [data] { data->Gmp(); }};
}

Limb Schoolbook(Division& data, Limb* a, const TopDivisor& top) {
    return DivideSchoolbook(data.quotient.data(), a, 2 * data.dCount, data.d.data(), data.dCount,
                            top);
}
Limb Halves(Division& data, Limb* a, const TopDivisor& top) {
    return DivideByHalves(data.quotient.data(), a, 2 * data.dCount, data.d.data(), data.dCount, top,
                          kDivideHalvesLimbs, data.scratch.data());
}
// One halving and no more, which is what a threshold decides on.
Limb OneHalving(Division& data, Limb* a, const TopDivisor& top) {
    return DivideByHalves(data.quotient.data(), a, 2 * data.dCount, data.d.data(), data.dCount, top,
                          std::max<std::size_t>(4, data.dCount), data.scratch.data());
}
template <std::size_t kLeafCount>
Limb Reciprocal(Division& data, Limb* a, const TopDivisor& top) {
    return DivideByReciprocal(data.quotient.data(), a, 2 * data.dCount, data.d.data(), data.dCount,
                              top, kLeafCount, data.scratch.data());
}

// The count is one of digits for parsing.
Work Parse(std::size_t digitCount, std::size_t leafChunks) {
    struct Data {
        std::vector<std::uint8_t> digits;
        Limbs result, scratch;
    };
    const auto data = std::make_shared<Data>();
    std::mt19937_64 random(3);
    data->digits.resize(digitCount);
    for (std::uint8_t& digit : data->digits)
        digit = static_cast<std::uint8_t>(random() % 10);
    data->digits[0] = 7;
    data->result.resize(FromDecimalLimbs(digitCount) + 1);
    data->scratch.resize(
        std::max(FromDecimalScratch(digitCount), ParseByHalvesScratch(digitCount, leafChunks)) + 1);
    return {
        [data, leafChunks] {
            Limb* const result = data->result.data();
            const std::uint8_t* const digits = data->digits.data();
            const std::size_t count = data->digits.size();
            if (leafChunks == 0) {
                FromDecimal(result, digits, count, data->scratch.data());
            } else if (leafChunks * kChunkDigits >= count) {
                ParseByChunks(result, digits, count);
            } else {
                ParseByHalves(result, digits, count, leafChunks, data->scratch.data());
            }
        },
        [data] { mpn_set_str(data->result.data(), data->digits.data(), data->digits.size(), 10); }};
}

Work Format(std::size_t count, std::size_t leafCount) {
    struct Data {
        Limbs value, a, scratch;
        std::vector<unsigned char> text;
    };
    const auto data = std::make_shared<Data>();
    data->value = RandomLimbs(count, 4);
    data->a.resize(count + 1);
    data->text.resize(count * 20 + 2);
    data->scratch.resize(
        std::max(ToDecimalScratch(count),
                 FormatByHalvesScratch(count, std::max<std::size_t>(2, leafCount))) +
        1);
    return {[data, leafCount] {
                const std::size_t limbs = data->value.size();
                std::copy(data->value.begin(), data->value.end(), data->a.begin());
                char* const end = reinterpret_cast<char*>(data->text.data() + data->text.size());
                if (leafCount == 0) {
                    ToDecimal(end, data->a.data(), limbs, data->scratch.data());
                } else if (leafCount >= limbs) {
                    FormatByChunks(end, data->a.data(), limbs);
                } else {
                    FormatByHalves(end, data->a.data(), limbs, leafCount, data->scratch.data());
                }
            },
            [data] {
                std::copy(data->value.begin(), data->value.end(), data->a.begin());
                mpn_get_str(data->text.data(), 10, data->a.data(),
                            static_cast<mp_size_t>(data->value.size()));
            }};
}

// Enough calls for 20 microseconds, so that the clock's own cost does not show.
std::size_t CallsFor(const std::function<void()>& step) {
    using Clock = std::chrono::steady_clock;
    for (std::size_t calls = 1;; calls *= 2) {
        const auto start = Clock::now();
        for (std::size_t i = 0; i < calls; ++i)
            step();
        if (Clock::now() - start > std::chrono::microseconds(20)) return calls;
    }
}

double Seconds(const std::function<void()>& step, std::size_t calls) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    for (std::size_t i = 0; i < calls; ++i)
        step();
    return std::chrono::duration<double>(Clock::now() - start).count() / static_cast<double>(calls);
}

// The least times of a few turns, taken by turns: what a noisy machine can't fake.
void Measure(benchmark::State& state, const MakeWork& make, std::size_t count, bool isDoubled) {
    const Work work = make(count);
    const Work twice = isDoubled ? make(2 * count) : Work{};
    const std::size_t calls = CallsFor(work.ours);
    double ours = 1e9, gmp = 1e9, doubled = 1e9;
    for (auto _ : state) {
        const double now = Seconds(work.ours, calls);
        ours = std::min(ours, now);
        gmp = std::min(gmp, Seconds(work.gmp, calls));
        if (isDoubled) doubled = std::min(doubled, Seconds(twice.ours, calls));
        state.SetIterationTime(now);
    }
    state.counters["best_ns"] = ours * 1e9;
    state.counters["gmp"] = ours / gmp;
    if (isDoubled) state.counters["doubling"] = doubled / ours;
}

void Register(const std::string& name, std::size_t count, MakeWork make, bool isDoubled = false) {
    const std::string row = name + "/" + std::to_string(count);
    benchmark::RegisterBenchmark(
        row.c_str(), [make = std::move(make), count, isDoubled](
                         benchmark::State& state) { Measure(state, make, count, isDoubled); })
        ->UseManualTime()
        ->Iterations(count < 2000    ? 60
                     : count < 20000 ? 9
                                     : 3);
}

// Counts from half of a threshold to twice it.
std::vector<std::size_t> Around(std::size_t threshold) {
    std::vector<std::size_t> counts;
    for (const std::size_t eighths : {4U, 6U, 7U, 8U, 9U, 10U, 12U, 16U})
        counts.push_back(threshold * eighths / 8);
    return counts;
}

void RegisterThresholds() {
    const auto division = [](DivideInPlace divide) {
        return [divide](std::size_t count) { return NormalisedDivision(count, divide); };
    };
    for (const std::size_t count : Around(kDivideHalvesLimbs)) {
        Register("divide_leaf/schoolbook", count, division(Schoolbook));
        Register("divide_leaf/one_halving", count, division(OneHalving));
    }
    for (const std::size_t count : Around(kDivideReciprocalLimbs)) {
        Register("divide_wide/halves", count, division(Halves));
        Register("divide_wide/reciprocal", count, division(Reciprocal<kReciprocalLeafLimbs>));
        Register("divide_wide/reciprocal_half_leaf", count,
                 division(Reciprocal<kReciprocalLeafLimbs / 2>));
        Register("divide_wide/reciprocal_double_leaf", count,
                 division(Reciprocal<kReciprocalLeafLimbs * 2>));
    }
    for (const std::size_t chunks : Around(kParseHalvesChunks)) {
        const std::size_t digits = chunks * kChunkDigits;
        Register("parse_leaf/chunks", digits, [=](std::size_t n) { return Parse(n, chunks); });
        Register("parse_leaf/one_halving", digits,
                 [=](std::size_t n) { return Parse(n, (chunks + 1) / 2); });
    }
    for (const std::size_t limbs : Around(kFormatHalvesLimbs)) {
        Register("format_leaf/chunks", limbs, [](std::size_t n) { return Format(n, n); });
        Register("format_leaf/one_halving", limbs,
                 [](std::size_t n) { return Format(n, (n + 3) / 2); });
    }
}

void RegisterWhole() {
    const auto parse = [](std::size_t digits) { return Parse(digits, 0); };
    const auto format = [](std::size_t limbs) { return Format(limbs, 0); };
    // Digits of 64 to 16,000,000 bits.
    for (const std::size_t digits : {19U, 38U, 77U, 154U, 308U, 616U, 1233U, 2466U, 4932U, 9864U,
                                     19728U, 78913U, 315653U, 1204119U, 4816480U})
        Register("parse/digits", digits, parse, digits < 1000000);
    for (const std::size_t limbs :
         {2U, 4U, 8U, 16U, 24U, 32U, 64U, 128U, 256U, 512U, 1024U, 4096U, 16384U, 65536U, 125000U})
        Register("divide/limbs", limbs, AnyDivision, limbs < 100000);
    for (const std::size_t limbs :
         {1U, 2U, 4U, 8U, 16U, 32U, 64U, 128U, 256U, 512U, 1024U, 4096U, 16384U, 65536U, 250000U})
        Register("format/limbs", limbs, format, limbs < 100000);
}

}  // namespace
}  // namespace tarn

int main(int argc, char** argv) {
    tarn::RegisterThresholds();
    tarn::RegisterWhole();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
