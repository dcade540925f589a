// The operands of every contestant, made in one place from a fixed seed.
#ifndef TARN_BENCH_OPERANDS_H
#define TARN_BENCH_OPERANDS_H

#include <compare>
#include <cstddef>
#include <cstdint>
#include <gmp.h>

#include <tarnlib/vector.h>

namespace tarn::bench {

// The bits of a and b. Known ones are random, but odd and with the top bit set; of four-state ones
// a quarter is X or Z.
enum class Values { kKnown, kFourState, kOnes, kZeros };

// What a result holds before the call: what no right result looks like, a, or zeros.
enum class Start { kWrong, kA, kZeros };

// What an operation needs of its operands beyond the width.
struct Shape {
    bool isSigned = false;  // top words hold copies of the sign above the width
    int bShare = 1;         // b is so many times narrower than the result
    Values values = Values::kKnown;
    bool areEqual = false;  // b is a copy of a
    Start start = Start::kWrong;
    unsigned amount = 0;  // how far a shift goes, if the width is more than that
    int radix = 0;        // the digits of a in this radix are wanted; 0 for none

    auto operator<=>(const Shape&) const = default;
};

// The values in all forms: vectors and memory words for tarnlib, packed limbs and digits for the
// peers. mixed has X and Z bits all over and one word more than its width needs.
struct Operands {
    int width;
    int bWidth;
    std::size_t wordCount;
    std::size_t bWordCount;
    VectorWord* result;
    const VectorWord* a;
    const VectorWord* b;
    const VectorWord* mixed;

    unsigned amount;
    // A field as wide as b starts at this bit of a and of the result.
    unsigned fieldOffset;

    // a as a memory word, and a result in that form.
    std::size_t memoryByteCount;
    unsigned char* resultMemory;
    const unsigned char* memory;

    // Read through the pointer, so that no compiler takes a call of a math function out of its
    // loop.
    const double* reals;
    double* resultReal;

    // As many bits as the words of the result; b's are extended above its own bLimbCount. The two
    // results have room for a product.
    mp_size_t limbCount;
    mp_size_t bLimbCount;
    mp_limb_t* resultLimbs;
    mp_limb_t* otherResultLimbs;
    const mp_limb_t* aLimbs;
    const mp_limb_t* bLimbs;

    int radix;
    std::size_t digitCount;
    const char* text;             // the digits of a as characters
    const unsigned char* digits;  // and as values
    unsigned char* resultDigits;

    Start start;
};

inline constexpr char kDigitCharacters[] = "0123456789abcdef";

// Where fields start, in a vector that is wide enough: at no byte's edge.
inline constexpr unsigned kFieldOffset = 7;

// The indices of Operands::reals.
enum { kBelowOne, kAboveOne };

// What the conversions of machine values convert; its extension is not zeros.
inline constexpr std::int32_t kInteger = -123456789;
inline constexpr std::uint64_t kLongInteger = 0xFEDCBA9876543210;

// A power's exponent: known bits in a pattern of no kind, in a width of its own.
inline constexpr int kExponentWidth = 16;
inline constexpr VectorWord kExponent{0xB5C3, 0};

// Made at the first call and kept, so that all operations of one shape work on the same storage.
const Operands& OperandsFor(const Shape& shape, int width);

// Puts the results in the state that a call is to find.
void ResetResults(const Operands& operands);

}  // namespace tarn::bench

#endif  // TARN_BENCH_OPERANDS_H
