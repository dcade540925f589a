#include "core/words.h"

namespace tarn {

void FillLongRun(VectorWord* to, std::size_t count, Word word) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        StoreWord(to + i, word);
    }
}

}  // namespace tarn
