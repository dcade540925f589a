// The library's array forms of new and delete are those of the program, and so are these.
#include <cstdint>
#include <cstdlib>
#include <map>
#include <new>

#include "support/watched_storage.h"

namespace tarn::test {

std::size_t mostBytes = SIZE_MAX;

namespace {

// Never destroyed, for arrays may outlive this program's other objects.
std::map<const void*, std::size_t>& LiveArrays() {
    static auto& arrays = *new std::map<const void*, std::size_t>;
    return arrays;
}

}  // namespace

void WatchStorageOf(const LoadedLibrary&) {}

std::size_t CapacityOf(const void* address) {
    const auto found = LiveArrays().find(address);
    return found == LiveArrays().end() ? 0 : found->second;
}

std::size_t LiveArrayCount() {
    return LiveArrays().size();
}

}  // namespace tarn::test

void* operator new[](std::size_t byteCount) {
    void* const address = byteCount > tarn::test::mostBytes ? nullptr : std::malloc(byteCount);
    if (address == nullptr) throw std::bad_alloc();
    tarn::test::LiveArrays()[address] = byteCount;
    return address;
}

void operator delete[](void* address) noexcept {
    tarn::test::LiveArrays().erase(address);
    std::free(address);
}

void operator delete[](void* address, std::size_t) noexcept {
    operator delete[](address);
}
