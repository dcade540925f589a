#include "peers.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "bits.h"

namespace tarn::bench {
namespace {

// The digit whose bits are [first, last) of the words.
char MixedDigit(const VectorWord* words, int first, int last) {
    int xCount = 0;
    int zCount = 0;
    unsigned value = 0;
    for (int i = last - 1; i >= first; --i) {
        const Bit bit = BitOf(words, i);
        xCount += bit.bval != 0 && bit.aval != 0 ? 1 : 0;
        zCount += bit.bval != 0 && bit.aval == 0 ? 1 : 0;
        value = 2 * value + bit.aval;
    }
    if (xCount != 0) return xCount == last - first ? 'x' : 'X';
    if (zCount != 0) return zCount == last - first ? 'z' : 'Z';
    return kDigitCharacters[value];
}

}  // namespace

void PowerLimbs(const Operands& o) {
    mp_limb_t* power = o.otherResultLimbs;
    mp_limb_t* product = o.resultLimbs;
    mpn_copyi(power, o.aLimbs, o.limbCount);
    for (std::uint32_t bit = std::bit_floor(kExponent.aval) >> 1; bit != 0; bit >>= 1) {
        mpn_sqr(product, power, o.limbCount);
        std::swap(product, power);
        if ((kExponent.aval & bit) == 0) continue;
        mpn_mul_n(product, power, o.aLimbs, o.limbCount);
        std::swap(product, power);
    }
    if (power != o.resultLimbs) mpn_copyi(o.resultLimbs, power, o.limbCount);
}

std::string MixedDigits(const Operands& o) {
    const int bitsPerDigit = std::countr_zero(static_cast<unsigned>(o.radix));
    std::string text;
    for (int first = 0; first < o.width; first += bitsPerDigit) {
        text += MixedDigit(o.mixed, first, std::min(first + bitsPerDigit, o.width));
    }
    std::reverse(text.begin(), text.end());
    return text;
}

}  // namespace tarn::bench
