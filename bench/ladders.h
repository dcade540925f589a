// What the lists of operations are written with: contestants, shapes and ladders of more than one
// family.
#ifndef TARN_BENCH_LADDERS_H
#define TARN_BENCH_LADDERS_H

#include <vector>

#include "bits.h"
#include "contestant.h"
#include "operations.h"
#include "ours.h"
#include "peers.h"

namespace tarn::bench {

using Ladder = std::vector<Versus>;

inline Ladder WithTail(Ladder ladder, const Ladder& tail) {
    ladder.insert(ladder.end(), tail.begin(), tail.end());
    return ladder;
}

/*------------------------------------------------------------------------------------------------
 * Ours, by what a call writes or returns
 *----------------------------------------------------------------------------------------------*/

inline constexpr const char* kOurs = "tarnlib";

template <auto kCall>
constexpr Contestant kWords = WritesWords<kCall>(kOurs);
template <auto kCall>
constexpr Contestant kWordsWithCode = WritesWordsWithCode<kCall>(kOurs);
template <auto kCall>
constexpr Contestant kMemory = WritesMemory<kCall>(kOurs);
template <auto kCall>
constexpr Contestant kMemoryWithCode = WritesMemoryWithCode<kCall>(kOurs);
template <auto kCall>
constexpr Contestant kCode = ReturnsCode<kCall>(kOurs);
template <auto kCall>
constexpr Contestant kReal = ReturnsReal<kCall>(kOurs);
template <auto kCall>
constexpr Contestant kWritesReal = WritesReal<kCall>(kOurs);
template <auto kCall>
constexpr Contestant kTexts = ReturnsText<kCall>(kOurs);

/*------------------------------------------------------------------------------------------------
 * Peers and oracles
 *----------------------------------------------------------------------------------------------*/

inline constexpr Contestant kFloor{"floor", Measure<CallNothing>, nullptr};
inline constexpr Contestant kMemcpy = WritesWords<CopyBytes>("memcpy");
inline constexpr Contestant kFieldMemcpy = WritesWords<CopyFieldBytes>("memcpy field");
inline constexpr Contestant kMemoryMemcpy = WritesMemory<CopyMemoryBytes>("memcpy bytes");
inline constexpr Contestant kMemcmp{"memcmp", Measure<CompareBytes>, nullptr};

// A code that is right by how the operands were made.
template <int kRight>
int RightCode(const Operands&) {
    return kRight;
}
template <int kRight>
constexpr Contestant kRightCode = ReturnsCode<RightCode<kRight>>("given");

template <auto kBit>
constexpr Contestant kBitByBit = WritesWords<BitByBit<kBit>>("bit by bit");
inline constexpr Contestant kField = WritesWords<FieldBitByBit<FieldBit>>("bit by bit");
inline constexpr Contestant kAssigned = WritesWords<BitByBit<AssignedBit>>("bit by bit");

// A math function and the calls that an export may cost beyond it.
template <auto kFunction, int kArgument = kBelowOne>
constexpr Contestant kMath = WritesReal<UnaryMath<kFunction, kArgument>>("math, calls");
template <auto kFunction, int kArgument = kBelowOne>
constexpr Contestant kMathOfTwo = WritesReal<BinaryMath<kFunction, kArgument>>("math, calls");

/*------------------------------------------------------------------------------------------------
 * Shapes
 *----------------------------------------------------------------------------------------------*/

inline constexpr Shape kUnsigned{};
inline constexpr Shape kSigned{.isSigned = true};
inline constexpr Shape kHalf{.bShare = 2};
inline constexpr Shape kSignedHalf{.isSigned = true, .bShare = 2};
inline constexpr Shape kFourState{.values = Values::kFourState};
inline constexpr Shape kSignedFourState{.isSigned = true, .values = Values::kFourState};

// Equal operands are what a comparison must read to the end; so are ones or zeros for a reduction.
inline constexpr Shape kEqual{.areEqual = true};
inline constexpr Shape kSignedEqual{.isSigned = true, .areEqual = true};
inline constexpr Shape kEqualFourState{.values = Values::kFourState, .areEqual = true};
inline constexpr Shape kAllOnes{.values = Values::kOnes, .areEqual = true};
inline constexpr Shape kAllZeros{.values = Values::kZeros, .areEqual = true};

// By bits, by whole words.
inline constexpr Shape kBitShift{.values = Values::kFourState, .amount = 13};
inline constexpr Shape kSignedBitShift{
    .isSigned = true, .values = Values::kFourState, .amount = 13};
inline constexpr Shape kWordShift{.values = Values::kFourState, .amount = 32};
inline constexpr Shape kSignedWordShift{
    .isSigned = true, .values = Values::kFourState, .amount = 32};

// A field is half of the vector; one that is written is of a result that starts as a, one that is
// concatenated of zeros.
inline constexpr Shape kFieldRead{.bShare = 2, .values = Values::kFourState};
inline constexpr Shape kSignedFieldRead{
    .isSigned = true, .bShare = 2, .values = Values::kFourState};
inline constexpr Shape kFieldWrite{.bShare = 2, .values = Values::kFourState, .start = Start::kA};
inline constexpr Shape kFieldPlace{
    .bShare = 2, .values = Values::kFourState, .start = Start::kZeros};

inline constexpr Shape kInPlace{.start = Start::kA};

/*------------------------------------------------------------------------------------------------
 * Ladders. Up to 64 bits the call itself is what an operation is measured by.
 *----------------------------------------------------------------------------------------------*/

inline const Ladder kMove = {{1, 32, kFloor, 2.0}, {64, 64, kFloor, 3.0}};
inline const Ladder kCompute = {{1, 32, kFloor, 2.5}, {64, 64, kFloor, 3.0}};
inline const Ladder kLogical = {{1, 32, kFloor, 2.5}, {64, 64, kFloor, 3.5}};
inline const Ladder kUnlimited = {{1, 64, kFloor, kNoLimit}};

inline const Ladder kBitwise = WithTail(
    kLogical,
    {{128, 512, kMemcpy, kNoLimit}, {4096, 65536, kMemcpy, 5.5}, {kWidest, kWidest, kMemcpy, 1.7}});
inline const Ladder kReadAll = WithTail(
    kLogical,
    {{128, 512, kMemcmp, kNoLimit}, {4096, 4096, kMemcmp, 3.0}, {65536, kWidest, kMemcmp, 2.2}});
inline const Ladder kShift = WithTail(kLogical, {{128, 512, kMemcpy, kNoLimit},
                                                 {4096, 4096, kMemcpy, 4.0},
                                                 {65536, 65536, kMemcpy, 3.0},
                                                 {kWidest, kWidest, kMemcpy, 1.4}});
inline const Ladder kFieldCopy = {{1, 32, kFloor, 2.5},
                                  {64, 64, kFloor, kNoLimit},
                                  {128, 512, kFieldMemcpy, kNoLimit},
                                  {4096, 4096, kFieldMemcpy, 5.0},
                                  {65536, 65536, kFieldMemcpy, 3.5},
                                  {kWidest, kWidest, kFieldMemcpy, 1.7}};
inline const Ladder kMemoryCopy = WithTail(
    kUnlimited, {{128, 512, kMemoryMemcpy, kNoLimit}, {4096, kWidest, kMemoryMemcpy, 2.5}});

// To be at least as fast as a peer that computes the same, at `from` bits and more.
inline Ladder NoSlowerThan(const Contestant& peer, int from = 1) {
    return {{from, kWidest, peer, 1.0}};
}

// Writes with the flag, for KeepFieldTwice: against writes that do change something.
template <auto kExport>
Ladder AgainstChanges() {
    return {{32, kWidest, WritesWords<ChangeFieldTwice<kExport>>("changing"), 1.05}};
}

// What grows faster than its operands: by the call up to 64 bits, by the peer above.
inline Ladder Product(double callLimit, const Contestant& peer) {
    return {{1, 64, kFloor, callLimit}, {128, 65536, peer, 1.5}, {kWidest, kWidest, peer, 2.5}};
}

inline Ladder Product(double callLimit, const Contestant& peer, int widest) {
    return WithTail(Product(callLimit, peer), {{widest, widest, peer, 3.0}});
}

// For what exists for one word alone.
inline const Ladder kNarrow = {{1, 32, kFloor, 2.5}};

inline const Ladder kConvertReal = {
    {1, 32, kFloor, 3.0}, {64, 64, kFloor, kNoLimit}, {128, kWidest, kMemcpy, kNoLimit}};

// Against kMath or kMathOfTwo, at one width, as none reaches a math function.
inline Ladder MathAndCalls(const Contestant& math) {
    return {{1, 1, math, 1.0}};
}

}  // namespace tarn::bench

#endif  // TARN_BENCH_LADDERS_H
