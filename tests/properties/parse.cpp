// Digits and characters read into vectors and reals.
#include <climits>
#include <cstdlib>

#include <tarnlib/text.h>

#include "text_model.h"

namespace tarn::test {
namespace {

using Parsing = std::tuple<Width, std::string>;
// By their count, without a terminator.
using Packing = std::tuple<Width, Counted>;
using RealPacking = std::tuple<ToReal, Counted>;
// Stretches of digits alone, of some of them, of underscores, and of digits with other characters
// among them; often one stretch, and up to half as much again as the width holds.
std::string DrawText(Gen& gen, int width, std::string_view digits, int bitsPerDigit) {
    return gen.Text([&] {
        constexpr std::string_view kOthers = "__xXzZ?__2389gG/: ";
        const int whole = std::max(width, 0) / bitsPerDigit + 6;
        const int most = gen.OneIn(4) ? 6 : gen.OneIn(4) ? whole * 3 / 2 : whole;
        const int stretch = gen.OneIn(3) ? 1000 : 20;
        std::string text;
        std::string_view set = digits;
        int othersOneIn = 1000;
        for (int left = gen.OneIn(4) ? most : gen.Below(most); left > 0; --left) {
            if (gen.OneIn(stretch)) {
                const auto first = static_cast<std::size_t>(gen.Below(int(digits.size())));
                set = gen.OneIn(2) ? digits : gen.OneIn(4) ? "_" : digits.substr(first);
                othersOneIn = gen.Pick(std::vector{3, 30, 1000});
            }
            const bool isOther = gen.OneIn(othersOneIn);
            text += !isOther       ? gen.Pick(set)
                    : gen.OneIn(2) ? gen.Pick(kOthers)
                                   : static_cast<char>(gen.Between(1, 255));
        }
        return text;
    });
}

constexpr char kBinary[] = "01", kOctal[] = "01234567", kDecimal[] = "0123456789",
               kHex[] = "0123456789abcdefABCDEF", kCharacters[] = "abc\xE9\x80";

template <const auto& digits, int bitsPerDigit>
Parsing DrawParsing(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    return {width, DrawText(gen, width, digits, bitsPerDigit).c_str()};
}

Packing DrawPacking(Gen& gen) {
    const int width = DrawDefinedWidth(gen);
    return {width, Counted{DrawText(gen, width, std::string_view("ab\0\xE9", 4), 8)}};
}

// Underscores anywhere, and texts around the length from which on storage is allocated.
Case ReadReal(Gen& gen) {
    const std::string text =
        gen.Text([&] {
               std::string digits;
               for (int left = gen.Below(gen.OneIn(10) ? 300 : 25); left > 0; --left) {
                   digits += "0123456789012345678901234567890123456789.-+eEx p"[gen.Below(48)];
                   if (gen.OneIn(3)) digits += '_';
               }
               return digits;
           })
            .c_str();
    const double value = std::strtod(WithoutUnderscores(text).c_str(), nullptr);
    return Case(tarn_CreateReal, text, RealResult(value));
}

RealPacking DrawRealPacking(Gen& gen) {
    return {ToReal{},
            Counted{DrawText(gen, 80, std::string_view("ab\0\0\0\xFF\xFF\xFF\x80", 9), 8)}};
}

double PackedReal(const std::string& characters) {
    return Nearest(Value(PackedValue(64, characters), kSign));
}

Properties Random() {
    return {
        TARN_ROW(tarn_BinaryStringToVector, RadixValue<1>, DrawParsing<kBinary, 1>),
        TARN_ROW(tarn_OctalStringToVector, RadixValue<3>, DrawParsing<kOctal, 3>),
        TARN_ROW(tarn_HexStringToVector, RadixValue<4>, DrawParsing<kHex, 4>),
        TARN_ROW(tarn_DecimalStringToVector, DecimalValue, DrawParsing<kDecimal, 3>),
        TARN_ROW(tarn_StringToVector, PackedValue, DrawParsing<kCharacters, 8>),
        TARN_ROW(tarn_AssignStringToVector, PackedValue, DrawPacking),
        {"tarn_CreateReal", ReadReal},
        TARN_ROW(tarn_AssignStringToReal, PackedReal, DrawRealPacking),
    };
}

std::vector<Case> ByHand() {
    return {
        // An unknown first digit is continued, one of decimal digits is all that is read.
        TARN_CALL(tarn_OctalStringToVector, 8, Result(Words(8, {{7, 0xF8}})), std::string("?7")),
        TARN_CALL(tarn_DecimalStringToVector, 5, Result(Words(5, {{0x1F, 0x1F}})),
                  std::string("x9")),
        TARN_CALL(tarn_StringToVector, 32, Result("32'h63646566"_v), std::string("abcdef")),
        TARN_CALL(tarn_AssignStringToVector, 20, Result("20'h06200"_v),
                  Counted{std::string("a\0b\0", 4)}),
        TARN_CALL(tarn_CreateReal, std::string("-i_nf"), RealResult(-HUGE_VAL)),
        TARN_CALL(tarn_CreateReal, std::string("3.5xyz"), RealResult(3.5)),
        TARN_CALL(tarn_AssignStringToReal, RealResult(16706.0), Counted{"AB"}),
        TARN_CALL(tarn_AssignStringToReal, RealResult(-1.0), Counted{std::string(8, '\xFF')}),
    };
}

}  // namespace

Family ParseFamily() {
    return {"Parse", Random(), ByHand};
}

}  // namespace tarn::test
