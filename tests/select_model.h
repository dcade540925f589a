// What selection, concatenation and shifts are to give, a bit at a time.
#ifndef TARN_TESTS_SELECT_MODEL_H
#define TARN_TESTS_SELECT_MODEL_H

#include <algorithm>
#include <cstdint>
#include <vector>

#include "support/model.h"

namespace tarn::test {

// Bits index to index + width - 1 of a vector, X where it has none, extended to a wider result.
inline Vec Field(int resultWidth, const Vec& source, int index, int width, Extension extension) {
    Vec field = Filled(width, Logic::k0);
    for (std::int64_t k = 0; k < width; ++k) {
        const std::int64_t i = index + k;
        const bool isInside = i >= 0 && i < source.width;
        field.bits[static_cast<std::size_t>(k)] =
            isInside ? source.bits[static_cast<std::size_t>(i)] : Logic::kX;
    }
    if (extension == Extension::kSign) field = SignFilled(field);
    return Extended(field, std::max(resultWidth, width), extension);
}

// The target with value in its bits from `index` upward, as far as it has them.
inline Vec WithField(Vec target, const Vec& value, int index, int width) {
    for (std::int64_t i = 0; i < target.width; ++i) {
        const std::int64_t from = i - index;
        if (0 <= from && from < width) {
            target.bits[static_cast<std::size_t>(i)] = value.bits[static_cast<std::size_t>(from)];
        }
    }
    return target;
}

inline bool HasBitInside(int targetWidth, int index, int width) {
    return width > 0 && index < targetWidth && std::int64_t{index} + width > 0;
}

inline Logic Or(Logic a, Logic b) {
    return static_cast<Logic>(static_cast<int>(a) | static_cast<int>(b));
}

// What a call leaves of the destination's words that it writes.
inline Vec Placed(const Vec& destination, int written, const Vec& operand, int offset, int span) {
    Vec result = Prefix(destination, written);
    for (std::size_t i = 0; i < result.bits.size(); ++i) {
        const std::int64_t from = static_cast<std::int64_t>(i) - offset;
        const bool isThere = from >= 0 && from < static_cast<std::int64_t>(operand.bits.size()) &&
                             (from < 32 || from / 32 * 32 + offset < span);
        const Logic bit = isThere ? operand.bits[static_cast<std::size_t>(from)] : Logic::k0;
        result.bits[i] = i < 32 ? Or(result.bits[i], bit) : bit;
    }
    return result;
}

using Bytes = std::vector<std::uint8_t>;

inline std::size_t HalfByteCount(int width) {
    return width < 1 ? 0 : (static_cast<std::size_t>(width) + 7) / 8;
}

// A memory word: the bytes of aval, then those of bval.
inline Bytes ToBytes(const Vec& vec) {
    const std::size_t half = HalfByteCount(vec.width);
    Bytes bytes(2 * half);
    for (std::size_t i = 0; i < 8 * half; ++i) {
        const unsigned bit = static_cast<unsigned>(vec.bits[i]);
        bytes[i / 8] |= static_cast<std::uint8_t>((bit & 1U) << i % 8);
        bytes[half + i / 8] |= static_cast<std::uint8_t>((bit >> 1) << i % 8);
    }
    return bytes;
}

inline Vec Left(int width, const Vec& source, std::uint64_t amount) {
    Vec result = Filled(width, Logic::k0);
    if (amount >= static_cast<std::uint64_t>(width)) return result;
    for (std::size_t i = amount; i < result.bits.size(); ++i) {
        result.bits[i] = source.bits[i - amount];
    }
    return result;
}

template <Extension extension>
Vec Right(int width, const Vec& source, std::uint64_t amount) {
    Vec result = Filled(width, extension == Extension::kSign ? source.bits.back() : Logic::k0);
    if (amount >= static_cast<std::uint64_t>(source.width)) return result;
    for (std::size_t i = 0; i < result.bits.size() && i + amount < source.bits.size(); ++i) {
        result.bits[i] = source.bits[i + amount];
    }
    return result;
}

}  // namespace tarn::test

#endif  // TARN_TESTS_SELECT_MODEL_H
