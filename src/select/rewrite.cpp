#include "select/rewrite.h"

#include "core/instruction_set.h"

namespace tarn {
namespace {

template <class Rule>
struct RewriteKernel {
    TARN_KERNEL static void Run(VectorWord* words, std::size_t count) noexcept {
        for (std::size_t i = 0; i < count; ++i) {
            StoreWord(words + i, Rule::Rewritten(LoadWord(words + i)));
        }
    }
};

}  // namespace

template <class Rule>
void RewriteWide(Result v) noexcept {
    RunKernel<RewriteKernel<Rule>>(v.words, v.Count());
}

template void RewriteWide<ZeroToZ>(Result) noexcept;
template void RewriteWide<OneToZ>(Result) noexcept;
template void RewriteWide<UnknownToZero>(Result) noexcept;

}  // namespace tarn
