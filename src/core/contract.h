// The duties of the caller, in code. An export lists its arguments once and then each duty, as a
// condition and in words:
//
//     TARN_ARGUMENTS(width, v);
//     TARN_REQUIRE(width >= 1, "width must be at least 1");
//
// In the checked build a broken duty prints the export, the words and the arguments, and aborts. In
// the normal build both compile to nothing; the condition is still read by the compiler.
#ifndef TARN_CORE_CONTRACT_H
#define TARN_CORE_CONTRACT_H

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>

#include "core/vector.h"

#if defined(TARNLIB_CHECKED)
#include <sstream>
#include <string>
#include <type_traits>
#endif

namespace tarn {

inline std::uintptr_t Address(const void* pointer) noexcept {
    return reinterpret_cast<std::uintptr_t>(pointer);
}

// Whether an object can be read or written there.
template <class Object>
inline bool IsObject(const Object* object) noexcept {
    return object != nullptr && Address(object) % alignof(Object) == 0;
}

inline bool IsVector(int width, const VectorWord* words) noexcept {
    return width < 1 || IsObject(words);
}

// The bits from bit 0 of a word to the top of a field that begins at one of its bits.
constexpr int SpanFrom(unsigned offset, int width) noexcept {
    const std::int64_t span = std::int64_t{width} + offset;
    return static_cast<int>(span < INT_MAX ? span : INT_MAX);
}

// Whether some bytes and the words of a vector share none; no bytes and no words share none.
inline bool AreApart(const void* bytes, std::size_t byteCount, int width,
                     const VectorWord* words) noexcept {
    const std::size_t wordBytes = WordCount(width) * sizeof(VectorWord);
    return byteCount == 0 || wordBytes == 0 || Address(bytes) + byteCount <= Address(words) ||
           Address(words) + wordBytes <= Address(bytes);
}

// Whether two runs of words begin at the same word or share none.
inline bool AreSameOrApart(int aWidth, const VectorWord* a, int bWidth,
                           const VectorWord* b) noexcept {
    return a == b || AreApart(a, WordCount(aWidth) * sizeof(VectorWord), bWidth, b);
}

// The same, or the first begins whole words below the second, as a vector does below a word of it.
inline bool IsAtBelowOrApart(int aWidth, const VectorWord* a, int bWidth,
                             const VectorWord* b) noexcept {
    const bool isBelow =
        Address(a) < Address(b) && (Address(b) - Address(a)) % sizeof(VectorWord) == 0;
    return isBelow || AreSameOrApart(aWidth, a, bWidth, b);
}

inline constexpr int kRegisterBits = kWordBits * TARN_VECTOR_REGISTER_WORDS;

// Whether a vector lies outside the register that generated code and some operations share.
inline bool IsOutsideRegister(int width, const VectorWord* words) noexcept {
    return width < 1 || (words != tarn_VectorRegister &&
                         AreSameOrApart(width, words, kRegisterBits, tarn_VectorRegister));
}

// Whether the bits of the top word above the width are 0, or copies of the vector's top bit.
inline bool IsClean(int width, const VectorWord* words) noexcept {
    return width < 1 ||
           (LoadWord(words + WordCount(width) - 1) & InBothHalves(~LowMask(width))) == 0;
}

inline bool IsSignFilled(int width, const VectorWord* words) noexcept {
    if (width < 1) return true;
    const Word top = LoadWord(words + WordCount(width) - 1);
    const Word sign = SignExtend::Beyond(top << (static_cast<unsigned>(-width) % 32U));
    return ((top ^ sign) & InBothHalves(~LowMask(width))) == 0;
}

#if defined(TARNLIB_CHECKED)

[[noreturn]] void ReportBrokenDuty(const char* function, const std::string& duty,
                                   const std::string& arguments) noexcept;

// Pointers print as addresses, those to text and functions too.
template <class Value>
void Describe(std::ostream& out, Value value) {
    if constexpr (!std::is_pointer_v<Value>) {
        out << value;
    } else if (value == nullptr) {
        out << "null";
    } else {
        out << reinterpret_cast<const void*>(value);
    }
}

// "width = 8, v = 0x7ffe1230" from the text "width, v" and the values.
template <class... Values>
std::string DescribeArguments(const char* names, Values... values) {
    std::istringstream list(names);
    std::ostringstream out;
    const auto describe = [&](auto value) {
        std::string name;
        std::getline(list >> std::ws, name, ',');
        out << (out.tellp() > 0 ? ", " : "") << name << " = ";
        Describe(out, value);
    };
    (describe(values), ...);
    return out.str();
}

// "{0x105, 0}"
std::string DescribeWord(const VectorWord& word);

#define TARN_ARGUMENTS(...) \
    const auto tarnArguments = [&] { return DescribeArguments(#__VA_ARGS__, __VA_ARGS__); }

#define TARN_REQUIRE_IN(function, condition, duty) \
    ((condition) ? static_cast<void>(0) : ReportBrokenDuty(function, duty, tarnArguments()))

#else

#define TARN_ARGUMENTS(...) static_cast<void>(0)
#define TARN_REQUIRE_IN(function, condition, duty) \
    static_cast<void>(sizeof(static_cast<bool>(condition)))

#endif

// TARN_REQUIRE_IN is for what is only known inside an export, which it names.
#define TARN_REQUIRE(condition, duty) TARN_REQUIRE_IN(__func__, condition, duty)

// The duties that many exports share.
#define TARN_REQUIRE_AT_LEAST_1(width) TARN_REQUIRE((width) >= 1, #width " must be at least 1")

#define TARN_REQUIRE_AT_MOST(width, limit) \
    TARN_REQUIRE((width) <= (limit), #width " must be at most " + std::to_string(limit))

#define TARN_REQUIRE_OFFSET(offset) \
    TARN_REQUIRE(static_cast<unsigned>(offset) < 32U, #offset " must be 0 to 31")

#define TARN_REQUIRE_OBJECT(object) \
    TARN_REQUIRE(IsObject(object), #object " must be the address of an object: not null, aligned")

#define TARN_REQUIRE_TEXT(text) TARN_REQUIRE((text) != nullptr, #text " must not be null")

#define TARN_REQUIRE_VECTOR(width, v) \
    TARN_REQUIRE(IsVector(width, v),  \
                 #v " must be the address of a vector: not null, aligned to 4 bytes")

#define TARN_REQUIRE_SAME_OR_APART(aWidth, a, bWidth, b)  \
    TARN_REQUIRE(AreSameOrApart(aWidth, a, bWidth, b), #a \
                 " and " #b " must not overlap partly: they begin at the same word or lie apart")

#define TARN_REQUIRE_OUTSIDE_REGISTER(width, v) \
    TARN_REQUIRE(IsOutsideRegister(width, v), #v " must not lie in tarn_VectorRegister")

#define TARN_REQUIRE_CLEAN(width, v)                                                     \
    TARN_REQUIRE(IsClean(width, v), "the bits of " #v " above " #width                   \
                                    " must be 0 (clean storage), but its top word is " + \
                                        DescribeWord((v)[WordCount(width) - 1]))

#define TARN_REQUIRE_SIGN_FILLED(width, v)                                         \
    TARN_REQUIRE(IsSignFilled(width, v),                                           \
                 "the bits of " #v " above " #width                                \
                 " must copy its top bit (signed storage), but its top word is " + \
                     DescribeWord((v)[WordCount(width) - 1]))

// All duties of the argument patterns that many exports share.
#define TARN_REQUIRE_IN_PLACE(width, v) \
    TARN_ARGUMENTS(width, v);           \
    TARN_REQUIRE_VECTOR(width, v)

#define TARN_REQUIRE_SCALAR(resultWidth, result, value) \
    TARN_ARGUMENTS(resultWidth, result, value);         \
    TARN_REQUIRE_VECTOR(std::max(resultWidth, 1), result)

#define TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a) \
    TARN_ARGUMENTS(resultWidth, result, aWidth, a);              \
    TARN_REQUIRE_VECTOR(resultWidth, result);                    \
    TARN_REQUIRE_VECTOR(aWidth, a);                              \
    TARN_REQUIRE_SAME_OR_APART(resultWidth, result, aWidth, a)

#define TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b) \
    TARN_ARGUMENTS(resultWidth, result, aWidth, a, bWidth, b);               \
    TARN_REQUIRE_VECTOR(resultWidth, result);                                \
    TARN_REQUIRE_VECTOR(aWidth, a);                                          \
    TARN_REQUIRE_VECTOR(bWidth, b);                                          \
    TARN_REQUIRE_SAME_OR_APART(resultWidth, result, aWidth, a);              \
    TARN_REQUIRE_SAME_OR_APART(resultWidth, result, bWidth, b)

}  // namespace tarn

#endif  // TARN_CORE_CONTRACT_H
