// Fields and bits read, concatenation, bits rewritten, shifts; vectors as indices and amounts.
#include <array>

#include <tarnlib/select.h>
#include <tarnlib/shift.h>

#include "fields.h"

namespace tarn::test {
namespace {

/*------------------------------------------------------------------------------------------------
 * Fields that are read
 *----------------------------------------------------------------------------------------------*/

// A field of a vector that ends where the field does, so that one word more is a stray access. The
// result may lie where the vector begins.
struct Read {
    Vec source;
    int low, width;
};

Read DrawRead(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    const int low = gen.OneIn(4) ? 32 * gen.Below(4) : gen.Below(gen.OneIn(2) ? 32 : 200);
    return {gen.FourState(width < 1 ? 0 : low + width), low, width};
}

Party WordOf(const Vec& vec, int low) {
    return At(Operand(vec), static_cast<std::size_t>(low) / 32 * sizeof(VectorWord));
}

Case ReadField(Gen& gen) {
    const auto [source, low, width] = DrawRead(gen);
    return Case(TARN_FUNCTION(tarn_Partselect), Result(Field(source, low, width)),
                WordOf(source, low), low % 32, width);
}

Case ReadSignedField(Gen& gen) {
    const auto [source, low, width] = DrawRead(gen);
    const int resultWidth = gen.OneIn(2) ? width : gen.AnyWidth();
    const Vec field = SignFilled(Field(source, low, width));
    const Vec wide = width < 1 ? Vec{} : Extended(field, std::max(resultWidth, width), kSign);
    return Case(TARN_FUNCTION(tarn_SignedPartselect), resultWidth, Result(wide),
                WordOf(source, low), low % 32, width);
}

// Nothing may be read where no bit of the field is the source's.
Case ReadIndexedField(Gen& gen) {
    const Vec source = gen.FourState(gen.OneIn(2) ? gen.Between(1, 96) : gen.AnyWidth());
    const int width = DrawDefinedWidth(gen), index = DrawIndex(gen, source.width, width);
    const Party field = Result(Field(source, index, width));
    if (HasBitInside(source.width, index, width)) {
        return Case(TARN_FUNCTION(tarn_IndexedPartselect), field, source, index, width);
    }
    return Case(TARN_FUNCTION(tarn_IndexedPartselect), field, source.width, Unreadable{}, index,
                width);
}

std::tuple<Vec, int> DrawBit(Gen& gen) {
    const Vec source = gen.FourState(gen.AnyWidth());
    return {source, DrawIndex(gen, source.width, 32)};
}

int BitOf(const Vec& source, int index) {
    return static_cast<int>(Field(source, index, 1).bits[0]);
}

// A run of X bits from bit `base` of a word upward.
Case FillWithX(Gen& gen) {
    const int base = gen.Below(32), count = DrawDefinedWidth(gen);
    const Vec words = gen.FourState(count < 1 ? 0 : base + count);
    Vec filled = Clean(AllX(words.width));
    std::copy_n(words.bits.begin(), count < 1 ? 0 : base, filled.bits.begin());
    return Case(TARN_FUNCTION(tarn_CleanBasedFillX), Target(words, filled), count, base);
}

/*------------------------------------------------------------------------------------------------
 * Concatenation, bits rewritten in place
 *----------------------------------------------------------------------------------------------*/

// What a call leaves of the destination's words that it writes.
Vec Placed(const Vec& destination, const Vec& operand, int offset, int span) {
    const int end = offset + operand.width;
    if (span < 1 || operand.width < 1) return Vec{};
    Vec result = Prefix(destination, std::min(span, end));
    for (std::size_t i = 0; i < result.bits.size(); ++i) {
        const std::int64_t from = static_cast<std::int64_t>(i) - offset;
        const bool isThere = from >= 0 && from < std::int64_t(operand.bits.size()) &&
                             (from < 32 || from / 32 * 32 + offset < span);
        const Logic bit = isThere ? operand.bits[static_cast<std::size_t>(from)] : Logic::k0;
        result.bits[i] =
            i >= 32 ? bit
                    : static_cast<Logic>(static_cast<int>(result.bits[i]) | static_cast<int>(bit));
    }
    return result;
}

// Destinations that begin as the operand does can be the same storage. The checked build asks for a
// clean operand without bits below the place, and for a destination without bits from there on.
void Prepare(Gen& gen, Vec& destination, Vec& operand, int place, int lowestOfOperand) {
    if (gen.OneIn(4)) {
        std::copy_n(operand.bits.begin(), std::min(operand.bits.size(), destination.bits.size()),
                    destination.bits.begin());
    }
    if (!kIsChecked) return;
    operand = Clean(operand);
    std::fill_n(operand.bits.begin(), lowestOfOperand, Logic::k0);
    std::fill(destination.bits.begin() + place, destination.bits.begin() + 32, Logic::k0);
}

Case Concatenate(Gen& gen) {
    Vec operand = gen.FourState(DrawDefinedWidth(gen));
    const int offset = gen.OneIn(4) ? 0 : gen.Below(32);
    const int end = offset + std::max(operand.width, 0);
    const int span = gen.OneIn(2)   ? std::max(end, 1)
                     : gen.OneIn(2) ? end + gen.Between(1, 99)
                                    : DrawDefinedWidth(gen);
    Vec destination = gen.FourState(span);
    Prepare(gen, destination, operand, offset, 0);
    return Case(TARN_FUNCTION(tarn_Concatenate), span,
                Target(destination, Placed(destination, operand, offset, span)), operand, offset);
}

Case ConcatenateShifted(Gen& gen) {
    Vec operand = gen.FourState(DrawDefinedWidth(gen));
    Vec destination = gen.FourState(operand.width);
    const int place = gen.Between(0, 32);
    Prepare(gen, destination, operand, place, place);
    return Case(TARN_FUNCTION(tarn_ConcatenateShifted), operand.width,
                Target(destination, Placed(destination, operand, 0, operand.width)),
                Operand(operand));
}

// What becomes of 0, 1, Z and X.
template <Logic of0, Logic of1, Logic ofZ, Logic ofX>
Vec Rewritten(Vec v) {
    constexpr std::array<Logic, 4> kTo = {of0, of1, ofZ, ofX};
    for (Logic& bit : v.bits) {
        bit = kTo[static_cast<std::size_t>(bit)];
    }
    return v;
}

/*------------------------------------------------------------------------------------------------
 * Shifts, indices, amounts
 *----------------------------------------------------------------------------------------------*/

using Shift = std::tuple<Width, Vec, unsigned>;

Vec Left(int width, const Vec& source, unsigned amount) {
    Vec result = Filled(width, Logic::k0);
    for (std::size_t i = amount; i < result.bits.size() && std::int64_t{amount} < width; ++i) {
        result.bits[i] = source.bits[i - amount];
    }
    return result;
}

template <Extension extension>
Vec Right(int width, const Vec& source, unsigned amount) {
    Vec result = Extended(Vec{0, {}}, width, kZero);
    if (source.width < 1) return result;
    if (extension == kSign) result = Filled(width, source.bits.back());
    for (std::size_t i = 0; i < result.bits.size(); ++i) {
        const std::uint64_t from = std::uint64_t{i} + amount;
        const bool isThere = std::int64_t{amount} < source.width && from < source.bits.size();
        if (isThere) result.bits[i] = source.bits[from];
    }
    return result;
}

unsigned DrawAmount(Gen& gen, int width) {
    const auto any = static_cast<unsigned>(gen.Below(std::max(width, 0) + 70));
    switch (gen.Below(8)) {
        case 0:
            return any & ~31U;
        case 1:
            return static_cast<unsigned>(std::max(width, 1) + gen.Between(-1, 1));
        case 2:
            return static_cast<unsigned>(gen.Bits() >> gen.Between(32, 63));
        case 3:
        case 4:
            return any;
        default:
            return static_cast<unsigned>(gen.Below(32));
    }
}

// Every count of words up to several blocks, and one so large that a vector moved onto itself meets
// its own words a page away.
int DrawShiftWidth(Gen& gen) {
    if (gen.OneIn(200)) return 32 * 900;
    return gen.OneIn(4) ? 32 * gen.Between(1, 71) : DrawDefinedWidth(gen);
}

// The left shift is not to look at the source's width.
Shift DrawLeft(Gen& gen) {
    const int width = DrawShiftWidth(gen);
    Vec source = gen.FourState(width);
    source.width = -7;
    return {width, std::move(source), DrawAmount(gen, width)};
}

Shift DrawRight(Gen& gen) {
    const int width = DrawShiftWidth(gen), sourceWidth = gen.OneIn(2) ? width : gen.AnyWidth();
    const int defined = kIsChecked ? std::max(sourceWidth, 1) : sourceWidth;
    Vec source = gen.FourState(defined);
    return {width, std::move(source), DrawAmount(gen, defined)};
}

int KindOfAmount(const Vec& amount) {
    if (amount.width < 1) return 0;
    return HasUnknown(amount) ? 3 : ToInteger(amount) > 0xFFFFFFFFU ? 1 : 0;
}

// Whether a vector, read as signed or unsigned, is known and an index that an int can hold.
template <Extension extension>
int IsIndex(const Vec& index) {
    if (index.width < 1 || HasUnknown(index)) return 0;
    const Integer value = Value(index, extension);
    return value <= INT_MAX && value >= INT_MIN ? 1 : 0;
}

InPlace DrawRewritten(Gen& gen) {
    return {gen.FourState(gen.AnyWidth())};
}

// Most have one word and its extension, and some of these a wrong bit.
template <Extension storage>
Only DrawNumber(Gen& gen) {
    Vec number = gen.Vector(DrawDefinedWidth(gen));
    if (number.width > 32 && !gen.OneIn(4)) {
        number = Extended(Prefix(number, 32), number.width, gen.OneIn(2) ? kSign : kZero);
        Logic& any = number.bits[gen.Bits() % number.bits.size()];
        if (gen.OneIn(2)) any = gen.OneIn(2) ? Logic::k1 : Logic::k0;
    }
    if (kIsChecked) number = storage == kSign ? SignFilled(number) : Clean(number);
    return {std::move(number)};
}

/*------------------------------------------------------------------------------------------------
 * Rows
 *----------------------------------------------------------------------------------------------*/

constexpr Logic k0 = Logic::k0, k1 = Logic::k1, kZ = Logic::kZ, kX = Logic::kX;

Properties Random() {
    return {
        {"tarn_Partselect", ReadField},
        {"tarn_SignedPartselect", ReadSignedField},
        {"tarn_IndexedPartselect", ReadIndexedField},
        TARN_ROW(tarn_BitValue, BitOf, DrawBit),
        {"tarn_CleanBasedFillX", FillWithX},
        {"tarn_Concatenate", Concatenate},
        {"tarn_ConcatenateShifted", ConcatenateShifted},
        TARN_ROW(tarn_Convert0ToZ, Rewritten<kZ, k1, kZ, kX>, DrawRewritten),
        TARN_ROW(tarn_Convert1ToZ, Rewritten<k0, kZ, kZ, kX>, DrawRewritten),
        TARN_ROW(tarn_ConvertXZTo0, Rewritten<k0, k1, k0, k0>, DrawRewritten),
        TARN_ROW(tarn_LogicalShiftLeft, Left, DrawLeft),
        TARN_ROW(tarn_LogicalShiftRight, Right<kZero>, DrawRight),
        TARN_ROW(tarn_ArithmeticalShiftRight, Right<kSign>, DrawRight),
        TARN_ROW(tarn_ScanShiftCount, KindOfAmount, DrawNumber<kZero>),
        TARN_ROW(tarn_SignedScanIndexOfSelect, IsIndex<kSign>, DrawNumber<kSign>),
        TARN_ROW(tarn_UnsignedScanIndexOfSelect, IsIndex<kZero>, DrawNumber<kZero>),
    };
}

std::vector<Case> ByHand() {
    const Vec fill = Words(34, {{1, 2}, {3, 4}}), place = Words(50, {{0x3FF, 0}, {~0U, ~0U}});
    std::vector<Case> calls = {
        // The sign of a field is its own top bit, X too; it fills the whole top word.
        TARN_CALL(tarn_SignedPartselect, 40, Result(Words(40, {{~5U, ~7U}, {~0U, ~0U}})),
                  Operand("4'bx010"_v), 0, 4),
        TARN_CALL(tarn_SignedPartselect, 8, Result(Words(36, {{0, 0}, {0, ~0U}})),
                  Operand("40'hz000000000"_v), 4, 36),
        // Bits above the source's width are not its own.
        TARN_CALL(tarn_IndexedPartselect, Result("8'hx5"_v), Words(40, {{0, 0}, {~0xA5U, 0}}), 36,
                  8),
        TARN_CALL(tarn_IndexedPartselect, Result("8'b00101xxx"_v), "8'b01100101"_v, -3, 8),
        TARN_CALL(tarn_CleanBasedFillX, Target(fill, Words(34, {{0xC0000001, 0xC0000002}, {3, 3}})),
                  4, 30),
        // The operand is ORed into the first word and replaces the others.
        TARN_CALL(tarn_Concatenate, 50, Target(place, Words(50, {{0x7FF, 0}, {0, 0x3C000}})),
                  "40'hz000000001"_v, 10),
        TARN_CALL(tarn_ConcatenateShifted, 64, Target("64'h1"_v, "64'h200000003"_v),
                  Operand("64'h200000002"_v)),
        TARN_CALL(tarn_Convert0ToZ, 8, Target("8'h0f"_v, Words(8, {{0xF, ~0xFU}}))),
        // Shifts move whole words; what an arithmetic one moves in is bit 31 of the top word.
        TARN_CALL(tarn_LogicalShiftLeft, 8, Result(Words(8, {{0x588, 0}})), "8'b10110001"_v, 3),
        TARN_CALL(tarn_ArithmeticalShiftRight, 40, Result("40'shz"_v), "40'shz000000000"_v, 36),
        TARN_CALL(tarn_ArithmeticalShiftRight, 64, Result(Words(64, {{~0U, 0}, {~0U, 0}})),
                  "8'sh80"_v, 8),
        // 32 bits are a signed index as they stand, an unsigned one below 2 to the power 31.
        TARN_CALL(tarn_UnsignedScanIndexOfSelect, "32'h80000000"_v).Returns(0),
        TARN_CALL(tarn_SignedScanIndexOfSelect, "32'h80000000"_v).Returns(1),
        TARN_CALL(tarn_ScanShiftCount, "64'h100000000"_v).Returns(1),
    };
    if (kIsChecked) return calls;
    // At the ends of the widest vector the end of a field is no int. Of the vector only its last
    // words are there.
    const Vec last = Words(63, {{0x89ABCDEF, 0x80000001}, {0x36543210, 0x40000000}});
    const Party end = At(Operand(last), (2 - WordCount(INT_MAX)) * sizeof(VectorWord));
    calls.push_back(TARN_CALL(tarn_IndexedPartselect, Apart(Result(Field(last, 24, 64))), INT_MAX,
                              end, INT_MAX - 39, 64));
    calls.push_back(TARN_CALL(tarn_BitValue, INT_MAX, end, INT_MAX - 1).Returns(TARN_LOGIC_Z));
    return calls;
}

}  // namespace

Family SelectFamily() {
    return {"Select", Random(), ByHand};
}

}  // namespace tarn::test
