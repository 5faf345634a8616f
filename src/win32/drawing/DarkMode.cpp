#include "win32/drawing/DarkMode.h"

#include "win32/common/SystemLibraries.h"

namespace ordalyn::win32 {

namespace {

constexpr DWORD kFirstBuild = 17763;
// The attribute's number changed when it was made public.
constexpr DWORD kDarkFrame = 20, kDarkFrameBefore = 19;

// What Windows says to a program that does not name the versions that it knows is an older one.
DWORD BuildOfWindows() {
    using GetVersion = LONG WINAPI(OSVERSIONINFOW*);
    const Library library = LoadSystemLibrary(L"ntdll.dll");
    auto* const getVersion = FunctionOf<GetVersion>(library, "RtlGetVersion");
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    return getVersion != nullptr && getVersion(&version) == 0 ? version.dwBuildNumber : 0;
}

}  // namespace

DarkMode& SystemDarkMode() {
    static const Library frames = LoadSystemLibrary(L"dwmapi.dll");
    static const Library themes = LoadSystemLibrary(L"uxtheme.dll");
    static DarkMode mode = {
        BuildOfWindows(), FunctionOf<DarkMode::SetWindowAttribute>(frames, "DwmSetWindowAttribute"),
        FunctionOf<DarkMode::SetTheme>(themes, "SetWindowTheme")};
    return mode;
}

bool IsDark(COLORREF color) {
    return GetRValue(color) * 299 + GetGValue(color) * 587 + GetBValue(color) * 114 < 128 * 1000;
}

void ShowFrame(HWND window, bool dark) {
    const DarkMode& mode = SystemDarkMode();
    if (window == nullptr || mode.build < kFirstBuild || mode.setWindowAttribute == nullptr)
        return;
    const BOOL value = dark ? TRUE : FALSE;
    if (FAILED(mode.setWindowAttribute(window, kDarkFrame, &value, sizeof value)))
        mode.setWindowAttribute(window, kDarkFrameBefore, &value, sizeof value);
    if (!IsWindowVisible(window))
        return;
    // Windows 10 paints the new frame when the window becomes active, or another one does.
    const BOOL active = GetActiveWindow() == window ? TRUE : FALSE;
    SendMessageW(window, WM_NCACTIVATE, active == FALSE ? TRUE : FALSE, 0);
    SendMessageW(window, WM_NCACTIVATE, static_cast<WPARAM>(active), 0);
}

void ShowScrollBars(HWND window, bool dark) {
    const DarkMode& mode = SystemDarkMode();
    if (window != nullptr && mode.build >= kFirstBuild && mode.setTheme != nullptr)
        mode.setTheme(window, dark ? L"DarkMode_Explorer" : nullptr, nullptr);
}

}  // namespace ordalyn::win32
