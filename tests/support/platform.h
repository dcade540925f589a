// What the tests need of the operating system.
#ifndef TARN_TESTS_SUPPORT_PLATFORM_H
#define TARN_TESTS_SUPPORT_PLATFORM_H

#include <cstddef>
#include <string>

namespace tarn::test {

std::size_t PageSize();

// Whole pages between two that can't be touched; null where there is no memory.
std::byte* MapGuarded(std::size_t byteCount);
void UnmapGuarded(std::byte* first, std::size_t byteCount);

// Calls `handler` once before a stray access does to the process what it would have done; a second
// call changes nothing.
void OnStrayAccess(void (*handler)());

// Calls `handler` and ends the process when it has computed for about that many seconds, unless the
// next call comes first; 0 is no deadline. Does nothing on Windows, where ctest has a limit.
void SetDeadline(unsigned seconds, void (*handler)());

// Also where such a handler may not do much.
void WriteError(const char* line);

// Without its directories.
std::string ProgramName();

// A shared library, loaded by its path and unloaded at the end of its life. It must not be loaded
// already, so that it is as just loaded.
class LoadedLibrary {
  public:
    explicit LoadedLibrary(const char* path);
    ~LoadedLibrary() { Unload(); }
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

    bool IsLoaded() const { return handle_ != nullptr; }
    // Whether that was its end.
    bool Unload();
    // Null where it has no such function.
    template <class Function>
    Function* Find(const char* name) const {
        return reinterpret_cast<Function*>(Find(name));
    }
    void* Handle() const { return handle_; }

  private:
    using AnyFunction = void (*)();
    AnyFunction Find(const char* name) const;

    const char* path_;
    void* handle_ = nullptr;
};

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_PLATFORM_H
