// Squares by the schoolbook: the products a[i] a[j] with i < j are gathered once, in bands of rows;
// then their sum is doubled and the squares of the limbs are added on the way.
#include <iterator>

#include "arith/natural/column.h"
#include "arith/natural/multiply_internal.h"
#include "arith/natural/unroll.h"

namespace tarn {
namespace {

constexpr std::size_t kBandRows = 4;

// Whether a band overwrites the result or adds to what earlier bands left.
enum class Into { kFresh, kSum };

// Adds the products a[i] a[kColumn - i] with i < kColumn - i < kCount and i < kRows.
template <std::size_t kColumn, std::size_t kCount, std::size_t kRows>
inline void AddPairs(ColumnSum& sum, const Limb* a) noexcept {
    constexpr std::size_t kFirst = kColumn < kCount ? 0 : kColumn - kCount + 1;
    constexpr std::size_t kHalf = (kColumn + 1) / 2;
    constexpr std::size_t kEnd = kHalf < kRows ? kHalf : kRows;
    if constexpr (kFirst < kEnd) {
        Unroll<kEnd - kFirst>([&](auto index) {
            constexpr std::size_t kA = kFirst + index;
            sum.AddProduct(a[kA], a[kColumn - kA]);
        });
    }
}

// Adds all pairs of a[0 .. kCount) to result[1 .. 2 * kCount - 1). Earlier bands end at
// result[kCount].
template <std::size_t kCount>
void AddTriangle(Limb* result, const Limb* a) noexcept {
    ColumnSum sum;
    Unroll<2 * kCount - 2>([&](auto index) {
        constexpr std::size_t kColumn = index + 1;
        if constexpr (kColumn < kCount) sum.AddLimb(result[kColumn]);
        AddPairs<kColumn, kCount, kCount>(sum, a);
        result[kColumn] = sum.Take();
    });
}

// The pairs of one of the first kBandRows limbs and any later one, count >= 2 * kBandRows, into
// result[1 .. count + kBandRows). Earlier bands end at result[count].
template <Into kInto>
inline void AddBand(Limb* result, const Limb* a, std::size_t count) noexcept {
    constexpr std::size_t kHead = 2 * kBandRows - 1;
    ColumnSum sum;
    Unroll<kHead - 1>([&](auto index) {
        constexpr std::size_t kColumn = index + 1;
        if constexpr (kInto == Into::kSum) sum.AddLimb(result[kColumn]);
        AddPairs<kColumn, kHead, kBandRows>(sum, a);
        result[kColumn] = sum.Take();
    });
    Limb* to = result + kHead;
    const Limb* const end = a + count;
    for (const Limb* last = a + kHead; last != end; ++last, ++to) {
        Unroll<kBandRows>([&](auto row) { sum.AddProduct(*(last - row), a[row]); });
        if constexpr (kInto == Into::kSum) sum.AddLimb(*to);
        *to = sum.Take();
    }
    Unroll<kBandRows>([&](auto step) {
        Unroll<kBandRows - 1 - step>([&](auto index) {
            constexpr std::size_t kBack = index + 1;
            sum.AddProduct(*(end - kBack), a[step + kBack]);
        });
        to[step] = sum.Take();
    });
}

// Doubles a run of limbs and adds squares to it, block after block.
class Doubling {
  public:
    template <std::size_t kCount>
    void AddSquares(Limb* result, const Limb* a) noexcept {
        Limb square[2 * kCount];
        Unroll<kCount>([&](auto index) {
            const DoubleLimb product = MultiplyLimbs(a[index], a[index]);
            square[2 * index] = LowLimb(product);
            square[2 * index + 1] = HighLimb(product);
        });
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

// Column by column, without a detour of the pairs through memory.
template <std::size_t kCount>
void SquareFixed(Limb* result, const Limb* a) noexcept {
    ColumnSum sum;
    Unroll<2 * kCount - 1>([&](auto column) {
        ColumnSum pairs;
        AddPairs<column, kCount, kCount>(pairs, a);
        pairs.Double();
        sum.Add(pairs);
        if constexpr (column % 2 == 0) sum.AddProduct(a[column / 2], a[column / 2]);
        result[column] = sum.Take();
    });
    result[2 * kCount - 1] = sum.Take();
}

// Functions of their own, so that the short ones save no registers for the long ones.
using SquareFunction = void (*)(Limb*, const Limb*) noexcept;
constexpr SquareFunction kSquareFixed[] = {SquareFixed<1>, SquareFixed<2>, SquareFixed<3>,
                                           SquareFixed<4>, SquareFixed<5>, SquareFixed<6>,
                                           SquareFixed<7>, SquareFixed<8>};
// What whole bands leave: of kBandRows to 2 * kBandRows - 1 limbs.
constexpr SquareFunction kLastTriangle[] = {AddTriangle<4>, AddTriangle<5>, AddTriangle<6>,
                                            AddTriangle<7>};

void SquareInBands(Limb* result, const Limb* a, std::size_t count) noexcept {
    result[0] = 0;
    AddBand<Into::kFresh>(result, a, count);
    std::size_t row = kBandRows;
    for (; count - row >= 2 * kBandRows; row += kBandRows) {
        AddBand<Into::kSum>(result + 2 * row, a + row, count - row);
    }
    kLastTriangle[count - row - kBandRows](result + 2 * row, a + row);
    result[2 * count - 1] = 0;

    Doubling doubling;
    std::size_t i = 0;
    for (; i + kBandRows <= count; i += kBandRows) {
        doubling.AddSquares<kBandRows>(result + 2 * i, a + i);
    }
    for (; i < count; ++i)
        doubling.AddSquares<1>(result + 2 * i, a + i);
}

}  // namespace

void SquareBasecase(Limb* result, const Limb* a, std::size_t count) noexcept {
    if (count <= std::size(kSquareFixed)) return kSquareFixed[count - 1](result, a);
    SquareInBands(result, a, count);
}

}  // namespace tarn
