// One call of an export: its arguments, what it is to return and to leave behind; and the harness
// that makes the call in every storage that the contract allows and says what differs.
//
//     Case(tarn_SignedAdd, 40, Result(sum), a, b)
//
// A vector stands for two arguments, its width and the address of its words; a text is terminated.
// Each party lies in exactly as many bytes as it has, beside an unmapped page. Operands share
// storage where one's bytes begin the other's, a result lies on top of any of them, and what the
// call is not to write must stay as it is.
#ifndef TARN_TESTS_SUPPORT_CASE_H
#define TARN_TESTS_SUPPORT_CASE_H

#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <variant>
#include <vector>

#include "support/vec.h"

namespace tarn::test {

using Bytes = std::vector<std::uint8_t>;

enum class Role {
    kOperand,  // is read
    kResult,   // is written: apart from all others or on top of any one
    kTarget,   // is read and written; an operand that begins as it does may lie there too
};

struct Party {
    Role role = Role::kOperand;
    Bytes before;           // what it holds; for a result, nothing
    Bytes after;            // what a result or a target then begins with
    bool isApart = false;   // shares its storage with no other
    bool isWords = true;    // else bytes, which have no alignment
    void* fixed = nullptr;  // where it lies, if that is nobody's choice
    // The argument points so many bytes behind the party's begin.
    std::size_t offset = 0;
};

Party Operand(const Vec& vec);
Party Result(const Vec& expected);
Party Target(const Vec& before, const Vec& after);
// A machine number that is written.
template <class Number>
Party NumberResult(Number expected) {
    Party party{Role::kResult, {}, Bytes(sizeof expected)};
    std::memcpy(party.after.data(), &expected, sizeof expected);
    return party;
}
// A real between two others.
Party RealResult(double expected);
// Without its terminator, unless that is among the characters.
Party Text(std::string_view characters);
Party Memory(const Bytes& bytes);
Party MemoryTarget(const Bytes& before, const Bytes& after);
Party Apart(Party party);
Party At(Party party, std::size_t offset);
// A null pointer, and one that nothing may be read through.
struct Null {};
struct Unreadable {};
// A vector without its width, and characters behind their count and without a terminator.
struct Bare : Vec {};
struct Counted : std::string {};
// The storage of an earlier party, by its number.
struct Again {
    std::size_t party;
    std::size_t offset = 0;
};

// What an export returned: numbers and texts as text, reals with all their bits.
std::string Shown(double value);
inline std::string Shown(const char* text) {
    return text;
}
inline std::string Shown(const std::string& text) {
    return text;
}
template <class Number>
requires(std::is_integral_v<Number> || std::is_enum_v<Number>) std::string Shown(Number value) {
    return std::to_string(static_cast<std::int64_t>(value));
}

// The addresses of the parties.
using Places = std::vector<std::byte*>;

class Case {
  public:
    using Argument = std::variant<std::int64_t, double, Null, Unreadable, Again>;

    template <class Returned, class... Parameters, class... Values>
    Case(Returned (*function)(Parameters...), Values... values) {
        // Parsers return false whatever they have read.
        if (std::is_same_v<Returned, bool>) returned_ = Shown(false);
        // Braces, so that the parties are added from left to right.
        const std::tuple<decltype(Add(std::move(values)))...> parts{Add(std::move(values))...};
        const auto slots = std::apply([](auto... part) { return std::tuple_cat(part...); }, parts);
        call_ = [function, slots](const Places& at) {
            return std::apply(
                [&](const auto&... slot) {
                    if constexpr (std::is_void_v<Returned>) {
                        function(Resolve<Parameters>(slot, at)...);
                        return std::string();
                    } else {
                        return Shown(function(Resolve<Parameters>(slot, at)...));
                    }
                },
                slots);
        };
    }

    Case Named(const char* name) && {
        name_ = name;
        return std::move(*this);
    }
    template <class Value>
    Case Returns(const Value& value) && {
        returned_ = Shown(value);
        return std::move(*this);
    }
    // A party that is no argument.
    Case With(Party party) && {
        parties_.push_back(std::move(party));
        return std::move(*this);
    }

    const std::string& Name() const { return name_; }
    const std::vector<Party>& Parties() const { return parties_; }
    const std::string& Expected() const { return returned_; }
    std::string CallAt(const Places& at) const { return call_(at); }
    bool HasArgument(std::size_t party) const;
    // The arguments, and what their storage holds.
    std::string Arguments() const;

  private:
    // What remains of a value when its parties have been added: a party is known by its number.
    auto Add(Party party) {
        const Again slot{parties_.size(), party.offset};
        parties_.push_back(std::move(party));
        return Add(slot);
    }
    auto Add(const Vec& vec) { return std::tuple_cat(Add(vec.width), Add(Operand(vec))); }
    auto Add(const Bare& vec) { return Add(Operand(vec)); }
    auto Add(const std::string& text) { return Add(Text(text + '\0')); }
    auto Add(const Counted& text) {
        return std::tuple_cat(Add(static_cast<int>(text.size())), Add(Text(text)));
    }
    template <class Value>
    std::tuple<Value> Add(Value value) {
        if constexpr (std::is_integral_v<Value>) {
            arguments_.emplace_back(static_cast<std::int64_t>(value));
        } else {
            arguments_.emplace_back(value);
        }
        return {value};
    }

    template <class Parameter, class Value>
    static Parameter Resolve(const Value& value, const Places& at) {
        if constexpr (std::is_same_v<Value, Again>) {
            return reinterpret_cast<Parameter>(reinterpret_cast<std::uintptr_t>(at[value.party]) +
                                               value.offset);
        } else if constexpr (std::is_same_v<Value, Null>) {
            return nullptr;
        } else if constexpr (std::is_same_v<Value, Unreadable>) {
            return reinterpret_cast<Parameter>(std::uintptr_t{8});
        } else {
            return static_cast<Parameter>(value);
        }
    }

    std::string name_;
    std::vector<Party> parties_;
    std::vector<Argument> arguments_;
    std::function<std::string(const Places&)> call_;
    std::string returned_;
};

// What a call in some storage did wrong, with the call; empty where it did nothing wrong. All
// storage is tried, or the one of that number.
std::string Difference(const Case& oneCase);
std::string DifferenceAt(const Case& oneCase, std::size_t number);

// Whether the build under test reports arguments that the normal build has an answer for.
#if defined(TARNLIB_CHECKED)
inline constexpr bool kIsChecked = true;
#else
inline constexpr bool kIsChecked = false;
#endif

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_CASE_H
