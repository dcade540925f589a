// The operands of every contestant, made in one place from a fixed seed.
#ifndef TARN_BENCH_OPERANDS_H
#define TARN_BENCH_OPERANDS_H

#include <compare>
#include <cstddef>
#include <cstdint>
#include <gmp.h>

#include <tarnlib/vector.h>

namespace tarn::bench {

// What an operation needs of its operands beyond the width.
struct Shape {
    bool isSigned = false;  // top words hold copies of the sign above the width
    int bShare = 1;         // b is so many times narrower than the result
    bool inPlace = false;   // the result starts as a, and is read
    int radix = 0;          // the digits of a in this radix are wanted; 0 for none

    auto operator<=>(const Shape&) const = default;
};

inline constexpr Shape kUnsigned{};
inline constexpr Shape kSigned{.isSigned = true};

// The values in both forms: vectors for tarnlib, packed limbs and digits for the peers. a and b are
// known and odd, and the top bit of each is set; mixed has X and Z bits all over and one word more
// than its width needs.
struct Operands {
    int width;
    int bWidth;
    std::size_t wordCount;
    VectorWord* result;
    const VectorWord* a;
    const VectorWord* b;
    const VectorWord* mixed;

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

    bool inPlace;
};

inline constexpr char kDigitCharacters[] = "0123456789abcdef";

// Where the field of a part-select starts: at no byte's edge.
inline constexpr unsigned kFieldOffset = 13;

// What the conversions of machine values convert; its extension is not zeros.
inline constexpr std::int32_t kInteger = -123456789;
inline constexpr std::uint64_t kLongInteger = 0xFEDCBA9876543210;

// A power's exponent: known bits in a pattern of no kind, in a width of its own.
inline constexpr int kExponentWidth = 16;
inline constexpr VectorWord kExponent{0xB5C3, 0};

// Made at the first call and kept, so that all operations of one shape work on the same storage.
const Operands& OperandsFor(const Shape& shape, int width);

// Puts the results in the state that a call is to find: a copy of a for an operation in place, else
// what no right result looks like.
void ResetResults(const Operands& operands);

}  // namespace tarn::bench

#endif  // TARN_BENCH_OPERANDS_H
