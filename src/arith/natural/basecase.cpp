#include <algorithm>

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
    for (std::size_t column = kRows - 1; column < aCount; ++column) {
        if constexpr (kInto == Into::kSum) sum.AddLimb(result[column]);
        const Limb* last = a + column;
        Unroll<kRows>([&](auto row) { sum.AddProduct(*(last - row), b[row]); });
        result[column] = sum.Take();
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

// The band that writes the result first: the rows that make the rest a multiple of kBandRows
// (`rows` of them, a whole band for 0).
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
        default:
            return MultiplyBand<kBandRows, Into::kFresh, kUpto>(result, a, aCount, b);
    }
}

// Doubles a run of limbs and adds squares to it, block after block.
class DoubledSum {
  public:
    template <std::size_t kCount>
    void AddBlock(Limb* result, const Limb* a) noexcept {
        Limb square[2 * kCount];
        SquareFixed<kCount>(square, a);
        Unroll<2 * kCount>([&](auto index) {
            const Limb limb = result[index];
            const Limb doubled = (limb << 1) | (below_ >> (kLimbBits - 1));
            below_ = limb;
            carry_ = AddWithCarry(carry_, doubled, square[index], result + index);
        });
    }

  private:
    Limb below_ = 0;
    CarryFlag carry_ = 0;
};

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
    const std::size_t first = bCount % kBandRows;
    FirstBand(result, a, aCount, b, first);
    for (std::size_t row = first == 0 ? kBandRows : first; row < bCount; row += kBandRows) {
        MultiplyBand<kBandRows, Into::kSum>(result + row, a, aCount, b + row);
    }
}

// The products off the diagonal are gathered once, block by block, with the bands of the plain
// product; then their sum is doubled and the squares of the blocks are added on the way.
void SquareBasecase(Limb* result, const Limb* a, std::size_t count) noexcept {
    switch (count) {
        case 1:
            return SquareFixed<1>(result, a);
        case 2:
            return SquareFixed<2>(result, a);
        case 3:
            return SquareFixed<3>(result, a);
        case 4:
            return SquareFixed<4>(result, a);
        case 5:
            return SquareFixed<5>(result, a);
        case 6:
            return SquareFixed<6>(result, a);
        case 7:
            return SquareFixed<7>(result, a);
        case 8:
            return SquareFixed<8>(result, a);
        default:
            break;
    }
    const std::size_t first = count % kBandRows;
    std::size_t row = first == 0 ? kBandRows : first;
    std::fill_n(result, row, Limb{0});
    FirstBand(result + row, a + row, count - row, a, first);
    for (; row + kBandRows < count; row += kBandRows) {
        MultiplyBand<kBandRows, Into::kSum>(result + 2 * row + kBandRows, a + row + kBandRows,
                                            count - row - kBandRows, a + row);
    }
    std::fill_n(result + 2 * count - kBandRows, kBandRows, Limb{0});

    DoubledSum sum;
    switch (first) {
        case 1:
            sum.AddBlock<1>(result, a);
            break;
        case 2:
            sum.AddBlock<2>(result, a);
            break;
        case 3:
            sum.AddBlock<3>(result, a);
            break;
        default:
            break;
    }
    for (row = first; row < count; row += kBandRows) {
        sum.AddBlock<kBandRows>(result + 2 * row, a + row);
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
    const std::size_t first = count % kBandRows;
    FirstBand<Upto::kACount>(result, a, count, b, first);
    for (std::size_t row = first == 0 ? kBandRows : first; row < count; row += kBandRows) {
        MultiplyBand<kBandRows, Into::kSum, Upto::kACount>(result + row, a, count - row, b + row);
    }
}

}  // namespace tarn
