#include "value.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "diagnostic.h"
#include "literal.h"

namespace tarncalc {

namespace {

constexpr std::size_t WordCount(int width) {
    return static_cast<std::size_t>((width - 1) / kWordBits) + 1;
}

void* AllocateWords(std::uint64_t byteCount) {
    return new VectorWord[byteCount / sizeof(VectorWord)];
}

/** The low `bitCount` bits of a slice, extended through the rest of it. */
constexpr std::uint32_t ExtendSlice(std::uint32_t slice, int bitCount, bool isSigned) {
    const std::uint32_t above = ~std::uint32_t{0} << bitCount;
    const bool topBit = ((slice >> (bitCount - 1)) & 1U) != 0;
    return isSigned && topBit ? slice | above : slice & ~above;
}

}  // namespace

void CheckWidth(std::int64_t width, Place place) {
    constexpr int kMaxWidth = TARN_MAX_LITERAL_WIDTH;
    if (width <= kMaxWidth) return;
    throw InputError(place, "wider than " + std::to_string(kMaxWidth) + " bits");
}

Value::Value(Type type)
    : type_(type),
      words_(type.isReal ? nullptr : std::make_unique<VectorWord[]>(WordCount(type.width))) {}

Value Value::OfCode(LogicCode code) {
    Value value(kBitType);
    value.words_[0] = tarn_LogicVectorLUT[code];
    return value;
}

Value::Value(const Literal& literal, bool& isCut) {
    if (literal.kind == Literal::Kind::kReal) {
        type_ = kRealType;
        tarn_CreateReal(std::string(literal.digits).c_str(), &real_);
        return;
    }
    const std::string sizeText(literal.sizeText);
    const std::string valueText = std::string(literal.prefix).append(literal.digits);
    unsigned char truncated = 0;
    VectorWord* words = nullptr;
    type_.isSigned =
        tarn_CreateVector(sizeText.empty() ? nullptr : sizeText.c_str(), valueText.c_str(),
                          &type_.width, &words, AllocateWords, &truncated);
    words_.reset(words);
    // The library reports characters left unread. Of binary, octal and hexadecimal digits that is
    // not the same as a lost value: leading zeros are no loss, and a top digit can be cut inside.
    const bool hasBits = literal.radix != nullptr && literal.radix->bitsPerDigit != 0;
    isCut = hasBits ? literal.significantBits > static_cast<std::uint64_t>(type_.width)
                    : truncated != 0;
    RestoreTopWord();
}

double Value::Real() const noexcept {
    if (type_.isReal) return real_;
    const auto convert = type_.isSigned ? tarn_SignedConvertToReal : tarn_UnsignedConvertToReal;
    return convert(type_.width, words_.get());
}

void Value::Convert(Type type) {
    if (type.isReal) {
        *this = Value(Real());
        return;
    }
    if (type_.isReal) {
        Value vector(type);
        tarn_ConvertToVector(type.width, vector.Words(), real_);
        vector.RestoreTopWord();
        *this = std::move(vector);
        return;
    }
    type_.isSigned = type.isSigned;
    RestoreTopWord();
    if (type.width == type_.width) return;
    auto extended = std::make_unique<VectorWord[]>(WordCount(type.width));
    const auto copy = type.isSigned ? tarn_SignedCopy : tarn_UnsignedCopy;
    copy(type.width, extended.get(), type_.width, words_.get());
    words_ = std::move(extended);
    const bool isCut = type.width < type_.width;
    type_.width = type.width;
    if (isCut) RestoreTopWord();
}

void Value::SetUnknown() noexcept {
    if (type_.isReal) return;
    std::fill_n(words_.get(), WordCount(type_.width), VectorWord{~0U, ~0U});
    RestoreTopWord();
}

void Value::RestoreTopWord() noexcept {
    const int bitCount = type_.width % kWordBits;
    if (type_.isReal || bitCount == 0) return;
    VectorWord& top = words_[WordCount(type_.width) - 1];
    top.aval = ExtendSlice(top.aval, bitCount, type_.isSigned);
    top.bval = ExtendSlice(top.bval, bitCount, type_.isSigned);
}

}  // namespace tarncalc
