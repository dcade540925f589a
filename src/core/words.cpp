#include "core/words.h"

#include "core/instruction_set.h"

namespace tarn {
namespace {

struct FillKernel {
    TARN_KERNEL static void Run(VectorWord* to, std::size_t count, Word word) noexcept {
        for (std::size_t i = 0; i < count; ++i) {
            StoreWord(to + i, word);
        }
    }
};

}  // namespace

void FillLongRun(VectorWord* to, std::size_t count, Word word) noexcept {
    // The C library knows the fastest way to repeat a byte. Only known ones and Z are no such word.
    const Word byte = word & 0xFF;
    if (word == byte * 0x0101010101010101) {
        std::memset(to, static_cast<int>(byte), count * sizeof(VectorWord));
        return;
    }
    RunKernel<FillKernel>(to, count, word);
}

}  // namespace tarn
