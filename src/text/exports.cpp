// Exports: the text buffer, vectors as text, text as vectors.
#include <cstring>
#include <string>

#include <tarnlib/text.h>

#include "arith/scratch.h"
#include "core/contract.h"
#include "text/characters.h"
#include "text/decimal_text.h"
#include "text/literal.h"
#include "text/machine_integer.h"
#include "text/parse.h"
#include "text/radix_text.h"
#include "text/real_format.h"
#include "text/real_parse.h"
#include "text/text_buffer.h"

#define TARN_REQUIRE_VALUE(width, value, option) \
    TARN_ARGUMENTS(width, value, option);        \
    TARN_REQUIRE_AT_LEAST_1(width);              \
    TARN_REQUIRE_VECTOR(width, value)

#define TARN_REQUIRE_DECIMAL(width, value, minDigits, zeroPad) \
    TARN_ARGUMENTS(width, value, minDigits, zeroPad);          \
    TARN_REQUIRE_AT_LEAST_1(width);                            \
    TARN_REQUIRE_AT_MOST(width, kMaxDecimalWidth);             \
    TARN_REQUIRE_VECTOR(width, value)

#define TARN_REQUIRE_SIZE(value, width, overflow) \
    TARN_ARGUMENTS(value, width, overflow);       \
    TARN_REQUIRE_AT_LEAST_1(width);               \
    TARN_REQUIRE_VECTOR(width, value);            \
    TARN_REQUIRE_OBJECT(overflow)

#define TARN_REQUIRE_APART(width, result, text, byteCount) \
    TARN_REQUIRE(AreApart(text, byteCount, width, result), "result must lie apart from the text")

#define TARN_REQUIRE_PARSE(width, result, text) \
    TARN_ARGUMENTS(width, result, text);        \
    TARN_REQUIRE_AT_LEAST_1(width);             \
    TARN_REQUIRE_VECTOR(width, result);         \
    TARN_REQUIRE_TEXT(text);                    \
    TARN_REQUIRE_APART(width, result, text, std::strlen(text) + 1)

