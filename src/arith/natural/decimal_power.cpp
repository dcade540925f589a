#include "arith/natural/decimal_power.h"

#include "arith/natural/multiply.h"
#include "arith/natural/span.h"

namespace tarn {
namespace {

constexpr Limb kOneChunk[] = {kChunkPower};

}  // namespace

std::size_t DecimalPowers::StorageLimbs(std::size_t chunks) noexcept {
    // A square with a chunk more, before its zero limbs are left out.
    std::size_t total = 0;
    for (std::size_t half = chunks / 2; half > 1; half /= 2)
        total += 2 * MostLimbs(half / 2) + 1;
    return total;
}

std::size_t DecimalPowers::ScratchLimbs(std::size_t chunks) noexcept {
    return chunks < 4 ? 0 : SquareScratch(MostLimbs(chunks / 4));
}

DecimalPowers::DecimalPowers(std::size_t chunks, Limb* storage, Limb* scratch) noexcept {
    const std::size_t depths = Depths(chunks);
    if (depths == 0) return;
    powers_[depths - 1] = {kOneChunk, 1, 0, 1};
    for (std::size_t depth = depths - 1; depth-- > 0;) {
        const DecimalPower& half = powers_[depth + 1];
        DecimalPower& power = powers_[depth];
        power.chunks = chunks >> (depth + 1);
        power.zeros = 2 * half.zeros;
        std::size_t count = 2 * half.count;
        Square(storage, half.limbs, half.count, scratch);
        if (power.chunks % 2 != 0) {
            const Limb top = MultiplyByLimb(storage, storage, count, kChunkPower);
            storage[count++] = top;
        }
        const Limb* lowest = storage;
        storage += count;
        while (*lowest == 0) {
            ++lowest;
            ++power.zeros;
            --count;
        }
        power.limbs = lowest;
        power.count = NormalisedCount(lowest, count);
    }
}

}  // namespace tarn
