// Memory words: packed and unpacked, and fields of them read and written.
#include <tarnlib/memory.h>

#include "fields.h"

namespace tarn::test {
namespace {

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

struct Unpacking {
    int width;
    Vec stored;
};

Unpacking DrawUnpacking(Gen& gen) {
    Vec stored = gen.FourState(DrawDefinedWidth(gen));
    const int width = gen.OneIn(2) ? stored.width : gen.AnyWidth();
    return {width, std::move(stored)};
}

// The word that holds the top bit is extended above it.
template <Extension extension>
Vec Unpacked(int width, const Vec& stored) {
    if (stored.width < 1) return Vec{};
    return Extended(extension == kSign ? SignFilled(stored) : Clean(stored), width, extension);
}

Case CaseOf(auto* function, auto model, const Unpacking& drawn) {
    const auto& [width, stored] = drawn;
    const int spare = static_cast<int>(-static_cast<unsigned>(stored.width) & 31U);
    return Case(function, width, Result(model(width, stored)), stored.width, Memory(Packed(stored)),
                spare)
        .With(Register(Vec{}));
}

// What the memory word holds before the call is often the value, or differs from it in one bit.
struct Packing {
    Vec value;
    Bytes before;
};

Packing DrawPacking(Gen& gen) {
    Vec value = gen.FourState(DrawDefinedWidth(gen));
    Bytes before = Packed(gen.OneIn(2) ? value : gen.FourState(value.width));
    if (gen.OneIn(2) && !before.empty()) {
        before[gen.Bits() % before.size()] ^= static_cast<std::uint8_t>(1U << gen.Below(8));
    }
    return {std::move(value), std::move(before)};
}

Case CaseOf(auto* function, auto model, const Packing& drawn) {
    const auto& [value, before] = drawn;
    const Bytes after = model(value);
    return WithFlag(function,
                    Case(function, value.width, MemoryTarget(before, after), Operand(value))
                        .With(Register(Vec{})),
                    after != before);
}

// Where there is neither a memory word nor a field, nothing happens.
bool IsEmpty(const Write& drawn) {
    return drawn.target.width < 1 || drawn.width < 1;
}

struct MemoryRead : Write {};

Case CaseOf(auto* function, auto model, const MemoryRead& drawn) {
    const auto& [stored, index, width, unused] = drawn;
    const bool isEmpty = IsEmpty(drawn);
    return Case(function, Result(isEmpty ? Vec{} : model(stored, index, width)), stored.width,
                Memory(Packed(stored)), index, width)
        .With(Register(isEmpty ? Vec{} : Clean(stored)));
}

struct MemoryWrite : Write {
    bool usesRegister;
};

// A field that lies outside is not written, and leaves the spare bits; one that is clears them.
Case CaseOf(auto* function, auto model, const MemoryWrite& drawn) {
    const auto& [stored, index, width, value] = static_cast<const Write&>(drawn);
    const Vec left = IsEmpty(drawn) ? Vec{} : model(Clean(stored), value, index, width);
    const Bytes before = Packed(stored);
    const Bytes after = HasBitInside(stored.width, index, width) ? Packed(left) : before;
    return WithFlag(
        function,
        Case(function, stored.width, MemoryTarget(before, after), Operand(value), index, width)
            .With(Register(drawn.usesRegister ? left : Vec{})),
        after != before);
}

MemoryRead DrawInnerRead(Gen& gen) {
    return {DrawInnerWrite(gen, DrawDefinedWidth(gen))};
}
MemoryRead DrawIndexedRead(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    Vec stored = gen.FourState(DrawDefinedWidth(gen));
    const int index = DrawIndex(gen, stored.width, width);
    return {{std::move(stored), index, width, Vec{}}};
}

MemoryWrite DrawInner(Gen& gen) {
    return {DrawInnerWrite(gen, DrawDefinedWidth(gen)), true};
}
MemoryWrite DrawIndexed(Gen& gen) {
    return {DrawWrite(gen, DrawDefinedWidth(gen)), true};
}
MemoryWrite DrawShortInner(Gen& gen) {
    return {DrawInnerWrite(gen, gen.Between(kIsChecked ? 1 : -1, 32)), false};
}
MemoryWrite DrawShortIndexed(Gen& gen) {
    return {DrawWrite(gen, gen.Between(kIsChecked ? 1 : -1, 32)), false};
}

Properties Random() {
    return {
        TARN_ROW(tarn_UnsignedCopyMemoryValue, Unpacked<kZero>, DrawUnpacking),
        TARN_ROW(tarn_SignedCopyMemoryValue, Unpacked<kSign>, DrawUnpacking),
        TARN_ROW(tarn_MemoryWordAssign, Packed, DrawPacking),
        TARN_ROW(tarn_NotIdenticalMemoryWordAssign, Packed, DrawPacking),
        TARN_ROW(tarn_MemoryWordPartselect, Field, DrawInnerRead),
        TARN_ROW(tarn_MemoryWordIndexedPartselect, Field, DrawIndexedRead),
        TARN_ROW(tarn_MemoryWordPartselectAssign, WithField, DrawInner),
        TARN_ROW(tarn_NotIdenticalMemoryWordPartselectAssign, WithField, DrawInner),
        TARN_ROW(tarn_MemoryWordIndexedPartselectAssign, WithField, DrawIndexed),
        TARN_ROW(tarn_NotIdenticalMemoryWordIndexedPartselectAssign, WithField, DrawIndexed),
        TARN_ROW(tarn_MemoryWordPartselectAssign1, WithField, DrawShortInner),
        TARN_ROW(tarn_NotIdenticalMemoryWordPartselectAssign1, WithField, DrawShortInner),
        TARN_ROW(tarn_MemoryWordIndexedPartselectAssign1, WithField, DrawShortIndexed),
        TARN_ROW(tarn_NotIdenticalMemoryWordIndexedPartselectAssign1, WithField, DrawShortIndexed),
    };
}

// The widest memory word fills the register.
Case WidestWrite(Gen& /*gen*/) {
    constexpr int kWidest = 32 * TARN_VECTOR_REGISTER_WORDS;
    const Bytes before(std::size_t{kWidest} / 4, 0x5A);
    Bytes after = before;
    std::fill_n(after.begin() + kWidest / 8 - 5, 5, 0xFF);
    std::fill_n(after.end() - 5, 4, 0);
    after.back() = 0xFF;
    return Case(tarn_NotIdenticalMemoryWordPartselectAssign, kWidest, MemoryTarget(before, after),
                Operand(Words(40, {{0xFFFFFFFF, 0}, {0xFF, 0xFF}})), kWidest - 40, 40)
        .Returns(1);
}

Properties ByHand() {
    return {
        // Bytes of aval, then of bval, the lowest first.
        TARN_KNOWN(tarn_MemoryWordAssign, Packing{Words(10, {{0x2A5, 0x1}}), Bytes(4, 0xFF)},
                   Bytes{0xA5, 0x02, 0x01, 0x00}),
        {"the widest memory word", WidestWrite, 1},
    };
}

}  // namespace

Family MemoryFamily() {
    return {"Memory", Random(), ByHand};
}

}  // namespace tarn::test
