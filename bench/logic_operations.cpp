// Bitwise operators and reductions.
#include <tarnlib.h>

#include "families.h"
#include "ladders.h"
#include "systemc_peer.h"

namespace tarn::bench {
namespace {

// A row for each of 0, 1, Z and X of one operand, in it a result for each of the other's; the same
// whatever the other's, for one operand.
using TruthTable = char[4][5];
constexpr TruthTable kAnd = {"0000", "01xx", "0xxx", "0xxx"};
constexpr TruthTable kNand = {"1111", "10xx", "1xxx", "1xxx"};
constexpr TruthTable kOr = {"01xx", "1111", "x1xx", "x1xx"};
constexpr TruthTable kNor = {"10xx", "0000", "x0xx", "x0xx"};
constexpr TruthTable kXor = {"01xx", "10xx", "xxxx", "xxxx"};
constexpr TruthTable kXnor = {"10xx", "01xx", "xxxx", "xxxx"};
constexpr TruthTable kMix = {"0xxx", "x1xx", "xxxx", "xxxx"};
constexpr TruthTable kBuffer = {"0000", "1111", "xxxx", "xxxx"};
constexpr TruthTable kInvert = {"1111", "0000", "xxxx", "xxxx"};

template <const TruthTable& table, bool isSigned>
Bit TableBit(const Operands& o, int i) {
    const int bEnd = static_cast<int>(32 * o.bWordCount);
    const Bit beyond = isSigned ? BitOf(o.b, bEnd - 1) : kBit0;
    const Bit a = BitOf(o.a, i), b = i < bEnd ? BitOf(o.b, i) : beyond;
    const char value = table[a.aval + 2 * a.bval][b.aval + 2 * b.bval];
    return value == 'x' ? kBitX : value == '1' ? kBit1 : kBit0;
}

template <const TruthTable& table>
constexpr Contestant kTable = kBitByBit<TableBit<table, false>>;
template <const TruthTable& table>
constexpr Contestant kSignedTable = kBitByBit<TableBit<table, true>>;

Ladder Bitwise(const Contestant& peer) {
    return WithTail(kBitwise, NoSlowerThan(peer));
}

}  // namespace

std::vector<Operation> LogicOperations() {
    return {
        {"UnsignedBitwiseAND", kFourState, kWords<Binary<tarn_UnsignedBitwiseAND>>, kTable<kAnd>,
         Bitwise(SystemcAnd())},
        {"UnsignedBitwiseOR", kFourState, kWords<Binary<tarn_UnsignedBitwiseOR>>, kTable<kOr>,
         Bitwise(SystemcOr())},
        {"UnsignedBitwiseXOR", kFourState, kWords<Binary<tarn_UnsignedBitwiseXOR>>, kTable<kXor>,
         Bitwise(SystemcXor())},
        {"UnsignedBitwiseNOT", kFourState, kWords<Unary<tarn_UnsignedBitwiseNOT>>, kTable<kInvert>,
         Bitwise(SystemcNot())},
        {"UnsignedBitwiseBUF", kFourState, kWords<Unary<tarn_UnsignedBitwiseBUF>>, kTable<kBuffer>,
         kBitwise},
        {"SignedBitwiseNAND", kSignedFourState, kWords<Binary<tarn_SignedBitwiseNAND>>,
         kSignedTable<kNand>, kBitwise},
        {"SignedBitwiseNOR", kSignedFourState, kWords<Binary<tarn_SignedBitwiseNOR>>,
         kSignedTable<kNor>, kBitwise},
        {"SignedBitwiseXNOR", kSignedFourState, kWords<Binary<tarn_SignedBitwiseXNOR>>,
         kSignedTable<kXnor>, kBitwise},
        {"SignedConditionalMix", kSignedFourState, kWords<Binary<tarn_SignedConditionalMix>>,
         kSignedTable<kMix>, kBitwise},
        {"UnsignedBitwiseANDKnown", kUnsigned, kWords<Binary<tarn_UnsignedBitwiseAND>>,
         kTable<kAnd>, Bitwise(SystemcAnd())},
        {"UnsignedBitwiseORKnown", kUnsigned, kWords<Binary<tarn_UnsignedBitwiseOR>>, kTable<kOr>,
         Bitwise(SystemcOr())},
        {"UnsignedBitwiseANDHalf", kHalf, kWords<Binary<tarn_UnsignedBitwiseAND>>, kTable<kAnd>,
         kBitwise},
        {"UnsignedBitwiseORHalf", kHalf, kWords<Binary<tarn_UnsignedBitwiseOR>>, kTable<kOr>,
         kBitwise},
        {"SignedBitwiseORHalf", kSignedHalf, kWords<Binary<tarn_SignedBitwiseOR>>,
         kSignedTable<kOr>, kBitwise},
        {"ReductionAND", kAllOnes, kCode<Read<tarn_ReductionAND>>, kRightCode<TARN_LOGIC_1>,
         kReadAll},
        {"ReductionOR", kAllZeros, kCode<Read<tarn_ReductionOR>>, kRightCode<TARN_LOGIC_0>,
         kReadAll},
        {"ReductionXOR", kAllZeros, kCode<Read<tarn_ReductionXOR>>, kRightCode<TARN_LOGIC_0>,
         kReadAll},
        {"CheckCondition", kAllZeros, kCode<Read<tarn_CheckCondition>>, kRightCode<0>, kReadAll},
    };
}

}  // namespace tarn::bench
