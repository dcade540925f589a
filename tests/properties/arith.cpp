// Arithmetic on integers of any width.
#include <tarnlib/arith.h>

#include "families.h"

namespace tarn::test {
namespace {

/*------------------------------------------------------------------------------------------------
 * Models
 *----------------------------------------------------------------------------------------------*/

template <Extension extension, int bSign>
Vec Sum(int width, const Vec& a, const Vec& b) {
    if (HasUnknown(a) || HasUnknown(b)) return AllX(width);
    return FromInteger(width, ToInteger(Extended(a, width, extension)) +
                                  bSign * ToInteger(Extended(b, width, extension)));
}

template <Extension extension, int aSign>
Vec Signed(int width, const Vec& a) {
    return Sum<extension, aSign>(width, Vec{}, a);
}

template <int delta>
Vec Stepped(const Vec& v) {
    return HasUnknown(v) ? AllX(v.width) : FromInteger(v.width, ToInteger(v) + delta);
}

template <Extension extension>
Vec Product(int width, const Vec& a, const Vec& b) {
    if (HasUnknown(a) || HasUnknown(b)) return AllX(width);
    return FromInteger(width, Value(a, extension) * Value(b, extension));
}

// Integer's operators truncate toward zero and give the remainder the dividend's sign, as Verilog
// does.
template <Extension extension, bool isRemainder>
Vec Divided(int width, const Vec& a, const Vec& b) {
    if (HasUnknown(a) || HasUnknown(b) || ToInteger(b) == 0) return AllX(width);
    const Integer dividend = Value(a, extension), divisor = Value(b, extension);
    return FromInteger(width, isRemainder ? Integer(dividend % divisor) : dividend / divisor);
}

// Bits of an unsigned exponent above its width don't count; in a signed one they make it negative.
template <Extension baseExtension, Extension exponentExtension>
Vec Power(int width, const Vec& base, const Vec& exponent) {
    if (HasUnknown(base) || HasUnknown(exponent)) return AllX(width);
    if (width < 1) return Vec{width, {}};
    const Integer value = Value(base, baseExtension), count = ToInteger(exponent);
    const auto bits = static_cast<std::size_t>(std::max(exponent.width, 0));
    if (exponentExtension == kZero || bits == 0 || BitCount(count) < bits || count == 0) {
        return FromInteger(width, LowPower(value, LowBits(count, bits), 32 * WordCount(width)));
    }
    if (value == 0) return AllX(width);
    const bool isUnit = value == 1 || value == -1, isOdd = exponent.bits[0] == Logic::k1;
    return FromInteger(width, isUnit ? (isOdd ? value : Integer(1)) : Integer(0));
}

/*------------------------------------------------------------------------------------------------
 * Operands
 *----------------------------------------------------------------------------------------------*/

// Around a power of two, in storage of the width: where carries, estimates and signs go wrong.
Vec NearPowerOfTwo(Gen& gen, int width) {
    if (width < 1) return {width, {}};
    Integer value = PowerOfTwo(gen.Below(static_cast<int>(32 * WordCount(width))));
    value += gen.Between(-1, 1);
    return FromInteger(width, gen.OneIn(3) ? Integer(-value) : value);
}

// A run of ones, of whole words below its end.
Vec Ones(Gen& gen, int width) {
    const int words = static_cast<int>(WordCount(width)), first = gen.Below(words);
    Vec vec = Filled(width, Logic::k0);
    const int end = gen.OneIn(2) ? 32 * words : 32 * gen.Between(first + 1, words) - 13;
    std::fill(vec.bits.begin() + 32 * first, vec.bits.begin() + end, Logic::k1);
    return vec;
}

// A carry that starts and ends in any word of a block and of its tail, and passes from one to the
// next; in the widest vectors through many blocks.
Two DrawCarries(Gen& gen) {
    const int width = 32 * (gen.OneIn(8) ? gen.Between(1, 133) : gen.Between(1, 27));
    Vec a = Ones(gen, width);
    Vec b = Filled(gen.OneIn(4) ? 1 : width, Logic::k0);
    if (gen.OneIn(4)) {
        b = Ones(gen, width);
    } else {
        const auto bit = std::find(a.bits.begin(), a.bits.end(), Logic::k1) - a.bits.begin();
        b.bits[b.width == 1 ? 0 : static_cast<std::size_t>(bit)] = Logic::k1;
    }
    if (gen.OneIn(8)) std::fill(a.bits.begin(), a.bits.end(), Logic::k0);
    if (gen.OneIn(2)) std::swap(a, b);
    return {width, std::move(a), std::move(b)};
}

Two DrawTwo(Gen& gen) {
    if (gen.OneIn(3)) return DrawCarries(gen);
    auto [width, a, b] = DrawTwoOperands(gen);
    if (gen.OneIn(4)) a = NearPowerOfTwo(gen, a.width);
    if (gen.OneIn(4)) b = NearPowerOfTwo(gen, b.width);
    return {width, std::move(a), std::move(b)};
}

One DrawOne(Gen& gen) {
    auto [width, a] = DrawOneOperand(gen);
    if (gen.OneIn(4)) a = NearPowerOfTwo(gen, a.width);
    return {width, std::move(a)};
}

InPlace DrawStep(Gen& gen) {
    return {gen.OneIn(4) ? Ones(gen, gen.Width()) : gen.Vector(gen.AnyWidth())};
}

// Dividends on both sides of a multiple of the divisor, which may begin with the bits that make
// quotient estimates worst: a lone top bit, or ones only.
Two DrawQuotient(Gen& gen) {
    if (!gen.OneIn(6)) return DrawTwo(gen);
    const int bWidth = 64 * gen.Between(1, 12), width = bWidth + 64 * gen.Between(0, 12);
    const Integer top = PowerOfTwo(bWidth - 1);
    Integer divisor = ToInteger(Clean(gen.FourState(bWidth))) | top;
    if (gen.OneIn(3)) divisor = top + gen.Below(3);
    if (gen.OneIn(3)) divisor = 2 * top - gen.Between(1, 3);
    const Integer most = PowerOfTwo(width - bWidth) - 1;
    const Integer factor =
        gen.OneIn(2) ? most : LowBits(ToInteger(gen.FourState(width)), std::size_t(width - bWidth));
    const Integer dividend = factor * divisor + gen.Between(-1, 1);
    return {width, FromInteger(width, dividend), FromInteger(bWidth, divisor)};
}

Two DrawPower(Gen& gen) {
    auto [width, base, exponent] = DrawTwoOperands(gen);
    if (gen.OneIn(3) && base.width > 0) base = FromInteger(base.width, gen.Between(-3, 3));
    if (gen.OneIn(2) || exponent.width > 300) {
        // Bits above the width stay.
        exponent = Prefix(exponent, std::min(exponent.width, gen.Between(0, 70)));
    }
    if (width > 1000 && exponent.width > 8) exponent = Prefix(exponent, 8);
    return {width, std::move(base), std::move(exponent)};
}

// Sizes on every storey of the kernels, up to a million bits; operands of one size, and one much
// shorter than the other.
Two DrawWide(Gen& gen) {
    constexpr int kWidths[] = {2000, 5000, 20'000, 65'536, 130'000, 300'000, 1'048'576};
    const int width = kWidths[gen.Seed() % std::size(kWidths)];
    const int bWidth = width / gen.Pick(std::vector{1, 2, 7});
    const Vec a = Clean(gen.FourState(width)), b = Clean(gen.FourState(bWidth));
    return {width, FromInteger(width, ToInteger(a)), FromInteger(bWidth, ToInteger(b) | 1)};
}

/*------------------------------------------------------------------------------------------------
 * Rows
 *----------------------------------------------------------------------------------------------*/

constexpr int kWideRuns = 21;

Properties Random() {
    return {
        TARN_ROW(tarn_SignedAdd, Sum<kSign, 1>, DrawTwo),
        TARN_ROW(tarn_UnsignedAdd, Sum<kZero, 1>, DrawTwo),
        TARN_ROW(tarn_SignedSub, Sum<kSign, -1>, DrawTwo),
        TARN_ROW(tarn_UnsignedSub, Sum<kZero, -1>, DrawTwo),
        TARN_ROW(tarn_SignedMinus, Signed<kSign, -1>, DrawOne),
        TARN_ROW(tarn_UnsignedMinus, Signed<kZero, -1>, DrawOne),
        TARN_ROW(tarn_SignedPlus, Signed<kSign, 1>, DrawOne),
        TARN_ROW(tarn_UnsignedPlus, Signed<kZero, 1>, DrawOne),
        TARN_ROW(tarn_Inc, Stepped<1>, DrawStep),
        TARN_ROW(tarn_Dec, Stepped<-1>, DrawStep),
        TARN_ROW(tarn_SignedMul, Product<kSign>, DrawTwo),
        TARN_ROW(tarn_UnsignedMul, Product<kZero>, DrawTwo),
        TARN_ROW(tarn_SignedDiv, Divided<kSign, false>, DrawQuotient),
        TARN_ROW(tarn_UnsignedDiv, Divided<kZero, false>, DrawQuotient),
        TARN_ROW(tarn_SignedMod, Divided<kSign, true>, DrawQuotient),
        TARN_ROW(tarn_UnsignedMod, Divided<kZero, true>, DrawQuotient),
        TARN_ROW(tarn_SignedUPower, Power<kSign, kZero>, DrawPower),
        TARN_ROW(tarn_UnsignedUPower, Power<kZero, kZero>, DrawPower),
        TARN_ROW(tarn_SignedSPower, Power<kSign, kSign>, DrawPower),
        TARN_ROW(tarn_UnsignedSPower, Power<kZero, kSign>, DrawPower),
        Row("tarn_SignedMul Wide", tarn_SignedMul, Product<kSign>, DrawWide, kWideRuns),
        Row("tarn_UnsignedMul Wide", tarn_UnsignedMul, Product<kZero>, DrawWide, kWideRuns),
        Row("tarn_SignedDiv Wide", tarn_SignedDiv, Divided<kSign, false>, DrawWide, kWideRuns),
        Row("tarn_UnsignedMod Wide", tarn_UnsignedMod, Divided<kZero, true>, DrawWide, kWideRuns),
    };
}

std::vector<Case> ByHand() {
    const Vec ones = "32'hffffffff"_v, zero = "32'h0"_v, one = "32'h1"_v;
    const Vec a = "100'h123456789abcdef0123456789"_v, b = "100'hfedcba9876543210fedcba987"_v;
    Party both = Target(a, Product<kZero>(100, a, b));
    both.fixed = tarn_VectorRegister;
    const Vec two = "32'h2"_v, minusSeven = "32'hfffffff9"_v;
    return {
        // The top word holds the whole word's sum.
        TARN_CALL(tarn_UnsignedAdd, 8, Result(Words(8, {{0x100, 0}})), "8'hff"_v, "8'h01"_v),
        TARN_CALL(tarn_Inc, 40, Target("40'hffffffffff"_v, Words(40, {{0, 0}, {0x100, 0}}))),
        // Bit 31 of the top word is the sign.
        TARN_CALL(tarn_SignedAdd, 64, Result("64'h104"_v), "8'hff"_v, "64'h5"_v),
        // Unknown bits count above the width and above the result.
        TARN_CALL(tarn_SignedAdd, 8, Result(AllX(8)), "64'hz0000000000"_v, "8'h00"_v),
        TARN_CALL(tarn_UnsignedAdd, 40, Result(AllX(40)), "40'h1"_v, Words(8, {{0, 0x100}})),
        // An empty operand is 0; as a divisor it gives X.
        TARN_CALL(tarn_UnsignedSub, 40, Result("40'h0"_v), Vec{}, Vec{-1, {}}),
        TARN_CALL(tarn_UnsignedMod, 40, Result(AllX(40)), "40'h5"_v, Vec{}),
        // Quotients are cut toward zero; what the result has no words for is dropped.
        TARN_CALL(tarn_SignedDiv, 32, Result("32'hfffffffd"_v), minusSeven, two),
        TARN_CALL(tarn_SignedMod, 32, Result(ones), minusSeven, two),
        TARN_CALL(tarn_UnsignedDiv, 32, Result(zero), "64'h10000000000000"_v, "32'h100000"_v),
        // Powers: which exponents are negative, and what they make of 0, 1 and -1.
        TARN_CALL(tarn_UnsignedUPower, 32, Result(one), zero, Words(4, {{0x10, 0}})),
        TARN_CALL(tarn_SignedSPower, 40, Result(Words(40, {{~0U, 0}, {~0U, 0}})), ones, "8'shfd"_v),
        TARN_CALL(tarn_SignedSPower, 32, Result(AllX(32)), zero, "8'shff"_v),
        TARN_CALL(tarn_UnsignedSPower, 32, Result(zero), ones, "8'shff"_v),
        // The first operand may lie in the shared register, the result too.
        TARN_CALL(tarn_UnsignedMul, 100, both, 100, Again{0}, b),
    };
}

}  // namespace

Family ArithFamily() {
    return {"Arith", Random(), ByHand};
}

}  // namespace tarn::test
