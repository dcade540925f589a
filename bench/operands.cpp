#include "operands.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace tarn::bench {
namespace {

using Words = std::vector<VectorWord>;
using Bytes = std::vector<unsigned char>;
using Limbs = std::vector<mp_limb_t>;
using Random = std::mt19937_64;

constexpr std::uint64_t kSeed = 20051364;

// A conversion of digits may write a little more than the limbs of the value.
constexpr std::size_t kSpareLimbs = 8;
constexpr std::size_t kSpareDigits = 64;

constexpr double kReals[] = {0.6180339887, 2.7182818285};
static_assert(std::size(kReals) == kAboveOne + 1);

static_assert(GMP_NUMB_BITS == 64, "two words are one limb");

std::size_t WordCount(int width) {
    return static_cast<std::size_t>((width + 31) / 32);
}

std::size_t ByteCount(int width) {
    return static_cast<std::size_t>((width + 7) / 8);
}

std::uint32_t RandomBits(Random& random) {
    return static_cast<std::uint32_t>(random());
}

VectorWord RandomWord(Values values, Random& random) {
    if (values == Values::kOnes) return {0xFFFFFFFF, 0};
    if (values == Values::kZeros) return {0, 0};
    const std::uint32_t aval = RandomBits(random);
    if (values == Values::kKnown) return {aval, 0};
    return {aval, RandomBits(random) & RandomBits(random)};
}

std::uint32_t ExtendTop(std::uint32_t top, int width, bool isSigned) {
    const int above = -width & 31;
    const std::uint32_t own = top << above;
    return isSigned ? static_cast<std::uint32_t>(static_cast<std::int32_t>(own) >> above)
                    : own >> above;
}

Words MakeVector(Values values, int width, bool isSigned, Random& random) {
    Words words(WordCount(width));
    for (VectorWord& word : words) {
        word = RandomWord(values, random);
    }
    if (values == Values::kKnown) {
        words.front().aval |= 1;
        words.back().aval |= 1U << ((width - 1) & 31);
    }
    words.back() = {ExtendTop(words.back().aval, width, isSigned),
                    ExtendTop(words.back().bval, width, isSigned)};
    return words;
}

// A quarter of the bits is X or Z, so that known digits and unknown ones follow each other without
// a pattern.
Words MixedVector(int width, Random& random) {
    Words words(WordCount(width) + 1);
    for (VectorWord& word : words) {
        word = RandomWord(Values::kFourState, random);
    }
    return words;
}

// All bytes of aval, then all of bval.
Bytes MemoryWord(const Words& words, int width) {
    const std::size_t half = ByteCount(width);
    Bytes bytes(2 * half);
    for (std::size_t i = 0; i < half; ++i) {
        bytes[i] = static_cast<unsigned char>(words[i / 4].aval >> (i % 4 * 8));
        bytes[half + i] = static_cast<unsigned char>(words[i / 4].bval >> (i % 4 * 8));
    }
    return bytes;
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
        a_ = MakeVector(shape.values, width, shape.isSigned, random);
        b_ = shape.areEqual ? a_ : MakeVector(shape.values, bWidth, shape.isSigned, random);
        mixed_ = MixedVector(width, random);
        memory_ = MemoryWord(a_, width);
        resultMemory_.resize(memory_.size());
        aLimbs_ = Pack(a_, shape.isSigned, limbCount);
        bLimbs_ = Pack(b_, shape.isSigned, limbCount);
        resultLimbs_.resize(2 * limbCount + kSpareLimbs);
        otherResultLimbs_.resize(resultLimbs_.size());
        if (shape.radix != 0) MakeDigits(width, shape.radix, limbCount);
        view_ = {.width = width,
                 .bWidth = bWidth,
                 .wordCount = wordCount,
                 .bWordCount = b_.size(),
                 .result = result_.data(),
                 .a = a_.data(),
                 .b = b_.data(),
                 .mixed = mixed_.data(),
                 .amount = shape.amount < static_cast<unsigned>(width) ? shape.amount : 0,
                 .fieldOffset = std::min(kFieldOffset, static_cast<unsigned>(width - bWidth)),
                 .memoryByteCount = memory_.size(),
                 .resultMemory = resultMemory_.data(),
                 .memory = memory_.data(),
                 .reals = kReals,
                 .resultReal = &resultReal_,
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
                 .start = shape.start};
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
    Bytes memory_, resultMemory_, digits_, resultDigits_;
    double resultReal_ = 0;
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
    constexpr unsigned char kWrongByte = 0x5A;
    std::fill_n(operands.resultLimbs, operands.limbCount, mp_limb_t{0});
    *operands.resultReal = -1;
    switch (operands.start) {
        case Start::kWrong:
            std::fill_n(operands.result, operands.wordCount, kWrong);
            std::fill_n(operands.resultMemory, operands.memoryByteCount, kWrongByte);
            return;
        case Start::kA:
            std::copy_n(operands.a, operands.wordCount, operands.result);
            std::copy_n(operands.memory, operands.memoryByteCount, operands.resultMemory);
            return;
        case Start::kZeros:
            std::fill_n(operands.result, operands.wordCount, VectorWord{0, 0});
            std::fill_n(operands.resultMemory, operands.memoryByteCount, 0);
            return;
    }
}

}  // namespace tarn::bench
