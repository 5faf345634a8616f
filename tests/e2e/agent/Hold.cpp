// ordalyn_e2e_hold "FILE" "MARK": another program that has FILE open and shares it with nobody.
//
// MARK is made once FILE is open; the program holds FILE until MARK is deleted. It ends with 1 when
// it cannot open FILE.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <cstdlib>

namespace {

constexpr DWORD kBetweenLooks = 20;  // milliseconds

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    if (__argc != 3)
        return 2;
    const wchar_t* const path = __wargv[1];
    const wchar_t* const mark = __wargv[2];
    HANDLE file =
        CreateFileW(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return 1;
    HANDLE made =
        CreateFileW(mark, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, CREATE_ALWAYS, 0, nullptr);
    if (made == INVALID_HANDLE_VALUE)
        return 1;
    CloseHandle(made);
    while (GetFileAttributesW(mark) != INVALID_FILE_ATTRIBUTES)
        Sleep(kBetweenLooks);
    CloseHandle(file);
    return 0;
}
