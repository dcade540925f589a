// What the loops that turn words into digit characters have in common.
#ifndef TARN_TEXT_WRITE_COMMON_H
#define TARN_TEXT_WRITE_COMMON_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "arith/pack.h"
#include "text/byte_vector.h"
#include "text/digits.h"

namespace tarn {

inline void StoreEight(char* to, std::uint64_t characters) noexcept {
    std::memcpy(to, &characters, sizeof characters);
}

inline constexpr std::uint64_t kEightZeros = 0x3030303030303030;

inline std::uint64_t JoinBvals(Word low, Word high) noexcept {
    return (low >> kWordBits) | (high & kUnknownBits);
}

// The rule of DigitCharacter for sixteen digits at once, of which `known` has the characters of
// those that are.
template <class Layout>
inline Bytes DigitCharacters(Bytes aval, Bytes bval, Bytes known) noexcept {
    const Bytes all = AllBytes(kDigitMask<Layout>);
    const Bytes anyX = AsMask((aval & bval) != Bytes{});
    const Bytes mixed = Select(anyX, AllBytes('X'), AllBytes('Z'));
    const Bytes uniform = AsMask(aval == all) | AsMask(aval == Bytes{});
    const Bytes isFull = uniform & AsMask(bval == all);
    return Select(AsMask(bval == Bytes{}), known, mixed | (isFull & AllBytes('x' - 'X')));
}
static_assert(('X' | ('x' - 'X')) == 'x' && ('Z' | ('x' - 'X')) == 'z');

// Single digits in front of end, from the low bits of aval and bval; for what no block covers.
template <class Layout>
char* WriteSingleDigits(char* end, std::uint64_t aval, std::uint64_t bval,
                        std::size_t count) noexcept {
    constexpr unsigned kBits = Layout::kBits;
    for (std::size_t i = 0; i < count; ++i) {
        const auto index = ((bval & kDigitMask<Layout>) << kBits) | (aval & kDigitMask<Layout>);
        *--end = kDigitCharacters<Layout>[index];
        aval >>= kBits;
        bval >>= kBits;
    }
    return end;
}

}  // namespace tarn

#endif  // TARN_TEXT_WRITE_COMMON_H
