// The arguments (low, width) of a call that speaks of a field of bits.
#ifndef TARN_VPI_FIELD_H
#define TARN_VPI_FIELD_H

#include <cstddef>
#include <stdexcept>

#include "value.h"

namespace tarnvpi {

struct Field {
    Field(vpiHandle lowArgument, vpiHandle widthArgument)
        : low(ReadInteger(lowArgument)), width(ReadInteger(widthArgument)) {
        if (width < 1) throw std::invalid_argument("a field has at least one bit");
    }

    /** A compiler knows of a select with constant bounds that it lies inside its vector. */
    void RequireInside(int vectorWidth) const {
        if (low < 0 || low > vectorWidth - width) {
            throw std::invalid_argument("the field does not lie inside the vector");
        }
    }

    /** The word where the field begins, and the bit in it. */
    std::size_t Word() const { return static_cast<std::size_t>(low) / 32; }
    unsigned Offset() const { return static_cast<unsigned>(low) % 32; }

    int low;
    int width;
};

/** Whether an index selects anything: one with X or Z bits, or that no 32-bit integer holds, does
 *  not. */
inline bool IsUsableIndex(vpiHandle object) {
    const bool isSigned = IsSigned(object);
    const Vector index = ReadVector(object, isSigned);
    const auto scan = isSigned ? tarn_SignedScanIndexOfSelect : tarn_UnsignedScanIndexOfSelect;
    return scan(index.Width(), index.Words()) != 0;
}

/** What a select reads where its index selects nothing. */
inline Vector AllX(int width) {
    Vector result(width);
    tarn_CleanBasedFillX(result.Words(), width, 0);
    return result;
}

}  // namespace tarnvpi

#endif
