// Exports: equality, the matches of case items, relations.
#include <tarnlib/compare.h>

#include "compare/equality.h"
#include "compare/relation.h"
#include "core/contract.h"

#define TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b) \
    TARN_ARGUMENTS(aWidth, a, bWidth, b);           \
    TARN_REQUIRE_AT_LEAST_1(aWidth);                \
    TARN_REQUIRE_AT_LEAST_1(bWidth);                \
    TARN_REQUIRE_VECTOR(aWidth, a);                 \
    TARN_REQUIRE_VECTOR(bWidth, b)

using namespace tarn;

extern "C" {

LogicCode tarn_SignedEq(int aWidth, const VectorWord* a, int bWidth, const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<LogicalRule, SignExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_UnsignedEq(int aWidth, const VectorWord* a, int bWidth,
                          const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<LogicalRule, ZeroExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_SignedNEq(int aWidth, const VectorWord* a, int bWidth,
                         const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Mismatch<LogicalRule, SignExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_UnsignedNEq(int aWidth, const VectorWord* a, int bWidth,
                           const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Mismatch<LogicalRule, ZeroExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_SignedCaseEq(int aWidth, const VectorWord* a, int bWidth,
                            const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<CaseRule, SignExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_UnsignedCaseEq(int aWidth, const VectorWord* a, int bWidth,
                              const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<CaseRule, ZeroExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_SignedCaseNEq(int aWidth, const VectorWord* a, int bWidth,
                             const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Mismatch<CaseRule, SignExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_UnsignedCaseNEq(int aWidth, const VectorWord* a, int bWidth,
                               const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Mismatch<CaseRule, ZeroExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_SignedCaseXEq(int aWidth, const VectorWord* a, int bWidth,
                             const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<CaseXRule, SignExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_UnsignedCaseXEq(int aWidth, const VectorWord* a, int bWidth,
                               const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<CaseXRule, ZeroExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_SignedCaseZEq(int aWidth, const VectorWord* a, int bWidth,
                             const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<CaseZRule, SignExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_UnsignedCaseZEq(int aWidth, const VectorWord* a, int bWidth,
                               const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<CaseZRule, ZeroExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_SignedWildEq(int aWidth, const VectorWord* a, int bWidth,
                            const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<WildcardRule, SignExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_UnsignedWildEq(int aWidth, const VectorWord* a, int bWidth,
                              const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Match<WildcardRule, ZeroExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_SignedWildNEq(int aWidth, const VectorWord* a, int bWidth,
                             const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Mismatch<WildcardRule, SignExtend>({aWidth, a}, {bWidth, b});
}

LogicCode tarn_UnsignedWildNEq(int aWidth, const VectorWord* a, int bWidth,
                               const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Mismatch<WildcardRule, ZeroExtend>({aWidth, a}, {bWidth, b});
}

RelationCode tarn_SignedRelation(int aWidth, const VectorWord* a, int bWidth,
                                 const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Relate<SignExtend>({aWidth, a}, {bWidth, b});
}

RelationCode tarn_UnsignedRelation(int aWidth, const VectorWord* a, int bWidth,
                                   const VectorWord* b) noexcept {
    TARN_REQUIRE_COMPARED(aWidth, a, bWidth, b);
    return Relate<ZeroExtend>({aWidth, a}, {bWidth, b});
}

}  // extern "C"
