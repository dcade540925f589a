// Random operands: hard widths, runs of equal bits, clean and dirty top words. What is drawn comes
// from a seed, which a failure prints and which replays that run alone, or from a fuzzer's input.
#ifndef TARN_TESTS_SUPPORT_GEN_H
#define TARN_TESTS_SUPPORT_GEN_H

#include <cstdint>
#include <iterator>
#include <sstream>
#include <string>

#include "support/vec.h"

namespace tarn::test {

class Gen {
  public:
    explicit Gen(std::uint64_t seed) : seed_(seed), state_(seed) { isWide_ = OneIn(1000); }
    // All draws come from the front of the bytes; zeros follow the last one.
    Gen(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {
        isWide_ = OneIn(1000);
    }

    std::uint64_t Seed() const { return seed_; }
    std::uint64_t Bits() { return Take(8); }
    int Below(int bound) {
        const unsigned bytes = bound <= 16 ? 1 : bound <= 0x4000 ? 2 : 5;
        return static_cast<int>(Take(bytes) % static_cast<std::uint64_t>(bound));
    }
    int Between(int least, int most) { return least + Below(most - least + 1); }
    // Not where an input has ended: what is rare has bytes of its own.
    bool OneIn(int count) { return Below(count) == count - 1; }
    template <class List>
    const auto& Pick(const List& list) {
        return *(std::begin(list) + Below(static_cast<int>(std::size(list))));
    }

    // At least 1: mostly at the edges of words and blocks of words; thousands of words in a run
    // that was chosen to be wide.
    int Width();
    // Also 0 and below.
    int AnyWidth();

    // Three of four are known; the top word is clean, sign-filled or random.
    Vec Vector(int width);
    // Unknown bits are as common as known ones.
    Vec FourState(int width);

    // What is left of an input; from a seed, what `draw` returns.
    template <class Draw>
    std::string Text(Draw draw) {
        if (next_ == nullptr) return draw();
        return {reinterpret_cast<const char*>(next_), static_cast<std::size_t>(end_ - next_)};
    }

    // One line that replays the run and says what it worked on.
    template <class... Values>
    std::string Reproducer(const Values&... values) const {
        std::ostringstream out;
        out << Replay();
        ((out << "; " << values), ...);
        return out.str();
    }

  private:
    // A number of so many bytes.
    std::uint64_t Take(unsigned byteCount);
    std::string Replay() const;
    int RunLength();
    void AddRuns(Vec& vec, unsigned weight);
    Vec WithTop(Vec vec);

    std::uint64_t seed_ = 0;
    std::uint64_t state_ = 0;
    const std::uint8_t* next_ = nullptr;
    const std::uint8_t* end_ = nullptr;
    bool isWide_ = false;
};

// for (Gen& gen : Seeds(kRuns)) runs the body once with each seed from 1 on; TARNLIB_SEED sets the
// first seed, TARNLIB_RUNS what kRuns is.
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
