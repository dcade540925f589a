// Fields of bits written, with and without the flag of a change; memory words, packed and unpacked.
#include <tarnlib/assign.h>
#include <tarnlib/memory.h>

#include "fields.h"

namespace tarn::test {
namespace {

// The value begins below the word at the target where it is the vector that the field lies in.
Property Inner(const char* name, auto* function) {
    return {name, [=](Gen& gen) {
                const auto [target, index, width, value] = DrawInnerWrite(gen, gen.Width());
                const Vec written = WithField(target, value, index, width);
                const std::size_t word = static_cast<std::size_t>(index) / 32 * sizeof(VectorWord);
                const Party place = At(Target(target, written), word);
                return WithFlag(function, Case(function, place, Operand(value), index % 32, width),
                                written != target);
            }};
}

Property Indexed(const char* name, auto* function) {
    return {
        name, [=](Gen& gen) {
            const int targetWidth = gen.OneIn(8) ? gen.Between(500, 1000) : DrawDefinedWidth(gen);
            const auto [target, index, width, value] = DrawWrite(gen, targetWidth);
            const Vec written = WithField(target, value, index, width);
            return WithFlag(
                function,
                Case(function, target.width, Target(target, written), Operand(value), index, width),
                written != target);
        }};
}

/*------------------------------------------------------------------------------------------------
 * Memory words
 *----------------------------------------------------------------------------------------------*/

// The bytes of aval, then those of bval.
Bytes Packed(const Vec& vec) {
    const std::size_t half = vec.width < 1 ? 0 : (static_cast<std::size_t>(vec.width) + 7) / 8;
    Bytes bytes(2 * half);
    for (std::size_t i = 0; i < 8 * half; ++i) {
        const unsigned bit = static_cast<unsigned>(vec.bits[i]);
        bytes[i / 8] |= static_cast<std::uint8_t>((bit & 1U) << i % 8);
        bytes[half + i / 8] |= static_cast<std::uint8_t>((bit >> 1) << i % 8);
    }
    return bytes;
}

// The register begins with what a call leaves there, and keeps the rest of its paint.
Party Register(const Vec& left) {
    const std::vector<VectorWord> paint(left.bits.size() / 32 + 2, {0x5A5A5A5A, 0xC3C3C3C3});
    Party party = Target(Words(0, paint), left);
    party.fixed = tarn_VectorRegister;
    return party;
}

// The word that holds the top bit is extended above it.
Property Unpacking(const char* name, auto* function, Extension extension) {
    return {name, [=](Gen& gen) {
                const Vec stored = gen.FourState(DrawDefinedWidth(gen));
                const int width = gen.OneIn(2) ? stored.width : gen.AnyWidth();
                const int spare = static_cast<int>(-static_cast<unsigned>(stored.width) & 31U);
                const Vec filled = extension == kSign ? SignFilled(stored) : Clean(stored);
                const Vec wide = stored.width < 1 ? Vec{} : Extended(filled, width, extension);
                return Case(function, width, Result(wide), stored.width, Memory(Packed(stored)),
                            spare)
                    .With(Register(Vec{}));
            }};
}

// What the memory word holds before the call is often the value, or differs from it in one bit.
Property Packing(const char* name, auto* function) {
    return {
        name, [=](Gen& gen) {
            const Vec value = gen.FourState(DrawDefinedWidth(gen));
            const Bytes after = Packed(value);
            Bytes before = gen.OneIn(2) ? after : Packed(gen.FourState(value.width));
            if (gen.OneIn(2) && !before.empty()) {
                before[gen.Bits() % before.size()] ^= static_cast<std::uint8_t>(1U << gen.Below(8));
            }
            return WithFlag(function,
                            Case(function, value.width, MemoryTarget(before, after), Operand(value))
                                .With(Register(Vec{})),
                            after != before);
        }};
}

// Where there is neither a memory word nor a field, nothing happens.
Case ReadField(auto* function, const Vec& stored, int index, int width) {
    const bool isEmpty = stored.width < 1 || width < 1;
    return Case(function, Result(isEmpty ? Vec{} : Field(stored, index, width)), stored.width,
                Memory(Packed(stored)), index, width)
        .With(Register(isEmpty ? Vec{} : Clean(stored)));
}

Case ReadInner(Gen& gen) {
    const Write drawn = DrawInnerWrite(gen, DrawDefinedWidth(gen));
    return ReadField(TARN_FUNCTION(tarn_MemoryWordPartselect), drawn.target, drawn.index,
                     drawn.width);
}
Case ReadIndexed(Gen& gen) {
    const Vec stored = gen.FourState(DrawDefinedWidth(gen));
    const int width = DrawDefinedWidth(gen), index = DrawIndex(gen, stored.width, width);
    return ReadField(TARN_FUNCTION(tarn_MemoryWordIndexedPartselect), stored, index, width);
}

// A field that lies outside is not written, and leaves the spare bits; one that is clears them.
// Short memory words leave the register alone.
Property Writing(const char* name, auto* function, Write (*draw)(Gen&, int), bool isShort) {
    return {name, [=](Gen& gen) {
                const auto [stored, index, width, value] = draw(
                    gen, isShort ? gen.Between(kIsChecked ? 1 : -1, 32) : DrawDefinedWidth(gen));
                const bool isEmpty = stored.width < 1 || width < 1;
                const Vec left = isEmpty ? Vec{} : WithField(Clean(stored), value, index, width);
                const Bytes before = Packed(stored);
                const Bytes after =
                    HasBitInside(stored.width, index, width) ? Packed(left) : before;
                return WithFlag(function,
                                Case(function, stored.width, MemoryTarget(before, after),
                                     Operand(value), index, width)
                                    .With(Register(isShort ? Vec{} : left)),
                                after != before);
            }};
}

Properties Random() {
    constexpr auto kInner = DrawInnerWrite, kAny = DrawWrite;
    return {
        TARN_ROW_OF(Inner, tarn_PartselectAssign),
        TARN_ROW_OF(Inner, tarn_NotIdenticalPartselectAssign),
        TARN_ROW_OF(Indexed, tarn_IndexedPartselectAssign),
        TARN_ROW_OF(Indexed, tarn_NotIdenticalIndexedPartselectAssign),
        TARN_ROW_OF(Unpacking, tarn_UnsignedCopyMemoryValue, kZero),
        TARN_ROW_OF(Unpacking, tarn_SignedCopyMemoryValue, kSign),
        TARN_ROW_OF(Packing, tarn_MemoryWordAssign),
        TARN_ROW_OF(Packing, tarn_NotIdenticalMemoryWordAssign),
        {"tarn_MemoryWordPartselect", ReadInner},
        {"tarn_MemoryWordIndexedPartselect", ReadIndexed},
        TARN_ROW_OF(Writing, tarn_MemoryWordPartselectAssign, kInner, false),
        TARN_ROW_OF(Writing, tarn_NotIdenticalMemoryWordPartselectAssign, kInner, false),
        TARN_ROW_OF(Writing, tarn_MemoryWordIndexedPartselectAssign, kAny, false),
        TARN_ROW_OF(Writing, tarn_NotIdenticalMemoryWordIndexedPartselectAssign, kAny, false),
        TARN_ROW_OF(Writing, tarn_MemoryWordPartselectAssign1, kInner, true),
        TARN_ROW_OF(Writing, tarn_NotIdenticalMemoryWordPartselectAssign1, kInner, true),
        TARN_ROW_OF(Writing, tarn_MemoryWordIndexedPartselectAssign1, kAny, true),
        TARN_ROW_OF(Writing, tarn_NotIdenticalMemoryWordIndexedPartselectAssign1, kAny, true),
    };
}

std::vector<Case> ByHand() {
    // The widest memory word fills the register.
    constexpr int kWidest = 32 * TARN_VECTOR_REGISTER_WORDS;
    const Bytes before(std::size_t{kWidest} / 4, 0x5A);
    Bytes after = before;
    std::fill_n(after.begin() + kWidest / 8 - 5, 5, 0xFF);
    std::fill_n(after.end() - 5, 4, 0);
    after.back() = 0xFF;
    return {
        TARN_CALL(tarn_NotIdenticalMemoryWordPartselectAssign, kWidest, MemoryTarget(before, after),
                  Operand(Words(40, {{~0U, 0}, {0xFF, 0xFF}})), kWidest - 40, 40)
            .Returns(1),
        // Bytes of aval, then of bval, the lowest first.
        TARN_CALL(tarn_MemoryWordAssign, 10, MemoryTarget(Bytes(4, 0xFF), {0xA5, 0x02, 0x01, 0x00}),
                  Operand(Words(10, {{0x2A5, 0x1}}))),
    };
}

}  // namespace

Family AssignFamily() {
    return {"Assign", Random(), ByHand};
}

}  // namespace tarn::test
