// Four windows with the same menu bar, to see how a system draws it for languages that are written
// from the right. They made menu-bars-wine.png; docs/architecture.md says what it shows.
//
//   x86_64-w64-mingw32-g++ -municode -mwindows -static -o menu-bars.exe menu-bars.cpp
#include <windows.h>

namespace {

constexpr int kWidth = 420, kHeight = 90, kGap = 10;

struct Look {
    const wchar_t* title;
    DWORD window;
    UINT firstItem, everyItem;
};
constexpr Look kLooks[] = {
    {L"plain", 0, 0, 0},
    {L"first item: MFT_RIGHTJUSTIFY", 0, MFT_RIGHTJUSTIFY, 0},
    {L"every item: MFT_RIGHTORDER", 0, 0, MFT_RIGHTORDER},
    {L"window: WS_EX_LAYOUTRTL", WS_EX_LAYOUTRTL, 0, 0},
};

HMENU Bar(const Look& look) {
    static const wchar_t* const texts[] = {L"&File", L"&Search", L"&View", L"&Help"};
    const HMENU bar = CreateMenu();
    UINT flags = look.firstItem | look.everyItem;
    for (const wchar_t* text : texts) {
        const HMENU menu = CreatePopupMenu();
        AppendMenuW(menu, MF_STRING, 1, L"&Entry");
        AppendMenuW(bar, MF_POPUP | flags, reinterpret_cast<UINT_PTR>(menu), text);
        flags = look.everyItem;
    }
    return bar;
}

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, first, second);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    WNDCLASSW kind = {};
    kind.lpfnWndProc = Handle;
    kind.hInstance = instance;
    kind.lpszClassName = L"MenuBars";
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    RegisterClassW(&kind);
    int top = kGap;
    for (const Look& look : kLooks) {
        CreateWindowExW(look.window, kind.lpszClassName, look.title,
                        WS_OVERLAPPEDWINDOW | WS_VISIBLE, kGap, top, kWidth, kHeight, nullptr,
                        Bar(look), instance, nullptr);
        top += kHeight + kGap;
    }
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
