// Memory words: a vector packed in bytes, those of aval before those of bval.
#ifndef TARN_SELECT_MEMORY_WORD_H
#define TARN_SELECT_MEMORY_WORD_H

#include "core/vector.h"
#include "select/assign.h"

namespace tarn {

// The bytes of each half; none for a width below 1.
constexpr std::size_t HalfByteCount(int memoryWidth) noexcept {
    return memoryWidth < 1 ? 0 : static_cast<std::size_t>((memoryWidth - 1) >> 3) + 1;
}

// A memory word of up to 32 bits as one number, as wide as its bytes: the half of aval is the low
// one. In six bytes it is read and written in the same two pieces, because a load that takes its
// bytes from two stores waits for both.
template <unsigned kHalfBytes>
struct PackedWord {
    static constexpr unsigned kHalfBits = 8 * kHalfBytes;
    static constexpr std::uint32_t kHalfMask = 0xFFFFFFFFU >> (32 - kHalfBits);

    static Word Load(const std::uint8_t* from) noexcept {
        if constexpr (kHalfBytes == 3) {
            return LoadBytes<std::uint32_t>(from) |
                   static_cast<Word>(LoadBytes<std::uint16_t>(from + 4)) << 32;
        } else {
            return LoadBytes<Number>(from);
        }
    }
    static void Store(std::uint8_t* to, Word packed) noexcept {
        if constexpr (kHalfBytes == 3) {
            StoreBytes<std::uint32_t>(to, packed);
            StoreBytes<std::uint16_t>(to + 4, packed >> 32);
        } else {
            StoreBytes<Number>(to, packed);
        }
    }

    static constexpr Word Unpacked(Word packed) noexcept {
        return MakeWord(static_cast<std::uint32_t>(packed) & kHalfMask,
                        static_cast<std::uint32_t>(packed >> kHalfBits));
    }
    static constexpr Word Packed(Word word) noexcept {
        return Joined(Aval(word) & kHalfMask, Bval(word) & kHalfMask);
    }
    // Of halves without a bit above theirs.
    static constexpr Word Joined(std::uint32_t aval, std::uint32_t bval) noexcept {
        return static_cast<Word>(bval) << kHalfBits | aval;
    }

  private:
    using Number =
        std::conditional_t<kHalfBytes == 1, std::uint16_t,
                           std::conditional_t<kHalfBytes == 2, std::uint32_t, std::uint64_t>>;

