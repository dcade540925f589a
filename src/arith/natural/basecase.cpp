#include "arith/natural/column.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/span.h"

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
template <std::size_t kRows, Into kInto, Upto kUpto = Upto::kEnd>
inline void MultiplyBand(Limb* result, const Limb* a, std::size_t aCount, const Limb* b) noexcept {
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

template <Upto kUpto = Upto::kEnd>
inline void FirstBand(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                      std::size_t rows) noexcept {
    switch (rows) {
        case 1:
            return MultiplyBand<1, Into::kFresh, kUpto>(result, a, aCount, b);
        case 2:
            return MultiplyBand<2, Into::kFresh, kUpto>(result, a, aCount, b);
        case 3:
            return MultiplyBand<3, Into::kFresh, kUpto>(result, a, aCount, b);
        case 4:
            return MultiplyBand<4, Into::kFresh, kUpto>(result, a, aCount, b);
        case 5:
            return MultiplyBand<5, Into::kFresh, kUpto>(result, a, aCount, b);
        case 6:
            return MultiplyBand<6, Into::kFresh, kUpto>(result, a, aCount, b);
        default:
            return MultiplyBand<7, Into::kFresh, kUpto>(result, a, aCount, b);
    }
}

}  // namespace

void MultiplyBasecase(Limb* result, const Limb* a, std::size_t aCount, const Limb* b,
                      std::size_t bCount) noexcept {
    if (aCount == bCount) {
        switch (aCount) {
            case 1:
                return MultiplyFixed<1>(result, a, b);
            case 2:
                return MultiplyFixed<2>(result, a, b);
            case 3:
                return MultiplyFixed<3>(result, a, b);
            case 4:
                return MultiplyFixed<4>(result, a, b);
            case 5:
                return MultiplyFixed<5>(result, a, b);
            case 6:
                return MultiplyFixed<6>(result, a, b);
            case 7:
                return MultiplyFixed<7>(result, a, b);
            case 8:
                return MultiplyFixed<8>(result, a, b);
            default:
                break;
        }
    }
    const std::size_t first = FirstRows(bCount);
    FirstBand(result, a, aCount, b, first);
    for (std::size_t row = first; row < bCount; row += kBandRows) {
        MultiplyBand<kBandRows, Into::kSum>(result + row, a, aCount, b + row);
    }
}

void MultiplyLowBasecase(Limb* result, const Limb* a, const Limb* b, std::size_t count) noexcept {
    switch (count) {
        case 1:
            return MultiplyFixed<1, 1>(result, a, b);
        case 2:
            return MultiplyFixed<2, 2>(result, a, b);
        case 3:
            return MultiplyFixed<3, 3>(result, a, b);
        case 4:
            return MultiplyFixed<4, 4>(result, a, b);
        case 5:
            return MultiplyFixed<5, 5>(result, a, b);
        case 6:
            return MultiplyFixed<6, 6>(result, a, b);
        case 7:
            return MultiplyFixed<7, 7>(result, a, b);
        case 8:
            return MultiplyFixed<8, 8>(result, a, b);
        default:
            break;
    }
    const std::size_t first = FirstRows(count);
    FirstBand<Upto::kACount>(result, a, count, b, first);
    for (std::size_t row = first; row < count; row += kBandRows) {
        MultiplyBand<kBandRows, Into::kSum, Upto::kACount>(result + row, a, count - row, b + row);
    }
}

}  // namespace tarn
