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

// The vector has no more words than the field reaches, so that one word more is a stray access; the
// result may lie where it begins.
struct Read {
    int resultWidth;
    Vec source;
    int index, width;
};
struct SignedRead : Read {};
struct IndexedRead : Read {};

Read DrawRead(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    const int low = gen.OneIn(4)   ? 32 * gen.Below(4)
                    : gen.OneIn(2) ? gen.Below(32)
                                   : gen.Below(200);
    const int resultWidth = gen.OneIn(2) ? width : gen.AnyWidth();
    return {resultWidth, gen.FourState(width < 1 ? 0 : low + width), low, width};
}

SignedRead DrawSignedRead(Gen& gen) {
    return {DrawRead(gen)};
}

IndexedRead DrawIndexedRead(Gen& gen) {
    Vec source = gen.FourState(gen.OneIn(2) ? gen.Between(1, 96) : gen.AnyWidth());
    const int width = DrawDefinedWidth(gen), index = DrawIndex(gen, source.width, width);
    return {{0, std::move(source), index, width}};
}

std::tuple<Vec, int> DrawBit(Gen& gen) {
    const Vec source = gen.FourState(gen.AnyWidth());
    return {source, DrawIndex(gen, source.width, 32)};
}

Vec SignedField(const Vec& source, int index, int width, int resultWidth) {
    if (width < 1) return Vec{};
    return Extended(SignFilled(Field(source, index, width)), std::max(resultWidth, width), kSign);
}

int BitOf(const Vec& source, int index) {
    return static_cast<int>(Field(source, index, 1).bits[0]);
}

constexpr std::size_t kBytesPerWord = sizeof(VectorWord);

std::size_t WordOf(int index) {
    return static_cast<std::size_t>(index) / 32 * kBytesPerWord;
}

Case CaseOf(auto* function, auto model, const Read& drawn) {
    const auto& [resultWidth, source, index, width] = drawn;
    return Case(function, Result(model(source, index, width)), At(Operand(source), WordOf(index)),
                index % 32, width);
}
Case CaseOf(auto* function, auto model, const SignedRead& drawn) {
    const auto& [resultWidth, source, index, width] = drawn;
    return Case(function, resultWidth, Result(model(source, index, width, resultWidth)),
                At(Operand(source), WordOf(index)), index % 32, width);
}
// Nothing may be read where no bit of the field is the source's.
Case CaseOf(auto* function, auto model, const IndexedRead& drawn) {
    const auto& [resultWidth, source, index, width] = drawn;
    const Party result = Result(model(source, index, width));
    if (HasBitInside(source.width, index, width)) {
        return Case(function, result, source, index, width);
    }
    return Case(function, result, source.width, Unreadable{}, index, width);
}
// A run of X bits from bit `base` of a word upward.
struct XRun {
    Vec words;
    int count, base;
};

XRun DrawXRun(Gen& gen) {
    const int base = gen.Below(32), count = DrawDefinedWidth(gen);
    return {gen.FourState(count < 1 ? 0 : base + count), count, base};
}

Vec WithXRun(const Vec& words, int base) {
    Vec filled = Clean(AllX(words.width));
    std::copy_n(words.bits.begin(), words.bits.empty() ? 0 : base, filled.bits.begin());
    return filled;
}

Case CaseOf(auto* function, auto model, const XRun& drawn) {
    const auto& [words, count, base] = drawn;
    return Case(function, Target(words, model(words, base)), count, base);
}

/*------------------------------------------------------------------------------------------------
 * Concatenation, bits rewritten in place
 *----------------------------------------------------------------------------------------------*/

struct Placement {
    int span;
    Vec destination, operand;
    int offset;
};
struct ShiftedPlacement : Placement {};

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

Placement DrawPlacement(Gen& gen) {
    Vec operand = gen.FourState(DrawDefinedWidth(gen));
    const int offset = gen.OneIn(4) ? 0 : gen.Below(32);
    const int end = offset + std::max(operand.width, 0);
    const int span = gen.OneIn(2)   ? std::max(end, 1)
                     : gen.OneIn(2) ? end + gen.Between(1, 99)
                                    : DrawDefinedWidth(gen);
    Vec destination = gen.FourState(span);
    Prepare(gen, destination, operand, offset, 0);
    return {span, std::move(destination), std::move(operand), offset};
}

ShiftedPlacement DrawShiftedPlacement(Gen& gen) {
    Vec operand = gen.FourState(DrawDefinedWidth(gen));
    Vec destination = gen.FourState(operand.width);
    const int place = gen.Between(0, 32);
    Prepare(gen, destination, operand, place, place);
    return {{operand.width, std::move(destination), std::move(operand), 0}};
}

