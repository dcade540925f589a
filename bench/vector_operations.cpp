// Copies, and vectors from machine values.
#include <tarnlib.h>

#include "families.h"
#include "ladders.h"

namespace tarn::bench {
namespace {

constexpr Contestant kInteger32 = WritesLimbs<LimbOfValue<kInteger>>("value");
constexpr Contestant kInteger64 = WritesLimbs<LimbOfValue<kLongInteger>>("value");

const Ladder kCopy =
    WithTail(kMove, {{128, 512, kMemcpy, kNoLimit}, {4096, kWidest, kMemcpy, 1.3}});

}  // namespace

std::vector<Operation> VectorOperations() {
    return {
        {"SignedCopy", kSigned, kWords<Unary<tarn_SignedCopy>>, kMemcpy, kCopy},
        {"UnsignedCopy", kUnsigned, kWords<Unary<tarn_UnsignedCopy>>, kMemcpy, kCopy},
        {"SignedConvert", kSigned, kWords<OfValue<tarn_SignedConvert, kInteger>>, kInteger32,
         kMove},
        {"UnsignedConvertLong", kUnsigned, kWords<OfValue<tarn_UnsignedConvertLong, kLongInteger>>,
         kInteger64, kMove},
    };
}

}  // namespace tarn::bench
