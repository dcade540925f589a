// The entry point of the library as a Windows module.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

extern "C" {

// MinGW's start-up code calls this if there is one. It would bring along a directory of
// thread-local storage, which is empty here, but with which Windows refuses what DllMain asks for.
extern const PIMAGE_TLS_CALLBACK __dyn_tls_init_callback;
const PIMAGE_TLS_CALLBACK __dyn_tls_init_callback = nullptr;

// The library has nothing to do when a thread comes or goes, so Windows need not tell it. What is
// set up at load and released at unload, the C++ runtime calls before and after this.
BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
    return TRUE;
}

}  // extern "C"
