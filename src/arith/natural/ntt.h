// The number-theoretic transform on arrays of residues.
#ifndef TARN_ARITH_NATURAL_NTT_H
#define TARN_ARITH_NATURAL_NTT_H

#include <cstddef>

#include "arith/natural/limb.h"
#include "arith/natural/ntt_prime.h"

namespace tarn {

// Transforms of rows of `count` residues, count = 2^k >= 2. The forward transform takes residues
// below 4p and leaves values below 4p in bit-reversed order; the inverse takes values below 2p in
// that order and leaves count times the residues, below 2p.
class NttTransform {
  public:
    // Fills table[0 .. TableLimbs(count)), which must outlive the transform.
    NttTransform(const NttPrime& prime, Limb* table, std::size_t count) noexcept;
    static constexpr std::size_t TableLimbs(std::size_t count) noexcept { return count; }

    void Forward(Limb* row) const noexcept;
    void Inverse(Limb* row) const noexcept;

  private:
    Factor RootOf(std::size_t block) const noexcept {
        return {table_[2 * block], table_[2 * block + 1]};
    }
    void ForwardBlock(Limb* x, std::size_t count, std::size_t block) const noexcept;
    void InverseBlock(Limb* x, std::size_t count, std::size_t block) const noexcept;
    void ForwardStep(Limb* x, std::size_t stride, std::size_t block) const noexcept;
    void InverseStep(Limb* x, std::size_t stride, std::size_t block) const noexcept;

    const NttPrime& prime_;
    Limb* table_;
    std::size_t count_;
};

}  // namespace tarn

#endif  // TARN_ARITH_NATURAL_NTT_H
