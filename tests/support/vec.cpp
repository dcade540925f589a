#include "support/vec.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

namespace tarn::test {

std::size_t WordCount(int width) {
    return width < 1 ? 0 : (static_cast<std::size_t>(width) + 31) / 32;
}

Vec Filled(int width, Logic value) {
    return {width, std::vector<Logic>(32 * WordCount(width), value)};
}

Vec Words(int width, const std::vector<VectorWord>& words) {
    Vec vec{width, {}};
    vec.bits.reserve(32 * words.size());
    for (const VectorWord& word : words) {
        for (unsigned i = 0; i < 32; ++i) {
            vec.bits.push_back(
                static_cast<Logic>(((word.aval >> i) & 1U) + 2 * ((word.bval >> i) & 1U)));
        }
    }
    return vec;
}

std::vector<VectorWord> ToWords(const Vec& vec) {
    std::vector<VectorWord> words(vec.bits.size() / 32);
    for (std::size_t i = 0; i < vec.bits.size(); ++i) {
        const auto code = static_cast<std::uint32_t>(vec.bits[i]);
        words[i / 32].aval |= (code & 1U) << (i % 32);
        words[i / 32].bval |= (code >> 1) << (i % 32);
    }
    return words;
}

namespace {

Vec FillAbove(Vec vec, Logic value) {
    std::fill(vec.bits.begin() + std::max(vec.width, 0), vec.bits.end(), value);
    return vec;
}

}  // namespace

Vec Clean(Vec vec) {
    return FillAbove(std::move(vec), Logic::k0);
}

Vec SignFilled(Vec vec) {
    if (vec.width < 1) return vec;
    const Logic sign = vec.bits[static_cast<std::size_t>(vec.width) - 1];
    return FillAbove(std::move(vec), sign);
}

Vec Prefix(const Vec& vec, int width) {
    const auto end = vec.bits.begin() + static_cast<std::ptrdiff_t>(32 * WordCount(width));
    return {width, std::vector<Logic>(vec.bits.begin(), end)};
}

namespace {

// One digit, least significant bit first. What is no digit of the base reads as 0.
std::array<Logic, 4> DigitBits(char digit, int bitsPerDigit) {
    std::array<Logic, 4> bits{};
    const std::string_view lower = "0123456789abcdef", upper = "0123456789ABCDEF";
    const std::size_t value = std::min(lower.find(digit), upper.find(digit));
    if (std::string_view("xX").find(digit) != std::string_view::npos) {
        bits.fill(Logic::kX);
    } else if (std::string_view("zZ?").find(digit) != std::string_view::npos) {
        bits.fill(Logic::kZ);
    } else if (value < (std::size_t{1} << bitsPerDigit)) {
        for (std::size_t i = 0; i < bits.size(); ++i) {
            bits[i] = (value >> i) % 2 == 1 ? Logic::k1 : Logic::k0;
        }
    }
    return bits;
}

}  // namespace

Vec FromDigits(int width, int bitsPerDigit, std::string_view digits, std::size_t* unread) {
    Vec vec = Filled(width, Logic::k0);
    const std::size_t wanted = width < 1 ? 0 : static_cast<std::size_t>(width);
    const auto perDigit = static_cast<std::size_t>(bitsPerDigit);
    std::size_t filled = 0;
    Logic beyond = Logic::k0;
    while (filled < wanted && !digits.empty()) {
        const char digit = digits.back();
        digits.remove_suffix(1);
        if (digit == '_') continue;
        const std::array<Logic, 4> bits = DigitBits(digit, bitsPerDigit);
        for (std::size_t i = 0; i < perDigit && filled + i < wanted; ++i) {
            vec.bits[filled + i] = bits[i];
        }
        filled += perDigit;
        beyond = bits[0] >= Logic::kZ ? bits[0] : Logic::k0;
    }
    for (; filled < wanted; ++filled) {
        vec.bits[filled] = beyond;
    }
    if (unread != nullptr) *unread = digits.size();
    return vec;
}

Vec operator""_v(const char* text, std::size_t length) {
    const std::string literal(text, length);
    const std::size_t quote = literal.find('\'');
    if (quote == std::string::npos) throw std::invalid_argument(literal);
    const bool isSigned = literal.at(quote + 1) == 's';
    const std::size_t base = quote + (isSigned ? 2 : 1);
    const std::size_t kind = std::string_view("b-oh").find(literal.at(base));
    if (kind == std::string_view::npos) throw std::invalid_argument(literal);
    const Vec vec = FromDigits(std::stoi(literal), static_cast<int>(kind) + 1,
                               std::string_view(literal).substr(base + 1));
    return isSigned ? SignFilled(vec) : vec;
}

}  // namespace tarn::test
