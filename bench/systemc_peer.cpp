#include "systemc_peer.h"

#include <string>
#include <systemc>

#include "bits.h"

// The library has a main of its own that calls this one; it never runs, as ours comes first.
int sc_main(int, char**) {
    return 0;
}

namespace tarn::bench {
namespace {

using Vector = sc_dt::sc_lv_base;

// Indexed by aval and bval.
constexpr char kLogicCharacters[2][2] = {{'0', 'Z'}, {'1', 'X'}};

Vector MakeVector(const VectorWord* words, int width) {
    std::string text;
    for (int i = width - 1; i >= 0; --i) {
        const Bit bit = BitOf(words, i);
        text += kLogicCharacters[bit.aval][bit.bval];
    }
    Vector vector(width);
    vector = text.c_str();
    return vector;
}

void StoreVector(const Vector& vector, const Operands& o) {
    std::string text = vector.to_string();
    std::reverse(text.begin(), text.end());
    std::fill_n(o.result, o.wordCount, VectorWord{0, 0});
    for (int i = 0; i < o.width; ++i) {
        const char character = text[static_cast<std::size_t>(i)];
        o.result[i / 32].aval |= (character == '1' || character == 'X' ? 1U : 0U) << (i % 32);
        o.result[i / 32].bval |= (character == 'Z' || character == 'X' ? 1U : 0U) << (i % 32);
    }
}

struct Vectors {
    explicit Vectors(const Operands& o)
        : result(o.width),
          a(MakeVector(o.a, o.width)),
          b(MakeVector(o.b, o.width)),
          amount(static_cast<int>(o.amount)) {}

    Vector result, a, b;
    int amount;
};

// Each is the cheapest of the ways to write it: none makes a vector that it throws away. All stand
// behind a call, as ours do.
[[gnu::noinline]] void And(Vectors& v) {
    v.result = v.a;
    v.result &= v.b;
}

[[gnu::noinline]] void Or(Vectors& v) {
    v.result = v.a;
    v.result |= v.b;
}

[[gnu::noinline]] void Xor(Vectors& v) {
    v.result = v.a;
    v.result ^= v.b;
}

[[gnu::noinline]] void Not(Vectors& v) {
    v.result = v.a;
    v.result.b_not();
}

[[gnu::noinline]] void ShiftLeft(Vectors& v) {
    v.result = v.a;
    v.result <<= v.amount;
}

[[gnu::noinline]] void ShiftRight(Vectors& v) {
    v.result = v.a;
    v.result >>= v.amount;
}

[[gnu::noinline]] int Equal(Vectors& v) {
    return v.a == v.b ? 1 : 0;
}

template <auto kCall>
void MeasureVectors(benchmark::State& state, const Operands& operands) {
    Vectors vectors(operands);
    for (auto _ : state) {
        if constexpr (std::is_void_v<decltype(kCall(vectors))>) {
            kCall(vectors);
        } else {
            benchmark::DoNotOptimize(kCall(vectors));
        }
        benchmark::ClobberMemory();
    }
}

template <auto kCall>
std::string Outcome(const Operands& operands) {
    Vectors vectors(operands);
    if constexpr (std::is_void_v<decltype(kCall(vectors))>) {
        kCall(vectors);
        StoreVector(vectors.result, operands);
        return ResultBytes(operands);
    } else {
        return CodeText(kCall(vectors));
    }
}

template <auto kCall>
constexpr Contestant kVectors{"sc_lv_base", MeasureVectors<kCall>, Outcome<kCall>};

}  // namespace

Contestant SystemcAnd() {
    return kVectors<And>;
}

Contestant SystemcOr() {
    return kVectors<Or>;
}

Contestant SystemcXor() {
    return kVectors<Xor>;
}

Contestant SystemcEqual() {
    return kVectors<Equal>;
}

Contestant SystemcNot() {
    return kVectors<Not>;
}

Contestant SystemcShiftLeft() {
    return kVectors<ShiftLeft>;
}

Contestant SystemcShiftRight() {
    return kVectors<ShiftRight>;
}

}  // namespace tarn::bench
