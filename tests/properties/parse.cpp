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
struct RealParsing {
    std::string text;
};

Case CaseOf(auto* function, auto model, const RealParsing& drawn) {
    return Case(function, drawn.text, RealResult(model(drawn.text)));
}

// Stretches of digits alone, of other characters among them and of underscores, together up to half
// as much again as the width holds.
std::string DrawText(Gen& gen, int width, std::string_view digits, int bitsPerDigit) {
    return gen.Text([&] {
        constexpr std::string_view kOthers = "__xXzZ?__2389gG/: \xE9";
        const int whole = std::max(width, 0) / bitsPerDigit + 6;
        const int most = gen.OneIn(4) ? 6 : gen.OneIn(4) ? whole * 3 / 2 : whole;
        std::string text;
        enum { kDigits, kMixed, kSkipped } kind = kDigits;
        for (int left = gen.Below(most); left > 0; --left) {
            if (gen.OneIn(20)) kind = gen.OneIn(4) ? kSkipped : kind == kDigits ? kMixed : kDigits;
            text += kind == kSkipped                      ? '_'
                    : kind == kMixed && gen.OneIn(3)      ? gen.Pick(kOthers)
                    : kind == kDigits && gen.OneIn(10000) ? gen.Pick(kOthers)
                                                          : gen.Pick(digits);
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
RealParsing DrawReal(Gen& gen) {
    const std::string text = gen.Text([&] {
        std::string digits;
        for (int left = gen.Below(gen.OneIn(10) ? 300 : 25); left > 0; --left) {
            digits += "0123456789012345678901234567890123456789.-+eEx p"[gen.Below(48)];
            if (gen.OneIn(3)) digits += '_';
        }
        return digits;
    });
    return {text.c_str()};
}

double RealValue(const std::string& text) {
    return std::strtod(WithoutUnderscores(text).c_str(), nullptr);
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
        TARN_ROW(tarn_CreateReal, RealValue, DrawReal),
        TARN_ROW(tarn_AssignStringToReal, PackedReal, DrawRealPacking),
    };
}

Properties ByHand() {
    return {
        // An unknown first digit is continued, one of decimal digits is all that is read.
        TARN_KNOWN(tarn_OctalStringToVector, Parsing{8, "?7"}, Words(8, {{7, 0xF8}})),
        TARN_KNOWN(tarn_HexStringToVector, Parsing{40, "x_"},
                   Words(40, {{~0U, ~0U}, {0xFF, 0xFF}})),
        TARN_KNOWN(tarn_DecimalStringToVector, Parsing{5, "x9"}, Words(5, {{0x1F, 0x1F}})),
        TARN_KNOWN(tarn_DecimalStringToVector, Parsing{70, "1180591620717411303424"}, "70'h0"_v),
        TARN_KNOWN(tarn_StringToVector, Parsing{32, "abcdef"}, "32'h63646566"_v),
        TARN_KNOWN(tarn_AssignStringToVector, Packing{20, Counted{std::string("a\0b\0", 4)}},
                   "20'h06200"_v),
        TARN_KNOWN(tarn_CreateReal, RealParsing{"2.5e-1_0"}, 2.5e-10),
        TARN_KNOWN(tarn_CreateReal, RealParsing{"-i_nf"}, -HUGE_VAL),
        TARN_KNOWN(tarn_CreateReal, RealParsing{"3.5xyz"}, 3.5),
        TARN_KNOWN(tarn_AssignStringToReal, RealPacking{ToReal{}, Counted{"AB"}}, 16706.0),
        TARN_KNOWN(tarn_AssignStringToReal, RealPacking{ToReal{}, Counted{std::string(8, '\xFF')}},
                   -1.0),
    };
}

}  // namespace

Family ParseFamily() {
    return {"Parse", Random(), ByHand};
}

}  // namespace tarn::test
