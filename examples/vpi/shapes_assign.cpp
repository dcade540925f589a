// The shapes of operations that write fields of bits, and those on memory words.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "field.h"
#include "shapes.h"

namespace tarnvpi {

namespace {

/** The value of a write has at least the bits of the field. */
Vector ReadValue(vpiHandle object, const Field& field) {
    const Vector value = ReadVector(object);
    return value.Widened(std::max(field.width, value.Width()), IsSigned(object));
}

/** An element of a memory, as a compiler lays it out. */
class MemoryWord {
  public:
    explicit MemoryWord(const Vector& value)
        : width_(value.Width()), bytes_(2 * (static_cast<std::size_t>(width_ + 7) / 8)) {
        tarn_MemoryWordAssign(width_, bytes_.data(), value.Words());
    }

    int Width() const { return width_; }
    int SpareBits() const { return -width_ & 31; }
    std::uint8_t* Bytes() { return bytes_.data(); }

    Vector Value() const {
        Vector value(width_);
        tarn_UnsignedCopyMemoryValue(width_, value.Words(), width_, bytes_.data(), SpareBits());
        return value;
    }

  private:
    int width_;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace

void Run(const SelectAssign& shape, const Arguments& arguments) {
    Vector target = ReadVector(arguments[0]);
    const Field field(arguments[2], arguments[3]);
    field.RequireInside(target.Width());
    const Vector value = ReadValue(arguments[1], field);
    shape.write(target.Words() + field.Word(), value.Words(), field.Offset(), field.width);
    WriteVector(arguments[0], target);
}

void Run(const IndexedSelectAssign& shape, const Arguments& arguments) {
    if (!IsUsableIndex(arguments[2])) return;
    Vector target = ReadVector(arguments[0]);
    const Field field(arguments[2], arguments[3]);
    const Vector value = ReadValue(arguments[1], field);
    shape.write(target.Width(), target.Words(), value.Words(), field.low, field.width);
    WriteVector(arguments[0], target);
}

void Run(const SelectUpdate& shape, const Arguments& arguments) {
    Vector target = ReadVector(arguments[1]);
    const Field field(arguments[3], arguments[4]);
    field.RequireInside(target.Width());
    const Vector value = ReadValue(arguments[2], field);
    WriteCode(arguments[0], shape.write(target.Words() + field.Word(), value.Words(),
                                        field.Offset(), field.width));
    WriteVector(arguments[1], target);
}

void Run(const IndexedSelectUpdate& shape, const Arguments& arguments) {
    int hasChanged = 0;
    if (IsUsableIndex(arguments[3])) {
        Vector target = ReadVector(arguments[1]);
        const Field field(arguments[3], arguments[4]);
        const Vector value = ReadValue(arguments[2], field);
        hasChanged =
            shape.write(target.Width(), target.Words(), value.Words(), field.low, field.width);
        WriteVector(arguments[1], target);
    }
    WriteCode(arguments[0], hasChanged);
}

void Run(const MemoryCopy& shape, const Arguments& arguments) {
    const bool isSigned = IsSigned(arguments[1]);
    MemoryWord word(ReadVector(arguments[1]));
    Vector result(WidthOf(arguments[0]));
    const auto copy = isSigned ? shape.forSigned : shape.forUnsigned;
    copy(result.Width(), result.Words(), word.Width(), word.Bytes(), word.SpareBits());
    WriteVector(arguments[0], result);
}

void Run(const MemorySelect& shape, const Arguments& arguments) {
    MemoryWord word(ReadVector(arguments[1]));
    const Field field(arguments[2], arguments[3]);
    if (!shape.isIndexed) field.RequireInside(word.Width());
    Vector result = AllX(field.width);
    if (IsUsableIndex(arguments[2]))
        shape.read(result.Words(), word.Width(), word.Bytes(), field.low, field.width);
    WriteVector(arguments[0], result.Widened(WidthOf(arguments[0]), false));
}

void Run(const MemoryAssign& shape, const Arguments& arguments) {
    if (!IsUsableIndex(arguments[2])) return;
    MemoryWord word(ReadVector(arguments[0]));
    const Field field(arguments[2], arguments[3]);
    if (!shape.isIndexed) field.RequireInside(word.Width());
    const Vector value = ReadValue(arguments[1], field);
    const auto write = word.Width() <= 32 ? shape.forNarrow : shape.forAny;
    write(word.Width(), word.Bytes(), value.Words(), field.low, field.width);
    WriteVector(arguments[0], word.Value());
}

}  // namespace tarnvpi
