#include "select/rewrite.h"

#include "core/words.h"

namespace tarn {

template <class Rule>
void RewriteWide(Result v) noexcept {
    const std::size_t count = v.Count();
    if (count > kShortRun) {
        RunKernel<MapKernel<Rule, OwnWords>>(v.words, count, OwnWords{v.words});
        return;
    }
    // A constant bound and an early end make this straight code.
#pragma GCC unroll 4
    for (std::size_t i = 0; i < kShortRun; ++i) {
        if (i == count) break;
        StoreWord(v.words + i, ApplyRule<Rule>(LoadWord(v.words + i)));
    }
}

template void RewriteWide<ZeroToZ>(Result) noexcept;
template void RewriteWide<OneToZ>(Result) noexcept;
template void RewriteWide<UnknownToZero>(Result) noexcept;

}  // namespace tarn
