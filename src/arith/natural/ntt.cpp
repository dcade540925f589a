// A transform of 2m residues modulo x^2m - c^2 splits into two modulo x^m - c and x^m + c: one
// constant c a block serves all its butterflies. The constants lie in bit-reversed order, so that a
// block's index is the index of its constant, whatever the level.
#include "arith/natural/ntt.h"

#include <bit>

namespace tarn {
namespace {

// Blocks of at most this many residues are transformed level by level, as they fit the first-level
// cache; wider ones depth first.
constexpr std::size_t kCacheCount = 2048;

}  // namespace

NttTransform::NttTransform(const NttPrime& prime, Limb* table, std::size_t count) noexcept
    : prime_(prime), table_(table), count_(count) {
    const auto store = [&](std::size_t block, const Factor& root) {
        table_[2 * block] = root.value;
        table_[2 * block + 1] = root.quotient;
    };
    store(0, prime.Root(0));
    int level = 2;
    for (std::size_t done = 1; done < count / 2; done *= 2, ++level) {
        const Factor& root = prime.Root(level);
        for (std::size_t block = 0; block < done; ++block) {
            const Limb value = prime.Times(table_[2 * block], root);
            store(done + block, prime.MakeFactor(prime.Reduce(value)));
        }
    }
}

// Two levels: a block of 4 stride residues into four.
inline void NttTransform::ForwardStep(Limb* x, std::size_t stride,
                                      std::size_t block) const noexcept {
    const NttPrime& prime = prime_;
    const Factor upper = RootOf(block);
    const Factor left = RootOf(2 * block);
    const Factor right = RootOf(2 * block + 1);
    for (std::size_t i = 0; i < stride; ++i) {
        Limb* at = x + i;
        const Limb x0 = prime.Halve(at[0]);
        const Limb x1 = prime.Halve(at[stride]);
        const Limb x2 = prime.Times(at[2 * stride], upper);
        const Limb x3 = prime.Times(at[3 * stride], upper);
        const Limb y0 = prime.Halve(x0 + x2);
        const Limb y2 = prime.Halve(x0 - x2 + prime.twice);
        const Limb y1 = prime.Times(x1 + x3, left);
        const Limb y3 = prime.Times(x1 - x3 + prime.twice, right);
        at[0] = y0 + y1;
        at[stride] = y0 - y1 + prime.twice;
        at[2 * stride] = y2 + y3;
        at[3 * stride] = y2 - y3 + prime.twice;
    }
}

inline void NttTransform::InverseStep(Limb* x, std::size_t stride,
                                      std::size_t block) const noexcept {
    const NttPrime& prime = prime_;
    // The constant of a block b > 0 with top bit 2^k turns by half a turn times an odd multiple of
    // 1 / 2^(k + 1). Flipping the bits of b under the top one takes that multiple from 1, which
    // gives minus the inverse.
    const bool isFirst = block == 0;
    const std::size_t mirror = isFirst ? 0 : block ^ (std::bit_floor(block) - 1);
    const Factor upper = isFirst ? prime.MinusOne() : RootOf(mirror);
    const Factor left = isFirst ? prime.MinusOne() : RootOf(2 * mirror + 1);
    const Factor right = RootOf(isFirst ? 1 : 2 * mirror);
    for (std::size_t i = 0; i < stride; ++i) {
        Limb* at = x + i;
        const Limb y0 = at[0];
        const Limb y1 = at[stride];
        const Limb y2 = at[2 * stride];
        const Limb y3 = at[3 * stride];
        const Limb x0 = prime.Halve(y0 + y1);
        const Limb x1 = prime.Times(y1 - y0 + prime.twice, left);
        const Limb x2 = prime.Halve(y2 + y3);
        const Limb x3 = prime.Times(y3 - y2 + prime.twice, right);
        at[0] = prime.Halve(x0 + x2);
        at[stride] = prime.Halve(x1 + x3);
        at[2 * stride] = prime.Times(x2 - x0 + prime.twice, upper);
        at[3 * stride] = prime.Times(x3 - x1 + prime.twice, upper);
    }
}

// count is a power of 4.
void NttTransform::ForwardBlock(Limb* x, std::size_t count, std::size_t block) const noexcept {
    if (count > kCacheCount) {
        const std::size_t quarter = count / 4;
        ForwardStep(x, quarter, block);
        for (std::size_t part = 0; part < 4; ++part) {
            ForwardBlock(x + part * quarter, quarter, 4 * block + part);
        }
        return;
    }
    std::size_t blocks = 1;
    for (std::size_t stride = count / 4; stride > 0; stride /= 4, blocks *= 4) {
        for (std::size_t part = 0; part < blocks; ++part) {
            ForwardStep(x + part * 4 * stride, stride, block * blocks + part);
        }
    }
}

void NttTransform::InverseBlock(Limb* x, std::size_t count, std::size_t block) const noexcept {
    if (count > kCacheCount) {
        const std::size_t quarter = count / 4;
        for (std::size_t part = 0; part < 4; ++part) {
            InverseBlock(x + part * quarter, quarter, 4 * block + part);
        }
        InverseStep(x, quarter, block);
        return;
    }
    std::size_t blocks = count / 4;
    for (std::size_t stride = 1; stride < count; stride *= 4, blocks /= 4) {
        for (std::size_t part = 0; part < blocks; ++part) {
            InverseStep(x + part * 4 * stride, stride, block * blocks + part);
        }
    }
}

// An odd number of levels begins with one on its own, whose constant is 1.
void NttTransform::Forward(Limb* row) const noexcept {
    const bool isOdd = std::countr_zero(count_) % 2 != 0;
    if (!isOdd) return ForwardBlock(row, count_, 0);
    const std::size_t half = count_ / 2;
    for (std::size_t i = 0; i < half; ++i) {
        const Limb low = prime_.Halve(row[i]);
        const Limb high = prime_.Halve(row[half + i]);
        row[i] = low + high;
        row[half + i] = low - high + prime_.twice;
    }
    ForwardBlock(row, half, 0);
    ForwardBlock(row + half, half, 1);
}

void NttTransform::Inverse(Limb* row) const noexcept {
    const bool isOdd = std::countr_zero(count_) % 2 != 0;
    if (!isOdd) return InverseBlock(row, count_, 0);
    const std::size_t half = count_ / 2;
    InverseBlock(row, half, 0);
    InverseBlock(row + half, half, 1);
    for (std::size_t i = 0; i < half; ++i) {
        const Limb low = row[i];
        const Limb high = row[half + i];
        row[i] = prime_.Halve(low + high);
        row[half + i] = prime_.Halve(low - high + prime_.twice);
    }
}

}  // namespace tarn
