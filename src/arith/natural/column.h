// Products summed column by column, as on paper: column k of a * b is the sum of a[i] * b[k - i].
#ifndef TARN_ARITH_NATURAL_COLUMN_H
#define TARN_ARITH_NATURAL_COLUMN_H

#include <cstddef>

#include "arith/natural/limb.h"
#include "arith/natural/unroll.h"

namespace tarn {

// Three limbs that gather one column; what is left above the column's limb enters the next.
class ColumnSum {
  public:
    void AddProduct(Limb a, Limb b) noexcept {
        const DoubleLimb product = MultiplyLimbs(a, b);
        low_ += product;
        high_ += low_ < product ? 1U : 0U;
    }
    void AddLimb(Limb a) noexcept {
        low_ += a;
        high_ += low_ < a ? 1U : 0U;
    }
    void Double() noexcept {
        high_ = (high_ << 1) | (HighLimb(low_) >> (kLimbBits - 1));
        low_ <<= 1;
    }
    void Add(const ColumnSum& other) noexcept {
        low_ += other.low_;
        high_ += other.high_ + (low_ < other.low_ ? 1U : 0U);
    }
    // The limb of this column; goes on to the next one.
    Limb Take() noexcept {
        const Limb limb = LowLimb(low_);
        low_ = MakeDoubleLimb(high_, HighLimb(low_));
        high_ = 0;
        return limb;
    }

  private:
    DoubleLimb low_ = 0;
    Limb high_ = 0;
};

// Adds column k of a * b, a of aCount limbs and b of bCount.
template <std::size_t kColumn, std::size_t kACount, std::size_t kBCount>
inline void AddColumn(ColumnSum& sum, const Limb* a, const Limb* b) noexcept {
    constexpr std::size_t kFirst = kColumn < kBCount ? 0 : kColumn - kBCount + 1;
    constexpr std::size_t kEnd = kColumn < kACount ? kColumn + 1 : kACount;
    Unroll<kEnd - kFirst>([&](auto index) {
        constexpr std::size_t kA = kFirst + index;
        sum.AddProduct(a[kA], b[kColumn - kA]);
    });
}

// result[0 .. 2 * kCount) = a * b, or with kResult < 2 * kCount only its low limbs.
template <std::size_t kCount, std::size_t kResult = 2 * kCount>
void MultiplyFixed(Limb* result, const Limb* a, const Limb* b) noexcept {
    ColumnSum sum;
    Unroll<kResult>([&](auto column) {
        if constexpr (column < 2 * kCount - 1) AddColumn<column, kCount, kCount>(sum, a, b);
        result[column] = sum.Take();
    });
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_COLUMN_H
