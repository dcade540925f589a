// What the tests of the kernels on naturals share: counts at which algorithms change, hard contents
// and exact storage for them.
#ifndef TARN_TESTS_NATURAL_SUPPORT_H
#define TARN_TESTS_NATURAL_SUPPORT_H

#include <algorithm>
#include <cstddef>
#include <gmp.h>
#include <gtest/gtest.h>
#include <type_traits>
#include <vector>

#include "arith/natural/limb.h"
#include "arith/natural/thresholds.h"
#include "support/gen.h"
#include "support/guarded.h"

namespace tarn {

static_assert(std::is_same_v<Limb, mp_limb_t>, "GMP takes our limbs as they are");

using Limbs = std::vector<Limb>;
using test::Gen;
using test::GuardedBlock;
using test::Seeds;

// Every count up to `each`; then the borders at which algorithms change, of limbs or of digits (a
// limb has 19.266), with their neighbours, and some counts in between.
inline std::size_t NextCount(std::size_t count, std::size_t each) {
    if (count < each) return count + 1;
    std::size_t next = count + count / 2;
    for (const std::size_t border :
         {kKaratsubaThreshold, kToom3Threshold, kNttThreshold, kNttUnbalancedThreshold,
          kSquareKaratsubaThreshold, kSquareToom3Threshold, kSquareNttThreshold, kMuldersThreshold,
          kLowByFullThreshold, kDivideHalvesLimbs, kDivideReciprocalLimbs, 19 * kParseHalvesChunks,
          kFormatHalvesLimbs * 19'266 / 1000 + 1}) {
        if (border + 1 > count) next = std::min(next, std::max(border - 1, count + 1));
    }
    return next;
}

// Runs of zeros, of the greatest item and of random ones; the last item of a run may be anywhere
// near a power of two.
template <class Item>
std::vector<Item> Take(Gen& gen, std::size_t count, Item greatest) {
    std::vector<Item> items(count);
    const auto any = [&] {
        return static_cast<Item>(HighLimb(gen.Bits() * (DoubleLimb{greatest} + 1)));
    };
    for (std::size_t i = 0, end = 0; i < count; i = end) {
        end = gen.OneIn(2) ? count : i + 1 + ((gen.Bits() % (count - i)) >> gen.Below(16));
        const int kind = gen.Below(3);
        for (std::size_t k = i; k < end; ++k)
            items[k] = kind == 0 ? Item{0} : kind == 1 ? greatest : any();
        const auto low = static_cast<Item>(Limb{greatest} >> gen.Below(64));
        const Item borders[] = {low, static_cast<Item>(greatest - low),
                                static_cast<Item>(low / 2 + 1)};
        if (gen.OneIn(2)) items[end - 1] = borders[gen.Below(3)];
    }
    return items;
}
inline Limbs TakeLimbs(Gen& gen, std::size_t count) {
    return Take(gen, count, ~Limb{0});
}

// The items in storage for exactly them beside a page that can't be touched.
template <class Item>
Item* Place(Gen& gen, GuardedBlock& block, const std::vector<Item>& items) {
    const auto edge = gen.OneIn(2) ? test::Edge::kBeginsAtPage : test::Edge::kEndsAtPage;
    auto* const placed = reinterpret_cast<Item*>(block.Place(items.size() * sizeof(Item), edge));
    std::copy(items.begin(), items.end(), placed);
    return placed;
}

// Storage for a result or for scratch, with what an earlier use may have left there.
inline Limb* PlaceJunk(Gen& gen, GuardedBlock& block, std::size_t count) {
    return Place(gen, block, Limbs(count, gen.Bits()));
}

// Whether these limbs were written there, and nothing beside them.
inline bool Holds(const GuardedBlock& block, const Limb* placed, const Limbs& expected) {
    return std::equal(expected.begin(), expected.end(), placed) && block.MarginsAreIntact();
}

}  // namespace tarn

#endif  // TARN_TESTS_NATURAL_SUPPORT_H
