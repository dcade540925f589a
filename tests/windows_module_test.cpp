// The library as a Windows module: its entry point, and what it asks of Windows when it is loaded.
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <windows.h>
#include <winternl.h>

#include <tarnlib/text.h>

#include "support/platform.h"

namespace tarn::test {
namespace {

class Module : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(library_.IsLoaded()); }

    char* Base() const { return static_cast<char*>(library_.Handle()); }

    LoadedLibrary library_{TARNLIB_LIBRARY};
};

TEST_F(Module, AsksForNoNotificationsOfThreads) {
    using FindEntry = LONG WINAPI(void*, LDR_DATA_TABLE_ENTRY**);
    const auto findEntry = reinterpret_cast<FindEntry*>(reinterpret_cast<void (*)()>(
        GetProcAddress(GetModuleHandleA("ntdll"), "LdrFindEntryForAddress")));
    ASSERT_NE(findEntry, nullptr);
    LDR_DATA_TABLE_ENTRY* entry = nullptr;
    ASSERT_EQ(findEntry(Base(), &entry), 0);
    // The flags lie behind the module's two names.
    ULONG flags;
    std::memcpy(&flags, reinterpret_cast<const char*>(&entry->FullDllName + 2), sizeof flags);
    constexpr ULONG kDontCallForThreads = 0x40000;
    EXPECT_NE(flags & kDontCallForThreads, 0U);
}

TEST_F(Module, EntryPointReportsSuccessAlways) {
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(Base());
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(Base() + dos->e_lfanew);
    using EntryPoint = BOOL WINAPI(HINSTANCE, DWORD, void*);
    const auto entryPoint =
        reinterpret_cast<EntryPoint*>(Base() + headers->OptionalHeader.AddressOfEntryPoint);
    const auto copy = library_.Find<decltype(tarn_CopyToGlobalBuffer)>("tarn_CopyToGlobalBuffer");
    const char* const text = copy("kept");
    for (const DWORD reason : {DWORD{DLL_THREAD_ATTACH}, DWORD{DLL_THREAD_DETACH}}) {
        EXPECT_EQ(entryPoint(reinterpret_cast<HINSTANCE>(Base()), reason, nullptr), TRUE);
    }
    EXPECT_STREQ(text, "kept");
}

}  // namespace
}  // namespace tarn::test
