#include "select/partselect.h"

#include <tarnlib/select.h>

#include "core/contract.h"
#include "core/funnel.h"
#include "core/words.h"

namespace tarn {

void ReadField(VectorWord* result, const VectorWord* source, unsigned offset, int width) noexcept {
    if (width < 1) return;
    const std::size_t last = WordCount(width) - 1;
    const Word topMask = InBothHalves(LowMask(width));
    if (offset == 0) {
        const Word top = LoadWord(source + last) & topMask;
        CopyWords(result, source, last);
        StoreWord(result + last, top);
        return;
    }
    FunnelUp<Overwrite>(result, source, last, offset);
    // The top result word needs the next source word only where the field reaches into it.
    const unsigned topBits = (static_cast<unsigned>(width) - 1U) % 32U + 1U;
    const Word high = offset + topBits > 32U ? LoadWord(source + last + 1) : Word{0};
    StoreWord(result + last, JoinWords(LoadWord(source + last), high, offset) & topMask);
}

}  // namespace tarn

using namespace tarn;

extern "C" {

void tarn_Partselect(VectorWord* result, const VectorWord* source, unsigned offset,
                     int width) noexcept {
    TARN_ARGUMENTS(result, source, offset, width);
    TARN_REQUIRE(width >= 1);
    TARN_REQUIRE(offset < 32U);
    TARN_REQUIRE(IsVector(width, result) && IsVector(width, source));
    TARN_REQUIRE(AreSameOrApart(width, result, width, source));
    ReadField(result, source, offset, width);
}

}  // extern "C"
