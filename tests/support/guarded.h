// Memory of an exact size beside a page that can't be touched.
#ifndef TARN_TESTS_SUPPORT_GUARDED_H
#define TARN_TESTS_SUPPORT_GUARDED_H

#include <cstddef>
#include <string_view>

namespace tarn::test {

// Where a run of bytes lies in its block. kOffPage leaves 4 bytes before the page, so that storage
// of whole words is aligned to 4 bytes only.
enum class Edge { kEndsAtPage, kBeginsAtPage, kOffPage };
inline constexpr Edge kEdges[] = {Edge::kEndsAtPage, Edge::kBeginsAtPage, Edge::kOffPage};

// A run of pages between two unmapped ones. It stays mapped, and is only replaced by a larger one.
class GuardedBlock {
  public:
    GuardedBlock() = default;
    ~GuardedBlock() { Unmap(); }
    GuardedBlock(const GuardedBlock&) = delete;
    GuardedBlock& operator=(const GuardedBlock&) = delete;

    // Exactly byteCount bytes. What an earlier call returned is no longer valid.
    std::byte* Place(std::size_t byteCount, Edge edge);

    // A text and, where it is to have one, its terminator.
    const char* PlaceText(std::string_view text, Edge edge);
    const char* PlaceCharacters(std::string_view characters, Edge edge);

    // Whether nothing was written close to the placed bytes on a side where memory is mapped.
    bool MarginsAreIntact() const;

  private:
    void Unmap();

    std::byte* first_ = nullptr;
    std::byte* last_ = nullptr;
    std::byte* placed_ = nullptr;
    std::size_t placedCount_ = 0;
};

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_GUARDED_H
