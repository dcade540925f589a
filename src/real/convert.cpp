#include "real/convert.h"

#include <algorithm>
#include <bit>
#include <limits>

#include "real/top_words.h"

namespace tarn {
namespace {

constexpr unsigned kFractionBits = 52;
constexpr unsigned kBias = 1023;
constexpr std::uint64_t kHiddenOne = std::uint64_t{1} << kFractionBits;

// The words whose bits are worth less than 2^1024.
constexpr std::size_t kFiniteWords = 1024 / kWordBits;

// The double whose magnitude begins with `leading`, the top bit of which is set and stands for
// 2^exponent. The significand's own one is added into the exponent field, and so is a carry out of
// the fraction: it makes the next power of two of the magnitude, and infinity of 2^1024.
double Assemble(bool isNegative, std::size_t exponent, std::uint64_t leading) noexcept {
    constexpr unsigned kDropped = 64 - (kFractionBits + 1);
    const std::uint64_t significand = ((leading >> (kDropped - 1)) + 1) >> 1;
    const std::uint64_t field = (exponent + kBias - 1) << kFractionBits;
    const std::uint64_t sign = std::uint64_t{isNegative} << 63;
    return std::bit_cast<double>(sign | (field + significand));
}

// The words of a magnitude. Those of a negative value are complemented as they are read, and the
// magnitude is one more than they say.
struct Magnitude {
    const VectorWord* words;
    bool isNegative;

    std::uint32_t Complement() const noexcept { return isNegative ? ~std::uint32_t{0} : 0; }
    std::uint32_t At(std::size_t i) const noexcept {
        return KnownOnes(LoadWord(words + i)) ^ Complement();
    }
    // The words up to the highest one that is not 0.
    std::size_t Trim(std::size_t count) const noexcept {
        return isNegative ? CountToTop<NoKnownOne>(words, count)
                          : CountToTop<KnownOne>(words, count);
    }
};

// The double of a magnitude whose highest word that is not 0 is `lead`, at index `top`.
double Round(const Magnitude& magnitude, std::size_t top, std::uint32_t lead) noexcept {
    const bool isNegative = magnitude.isNegative;
    if (top >= kFiniteWords) {
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        return isNegative ? -kInfinity : kInfinity;
    }
    // Below word 0 a negative value goes on with complements of zeros, which carry the one upward
    // as its own words do.
    const std::uint32_t second = top >= 1 ? magnitude.At(top - 1) : magnitude.Complement();
    const std::uint32_t third = top >= 2 ? magnitude.At(top - 2) : magnitude.Complement();
    std::uint64_t low = std::uint64_t{second} << kWordBits | third;
    std::uint64_t high = lead;
    if (isNegative && (top < 2 || CountToTop<KnownOne>(magnitude.words, top - 2) == 0)) {
        ++low;
        high += low == 0 ? 1U : 0U;
    }
    const int unused = std::countl_zero(high);  // 31 to 63
    return Assemble(isNegative, 32 * top + 63 - static_cast<unsigned>(unused),
                    high << unused | low >> (64 - unused));
}

}  // namespace

double NearestReal(bool isNegative, std::uint64_t magnitude) noexcept {
    if (magnitude == 0) return 0.0;
    const int unused = std::countl_zero(magnitude);
    return Assemble(isNegative, 63 - static_cast<unsigned>(unused), magnitude << unused);
}

template <class Extend>
double ToRealTwoWords(Operand value) noexcept {
    const std::uint64_t ones = std::uint64_t{KnownOnes(LoadWord(value.words + 1))} << kWordBits |
                               KnownOnes(LoadWord(value.words));
    const int above = 64 - value.width;
    const std::int64_t whole = static_cast<std::int64_t>(ones << above) >> above;
    return Extend::kIsSigned && whole < 0 ? NearestReal(whole) : NearestReal(false, ones);
}

template double ToRealTwoWords<SignExtend>(Operand) noexcept;
template double ToRealTwoWords<ZeroExtend>(Operand) noexcept;

template <class Extend>
double ToRealWide(Operand value) noexcept {
    if (value.width < 1) return 0.0;
    const std::size_t top = value.Count() - 1;
    const std::uint32_t ones = KnownOnes(LoadWord(value.words + top));
    const std::uint32_t mask = LowMask(value.width);
    const std::uint32_t signBit = mask ^ (mask >> 1);
    const Magnitude magnitude{value.words, Extend::kIsSigned && (ones & signBit) != 0};
    const std::uint32_t lead = magnitude.isNegative ? ~ones & mask : ones;
    if (lead != 0) return Round(magnitude, top, lead);
    const std::size_t count = magnitude.Trim(top);
    if (count == 0) return magnitude.isNegative ? -1.0 : 0.0;
    return Round(magnitude, count - 1, magnitude.At(count - 1));
}

template double ToRealWide<SignExtend>(Operand) noexcept;
template double ToRealWide<ZeroExtend>(Operand) noexcept;

void StoreWholeWide(Result result, std::int64_t value) noexcept {
    if (result.width < 1) return;
    StoreTwoWords(result, static_cast<std::uint64_t>(value), BeyondInteger(value));
}

void StoreHuge(Result result, double value) noexcept {
    const auto pattern = std::bit_cast<std::uint64_t>(value);
    const std::size_t count = result.Count();
    const std::size_t shift = (pattern >> kFractionBits) % 2048 - kBias - kFractionBits;
    const std::size_t zeros = std::min(shift / 32, count);
    FillWords(result.words, zeros, 0);
    if (zeros == count) return;
    const auto magnitude = static_cast<std::int64_t>(pattern % kHiddenOne | kHiddenOne);
    const std::int64_t significand = pattern >> 63 != 0 ? -magnitude : magnitude;
    const auto lowest =
        static_cast<std::uint32_t>(static_cast<std::uint64_t>(significand) << shift % 32);
    StoreWord(result.words + zeros, lowest);
    const Result rest{result.width - 32 * static_cast<int>(zeros + 1), result.words + zeros + 1};
    StoreWholeWide(rest, significand >> (32 - shift % 32));
}

}  // namespace tarn
