// The system functions that can stand in expressions.
#ifndef TARNCALC_FUNCTIONS_H
#define TARNCALC_FUNCTIONS_H

#include <cstddef>
#include <span>
#include <string_view>

#include "value.h"

namespace tarncalc {

/** What a function takes: vectors, or reals, to which vectors are converted. */
enum class Taken { kVector, kReal };

struct FunctionRow {
    std::string_view name;
    std::size_t argumentCount;
    Taken taken;

    /** The type of the result; a width of 0 stands for that of the argument. */
    Type result;

    /** The result for arguments that determined their own types; they are used up. */
    Value (*call)(const FunctionRow& row, std::span<Value> arguments);

    /** What real functions call. */
    void (*unary)(double*, double) = nullptr;
    void (*binary)(double*, double, double) = nullptr;
};

/** Null where there is no such function. */
const FunctionRow* FindFunction(std::string_view name);

/** The type of a function's result for an argument of this type. */
inline Type ResultTypeOf(const FunctionRow& row, const Type& argument) {
    return {row.result.width == 0 ? argument.width : row.result.width, row.result.isSigned,
            row.result.isReal};
}

}  // namespace tarncalc

#endif
