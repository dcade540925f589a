#include "arith/natural/decimal_power.h"

#include "arith/natural/divide_step.h"
#include "arith/natural/multiply.h"
#include "arith/natural/span.h"

namespace tarn {
std::size_t DecimalPowers::StorageLimbs(std::size_t chunks) noexcept {
    // A square with a chunk more, before its zero limbs are left out.
    std::size_t total = 1;
    for (std::size_t half = chunks / 2; half > 1; half /= 2)
        total += 2 * MostLimbs(half / 2) + 1;
    return total;
}

std::size_t DecimalPowers::ScratchLimbs(std::size_t chunks) noexcept {
    return chunks < 4 ? 0 : SquareScratch(MostLimbs(chunks / 4));
}

DecimalPowers::DecimalPowers(std::size_t chunks, Limb* storage, Limb* scratch) noexcept
    : depths_(Depths(chunks)) {
    if (depths_ == 0) return;
    *storage = kChunkPower;
    powers_[depths_ - 1] = {storage++, 1, 0, 1, 0};
    for (std::size_t depth = depths_ - 1; depth-- > 0;) {
        const DecimalPower& half = powers_[depth + 1];
        DecimalPower& power = powers_[depth];
        power.chunks = chunks >> (depth + 1);
        power.zeros = 2 * half.zeros;
        power.shift = 0;
        std::size_t count = 2 * half.count;
        Square(storage, half.limbs, half.count, scratch);
        if (power.chunks % 2 != 0) {
            const Limb top = MultiplyByLimb(storage, storage, count, kChunkPower);
            storage[count++] = top;
        }
        Limb* lowest = storage;
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

void DecimalPowers::Normalise() noexcept {
    for (std::size_t depth = 0; depth < depths_; ++depth) {
        DecimalPower& power = powers_[depth];
        power.shift = LeadingZeros(power.limbs[power.count - 1]);
        if (power.shift != 0) ShiftLeft(power.limbs, power.limbs, power.count, power.shift);
    }
}

}  // namespace tarn
