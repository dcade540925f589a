// Reading fields and bits, concatenation, rewriting.
#include <tarnlib/select.h>

#include "families.h"
#include "ladders.h"

namespace tarn::bench {
namespace {

// A field whose top word is extended by its top bit.
Bit SignedFieldBit(const Operands& o, int i) {
    return FieldBit(o, std::min(i, o.bWidth - 1));
}

// b in the place of the field, between zeros; the oracle writes the words of the whole vector.
Bit PlacedBit(const Operands& o, int i) {
    const int from = i - static_cast<int>(o.fieldOffset);
    return 0 <= from && from < o.bWidth ? BitOf(o.b, from) : kBit0;
}

// b in its own place.
Bit PlacedShiftedBit(const Operands& o, int i) {
    return i < o.bWidth ? BitOf(o.b, i) : kBit0;
}

Bit ZeroToZBit(const Operands& o, int i) {
    const Bit bit = BitOf(o.a, i);
    return {bit.aval, bit.aval == 0 ? 1U : bit.bval};
}

Bit OneToZBit(const Operands& o, int i) {
    const Bit bit = BitOf(o.a, i);
    return bit.aval == 1 && bit.bval == 0 ? Bit{0, 1} : bit;
}

Bit UnknownToZeroBit(const Operands& o, int i) {
    const Bit bit = BitOf(o.a, i);
    return bit.bval == 0 ? bit : kBit0;
}

int CodeOfBit(const Operands& o) {
    const Bit bit = BitOf(o.a, static_cast<int>(o.fieldOffset));
    return static_cast<int>(bit.aval + 2 * bit.bval);
}

constexpr Shape kInPlaceFourState{.values = Values::kFourState, .start = Start::kA};

constexpr Contestant kSignedField = WritesWords<FieldBitByBit<SignedFieldBit>>("bit by bit");

const Ladder kReadBit = {{1, 32, kFloor, 2.5}, {64, kWidest, kFloor, kNoLimit}};
const Ladder kRewrite = WithTail(kLogical, {{128, kWidest, kMemcpy, kNoLimit}});

}  // namespace

std::vector<Operation> SelectOperations() {
    return {
        {"Partselect", kFieldRead, kWords<ReadField<tarn_Partselect>>, kField, kFieldCopy},
        {"SignedPartselect", kFieldRead, kWords<ReadSignedField<tarn_SignedPartselect>>,
         kSignedField, kFieldCopy},
        {"IndexedPartselect", kFieldRead, kWords<ReadIndexedField<tarn_IndexedPartselect>>, kField,
         kFieldCopy},
        {"BitValue", kFieldRead, kCode<ReadBit<tarn_BitValue>>, ReturnsCode<CodeOfBit>("bit"),
         kReadBit},
        {"SignedScanIndexOfSelect", kAllZeros, kCode<Read<tarn_SignedScanIndexOfSelect>>,
         kRightCode<1>, kReadAll},
        {"UnsignedScanIndexOfSelect", kAllZeros, kCode<Read<tarn_UnsignedScanIndexOfSelect>>,
         kRightCode<1>, kReadAll},
        {"Concatenate", kFieldPlace, kWords<PlaceField<tarn_Concatenate>>, kBitByBit<PlacedBit>,
         kFieldCopy},
        {"ConcatenateShifted", kFieldPlace, kWords<PlaceShifted<tarn_ConcatenateShifted>>,
         kBitByBit<PlacedShiftedBit>, kFieldCopy},
        {"Convert0ToZ", kInPlaceFourState, kWords<InPlace<tarn_Convert0ToZ>>, kBitByBit<ZeroToZBit>,
         kRewrite},
        {"Convert1ToZ", kInPlaceFourState, kWords<InPlace<tarn_Convert1ToZ>>, kBitByBit<OneToZBit>,
         kRewrite},
        {"ConvertXZTo0", kInPlaceFourState, kWords<InPlace<tarn_ConvertXZTo0>>,
         kBitByBit<UnknownToZeroBit>, kRewrite},
    };
}

}  // namespace tarn::bench
