// Equality and relation.
#include <tarnlib/compare.h>

#include "families.h"
#include "ladders.h"
#include "systemc_peer.h"

namespace tarn::bench {
namespace {

template <auto kExport>
constexpr Contestant kCompared = kCode<Compare<kExport>>;

// Where the lowest words already differ, the width must not matter.
const Ladder kAtOnce = {{64, kWidest, kFloor, 3.5}};

}  // namespace

std::vector<Operation> CompareOperations() {
    // Up to 128 bits the peer, behind a call with one argument inside this program, takes little
    // more or even less time than the floor; the ratio is printed, but is no limit.
    const Ladder againstSystemc = WithTail(WithTail(kReadAll, {{1, 128, SystemcEqual(), kNoLimit}}),
                                           NoSlowerThan(SystemcEqual(), 512));
    return {
        {"SignedEq", kSignedEqual, kCompared<tarn_SignedEq>, kRightCode<1>, againstSystemc},
        {"UnsignedEq", kEqual, kCompared<tarn_UnsignedEq>, kRightCode<1>, againstSystemc},
        {"UnsignedEqAtOnce", kUnsigned, kCompared<tarn_UnsignedEq>, kRightCode<0>, kAtOnce},
        {"UnsignedNEq", kEqual, kCompared<tarn_UnsignedNEq>, kRightCode<0>, kReadAll},
        {"UnsignedCaseEq", kEqualFourState, kCompared<tarn_UnsignedCaseEq>, kRightCode<1>,
         againstSystemc},
        {"UnsignedCaseXEq", kEqualFourState, kCompared<tarn_UnsignedCaseXEq>, kRightCode<1>,
         kReadAll},
        {"UnsignedCaseZEq", kEqualFourState, kCompared<tarn_UnsignedCaseZEq>, kRightCode<1>,
         kReadAll},
        {"SignedWildEq", kSignedEqual, kCompared<tarn_SignedWildEq>, kRightCode<1>, kReadAll},
        {"SignedRelation", kSignedEqual, kCompared<tarn_SignedRelation>, kRightCode<-1>, kReadAll},
        {"UnsignedRelation", kEqual, kCompared<tarn_UnsignedRelation>, kRightCode<-1>, kReadAll},
    };
}

}  // namespace tarn::bench
