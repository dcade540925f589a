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

void GuardedBlock::Unmap() {
    if (first_ != nullptr) UnmapGuarded(first_, static_cast<std::size_t>(last_ - first_));
}

std::byte* GuardedBlock::Place(std::size_t byteCount, Edge edge) {
    if (static_cast<std::size_t>(last_ - first_) < byteCount + 4) {
        const std::size_t page = PageSize(), inside = ((byteCount + 4) / page + 1) * page;
        std::byte* const mapped = MapGuarded(inside);
        if (mapped == nullptr) throw std::bad_alloc();
        Unmap();
        first_ = mapped;
        last_ = mapped + inside;
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
    return PlaceCharacters(std::string(text) + '\0', edge);
}

bool GuardedBlock::MarginsAreIntact() const {
    const auto isPaint = [](std::byte b) { return b == kPaint; };
    const std::byte* const end = placed_ + placedCount_;
    return std::all_of(placed_ - std::min(kMargin, placed_ - first_), placed_, isPaint) &&
           std::all_of(end, end + std::min(kMargin, last_ - end), isPaint);
}

}  // namespace tarn::test
