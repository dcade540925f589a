#include "text/text_buffer.h"

#include <climits>
#include <cstring>

namespace tarn {

TextBuffer globalBuffer;

TextBuffer::~TextBuffer() {
    delete[] data_;
    data_ = nullptr;
    size_ = 0;
}

char* TextBuffer::Grow(std::uint64_t byteCount) {
    std::uint64_t newSize = size_ == 0 ? kInitialSize : size_;
    while (newSize < byteCount) {
        newSize *= 2;
    }
    char* const grown = new char[newSize];
    if (data_ != nullptr) {
        std::memcpy(grown, data_, size_);
    }
    delete[] data_;
    data_ = grown;
    size_ = newSize;
    return data_;
}

char* EmptyText() {
    char* const data = globalBuffer.Reserve(1);
    data[0] = '\0';
    return data;
}

char* OpenText(unsigned count) {
    if (count == UINT_MAX) return EmptyText();
    char* const data = globalBuffer.Reserve(std::uint64_t{count} + 1);
    data[count] = '\0';
    return data;
}

char* CopyText(const char* text) {
    const std::size_t length = std::strlen(text);
    if (length >= INT_MAX) return EmptyText();
    // A text that lies in the buffer fits in it, so it never moves away under the copy.
    char* const data = globalBuffer.Reserve(length + 1);
    std::memmove(data, text, length + 1);
    return data;
}

char* CopyPaddedText(const char* text, unsigned count) {
    if (count == UINT_MAX) return EmptyText();
    const std::size_t length = strnlen(text, count);
    const bool inBuffer = globalBuffer.Contains(text);
    const std::ptrdiff_t offset = inBuffer ? globalBuffer.OffsetOf(text) : 0;
    char* const data = globalBuffer.Reserve(std::uint64_t{count} + 1);
    // Growth kept the buffer's contents at the same offset of the new storage.
    std::memmove(data, inBuffer ? data + offset : text, length);
    std::memset(data + length, '\0', count - length + 1);
    return data;
}

}  // namespace tarn
