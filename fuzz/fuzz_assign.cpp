// What is written into vectors and into memory words, and what is read from those.
#include <tarnlib/assign.h>
#include <tarnlib/memory.h>

#include "input.h"
#include "select_model.h"

namespace tarn::fuzz {
namespace {

using test::Bytes;
using test::Extension;

// The value of a field: as the target has it, the same but for one bit, or anything.
Vec Value(Input& in, const Vec& target, int index, int width) {
    Vec value = in.Vector(width);
    const unsigned form = in.Byte();
    if (form % 4 > 1) return value;
    for (std::size_t i = 0; i < static_cast<std::size_t>(value.width); ++i) {
        const std::int64_t at = static_cast<std::int64_t>(i) + index;
        if (0 <= at && at < target.width) value.bits[i] = target.bits[static_cast<std::size_t>(at)];
    }
    if (form % 4 == 1) value.bits[form % static_cast<unsigned>(width)] = Logic::kX;
    return value;
}

// A field anywhere in or beside a target. Of its width only what a write can reach is stored.
struct FieldInput {
    int index;
    int width;
    Vec value;
};

FieldInput AnyField(Input& in, const Vec& target) {
    const unsigned form = in.Byte();
    FieldInput field{0, form % 8 == 0 ? in.Take<int>() : in.Width(), {}};
    constexpr int kMostStored = 20'000;
    const int near = std::min(std::max(field.width, 0), kMostStored);
    field.index = in.Below(target.width + near + 4) - near - 2;
    if (form % 8 == 1) field.index = in.Take<int>();
    if (form % 8 == 2) field.index &= ~31;
    if (!test::HasBitInside(target.width, field.index, field.width)) return field;
    const std::int64_t reached = std::int64_t{target.width} - field.index;
    if (reached > 2 * kMostStored) field.index = -kMostStored;
    const auto stored =
        std::min<std::int64_t>(std::int64_t{target.width} - field.index, field.width);
    field.value = Value(in, target, field.index, static_cast<int>(stored));
    return field;
}

FieldInput InnerField(Input& in, const Vec& target) {
    const int index = in.Below(target.width), width = 1 + in.Below(target.width - index);
    return {index, width, Value(in, target, index, width)};
}

// Both forms must write the same; the one with the flag tells whether a bit changed.
template <class Plain, class WithFlag>
void CheckWrites(Input& in, const char* what, const Vec& target, const FieldInput& field,
                 Plain plain, WithFlag withFlag) {
    // The target is long enough to be the value as well where a field is no wider than that.
    const bool isItself = in.Flag() && field.width <= target.width;
    const Vec expected =
        test::WithField(target, isItself ? target : field.value, field.index, field.width);
    int changed = -1;
    for (const bool wantsFlag : {false, true}) {
        const Vec written =
            CallInStorage(in, target.width, {target, field.value}, Place::kFirstOperand,
                          [&](VectorWord* result, VectorWord* const* operands) {
                              const VectorWord* const value = isItself ? result : operands[1];
                              if (wantsFlag) {
                                  changed = withFlag(result, value);
                              } else {
                                  plain(result, value);
                              }
                          });
        CheckEqual(what, written, expected);
    }
    CheckEqual(what, changed, expected == target ? 0 : 1);
}

void WriteField(Input& in) {
    const Vec target = in.Vector(in.Width());
    const FieldInput field = InnerField(in, target);
    const unsigned offset = static_cast<unsigned>(field.index) % 32;
    const int word = field.index / 32;
    CheckWrites(
        in, "tarn_PartselectAssign", target, field,
        [&](VectorWord* result, const VectorWord* value) {
            tarn_PartselectAssign(result + word, value, offset, field.width);
        },
        [&](VectorWord* result, const VectorWord* value) {
            return tarn_NotIdenticalPartselectAssign(result + word, value, offset, field.width);
        });
}

void WriteIndexedField(Input& in) {
    const Vec target = in.Vector(in.Width());
    const FieldInput field = AnyField(in, target);
    CheckWrites(
        in, "tarn_IndexedPartselectAssign", target, field,
        [&](VectorWord* result, const VectorWord* value) {
            tarn_IndexedPartselectAssign(target.width, result, value, field.index, field.width);
        },
        [&](VectorWord* result, const VectorWord* value) {
            return tarn_NotIdenticalIndexedPartselectAssign(target.width, result, value,
                                                            field.index, field.width);
        });
}

void Compare(Input& in) {
    const Vec a = in.Vector(in.Width()), b = Value(in, a, 0, a.width);
    Storage<VectorWord> aWords(ToWords(a), 4), bWords(ToWords(b), 0);
    CheckEqual("tarn_NotIdentical", tarn_NotIdentical(a.width, aWords.Data(), bWords.Data()),
               a == b ? 0 : 1);
}

/*------------------------------------------------------------------------------------------------
 * Memory words
 *----------------------------------------------------------------------------------------------*/

int MemoryWidth(Input& in, bool isShort) {
    return isShort ? 1 + in.Byte() % 32 : in.Width();
}

void UnpackMemory(Input& in) {
    const bool isSigned = in.Flag();
    const Vec stored = in.Vector(in.Width());
    const int width = in.Flag() ? stored.width : in.Width();
    Storage<std::uint8_t> memory(test::ToBytes(stored), in.Byte() % 8);
    const auto copy = isSigned ? tarn_SignedCopyMemoryValue : tarn_UnsignedCopyMemoryValue;
    const Vec unpacked =
        CallInStorage(in, width, {}, Place::kAnywhere, [&](VectorWord* result, VectorWord* const*) {
            copy(width, result, stored.width, memory.Data(), -stored.width & 31);
        });
    const Extension extension = isSigned ? Extension::kSign : Extension::kZero;
    CheckEqual("copy of a memory word", unpacked,
               Extended(isSigned ? SignFilled(stored) : Clean(stored), width, extension));
}

void PackMemory(Input& in) {
    const Vec value = in.Vector(in.Width());
    const Bytes expected = test::ToBytes(value);
    const Bytes before = test::ToBytes(Value(in, value, 0, value.width));
    Storage<std::uint8_t> plain(before, in.Byte() % 8), flagged(before, in.Byte() % 8);
    Storage<VectorWord> words(ToWords(value), 4);
    tarn_MemoryWordAssign(value.width, plain.Data(), words.Data());
    Check("tarn_MemoryWordAssign", plain.Items() == expected);
    const int changed =
        tarn_NotIdenticalMemoryWordAssign(value.width, flagged.Data(), words.Data());
    Check("tarn_NotIdenticalMemoryWordAssign", flagged.Items() == expected);
    CheckEqual("its flag", changed, before == expected ? 0 : 1);
}

// Spare bits, which a memory word may hold, are no part of its value.
void ReadMemoryField(Input& in) {
    const Vec stored = in.Vector(in.Width());
    const bool isInner = in.Flag();
    const Bytes bytes = test::ToBytes(stored);
    Storage<std::uint8_t> memory(bytes, in.Byte() % 8);
    const int width = isInner ? 1 + in.Below(stored.width) : in.Width();
    const int low = isInner     ? in.Below(stored.width - width + 1)
                    : in.Flag() ? in.Take<int>()
                                : in.Below(stored.width + width + 4) - width - 2;
    const auto read = isInner ? tarn_MemoryWordPartselect : tarn_MemoryWordIndexedPartselect;
    const Vec field =
        CallInStorage(in, width, {}, Place::kAnywhere, [&](VectorWord* result, VectorWord* const*) {
            read(result, stored.width, memory.Data(), low, width);
        });
    CheckEqual("field of a memory word", field,
               test::Field(0, stored, low, width, Extension::kZero));
    Check("a read memory word stays as it was", memory.Items() == bytes);
    const std::size_t words = stored.bits.size() / 32;
    CheckEqual("tarn_VectorRegister",
               test::Words(stored.width, {tarn_VectorRegister, tarn_VectorRegister + words}),
               test::Clean(stored));
}

using WriteMemory = void(int, std::uint8_t*, const VectorWord*, int, int);
using WriteMemoryWithFlag = int(int, std::uint8_t*, const VectorWord*, int, int);
struct MemoryWrites {
    WriteMemory* plain;
    WriteMemoryWithFlag* withFlag;
};

// By whether the field reaches past the ends, then by whether the memory word has 32 bits at most.
constexpr MemoryWrites kMemoryWrites[2][2] = {
    {{tarn_MemoryWordPartselectAssign, tarn_NotIdenticalMemoryWordPartselectAssign},
     {tarn_MemoryWordPartselectAssign1, tarn_NotIdenticalMemoryWordPartselectAssign1}},
    {{tarn_MemoryWordIndexedPartselectAssign, tarn_NotIdenticalMemoryWordIndexedPartselectAssign},
     {tarn_MemoryWordIndexedPartselectAssign1,
      tarn_NotIdenticalMemoryWordIndexedPartselectAssign1}}};

void WriteMemoryField(Input& in) {
    const bool isAny = in.Flag(), isShort = in.Flag();
    const Vec stored = in.Vector(MemoryWidth(in, isShort));
    const FieldInput field = isAny ? AnyField(in, stored) : InnerField(in, stored);
    const MemoryWrites& writes = kMemoryWrites[isAny][isShort];
    const Bytes before = test::ToBytes(stored);
    // A field that lies outside writes nothing, and so leaves the spare bits.
    const bool isInside = test::HasBitInside(stored.width, field.index, field.width);
    const Vec target = isInside ? test::Clean(stored) : stored;
    const Bytes expected =
        test::ToBytes(test::WithField(target, field.value, field.index, field.width));
    Storage<std::uint8_t> plain(before, in.Byte() % 8), flagged(before, in.Byte() % 8);
    Storage<VectorWord> words(ToWords(field.value), 4);
    writes.plain(stored.width, plain.Data(), words.Data(), field.index, field.width);
    Check("field written to a memory word", plain.Items() == expected);
    const int changed =
        writes.withFlag(stored.width, flagged.Data(), words.Data(), field.index, field.width);
    Check("field written to a memory word, with its flag", flagged.Items() == expected);
    CheckEqual("flag of a write to a memory word", changed, before == expected ? 0 : 1);
}

constexpr void (*kCalls[])(Input&) = {WriteField, WriteIndexedField, Compare,         UnpackMemory,
                                      PackMemory, ReadMemoryField,   WriteMemoryField};

}  // namespace
}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tarn::fuzz::RunOneOf(tarn::fuzz::kCalls, data, size);
}
