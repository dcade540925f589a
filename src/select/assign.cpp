#include "select/assign.h"

#include <tarnlib/assign.h>

#include "core/contract.h"
#include "core/instruction_set.h"

namespace tarn {
namespace {

// Words that lie apart, or of which `to` is below `from`, in ascending order.
struct ReplaceWordsKernel {
    TARN_KERNEL static Word Run(VectorWord* to, const VectorWord* from,
                                std::size_t count) noexcept {
        Word changed = 0;
        for (std::size_t i = 0; i < count; ++i) {
            changed |= Replace<OverwriteAndCompare>(to + i, LoadWord(from + i));
        }
        return changed;
    }
};

// The runs may overlap in any way.
template <class Policy>
Word MoveWords(VectorWord* to, const VectorWord* from, std::size_t count) noexcept {
    if constexpr (!Policy::kCompares) {
        std::memmove(to, from, count * sizeof(VectorWord));
        return 0;
    }
    const std::uintptr_t above =
        reinterpret_cast<std::uintptr_t>(to) - reinterpret_cast<std::uintptr_t>(from);
    if (above >= count * sizeof(VectorWord)) {
        return RunKernel<ReplaceWordsKernel>(to, from, count);
    }
    Word changed = 0;
    while (count-- > 0) {
        changed |= Replace<Policy>(to + count, LoadWord(from + count));
    }
    return changed;
}

// Where the words of a field end: the index of its last word and the bits that it has there.
struct FieldEnd {
    explicit FieldEnd(unsigned bits) noexcept
        : last((bits - 1U) / kWordBits), topBits((bits - 1U) % kWordBits + 1U) {}

    Word Mask() const noexcept { return InBothHalves(LowMask(static_cast<int>(topBits))); }

    std::size_t last;
    unsigned topBits;
};

}  // namespace

template <class Policy>
[[gnu::noinline]] bool AssignWideField(VectorWord* target, const VectorWord* value, unsigned offset,
                                       int width) noexcept {
    if (width < 1) return false;
    const FieldEnd end(offset + static_cast<unsigned>(width));
    VectorWord* const top = target + end.last;
    if (offset == 0) {
        const Word changed = ReplaceBits(top, LoadWord(value + end.last), end.Mask());
        return (MoveWords<Policy>(target, value, end.last) | changed) != 0;
    }
    // The top word of the field needs the value's next word only where it reaches that far.
    const Word high = end.topBits > offset ? LoadWord(value + end.last) : Word{0};
    const unsigned shift = kWordBits - offset;
    Word changed =
        ReplaceBits(top, JoinWords(LoadWord(value + end.last - 1), high, shift), end.Mask());
    changed |= FunnelDown<Policy>(target + 1, value, end.last - 1, shift);
    changed |= ReplaceBits(target, LoadWord(value) << offset, InBothHalves(0xFFFFFFFFU << offset));
    return changed != 0;
}

template bool AssignWideField<Overwrite>(VectorWord*, const VectorWord*, unsigned, int) noexcept;
template bool AssignWideField<OverwriteAndCompare>(VectorWord*, const VectorWord*, unsigned,
                                                   int) noexcept;

template <class Policy>
[[gnu::noinline]] bool AssignFieldFromBelow(Result target, const VectorWord* value, int index,
                                            int width) noexcept {
    // In 64 bits, where no index and no width can overflow.
    const auto inside = std::min(std::int64_t{width} + index, std::int64_t{target.width});
    if (index >= 0 || inside < 1) return false;
    const unsigned dropped = 0U - static_cast<unsigned>(index);
    const VectorWord* const from = value + dropped / kWordBits;
    const unsigned shift = dropped % kWordBits;
    const FieldEnd end(static_cast<unsigned>(inside));
    VectorWord* const top = target.words + end.last;
    if (shift == 0) {
        const Word changed = MoveWords<Policy>(target.words, from, end.last);
        return (ReplaceBits(top, LoadWord(from + end.last), end.Mask()) | changed) != 0;
    }
    Word changed = FunnelUp<Policy>(target.words, from, end.last, shift);
    const Word high = shift + end.topBits > kWordBits ? LoadWord(from + end.last + 1) : Word{0};
    changed |= ReplaceBits(top, JoinWords(LoadWord(from + end.last), high, shift), end.Mask());
    return changed != 0;
}

template bool AssignFieldFromBelow<Overwrite>(Result, const VectorWord*, int, int) noexcept;
template bool AssignFieldFromBelow<OverwriteAndCompare>(Result, const VectorWord*, int,
                                                        int) noexcept;

}  // namespace tarn

// Of a target the words that hold bits of the field count. A value that begins below them may reach
// into them.
#define TARN_REQUIRE_FIELD(target, value, offset, width)                          \
    TARN_ARGUMENTS(target, value, offset, width);                                 \
    TARN_REQUIRE_AT_LEAST_1(width);                                               \
    TARN_REQUIRE_OFFSET(offset);                                                  \
    TARN_REQUIRE_VECTOR(width, target);                                           \
    TARN_REQUIRE_VECTOR(width, value);                                            \
    TARN_REQUIRE(IsAtBelowOrApart(width, value, SpanFrom(offset, width), target), \
                 "value must begin at target, whole words below it, or lie apart from the field")

#define TARN_REQUIRE_INDEXED_FIELD(targetWidth, target, value, index, width) \
    TARN_ARGUMENTS(targetWidth, target, value, index, width);                \
    TARN_REQUIRE_AT_LEAST_1(targetWidth);                                    \
    TARN_REQUIRE_AT_LEAST_1(width);                                          \
    TARN_REQUIRE_VECTOR(targetWidth, target);                                \
    TARN_REQUIRE_VECTOR(width, value);                                       \
    TARN_REQUIRE_SAME_OR_APART(targetWidth, target, width, value)

using namespace tarn;

extern "C" {

void tarn_PartselectAssign(VectorWord* target, const VectorWord* value, unsigned offset,
                           int width) noexcept {
    TARN_REQUIRE_FIELD(target, value, offset, width);
    AssignField<Overwrite>(target, value, offset, width);
}

int tarn_NotIdenticalPartselectAssign(VectorWord* target, const VectorWord* value, unsigned offset,
                                      int width) noexcept {
    TARN_REQUIRE_FIELD(target, value, offset, width);
    return AssignField<OverwriteAndCompare>(target, value, offset, width);
}

void tarn_IndexedPartselectAssign(int targetWidth, VectorWord* target, const VectorWord* value,
                                  int index, int width) noexcept {
    TARN_REQUIRE_INDEXED_FIELD(targetWidth, target, value, index, width);
    AssignIndexedField<Overwrite>({targetWidth, target}, value, index, width);
}

int tarn_NotIdenticalIndexedPartselectAssign(int targetWidth, VectorWord* target,
                                             const VectorWord* value, int index,
                                             int width) noexcept {
    TARN_REQUIRE_INDEXED_FIELD(targetWidth, target, value, index, width);
    return AssignIndexedField<OverwriteAndCompare>({targetWidth, target}, value, index, width);
}

int tarn_NotIdentical(int width, const VectorWord* a, const VectorWord* b) noexcept {
    TARN_ARGUMENTS(width, a, b);
    TARN_REQUIRE_VECTOR(width, a);
    TARN_REQUIRE_VECTOR(width, b);
    return AreDifferent(width, a, b);
}

}  // extern "C"