Case CaseOf(auto* function, auto model, const Placement& drawn) {
    const auto& [span, destination, operand, offset] = drawn;
    return Case(function, span, Target(destination, model(destination, operand, offset, span)),
                operand, offset);
}
Case CaseOf(auto* function, auto model, const ShiftedPlacement& drawn) {
    const auto& [span, destination, operand, offset] = drawn;
    return Case(function, span, Target(destination, model(destination, operand, 0, span)),
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
        TARN_ROW(tarn_Partselect, Field, DrawRead),
        TARN_ROW(tarn_SignedPartselect, SignedField, DrawSignedRead),
        TARN_ROW(tarn_IndexedPartselect, Field, DrawIndexedRead),
        TARN_ROW(tarn_BitValue, BitOf, DrawBit),
        TARN_ROW(tarn_CleanBasedFillX, WithXRun, DrawXRun),
        TARN_ROW(tarn_Concatenate, Placed, DrawPlacement),
        TARN_ROW(tarn_ConcatenateShifted, Placed, DrawShiftedPlacement),
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

Properties ByHand() {
    Properties rows = {
        // The sign of a field is its own top bit, X too; it fills the whole top word.
        TARN_KNOWN(tarn_SignedPartselect, SignedRead{{40, "4'bx010"_v, 0, 4}},
                   Words(40, {{0xFFFFFFFA, 0xFFFFFFF8}, {~0U, ~0U}})),
        TARN_KNOWN(tarn_SignedPartselect, SignedRead{{8, "40'hz000000000"_v, 4, 36}},
                   Words(36, {{0, 0}, {0, ~0U}})),
        // Bits above the source's width are not its own.
        TARN_KNOWN(tarn_IndexedPartselect,
                   IndexedRead{{0, Words(40, {{0, 0}, {0xFFFFFF5A, 0}}), 36, 8}}, "8'hx5"_v),
        TARN_KNOWN(tarn_IndexedPartselect, IndexedRead{{0, "8'b01100101"_v, -3, 8}},
                   "8'b00101xxx"_v),
        TARN_KNOWN(tarn_CleanBasedFillX, XRun{Words(34, {{1, 2}, {3, 4}}), 4, 30},
                   Words(34, {{0xC0000001, 0xC0000002}, {3, 3}})),
        // The operand is ORed into the first word and replaces the others.
        TARN_KNOWN(tarn_Concatenate,
                   Placement{50, Words(50, {{0x3FF, 0}, {~0U, ~0U}}), "40'hz000000001"_v, 10},
                   Words(50, {{0x7FF, 0}, {0, 0x3C000}})),
        TARN_KNOWN(tarn_ConcatenateShifted, ShiftedPlacement{{64, "64'h1"_v, "64'h200000002"_v, 0}},
                   "64'h200000003"_v),
        TARN_KNOWN(tarn_Convert0ToZ, InPlace{"8'h0f"_v}, Words(8, {{0xF, 0xFFFFFFF0}})),
        // Shifts move whole words; what an arithmetic one moves in is bit 31 of the top word.
        TARN_KNOWN(tarn_LogicalShiftLeft, Shift{8, "8'b10110001"_v, 3}, Words(8, {{0x588, 0}})),
        TARN_KNOWN(tarn_ArithmeticalShiftRight, Shift{40, "40'shz000000000"_v, 36}, "40'shz"_v),
        TARN_KNOWN(tarn_ArithmeticalShiftRight, Shift{64, "8'sh80"_v, 8},
                   Words(64, {{~0U, 0}, {~0U, 0}})),
        // 32 bits are a signed index as they stand, an unsigned one below 2 to the power 31.
        TARN_KNOWN(tarn_UnsignedScanIndexOfSelect, Only{"32'h80000000"_v}, 0),
        TARN_KNOWN(tarn_SignedScanIndexOfSelect, Only{"32'h80000000"_v}, 1),
        TARN_KNOWN(tarn_ScanShiftCount, Only{"64'h100000000"_v}, 1),
    };
    if (kIsChecked) return rows;
    // At the ends of the widest vector the end of a field is no int. Of the vector only its last
    // words are there.
    const Vec last = Words(63, {{0x89ABCDEF, 0x80000001}, {0x36543210, 0x40000000}});
    const Party end = At(Operand(last), (2 - WordCount(INT_MAX)) * kBytesPerWord);
    rows.push_back({"tarn_IndexedPartselect of the widest vector",
                    [=](Gen&) {
                        return Case(tarn_IndexedPartselect, Apart(Result(Field(last, 24, 64))),
                                    INT_MAX, end, INT_MAX - 39, 64);
                    },
                    1});
    rows.push_back({"tarn_BitValue of the widest vector",
                    [=](Gen&) {
                        return Case(tarn_BitValue, INT_MAX, end, INT_MAX - 1)
                            .Returns(static_cast<int>(TARN_LOGIC_Z));
                    },
                    1});
    return rows;
}

}  // namespace

Family SelectFamily() {
    return {"Select", Random(), ByHand};
}

}  // namespace tarn::test
