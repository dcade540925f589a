// Exports: reads of fields and bits, concatenation, rewriting.
#include <algorithm>

#include <tarnlib/select.h>

#include "core/contract.h"
#include "select/concatenate.h"
#include "select/partselect.h"
#include "select/rewrite.h"

// Of a field the words that hold its bits count.
#define TARN_REQUIRE_FIELD(resultWidth, result, source, offset, width) \
    TARN_REQUIRE(width >= 1);                                          \
    TARN_REQUIRE(offset < 32U);                                        \
    TARN_REQUIRE(IsVector(width, result) && IsVector(width, source));  \
    TARN_REQUIRE(AreSameOrApart(resultWidth, result, SpanFrom(offset, width), source))

#define TARN_REQUIRE_INDEX(width, index) \
    TARN_ARGUMENTS(width, index);        \
    TARN_REQUIRE(width >= 1);            \
    TARN_REQUIRE(IsVector(width, index))

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
    TARN_REQUIRE(width >= 1);
    TARN_REQUIRE(IsVector(width, result) && IsVector(sourceWidth, source));
    TARN_REQUIRE(AreSameOrApart(width, result, sourceWidth, source));
    ReadIndexedField(result, {sourceWidth, source}, index, width);
}

LogicCode tarn_BitValue(int sourceWidth, const VectorWord* source, int index) noexcept {
    TARN_ARGUMENTS(sourceWidth, source, index);
    TARN_REQUIRE(IsVector(sourceWidth, source));
    return ReadBit({sourceWidth, source}, index);
}

void tarn_CleanBasedFillX(VectorWord* word, int count, int base) noexcept {
    TARN_ARGUMENTS(word, count, base);
    TARN_REQUIRE(count >= 1);
    TARN_REQUIRE(base >= 0 && base < 32);
    TARN_REQUIRE(IsVector(count, word));
    if (count < 1) return;
    const auto first = static_cast<unsigned>(base);
    FillWithX(word, first, first + static_cast<unsigned>(count));
}

int tarn_SignedScanIndexOfSelect(int width, const VectorWord* index) noexcept {
    TARN_REQUIRE_INDEX(width, index);
    return IsUsableIndex<SignExtend>({width, index});
}

int tarn_UnsignedScanIndexOfSelect(int width, const VectorWord* index) noexcept {
    TARN_REQUIRE_INDEX(width, index);
    return IsUsableIndex<ZeroExtend>({width, index});
}

void tarn_Concatenate(int span, VectorWord* destination, int operandWidth,
                      const VectorWord* operand, unsigned offset) noexcept {
    TARN_ARGUMENTS(span, destination, operandWidth, operand, offset);
    TARN_REQUIRE(span >= 1 && operandWidth >= 1);
    TARN_REQUIRE(offset < 32U);
    TARN_REQUIRE(IsVector(span, destination) && IsVector(operandWidth, operand));
    TARN_REQUIRE(AreSameOrApart(std::min(span, SpanFrom(offset, operandWidth)), destination,
                                operandWidth, operand));
    Place(span, destination, {operandWidth, operand}, offset);
}

void tarn_ConcatenateShifted(int span, VectorWord* destination,
                             const VectorWord* operand) noexcept {
    TARN_ARGUMENTS(span, destination, operand);
    TARN_REQUIRE(span >= 1);
    TARN_REQUIRE(IsVector(span, destination) && IsVector(span, operand));
    TARN_REQUIRE(AreSameOrApart(span, destination, span, operand));
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
