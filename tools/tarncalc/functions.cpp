#include "functions.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <iterator>
#include <utility>

namespace tarncalc {

namespace {

constexpr Type kInteger{32, true};
constexpr Type kRealBits{64, false};
constexpr Type kSignedArgument{0, true};
constexpr Type kUnsignedArgument{0, false};

Value Reinterpret(const FunctionRow& row, std::span<Value> arguments) {
    Value& value = arguments.front();
    value.Convert({value.Width(), row.result.isSigned});
    return std::move(value);
}

Value Clog2(const FunctionRow& /*row*/, std::span<Value> arguments) {
    Value& value = arguments.front();
    value.Convert({value.Width(), false});
    Value result(kInteger);
    tarn_SignedConvert(kInteger.width, result.Words(), tarn_Clog2(value.Width(), value.Words()));
    return result;
}

Value Truncate(const FunctionRow& /*row*/, std::span<Value> arguments) {
    Value result(kInteger);
    tarn_TruncatedConvertToVector(kInteger.width, result.Words(), arguments.front().Real());
    return result;
}

Value FromInteger(const FunctionRow& /*row*/, std::span<Value> arguments) {
    Value& value = arguments.front();
    value.Convert({kInteger.width, value.GetType().isSigned});
    value.Convert(kInteger);
    return Value(value.Real());
}

Value ToBits(const FunctionRow& /*row*/, std::span<Value> arguments) {
    Value result(kRealBits);
    tarn_MapToVector(kRealBits.width, result.Words(), arguments.front().Real());
    return result;
}

/** x and z bits count as 0. */
Value FromBits(const FunctionRow& /*row*/, std::span<Value> arguments) {
    Value& value = arguments.front();
    value.Convert({kRealBits.width, value.GetType().isSigned});
    tarn_ConvertXZTo0(value.Width(), value.Words());
    const std::uint64_t high = value.Words()[1].aval;
    return Value(std::bit_cast<double>(high << kWordBits | value.Words()[0].aval));
}

Value CallUnary(const FunctionRow& row, std::span<Value> arguments) {
    double result = 0;
    row.unary(&result, arguments[0].Real());
    return Value(result);
}

Value CallBinary(const FunctionRow& row, std::span<Value> arguments) {
    double result = 0;
    row.binary(&result, arguments[0].Real(), arguments[1].Real());
    return Value(result);
}

/** The export takes the arguments the other way round. */
void Atan2(double* result, double y, double x) {
    tarn_Atan2R(result, x, y);
}

constexpr FunctionRow Unary(std::string_view name, void (*function)(double*, double)) {
    return {name, 1, Taken::kReal, kRealType, CallUnary, function};
}

constexpr FunctionRow Binary(std::string_view name, void (*function)(double*, double, double)) {
    return {name, 2, Taken::kReal, kRealType, CallBinary, nullptr, function};
}

constexpr FunctionRow kFunctions[] = {
    {"$signed", 1, Taken::kVector, kSignedArgument, Reinterpret},
    {"$unsigned", 1, Taken::kVector, kUnsignedArgument, Reinterpret},
    {"$clog2", 1, Taken::kVector, kInteger, Clog2},
    {"$rtoi", 1, Taken::kReal, kInteger, Truncate},
    {"$itor", 1, Taken::kVector, kRealType, FromInteger},
    {"$realtobits", 1, Taken::kReal, kRealBits, ToBits},
    {"$bitstoreal", 1, Taken::kVector, kRealType, FromBits},
    Unary("$ln", tarn_LnR),
    Unary("$log10", tarn_Log10R),
    Unary("$exp", tarn_ExpR),
    Unary("$sqrt", tarn_SqrtR),
    Binary("$pow", tarn_PowerR),
    Unary("$floor", tarn_FloorR),
    Unary("$ceil", tarn_CeilR),
    Unary("$sin", tarn_SinR),
    Unary("$cos", tarn_CosR),
    Unary("$tan", tarn_TanR),
    Unary("$asin", tarn_AsinR),
    Unary("$acos", tarn_AcosR),
    Unary("$atan", tarn_AtanR),
    Binary("$atan2", Atan2),
    Binary("$hypot", tarn_HypotR),
    Unary("$sinh", tarn_SinhR),
    Unary("$cosh", tarn_CoshR),
    Unary("$tanh", tarn_TanhR),
    Unary("$asinh", tarn_AsinhR),
    Unary("$acosh", tarn_AcoshR),
    Unary("$atanh", tarn_AtanhR),
};

}  // namespace

const FunctionRow* FindFunction(std::string_view name) {
    const auto* const found =
        std::find_if(std::begin(kFunctions), std::end(kFunctions),
                     [name](const FunctionRow& row) { return row.name == name; });
    return found == std::end(kFunctions) ? nullptr : found;
}

}  // namespace tarncalc
