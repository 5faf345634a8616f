// Dark frames and scroll bars, where Windows offers them: from Windows 10, version 1809, on.
#pragma once

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

// What Windows has for it. Tests put other functions in their place.
struct DarkMode {
    using SetWindowAttribute = HRESULT WINAPI(HWND, DWORD, const void*, DWORD);
    using SetTheme = HRESULT WINAPI(HWND, const wchar_t*, const wchar_t*);
    DWORD build;  // of Windows
    SetWindowAttribute* setWindowAttribute;
    SetTheme* setTheme;
};
DarkMode& SystemDarkMode();

bool IsDark(COLORREF color);

// The frame with the title bar of a top-level window.
void ShowFrame(HWND window, bool dark);
void ShowScrollBars(HWND window, bool dark);

}  // namespace ordalyn::win32