    template <class Bytes>
    static Bytes LoadBytes(const std::uint8_t* from) noexcept {
        Bytes bytes;
        std::memcpy(&bytes, from, sizeof bytes);
        return bytes;
    }
    template <class Bytes>
    static void StoreBytes(std::uint8_t* to, Word packed) noexcept {
        const auto bytes = static_cast<Bytes>(packed);
        std::memcpy(to, &bytes, sizeof bytes);
    }
};

static_assert(PackedWord<3>::Packed(MakeWord(0xAA123456, 0xBB789ABC)) == 0x789ABC123456);
static_assert(PackedWord<3>::Unpacked(0x789ABC123456) == MakeWord(0x123456, 0x789ABC));
static_assert(PackedWord<4>::Unpacked(0x789ABCDE12345678) == 0x789ABCDE12345678);

// Calls step with the PackedWord of a width of 1 to 32; any other width gives `otherwise`.
template <class Step, class Returned>
inline Returned WithPackedWord(int memoryWidth, Returned otherwise, Step step) noexcept {
    switch ((static_cast<unsigned>(memoryWidth) + 7U) >> 3) {
        case 1:
            return step(PackedWord<1>{});
        case 2:
            return step(PackedWord<2>{});
        case 3:
            return step(PackedWord<3>{});
        case 4:
            return step(PackedWord<4>{});
        default:
            return otherwise;
    }
}

// What an unpacked top word holds above the memory word's width, `spareBits` below 32 of them.
template <class Extend>
constexpr Word ExtendTop(Word top, unsigned spareBits) noexcept {
    const auto extended = [spareBits](std::uint32_t half) {
        const std::uint32_t high = half << spareBits;
        return Extend::kIsSigned
                   ? static_cast<std::uint32_t>(static_cast<std::int32_t>(high) >> spareBits)
                   : high >> spareBits;
    };
    return MakeWord(extended(Aval(top)), extended(Bval(top)));
}

static_assert(ExtendTop<SignExtend>(MakeWord(0x3FF, 0x1FF), 22) == MakeWord(0xFFFFFFFF, 0x1FF));
static_assert(ExtendTop<ZeroExtend>(MakeWord(0x7FF, 0xFFFFFFFF), 22) == MakeWord(0x3FF, 0x3FF));

// The number of bits of the top word above a memory word's width.
constexpr unsigned SpareBits(int memoryWidth) noexcept {
    return (0U - static_cast<unsigned>(memoryWidth)) % kWordBits;
}

// A memory word of 1 to 32 bits as its bytes hold it, bits above the width included.
inline Word LoadNarrow(int memoryWidth, const std::uint8_t* memory) noexcept {
    return WithPackedWord(memoryWidth, Word{0},
                          [memory](auto packed) { return packed.Unpacked(packed.Load(memory)); });
}

// result = the memory word, extended above its width. Nothing is written where either width is
// below 1.
template <class Extend>
void UnpackWide(Result result, int memoryWidth, const std::uint8_t* memory,
                unsigned spareBits) noexcept;

template <class Extend>
inline void Unpack(Result result, int memoryWidth, const std::uint8_t* memory,
                   unsigned spareBits) noexcept {
    if (AreOneWord(result.width, memoryWidth)) {
        StoreWord(result.words, ExtendTop<Extend>(LoadNarrow(memoryWidth, memory), spareBits));
        return;
    }
    UnpackWide<Extend>(result, memoryWidth, memory, spareBits);
}

// The memory word = value. Returns whether a byte changed, which has a meaning under
// OverwriteAndCompare only; so do the writes of fields below.
template <class Policy>
bool PackWide(int memoryWidth, std::uint8_t* memory, const VectorWord* value) noexcept;

template <class Policy>
inline bool Pack(int memoryWidth, std::uint8_t* memory, const VectorWord* value) noexcept {
    if (!AreOneWord(memoryWidth)) return PackWide<Policy>(memoryWidth, memory, value);
    return WithPackedWord(memoryWidth, false, [memory, value](auto packed) {
        const Word old = packed.Load(memory);
        const Word bytes = packed.Packed(LoadWord(value));
        packed.Store(memory, bytes);
        return bytes != old;
    });
}

void ReadWideMemoryField(VectorWord* result, int memoryWidth, const std::uint8_t* memory, int index,
                         int width) noexcept;

// result = the `width` bits of the memory word from bit `index` upward, clean above the width, with
// X for the bits that the memory word does not have. The register holds the memory word afterwards;
// so it does after AssignMemoryField.
inline void ReadMemoryField(VectorWord* result, int memoryWidth, const std::uint8_t* memory,
                            int index, int width) noexcept {
    if (AreOneWord(memoryWidth) && LiesInside(memoryWidth, index, width)) {
        const Word word =
            ExtendTop<ZeroExtend>(LoadNarrow(memoryWidth, memory), SpareBits(memoryWidth));
        StoreWord(tarn_VectorRegister, word);
        // What the shift carries from bval into aval lies above the mask.
        StoreWord(result, (word >> index) & InBothHalves(LowMask(width)));
        return;
    }
    ReadWideMemoryField(result, memoryWidth, memory, index, width);
}

// The bits of the memory word from bit `index` upward become the `width` bits of value, as far as
// the memory word has them; its spare bits become 0. A field wholly outside writes nothing.
template <class Policy>
bool AssignMemoryField(int memoryWidth, std::uint8_t* memory, const VectorWord* value, int index,
                       int width) noexcept;

bool AssignNarrowFieldFromBelow(int memoryWidth, std::uint8_t* memory, const VectorWord* value,
                                int index, int width) noexcept;

// The same for a memory word of up to 32 bits, without the register. The answer costs so little
// that it is given under any policy.
inline bool AssignNarrowField(int memoryWidth, std::uint8_t* memory, const VectorWord* value,
                              int index, int width) noexcept {
    if (index < 0 || index >= memoryWidth) {
        return AssignNarrowFieldFromBelow(memoryWidth, memory, value, index, width);
    }
    const int inside = std::min(width, memoryWidth - index);
    if (inside < 1) return false;
    const unsigned offset = static_cast<unsigned>(index) % kWordBits;
    const std::uint32_t field = LowMask(inside) << offset;
    const std::uint32_t kept = LowMask(memoryWidth) & ~field;
    const std::uint32_t aval = (value->aval << offset) & field;
    const std::uint32_t bval = (value->bval << offset) & field;
    return WithPackedWord(memoryWidth, false, [=](auto packed) {
        const Word old = packed.Load(memory);
        const Word bytes = (old & packed.Joined(kept, kept)) | packed.Joined(aval, bval);
        packed.Store(memory, bytes);
        return bytes != old;
    });
}

}  // namespace tarn

#endif  // TARN_SELECT_MEMORY_WORD_H
