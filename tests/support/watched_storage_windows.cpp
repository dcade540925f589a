// The module has its own new and delete, but they take all storage from the C library's heap.
#define WIN32_LEAN_AND_MEAN
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <windows.h>

#include "support/watched_storage.h"

namespace tarn::test {

std::size_t mostBytes = SIZE_MAX;

std::size_t CapacityOf(const void* address) {
    const auto heap = reinterpret_cast<HANDLE>(_get_heap_handle());
    return HeapValidate(heap, 0, address) != 0 ? HeapSize(heap, 0, address) : 0;
}

namespace {

void* LimitedMalloc(std::size_t byteCount) {
    return byteCount > mostBytes ? nullptr : std::malloc(byteCount);
}

}  // namespace

// Makes the module call LimitedMalloc where it imports malloc.
void WatchStorageOf(const LoadedLibrary& library) {
    char* const module = static_cast<char*>(library.Handle());
    const auto at = [module](auto offset) { return module + offset; };
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(module);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(at(dos->e_lfanew));
    const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* from =
        reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(at(directory.VirtualAddress));
    for (; from->Name != 0; ++from) {
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(at(from->OriginalFirstThunk));
        auto* pointer = reinterpret_cast<IMAGE_THUNK_DATA*>(at(from->FirstThunk));
        for (; name->u1.AddressOfData != 0; ++name, ++pointer) {
            const auto* const import =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(at(name->u1.AddressOfData));
            if (std::strcmp(import->Name, "malloc") != 0) continue;
            pointer->u1.Function = reinterpret_cast<ULONG_PTR>(LimitedMalloc);
        }
    }
}

}  // namespace tarn::test
