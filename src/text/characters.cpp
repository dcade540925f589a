#include "text/characters.h"

#include <cstring>

#include "text/text_buffer.h"

namespace tarn {
namespace {

// Whether one of the four bytes is 0 (Alan Mycroft's test).
constexpr bool HasZeroByte(std::uint32_t bytes) noexcept {
    return ((bytes - 0x01010101U) & ~bytes & 0x80808080U) != 0;
}
static_assert(HasZeroByte(0x61006263) && HasZeroByte(0) && !HasZeroByte(0x01800101));

// The low `count` bytes of a word in front of the text that begins at `first`.
char* PrependBytes(char* first, std::uint32_t bytes, unsigned count, bool spaceForNul) noexcept {
    for (unsigned i = 0; i < count; ++i, bytes >>= 8) {
        const char character = static_cast<char>(bytes & 0xFF);
        if (character != '\0') {
            *--first = character;
        } else if (spaceForNul) {
            *--first = ' ';
        }
    }
    return first;
}

}  // namespace

char* FormatCharacter(char character, bool spaceForNul) {
    char* const text = globalBuffer.Reserve(2);
    text[0] = character == '\0' && spaceForNul ? ' ' : character;
    text[1] = '\0';
    return text;
}

char* FormatString(Operand value, bool spaceForNul) {
    if (value.width < 1) return EmptyText();
    const std::size_t byteCount = (static_cast<std::size_t>(value.width) + 7) / 8;
    char* first = globalBuffer.Reserve(byteCount + 1) + byteCount;
    *first = '\0';
    const std::size_t last = value.Count() - 1;
    for (std::size_t i = 0; i < last; ++i) {
        const std::uint32_t bytes = KnownOnes(LoadWord(value.words + i));
        if (HasZeroByte(bytes)) {
            first = PrependBytes(first, bytes, 4, spaceForNul);
        } else {
            const std::uint32_t inTextOrder = __builtin_bswap32(bytes);
            first -= 4;
            std::memcpy(first, &inTextOrder, 4);
        }
    }
    return PrependBytes(first, KnownOnes(LoadWord(value.words + last)),
                        static_cast<unsigned>(byteCount - 4 * last), spaceForNul);
}

}  // namespace tarn
