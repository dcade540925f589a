#include "support/guarded.h"

#include <algorithm>
#include <new>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace tarn::test {
namespace {

constexpr std::ptrdiff_t kMargin = 32;
constexpr std::byte kPaint{0x5C};

std::size_t PageSize() {
    static const auto size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size;
}

}  // namespace

GuardedBlock::~GuardedBlock() {
    Unmap();
}

void GuardedBlock::Unmap() {
    if (first_ == nullptr) return;
    munmap(first_ - PageSize(), static_cast<std::size_t>(last_ - first_) + 2 * PageSize());
    first_ = nullptr;
}

void GuardedBlock::Map(std::size_t byteCount) {
    Unmap();
    const std::size_t page = PageSize();
    const std::size_t inside = (byteCount / page + 1) * page;
    void* const all =
        mmap(nullptr, inside + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED) throw std::bad_alloc();
    first_ = static_cast<std::byte*>(all) + page;
    last_ = first_ + inside;
    if (mprotect(first_, inside, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
}

std::byte* GuardedBlock::Place(std::size_t byteCount, Edge edge) {
    if (first_ == nullptr || static_cast<std::size_t>(last_ - first_) < byteCount + 4) {
        Map(byteCount + 4);
    }
    placedCount_ = byteCount;
    placed_ = edge == Edge::kBeginsAtPage ? first_ : last_ - byteCount;
    if (edge == Edge::kOffPage) placed_ -= 4;
    std::byte* const end = placed_ + byteCount;
    std::fill(placed_ - std::min(kMargin, placed_ - first_), placed_, kPaint);
    std::fill(end, end + std::min(kMargin, last_ - end), kPaint);
    return placed_;
}

const char* GuardedBlock::PlaceCharacters(std::string_view characters, Edge edge) {
    char* const placed = reinterpret_cast<char*>(Place(characters.size(), edge));
    std::copy(characters.begin(), characters.end(), placed);
    return placed;
}

const char* GuardedBlock::PlaceText(std::string_view text, Edge edge) {
    std::string terminated(text);
    terminated.push_back('\0');
    return PlaceCharacters(terminated, edge);
}

bool GuardedBlock::MarginsAreIntact() const {
    const auto isPaint = [](std::byte b) { return b == kPaint; };
    const std::byte* const end = placed_ + placedCount_;
    return std::all_of(placed_ - std::min(kMargin, placed_ - first_), placed_, isPaint) &&
           std::all_of(end, end + std::min(kMargin, last_ - end), isPaint);
}

}  // namespace tarn::test
