#include "arith/natural/radix_parse.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "arith/natural/decimal_power.h"
#include "arith/natural/multiply.h"
#include "arith/natural/product_scratch.h"
#include "arith/natural/radix.h"
#include "arith/natural/span.h"
#include "arith/natural/thresholds.h"

namespace tarn {
namespace {

static_assert(std::endian::native == std::endian::little, "the first digit is the lowest byte");

inline Limb GatherEight(const std::uint8_t* digits) noexcept {
    Limb fields = 0;
    std::memcpy(&fields, digits, sizeof fields);
    return JoinEightDigits(fields);
}

inline Limb GatherChunk(const std::uint8_t* digits) noexcept {
    constexpr Limb kEightDigits = 100'000'000;
    const Limb first = digits[0] * Limb{100} + digits[1] * Limb{10} + digits[2];
    return (first * kEightDigits + GatherEight(digits + 3)) * kEightDigits +
           GatherEight(digits + 11);
}

constexpr std::size_t ChunkCount(std::size_t digitCount) noexcept {
    return (digitCount + kChunkDigits - 1) / kChunkDigits;
}

// What one walk through the halves carries along.
struct Halving {
    const DecimalPowers& powers;
    std::size_t depths;
    std::size_t leafChunks;
};

void ParseHalf(Limb* result, const std::uint8_t* digits, std::size_t digitCount,
               const Halving& halving, std::size_t depth, Limb* scratch) noexcept {
    if (depth == halving.depths || ChunkCount(digitCount) <= halving.leafChunks) {
        ParseByChunks(result, digits, digitCount);
        return;
    }
    const DecimalPower& power = halving.powers.At(depth);
    const std::size_t lowDigits = power.chunks * kChunkDigits;
    const std::size_t highDigits = digitCount - lowDigits;
    ParseHalf(result, digits, highDigits, halving, depth + 1, scratch);
    const std::size_t high = NormalisedCount(result, FromDecimalLimbs(highDigits));
    std::size_t count = 0;
    if (high != 0) {
        count = high + power.count;
        Multiply(scratch, result, high, power.limbs, power.count, scratch + count);
        count = NormalisedCount(scratch, count);
    }
    const std::size_t lowCount = FromDecimalLimbs(lowDigits);
    const std::size_t resultCount = FromDecimalLimbs(digitCount);
    ParseHalf(result, digits + highDigits, lowDigits, halving, depth + 1, scratch + count);
    std::fill(result + lowCount, result + resultCount, Limb{0});
    Limb* const raised = result + power.zeros;
    Add(raised, raised, resultCount - power.zeros, scratch, count);
}

}  // namespace

Limb GatherDigits(const std::uint8_t* digits, std::size_t digitCount) noexcept {
    if (digitCount == kChunkDigits) return GatherChunk(digits);
    Limb value = 0;
    for (; digitCount >= 8; digitCount -= 8, digits += 8)
        value = value * 100'000'000 + GatherEight(digits);
    for (; digitCount > 0; --digitCount, ++digits)
        value = value * 10 + *digits;
    return value;
}

void ParseByChunks(Limb* result, const std::uint8_t* digits, std::size_t digitCount) noexcept {
    const std::size_t chunks = ChunkCount(digitCount);
    const std::size_t firstDigits = digitCount - (chunks - 1) * kChunkDigits;
    result[0] = GatherDigits(digits, firstDigits);
    digits += firstDigits;
    std::size_t count = 1;
    for (std::size_t i = 1; i < chunks; ++i, digits += kChunkDigits) {
        const Limb top = MultiplyByLimb(result, result, count, kChunkPower, GatherChunk(digits));
        if (top != 0) result[count++] = top;
    }
    std::fill(result + count, result + FromDecimalLimbs(digitCount), Limb{0});
}

void ParseByHalves(Limb* result, const std::uint8_t* digits, std::size_t digitCount,
                   std::size_t leafChunks, Limb* scratch) noexcept {
    const std::size_t chunks = ChunkCount(digitCount);
    Limb* const afterPowers = scratch + DecimalPowers::StorageLimbs(chunks);
    const DecimalPowers powers(chunks, scratch, afterPowers);
    const Halving halving = {powers, DecimalPowers::Depths(chunks), leafChunks};
    ParseHalf(result, digits, digitCount, halving, 0, afterPowers);
}

std::size_t ParseByHalvesScratch(std::size_t digitCount, std::size_t leafChunks) noexcept {
    const std::size_t chunks = ChunkCount(digitCount);
    const std::size_t depths = DecimalPowers::Depths(chunks);
    std::size_t held = 0;
    std::size_t most = DecimalPowers::ScratchLimbs(chunks);
    for (std::size_t depth = 0; depth < depths; ++depth) {
        const std::size_t part = (chunks >> depth) + depth;
        if (part <= leafChunks) break;
        const std::size_t low = chunks >> (depth + 1);
        const std::size_t power = DecimalPowers::MostLimbs(low);
        held += part - low + power;
        most = std::max(most, held + ProductScratch(part - low + power));
    }
    return DecimalPowers::StorageLimbs(chunks) + most;
}

std::size_t FromDecimalLimbs(std::size_t digitCount) noexcept {
    // 10^n < 2^(3n + fraction * n + 1); the fraction of log2(10) as a multiple of 2^-64, rounded
    // up.
    constexpr Limb kFraction = 0x5269'E12F'346E'2BFAU;
    const Limb bits = 3 * Limb{digitCount} + HighLimb(MultiplyLimbs(digitCount, kFraction)) + 1;
    return static_cast<std::size_t>((bits + kLimbBits - 1) / kLimbBits);
}

std::size_t FromDecimalScratch(std::size_t digitCount) noexcept {
    return ChunkCount(digitCount) <= kParseHalvesChunks
               ? 0
               : ParseByHalvesScratch(digitCount, kParseHalvesChunks);
}

std::size_t FromDecimal(Limb* result, const std::uint8_t* digits, std::size_t digitCount,
                        Limb* scratch) noexcept {
    if (digitCount <= kChunkDigits) {
        result[0] = GatherDigits(digits, digitCount);
        return result[0] != 0 ? 1 : 0;
    }
    const std::size_t resultCount = FromDecimalLimbs(digitCount);
    const std::uint8_t* const first =
        std::find_if(digits, digits + digitCount, [](std::uint8_t digit) { return digit != 0; });
    const auto leading = static_cast<std::size_t>(first - digits);
    const std::size_t significant = digitCount - leading;
    std::size_t written = 0;
    if (significant != 0) {
        written = FromDecimalLimbs(significant);
        if (ChunkCount(significant) <= kParseHalvesChunks) {
            ParseByChunks(result, first, significant);
        } else {
            ParseByHalves(result, first, significant, kParseHalvesChunks, scratch);
        }
    }
    std::fill(result + written, result + resultCount, Limb{0});
    return NormalisedCount(result, written);
}

}  // namespace tarn
