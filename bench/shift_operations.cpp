// Shifts.
#include <tarnlib/shift.h>

#include "families.h"
#include "ladders.h"
#include "systemc_peer.h"

namespace tarn::bench {
namespace {

Bit ShiftedLeftBit(const Operands& o, int i) {
    const int from = i - static_cast<int>(o.amount);
    return from < 0 ? kBit0 : BitOf(o.a, from);
}

// What moves in is the top bit of the storage, or 0.
template <bool kIsSigned>
Bit ShiftedRightBit(const Operands& o, int i) {
    const int last = 32 * static_cast<int>(o.wordCount) - 1;
    const int from = i + static_cast<int>(o.amount);
    if (from <= last) return BitOf(o.a, from);
    return kIsSigned ? BitOf(o.a, last) : kBit0;
}

int KindOfKnownAmount(const Operands& o) {
    return o.width > 32 ? 1 : 0;
}

constexpr Contestant kLeft = kWords<Shift<tarn_LogicalShiftLeft>>;
constexpr Contestant kRight = kWords<Shift<tarn_LogicalShiftRight>>;
constexpr Contestant kSignedRight = kWords<Shift<tarn_ArithmeticalShiftRight>>;
constexpr Contestant kLeftBits = kBitByBit<ShiftedLeftBit>;
constexpr Contestant kRightBits = kBitByBit<ShiftedRightBit<false>>;
constexpr Contestant kSignedRightBits = kBitByBit<ShiftedRightBit<true>>;

}  // namespace

std::vector<Operation> ShiftOperations() {
    const Ladder left = WithTail(kShift, NoSlowerThan(SystemcShiftLeft()));
    const Ladder right = WithTail(kShift, NoSlowerThan(SystemcShiftRight()));
    return {
        {"LogicalShiftLeft", kBitShift, kLeft, kLeftBits, left},
        {"LogicalShiftLeftWords", kWordShift, kLeft, kLeftBits, left},
        {"LogicalShiftRight", kBitShift, kRight, kRightBits, right},
        {"LogicalShiftRightWords", kWordShift, kRight, kRightBits, right},
        {"ArithmeticalShiftRight", kSignedBitShift, kSignedRight, kSignedRightBits, kShift},
        {"ArithmeticalShiftRightWords", kSignedWordShift, kSignedRight, kSignedRightBits, kShift},
        {"ScanShiftCount", kEqual, kCode<Read<tarn_ScanShiftCount>>,
         ReturnsCode<KindOfKnownAmount>("given"), kReadAll},
    };
}

}  // namespace tarn::bench
