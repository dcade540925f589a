/* Generated code is C: calls a function of each family and exits with 1 where a result is wrong. */
#include <stdio.h>
#include <string.h>

#include <tarnlib.h>

static int failures = 0;

static void Check(int isRight, const char* what) {
    if (isRight) return;
    fprintf(stderr, "c_consumer: wrong result: %s\n", what);
    ++failures;
}
#define CHECK(condition) Check((condition) != 0, #condition)

static int Holds(const VectorWord* word, uint32_t aval, uint32_t bval) {
    return word->aval == aval && word->bval == bval;
}

static void CheckVectors(void) {
    VectorWord wide[2] = {{7, 7}, {7, 7}}, word = {7, 7};
    const VectorWord minusOne = {0xFFFFFFFF, 0}, one = {1, 0}, x = {1, 1}, three = {3, 0};
    tarn_SignedCopy(40, wide, 8, &minusOne);
    CHECK(Holds(&wide[1], 0xFFFFFFFF, 0));
    tarn_UnsignedConvertLong(64, wide, UINT64_C(0x2C0000000));
    CHECK(Holds(&wide[0], 0xC0000000, 0) && Holds(&wide[1], 2, 0));
    tarn_Partselect(&word, wide, 30, 4);
    CHECK(Holds(&word, 0xB, 0));
    tarn_UnsignedAdd(8, &word, 8, &word, 8, &one);
    tarn_Dec(8, &word);
    CHECK(Holds(&word, 0xB, 0));
    tarn_UnsignedConditionalMix(4, &word, 4, &three, 4, &one);
    CHECK(Holds(&word, 3, 2) && tarn_ReductionXOR(4, &word) == TARN_LOGIC_X);
    CHECK(tarn_CheckCondition(4, &word) == 1 && tarn_UnsignedEq(1, &x, 1, &one) == TARN_LOGIC_X);
    CHECK(tarn_SignedRelation(8, &minusOne, 8, &one) == TARN_RELATION_LESS);
    CHECK(Holds(&tarn_LogicVectorLUT[TARN_LOGIC_X], 1, 1) && ClassAEB == 0);
}

static void CheckReals(void) {
    VectorWord rounded = {7, 7};
    double result = 0.0;
    tarn_ConvertToVector(8, &rounded, -2.5);
    CHECK(Holds(&rounded, 0xFFFFFFFD, 0) && tarn_SignedConvertToReal(8, &rounded) == -3.0);
    tarn_Atan2R(&result, 1.0, 0.0);
    CHECK(result == 0.0 && tarn_Clog2(8, &tarn_LogicVectorLUT[TARN_LOGIC_X]) == 0);
    tarn_CreateReal("1_0.5", &result);
    CHECK(result == 10.5);
}

static VectorWord literalWords[2];

static void* AllocateLiteral(uint64_t byteCount) {
    CHECK(byteCount == sizeof literalWords);
    return literalWords;
}

static void CheckText(void) {
    int width = 0;
    VectorWord* literal = NULL;
    unsigned char truncated = 1;
    CHECK(tarn_CreateVector("40", "'shx5", &width, &literal, AllocateLiteral, &truncated));
    CHECK(width == 40 && literal == literalWords && truncated == 0);
    CHECK(strcmp(tarn_ConvertToHex(width, literal, 0), "xxxxxxxxx5") == 0);
    CHECK(!tarn_DecimalStringToVector(width, literalWords, "4294967296"));
    CHECK(Holds(&literalWords[0], 0, 0) && Holds(&literalWords[1], 1, 0));
    CHECK(strcmp(tarn_CopyNToGlobalBuffer("abcdef", 3), "abc") == 0);
}

int main(void) {
    CheckVectors();
    CheckReals();
    CheckText();
    return failures > 0;
}
