// Arithmetic on operands of any widths, whose bits may be unknown and whose top words dirty.
#include <iterator>

#include <tarnlib/arith.h>

#include "arith_model.h"
#include "input.h"

namespace tarn::fuzz {
namespace {

using test::kSign;
using test::kZero;

struct Row {
    const char* name;
    void (*function)(int, VectorWord*, int, const VectorWord*, int, const VectorWord*);
    Vec (*model)(int, const Vec&, const Vec&);
};

constexpr Row kRows[] = {
    {"tarn_SignedAdd", tarn_SignedAdd, test::Sum<kSign, 1>},
    {"tarn_UnsignedAdd", tarn_UnsignedAdd, test::Sum<kZero, 1>},
    {"tarn_SignedSub", tarn_SignedSub, test::Sum<kSign, -1>},
    {"tarn_UnsignedSub", tarn_UnsignedSub, test::Sum<kZero, -1>},
    {"tarn_SignedMul", tarn_SignedMul, test::Product<kSign>},
    {"tarn_UnsignedMul", tarn_UnsignedMul, test::Product<kZero>},
    {"tarn_SignedDiv", tarn_SignedDiv, test::Quotient<kSign>},
    {"tarn_UnsignedDiv", tarn_UnsignedDiv, test::Quotient<kZero>},
    {"tarn_SignedMod", tarn_SignedMod, test::Remainder<kSign>},
    {"tarn_UnsignedMod", tarn_UnsignedMod, test::Remainder<kZero>},
    {"tarn_SignedUPower", tarn_SignedUPower, test::UPower<kSign>},
    {"tarn_UnsignedUPower", tarn_UnsignedUPower, test::UPower<kZero>},
    {"tarn_SignedSPower", tarn_SignedSPower, test::SPower<kSign>},
    {"tarn_UnsignedSPower", tarn_UnsignedSPower, test::SPower<kZero>},
};

// A result as wide as an operand as a rule. A power of a wide base takes a narrow exponent, and its
// result is not as wide as others.
void TwoOperands(Input& in) {
    const Row& row = kRows[in.Byte() % std::size(kRows)];
    const bool isPower = row.function == tarn_SignedUPower || row.function == tarn_SignedSPower ||
                         row.function == tarn_UnsignedUPower || row.function == tarn_UnsignedSPower;
    constexpr int kMaxPowerWidth = 600, kMaxExponentWidth = 100;
    const Vec a = in.Vector(in.Width());
    const int bWidth = in.Flag() ? a.width : in.Width();
    const Vec b = in.Vector(isPower ? std::min(bWidth, kMaxExponentWidth) : bWidth);
    const int resultWidth = in.Flag() ? a.width : in.Width();
    const int width = isPower ? std::min(resultWidth, kMaxPowerWidth) : resultWidth;
    const Vec result = CallInStorage(
        in, width, {a, b}, Place::kAnywhere, [&](VectorWord* words, VectorWord* const* operands) {
            row.function(width, words, a.width, operands[0], b.width, operands[1]);
        });
    CheckEqual(row.name, result, row.model(width, a, b));
}

// A dividend beside a multiple of its divisor, where estimated quotients go wrong.
void BesideMultiples(Input& in) {
    const mpz_class divisor = ToInteger(in.Vector(in.Width()));
    const mpz_class factor = ToInteger(in.Vector(in.Width()));
    const mpz_class dividend = divisor * factor + in.Byte() % 3 - 1;
    if (divisor == 0 || dividend < 0) return;
    const auto widthOf = [](const mpz_class& value) {
        return static_cast<int>(mpz_sizeinbase(value.get_mpz_t(), 2)) + 1;
    };
    const Vec a = test::FromInteger(widthOf(dividend), dividend);
    const Vec b = test::FromInteger(widthOf(divisor), divisor);
    const bool isQuotient = in.Flag();
    const Vec result = CallInStorage(
        in, a.width, {a, b}, Place::kAnywhere, [&](VectorWord* words, VectorWord* const* operands) {
            (isQuotient ? tarn_UnsignedDiv : tarn_UnsignedMod)(a.width, words, a.width, operands[0],
                                                               b.width, operands[1]);
        });
    CheckEqual(isQuotient ? "quotient" : "remainder", result,
               test::FromInteger(a.width, isQuotient ? mpz_class(dividend / divisor)
                                                     : mpz_class(dividend % divisor)));
}

void OneOperand(Input& in) {
    struct OneOperandRow {
        const char* name;
        void (*function)(int, VectorWord*, int, const VectorWord*);
        Vec (*model)(int, const Vec&);
    };
    constexpr OneOperandRow kOneOperandRows[] = {
        {"tarn_SignedMinus", tarn_SignedMinus, test::Signed<kSign, -1>},
        {"tarn_UnsignedMinus", tarn_UnsignedMinus, test::Signed<kZero, -1>},
        {"tarn_SignedPlus", tarn_SignedPlus, test::Signed<kSign, 1>},
        {"tarn_UnsignedPlus", tarn_UnsignedPlus, test::Signed<kZero, 1>},
    };
    const OneOperandRow& row = kOneOperandRows[in.Byte() % std::size(kOneOperandRows)];
    const Vec a = in.Vector(in.Width());
    const int width = in.Flag() ? a.width : in.Width();
    const Vec result = CallInStorage(in, width, {a}, Place::kAnywhere,
                                     [&](VectorWord* words, VectorWord* const* operands) {
                                         row.function(width, words, a.width, operands[0]);
                                     });
    CheckEqual(row.name, result, row.model(width, a));
}

void Step(Input& in) {
    const bool isUp = in.Flag();
    const Vec v = in.Vector(in.Width());
    const Vec stepped = CallInStorage(in, v.width, {v}, Place::kFirstOperand,
                                      [&](VectorWord* words, VectorWord* const*) {
                                          (isUp ? tarn_Inc : tarn_Dec)(v.width, words);
                                      });
    CheckEqual("step", stepped, isUp ? test::Stepped<1>(v) : test::Stepped<-1>(v));
}

constexpr void (*kCalls[])(Input&) = {TwoOperands, BesideMultiples, OneOperand, Step};

}  // namespace
}  // namespace tarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tarn::fuzz::RunOneOf(tarn::fuzz::kCalls, data, size);
}
