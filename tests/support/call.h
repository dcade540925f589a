// Calls an export in every storage that its contract allows, and says where the calls differ.
//
// Each vector lies in exactly as many words as it has, beside an unmapped page; the result and the
// operands share storage in every allowed way; what the result does not replace must stay as it is.
#ifndef TARN_TESTS_SUPPORT_CALL_H
#define TARN_TESTS_SUPPORT_CALL_H

#include <algorithm>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "support/vec.h"

namespace tarn::test {

// What the call in separate storage gave, and what was wrong with it or with any other one.
struct Outcome {
    Vec result;
    std::int64_t returned = 0;
    std::string broken;

    friend bool operator==(const Outcome& outcome, const Vec& expected) {
        return outcome.broken.empty() && outcome.result == expected;
    }
    // What an export returned that writes no vector.
    friend bool operator==(const Outcome& outcome, std::int64_t expected) {
        return outcome == Vec{} && outcome.returned == expected;
    }
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome);
};

// How the result's storage may relate to the operands'.
enum class ResultPlace {
    kAnywhere,      // apart from the operands or on top of one
    kApart,         // apart from the operands
    kFirstOperand,  // operand 0 is changed in place
    kNone,          // the export writes no vector
};

struct CallShape {
    int resultWidth;
    // N(resultWidth), but for exports that write more.
    std::size_t resultWords;
    ResultPlace resultPlace;
    std::vector<const Vec*> operands;
};

using Invoke = std::function<std::int64_t(VectorWord* result, const VectorWord* const* operands)>;

Outcome CallInEveryStorage(const CallShape& shape, const Invoke& invoke);

// The text that an export gives for a value, the same from every storage; else what was broken.
std::string CallForText(const Vec& value,
                        const std::function<const char*(const VectorWord* value)>& convert);

// Whether the build under test reports arguments that the normal build has an answer for.
#if defined(TARNLIB_CHECKED)
inline constexpr bool kIsChecked = true;
#else
inline constexpr bool kIsChecked = false;
#endif

// The argument patterns that many exports share.
using TwoOperands = void(int, VectorWord*, int, const VectorWord*, int, const VectorWord*);
using OneOperand = void(int, VectorWord*, int, const VectorWord*);
using InPlace = void(int, VectorWord*);
using ReducesOperand = int(int, const VectorWord*);
using ComparesOperands = int(int, const VectorWord*, int, const VectorWord*);
template <class Value>
using FromScalar = void(int, VectorWord*, Value);

inline Outcome Call(TwoOperands* function, int width, const Vec& a, const Vec& b) {
    return CallInEveryStorage({width, WordCount(width), ResultPlace::kAnywhere, {&a, &b}},
                              [&](VectorWord* result, const VectorWord* const* operands) {
                                  function(width, result, a.width, operands[0], b.width,
                                           operands[1]);
                                  return 0;
                              });
}

inline Outcome Call(OneOperand* function, int width, const Vec& a) {
    return CallInEveryStorage({width, WordCount(width), ResultPlace::kAnywhere, {&a}},
                              [&](VectorWord* result, const VectorWord* const* operands) {
                                  function(width, result, a.width, operands[0]);
                                  return 0;
                              });
}

inline Outcome Call(InPlace* function, const Vec& v) {
    return CallInEveryStorage({v.width, WordCount(v.width), ResultPlace::kFirstOperand, {&v}},
                              [&](VectorWord* result, const VectorWord* const*) {
                                  function(v.width, result);
                                  return 0;
                              });
}

inline Outcome Call(ReducesOperand* function, const Vec& a) {
    return CallInEveryStorage({0, 0, ResultPlace::kNone, {&a}},
                              [&](VectorWord*, const VectorWord* const* operands) {
                                  return function(a.width, operands[0]);
                              });
}

inline Outcome Call(ComparesOperands* function, const Vec& a, const Vec& b) {
    return CallInEveryStorage({0, 0, ResultPlace::kNone, {&a, &b}},
                              [&](VectorWord*, const VectorWord* const* operands) {
                                  return function(a.width, operands[0], b.width, operands[1]);
                              });
}

// These write word 0 whatever the width.
template <class Value>
Outcome Call(FromScalar<Value>* function, int width, Value value) {
    const std::size_t words = std::max<std::size_t>(WordCount(width), 1);
    return CallInEveryStorage({width, words, ResultPlace::kAnywhere, {}},
                              [&](VectorWord* result, const VectorWord* const*) {
                                  function(width, result, value);
                                  return 0;
                              });
}

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_CALL_H
