// The kernel of addition and subtraction: a run of words with a carry or borrow in.
#ifndef TARN_ARITH_COMBINE_SPAN_H
#define TARN_ARITH_COMBINE_SPAN_H

#include <algorithm>

#include "arith/add.h"
#include "core/word_run.h"

namespace tarn {

template <class Run>
TARN_KERNEL Word WordAt(const Run& run, std::size_t index) noexcept {
    Word word;
    run.Load(index, word);
    return word;
}

// How many words are done, and the carry or borrow out of them.
struct Progress {
    std::size_t count;
    CarryFlag carry;
};

// result[0 .. count) = a Operation b for as many words as the kernel gets through: it stops in
// front of a word or block of words with an unknown bit. A block of a and b is read before that of
// the result is written, so the result may start at either's first word.
template <class Operation>
struct CombineKernel {
    static constexpr std::size_t kBlock = 16;

    // First the unknown test of the whole block, then a chain of additions that nothing else comes
    // between, so that the carry stays in the processor's flag.
    template <class A, class B>
    TARN_KERNEL static bool CombineBlock(VectorWord* result, A a, B b, std::size_t first,
                                         CarryFlag* carry) noexcept {
        Word seen = 0;
        for (std::size_t k = first; k < first + kBlock; ++k) {
            seen |= WordAt(a, k) | WordAt(b, k);
        }
        if (IsUnknown(seen)) return false;
#pragma GCC unroll 16
        for (std::size_t k = first; k < first + kBlock; ++k) {
            std::uint32_t sum = 0;
            *carry = Operation::Step(*carry, Aval(WordAt(a, k)), Aval(WordAt(b, k)), &sum);
            StoreWord(result + k, sum);
        }
        return true;
    }

    template <class A, class B>
    TARN_KERNEL static Progress CombineTail(VectorWord* result, A a, B b, std::size_t first,
                                            std::size_t count, CarryFlag carry) noexcept {
        for (std::size_t i = first; i < count; ++i) {
            const Word aWord = WordAt(a, i), bWord = WordAt(b, i);
            if (IsUnknown(aWord | bWord)) return {i, carry};
            std::uint32_t sum = 0;
            carry = Operation::Step(carry, Aval(aWord), Aval(bWord), &sum);
            StoreWord(result + i, sum);
        }
        return {count, carry};
    }

    template <class A, class B>
    TARN_KERNEL static Progress Run(VectorWord* result, A a, B b, std::size_t count,
                                    CarryFlag carry) noexcept {
        std::size_t i = 0;
        for (; i + kBlock <= count; i += kBlock) {
            if (!CombineBlock(result, a, b, i, &carry)) return {i, carry};
        }
        return CombineTail(result, a, b, i, count, carry);
    }

#if defined(__x86_64__)
    // Each lane combines two known words in 64 bits; what leaves the low half goes to the lane
    // above. That settles a block but where a lane passes on what comes in from the one below,
    // which random words do once in 2^32 times: a bit in the upper half of a result shows it.
    // `below` holds the carries of the lanes in front of the block.
    template <std::size_t kSteps, class A, class B>
    TARN_TARGET_AVX2 TARN_KERNEL static bool CombineLaneBlock(VectorWord* result, const A& a,
                                                              const B& b, std::size_t first,
                                                              Lanes& below) noexcept {
        Lanes seen{}, last = below, sums[kSteps];
#pragma GCC unroll 4
        for (std::size_t k = 0; k < kSteps; ++k) {
            Lanes sum, other;
            a.Load(first + k * kLaneCount, sum);
            b.Load(first + k * kLaneCount, other);
            seen |= sum | other;
            Operation::CombineLanes(sum, other);
            const Lanes carries = sum >> Operation::kCarryBit;
            const Lanes incoming = __builtin_shufflevector(last, carries, 3, 4, 5, 6);
            last = carries;
            sum &= Lanes{} + kValueBits;
            Operation::CombineLanes(sum, incoming);
            seen |= sum;
            sums[k] = sum;
        }
        if (!_mm256_testz_si256(__m256i(seen), __m256i(Lanes{} + kUnknownBits))) return false;
        below = last;
#pragma GCC unroll 4
        for (std::size_t k = 0; k < kSteps; ++k) {
            StoreLanes(result + first + k * kLaneCount, sums[k]);
        }
        return true;
    }

    // Stops in front of a carry that is passed on as well.
    template <class A, class B>
    TARN_TARGET_AVX2 static Progress RunAvx2(VectorWord* result, A aRun, B bRun, std::size_t count,
                                             CarryFlag carry) noexcept {
        const typename A::Held a(aRun);
        const typename B::Held b(bRun);
        Lanes below = {0, 0, 0, carry};
        const auto carryOut = [&below] { return static_cast<CarryFlag>(below[3]); };
        std::size_t i = 0;
        for (; i + kBlock <= count; i += kBlock) {
            if (!CombineLaneBlock<kBlock / kLaneCount>(result, a, b, i, below)) {
                return {i, carryOut()};
            }
        }
        for (; i + kLaneCount <= count; i += kLaneCount) {
            if (!CombineLaneBlock<1>(result, a, b, i, below)) return {i, carryOut()};
        }
        return CombineTail(result, aRun, bRun, i, count, carryOut());
    }
#endif
};

// The plain form, out of line for where the kernel has stopped.
template <class Operation, class A, class B>
[[gnu::noinline]] Progress CombinePlainly(VectorWord* result, A a, B b, std::size_t count,
                                          CarryFlag carry) noexcept {
    return CombineKernel<Operation>::Run(result, a, b, count, carry);
}

// Goes on from `done` up to word `end`; false where an unknown bit is in the way.
template <class Operation, class A, class B>
bool CombineUpTo(std::size_t end, VectorWord* result, A a, B b, Progress& done) noexcept {
    using Kernel = CombineKernel<Operation>;
    // The plain form gets through the words that have stopped the kernel if they are known, and
    // through twice as many each time that the kernel gets nowhere behind them.
    std::size_t plain = Kernel::kBlock;
    while (done.count < end) {
        const std::size_t first = done.count, left = end - first;
        if (left < Kernel::kBlock) {  // not worth a call
            done = Kernel::CombineTail(result, a, b, first, end, done.carry);
            return done.count == end;
        }
        done = RunKernel<Kernel>(result + first, a.From(first), b.From(first), left, done.carry);
        plain = done.count == 0 ? 2 * plain : Kernel::kBlock;
        done.count += first;
        if (done.count == end) return true;
        const std::size_t stop = done.count, count = std::min(end - stop, plain);
        done =
            CombinePlainly<Operation>(result + stop, a.From(stop), b.From(stop), count, done.carry);
        if (done.count < count) return false;
        done.count += stop;
    }
    return true;
}

}  // namespace tarn

#endif  // TARN_ARITH_COMBINE_SPAN_H
