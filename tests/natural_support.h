// What the tests of the kernels on naturals share.
#ifndef TARN_TESTS_NATURAL_SUPPORT_H
#define TARN_TESTS_NATURAL_SUPPORT_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <gmp.h>
#include <random>
#include <type_traits>
#include <vector>

#include "arith/natural/limb.h"

namespace tarn {

static_assert(std::is_same_v<Limb, mp_limb_t>, "GMP takes our limbs as they are");

using Limbs = std::vector<Limb>;

// Operands that break carries: each kind is hard on another step.
enum class Kind { kRandom, kRuns, kOnes, kSingleBit, kZeroTop, kZero, kCount };

class Generator {
  public:
    explicit Generator(std::uint64_t seed) : random_(seed) {}

    Limbs Take(std::size_t count, Kind kind) {
        Limbs limbs(count, 0);
        if (kind == Kind::kRuns) FillRuns(limbs);
        if (kind == Kind::kOnes) std::fill(limbs.begin(), limbs.end(), ~Limb{0});
        if (kind == Kind::kSingleBit) limbs[random_() % count] = Limb{1} << (random_() % kLimbBits);
        if (kind == Kind::kRandom || kind == Kind::kZeroTop) {
            const std::size_t zeros = kind == Kind::kZeroTop ? random_() % count : 0;
            std::generate_n(limbs.begin(), count - zeros, std::ref(random_));
        }
        return limbs;
    }

    Kind AnyKind() { return static_cast<Kind>(random_() % static_cast<int>(Kind::kCount)); }
    std::size_t Between(std::size_t first, std::size_t last) {
        return first + random_() % (last - first + 1);
    }

  private:
    void FillRuns(Limbs& limbs) {
        const std::size_t width = limbs.size() * kLimbBits;
        bool set = random_() % 2 == 0;
        for (std::size_t index = 0; index < width; set = !set) {
            std::size_t run = 1 + random_() % (random_() % 4 == 0 ? 300 : 70);
            for (; run > 0 && index < width; --run, ++index) {
                if (set) limbs[index / kLimbBits] |= Limb{1} << (index % kLimbBits);
            }
        }
    }

    std::mt19937_64 random_;
};

// Storage of a fixed count of limbs between two guards, so that a stray write shows.
class Guarded {
  public:
    explicit Guarded(std::size_t count) : limbs_(count + 2 * kGuard, kPattern), count_(count) {}
    Limb* Data() { return limbs_.data() + kGuard; }
    Limbs Value() const {
        const auto first = limbs_.begin() + kGuard;
        return {first, first + static_cast<std::ptrdiff_t>(count_)};
    }
    bool IsIntact() const {
        const auto isPattern = [](Limb limb) { return limb == kPattern; };
        return std::all_of(limbs_.begin(), limbs_.begin() + kGuard, isPattern) &&
               std::all_of(limbs_.end() - kGuard, limbs_.end(), isPattern);
    }

  private:
    static constexpr std::ptrdiff_t kGuard = 8;
    static constexpr Limb kPattern = 0xA5C3F00DDEADBEA7;
    Limbs limbs_;
    std::size_t count_;
};

}  // namespace tarn

#endif  // TARN_TESTS_NATURAL_SUPPORT_H
