#include <cerrno>
#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <sys/mman.h>
#include <unistd.h>

#include "support/platform.h"

namespace tarn::test {

std::size_t PageSize() {
    static const auto size = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return size;
}

std::byte* MapGuarded(std::size_t byteCount) {
    const std::size_t page = PageSize(), all = byteCount + 2 * page;
    void* const mapped = mmap(nullptr, all, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) return nullptr;
    std::byte* const first = static_cast<std::byte*>(mapped) + page;
    return mprotect(first, byteCount, PROT_READ | PROT_WRITE) == 0 ? first : nullptr;
}

void UnmapGuarded(std::byte* first, std::size_t byteCount) {
    munmap(first - PageSize(), byteCount + 2 * PageSize());
}

namespace {

void (*strayAccessHandler)() = nullptr;
struct sigaction previousAction = {};

void HandleStrayAccess(int signalNumber) {
    strayAccessHandler();
    sigaction(signalNumber, &previousAction, nullptr);
}

}  // namespace

void OnStrayAccess(void (*handler)()) {
    if (strayAccessHandler != nullptr) return;
    strayAccessHandler = handler;
    struct sigaction action = {};
    action.sa_handler = HandleStrayAccess;
    sigaction(SIGSEGV, &action, &previousAction);
}

void WriteError(const char* line) {
    const ssize_t written = write(STDERR_FILENO, line, std::strlen(line));
    static_cast<void>(written);
}

std::string ProgramName() {
    return program_invocation_short_name;
}

LoadedLibrary::LoadedLibrary(const char* path) : path_(path) {
    if (dlopen(path, RTLD_NOW | RTLD_NOLOAD) == nullptr) handle_ = dlopen(path, RTLD_NOW);
}

bool LoadedLibrary::Unload() {
    if (handle_ == nullptr) return false;
    dlclose(handle_);
    handle_ = nullptr;
    return dlopen(path_, RTLD_NOW | RTLD_NOLOAD) == nullptr;
}

LoadedLibrary::AnyFunction LoadedLibrary::Find(const char* name) const {
    return reinterpret_cast<AnyFunction>(dlsym(handle_, name));
}

}  // namespace tarn::test
