// The duties of the caller, in code. An export lists its arguments once and then each duty:
//
//     TARN_ARGUMENTS(width, v);
//     TARN_REQUIRE(IsVector(width, v));
//
// In the checked build a broken duty prints the export, the duty and the arguments, and aborts. In
// the normal build both compile to nothing, but are still read by the compiler.
#ifndef TARN_CORE_CONTRACT_H
#define TARN_CORE_CONTRACT_H

#include <climits>
#include <cstddef>
#include <cstdint>

#include "core/word.h"

#if defined(TARNLIB_CHECKED)
#include <sstream>
#include <string>
#endif

namespace tarn {

inline bool IsVector(int width, const VectorWord* words) noexcept {
    return width < 1 || (words != nullptr && reinterpret_cast<std::uintptr_t>(words) % 4 == 0);
}

// The bits from bit 0 of a word to the top of a field that begins at one of its bits.
constexpr int SpanFrom(unsigned offset, int width) noexcept {
    const std::int64_t span = std::int64_t{width} + offset;
    return static_cast<int>(span < INT_MAX ? span : INT_MAX);
}

// Whether two runs of words begin at the same word or share none; one without words shares none.
inline bool AreSameOrApart(int aWidth, const VectorWord* a, int bWidth,
                           const VectorWord* b) noexcept {
    const auto aFirst = reinterpret_cast<std::uintptr_t>(a);
    const auto bFirst = reinterpret_cast<std::uintptr_t>(b);
    return aWidth < 1 || bWidth < 1 || aFirst == bFirst ||
           aFirst + WordCount(aWidth) * sizeof(VectorWord) <= bFirst ||
           bFirst + WordCount(bWidth) * sizeof(VectorWord) <= aFirst;
}

// Whether a vector lies outside the register that generated code and some operations share.
inline bool IsOutsideRegister(int width, const VectorWord* words) noexcept {
    return width < 1 ||
           (words != tarn_VectorRegister &&
            AreSameOrApart(width, words, 32 * TARN_VECTOR_REGISTER_WORDS, tarn_VectorRegister));
}

#if defined(TARNLIB_CHECKED)

[[noreturn]] void ReportBrokenDuty(const char* function, const char* duty,
                                   const std::string& arguments) noexcept;

// "width = 8, v = 0x7ffe1230" from the text "width, v" and the values.
template <class... Values>
std::string DescribeArguments(const char* names, const Values&... values) {
    std::istringstream list(names);
    std::ostringstream out;
    const auto describe = [&](const auto& value) {
        std::string name;
        std::getline(list >> std::ws, name, ',');
        out << (out.tellp() > 0 ? ", " : "") << name << " = " << value;
    };
    (describe(values), ...);
    return out.str();
}

// Pointers print as addresses, text and functions too.
template <class Value>
auto Printable(Value value) noexcept {
    if constexpr (std::is_pointer_v<Value>) {
        return reinterpret_cast<const void*>(value);
    } else {
        return value;
    }
}

#define TARN_ARGUMENTS(...) \
    const auto tarnArguments = [&] { return DescribeEach(#__VA_ARGS__, __VA_ARGS__); }

template <class... Values>
std::string DescribeEach(const char* names, Values... values) {
    return DescribeArguments(names, Printable(values)...);
}

#define TARN_REQUIRE(condition) \
    ((condition) ? static_cast<void>(0) : ReportBrokenDuty(__func__, #condition, tarnArguments()))

#else

#define TARN_ARGUMENTS(...) static_cast<void>(0)
#define TARN_REQUIRE(condition) static_cast<void>(sizeof(static_cast<bool>(condition)))

#endif

// The duties of the argument patterns that many exports share.
#define TARN_REQUIRE_IN_PLACE(width, v) \
    TARN_ARGUMENTS(width, v);           \
    TARN_REQUIRE(IsVector(width, v))

#define TARN_REQUIRE_SCALAR(resultWidth, result, value) \
    TARN_ARGUMENTS(resultWidth, result, value);         \
    TARN_REQUIRE(result != nullptr && IsVector(resultWidth, result))

#define TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a) \
    TARN_ARGUMENTS(resultWidth, result, aWidth, a);              \
    TARN_REQUIRE(IsVector(resultWidth, result));                 \
    TARN_REQUIRE(IsVector(aWidth, a));                           \
    TARN_REQUIRE(AreSameOrApart(resultWidth, result, aWidth, a))

#define TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b) \
    TARN_ARGUMENTS(resultWidth, result, aWidth, a, bWidth, b);               \
    TARN_REQUIRE(IsVector(resultWidth, result));                             \
    TARN_REQUIRE(IsVector(aWidth, a));                                       \
    TARN_REQUIRE(IsVector(bWidth, b));                                       \
    TARN_REQUIRE(AreSameOrApart(resultWidth, result, aWidth, a));            \
    TARN_REQUIRE(AreSameOrApart(resultWidth, result, bWidth, b))

}  // namespace tarn

#endif  // TARN_CORE_CONTRACT_H
