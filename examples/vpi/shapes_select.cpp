// The shapes of operations that speak of places in a vector: selects, concatenation, shifts.
#include <algorithm>

#include "field.h"
#include "shapes.h"

namespace tarnvpi {

void Run(const Select& shape, const Arguments& arguments) {
    const Vector a = ReadVector(arguments[1]);
    const Field field(arguments[2], arguments[3]);
    field.RequireInside(a.Width());
    Vector result(field.width);
    shape.read(result.Words(), a.Words() + field.Word(), field.Offset(), field.width);
    WriteVector(arguments[0], result.Widened(WidthOf(arguments[0]), false));
}

void Run(const SignedSelect& shape, const Arguments& arguments) {
    const Vector a = ReadVector(arguments[1]);
    const Field field(arguments[2], arguments[3]);
    field.RequireInside(a.Width());
    const int width = WidthOf(arguments[0]);
    Vector result(std::max(width, field.width));
    shape.read(width, result.Words(), a.Words() + field.Word(), field.Offset(), field.width);
    WriteVector(arguments[0], result);
}

void Run(const IndexedSelect& shape, const Arguments& arguments) {
    const Vector a = ReadVector(arguments[1]);
    const Field field(arguments[2], arguments[3]);
    Vector result = AllX(field.width);
    if (IsUsableIndex(arguments[2])) {
        shape.read(result.Words(), a.Width(), a.Words(), field.low, field.width);
    }
    WriteVector(arguments[0], result.Widened(WidthOf(arguments[0]), false));
}

void Run(const BitSelect& shape, const Arguments& arguments) {
    const Vector a = ReadVector(arguments[1]);
    const bool isUsable = IsUsableIndex(arguments[2]);
    const int index = isUsable ? ReadInteger(arguments[2]) : -1;
    WriteCode(arguments[0], shape.read(a.Width(), a.Words(), index));
}

void Run(const Concatenation& shape, const Arguments& arguments) {
    const Vector high = ReadVector(arguments[1], false);
    const Vector low = ReadVector(arguments[2], false);
    Vector result(low.Width() + high.Width());
    const auto place = [&](const Vector& operand, int bit) {
        shape.place(operand.Width() + bit % 32, result.Words() + bit / 32, operand.Width(),
                    operand.Words(), static_cast<unsigned>(bit) % 32);
    };
    place(low, 0);
    place(high, low.Width());
    WriteVector(arguments[0], result.Widened(WidthOf(arguments[0]), false));
}

void Run(const Shift& shape, const Arguments& arguments) {
    const bool isSigned = IsSigned(arguments[1]);
    const Vector amount = ReadVector(arguments[2], false);
    const int width = WidthOf(arguments[0]);
    Vector a = ReadVector(arguments[1], isSigned);
    a = a.Widened(std::max(width, a.Width()), isSigned);
    // The logical shifts move in what stands above the width of the source.
    const auto shift = isSigned ? shape.forSigned : shape.forUnsigned;
    a.RestoreTopWord(shift == tarn_ArithmeticalShiftRight);

    Vector result = AllX(width);
    const int scan = tarn_ScanShiftCount(amount.Width(), amount.Words());
    if (scan != TARN_LOGIC_X) {
        const unsigned bits = scan == 0 ? amount.Words()->aval : UINT32_MAX;
        shift(width, result.Words(), a.Width(), a.Words(), bits);
    }
    WriteVector(arguments[0], result);
}

}  // namespace tarnvpi
