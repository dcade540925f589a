// Exports: copies and conversions of machine values.
#include <bit>

#include "core/contract.h"
#include "core/copy.h"

using namespace tarn;

extern "C" {

void tarn_SignedCopy(int resultWidth, VectorWord* result, int sourceWidth,
                     const VectorWord* source) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, sourceWidth, source);
    Copy<SignExtend>({resultWidth, result}, {sourceWidth, source});
}

void tarn_UnsignedCopy(int resultWidth, VectorWord* result, int sourceWidth,
                       const VectorWord* source) noexcept {
    TARN_REQUIRE_ONE_OPERAND(resultWidth, result, sourceWidth, source);
    Copy<ZeroExtend>({resultWidth, result}, {sourceWidth, source});
}

void tarn_SignedConvert(int resultWidth, VectorWord* result, std::int32_t value) noexcept {
    TARN_REQUIRE_SCALAR(resultWidth, result, value);
    StoreOneWord({resultWidth, result}, MakeWord(static_cast<std::uint32_t>(value), 0),
                 BeyondInteger(value));
}

void tarn_UnsignedConvert(int resultWidth, VectorWord* result, std::uint32_t value) noexcept {
    TARN_REQUIRE_SCALAR(resultWidth, result, value);
    StoreOneWord({resultWidth, result}, MakeWord(value, 0), BeyondInteger(value));
}

void tarn_SignedConvertLong(int resultWidth, VectorWord* result, std::int64_t value) noexcept {
    TARN_REQUIRE_SCALAR(resultWidth, result, value);
    StoreTwoWords({resultWidth, result}, static_cast<std::uint64_t>(value), BeyondInteger(value));
}

void tarn_UnsignedConvertLong(int resultWidth, VectorWord* result, std::uint64_t value) noexcept {
    TARN_REQUIRE_SCALAR(resultWidth, result, value);
    StoreTwoWords({resultWidth, result}, value, BeyondInteger(value));
}

void tarn_MapToVector(int resultWidth, VectorWord* result, double value) noexcept {
    TARN_REQUIRE_SCALAR(resultWidth, result, value);
    StoreTwoWords({resultWidth, result}, std::bit_cast<std::uint64_t>(value), 0);
}

void tarn_MapToShortVector(int resultWidth, VectorWord* result, double value) noexcept {
    TARN_REQUIRE_SCALAR(resultWidth, result, value);
    const auto pattern = std::bit_cast<std::uint32_t>(static_cast<float>(value));
    StoreOneWord({resultWidth, result}, MakeWord(pattern, 0), 0);
}

}  // extern "C"
