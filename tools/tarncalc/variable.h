// Variables and memories, and the names by which they are found.
#ifndef TARNCALC_VARIABLE_H
#define TARNCALC_VARIABLE_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "source.h"
#include "value.h"

namespace tarncalc {

/** [left:right] of bits or of memory words. The right bound names the least significant bit. */
struct Range {
    int left = 0, right = 0;

    bool IsDescending() const noexcept { return left >= right; }

    std::int64_t Count() const noexcept {
        return (IsDescending() ? std::int64_t{left} - right : std::int64_t{right} - left) + 1;
    }

    /** The place of an address, counted from the right bound, which is 0; addresses outside the
     *  range have places below 0 or from Count() on. */
    std::int64_t PlaceOf(std::int64_t address) const noexcept {
        return IsDescending() ? address - right : right - address;
    }
};

/** What a declaration gives a variable. */
struct Shape {
    bool isReal = false;
    bool isSigned = false;
    std::optional<Range> bits;      // none for a single bit, which has no bits to select
    std::optional<Range> elements;  // of a memory

    int Width() const noexcept { return bits ? static_cast<int>(bits->Count()) : 1; }
    Type GetType() const noexcept { return isReal ? kRealType : Type{Width(), isSigned}; }
    bool IsMemory() const noexcept { return elements.has_value(); }
};

/** A vector, a real, or the words of a memory one behind the other in the form that the library
 *  packs them into. Every bit begins as X, a real as 0. */
class Variable {
  public:
    explicit Variable(const Shape& shape);

    const Shape& GetShape() const noexcept { return shape_; }

    /** Of a vector or a real. */
    Value& GetValue() noexcept { return value_; }

    /** The word of a memory whose place is `place`. */
    unsigned char* Word(std::int64_t place) noexcept {
        return words_.data() + static_cast<std::size_t>(place) * bytesPerWord_;
    }

  private:
    Shape shape_;
    Value value_;
    std::size_t bytesPerWord_ = 0;
    std::vector<unsigned char> words_;
};

class Scope {
  public:
    /** Null where the name isn't declared. */
    Variable* Find(std::string_view name);

    /** Throws InputError where the name is taken or the variables would need too much storage. */
    Variable& Declare(Place place, std::string_view name, const Shape& shape);

  private:
    std::map<std::string, Variable, std::less<>> variables_;
    std::uint64_t byteCount_ = 0;
};

}  // namespace tarncalc

#endif
