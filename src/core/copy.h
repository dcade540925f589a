// A vector brought to another width.
#ifndef TARN_CORE_COPY_H
#define TARN_CORE_COPY_H

#include "core/words.h"

namespace tarn {

template <class Extend>
void CopyWide(Result result, Operand source) noexcept {
    if (result.width <= source.width) {
        CopyWords(result.words, source.words, result.Count());
        return;
    }
    const std::size_t count = result.Count();
    const std::size_t shared = source.Count();
    const Word beyond = ExtensionWord<Extend>(source);
    CopyWords(result.words, source.words, shared);
    FillWords(result.words + shared, count - shared, beyond);
}

template <class Extend>
inline void Copy(Result result, Operand source) noexcept {
    if (AreOneWord(result.width, source.width)) {
        StoreWord(result.words, LoadWord(source.words));
        return;
    }
    CopyWide<Extend>(result, source);
}

// A value of one or two words and what follows it. Word 0 is written whatever the width.
inline void StoreOneWord(Result result, Word low, Word beyond) noexcept {
    StoreWord(result.words, low);
    if (result.width > 32) {
        FillWords(result.words + 1, result.Count() - 1, beyond);
    }
}

inline void StoreTwoWords(Result result, std::uint64_t value, Word beyond) noexcept {
    StoreWord(result.words, MakeWord(static_cast<std::uint32_t>(value), 0));
    if (result.width > 32) {
        StoreWord(result.words + 1, MakeWord(static_cast<std::uint32_t>(value >> 32), 0));
        FillWords(result.words + 2, result.Count() - 2, beyond);
    }
}

// The known word that stands above a signed or an unsigned machine value.
template <class Integer>
constexpr Word BeyondInteger(Integer value) noexcept {
    return value < Integer{0} ? kValueBits : Word{0};
}

}  // namespace tarn

#endif  // TARN_CORE_COPY_H