// A string of a length, for which no byte need be there.
#define TARN_REQUIRE_STRING(length, text)                       \
    TARN_REQUIRE((length) >= 0, #length " must be at least 0"); \
    TARN_REQUIRE((length) == 0 || (text) != nullptr, #text " must not be null")

#define TARN_REQUIRE_CODE(code) \
    TARN_REQUIRE((code) >= 0 && (code) <= 5, "code must be 0 to 5, a LogicCode")

using namespace tarn;

extern "C" {

char* tarn_GetGlobalBuffer(unsigned count) {
    return OpenText(count);
}

char* tarn_CopyToGlobalBuffer(const char* text) {
    TARN_ARGUMENTS(text);
    TARN_REQUIRE_TEXT(text);
    return CopyText(text);
}

char* tarn_CopyNToGlobalBuffer(const char* text, unsigned count) {
    TARN_ARGUMENTS(text, count);
    TARN_REQUIRE_TEXT(text);
    return CopyPaddedText(text, count);
}

char* tarn_ConvertToBin(int width, const VectorWord* value, int minDigits) {
    TARN_REQUIRE_VALUE(width, value, minDigits);
    return FormatRadix<Binary>({width, value}, minDigits);
}

char* tarn_ConvertToOct(int width, const VectorWord* value, int minDigits) {
    TARN_REQUIRE_VALUE(width, value, minDigits);
    return FormatRadix<Octal>({width, value}, minDigits);
}

char* tarn_ConvertToHex(int width, const VectorWord* value, int minDigits) {
    TARN_REQUIRE_VALUE(width, value, minDigits);
    return FormatRadix<Hexadecimal>({width, value}, minDigits);
}

char* tarn_ConvertToBin0(int code) {
    TARN_ARGUMENTS(code);
    TARN_REQUIRE_CODE(code);
    return FormatLogicCode(code);
}

char* tarn_ConvertToOct0(int code) {
    TARN_ARGUMENTS(code);
    TARN_REQUIRE_CODE(code);
    return FormatLogicCode(code);
}

char* tarn_ConvertToHex0(int code) {
    TARN_ARGUMENTS(code);
    TARN_REQUIRE_CODE(code);
    return FormatLogicCode(code);
}

char* tarn_UnsignedConvertToDec(int width, const VectorWord* value, int minDigits, int zeroPad) {
    TARN_REQUIRE_DECIMAL(width, value, minDigits, zeroPad);
    return FormatDecimal<ZeroExtend>({width, value}, {minDigits, zeroPad != 0});
}

char* tarn_SignedConvertToDec(int width, const VectorWord* value, int minDigits, int zeroPad) {
    TARN_REQUIRE_DECIMAL(width, value, minDigits, zeroPad);
    return FormatDecimal<SignExtend>({width, value}, {minDigits, zeroPad != 0});
}

char* tarn_UnsignedConvertToDec0(int code) {
    TARN_ARGUMENTS(code);
    TARN_REQUIRE_CODE(code);
    return FormatLogicCode(code);
}

char* tarn_SignedConvertToDec0(int code) {
    TARN_ARGUMENTS(code);
    TARN_REQUIRE_CODE(code);
    return FormatSignedLogicCode(code);
}

unsigned tarn_UnsignedConvertToSizeT(const VectorWord* value, int width, int* overflow) noexcept {
    TARN_REQUIRE_SIZE(value, width, overflow);
    *overflow = ReachesBit64({width, value}) ? 1 : 0;
    return UnsignedSize({width, value});
}

int tarn_SignedConvertToSizeT(const VectorWord* value, int width, int* overflow) noexcept {
    TARN_REQUIRE_SIZE(value, width, overflow);
    *overflow = ReachesBit64({width, value}) ? 1 : 0;
    return SignedSize({width, value});
}

char* tarn_ConvertToStringR(const char* format, double value) {
    TARN_ARGUMENTS(format, value);
    TARN_REQUIRE_TEXT(format);
    TARN_REQUIRE(!globalBuffer.Contains(format), "format must not lie in the text buffer");
    TARN_REQUIRE(TakesOneReal(format),
                 "format must have exactly one conversion, one for a double, but is \"" +
                     std::string(format) + '"');
    return FormatReal(format, value);
}

char* tarn_ConvertToChar(const VectorWord* value, int spaceForNul) {
    TARN_ARGUMENTS(value, spaceForNul);
    TARN_REQUIRE_VECTOR(1, value);
    return FormatCharacter(static_cast<char>(KnownOnes(LoadWord(value)) & 0xFF), spaceForNul != 0);
}

char* tarn_ConvertToChar0(int code, int spaceForNul) {
    TARN_ARGUMENTS(code, spaceForNul);
    TARN_REQUIRE_CODE(code);
    return FormatCharacter(code == TARN_LOGIC_1 ? '\1' : '\0', spaceForNul != 0);
}

char* tarn_ConvertToString0(int code, int spaceForNul) {
    TARN_ARGUMENTS(code, spaceForNul);
    TARN_REQUIRE_CODE(code);
    return FormatCharacter(code == TARN_LOGIC_1 ? '\1' : '\0', spaceForNul != 0);
}

char* tarn_ConvertToString(int width, const VectorWord* value, int spaceForNul) {
    TARN_REQUIRE_VALUE(width, value, spaceForNul);
    return FormatString({width, value}, spaceForNul != 0);
}

bool tarn_BinaryStringToVector(int width, VectorWord* result, const char* digits) noexcept {
    TARN_REQUIRE_PARSE(width, result, digits);
    ParseRadixDigits<Binary>({width, result}, digits);
    return false;
}

bool tarn_OctalStringToVector(int width, VectorWord* result, const char* digits) noexcept {
    TARN_REQUIRE_PARSE(width, result, digits);
    ParseRadixDigits<Octal>({width, result}, digits);
    return false;
}

bool tarn_HexStringToVector(int width, VectorWord* result, const char* digits) noexcept {
    TARN_REQUIRE_PARSE(width, result, digits);
    ParseRadixDigits<Hexadecimal>({width, result}, digits);
    return false;
}

bool tarn_DecimalStringToVector(int width, VectorWord* result, const char* digits) {
    TARN_REQUIRE_PARSE(width, result, digits);
    ParseDecimalDigits({width, result}, digits);
    return false;
}

bool tarn_StringToVector(int width, VectorWord* result, const char* text) noexcept {
    TARN_REQUIRE_PARSE(width, result, text);
    PackCharacters({width, result}, text);
    return false;
}

void tarn_AssignStringToVector(int width, VectorWord* result, int length,
                               const char* text) noexcept {
    TARN_ARGUMENTS(width, result, length, text);
    TARN_REQUIRE_AT_LEAST_1(width);
    TARN_REQUIRE_VECTOR(width, result);
    TARN_REQUIRE_STRING(length, text);
    TARN_REQUIRE_APART(width, result, text, static_cast<std::size_t>(length));
    PackCharacters({width, result}, {text, length < 0 ? 0 : static_cast<std::size_t>(length)});
}

void tarn_CreateReal(const char* text, double* result) {
    TARN_ARGUMENTS(text, result);
    TARN_REQUIRE_TEXT(text);
    TARN_REQUIRE_OBJECT(result);
    *result = ParseReal(text);
}

void tarn_AssignStringToReal(double* result, int length, const char* text) noexcept {
    TARN_ARGUMENTS(result, length, text);
    TARN_REQUIRE_OBJECT(result);
    TARN_REQUIRE_STRING(length, text);
    *result = PackedReal({text, length < 0 ? 0 : static_cast<std::size_t>(length)});
}

bool tarn_CreateVector(const char* sizeText, const char* valueText, int* width, VectorWord** result,
                       void* (*allocate)(std::uint64_t byteCount), unsigned char* truncated) {
    TARN_ARGUMENTS(sizeText, valueText, width, result, allocate, truncated);
    TARN_REQUIRE_TEXT(valueText);
    TARN_REQUIRE_OBJECT(width);
    TARN_REQUIRE_OBJECT(result);
    TARN_REQUIRE(allocate != nullptr, "allocate must not be null");
    const LiteralOutput output{width, result, allocate, truncated};
    if (*valueText == '"') {
        ParseStringLiteral(valueText, output);
        return false;
    }
    return ParseNumberLiteral(sizeText, valueText, output);
}

}  // extern "C"
