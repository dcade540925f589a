// Classes of characters. The C library's depend on the locale; a language's don't.
#ifndef TARNCALC_CHARACTERS_H
#define TARNCALC_CHARACTERS_H

namespace tarncalc {

constexpr bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/** A character that continues a word or a number, so that it can't begin the next one. */
constexpr bool IsWord(char c) {
    return IsDigit(c) || IsLetter(c) || c == '_';
}

constexpr bool IsControl(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 || code == 0x7F;
}

constexpr char ToLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace tarncalc

#endif
