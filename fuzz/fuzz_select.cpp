// What is read out of vectors and put together: part-selects, concatenation, shifts, bits
// rewritten.
#include <iterator>

#include <tarnlib/select.h>
#include <tarnlib/shift.h>

#include "input.h"
#include "select_model.h"

namespace tarn::fuzz {
namespace {

using test::Extension;

unsigned Offset(Input& in) {
    return in.Byte() % 32;
}

// Near the ends of a vector, or any number.
int Index(Input& in, int vectorWidth, int width) {
    const unsigned form = in.Byte();
    if (form % 4 == 0) return in.Take<int>();
    const int index = in.Below(vectorWidth + width + 4) - width - 2;
    return form % 4 == 1 ? index & ~31 : index;
}

// The vector has no more words than the field reaches, and may be where the result goes.
void ReadField(Input& in) {
    const unsigned low = in.Byte() % 128;
    const int width = in.Width();
    const Vec vector = in.Vector(static_cast<int>(low) + width);
    const Vec field =
        CallInStorage(in, width, {vector}, Place::kAnywhere,
                      [&](VectorWord* result, VectorWord* const* operands) {
                          tarn_Partselect(result, operands[0] + low / 32, low % 32, width);
                      });
    CheckEqual("tarn_Partselect", field,
               test::Field(0, vector, static_cast<int>(low), width, Extension::kZero));
}

void ReadSignedField(Input& in) {
    const unsigned low = in.Byte() % 128;
    const int width = in.Width(), resultWidth = in.Width() - in.Below(2) * 600;
    const Vec vector = in.Vector(static_cast<int>(low) + width);
    const Vec field = CallInStorage(
        in, std::max(width, resultWidth), {vector}, Place::kAnywhere,
        [&](VectorWord* result, VectorWord* const* operands) {
            tarn_SignedPartselect(resultWidth, result, operands[0] + low / 32, low % 32, width);
        });
    CheckEqual("tarn_SignedPartselect", field,
               test::Field(resultWidth, vector, static_cast<int>(low), width, Extension::kSign));
}

void ReadIndexedField(Input& in) {
    const Vec source = in.Vector(in.Width());
    const int width = in.Width(), index = Index(in, source.width, width);
    const Vec field =
        CallInStorage(in, width, {source}, Place::kAnywhere,
                      [&](VectorWord* result, VectorWord* const* operands) {
                          tarn_IndexedPartselect(result, source.width, operands[0], index, width);
                      });
    CheckEqual("tarn_IndexedPartselect", field,
               test::Field(0, source, index, width, Extension::kZero));
}

void ReadBit(Input& in) {
    const Vec source = in.Vector(in.Width());
    const int index = Index(in, source.width, 1);
    Storage<VectorWord> words(ToWords(source), 0);
    const Logic expected = index < 0 || index >= source.width
                               ? Logic::kX
                               : source.bits[static_cast<std::size_t>(index)];
    CheckEqual("tarn_BitValue", tarn_BitValue(source.width, words.Data(), index),
               static_cast<int>(expected));
}

void FillWithX(Input& in) {
    const int base = static_cast<int>(Offset(in)), count = in.Width();
    const Vec before = in.Vector(base + count);
    const Vec after = CallInStorage(
        in, before.width, {before}, Place::kFirstOperand,
        [&](VectorWord* result, VectorWord* const*) { tarn_CleanBasedFillX(result, count, base); });
    Vec expected = test::Filled(before.width, Logic::k0);
    std::copy_n(before.bits.begin(), base, expected.bits.begin());
    std::fill_n(expected.bits.begin() + base, count, Logic::kX);
    CheckEqual("tarn_CleanBasedFillX", after, expected);
}

// 3 for an unknown vector, else whether its whole storage holds less than 2 to the power `bits`.
int Scan(const Vec& vec, std::size_t bits) {
    const auto begin = vec.bits.begin(), end = vec.bits.end();
    if (std::any_of(begin, end, [](Logic bit) { return bit >= Logic::kZ; })) return 3;
    return std::all_of(begin + static_cast<std::ptrdiff_t>(bits), end,
                       [](Logic bit) { return bit == Logic::k0; })
               ? 1
               : 0;
}

void ScanIndex(Input& in) {
    const Vec index = in.Vector(in.Width());
    Storage<VectorWord> words(ToWords(index), 0);
    CheckEqual("tarn_UnsignedScanIndexOfSelect",
               tarn_UnsignedScanIndexOfSelect(index.width, words.Data()),
               Scan(index, 31) == 1 ? 1 : 0);
    Vec magnitude = index;
    if (magnitude.bits[31] == Logic::k1) {
        for (Logic& bit : magnitude.bits) {
            if (bit < Logic::kZ) bit = bit == Logic::k0 ? Logic::k1 : Logic::k0;
        }
    }
    CheckEqual("tarn_SignedScanIndexOfSelect",
               tarn_SignedScanIndexOfSelect(index.width, words.Data()),
               Scan(magnitude, 31) == 1 ? 1 : 0);
    const int fits = Scan(index, 32);
    CheckEqual("tarn_ScanShiftCount", tarn_ScanShiftCount(index.width, words.Data()),
               fits == 3 ? 3 : 1 - fits);
}

// The span is the operand's end, or lies above or below that.
void Concatenate(Input& in) {
    const unsigned offset = Offset(in);
    const Vec operand = in.Vector(in.Width());
    const int end = static_cast<int>(offset) + operand.width;
    const int span = in.Flag() ? end : in.Width();
    const int written = std::min(span, end);
    // The destination may be the operand itself, with words behind it where it is the longer one.
    const bool isItself = in.Flag();
    Vec destination = isItself ? operand : in.Vector(written);
    if (isItself) destination.bits.resize(32 * test::WordCount(std::max(written, operand.width)));
    const Vec placed = CallInStorage(in, written, {destination, operand}, Place::kFirstOperand,
                                     [&](VectorWord* result, VectorWord* const* operands) {
                                         tarn_Concatenate(span, result, operand.width,
                                                          isItself ? result : operands[1], offset);
                                     });
    CheckEqual("tarn_Concatenate", placed,
               test::Placed(destination, written, operand, static_cast<int>(offset), span));
}

void ConcatenateShifted(Input& in) {
    const Vec operand = in.Vector(in.Width());
    const int span = operand.width;
    const Vec destination = in.Flag() ? operand : in.Vector(span);
    const Vec placed = CallInStorage(in, span, {destination, operand}, Place::kFirstOperand,
                                     [&](VectorWord* result, VectorWord* const* operands) {
                                         tarn_ConcatenateShifted(span, result, operands[1]);
                                     });
    CheckEqual("tarn_ConcatenateShifted", placed,
               test::Placed(destination, span, operand, 0, span));
}

void Rewrite(Input& in) {
    using InPlace = void(int, VectorWord*);
    struct Row {
        const char* name;
        InPlace* function;
        Logic to[4];
    };
    constexpr Row kRows[] = {
        {"tarn_Convert0ToZ", tarn_Convert0ToZ, {Logic::kZ, Logic::k1, Logic::kZ, Logic::kX}},
        {"tarn_Convert1ToZ", tarn_Convert1ToZ, {Logic::k0, Logic::kZ, Logic::kZ, Logic::kX}},
        {"tarn_ConvertXZTo0", tarn_ConvertXZTo0, {Logic::k0, Logic::k1, Logic::k0, Logic::k0}},
    };
    const Row& row = kRows[in.Byte() % std::size(kRows)];
    const Vec before = in.Vector(in.Width());
    const Vec after = CallInStorage(
        in, before.width, {before}, Place::kFirstOperand,
        [&](VectorWord* result, VectorWord* const*) { row.function(before.width, result); });
    Vec expected = before;
    for (Logic& bit : expected.bits) {
        bit = row.to[static_cast<std::size_t>(bit)];
    }
    CheckEqual(row.name, after, expected);
}

// A source of the result's width to the left, of any width to the right.
void Shift(Input& in) {
    const unsigned form = in.Byte();
    const bool isLeft = form % 3 == 0, isArithmetic = form % 3 == 1;
    const int width = in.Width();
    const Vec source = in.Vector(isLeft || in.Flag() ? width : in.Width());
    const unsigned amount =
        in.Flag() ? in.Take<unsigned>() : static_cast<unsigned>(in.Below(source.width + 70));
    const auto function = isLeft         ? tarn_LogicalShiftLeft
                          : isArithmetic ? tarn_ArithmeticalShiftRight
                                         : tarn_LogicalShiftRight;
    const Vec shifted = CallInStorage(
        in, width, {source}, Place::kAnywhere,
        [&](VectorWord* result, VectorWord* const* operands) {
            function(width, result, isLeft ? in.Take<int>() : source.width, operands[0], amount);
        });
    CheckEqual("shift", shifted,
               isLeft         ? test::Left(width, source, amount)
               : isArithmetic ? test::Right<Extension::kSign>(width, source, amount)
                              : test::Right<Extension::kZero>(width, source, amount));
}

constexpr void (*kCalls[])(Input&) = {
    ReadField, ReadSignedField, ReadIndexedField,   ReadBit, FillWithX,
    ScanIndex, Concatenate,     ConcatenateShifted, Rewrite, Shift};

}  // namespace
}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tarn::fuzz::RunOneOf(tarn::fuzz::kCalls, data, size);
}
