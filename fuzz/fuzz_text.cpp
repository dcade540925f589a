// Text of vectors and reals in fields of any width; machine integers; the text buffer.
#include <cstdio>
#include <iterator>
#include <string_view>

#include <tarnlib/text.h>

#include "input.h"
#include "text_model.h"

namespace tarn::fuzz {
namespace {

// Negative, 0, or about as wide as a vector's text, up to some thousand characters.
int MinDigits(Input& in, int width) {
    const unsigned form = in.Byte();
    if (form % 4 == 0) return -static_cast<int>(in.Take<std::uint32_t>() >> 1U) - 1;
    return form % 4 == 1 ? 0 : form == 255 ? in.Below(20'000) : in.Below(width + 50);
}

void WriteDigits(Input& in) {
    struct Row {
        const char* name;
        char* (*function)(int, const VectorWord*, int);
        std::string (*model)(const Vec&, int);
    };
    constexpr Row kRows[] = {{"tarn_ConvertToBin", tarn_ConvertToBin, test::DigitText<1>},
                             {"tarn_ConvertToOct", tarn_ConvertToOct, test::DigitText<3>},
                             {"tarn_ConvertToHex", tarn_ConvertToHex, test::DigitText<4>}};
    const Row& row = kRows[in.Byte() % std::size(kRows)];
    const Vec value = in.Vector(in.Width());
    const int minDigits = MinDigits(in, value.width);
    Storage<VectorWord> words(ToWords(value), in.Byte() % 2 * 4U);
    const std::string text = row.function(value.width, words.Data(), minDigits);
    CheckEqual(row.name, text, row.model(value, minDigits));
}

void WriteDecimal(Input& in) {
    const bool isSigned = in.Flag(), zeroPad = in.Flag();
    const Vec value = in.Vector(in.Width());
    const int minDigits = MinDigits(in, value.width);
    Storage<VectorWord> words(ToWords(value), in.Byte() % 2 * 4U);
    const auto function = isSigned ? tarn_SignedConvertToDec : tarn_UnsignedConvertToDec;
    const std::string text =
        function(value.width, words.Data(), minDigits, zeroPad ? in.Byte() | 1 : 0);
    Vec largest = test::Filled(value.width, Logic::k1);
    const std::size_t most =
        ToInteger(test::Clean(largest)).get_str().size() + (isSigned ? 1U : 0U);
    CheckEqual("decimal text", text,
               test::InField(isSigned ? test::SignedText(value) : test::UnsignedText(value),
                             minDigits, most, zeroPad));
}

void WriteCharacters(Input& in) {
    const Vec value = in.Vector(in.Width());
    const int space = in.Flag() ? in.Take<int>() : 0;
    Storage<VectorWord> words(ToWords(value), in.Byte() % 2 * 4U);
    const std::string text = tarn_ConvertToString(value.width, words.Data(), space);
    CheckEqual("tarn_ConvertToString", text, test::CharacterText(value, space != 0));
    Storage<VectorWord> low({*words.Data()}, 4);
    const std::string character = tarn_ConvertToChar(low.Data(), space);
    CheckEqual("tarn_ConvertToChar", character,
               test::CharacterText(test::Prefix(value, 8), space != 0));
}

// Any number may be passed as a code.
void WriteCode(Input& in) {
    const int code = in.Flag() ? in.Take<int>() : in.Byte() % 8, space = in.Byte() % 3;
    const std::string digit(1, code >= 0 && code <= 2 ? "01z"[code] : 'x');
    for (const auto function :
         {tarn_ConvertToBin0, tarn_ConvertToOct0, tarn_ConvertToHex0, tarn_UnsignedConvertToDec0}) {
        CheckEqual("digit of a code", std::string(function(code)), digit);
    }
    CheckEqual("tarn_SignedConvertToDec0", std::string(tarn_SignedConvertToDec0(code)),
               code == 1 ? "-1" : digit);
    for (const auto function : {tarn_ConvertToChar0, tarn_ConvertToString0}) {
        CheckEqual("character of a code", std::string(function(code, space)),
                   std::string(code == 1    ? "\1"
                               : space != 0 ? " "
                                            : ""));
    }
}

void ReadMachineInteger(Input& in) {
    const Vec value = in.Vector(in.Width());
    Storage<VectorWord> words(ToWords(value), 4);
    int unsignedOverflow = -1, signedOverflow = -1;
    const unsigned number =
        tarn_UnsignedConvertToSizeT(words.Data(), value.width, &unsignedOverflow);
    const int signedNumber = tarn_SignedConvertToSizeT(words.Data(), value.width, &signedOverflow);
    const std::uint32_t low = words.Data()->aval & ~words.Data()->bval;
    const unsigned above = value.width < 32 ? 32 - static_cast<unsigned>(value.width) : 0;
    const auto begin = value.bits.begin();
    const bool isHigh = value.width > 64 && std::find(begin + 64, begin + value.width, Logic::k1) !=
                                                begin + value.width;
    CheckEqual("tarn_UnsignedConvertToSizeT", number, low);
    CheckEqual("tarn_SignedConvertToSizeT", signedNumber,
               static_cast<std::int32_t>(low << above) >> above);
    CheckEqual("overflow", unsignedOverflow, isHigh ? 1 : 0);
    CheckEqual("overflow, signed", signedOverflow, unsignedOverflow);
}

std::string Printed(const std::string& format, double value) {
    char text[20'000];
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"  // the input is to choose it
    const int count = std::snprintf(text, sizeof text, format.c_str(), value);
#pragma GCC diagnostic pop
    return count < 0 ? "" : std::string(text, static_cast<std::size_t>(count));
}

// One conversion for a double, with text around it that holds no other.
void WriteReal(Input& in) {
    const auto value = in.Take<double>();
    std::string format = "%";
    for (unsigned flags = in.Byte(), i = 0; i < 5; ++i) {
        if ((flags >> i & 1U) != 0) format += "-+ #0"[i];
    }
    if (in.Flag()) format += std::to_string(1 + in.Below(in.Flag() ? 5000 : 50));
    if (in.Flag()) format += '.' + std::to_string(in.Below(in.Flag() ? 5000 : 50));
    format += "aefgAEFG"[in.Byte() % 8];
    const std::string before = in.Text(), behind = in.Text();
    const auto plain = [](const std::string& any) {
        std::string text = any.substr(0, 500);
        for (std::size_t at = 0; (at = text.find('%', at)) != std::string::npos; at += 2) {
            text.insert(at, 1, '%');
        }
        return text;
    };
    format = plain(before) + format;
    format += plain(behind);
    Storage<char> storage = TextStorage(format);
    CheckEqual("tarn_ConvertToStringR", std::string(tarn_ConvertToStringR(storage.Data(), value)),
               Printed(format, value));
}

// What was in the buffer stays at its start when it grows.
void UseBuffer(Input& in) {
    const unsigned count = in.Take<std::uint16_t>();
    const unsigned first = in.Byte();
    const std::string text = in.Text();
    Storage<char> storage = TextStorage(text);
    CheckEqual("tarn_CopyToGlobalBuffer", std::string(tarn_CopyToGlobalBuffer(storage.Data())),
               text);
    const auto kept = static_cast<unsigned>(std::min<std::size_t>(text.size(), count));
    char* const buffer = tarn_GetGlobalBuffer(count);
    CheckEqual("tarn_GetGlobalBuffer", std::string(buffer, kept), text.substr(0, kept));
    CheckEqual("its terminator", buffer[count], '\0');
    std::fill_n(buffer, count, '#');
    // The characters that are read may have no NUL behind them.
    const std::string characters = in.Rest().substr(0, first);
    const bool isWhole = characters.find('\0') == std::string::npos;
    const auto length = static_cast<unsigned>(characters.size());
    const unsigned copied = isWhole ? length : length + first;
    Storage<char> source({characters.begin(), characters.end()}, first % 8);
    const std::string copy(tarn_CopyNToGlobalBuffer(source.Data(), copied), copied + 1);
    std::string expected(characters.c_str(),
                         std::min<std::size_t>(std::strlen(characters.c_str()), copied));
    expected.resize(copied + 1);
    CheckEqual("tarn_CopyNToGlobalBuffer", copy, expected);
}

constexpr void (*kCalls[])(Input&) = {WriteDigits, WriteDecimal,       WriteCharacters, WriteCode,
                                      WriteReal,   ReadMachineInteger, UseBuffer};

}  // namespace
}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tarn::fuzz::RunOneOf(tarn::fuzz::kCalls, data, size);
}
