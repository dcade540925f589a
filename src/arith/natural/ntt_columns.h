// The odd part of a transform. With N = R M, R = 3 or 5 and M = 2^k, coefficient i of a polynomial
// modulo x^N - 1 is put into row i mod R and column i mod M; then the columns are transformed by a
// short transform of R residues and the rows by one of M. As R and M have no common factor, there
// are no twiddle factors in between (I. J. Good, 1958; L. H. Thomas, 1963).
#ifndef TARN_ARITH_NATURAL_NTT_COLUMNS_H
#define TARN_ARITH_NATURAL_NTT_COLUMNS_H

#include <array>
#include <cstddef>

#include "arith/natural/ntt_prime.h"

namespace tarn {

// y[t] = the sum of x[s] w^(s t), w the third root of unity: from residues below 2p to below 4p.
inline std::array<Limb, 3> ShortTransform(const NttPrime& prime,
                                          const std::array<Limb, 3>& x) noexcept {
    const Limb turned = prime.Times(x[1] - x[2] + prime.twice, prime.ThirdRoot());
    return {prime.Halve(x[0] + x[1]) + x[2], prime.Halve(x[0] - x[2] + prime.twice) + turned,
            prime.Halve(x[0] - x[1] + prime.twice) - turned + prime.twice};
}

// The same of five. With c1, c2 the means of w, w^4 and of w^2, w^3, and s1, s2 half their
// differences: y1 and y4 are x0 + c1 (x1 + x4) + c2 (x2 + x3) plus or minus
// s1 (x1 - x4) + s2 (x2 - x3); y2 and y3 follow by exchanging 1 and 2. As c1 + c2 = -1/2, five
// multiplications are enough (S. Winograd, 1978).
inline std::array<Limb, 5> ShortTransform(const NttPrime& prime,
                                          const std::array<Limb, 5>& x) noexcept {
    const FifthRoot& root = prime.Fifth();
    const Limb sum14 = prime.Halve(x[1] + x[4]);
    const Limb sum23 = prime.Halve(x[2] + x[3]);
    const Limb difference14 = prime.Halve(x[1] - x[4] + prime.twice);
    const Limb difference23 = prime.Halve(x[2] - x[3] + prime.twice);
    const Limb sum = prime.Halve(sum14 + sum23);

    const Limb mean = prime.Halve(x[0] + prime.Times(sum, root.minusQuarter));
    const Limb apart = prime.Times(sum14 - sum23 + prime.twice, root.halfCosineDifference);
    const Limb even1 = prime.Halve(mean + apart);
    const Limb even2 = prime.Halve(mean - apart + prime.twice);

    const Limb both = prime.Times(difference14 + difference23, root.sine2);
    const Limb odd1 = prime.Halve(both + prime.Times(difference14, root.sineDifference));
    const Limb odd2 = prime.Halve(both - prime.Times(difference23, root.sineSum) + prime.twice);
    return {x[0] + sum, even1 + odd1, even2 + odd2, even2 - odd2 + prime.twice,
            even1 - odd1 + prime.twice};
}

// Where coefficient i, taken from column to column, has its storage: slot s of column j is
// coefficient j + u M with j + u M = s modulo R. From a column to the next the slots move by one.
template <std::size_t kRows>
class Slots {
  public:
    Slots(Limb* x, std::size_t rowCount) noexcept {
        for (std::size_t u = 0; u < kRows; ++u)
            at_[u * rowCount % kRows] = x + u * rowCount;
    }
    Limb& At(std::size_t slot, std::size_t column) const noexcept { return at_[slot][column]; }
    void Advance() noexcept {
        Limb* const last = at_[kRows - 1];
        for (std::size_t s = kRows - 1; s > 0; --s)
            at_[s] = at_[s - 1];
        at_[0] = last;
    }

  private:
    std::array<Limb*, kRows> at_;
};

// In place, from coefficients in their order, below 2p, to rows below 4p.
template <std::size_t kRows>
void TransformColumns(const NttPrime& prime, Limb* x, std::size_t rowCount) noexcept {
    Slots<kRows> slots(x, rowCount);
    for (std::size_t j = 0; j < rowCount; ++j, slots.Advance()) {
        std::array<Limb, kRows> in;
        for (std::size_t s = 0; s < kRows; ++s)
            in[s] = slots.At(s, j);
        const std::array<Limb, kRows> out = ShortTransform(prime, in);
        for (std::size_t s = 0; s < kRows; ++s)
            x[s * rowCount + j] = out[s];
    }
}

// Back from rows below 2p to coefficients in their order, below 4p and times kRows. The inverse
// transform is the transform with its results in reverse order.
template <std::size_t kRows>
void RestoreColumns(const NttPrime& prime, Limb* x, std::size_t rowCount) noexcept {
    Slots<kRows> slots(x, rowCount);
    for (std::size_t j = 0; j < rowCount; ++j, slots.Advance()) {
        std::array<Limb, kRows> in;
        for (std::size_t s = 0; s < kRows; ++s)
            in[s] = x[s * rowCount + j];
        const std::array<Limb, kRows> out = ShortTransform(prime, in);
        for (std::size_t s = 0; s < kRows; ++s)
            slots.At(s, j) = out[(kRows - s) % kRows];
    }
}

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_NTT_COLUMNS_H
