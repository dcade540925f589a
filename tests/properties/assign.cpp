// Fields of bits written into vectors, with and without the flag of a change.
#include <tarnlib/assign.h>

#include "fields.h"

namespace tarn::test {
namespace {

struct InnerWrite : Write {};
struct IndexedWrite : Write {};

// The value begins below the word at the target where it is the vector that the field lies in.
Case CaseOf(auto* function, auto model, const InnerWrite& drawn) {
    const auto& [target, index, width, value] = drawn;
    const Vec written = model(target, value, index, width);
    const std::size_t word = static_cast<std::size_t>(index) / 32 * sizeof(VectorWord);
    return WithFlag(
        function,
        Case(function, At(Target(target, written), word), Operand(value), index % 32, width),
        written != target);
}
Case CaseOf(auto* function, auto model, const IndexedWrite& drawn) {
    const auto& [target, index, width, value] = drawn;
    const Vec written = model(target, value, index, width);
    return WithFlag(
        function,
        Case(function, target.width, Target(target, written), Operand(value), index, width),
        written != target);
}

InnerWrite DrawInner(Gen& gen) {
    return {DrawInnerWrite(gen, gen.Width())};
}

// A field of many words in which one bit changes.
IndexedWrite DrawIndexed(Gen& gen) {
    return {DrawWrite(gen, gen.OneIn(8) ? gen.Between(500, 1000) : DrawDefinedWidth(gen))};
}

}  // namespace

Family AssignFamily() {
    return {"Assign",
            {
                TARN_ROW(tarn_PartselectAssign, WithField, DrawInner),
                TARN_ROW(tarn_NotIdenticalPartselectAssign, WithField, DrawInner),
                TARN_ROW(tarn_IndexedPartselectAssign, WithField, DrawIndexed),
                TARN_ROW(tarn_NotIdenticalIndexedPartselectAssign, WithField, DrawIndexed),
            },
            nullptr};
}

}  // namespace tarn::test
