// The bitwise operators: one rule for a word, and what is done with vectors of any widths.
#include <algorithm>
#include <utility>

#include <tarnlib/logic.h>

#include "core/contract.h"
#include "core/map_words.h"
#include "core/words.h"
#include "logic/bitwise_rules.h"

namespace tarn {
namespace {

template <auto kRule>
struct CombineKernel {
    TARN_KERNEL static void Run(VectorWord* to, const VectorWord* a, const VectorWord* b,
                                std::size_t count) noexcept {
        MapWords(to, count, [=](std::size_t i) { return kRule(LoadWord(a + i), LoadWord(b + i)); });
    }
};

// One operand's words beside the word that stands above the other's. Under ZeroExtend that is a
// constant, and the rule folds to what is left of it.
template <auto kRule, class Extend>
struct CombineBeyondKernel {
    TARN_KERNEL static void Run(VectorWord* to, const VectorWord* a, Word beyond,
                                std::size_t count) noexcept {
        const Word other = Extend::kIsSigned ? beyond : 0;
        MapWords(to, count, [=](std::size_t i) { return kRule(LoadWord(a + i), other); });
    }
};

template <auto kRule>
struct TransformKernel {
    TARN_KERNEL static void Run(VectorWord* to, const VectorWord* a, std::size_t count) noexcept {
        MapWords(to, count, [=](std::size_t i) { return kRule(LoadWord(a + i)); });
    }
};

// Every rule is symmetric, so the operand with more words may come first.
template <auto kRule, class Extend>
[[gnu::noinline]] void CombineWide(Result result, Operand a, Operand b) noexcept {
    if (a.width < b.width) std::swap(a, b);
    // The result may lie on top of an operand, so their top words are read first.
    const Word aBeyond = ExtensionWord<Extend>(a), bBeyond = ExtensionWord<Extend>(b);
    const std::size_t count = result.Count();
    const std::size_t aCount = std::min(a.Count(), count);
    const std::size_t bCount = std::min(b.Count(), count);
    RunKernel<CombineKernel<kRule>>(result.words, a.words, b.words, bCount);
    if constexpr (!Extend::kIsSigned && kRule(kRows, 0) == kRule(0, 0)) {
        // Beside zeros the result is the same for every value, so the longer operand is not read.
        FillWords(result.words + bCount, count - bCount, kRule(0, 0));
    } else {
        RunKernel<CombineBeyondKernel<kRule, Extend>>(result.words + bCount, a.words + bCount,
                                                      bBeyond, aCount - bCount);
        FillWords(result.words + aCount, count - aCount, kRule(aBeyond, bBeyond));
    }
}

template <auto kRule, class Extend>
[[gnu::noinline]] void TransformWide(Result result, Operand a) noexcept {
    const Word beyond = ExtensionWord<Extend>(a);
    const std::size_t count = result.Count();
    const std::size_t aCount = std::min(a.Count(), count);
    RunKernel<TransformKernel<kRule>>(result.words, a.words, aCount);
    FillWords(result.words + aCount, count - aCount, kRule(beyond));
}

inline void StoreWords(Result result, Word first, Word second) noexcept {
    StoreWord(result.words, first);
    if (result.width > 32) StoreWord(result.words + 1, second);
}

// result = kRule(a, b) word by word.
template <auto kRule, class Extend>
inline void Combine(Result result, Operand a, Operand b) noexcept {
    if (AreOneWord(result.width, a.width, b.width)) [[likely]] {
        StoreWord(result.words, kRule(LoadWord(a.words), LoadWord(b.words)));
        return;
    }
    if (AreWithin<64>(result.width, a.width, b.width)) {
        const Word aFirst = LoadWord(a.words), bFirst = LoadWord(b.words);
        const Word second = kRule(SecondWord<Extend>(a, aFirst), SecondWord<Extend>(b, bFirst));
        StoreWords(result, kRule(aFirst, bFirst), second);
        return;
    }
    CombineWide<kRule, Extend>(result, a, b);
}

// result = kRule(a) word by word.
template <auto kRule, class Extend>
inline void Transform(Result result, Operand a) noexcept {
    if (AreOneWord(result.width, a.width)) [[likely]] {
        StoreWord(result.words, kRule(LoadWord(a.words)));
        return;
    }
    if (AreWithin<64>(result.width, a.width)) {
        const Word first = LoadWord(a.words);
        StoreWords(result, kRule(first), kRule(SecondWord<Extend>(a, first)));
        return;
    }
    TransformWide<kRule, Extend>(result, a);
}

}  // namespace
}  // namespace tarn

using namespace tarn;

extern "C" {

void tarn_SignedBitwiseAND(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                           int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<AndWords, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseAND(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                             int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<AndWords, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseNAND(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                            int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<NandWords, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseNAND(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                              int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<NandWords, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                          int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<OrWords, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                            int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<OrWords, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseNOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                           int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<NorWords, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseNOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                             int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<NorWords, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseXOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                           int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<XorWords, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseXOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                             int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<XorWords, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseXNOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                            int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<XnorWords, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseXNOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                              int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<XnorWords, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedConditionalMix(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                               int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<MixWords, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedConditionalMix(int resultWidth, VectorWord* result, int aWidth,
                                 const VectorWord* a, int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<MixWords, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseBUF(int resultWidth, VectorWord* result, int aWidth,
                           const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Transform<BufferWord, SignExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_UnsignedBitwiseBUF(int resultWidth, VectorWord* result, int aWidth,
                             const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Transform<BufferWord, ZeroExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_SignedBitwiseNOT(int resultWidth, VectorWord* result, int aWidth,
                           const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Transform<InvertWord, SignExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_UnsignedBitwiseNOT(int resultWidth, VectorWord* result, int aWidth,
                             const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Transform<InvertWord, ZeroExtend>({resultWidth, result}, {aWidth, a});
}

}  // extern "C"
