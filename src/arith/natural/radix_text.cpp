#include "arith/natural/radix_text.h"

#include <bit>
#include <cstdint>
#include <cstring>

#include "arith/natural/decimal_power.h"
#include "arith/natural/divide_step.h"
#include "arith/natural/radix.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

static_assert(std::endian::native == std::endian::little, "the first digit is the lowest byte");

constexpr Limb kEightDigits = 100'000'000;
constexpr LimbDivisor kChunkDivisor(kChunkPower);

// The digits of a value below 10^8, the first in the lowest byte, after Paul Khuong: each step
// halves all fields at once, the quotient staying and the remainder moving to the later half.
//   32-bit     abcd, efgh          n / 100 = n * 5243 >> 19 for n < 10^4
//   16-bit     ab, cd, ef, gh      n / 10 = n * 103 >> 10 for n < 100
//   bytes      a, b, c, d, e, f, g, h
// The products stay below 2^26 and 2^14, within their fields.
constexpr Limb SpreadEight(Limb value) noexcept {
    const Limb thousands = value / 10'000;
    Limb fields = thousands | (value - thousands * 10'000) << 32;
    const Limb hundreds = ((fields * 5243) >> 19) & 0x0000'007F'0000'007FU;
    fields = hundreds | (fields - hundreds * 100) << 16;
    const Limb tens = ((fields * 103) >> 10) & 0x000F'000F'000F'000FU;
    return tens | (fields - tens * 10) << 8;
}

inline void WriteEight(char* to, Limb value) noexcept {
    const Limb characters = SpreadEight(value) | 0x3030'3030'3030'3030U;
    std::memcpy(to, &characters, sizeof characters);
}

// All 19 digits in front of `end`, leading zeros included.
inline char* WriteChunk(char* end, Limb chunk) noexcept {
    const Limb upper = chunk / kEightDigits;
    const Limb first = upper / kEightDigits;
    char* const begin = end - kChunkDigits;
    begin[0] = static_cast<char>('0' + first / 100);
    begin[1] = static_cast<char>('0' + first / 10 % 10);
    begin[2] = static_cast<char>('0' + first % 10);
    WriteEight(begin + 3, upper - first * kEightDigits);
    WriteEight(begin + 11, chunk - upper * kEightDigits);
    return begin;
}

// Divides a[0 .. count) by 10^19 kChunks times and writes the remainders. One division alone waits
// for its remainder at every limb; here each division works on the limb that the one before it has
// just finished, so that kChunks independent steps are under way at any time.
template <std::size_t kChunks>
char* TakeChunks(char* end, Limb* a, std::size_t count) noexcept {
    Limb remainders[kChunks] = {};
    for (std::size_t i = count; i-- > 0;) {
        Limb limb = a[i];
        for (Limb& remainder : remainders)
            limb = kChunkDivisor.Step(&remainder, limb);
        a[i] = limb;
    }
    for (const Limb remainder : remainders)
        end = WriteChunk(end, remainder);
    return end;
}

}  // namespace

char* FormatLimb(char* end, Limb value) noexcept {
    for (; value >= kEightDigits; value /= kEightDigits, end -= 8)
        WriteEight(end - 8, value % kEightDigits);
    for (; value >= 10; value /= 10)
        *--end = static_cast<char>('0' + value % 10);
    if (value != 0) *--end = static_cast<char>('0' + value);
    return end;
}

// A number whose top limb is not 0 has a chunk for each limb below it, and more than that.
char* FormatByChunks(char* end, Limb* a, std::size_t count) noexcept {
    while (count > 1) {
        switch (count) {
            case 2:
                end = TakeChunks<1>(end, a, count);
                break;
            case 3:
                end = TakeChunks<2>(end, a, count);
                break;
            case 4:
                end = TakeChunks<3>(end, a, count);
                break;
            default:
                end = TakeChunks<4>(end, a, count);
                break;
        }
        count = NormalisedCount(a, count);
    }
    return FormatLimb(end, a[0]);
}

std::size_t ToDecimalScratch(std::size_t count) noexcept {
    return count <= kFormatHalvesLimbs ? 0 : FormatByHalvesScratch(count, kFormatHalvesLimbs);
}

char* ToDecimal(char* end, Limb* a, std::size_t count, Limb* scratch) noexcept {
    count = NormalisedCount(a, count);
    if (count == 0) {
        *--end = '0';
        return end;
    }
    if (count == 1) return FormatLimb(end, a[0]);
    if (count <= kFormatHalvesLimbs) return FormatByChunks(end, a, count);
    return FormatByHalves(end, a, count, kFormatHalvesLimbs, scratch);
}

}  // namespace tarn
