// The vector of the reference model: a list of logic values, and how tests write one down.
#ifndef TARN_TESTS_SUPPORT_VEC_H
#define TARN_TESTS_SUPPORT_VEC_H

#include <cstdint>
#include <string_view>
#include <vector>

#include <tarnlib/vector.h>

namespace tarn::test {

// Numbered as aval + 2 * bval, as a LogicCode is.
enum class Logic : std::uint8_t { k0, k1, kZ, kX };

// `bits` is the whole storage, least significant first and 32 a word: the bits of the top word
// above the width are part of it, because operations read and write them.
struct Vec {
    int width = 0;
    std::vector<Logic> bits;

    friend bool operator==(const Vec&, const Vec&) = default;
};

std::size_t WordCount(int width);

// Every bit of the storage the same.
Vec Filled(int width, Logic value);

// A vector from its storage, which says what a literal can't: dirty top words.
Vec Words(int width, const std::vector<VectorWord>& words);
std::vector<VectorWord> ToWords(const Vec& vec);

// The same value with zeros above the width, and with copies of the top bit.
Vec Clean(Vec vec);
Vec SignFilled(Vec vec);

// The same storage under another width, cut to that width's words.
Vec Prefix(const Vec& vec, int width);

// Digits of 1, 3 or 4 bits as they are read into a vector of a width: from the last one on, '_'
// skipped, extended by x or z where that is the first digit. `unread` receives the number of
// characters in front of those that were needed.
Vec FromDigits(int width, int bitsPerDigit, std::string_view digits, std::size_t* unread = nullptr);

// "4'b01zx"_v, "9'o7x"_v, "40'hdead"_v in clean storage; with an s before the base ("8'sh80"_v) in
// signed storage.
Vec operator""_v(const char* text, std::size_t length);

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_VEC_H
