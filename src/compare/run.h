// What a kernel that compares two runs of words takes them from.
#ifndef TARN_COMPARE_RUN_H
#define TARN_COMPARE_RUN_H

#include "core/lanes.h"
#include "core/vector.h"

namespace tarn {

// Up to this count a walk word by word is faster than a kernel.
inline constexpr std::size_t kFewWords = 8;
static_assert(kFewWords >= kLaneCount);

// The words of a vector.
struct OwnWords {
    using Held = OwnWords;
    const VectorWord* words;

    TARN_KERNEL void Load(std::size_t index, Word& word) const noexcept {
        word = LoadWord(words + index);
    }
    TARN_KERNEL void Load(std::size_t index, Lanes& lanes) const noexcept {
        LoadLanes(lanes, words + index);
    }
};

// The word that stands above a narrow vector, however often it is needed.
struct RepeatedWord {
    class Held;
    Word word;

    TARN_KERNEL void Load(std::size_t, Word& to) const noexcept { to = word; }
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

// Word 1 of an operand of one or two words.
template <class Extend>
inline Word UpperWord(Operand operand) noexcept {
    return operand.width > kWordBits ? LoadWord(operand.words + 1)
                                     : Extend::Beyond(LoadWord(operand.words));
}

}  // namespace tarn

#endif  // TARN_COMPARE_RUN_H
