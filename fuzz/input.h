// What the fuzz targets share: values taken from an input's bytes, storage of exact sizes, and the
// checks that make a wrong result a finding.
#ifndef TARN_FUZZ_INPUT_H
#define TARN_FUZZ_INPUT_H

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "support/vec.h"

namespace tarn::fuzz {

using test::Logic;
using test::Vec;

// An input is read from its front, so that a seed can be written by hand; at its end zeros follow.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}

    std::uint8_t Byte() { return next_ == end_ ? std::uint8_t{0} : *next_++; }
    bool Flag() { return Byte() % 2 == 1; }

    // Least significant byte first.
    template <class Number>
    Number Take() {
        std::array<std::uint8_t, sizeof(Number)> bytes;
        std::generate(bytes.begin(), bytes.end(), [this] { return Byte(); });
        return std::bit_cast<Number>(bytes);
    }

    int Below(int bound) { return Take<std::uint16_t>() % bound; }

    // 1 to 500 bits as a rule, up to 16,384 for one in 64.
    int Width() {
        const unsigned number = Take<std::uint16_t>();
        return static_cast<int>(number < 0xFC00 ? number % 500 : number % 0x400 * 16) + 1;
    }

    // Words that follow bit by bit, a short pattern repeated, or runs of random bits: a wide vector
    // needs no long input.
    Vec Vector(int width);

    // Up to a NUL, or all the rest.
    std::string Text();
    std::string Rest();

  private:
    const std::uint8_t* next_;
    const std::uint8_t* end_;
};

inline Vec Input::Vector(int width) {
    std::vector<VectorWord> words(test::WordCount(width));
    const unsigned form = Byte();
    const std::size_t period = form % 4 == 0 ? words.size() : form % 4;
    std::uint64_t random = form < 0xC0 ? 0 : Take<std::uint32_t>();
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (random != 0) {
            random ^= random << 13, random ^= random >> 7, random ^= random << 17;
            words[i].aval = static_cast<std::uint32_t>(random);
            words[i].bval = form % 8 < 4 ? 0 : static_cast<std::uint32_t>(random >> 33 & 0xF);
        } else if (i < period) {
            words[i].aval = Take<std::uint32_t>();
            // Unknown bits are rare in what is calculated.
            words[i].bval = form % 8 < 4 ? 0 : Take<std::uint32_t>();
        } else {
            words[i] = words[i - period];
        }
    }
    const Vec vec = test::Words(width, words);
    const unsigned top = form >> 4 & 3U;
    return top == 0 ? test::Clean(vec) : top == 1 ? test::SignFilled(vec) : vec;
}

inline std::string Input::Text() {
    const std::uint8_t* const begin = next_;
    const std::uint8_t* const nul = std::find(begin, end_, 0);
    next_ = nul == end_ ? nul : nul + 1;
    return {begin, nul};
}

inline std::string Input::Rest() {
    const std::uint8_t* const begin = next_;
    next_ = end_;
    return {begin, end_};
}

// For a target of several calls: the first byte chooses one, which takes what follows.
template <std::size_t kCount>
int RunOneOf(void (*const (&calls)[kCount])(Input&), const std::uint8_t* data, std::size_t size) {
    Input in(data, size);
    calls[in.Byte() % kCount](in);
    return 0;
}

/*------------------------------------------------------------------------------------------------
 * Checks
 *----------------------------------------------------------------------------------------------*/

// Ends the run, so that the input becomes a finding.
template <class... Values>
[[noreturn]] void Fail(const Values&... values) {
    (std::cerr << ... << values) << std::endl;
    std::abort();
}

template <class Value>
void CheckEqual(const char* what, const Value& actual, const Value& expected) {
    if (!(actual == expected)) Fail(what, ": ", actual, ", expected ", expected);
}

inline void Check(const char* what, bool holds) {
    if (!holds) Fail(what);
}

/*------------------------------------------------------------------------------------------------
 * Storage
 *----------------------------------------------------------------------------------------------*/

// Items in a block of their own whose end the address sanitizer watches. They begin `shift` bytes
// behind the start of the block, so that no alignment but their own can be relied upon.
template <class Item>
class Storage {
  public:
    Storage(const std::vector<Item>& items, std::size_t shift)
        : shift_(shift), count_(items.size()), bytes_(new char[shift + count_ * sizeof(Item)]) {
        std::fill_n(bytes_.get(), shift, kMargin);
        std::copy(items.begin(), items.end(), Data());
    }

    Item* Data() { return reinterpret_cast<Item*>(bytes_.get() + shift_); }

    std::vector<Item> Items() {
        Check("bytes were written in front of the storage",
              std::all_of(bytes_.get(), bytes_.get() + shift_,
                          [](char byte) { return byte == kMargin; }));
        return {Data(), Data() + count_};
    }

  private:
    static constexpr char kMargin = 0x5A;

    std::size_t shift_;
    std::size_t count_;
    std::unique_ptr<char[]> bytes_;
};

inline bool AreSame(const std::vector<VectorWord>& a, const std::vector<VectorWord>& b) {
    const auto isSame = [](const VectorWord& x, const VectorWord& y) {
        return x.aval == y.aval && x.bval == y.bval;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSame);
}

// A text and its terminator.
inline Storage<char> TextStorage(const std::string& text) {
    return {std::vector<char>(text.c_str(), text.c_str() + text.size() + 1), text.size() % 8};
}

// Where a result may lie.
enum class Place { kAnywhere, kFirstOperand };

// Calls call(result, operands) with exactly as many words as each vector has, the result apart from
// the operands or on top of one, and returns what was written. Nothing else may have changed.
template <class Call>
Vec CallInStorage(Input& in, int resultWidth, const std::vector<Vec>& operands, Place place,
                  Call call) {
    constexpr VectorWord kFiller{0xA5A5A5A5, 0x5A5A5A5A};
    const unsigned form = in.Byte();
    const std::size_t shift = form % 2 * sizeof(std::uint32_t);
    const std::size_t resultWords = test::WordCount(resultWidth);
    std::vector<std::vector<VectorWord>> before(operands.size() + 1);
    std::transform(operands.begin(), operands.end(), before.begin(), test::ToWords);
    // The block that takes the result is made long enough for it.
    const std::size_t shared = place == Place::kFirstOperand ? 0 : form / 2 % before.size();
    if (before[shared].size() < resultWords) before[shared].resize(resultWords, kFiller);
    std::vector<Storage<VectorWord>> blocks;
    std::vector<VectorWord*> pointers;
    for (const std::vector<VectorWord>& words : before) {
        blocks.emplace_back(words, shift);
        pointers.push_back(blocks.back().Data());
    }
    call(pointers[shared], pointers.data());
    const std::vector<VectorWord> after = blocks[shared].Items();
    const auto end = after.begin() + static_cast<std::ptrdiff_t>(resultWords);
    std::copy(after.begin(), end, before[shared].begin());
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        Check("what is not the result stays as it was", AreSame(blocks[i].Items(), before[i]));
    }
    return test::Words(resultWidth, {after.begin(), end});
}

}  // namespace tarn::fuzz

#endif  // TARN_FUZZ_INPUT_H
