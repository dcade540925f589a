// Products of vectors.
#ifndef TARN_ARITH_PRODUCT_H
#define TARN_ARITH_PRODUCT_H

#include "arith/natural/limb.h"
#include "arith/pack.h"
#include "core/words.h"

namespace tarn {

// The low `limit` (at least 1) limbs of the product of two magnitudes, in product, which has room
// for a.count + b.count limbs and at least limit, and overlaps neither operand. Returns their count
// without zeros at the top.
std::size_t LowProduct(Limb* product, const Whole& a, const Whole& b, std::size_t limit,
                       Limb* scratch) noexcept;
// Enough for any counts up to these.
std::size_t LowProductScratch(std::size_t aCount, std::size_t bCount, std::size_t limit) noexcept;

template <class Extend>
void MultiplyWide(Result result, Operand a, Operand b) noexcept;

// result = a * b.
template <class Extend>
inline void Multiply(Result result, Operand a, Operand b) noexcept {
    if (AreOneWord(result.width, a.width, b.width)) {
        const Word aWord = LoadWord(a.words);
        const Word bWord = LoadWord(b.words);
        const Word product = (aWord * bWord) & kValueBits;
        StoreWord(result.words, IsUnknown(aWord | bWord) ? kAllX : product);
        return;
    }
    MultiplyWide<Extend>(result, a, b);
}

}  // namespace tarn

#endif  // TARN_ARITH_PRODUCT_H
