// Fields of bits written into vectors, with and without the flag of a change.
#include <tarnlib/assign.h>

#include "fields.h"

namespace tarn::test {
namespace {

// The value begins below the word at the target where it is the vector that the field lies in.
Property Inner(const char* name, auto* function) {
    return {name, [=](Gen& gen) {
                const auto [target, index, width, value] = DrawInnerWrite(gen, gen.Width());
                const Vec written = WithField(target, value, index, width);
                const std::size_t word = static_cast<std::size_t>(index) / 32 * sizeof(VectorWord);
                const Party place = At(Target(target, written), word);
                return WithFlag(function, Case(function, place, Operand(value), index % 32, width),
                                written != target);
            }};
}

Property Indexed(const char* name, auto* function) {
    return {
        name, [=](Gen& gen) {
            const int targetWidth = gen.OneIn(8) ? gen.Between(500, 1000) : DrawDefinedWidth(gen);
            const auto [target, index, width, value] = DrawWrite(gen, targetWidth);
            const Vec written = WithField(target, value, index, width);
            return WithFlag(
                function,
                Case(function, target.width, Target(target, written), Operand(value), index, width),
                written != target);
        }};
}

}  // namespace

Family AssignFamily() {
    return {"Assign",
            {
                TARN_ROW_OF(Inner, tarn_PartselectAssign),
                TARN_ROW_OF(Inner, tarn_NotIdenticalPartselectAssign),
                TARN_ROW_OF(Indexed, tarn_IndexedPartselectAssign),
                TARN_ROW_OF(Indexed, tarn_NotIdenticalIndexedPartselectAssign),
            },
            nullptr};
}

}  // namespace tarn::test
