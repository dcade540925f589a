// The shapes of operations on reals.
#include <regex>
#include <stdexcept>
#include <string>

#include "shapes.h"

namespace tarnvpi {

void Run(const ToReal& shape, const Arguments& arguments) {
    const bool isSigned = IsSigned(arguments[1]);
    const Vector a = ReadVector(arguments[1], isSigned);
    const auto convert = isSigned ? shape.forSigned : shape.forUnsigned;
    WriteReal(arguments[0], convert(a.Width(), a.Words()));
}

void Run(const FromReal& shape, const Arguments& arguments) {
    Vector result(WidthOf(arguments[0]));
    shape.convert(result.Width(), result.Words(), ReadReal(arguments[1]));
    WriteVector(arguments[0], result);
}

void Run(const RealFunction& shape, const Arguments& arguments) {
    double result = 0;
    shape.calculate(&result, ReadReal(arguments[1]));
    WriteReal(arguments[0], result);
}

void Run(const RealFunctionOfTwo& shape, const Arguments& arguments) {
    double result = 0;
    shape.calculate(&result, ReadReal(arguments[1]), ReadReal(arguments[2]));
    WriteReal(arguments[0], result);
}

void Run(const IntegerOf& shape, const Arguments& arguments) {
    const Vector a = ReadVector(arguments[1], false);
    Vector result(WidthOf(arguments[0]));
    tarn_SignedConvert(result.Width(), result.Words(), shape.count(a.Width(), a.Words()));
    WriteVector(arguments[0], result);
}

void Run(const RealText& shape, const Arguments& arguments) {
    // The library hands the format to the C library, which believes what it says.
    static const std::regex kOneReal(
        "(?:[^%]|%%)*%[-+ #0]*[0-9]*(?:[.][0-9]*)?[aAeEfFgG](?:[^%]|%%)*");
    const std::string format = ReadText(arguments[1]);
    if (!std::regex_match(format, kOneReal)) {
        throw std::invalid_argument("a format has one conversion, for a real");
    }
    WriteText(arguments[0], shape.convert(format.c_str(), ReadReal(arguments[2])));
}

void Run(const ParseReal& shape, const Arguments& arguments) {
    double result = 0;
    shape.parse(ReadText(arguments[1]).c_str(), &result);
    WriteReal(arguments[0], result);
}

}  // namespace tarnvpi
