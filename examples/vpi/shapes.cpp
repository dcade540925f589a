#include "shapes.h"

namespace tarnvpi {

namespace {

bool AreSigned(vpiHandle a, vpiHandle b) {
    return IsSigned(a) && IsSigned(b);
}

/** Operands are extended and cut by the export itself. */
void Calculate(Binary* operation, vpiHandle target, const Vector& a, const Vector& b) {
    Vector result(WidthOf(target));
    operation(result.Width(), result.Words(), a.Width(), a.Words(), b.Width(), b.Words());
    WriteVector(target, result);
}

int Compare(Comparison* operation, const Vector& a, const Vector& b) {
    return operation(a.Width(), a.Words(), b.Width(), b.Words());
}

}  // namespace

void Run(const OneOperand& shape, const Arguments& arguments) {
    const bool isSigned = IsSigned(arguments[1]);
    const Vector a = ReadVector(arguments[1], isSigned);
    Vector result(WidthOf(arguments[0]));
    const auto operation = isSigned ? shape.forSigned : shape.forUnsigned;
    operation(result.Width(), result.Words(), a.Width(), a.Words());
    WriteVector(arguments[0], result);
}

void Run(const TwoOperands& shape, const Arguments& arguments) {
    const bool isSigned = AreSigned(arguments[1], arguments[2]);
    Calculate(isSigned ? shape.forSigned : shape.forUnsigned, arguments[0],
              ReadVector(arguments[1], isSigned), ReadVector(arguments[2], isSigned));
}

void Run(const Power& shape, const Arguments& arguments) {
    const bool isExponentSigned = IsSigned(arguments[2]);
    const auto pick = [&] {
        if (IsSigned(arguments[1])) {
            return isExponentSigned ? shape.forSignedBySigned : shape.forSigned;
        }
        return isExponentSigned ? shape.forUnsignedBySigned : shape.forUnsigned;
    };
    Calculate(pick(), arguments[0], ReadVector(arguments[1]), ReadVector(arguments[2]));
}

void Run(const InPlace& shape, const Arguments& arguments) {
    Vector v = ReadVector(arguments[0]);
    shape.change(v.Width(), v.Words());
    WriteVector(arguments[0], v);
}

void Run(const Reduction& shape, const Arguments& arguments) {
    const Vector a = ReadVector(arguments[1]);
    WriteCode(arguments[0], shape.reduce(a.Width(), a.Words()));
}

void Run(const Equality& shape, const Arguments& arguments) {
    const bool isSigned = AreSigned(arguments[1], arguments[2]);
    WriteCode(arguments[0],
              Compare(isSigned ? shape.forSigned : shape.forUnsigned,
                      ReadVector(arguments[1], isSigned), ReadVector(arguments[2], isSigned)));
}

void Run(const Relation& shape, const Arguments& arguments) {
    const bool isSigned = AreSigned(arguments[1], arguments[2]);
    const int order =
        Compare(isSigned ? shape.forSigned : shape.forUnsigned, ReadVector(arguments[1], isSigned),
                ReadVector(arguments[2], isSigned));
    LogicCode result = TARN_LOGIC_X;
    if (order == TARN_RELATION_LESS) result = shape.ifLess;
    if (order == TARN_RELATION_EQUAL) result = shape.ifEqual;
    if (order == TARN_RELATION_GREATER) result = shape.ifGreater;
    WriteCode(arguments[0], result);
}

void Run(const Text& shape, const Arguments& arguments) {
    const Vector a = ReadVector(arguments[1], false);
    WriteText(arguments[0], shape.convert(a.Width(), a.Words(), ReadInteger(arguments[2])));
}

void Run(const DecimalText& shape, const Arguments& arguments) {
    const bool isSigned = IsSigned(arguments[1]);
    const Vector a = ReadVector(arguments[1], isSigned);
    const auto convert = isSigned ? shape.forSigned : shape.forUnsigned;
    WriteText(arguments[0],
              convert(a.Width(), a.Words(), ReadInteger(arguments[2]), ReadInteger(arguments[3])));
}

void Run(const ParseText& shape, const Arguments& arguments) {
    Vector result(WidthOf(arguments[0]));
    shape.parse(result.Width(), result.Words(), ReadText(arguments[1]).c_str());
    WriteVector(arguments[0], result);
}

}  // namespace tarnvpi
