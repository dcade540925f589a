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

// Beside zeros some rules give the same for every value, so that none need be read.
template <class Rule>
inline constexpr bool kIsFixedByZero = ApplyRule<Rule>(kRows, 0) == ApplyRule<Rule>(0, 0);

// to[i] = Rule::Of(a[i], beyond) for the words of a above b's, where `beyond` stands in for b's.
// Under ZeroExtend that is a constant, and the rule folds to what it leaves of it.
template <class Rule, class Extend>
inline void CombineBeyond(VectorWord* to, const VectorWord* a, std::size_t count,
                          Word beyond) noexcept {
    if (count == 0) return;
    if constexpr (Extend::kIsSigned) {
        RunKernel<MapKernel<Rule, OwnWords, RepeatedWord>>(to, count, OwnWords{a},
                                                           RepeatedWord{beyond});
    } else if constexpr (kIsFixedByZero<Rule>) {
        FillWords(to, count, ApplyRule<Rule>(0, 0));
    } else {
        RunKernel<MapKernel<Rule, OwnWords, ZeroWord>>(to, count, OwnWords{a}, ZeroWord{});
    }
}

template <class Rule, class Extend>
[[gnu::noinline]] void CombineWide(Result result, Operand a, Operand b) noexcept {
    // Every rule is symmetric, so the wider operand may come first.
    if (a.width < b.width) std::swap(a, b);
    // The result may lie on top of an operand, so their top words are read first.
    const Word aBeyond = ExtensionWord<Extend>(a), bBeyond = ExtensionWord<Extend>(b);
    const std::size_t count = result.Count();
    const std::size_t aCount = std::min(a.Count(), count);
    const std::size_t bCount = std::min(b.Count(), count);
    RunKernel<MapKernel<Rule, OwnWords, OwnWords>>(result.words, bCount, OwnWords{a.words},
                                                   OwnWords{b.words});
    CombineBeyond<Rule, Extend>(result.words + bCount, a.words + bCount, aCount - bCount, bBeyond);
    FillWords(result.words + aCount, count - aCount, ApplyRule<Rule>(aBeyond, bBeyond));
}

template <class Rule, class Extend>
[[gnu::noinline]] void TransformWide(Result result, Operand a) noexcept {
    const Word beyond = ExtensionWord<Extend>(a);
    const std::size_t count = result.Count();
    const std::size_t aCount = std::min(a.Count(), count);
    RunKernel<MapKernel<Rule, OwnWords>>(result.words, aCount, OwnWords{a.words});
    FillWords(result.words + aCount, count - aCount, ApplyRule<Rule>(beyond));
}

inline void StoreWords(Result result, Word first, Word second) noexcept {
    StoreWord(result.words, first);
    if (result.width > 32) StoreWord(result.words + 1, second);
}

// result = Rule::Of(a, b) word by word.
template <class Rule, class Extend>
inline void Combine(Result result, Operand a, Operand b) noexcept {
    if (AreOneWord(result.width, a.width, b.width)) [[likely]] {
        StoreWord(result.words, ApplyRule<Rule>(LoadWord(a.words), LoadWord(b.words)));
        return;
    }
    if (AreWithin<64>(result.width, a.width, b.width)) {
        const Word aFirst = LoadWord(a.words), bFirst = LoadWord(b.words);
        const Word second =
            ApplyRule<Rule>(SecondWord<Extend>(a, aFirst), SecondWord<Extend>(b, bFirst));
        StoreWords(result, ApplyRule<Rule>(aFirst, bFirst), second);
        return;
    }
    CombineWide<Rule, Extend>(result, a, b);
}

// result = Rule::Of(a) word by word.
template <class Rule, class Extend>
inline void Transform(Result result, Operand a) noexcept {
    if (AreOneWord(result.width, a.width)) [[likely]] {
        StoreWord(result.words, ApplyRule<Rule>(LoadWord(a.words)));
        return;
    }
    if (AreWithin<64>(result.width, a.width)) {
        const Word first = LoadWord(a.words);
        StoreWords(result, ApplyRule<Rule>(first), ApplyRule<Rule>(SecondWord<Extend>(a, first)));
        return;
    }
    TransformWide<Rule, Extend>(result, a);
}

}  // namespace
}  // namespace tarn

using namespace tarn;

extern "C" {

void tarn_SignedBitwiseAND(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                           int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<AndRule, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseAND(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                             int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<AndRule, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseNAND(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                            int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<NandRule, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseNAND(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                              int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<NandRule, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                          int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<OrRule, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                            int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<OrRule, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseNOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                           int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<NorRule, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseNOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                             int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<NorRule, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseXOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                           int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<XorRule, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseXOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                             int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<XorRule, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseXNOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                            int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<XnorRule, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedBitwiseXNOR(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                              int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<XnorRule, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedConditionalMix(int resultWidth, VectorWord* result, int aWidth, const VectorWord* a,
                               int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<MixRule, SignExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_UnsignedConditionalMix(int resultWidth, VectorWord* result, int aWidth,
                                 const VectorWord* a, int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_TWO_OPERANDS(resultWidth, result, aWidth, a, bWidth, b);
    Combine<MixRule, ZeroExtend>({resultWidth, result}, {aWidth, a}, {bWidth, b});
}

void tarn_SignedBitwiseBUF(int resultWidth, VectorWord* result, int aWidth,
                           const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Transform<BufferRule, SignExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_UnsignedBitwiseBUF(int resultWidth, VectorWord* result, int aWidth,
                             const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Transform<BufferRule, ZeroExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_SignedBitwiseNOT(int resultWidth, VectorWord* result, int aWidth,
                           const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Transform<InvertRule, SignExtend>({resultWidth, result}, {aWidth, a});
}

void tarn_UnsignedBitwiseNOT(int resultWidth, VectorWord* result, int aWidth,
                             const VectorWord* a) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, aWidth, a);
    Transform<InvertRule, ZeroExtend>({resultWidth, result}, {aWidth, a});
}

}  // extern "C"
