#include <iterator>

#include "arith/natural/column.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/unroll.h"

namespace tarn {
namespace {

// Rows of the schoolbook scheme that are taken together: each limb of the result is then loaded and
// stored once a band, and the products of one column of a band need no inner loop.
constexpr std::size_t kBandRows = 4;

// Whether a band overwrites the result or adds to it.
enum class Into { kFresh, kSum };
// Whether a band ends at its last limb or, for a low product, below column aCount.
enum class Upto { kEnd, kACount };

// result[0 .. aCount + kRows) = or += a * b[0 .. kRows), aCount >= kRows. The limbs from aCount on
// are written, not added to: earlier bands end there.
template <std::size_t kRows, Into kInto, Upto kUpto>
void MultiplyBand(Limb* result, const Limb* a, std::size_t aCount, const Limb* b) noexcept {
    ColumnSum sum;
    Unroll<kRows - 1>([&](auto column) {
        if constexpr (kInto == Into::kSum) sum.AddLimb(result[column]);
        AddColumn<column, kRows, kRows>(sum, a, b);
        result[column] = sum.Take();
    });
    Limb* to = result + kRows - 1;
    const Limb* const end = a + aCount;
    for (const Limb* last = a + kRows - 1; last != end; ++last, ++to) {
        if constexpr (kInto == Into::kSum) sum.AddLimb(*to);
        Unroll<kRows>([&](auto row) { sum.AddProduct(*(last - row), b[row]); });
        *to = sum.Take();
    }
    if constexpr (kUpto == Upto::kEnd) {
        const Limb* top = a + aCount - kRows;
        Unroll<kRows>([&](auto step) {
            constexpr std::size_t kColumn = kRows + step;
            if constexpr (kColumn < 2 * kRows - 1) AddColumn<kColumn, kRows, kRows>(sum, top, b);
            result[aCount + step] = sum.Take();
        });
    }
}

// The band that writes the result first has the rows that leave whole bands behind it: up to three
// more than a band, for a band of one or two rows would take almost as long as one of four.
constexpr std::size_t FirstRows(std::size_t rows) noexcept {
    return rows < kBandRows ? rows : kBandRows + rows % kBandRows;
}

using BandFunction = void (*)(Limb*, const Limb*, std::size_t, const Limb*) noexcept;
template <Upto kUpto>
constexpr BandFunction kFirstBand[] = {
    MultiplyBand<1, Into::kFresh, kUpto>, MultiplyBand<2, Into::kFresh, kUpto>,
    MultiplyBand<3, Into::kFresh, kUpto>, MultiplyBand<4, Into::kFresh, kUpto>,
    MultiplyBand<5, Into::kFresh, kUpto>, MultiplyBand<6, Into::kFresh, kUpto>,
    MultiplyBand<7, Into::kFresh, kUpto>};

// Functions of their own, so that the short ones save no registers for the long ones.
using FixedFunction = void (*)(Limb*, const Limb*, const Limb*) noexcept;
constexpr FixedFunction kMultiplyFixed[] = {MultiplyFixed<1>, MultiplyFixed<2>, MultiplyFixed<3>,
                                            MultiplyFixed<4>, MultiplyFixed<5>, MultiplyFixed<6>,
                                            MultiplyFixed<7>, MultiplyFixed<8>};
constexpr FixedFunction kMultiplyLowFixed[] = {
    MultiplyFixed<1, 1>, MultiplyFixed<2, 2>, MultiplyFixed<3, 3>, MultiplyFixed<4, 4>,
    MultiplyFixed<5, 5>, MultiplyFixed<6, 6>, MultiplyFixed<7, 7>, MultiplyFixed<8, 8>};

void MultiplyInBands(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                     std::size_t bCount) noexcept {
    const std::size_t first = FirstRows(bCount);
    kFirstBand<Upto::kEnd>[first - 1](result, a, aCount, b);
    for (std::size_t row = first; row < bCount; row += kBandRows) {
        MultiplyBand<kBandRows, Into::kSum, Upto::kEnd>(result + row, a, aCount, b + row);
    }
}

void MultiplyLowInBands(Limb* result, const Limb* a, const Limb* b, std::size_t count) noexcept {
    const std::size_t first = FirstRows(count);
    kFirstBand<Upto::kACount>[first - 1](result, a, count, b);
    for (std::size_t row = first; row < count; row += kBandRows) {
        MultiplyBand<kBandRows, Into::kSum, Upto::kACount>(result + row, a, count - row, b + row);
    }
}

}  // namespace

void MultiplyBasecase(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                      std::size_t bCount) noexcept {
    if (aCount == bCount && aCount <= std::size(kMultiplyFixed)) {
        return kMultiplyFixed[aCount - 1](result, a, b);
    }
    MultiplyInBands(result, a, aCount, b, bCount);
}

void MultiplyLowBasecase(Limb* result, const Limb* a, const Limb* b, std::size_t count) noexcept {
    if (count <= std::size(kMultiplyLowFixed)) return kMultiplyLowFixed[count - 1](result, a, b);
    MultiplyLowInBands(result, a, b, count);
}

}  // namespace tarn
