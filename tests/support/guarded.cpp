#include "support/guarded.h"

#include <algorithm>
#include <new>
#include <string>

#include "support/platform.h"

namespace tarn::test {
namespace {

constexpr std::ptrdiff_t kMargin = 32;
constexpr std::byte kPaint{0x5C};

}  // namespace

GuardedBlock::~GuardedBlock() {
    Unmap();
}

void GuardedBlock::Unmap() {
    if (first_ == nullptr) return;
    UnmapGuarded(first_, static_cast<std::size_t>(last_ - first_));
    first_ = nullptr;
}

void GuardedBlock::Map(std::size_t byteCount) {
    Unmap();
    const std::size_t page = PageSize();
    const std::size_t inside = (byteCount / page + 1) * page;
    first_ = MapGuarded(inside);
    if (first_ == nullptr) throw std::bad_alloc();
    last_ = first_ + inside;
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
