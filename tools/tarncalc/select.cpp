#include "select.h"

#include <utility>

#include "diagnostic.h"

namespace tarncalc {

namespace {

/** The type and the place of a part between constant bounds. */
void SetBounds(Selection& selection, int left, int right, Place place) {
    const Range& bits = *selection.variable->GetShape().bits;
    selection.low = bits.PlaceOf(right);
    const std::int64_t width = bits.PlaceOf(left) - selection.low + 1;
    if (width < 1) {
        throw InputError(place, "the bounds of this part are the wrong way round");
    }
    CheckWidth(width, place);
    selection.type = {static_cast<int>(width), false};
}

/** The place of the lowest bit of an indexed part or of a single bit. */
std::int64_t LowOf(const Selection& selection, int index) {
    const Range& bits = *selection.variable->GetShape().bits;
    const int reach = selection.type.width - 1;
    const std::int64_t first = std::int64_t{index} - (selection.part == Part::kDown ? reach : 0);
    return bits.PlaceOf(bits.IsDescending() ? first : first + reach);
}

bool IsInside(const Field& field) {
    return field.low >= 0 && field.low + field.type.width <= field.variable->GetShape().Width();
}

/** Whether there is anything to read or write. */
bool Overlaps(const Field& field) {
    const bool isPart = !field.isWhole;
    const bool isOutside = isPart && (field.low >= field.variable->GetShape().Width() ||
                                      field.low + field.type.width <= 0);
    return field.exists && !isOutside;
}

constexpr int SpareBits(int width) {
    return -width & (kWordBits - 1);
}

void ReadMemory(const Field& field, Value& result) {
    const Shape& shape = field.variable->GetShape();
    const int width = shape.Width();
    const unsigned char* const word = field.variable->Word(field.element);
    const auto low = static_cast<int>(field.low);
    if (field.isWhole) {
        const auto copy =
            shape.isSigned ? tarn_SignedCopyMemoryValue : tarn_UnsignedCopyMemoryValue;
        copy(width, result.Words(), width, word, SpareBits(width));
    } else if (IsInside(field)) {
        tarn_MemoryWordPartselect(result.Words(), width, word, low, field.type.width);
    } else {
        tarn_MemoryWordIndexedPartselect(result.Words(), width, word, low, field.type.width);
    }
}

void ReadVector(const Field& field, Value& result) {
    const Value& source = field.variable->GetValue();
    const auto low = static_cast<int>(field.low);
    const int width = field.type.width;
    if (field.isWhole) {
        tarn_UnsignedCopy(width, result.Words(), width, source.Words());
    } else if (width == 1) {
        result = Value::OfCode(tarn_BitValue(source.Width(), source.Words(), low));
    } else if (IsInside(field)) {
        tarn_Partselect(result.Words(), source.Words() + low / kWordBits,
                        static_cast<unsigned>(low % kWordBits), width);
    } else {
        tarn_IndexedPartselect(result.Words(), source.Width(), source.Words(), low, width);
    }
}

void WriteMemory(const Field& field, const Value& value) {
    const int width = field.variable->GetShape().Width();
    unsigned char* const word = field.variable->Word(field.element);
    if (field.isWhole) {
        tarn_MemoryWordAssign(width, word, value.Words());
        return;
    }
    // The exports for words of one slice end in 1.
    const bool isShort = width <= kWordBits;
    const auto assignInside =
        isShort ? tarn_MemoryWordPartselectAssign1 : tarn_MemoryWordPartselectAssign;
    const auto assignAnywhere =
        isShort ? tarn_MemoryWordIndexedPartselectAssign1 : tarn_MemoryWordIndexedPartselectAssign;
    (IsInside(field) ? assignInside : assignAnywhere)(
        width, word, value.Words(), static_cast<int>(field.low), field.type.width);
}

void WriteVector(const Field& field, Value value) {
    Value& target = field.variable->GetValue();
    const auto low = static_cast<int>(field.low);
    if (field.isWhole) {
        target = std::move(value);
    } else if (IsInside(field)) {
        tarn_PartselectAssign(target.Words() + low / kWordBits, value.Words(),
                              static_cast<unsigned>(low % kWordBits), field.type.width);
    } else {
        tarn_IndexedPartselectAssign(target.Width(), target.Words(), value.Words(), low,
                                     field.type.width);
    }
    target.RestoreTopWord();
}

}  // namespace

Selection Select(const ReferenceNode& node, Place place, Scope& scope,
                 std::span<const int> constants) {
    Variable* const variable = scope.Find(node.name);
    if (variable == nullptr) throw InputError(place, InQuotes(node.name) + " is not declared");
    const Shape& shape = variable->GetShape();
    const bool hasBase = node.part == Part::kUp || node.part == Part::kDown;
    Selection selection{variable, node.part, shape.IsMemory(), hasBase, shape.GetType(), 0};
    const std::size_t expected = std::size_t{shape.IsMemory()} + std::size_t{hasBase};
    if (node.indexCount < expected) {
        throw InputError(place, InQuotes(node.name) + " is a memory: an index must choose a word");
    }
    if (node.indexCount == expected && node.part == Part::kNone) return selection;
    if (shape.isReal)
        throw InputError(place, InQuotes(node.name) + " is a real, which has no bits");
    if (!shape.bits) {
        throw InputError(place, InQuotes(node.name) + " is a single bit, which has no parts");
    }
    if (node.indexCount > expected) {
        if (node.part != Part::kNone || node.indexCount > expected + 1) {
            throw InputError(place, "a bit of " + InQuotes(node.name) + " has no parts");
        }
        selection.hasBit = true;
        selection.type = kBitType;
    } else if (hasBase) {
        const int width = constants[node.right];
        if (width < 1) throw InputError(place, "the width of a part must be at least 1");
        CheckWidth(width, place);
        selection.type = {width, false};
    } else {
        SetBounds(selection, constants[node.left], constants[node.right], place);
    }
    return selection;
}

Field Locate(const Selection& selection, std::span<Value> indices) {
    const bool isWhole = selection.part == Part::kNone && !selection.hasBit;
    Field field{selection.variable, isWhole, true, 0, selection.low, selection.type};
    if (selection.hasElement) {
        const Range& elements = *selection.variable->GetShape().elements;
        const std::optional<int> index = IntegerOf(indices.front());
        field.element = index ? elements.PlaceOf(*index) : -1;
        field.exists = field.element >= 0 && field.element < elements.Count();
    }
    if (selection.hasBit) {
        const std::optional<int> index = IntegerOf(indices.back());
        if (index) field.low = LowOf(selection, *index);
        field.exists = field.exists && index;
    }
    return field;
}

Value Read(const Field& field) {
    if (field.type.isReal) return Value(field.variable->GetValue().Real());
    Value result(field.type);
    if (!Overlaps(field)) {
        result.SetUnknown();
    } else if (field.variable->GetShape().IsMemory()) {
        ReadMemory(field, result);
    } else {
        ReadVector(field, result);
    }
    return result;
}

void Write(const Field& field, Value value) {
    if (!Overlaps(field)) return;
    const bool isMemory = field.variable->GetShape().IsMemory();
    value.Convert({field.type.width, field.type.isSigned && !isMemory, field.type.isReal});
    if (isMemory) {
        WriteMemory(field, value);
    } else {
        WriteVector(field, std::move(value));
    }
}

std::optional<int> IntegerOf(const Value& value) {
    if (value.IsReal()) return std::nullopt;
    const auto scan =
        value.GetType().isSigned ? tarn_SignedScanIndexOfSelect : tarn_UnsignedScanIndexOfSelect;
    if (scan(value.Width(), value.Words()) == 0) return std::nullopt;
    return static_cast<int>(value.Words()->aval);
}

}  // namespace tarncalc
