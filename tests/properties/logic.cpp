// Bitwise operators by their truth tables, copies, reductions by their definitions.
#include <tarnlib/logic.h>

#include "families.h"

namespace tarn::test {
namespace {

// A row for each of 0, 1, Z and X of one operand, in it a result for each of the other's.
using TruthTable = char[4][5];
constexpr TruthTable kAnd = {"0000", "01xx", "0xxx", "0xxx"};
constexpr TruthTable kNand = {"1111", "10xx", "1xxx", "1xxx"};
constexpr TruthTable kOr = {"01xx", "1111", "x1xx", "x1xx"};
constexpr TruthTable kNor = {"10xx", "0000", "x0xx", "x0xx"};
constexpr TruthTable kXor = {"01xx", "10xx", "xxxx", "xxxx"};
constexpr TruthTable kXnor = {"10xx", "01xx", "xxxx", "xxxx"};
constexpr TruthTable kMix = {"0xxx", "x1xx", "xxxx", "xxxx"};
// For one operand, the same whatever the other's.
constexpr TruthTable kBuffer = {"0000", "1111", "xxxx", "xxxx"};
constexpr TruthTable kNot = {"1111", "0000", "xxxx", "xxxx"};

template <Extension extension, const TruthTable& table>
Vec Combined(int width, const Vec& a, const Vec& b) {
    Vec result = Extended(a, width, extension);
    const Vec other = Extended(b, width, extension);
    for (std::size_t i = 0; i < result.bits.size(); ++i) {
        const char value = table[static_cast<int>(result.bits[i])][static_cast<int>(other.bits[i])];
        result.bits[i] = value == 'x' ? Logic::kX : value == '1' ? Logic::k1 : Logic::k0;
    }
    return result;
}

template <Extension extension, const TruthTable& table>
Vec Transformed(int width, const Vec& a) {
    return Combined<extension, table>(width, a, Vec{});
}

bool Holds(const Vec& v, std::size_t bits, Logic value) {
    const auto end = v.bits.begin() + static_cast<std::ptrdiff_t>(bits);
    return std::find(v.bits.begin(), end, value) != end;
}

int AllOnes(const Vec& v) {
    if (v.width < 1 || Holds(v, std::size_t(v.width), Logic::k0)) return TARN_LOGIC_0;
    return HasUnknown(v) ? TARN_LOGIC_X : TARN_LOGIC_1;
}

int AnyOne(const Vec& v) {
    if (Holds(v, v.bits.size(), Logic::k1)) return TARN_LOGIC_1;
    return HasUnknown(v) ? TARN_LOGIC_X : TARN_LOGIC_0;
}

int Parity(const Vec& v) {
    if (HasUnknown(v)) return TARN_LOGIC_X;
    const auto begin = v.bits.begin();
    return static_cast<int>(std::count(begin, begin + std::max(v.width, 0), Logic::k1) % 2);
}

int IsTrue(const Vec& v) {
    return Holds(v, v.bits.size(), Logic::k1) ? 1 : 0;
}

Two DrawTwo(Gen& gen) {
    return DrawTwoOperands(gen, true);
}
One DrawOne(Gen& gen) {
    return DrawOneOperand(gen, true);
}
One DrawCopied(Gen& gen) {
    return DrawOneOperand(gen, gen.OneIn(2));
}

// Either anything, or few bits among equal ones, which every word must be looked at for.
Only DrawReduced(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    Vec v =
        gen.OneIn(4) ? gen.FourState(width) : Filled(width, gen.OneIn(2) ? Logic::k0 : Logic::k1);
    for (int count = gen.OneIn(4) ? 0 : gen.Below(3); count-- > 0 && width > 0;) {
        v.bits[gen.Bits() % v.bits.size()] = static_cast<Logic>(gen.Below(4));
    }
    if (gen.OneIn(4)) v = gen.OneIn(2) ? Clean(std::move(v)) : SignFilled(std::move(v));
    return {std::move(v)};
}

Properties Random() {
    return {
        TARN_ROW(tarn_SignedCopy, Copied<kSign>, DrawCopied),
        TARN_ROW(tarn_UnsignedCopy, Copied<kZero>, DrawCopied),
        TARN_ROW(tarn_SignedBitwiseAND, Combined<kSign, kAnd>, DrawTwo),
        TARN_ROW(tarn_UnsignedBitwiseAND, Combined<kZero, kAnd>, DrawTwo),
        TARN_ROW(tarn_SignedBitwiseNAND, Combined<kSign, kNand>, DrawTwo),
        TARN_ROW(tarn_UnsignedBitwiseNAND, Combined<kZero, kNand>, DrawTwo),
        TARN_ROW(tarn_SignedBitwiseOR, Combined<kSign, kOr>, DrawTwo),
        TARN_ROW(tarn_UnsignedBitwiseOR, Combined<kZero, kOr>, DrawTwo),
        TARN_ROW(tarn_SignedBitwiseNOR, Combined<kSign, kNor>, DrawTwo),
        TARN_ROW(tarn_UnsignedBitwiseNOR, Combined<kZero, kNor>, DrawTwo),
        TARN_ROW(tarn_SignedBitwiseXOR, Combined<kSign, kXor>, DrawTwo),
        TARN_ROW(tarn_UnsignedBitwiseXOR, Combined<kZero, kXor>, DrawTwo),
        TARN_ROW(tarn_SignedBitwiseXNOR, Combined<kSign, kXnor>, DrawTwo),
        TARN_ROW(tarn_UnsignedBitwiseXNOR, Combined<kZero, kXnor>, DrawTwo),
        TARN_ROW(tarn_SignedConditionalMix, Combined<kSign, kMix>, DrawTwo),
        TARN_ROW(tarn_UnsignedConditionalMix, Combined<kZero, kMix>, DrawTwo),
        TARN_ROW(tarn_SignedBitwiseBUF, Transformed<kSign, kBuffer>, DrawOne),
        TARN_ROW(tarn_UnsignedBitwiseBUF, Transformed<kZero, kBuffer>, DrawOne),
        TARN_ROW(tarn_SignedBitwiseNOT, Transformed<kSign, kNot>, DrawOne),
        TARN_ROW(tarn_UnsignedBitwiseNOT, Transformed<kZero, kNot>, DrawOne),
        TARN_ROW(tarn_ReductionAND, AllOnes, DrawReduced),
        TARN_ROW(tarn_ReductionOR, AnyOne, DrawReduced),
        TARN_ROW(tarn_ReductionXOR, Parity, DrawReduced),
        TARN_ROW(tarn_LogicalValue, AnyOne, DrawReduced),
        TARN_ROW(tarn_CheckCondition, IsTrue, DrawReduced),
    };
}

std::vector<Case> ByHand() {
    const Vec xSign = Words(32, {{0, 0x80000000}});
    return {
        // The sign is bit 31 of the top word, whatever the width, and may be unknown.
        TARN_CALL(tarn_SignedCopy, 64, Result("64'h80"_v), "8'h80"_v),
        TARN_CALL(tarn_SignedCopy, 64, Result(Words(64, {{0, 0x80000000}, {0, ~0U}})), xSign),
        // Bits above the width are calculated like all others.
        TARN_CALL(tarn_UnsignedBitwiseNOT, 4, Result(Words(4, {{0xFFFFFFFA, 0}})), "4'b0101"_v),
        // Words that one operand has, or none.
        TARN_CALL(tarn_UnsignedBitwiseNOR, 96,
                  Result(Words(96, {{0xFFFFFFFC, 0}, {0xFFFFFF00, 0}, {~0U, 0}})),
                  "64'hff00000001"_v, "32'h2"_v),
        TARN_CALL(tarn_SignedBitwiseOR, 64, Result("64'hffffffff80000001"_v), "32'h80000000"_v,
                  "64'h100000001"_v),
        // Bits above the width: known ones count for OR and truth, unknown ones for all.
        TARN_CALL(tarn_ReductionAND, Words(4, {{0xF, 0x80}})).Returns(3),
        TARN_CALL(tarn_ReductionXOR, Words(8, {{7, 0x100}})).Returns(3),
        TARN_CALL(tarn_LogicalValue, Words(1, {{2, 0}})).Returns(1),
        // A known bit decides whatever the unknown ones are.
        TARN_CALL(tarn_ReductionAND, "64'h0fffffffffffffzf"_v).Returns(0),
    };
}

}  // namespace

Family LogicFamily() {
    return {"Logic", Random(), ByHand};
}

}  // namespace tarn::test
