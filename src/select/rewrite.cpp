#include "select/rewrite.h"

#include "core/map_words.h"
#include "core/words.h"

namespace tarn {
namespace {

template <class Rule>
struct RewriteKernel {
    TARN_KERNEL static void Run(VectorWord* words, std::size_t count) noexcept {
        MapWords(words, count,
                 [words](std::size_t i) { return Rule::Rewritten(LoadWord(words + i)); });
    }
};

}  // namespace

template <class Rule>
void RewriteWide(Result v) noexcept {
    const std::size_t count = v.Count();
    if (count > kShortRun) {
        RunKernel<RewriteKernel<Rule>>(v.words, count);
        return;
    }
    // A constant bound and an early end make this straight code.
#pragma GCC unroll 4
    for (std::size_t i = 0; i < kShortRun; ++i) {
        if (i == count) break;
        StoreWord(v.words + i, Rule::Rewritten(LoadWord(v.words + i)));
    }
}

template void RewriteWide<ZeroToZ>(Result) noexcept;
template void RewriteWide<OneToZ>(Result) noexcept;
template void RewriteWide<UnknownToZero>(Result) noexcept;

}  // namespace tarn
