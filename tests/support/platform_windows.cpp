#define WIN32_LEAN_AND_MEAN
#include <cstdlib>
#include <cstring>
#include <windows.h>

#include "support/platform.h"

namespace tarn::test {

std::size_t PageSize() {
    SYSTEM_INFO info;
    GetSystemInfo(&info);
    return info.dwPageSize;
}

std::byte* MapGuarded(std::size_t byteCount) {
    const std::size_t page = PageSize(), all = byteCount + 2 * page;
    auto* const mapped =
        static_cast<std::byte*>(VirtualAlloc(nullptr, all, MEM_RESERVE, PAGE_NOACCESS));
    if (mapped == nullptr) return nullptr;
    return static_cast<std::byte*>(
        VirtualAlloc(mapped + page, byteCount, MEM_COMMIT, PAGE_READWRITE));
}

void UnmapGuarded(std::byte* first, std::size_t) {
    VirtualFree(first - PageSize(), 0, MEM_RELEASE);
}

namespace {

void (*strayAccessHandler)() = nullptr;

LONG WINAPI HandleException(EXCEPTION_POINTERS* exception) {
    if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION) {
        strayAccessHandler();
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

void OnStrayAccess(void (*handler)()) {
    if (strayAccessHandler == nullptr) AddVectoredExceptionHandler(1, HandleException);
    strayAccessHandler = handler;
}

void SetDeadline(unsigned, void (*)()) {}

void WriteError(const char* line) {
    const auto count = static_cast<DWORD>(std::strlen(line));
    DWORD written;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), line, count, &written, nullptr);
}

std::string ProgramName() {
    const std::string path = _pgmptr;
    return path.substr(path.find_last_of('\\') + 1);
}

LoadedLibrary::LoadedLibrary(const char* path) : path_(path) {
    if (GetModuleHandleA(path) == nullptr) handle_ = LoadLibraryA(path);
}

bool LoadedLibrary::Unload() {
    if (handle_ == nullptr) return false;
    FreeLibrary(static_cast<HMODULE>(handle_));
    handle_ = nullptr;
    return GetModuleHandleA(path_) == nullptr;
}

LoadedLibrary::AnyFunction LoadedLibrary::Find(const char* name) const {
    return reinterpret_cast<AnyFunction>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

}  // namespace tarn::test
