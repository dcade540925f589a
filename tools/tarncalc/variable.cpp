#include "variable.h"

#include "diagnostic.h"

namespace tarncalc {

namespace {

// The storage of all variables. A line of text can ask for more than any machine has.
constexpr std::uint64_t kMaxBytes = 500'000'000;

constexpr std::uint64_t BytesPerMemoryWord(int width) {
    return 2 * ((static_cast<std::uint64_t>(width) + 7) / 8);
}

std::uint64_t ByteCountOf(const Shape& shape) {
    const std::uint64_t bytesPerWord = BytesPerMemoryWord(shape.Width());
    const std::int64_t words = shape.IsMemory() ? shape.elements->Count() : 1;
    return bytesPerWord * static_cast<std::uint64_t>(words);
}

}  // namespace

Variable::Variable(const Shape& shape)
    : shape_(shape), value_(shape.IsMemory() ? Type{shape.Width(), false} : shape.GetType()) {
    value_.SetUnknown();
    if (!shape.IsMemory()) return;
    bytesPerWord_ = BytesPerMemoryWord(shape.Width());
    words_.resize(ByteCountOf(shape));
    for (std::int64_t place = 0; place < shape.elements->Count(); ++place) {
        tarn_MemoryWordAssign(shape.Width(), Word(place), value_.Words());
    }
}

Variable* Scope::Find(std::string_view name) {
    const auto found = variables_.find(name);
    return found == variables_.end() ? nullptr : &found->second;
}

Variable& Scope::Declare(Place place, std::string_view name, const Shape& shape) {
    if (Find(name) != nullptr) {
        throw InputError(place, InQuotes(name) + " is declared already");
    }
    const std::uint64_t bytes = ByteCountOf(shape);
    if (bytes > kMaxBytes - byteCount_) {
        throw InputError(place, "the variables need too much storage");
    }
    Variable& variable = variables_.try_emplace(std::string(name), shape).first->second;
    byteCount_ += bytes;
    return variable;
}

}  // namespace tarncalc
