// Exports: reads of fields and bits, concatenation, rewriting.
#include <algorithm>
#include <bit>

#include <tarnlib/select.h>

#include "core/contract.h"
#include "select/concatenate.h"
#include "select/partselect.h"
#include "select/rewrite.h"

namespace tarn {
namespace {

// Whether a word can take an operand: it is 0 from the offset upward, or it is the operand itself,
// placed where it is. For an operand that is laid out as the word is, the offset is at most its
// lowest bit that is not 0.
[[maybe_unused]] bool IsPlaceFree(const VectorWord* word, const VectorWord* operand,
                                  unsigned offset) noexcept {
    return (word == operand && offset == 0) || (word->aval | word->bval) >> offset == 0;
}

[[maybe_unused]] bool IsPlaceFree(const VectorWord* word, const VectorWord* operand) noexcept {
    const int lowest = std::countr_zero(operand->aval | operand->bval);
    return word == operand || lowest == 32 ||
           IsPlaceFree(word, operand, static_cast<unsigned>(lowest));
}

}  // namespace
}  // namespace tarn

// Of a field the words that hold its bits count. The result may begin below them and reach into
// them.
#define TARN_REQUIRE_FIELD(resultWidth, result, source, offset, width)                   \
    TARN_REQUIRE_AT_LEAST_1(width);                                                      \
    TARN_REQUIRE_OFFSET(offset);                                                         \
    TARN_REQUIRE_VECTOR(width, result);                                                  \
    TARN_REQUIRE_VECTOR(width, source);                                                  \
    TARN_REQUIRE(IsAtBelowOrApart(resultWidth, result, SpanFrom(offset, width), source), \
                 "result must begin at source, whole words below it, or lie apart from the field")

// The destination is written up to the span and to the operand's top bit.
#define TARN_REQUIRE_PLACEMENT(span, placedSpan, destination, operandWidth, operand) \
    TARN_REQUIRE_AT_LEAST_1(span);                                                   \
    TARN_REQUIRE_VECTOR(span, destination);                                          \
    TARN_REQUIRE_VECTOR(operandWidth, operand);                                      \
    TARN_REQUIRE_SAME_OR_APART(placedSpan, destination, operandWidth, operand);      \
    TARN_REQUIRE_CLEAN(operandWidth, operand)

using namespace tarn;

extern "C" {

void tarn_Partselect(VectorWord* result, const VectorWord* source, unsigned offset,
                     int width) noexcept {
    TARN_ARGUMENTS(result, source, offset, width);
    TARN_REQUIRE_FIELD(width, result, source, offset, width);
    ReadField(result, source, offset, width);
}

void tarn_SignedPartselect(int resultWidth, VectorWord* result, const VectorWord* source,
                           unsigned offset, int width) noexcept {
    TARN_ARGUMENTS(resultWidth, result, source, offset, width);
    TARN_REQUIRE_FIELD(std::max(resultWidth, width), result, source, offset, width);
    ReadSignedField({resultWidth, result}, source, offset, width);
}

void tarn_IndexedPartselect(VectorWord* result, int sourceWidth, const VectorWord* source,
                            int index, int width) noexcept {
    TARN_ARGUMENTS(result, sourceWidth, source, index, width);
    TARN_REQUIRE_AT_LEAST_1(width);
    TARN_REQUIRE_VECTOR(width, result);
    TARN_REQUIRE_VECTOR(sourceWidth, source);
    TARN_REQUIRE_SAME_OR_APART(width, result, sourceWidth, source);
    ReadIndexedField(result, {sourceWidth, source}, index, width);
}

LogicCode tarn_BitValue(int sourceWidth, const VectorWord* source, int index) noexcept {
    TARN_ARGUMENTS(sourceWidth, source, index);
    TARN_REQUIRE_VECTOR(sourceWidth, source);
    return ReadBit({sourceWidth, source}, index);
}

void tarn_CleanBasedFillX(VectorWord* word, int count, int base) noexcept {
    TARN_ARGUMENTS(word, count, base);
    TARN_REQUIRE_AT_LEAST_1(count);
    TARN_REQUIRE_OFFSET(base);
    TARN_REQUIRE_VECTOR(count, word);
    if (count < 1) return;
    const auto first = static_cast<unsigned>(base);
    FillWithX(word, first, first + static_cast<unsigned>(count));
}

int tarn_SignedScanIndexOfSelect(int width, const VectorWord* index) noexcept {
    TARN_REQUIRE_IN_PLACE(width, index);
    TARN_REQUIRE_AT_LEAST_1(width);
    TARN_REQUIRE_SIGN_FILLED(width, index);
    return IsUsableIndex<SignExtend>({width, index});
}

int tarn_UnsignedScanIndexOfSelect(int width, const VectorWord* index) noexcept {
    TARN_REQUIRE_IN_PLACE(width, index);
    TARN_REQUIRE_AT_LEAST_1(width);
    TARN_REQUIRE_CLEAN(width, index);
    return IsUsableIndex<ZeroExtend>({width, index});
}

void tarn_Concatenate(int span, VectorWord* destination, int operandWidth,
                      const VectorWord* operand, unsigned offset) noexcept {
    TARN_ARGUMENTS(span, destination, operandWidth, operand, offset);
    TARN_REQUIRE_AT_LEAST_1(operandWidth);
    TARN_REQUIRE_OFFSET(offset);
    TARN_REQUIRE_PLACEMENT(span, std::min(span, SpanFrom(offset, operandWidth)), destination,
                           operandWidth, operand);
    TARN_REQUIRE(IsPlaceFree(destination, operand, offset),
                 "word 0 of destination must hold 0 from bit offset upward, but is " +
                     DescribeWord(*destination));
    Place(span, destination, {operandWidth, operand}, offset);
}

void tarn_ConcatenateShifted(int span, VectorWord* destination,
                             const VectorWord* operand) noexcept {
    TARN_ARGUMENTS(span, destination, operand);
    TARN_REQUIRE_PLACEMENT(span, span, destination, span, operand);
    TARN_REQUIRE(IsPlaceFree(destination, operand),
                 "word 0 of destination must hold 0 from the operand's lowest bit upward, but is " +
                     DescribeWord(*destination) + " where the operand has " +
                     DescribeWord(*operand));
    PlaceShifted(span, destination, operand);
}

void tarn_Convert0ToZ(int width, VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    Rewrite<ZeroToZ>({width, v});
}

void tarn_Convert1ToZ(int width, VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    Rewrite<OneToZ>({width, v});
}

void tarn_ConvertXZTo0(int width, VectorWord* v) noexcept {
    TARN_REQUIRE_IN_PLACE(width, v);
    Rewrite<UnknownToZero>({width, v});
}

}  // extern "C"
