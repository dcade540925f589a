// Decimal digits of wide naturals: division by a power of ten leaves two halves, each converted on
// its own.
#include <algorithm>

#include "arith/natural/decimal_power.h"
#include "arith/natural/divide_base.h"
#include "arith/natural/radix_text.h"
#include "arith/natural/span.h"

namespace tarn {
namespace {

// No less than the chunks of any number of this many bits.
constexpr std::size_t ChunksOfBits(std::size_t bits) noexcept {
    // log10(2) as a multiple of 2^-64, rounded up.
    constexpr Limb kLog = 0x4D10'4D42'7DE7'FBCDU;
    const auto digits = static_cast<std::size_t>(HighLimb(MultiplyLimbs(bits, kLog))) + 1;
    return (digits + kChunkDigits - 1) / kChunkDigits;
}

// to[0 .. count] = a << shift for 0 <= shift < 64; returns the count without a 0 at the top.
std::size_t CopyShifted(Limb* to, const Limb* a, std::size_t count, int shift) noexcept {
    if (shift == 0) {
        std::copy(a, a + count, to);
        return count;
    }
    to[count] = ShiftLeft(to, a, count, shift);
    return count + (to[count] != 0 ? 1 : 0);
}

// The last power has a single limb: too short for the division, and for halving to pay.
constexpr std::size_t UsedDepths(std::size_t chunks) noexcept {
    const std::size_t depths = DecimalPowers::Depths(chunks);
    return depths == 0 ? 0 : depths - 1;
}

struct Formatter {
    const DecimalPowers& powers;
    std::size_t depths;
    std::size_t leafCount;

    // The digits of a[0 .. count), without leading zeros and none for 0.
    char* Plain(char* end, Limb* a, std::size_t count, std::size_t depth,
                Limb* scratch) const noexcept {
        count = NormalisedCount(a, count);
        if (count == 0) return end;
        if (depth == depths || count <= leafCount) return FormatByChunks(end, a, count);
        const DecimalPower& power = powers.At(depth);
        const std::size_t lowCount = power.zeros + power.count;
        if (count < lowCount) return Plain(end, a, count, depth + 1, scratch);
        Limb* const quotient = scratch;
        const std::size_t quotientCount = Cut(quotient, a, count, power, scratch);
        if (IsZero(quotient, quotientCount)) return Plain(end, a, lowCount, depth + 1, scratch);
        char* const middle = Padded(end, a, lowCount, depth, scratch + quotientCount);
        return Plain(middle, quotient, quotientCount, depth + 1, scratch + quotientCount);
    }

    // The low half at this depth, leading zeros included.
    char* Padded(char* end, Limb* a, std::size_t count, std::size_t depth,
                 Limb* scratch) const noexcept {
        char* const begin = end - powers.At(depth).chunks * kChunkDigits;
        std::fill(begin, Plain(end, a, count, depth + 1, scratch), '0');
        return begin;
    }

    // Writes the quotient by the power to the start of scratch and returns its count; leaves the
    // remainder in a[0 .. zeros + count of the power).
    static std::size_t Cut(Limb* quotient, Limb* a, std::size_t count, const DecimalPower& power,
                           Limb* scratch) noexcept {
        const std::size_t lowCount = power.zeros + power.count;
        Limb* const shifted = scratch + (count + 2 - lowCount);
        Limb* const rest = shifted + count + 1;
        const std::size_t shiftedCount = CopyShifted(shifted, a, count, power.shift);
        const TopDivisor top(power.limbs[power.count - 1], power.limbs[power.count - 2]);
        const std::size_t quotientCount = shiftedCount - lowCount;
        quotient[quotientCount] =
            DivideNormalised(quotient, shifted + power.zeros, shiftedCount - power.zeros,
                             power.limbs, power.count, top, rest);
        if (power.shift == 0) {
            std::copy(shifted, shifted + lowCount, a);
        } else {
            ShiftRight(a, shifted, lowCount, power.shift);
        }
        return quotientCount + 1;
    }
};

}  // namespace

char* FormatByHalves(char* end, Limb* a, std::size_t count, std::size_t leafCount,
                     Limb* scratch) noexcept {
    const std::size_t bits =
        count * kLimbBits - static_cast<std::size_t>(LeadingZeros(a[count - 1]));
    const std::size_t chunks = ChunksOfBits(bits);
    Limb* const afterPowers = scratch + DecimalPowers::StorageLimbs(chunks);
    DecimalPowers powers(chunks, scratch, afterPowers);
    powers.Normalise();
    const Formatter formatter = {powers, UsedDepths(chunks), leafCount};
    return formatter.Plain(end, a, count, 0, afterPowers);
}

std::size_t FormatByHalvesScratch(std::size_t count, std::size_t leafCount) noexcept {
    const std::size_t chunks = ChunksOfBits(count * kLimbBits);
    const std::size_t depths = UsedDepths(chunks);
    std::size_t held = 0;
    std::size_t most = DecimalPowers::ScratchLimbs(chunks);
    for (std::size_t depth = 0; depth < depths; ++depth) {
        const std::size_t part = (chunks >> depth) + depth;
        if (part <= leafCount) break;
        const std::size_t low = chunks >> (depth + 1);
        // No part has more limbs than chunks, and the power with its zero limbs is no shorter than
        // 0.98 of its chunks.
        held += part - low + low / 50 + 3;
        most = std::max(most, held + part + 1 +
                                  DivideNormalisedScratch(part + 1, DecimalPowers::MostLimbs(low)));
    }
    return DecimalPowers::StorageLimbs(chunks) + most;
}

}  // namespace tarn
