// The one growable buffer that text is returned in.
#ifndef TARN_TEXT_TEXT_BUFFER_H
#define TARN_TEXT_TEXT_BUFFER_H

#include <cstddef>
#include <cstdint>

namespace tarn {

class TextBuffer {
  public:
    TextBuffer() : data_(new char[size_]) {}
    ~TextBuffer();
    TextBuffer(const TextBuffer&) = delete;
    TextBuffer& operator=(const TextBuffer&) = delete;

    // The start of the buffer, which has room for byteCount bytes from now on. A buffer that is too
    // small doubles until it is large enough and keeps its contents; the old storage is freed.
    char* Reserve(std::uint64_t byteCount) { return byteCount > size_ ? Grow(byteCount) : data_; }

    // As numbers, because the text may belong to any other storage.
    bool Contains(const char* text) const noexcept {
        return reinterpret_cast<std::uintptr_t>(text) - reinterpret_cast<std::uintptr_t>(data_) <
               size_;
    }

    std::ptrdiff_t OffsetOf(const char* text) const noexcept { return text - data_; }

  private:
    static constexpr std::uint64_t kInitialSize = 10;

    char* Grow(std::uint64_t byteCount);

    std::uint64_t size_ = kInitialSize;
    char* data_;
};

extern TextBuffer globalBuffer;

// What the exports of the buffer do. A count whose terminator would not be counted any more, 2^32 -
// 1 for a given count and 2^31 - 1 for a measured one, gives an empty text.
char* OpenText(unsigned count);
char* CopyText(const char* text);
char* CopyPaddedText(const char* text, unsigned count);

// The empty text, in a buffer that stays as large as it is.
char* EmptyText();

}  // namespace tarn

#endif  // TARN_TEXT_TEXT_BUFFER_H
