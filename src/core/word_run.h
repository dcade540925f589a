// Where a kernel takes the words of an operand from in one region of a walk: the operand's own
// storage, or the one word that stands in for all that it does not have.
#ifndef TARN_CORE_WORD_RUN_H
#define TARN_CORE_WORD_RUN_H

#include "core/halves.h"
#include "core/lanes.h"
#include "core/vector.h"

namespace tarn {

// Up to this count a walk word by word is faster than a kernel.
inline constexpr std::size_t kFewWords = 8;
static_assert(kFewWords >= kLaneCount);

// `Held` is the form that a kernel keeps for the time of its loop.
struct OwnWords {
    using Held = OwnWords;
    const VectorWord* words;

    OwnWords From(std::size_t first) const noexcept { return {words + first}; }

    TARN_KERNEL void Load(std::size_t index, Word& word) const noexcept {
        word = LoadWord(words + index);
    }
    TARN_KERNEL void Load(std::size_t index, Lanes& lanes) const noexcept {
        LoadLanes(lanes, words + index);
    }
    template <std::size_t kCount>
    TARN_KERNEL void Load(std::size_t index, Halves<kCount>& halves) const noexcept {
        LoadHalves(halves, words + index);
    }
};

struct RepeatedWord {
    class Held;
    Word word;

    RepeatedWord From(std::size_t) const noexcept { return *this; }

    TARN_KERNEL void Load(std::size_t, Word& to) const noexcept { to = word; }
    template <std::size_t kCount>
    TARN_KERNEL void Load(std::size_t, Halves<kCount>& halves) const noexcept {
        RepeatWord(halves, word);
    }
};

// The zeros above an unsigned operand, which the compiler knows.
struct ZeroWord {
    template <std::size_t kCount>
    TARN_KERNEL void Load(std::size_t, Halves<kCount>& halves) const noexcept {
        halves = {BitsOf<kCount>{}, BitsOf<kCount>{}};
    }
};

// Spread over lanes once: the compiler would do it again for each group of lanes.
class RepeatedWord::Held : public RepeatedWord {
  public:
    using RepeatedWord::Load;

    TARN_KERNEL explicit Held(RepeatedWord from) noexcept
        : RepeatedWord(from), lanes_(Lanes{} + from.word) {}
    TARN_KERNEL void Load(std::size_t, Lanes& to) const noexcept { to = lanes_; }

  private:
    Lanes lanes_;
};

}  // namespace tarn

#endif  // TARN_CORE_WORD_RUN_H
