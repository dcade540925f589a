#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <sys/mman.h>
#include <sys/time.h>
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

void OnStrayAccess(void (*handler)()) {
    static void (*first)() = nullptr;
    static struct sigaction previous = {};
    if (first != nullptr) return;
    first = handler;
    struct sigaction action = {};
    action.sa_handler = [](int signalNumber) {
        first();
        sigaction(signalNumber, &previous, nullptr);
    };
    sigaction(SIGSEGV, &action, &previous);
}

// Seconds of the processor's time, so that neither a debugger nor a busy machine uses them up. The
// timer runs on from the first call: a test's runs are too short for a system call in each.
void SetDeadline(unsigned seconds, void (*handler)()) {
    static void (*current)();
    static std::atomic<unsigned> left = 0;
    static const bool isCounting = [] {
        signal(SIGVTALRM, [](int) {
            if (left == 0 || --left > 0) return;
            current();
            _exit(EXIT_FAILURE);
        });
        const itimerval everySecond = {{1, 0}, {1, 0}};
        return setitimer(ITIMER_VIRTUAL, &everySecond, nullptr) == 0;
    }();
    current = handler;
    left = isCounting ? seconds : 0;
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
