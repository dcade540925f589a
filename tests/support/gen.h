// Random operands: hard widths, runs of equal bits, clean and dirty top words. Each run of a
// property has its own seed, which a failure prints and which replays that run alone.
#ifndef TARN_TESTS_SUPPORT_GEN_H
#define TARN_TESTS_SUPPORT_GEN_H

#include <cstdint>
#include <sstream>
#include <string>
#include <utility>

#include "support/vec.h"

namespace tarn::test {

struct OneOperandDraw {
    int width;
    Vec a;
};
struct TwoOperandDraw {
    int width;
    Vec a, b;
};

class Gen {
  public:
    explicit Gen(std::uint64_t seed) : seed_(seed), state_(seed) { isWide_ = OneIn(1000); }

    std::uint64_t Seed() const { return seed_; }
    std::uint64_t Bits();
    int Below(int bound) { return static_cast<int>(Bits() % static_cast<std::uint64_t>(bound)); }
    int Between(int least, int most) { return least + Below(most - least + 1); }
    bool OneIn(int count) { return Below(count) == 0; }

    // At least 1: mostly at the edges of words and blocks of words; thousands of words in a run
    // that was chosen to be wide.
    int Width();
    // Also 0 and below.
    int AnyWidth();

    // Three of four are known; the top word is clean, sign-filled or random.
    Vec Vector(int width);
    // Unknown bits are as common as known ones.
    Vec FourState(int width);

    // Widths are often equal; two operands are sometimes the same words, so that they can share
    // storage.
    OneOperandDraw OneOperand(bool fourState = false);
    TwoOperandDraw TwoOperands(bool fourState = false);

    // One line that replays the run and says what it worked on.
    template <class... Values>
    std::string Reproducer(const Values&... values) const {
        std::ostringstream out;
        out << Replay();
        ((out << "; " << values), ...);
        return out.str();
    }

  private:
    std::string Replay() const;
    int RunLength();
    void AddRuns(Vec& vec, unsigned weight);
    Vec WithTop(Vec vec);

    std::uint64_t seed_;
    std::uint64_t state_;
    bool isWide_ = false;
};

// for (Gen& gen : Seeds(kRuns)) runs the body once with each seed from 1 on; TARNLIB_SEED sets the
// first seed and TARNLIB_RUNS the number.
class Seeds {
  public:
    explicit Seeds(int count);
    ~Seeds();
    Seeds(const Seeds&) = delete;
    Seeds& operator=(const Seeds&) = delete;

    class Iterator {
      public:
        explicit Iterator(std::uint64_t seed) : gen_(seed) {}
        Gen& operator*();
        Iterator& operator++() {
            gen_ = Gen(gen_.Seed() + 1);
            return *this;
        }
        bool operator!=(const Iterator& other) const { return gen_.Seed() != other.gen_.Seed(); }

      private:
        Gen gen_;
    };
    Iterator begin() const { return Iterator(first_); }
    Iterator end() const { return Iterator(last_); }

  private:
    std::uint64_t first_;
    std::uint64_t last_;
};

inline constexpr int kRuns = 10'000;

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_GEN_H
