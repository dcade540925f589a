#include "shift/shift.h"

#include <algorithm>

#include "core/words.h"

namespace tarn {
namespace {

// Two words as the machine numbers of their avals and their bvals.
template <class Half>
struct HalfPair {
    Half aval;
    Half bval;
};

template <class Half>
inline HalfPair<Half> PairHalves(Word low, Word high) noexcept {
    return {static_cast<Half>(high << 32 | (low & kValueBits)),
            static_cast<Half>((high & kUnknownBits) | low >> 32)};
}

template <class Half>
inline void StoreHalves(Result result, Half aval, Half bval) noexcept {
    const auto a = static_cast<std::uint64_t>(aval), b = static_cast<std::uint64_t>(bval);
    StoreWord(result.words, (a & kValueBits) | b << 32);
    if (result.width > 32) StoreWord(result.words + 1, a >> 32 | (b & kUnknownBits));
}

// The general cases stay out of line, so that two words need no frame.
[[gnu::noinline]] void ShiftLeftLong(Result result, const VectorWord* source,
                                     unsigned amount) noexcept {
    if (result.width < 1) return;
    const std::size_t count = result.Count();
    if (amount >= static_cast<unsigned>(result.width)) {
        FillWords(result.words, count, 0);
        return;
    }
    const std::size_t skipped = amount / 32;
    const unsigned bits = amount % 32;
    VectorWord* const lowest = result.words + skipped;
    if (bits == 0) {
        CopyWordsDown(lowest, source, count - skipped);
    } else {
        FunnelDown<Overwrite>(lowest + 1, source, count - skipped - 1, 32 - bits);
        StoreWord(lowest, ShiftWordUp(LoadWord(source), bits));
    }
    FillWords(result.words, skipped, 0);
}

template <class Extend>
[[gnu::noinline]] void ShiftRightLong(Result result, Operand source, unsigned amount) noexcept {
    if (result.width < 1) return;
    const Word beyond = ExtensionWord<Extend>(source);
    const std::size_t count = result.Count();
    if (source.width < 1 || amount >= static_cast<unsigned>(source.width)) {
        FillWords(result.words, count, beyond);
        return;
    }
    const std::size_t skipped = amount / 32;
    const unsigned bits = amount % 32;
    const VectorWord* const from = source.words + skipped;
    const std::size_t available = source.Count() - skipped;
    std::size_t moved;
    if (bits == 0) {
        moved = std::min(available, count);
        CopyWords(result.words, from, moved);
    } else {
        // The source's top word is joined with what lies beyond it.
        moved = std::min(available - 1, count);
        FunnelUp<Overwrite>(result.words, from, moved, bits);
        if (moved < count) {
            StoreWord(result.words + moved, JoinWords(LoadWord(from + moved), beyond, bits));
            ++moved;
        }
    }
    FillWords(result.words + moved, count - moved, beyond);
}

}  // namespace

void ShiftLeftWide(Result result, const VectorWord* source, unsigned amount) noexcept {
    if (AreWithin<64>(result.width) && amount < static_cast<unsigned>(result.width)) {
        const auto pair = PairHalves<std::uint64_t>(LoadWord(source), LoadWord(source + 1));
        StoreHalves(result, pair.aval << amount, pair.bval << amount);
        return;
    }
    ShiftLeftLong(result, source, amount);
}

template <class Extend>
void ShiftRightWide(Result result, Operand source, unsigned amount) noexcept {
    if (AreWithin<64>(result.width, source.width) && amount < static_cast<unsigned>(source.width)) {
        using Half = std::conditional_t<Extend::kIsSigned, std::int64_t, std::uint64_t>;
        const Word low = LoadWord(source.words);
        const Word high = source.width > 32 ? LoadWord(source.words + 1) : Extend::Beyond(low);
        const auto pair = PairHalves<Half>(low, high);
        StoreHalves(result, pair.aval >> amount, pair.bval >> amount);
        return;
    }
    ShiftRightLong<Extend>(result, source, amount);
}

template void ShiftRightWide<SignExtend>(Result, Operand, unsigned) noexcept;
template void ShiftRightWide<ZeroExtend>(Result, Operand, unsigned) noexcept;

}  // namespace tarn
