// Digits and characters as vectors of any width.
#include <iterator>

#include <tarnlib/text.h>

#include "input.h"
#include "text_model.h"

namespace tarn::fuzz {
namespace {

using Parser = bool(int, VectorWord*, const char*);
using Writer = char*(int, const VectorWord*, int);

struct Row {
    const char* name;
    Parser* parse;
    Vec (*model)(int, const std::string&);
    Writer* write;  // what gives the digits back
};

template <int bitsPerDigit>
Vec RadixValue(int width, const std::string& text) {
    return test::FromDigits(width, bitsPerDigit, text);
}

// Not padded, since an x behind zeros would be no x.
char* WriteDecimal(int width, const VectorWord* value, int /*minDigits*/) {
    return tarn_UnsignedConvertToDec(width, value, 0, 0);
}

constexpr Row kRows[] = {
    {"tarn_BinaryStringToVector", tarn_BinaryStringToVector, RadixValue<1>, tarn_ConvertToBin},
    {"tarn_OctalStringToVector", tarn_OctalStringToVector, RadixValue<3>, tarn_ConvertToOct},
    {"tarn_HexStringToVector", tarn_HexStringToVector, RadixValue<4>, tarn_ConvertToHex},
    {"tarn_DecimalStringToVector", tarn_DecimalStringToVector, test::DecimalValue, WriteDecimal},
    {"tarn_StringToVector", tarn_StringToVector, test::PackedValue, nullptr},
};

template <class Parse>
Vec ParseIntoStorage(Input& in, const char* name, int width, Parse parse) {
    return CallInStorage(
        in, width, {}, Place::kAnywhere,
        [&](VectorWord* result, VectorWord* const*) { Check(name, !parse(result)); });
}

Vec ParseText(Input& in, const Row& row, int width, const std::string& text) {
    Storage<char> storage = TextStorage(text);
    return ParseIntoStorage(in, row.name, width, [&](VectorWord* result) {
        return row.parse(width, result, storage.Data());
    });
}

// A value that is written in digits without an X or Z of some bits only is read back from them.
void CheckRoundTrip(Input& in, const Row& row, const Vec& value) {
    Storage<VectorWord> words(ToWords(value), 4);
    const std::string text = row.write(value.width, words.Data(), -1);
    const bool isExact = text.find_first_of("XZ") == std::string::npos;
    if (isExact) CheckEqual("read back", ParseText(in, row, value.width, text), value);
}

void CheckString(Input& in, int width, const std::string& characters) {
    Storage<char> storage({characters.begin(), characters.end()}, characters.size() % 8);
    const Vec packed = ParseIntoStorage(in, "packed", width, [&](VectorWord* result) {
        tarn_AssignStringToVector(width, result, static_cast<int>(characters.size()),
                                  storage.Data());
        return false;
    });
    CheckEqual("tarn_AssignStringToVector", packed, test::PackedValue(width, characters));
}

}  // namespace
}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tarn::fuzz;
    Input in(data, size);
    const Row& row = kRows[in.Byte() % std::size(kRows)];
    const int width = in.Width();
    const std::string characters = in.Rest();
    const std::string text = characters.c_str();
    const Vec value = ParseText(in, row, width, text);
    CheckEqual(row.name, value, row.model(width, text));
    if (row.write != nullptr) CheckRoundTrip(in, row, value);
    CheckString(in, width, characters);
    return 0;
}
