// What both directions of decimal conversion share: chunks of digits that fit a limb, and the
// powers of ten by which long numbers are cut into halves.
#ifndef TARN_ARITH_NATURAL_DECIMAL_POWER_H
#define TARN_ARITH_NATURAL_DECIMAL_POWER_H

#include <array>
#include <bit>
#include <cstddef>

#include "arith/natural/limb.h"

namespace tarn {

// The most digits whose values all fit a limb.
inline constexpr std::size_t kChunkDigits = 19;
inline constexpr Limb kChunkPower = 10'000'000'000'000'000'000U;

// 10^(19 * chunks) * 2^shift = limbs[0 .. count) * 2^(64 * zeros). Nearly a third of a power of ten
// is trailing zero bits; leaving the whole limbs of them out shortens every product and division.
struct DecimalPower {
    Limb* limbs;
    std::size_t count;
    std::size_t zeros;
    std::size_t chunks;
    int shift;
};

// Powers for halving a number of `chunks` chunks again and again: the one at `depth` has
// chunks >> (depth + 1) chunks and cuts the parts that the `depth` cuts before it left. Those have
// no more than (chunks >> depth) + depth chunks.
class DecimalPowers {
  public:
    // `storage` holds StorageLimbs(chunks) and lives as long as the powers; `scratch` is needed
    // only while they are built.
    DecimalPowers(std::size_t chunks, Limb* storage, Limb* scratch) noexcept;

    // Shifts each power until its top bit is set, as a divisor's must be; till then no power is
    // shifted.
    void Normalise() noexcept;

    static std::size_t StorageLimbs(std::size_t chunks) noexcept;
    static std::size_t ScratchLimbs(std::size_t chunks) noexcept;

    // No less than the limbs of 10^(19 * chunks) without its zero limbs.
    static constexpr std::size_t MostLimbs(std::size_t chunks) noexcept {
        // A chunk brings log2(10^19) - 19 < 44.12 bits, and less than 64 zero bits stay.
        return (chunks * 353 / 8 + 2 * std::size_t{kLimbBits}) / kLimbBits + 1;
    }

    // The last power has one chunk; numbers of fewer than two chunks need none.
    static constexpr std::size_t Depths(std::size_t chunks) noexcept {
        return chunks < 2 ? 0 : static_cast<std::size_t>(std::bit_width(chunks)) - 1;
    }

    const DecimalPower& At(std::size_t depth) const noexcept { return powers_[depth]; }

  private:
    std::size_t depths_;
    std::array<DecimalPower, kLimbBits> powers_;
};

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_DECIMAL_POWER_H
