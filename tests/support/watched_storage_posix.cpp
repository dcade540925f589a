// The library's array forms of new and delete are those of the program, and so are these.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <new>

#include "support/watched_storage.h"

namespace tarn::test {

std::size_t mostBytes = SIZE_MAX;

namespace {

struct LiveArray {
    const void* address;
    std::size_t byteCount;
};
LiveArray liveArrays[256] = {};

LiveArray* FindArray(const void* address) {
    const auto isAt = [&](const LiveArray& array) { return array.address == address; };
    LiveArray* const found = std::find_if(std::begin(liveArrays), std::end(liveArrays), isAt);
    return found == std::end(liveArrays) ? nullptr : found;
}

}  // namespace

void WatchStorageOf(const LoadedLibrary&) {}

std::size_t CapacityOf(const void* address) {
    const LiveArray* const array = FindArray(address);
    return array == nullptr ? 0 : array->byteCount;
}

std::size_t LiveArrayCount() {
    const auto isLive = [](const LiveArray& array) { return array.address != nullptr; };
    const auto count = std::count_if(std::begin(liveArrays), std::end(liveArrays), isLive);
    return static_cast<std::size_t>(count);
}

namespace {

// What the operators below do, which can't be members of a namespace.
void* Allocate(std::size_t byteCount) {
    void* const address = byteCount > mostBytes ? nullptr : std::malloc(byteCount);
    if (address == nullptr) throw std::bad_alloc();
    if (LiveArray* const unused = FindArray(nullptr)) *unused = {address, byteCount};
    return address;
}

void Free(void* address) noexcept {
    LiveArray* const array = address == nullptr ? nullptr : FindArray(address);
    if (array != nullptr) *array = {};
    std::free(address);
}

}  // namespace
}  // namespace tarn::test

void* operator new[](std::size_t byteCount) {
    return tarn::test::Allocate(byteCount);
}

void operator delete[](void* address) noexcept {
    tarn::test::Free(address);
}

void operator delete[](void* address, std::size_t) noexcept {
    tarn::test::Free(address);
}
