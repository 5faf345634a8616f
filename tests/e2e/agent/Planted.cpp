// A library of nobody's that lies where the program must not take one from. When it is loaded all
// the same, it leaves a file with its own name and ".loaded".
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
    if (reason != DLL_PROCESS_ATTACH)
        return TRUE;
    constexpr wchar_t kEnding[] = L".loaded";
    wchar_t path[MAX_PATH + ARRAYSIZE(kEnding)] = {};
    GetModuleFileNameW(library, path, MAX_PATH);
    lstrcatW(path, kEnding);
    const HANDLE file =
        CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    return TRUE;
}
