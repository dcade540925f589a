/* The values that the examples name, checked: what differs is printed, and the program fails. */
#ifndef GUIDE_CHECK_H
#define GUIDE_CHECK_H

#include <stdio.h>
#include <string.h>

#include <tarnlib.h>

static int failureCount = 0;

static inline void ExpectWords(int line, const char* text, const VectorWord* words,
                               const VectorWord* expected, size_t byteCount) {
    for (size_t i = 0; i < byteCount / sizeof(VectorWord); ++i) {
        if (words[i].aval == expected[i].aval && words[i].bval == expected[i].bval) continue;
        printf("line %d: %s[%zu] is {0x%x, 0x%x}, not {0x%x, 0x%x}\n", line, text, i, words[i].aval,
               words[i].bval, expected[i].aval, expected[i].bval);
        ++failureCount;
    }
}

static inline void ExpectReal(int line, const char* text, double real, double expected) {
    if (real >= expected && real <= expected) return;
    printf("line %d: %s is %g, not %g\n", line, text, real, expected);
    ++failureCount;
}

static inline void ExpectText(int line, const char* text, const char* actual,
                              const char* expected) {
    if (strcmp(actual, expected) == 0) return;
    printf("line %d: %s is \"%s\", not \"%s\"\n", line, text, actual, expected);
    ++failureCount;
}

/* The words of a vector, least significant first, as {aval, bval}. */
#define EXPECT_WORDS(vector, ...)                                             \
    ExpectWords(__LINE__, #vector, vector, (const VectorWord[]){__VA_ARGS__}, \
                sizeof((const VectorWord[]){__VA_ARGS__}))
/* Integers and codes are reals here, too. */
#define EXPECT_VALUE(expression, expected) ExpectReal(__LINE__, #expression, expression, expected)
#define EXPECT_TEXT(expression, expected) ExpectText(__LINE__, #expression, expression, expected)

#endif
