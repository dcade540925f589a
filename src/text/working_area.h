// Room that a parser needs during one call.
#ifndef TARN_TEXT_WORKING_AREA_H
#define TARN_TEXT_WORKING_AREA_H

#include <array>
#include <cstddef>
#include <memory>

namespace tarn {

// Uninitialised items: on the stack for short texts, on the heap for long ones.
template <class Item, std::size_t kOnStack>
class WorkingArea {
  public:
    explicit WorkingArea(std::size_t count)
        : onHeap_(count > kOnStack ? new Item[count] : nullptr),
          items_(onHeap_ ? onHeap_.get() : onStack_.data()) {}
    WorkingArea(const WorkingArea&) = delete;
    WorkingArea& operator=(const WorkingArea&) = delete;

    Item* Items() noexcept { return items_; }

  private:
    std::array<Item, kOnStack> onStack_;
    std::unique_ptr<Item[]> onHeap_;
    Item* items_;
};

}  // namespace tarn

#endif  // TARN_TEXT_WORKING_AREA_H
