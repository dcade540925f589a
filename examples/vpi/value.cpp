#include "value.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>

namespace tarnvpi {

namespace {

// Both sides keep a slice of 32 bits as IEEE 1364 lays it out, so words cross as they are.
static_assert(sizeof(VectorWord) == sizeof(s_vpi_vecval));
static_assert(offsetof(VectorWord, aval) == offsetof(s_vpi_vecval, aval));

s_vpi_value Read(vpiHandle object, PLI_INT32 format) {
    s_vpi_value value{};
    value.format = format;
    vpi_get_value(object, &value);
    return value;
}

/** Not every object takes a value from outside, nor does every simulator say so. */
bool IsVariable(vpiHandle object) {
    switch (vpi_get(vpiType, object)) {
        case vpiConstant:
        case vpiMemory:
        case vpiModule:
        case vpiNet:
        case vpiParameter:
            return false;
        default:
            return true;
    }
}

void Write(vpiHandle variable, s_vpi_value& value) {
    const bool isReal = vpi_get(vpiType, variable) == vpiRealVar;
    if (!IsVariable(variable) || (isReal && value.format != vpiRealVal)) {
        throw std::invalid_argument("the result needs a variable of its kind");
    }
    vpi_put_value(variable, &value, nullptr, vpiNoDelay);
}

}  // namespace

Vector::Vector(int width) : width_(width), words_(static_cast<std::size_t>((width - 1) / 32 + 1)) {}

void Vector::RestoreTopWord(bool isSigned) {
    const int spare = -width_ & 31;
    const auto extend = [=](std::uint32_t bits) {
        bits <<= spare;
        return isSigned ? static_cast<std::uint32_t>(static_cast<std::int32_t>(bits) >> spare)
                        : bits >> spare;
    };
    VectorWord& top = words_.back();
    top = {extend(top.aval), extend(top.bval)};
}

Vector Vector::Widened(int width, bool isSigned) const {
    Vector result(width);
    const auto copy = isSigned ? tarn_SignedCopy : tarn_UnsignedCopy;
    copy(width, result.Words(), width_, Words());
    result.RestoreTopWord(isSigned);
    return result;
}

int WidthOf(vpiHandle object) {
    return vpi_get(vpiSize, object);
}

bool IsSigned(vpiHandle object) {
    return vpi_get(vpiSigned, object) != 0;
}

Vector ReadVector(vpiHandle object, bool isSigned) {
    Vector result(WidthOf(object));
    const s_vpi_value value = Read(object, vpiVectorVal);
    if (value.value.vector == nullptr) throw std::invalid_argument("an operand is no vector");
    // The simulator lends its words until the next call, and leaves those above the width open.
    std::memcpy(result.Words(), value.value.vector,
                static_cast<std::size_t>(result.WordCount()) * sizeof(VectorWord));
    result.RestoreTopWord(isSigned);
    return result;
}

int ReadInteger(vpiHandle object) {
    return Read(object, vpiIntVal).value.integer;
}

double ReadReal(vpiHandle object) {
    return Read(object, vpiRealVal).value.real;
}

std::string ReadText(vpiHandle object) {
    const s_vpi_value value = Read(object, vpiStringVal);
    if (value.value.str == nullptr) throw std::invalid_argument("an operand is no text");
    return value.value.str;
}

void WriteVector(vpiHandle variable, const Vector& source) {
    std::vector<s_vpi_vecval> words(static_cast<std::size_t>(source.WordCount()));
    std::memcpy(words.data(), source.Words(), words.size() * sizeof(VectorWord));
    s_vpi_value value{};
    value.format = vpiVectorVal;
    value.value.vector = words.data();
    Write(variable, value);
}

void WriteCode(vpiHandle variable, LogicCode code) {
    Vector result(WidthOf(variable));
    tarn_UnsignedCopy(result.Width(), result.Words(), 1, &tarn_LogicVectorLUT[code]);
    WriteVector(variable, result);
}

void WriteReal(vpiHandle variable, double number) {
    s_vpi_value value{};
    value.format = vpiRealVal;
    value.value.real = number;
    Write(variable, value);
}

void WriteText(vpiHandle variable, const std::string& text) {
    Vector result(WidthOf(variable));
    tarn_AssignStringToVector(result.Width(), result.Words(), static_cast<int>(text.size()),
                              text.data());
    WriteVector(variable, result);
}

}  // namespace tarnvpi
