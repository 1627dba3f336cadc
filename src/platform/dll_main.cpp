// What Windows calls when the library is loaded. It is the entry point itself: the library has
// nothing to initialise, and with the compiler's start-up code, which looks after data of threads,
// the system would refuse to leave out notifications of threads.
//
// not counted: Windows alone; tests/platform/dll_test.cpp
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}
