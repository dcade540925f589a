#include "arith/power.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "arith/natural/span.h"
#include "arith/pack.h"
#include "arith/product.h"
#include "arith/scratch.h"
#include "arith/short.h"

namespace tarn {
namespace {

// A word's value without the bits above the width, where it is the top word.
Word ExponentWord(Operand exponent, std::size_t i) noexcept {
    const Word word = LoadWord(exponent.words + i) & kValueBits;
    return i + 1 == exponent.Count() ? word & LowMask(exponent.width) : word;
}

// The count of bits up to the highest one that is set; 0 for the value 0.
std::size_t ExponentBits(Operand exponent) noexcept {
    for (std::size_t i = exponent.Count(); i-- > 0;) {
        if (const Word word = ExponentWord(exponent, i); word != 0) {
            return i * kWordBits + static_cast<std::size_t>(std::bit_width(word));
        }
    }
    return 0;
}

bool ExponentBit(Operand exponent, std::size_t i) noexcept {
    return ((exponent.words[i / kWordBits].aval >> i % kWordBits) & 1U) != 0;
}

// Whether an even base to the power of the exponent, which has `bits` bits, is 0 modulo
// 2^resultBits: each factor brings at least one zero bit.
bool Vanishes(const Whole& base, Operand exponent, std::size_t bits,
              std::size_t resultBits) noexcept {
    if ((base.limbs[0] & 1U) != 0) return false;
    constexpr std::size_t kEnough = 32;
    if (bits > kEnough) return true;
    const auto zeros = base.limbs[0] == 0
                           ? std::size_t{kLimbBits}
                           : static_cast<std::size_t>(std::countr_zero(base.limbs[0]));
    return ExponentWord(exponent, 0) >= (resultBits + zeros - 1) / zeros;
}

// base ** exponent modulo 2^(64 * limit) by squaring and multiplying from the exponent's top bit
// down, so that a short base stays a short factor; bits is at least 1.
Whole PowerOfWhole(const Whole& base, Operand exponent, std::size_t bits, std::size_t limit,
                   Scratch* scratch) noexcept {
    Whole power{scratch->Take(2 * limit), base.count, false};
    std::copy(base.limbs, base.limbs + base.count, power.limbs);
    Limb* next = scratch->Take(2 * limit);
    Limb* const temporary = scratch->Take(LowProductScratch(limit, limit, limit));
    const auto multiplyBy = [&](const Whole& factor) {
        power.count = LowProduct(next, power, factor, limit, temporary);
        std::swap(power.limbs, next);
    };
    for (std::size_t i = bits - 1; i-- > 0;) {
        multiplyBy(power);
        if (ExponentBit(exponent, i)) {
            multiplyBy(base);
        }
    }
    return power;
}

// Everything in machine numbers, for an exponent of at most 64 bits; false where the widths forbid
// it.
template <class Extend>
bool PowerShort(Result result, Operand base, Operand exponent) noexcept {
    if (!AreWithin<64>(exponent.width)) return false;
    const Short<Limb> stored = LoadShort<Limb, ZeroExtend>(exponent);
    const Limb bits = stored.number & (~Limb{0} >> (kLimbBits - exponent.width));
    const auto raise = [&](auto factor) -> decltype(factor) {
        decltype(factor) power{1, factor.unknown || stored.unknown};
        for (Limb left = bits; left != 0; left >>= 1) {
            if ((left & 1U) != 0) {
                power.number *= factor.number;
            }
            factor.number *= factor.number;
        }
        return power;
    };
    return ComputeShort<Extend>(result, raise, base);
}

void StoreOne(Result result, bool negative) noexcept {
    Limb one = 1;
    StoreWhole(result, {&one, 1, negative});
}

// What a base is to a negative exponent.
enum class BaseClass { kZero, kOne, kMinusOne, kOther };

// The class of a known base over all of its words.
template <class Extend>
BaseClass Classify(Operand base) noexcept {
    const std::size_t count = base.Count();
    if (count == 0) return BaseClass::kZero;
    const Word first = LoadWord(base.words);
    const Word above = Extend::kIsSigned && first == kValueBits ? kValueBits : Word{0};
    for (std::size_t i = 1; i < count; ++i) {
        if (LoadWord(base.words + i) != above) return BaseClass::kOther;
    }
    if (first == 0) return BaseClass::kZero;
    if (first == 1) return BaseClass::kOne;
    return first == above ? BaseClass::kMinusOne : BaseClass::kOther;
}

template <class Extend>
void PowerNegative(Result result, Operand base, Operand exponent) noexcept {
    switch (Classify<Extend>(base)) {
        case BaseClass::kZero:
            FillX(result);
            return;
        case BaseClass::kOne:
            StoreOne(result, false);
            return;
        case BaseClass::kMinusOne:
            StoreOne(result, ExponentBit(exponent, 0));
            return;
        case BaseClass::kOther:
            FillWords(result.words, result.Count(), 0);
            return;
    }
}

template <class Extend>
void PowerOfKnown(Result result, Operand base, Operand exponent) noexcept {
    std::size_t bits = ExponentBits(exponent);
    if (bits == 0) {
        StoreOne(result, false);
        return;
    }
    const std::size_t words = result.Count();
    const std::size_t limit = LimbCount(words);
    Scratch scratch;
    Whole whole;
    PackWhole<Extend>(&whole, scratch.Take(limit), base, std::min(base.Count(), words));
    const std::size_t resultBits = words * kWordBits;
    if (whole.count == 0 || Vanishes(whole, exponent, bits, resultBits)) {
        FillWords(result.words, words, 0);
        return;
    }
    const bool negative = whole.negative && ExponentBit(exponent, 0);
    // Modulo 2^n the powers of an odd number repeat after a power of two below 2^n, so exponent
    // bits from n upward make no difference; an even base has vanished by then.
    while (bits > resultBits || (bits > 0 && !ExponentBit(exponent, bits - 1))) {
        bits = std::min(bits - 1, resultBits);
    }
    if (bits == 0) {
        StoreOne(result, false);
    } else {
        Whole power = PowerOfWhole(whole, exponent, bits, limit, &scratch);
        power.negative = negative;
        StoreWhole(result, power);
    }
}

}  // namespace

template <class Extend>
void PowerUnsigned(Result result, Operand base, Operand exponent) noexcept {
    if (result.width < 1 || PowerShort<Extend>(result, base, exponent)) return;
    if (HasUnknownFrom(0, base) || HasUnknownFrom(0, exponent)) {
        FillX(result);
        return;
    }
    PowerOfKnown<Extend>(result, base, exponent);
}

template <class Extend>
void PowerSigned(Result result, Operand base, Operand exponent) noexcept {
    if (!AreTopBitsSet(exponent)) {
        PowerUnsigned<Extend>(result, base, exponent);
    } else if (HasUnknownFrom(0, base) || HasUnknownFrom(0, exponent)) {
        FillX(result);
    } else {
        PowerNegative<Extend>(result, base, exponent);
    }
}

template void PowerUnsigned<SignExtend>(Result, Operand, Operand) noexcept;
template void PowerUnsigned<ZeroExtend>(Result, Operand, Operand) noexcept;
template void PowerSigned<SignExtend>(Result, Operand, Operand) noexcept;
template void PowerSigned<ZeroExtend>(Result, Operand, Operand) noexcept;

}  // namespace tarn
