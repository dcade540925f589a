// A row of the list of properties: an export, its model and how its operands are drawn. The same
// rows serve the tests, the reruns on instruction sets, the checked build and the fuzz targets; a
// property says what differs and asserts nothing itself.
#ifndef TARN_TESTS_SUPPORT_PROPERTY_H
#define TARN_TESTS_SUPPORT_PROPERTY_H

#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "support/case.h"
#include "support/gen.h"
#include "support/model.h"

#if defined(TARN_TEST_INLINE_FORMS)
#define TARNLIB_INLINE_ANY_WIDTH
#include <tarnlib/inline.h>
#endif

namespace tarn::test {

struct Property {
    std::string name;  // the export's, and a word more where that has several rows
    std::function<Case(Gen&)> draw;
    int runs = kRuns;
};
using Properties = std::vector<Property>;

// The properties compare with models; `known` gives calls by hand, one for each convention that a
// model repeats without showing it.
struct Family {
    const char* name;
    Properties random;
    std::vector<Case> (*known)();
};
const std::vector<Family>& AllFamilies();

// What is drawn is the list of a call's arguments, and the model takes the same. What the model
// gives stands in front of them, a vector of a width or a real; else it is what the export returns.
struct Width {
    Width(int width) : bits(width) {}
    operator int() const { return bits; }
    int bits;
};
struct ToReal {};
struct InPlace {
    Vec v;
};

using One = std::tuple<Width, Vec>;
using Two = std::tuple<Width, Vec, Vec>;
using Only = std::tuple<Vec>;
using Pair = std::tuple<Vec, Vec>;

template <class... Drawn>
Case CaseOf(auto* function, auto model, const std::tuple<Drawn...>& drawn) {
    const auto call = [&](const auto&... values) { return Case(function, values...); };
    return std::apply(call, drawn).Returns(std::apply(model, drawn));
}
template <class... Drawn>
Case CaseOf(auto* function, auto model, const std::tuple<Width, Drawn...>& drawn) {
    const Party result = Result(std::apply(model, drawn));
    const auto call = [&](Width width, const auto&... rest) {
        return Case(function, width.bits, result, rest...);
    };
    return std::apply(call, drawn);
}
template <class... Drawn>
Case CaseOf(auto* function, auto model, const std::tuple<ToReal, Drawn...>& drawn) {
    return std::apply(
        [&](ToReal, const auto&... rest) {
            return Case(function, RealResult(model(rest...)), rest...);
        },
        drawn);
}
Case CaseOf(auto* function, auto model, const InPlace& drawn) {
    return Case(function, drawn.v.width, Target(drawn.v, model(drawn.v)));
}

template <class Function, class Model, class Draw>
Property Row(const char* name, Function* function, Model model, Draw draw, int runs = kRuns) {
    return {name, [=](Gen& gen) { return CaseOf(function, model, draw(gen)); }, runs};
}
// The export, or its inline form, which has no address of its own.
#if defined(TARN_TEST_INLINE_FORMS)
template <class Function>
struct Throwing {
    using Type = Function;
};
template <class Returned, class... Parameters>
struct Throwing<Returned(Parameters...) noexcept> {
    using Type = Returned(Parameters...);
};
#define TARN_FUNCTION(name) \
    static_cast<Throwing<decltype(name)>::Type*>([](auto... x) { return name(x...); })
#else
#define TARN_FUNCTION(name) name
#endif
// By the export's name alone: a row, one made by a function of the family, a call by hand.
#define TARN_ROW(name, ...) Row(#name, TARN_FUNCTION(name), __VA_ARGS__)
#define TARN_ROW_OF(make, name, ...) make(#name, TARN_FUNCTION(name) __VA_OPT__(, ) __VA_ARGS__)
#define TARN_CALL(name, ...) Case(TARN_FUNCTION(name), __VA_ARGS__).Named(#name)

// Widths are often equal; two operands are sometimes the same words, so that they can share
// storage.
One DrawOneOperand(Gen& gen, bool fourState = false);
Two DrawTwoOperands(Gen& gen, bool fourState = false);

// A width that the build under test has an answer for: where width 1 is the least, the checked one
// reports others.
inline int DrawDefinedWidth(Gen& gen) {
    return kIsChecked ? gen.Width() : gen.AnyWidth();
}

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_PROPERTY_H
