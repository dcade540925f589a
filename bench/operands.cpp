#include "operands.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace tarn::bench {
namespace {

using Words = std::vector<VectorWord>;
using Limbs = std::vector<mp_limb_t>;
using Random = std::mt19937_64;

constexpr std::uint64_t kSeed = 20051364;

// A conversion of digits may write a little more than the limbs of the value.
constexpr std::size_t kSpareLimbs = 8;
constexpr std::size_t kSpareDigits = 64;

static_assert(GMP_NUMB_BITS == 64, "two words are one limb");

std::size_t WordCount(int width) {
    return static_cast<std::size_t>((width + 31) / 32);
}

std::uint32_t RandomBits(Random& random) {
    return static_cast<std::uint32_t>(random());
}

Words KnownVector(int width, bool isSigned, Random& random) {
    Words words(WordCount(width));
    for (VectorWord& word : words) {
        word = {RandomBits(random), 0};
    }
    words.front().aval |= 1;
    const std::uint32_t topBit = 1U << ((width - 1) & 31);
    const std::uint32_t above = ~(topBit | (topBit - 1));
    std::uint32_t& top = words.back().aval;
    top = isSigned ? top | topBit | above : (top | topBit) & ~above;
    return words;
}

// A quarter of the bits is X or Z, so that known digits and unknown ones follow each other without
// a pattern.
Words MixedVector(int width, Random& random) {
    Words words(WordCount(width) + 1);
    for (VectorWord& word : words) {
        word = {RandomBits(random), RandomBits(random) & RandomBits(random)};
    }
    return words;
}

Limbs Pack(const Words& words, bool isSigned, std::size_t limbCount) {
    Limbs limbs(limbCount + kSpareLimbs, 0);
    const mp_limb_t beyond = isSigned && (words.back().aval >> 31) != 0 ? 0xFFFFFFFF : 0;
    for (std::size_t i = 0; i < 2 * limbCount; ++i) {
        const mp_limb_t aval = i < words.size() ? words[i].aval : beyond;
        limbs[i / 2] |= aval << (i % 2 * 32);
    }
    return limbs;
}

}  // namespace

// The storage behind one Operands.
class OperandStorage {
  public:
    OperandStorage(const Shape& shape, int width) {
        Random random(kSeed + static_cast<std::uint64_t>(width));
        const int bWidth = std::max(1, width / shape.bShare);
        const std::size_t wordCount = WordCount(width);
        const std::size_t limbCount = (wordCount + 1) / 2;
        result_.resize(wordCount);
        a_ = KnownVector(width, shape.isSigned, random);
        b_ = KnownVector(bWidth, shape.isSigned, random);
        mixed_ = MixedVector(width, random);
        aLimbs_ = Pack(a_, shape.isSigned, limbCount);
        bLimbs_ = Pack(b_, shape.isSigned, limbCount);
        resultLimbs_.resize(2 * limbCount + kSpareLimbs);
        otherResultLimbs_.resize(resultLimbs_.size());
        if (shape.radix != 0) MakeDigits(width, shape.radix, limbCount);
        view_ = {.width = width,
                 .bWidth = bWidth,
                 .wordCount = wordCount,
                 .result = result_.data(),
                 .a = a_.data(),
                 .b = b_.data(),
                 .mixed = mixed_.data(),
                 .limbCount = static_cast<mp_size_t>(limbCount),
                 .bLimbCount = static_cast<mp_size_t>((b_.size() + 1) / 2),
                 .resultLimbs = resultLimbs_.data(),
                 .otherResultLimbs = otherResultLimbs_.data(),
                 .aLimbs = aLimbs_.data(),
                 .bLimbs = bLimbs_.data(),
                 .radix = shape.radix,
                 .digitCount = digits_.size(),
                 .text = text_.c_str(),
                 .digits = digits_.data(),
                 .resultDigits = resultDigits_.data(),
                 .inPlace = shape.inPlace};
    }

    const Operands& View() const { return view_; }

  private:
    void MakeDigits(int width, int radix, std::size_t limbCount) {
        Limbs destroyed = aLimbs_;
        digits_.resize(static_cast<std::size_t>(width) + kSpareDigits);
        digits_.resize(mpn_get_str(digits_.data(), radix, destroyed.data(),
                                   static_cast<mp_size_t>(limbCount)));
        resultDigits_.resize(digits_.size() + kSpareDigits);
        for (const unsigned char digit : digits_) {
            text_ += kDigitCharacters[digit];
        }
    }

    Words result_, a_, b_, mixed_;
    Limbs resultLimbs_, otherResultLimbs_, aLimbs_, bLimbs_;
    std::vector<unsigned char> digits_, resultDigits_;
    std::string text_;
    Operands view_{};
};

const Operands& OperandsFor(const Shape& shape, int width) {
    static std::map<std::pair<Shape, int>, OperandStorage> made;
    // A map never moves its elements, so the addresses in a view stay right.
    return made.try_emplace({shape, width}, shape, width).first->second.View();
}

void ResetResults(const Operands& operands) {
    constexpr VectorWord kWrong{0x5A5A5A5A, 0xA5A5A5A5};
    if (operands.inPlace) {
        std::copy_n(operands.a, operands.wordCount, operands.result);
    } else {
        std::fill_n(operands.result, operands.wordCount, kWrong);
    }
    std::fill_n(operands.resultLimbs, operands.limbCount, mp_limb_t{0});
}

}  // namespace tarn::bench
