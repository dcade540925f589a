/* Generated code is C: calls a function of each family and exits with 1 where a result is wrong. */
#include <stdio.h>
#include <string.h>

#include <tarnlib.h>

static int failures = 0;

static void Check(int isRight, const char* what) {
    if (!isRight) {
        fprintf(stderr, "c_consumer: wrong result: %s\n", what);
        ++failures;
    }
}
#define CHECK(condition) Check((condition) != 0, #condition)

static void CheckVectors(void) {
    VectorWord wide[2] = {{7, 7}, {7, 7}};
    const VectorWord minusOne = {0xFFFFFFFF, 0};
    tarn_SignedCopy(40, wide, 8, &minusOne);
    CHECK(wide[1].aval == 0xFFFFFFFF && wide[1].bval == 0);
    tarn_UnsignedConvertLong(64, wide, UINT64_C(0x123456789));
    CHECK(wide[0].aval == 0x23456789 && wide[1].aval == 1);
    CHECK(tarn_LogicVectorLUT[TARN_LOGIC_X].aval == 1 && ClassAEB == 0);
}

static void CheckArithmetic(void) {
    VectorWord sum = {0, 0};
    const VectorWord a = {0xFF, 0}, b = {1, 0};
    tarn_UnsignedAdd(8, &sum, 8, &a, 8, &b);
    CHECK(sum.aval == 0x100 && sum.bval == 0);
    tarn_Dec(8, &sum);
    CHECK(sum.aval == 0xFF);
}

static void CheckLogic(void) {
    VectorWord merged = {0, 0};
    const VectorWord a = {0x3, 0}, b = {0x5, 0};
    tarn_UnsignedConditionalMix(4, &merged, 4, &a, 4, &b);
    CHECK(merged.aval == 0x7 && merged.bval == 0x6);
    CHECK(tarn_ReductionXOR(4, &merged) == TARN_LOGIC_X && tarn_CheckCondition(4, &merged) == 1);
}

static void CheckComparison(void) {
    const VectorWord minusOne = {0xFFFFFFFF, 0}, one = {1, 0}, x = {1, 1};
    CHECK(tarn_SignedRelation(8, &minusOne, 8, &one) == TARN_RELATION_LESS);
    CHECK(tarn_UnsignedEq(1, &x, 1, &one) == TARN_LOGIC_X);
}

static void CheckSelects(void) {
    VectorWord field = {0, 0};
    const VectorWord source[2] = {{0xC0000000, 0x80000000}, {2, 0}};
    tarn_Partselect(&field, source, 30, 4);
    CHECK(field.aval == 0xB && field.bval == 2);
}

static void CheckReals(void) {
    VectorWord rounded = {7, 7};
    double result = 0.0;
    tarn_ConvertToVector(8, &rounded, -2.5);
    CHECK(rounded.aval == 0xFFFFFFFD && rounded.bval == 0);
    CHECK(tarn_SignedConvertToReal(8, &rounded) == -3.0);
    tarn_Atan2R(&result, 1.0, 0.0);
    CHECK(result == 0.0 && tarn_Clog2(8, &tarn_LogicVectorLUT[TARN_LOGIC_X]) == 0);
}

static VectorWord literalWords[2];

static void* AllocateLiteral(uint64_t byteCount) {
    CHECK(byteCount == sizeof literalWords);
    return literalWords;
}

static void CheckText(void) {
    double real = 0.0;
    int width = 0;
    VectorWord* literal = NULL;
    unsigned char truncated = 1;
    CHECK(tarn_CreateVector("40", "'shx5", &width, &literal, AllocateLiteral, &truncated));
    CHECK(width == 40 && literal == literalWords && truncated == 0);
    CHECK(strcmp(tarn_ConvertToHex(width, literal, 0), "xxxxxxxxx5") == 0);
    CHECK(!tarn_DecimalStringToVector(width, literalWords, "4294967296"));
    CHECK(literalWords[0].aval == 0 && literalWords[1].aval == 1 && literalWords[1].bval == 0);
    CHECK(strcmp(tarn_CopyNToGlobalBuffer("abcdef", 3), "abc") == 0);
    tarn_CreateReal("1_0.5", &real);
    CHECK(real == 10.5);
}

int main(void) {
    CheckVectors();
    CheckArithmetic();
    CheckComparison();
    CheckLogic();
    CheckSelects();
    CheckReals();
    CheckText();
    return failures > 0;
}
