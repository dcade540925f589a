#include "core/words.h"

namespace tarn {

void FillLongRun(VectorWord* to, std::size_t count, Word word) noexcept {
    // The C library knows the fastest way to repeat a byte. Only known ones and Z are no such word.
    const Word byte = word & 0xFF;
    if (word == byte * 0x0101010101010101) {
        std::memset(to, static_cast<int>(byte), count * sizeof(VectorWord));
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        StoreWord(to + i, word);
    }
}

}  // namespace tarn
