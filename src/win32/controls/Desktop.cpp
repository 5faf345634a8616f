#include "win32/controls/Desktop.h"

#include <algorithm>
#include <string_view>

#include "win32/common/Resolution.h"
#include "win32/common/SystemLibraries.h"
#include "win32/controls/WindowClasses.h"
#include "win32/drawing/DarkMode.h"

namespace ordalyn::win32 {

using toolkit::Pointer;

namespace {

// The visible frame is only known for a window that is shown; this one is shown where, and so that,
// nobody sees it.
FrameMargins MeasureMargins(HINSTANCE program, bool resizable) {
    constexpr DWORD kExtendedFrameBounds = 9;
    using GetAttribute = HRESULT WINAPI(HWND, DWORD, void*, DWORD);
    const Library library = LoadSystemLibrary(L"dwmapi.dll");
    auto* const getAttribute = FunctionOf<GetAttribute>(library, "DwmGetWindowAttribute");
    FrameMargins margins;
    if (getAttribute != nullptr) {
        const DWORD frame = resizable ? DWORD{WS_THICKFRAME} : 0;
        const OwnedWindow window(
            CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | WS_EX_LAYERED | WS_EX_TRANSPARENT,
                            WC_STATICW, L"", WS_POPUP | WS_CAPTION | WS_SYSMENU | frame, -20000,
                            -20000, 400, 300, nullptr, nullptr, program, nullptr));
        const HWND probe = window.Get();
        SetLayeredWindowAttributes(probe, 0, 0, LWA_ALPHA);
        ShowWindow(probe, SW_SHOWNA);
        RECT whole = {};
        RECT visible = {};
        GetWindowRect(probe, &whole);
        const HRESULT result = getAttribute(probe, kExtendedFrameBounds, &visible, sizeof visible);
        if (SUCCEEDED(result))
            margins = {visible.left - whole.left, visible.top - whole.top,
                       whole.right - visible.right, whole.bottom - visible.bottom};
    }
    const auto plausible = [](int margin) { return margin >= 0 && margin <= 64; };
    const bool good = plausible(margins.left) && plausible(margins.top) &&
                      plausible(margins.right) && plausible(margins.bottom);
    return good ? margins : FrameMargins{};
}

// What cannot be seen of a frame grows with the frame; the line that can be seen does not.
FrameMargins GrownMargins(FrameMargins margins, int from, int to) {
    constexpr int kPaddedBorder = 92;
    const auto frame = [](int dpi) {
        return MetricAt(SM_CXSIZEFRAME, dpi) + MetricAt(kPaddedBorder, dpi);
    };
    const int growth = frame(to) - frame(from);
    for (int* margin : {&margins.left, &margins.top, &margins.right, &margins.bottom}) {
        if (*margin > 0)
            *margin = std::max(*margin + growth, 0);
    }
    return margins;
}

BOOL CALLBACK ShowFrameOfForm(HWND window, LPARAM dark) {
    wchar_t name[32] = L"";
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    if (std::wstring_view(name) == kFormClass)
        ShowFrame(window, dark != FALSE);
    return TRUE;
}

}  // namespace

Desktop::Desktop(HINSTANCE handle, const Scale& system, ScaleAt screens)
    : program(handle), scale(system), scaleAt(std::move(screens)) {}

FrameMargins Desktop::Margins(bool resizable, int dpi) {
    const auto [found, isNew] = margins_.try_emplace({resizable, dpi});
    if (isNew) {
        // The window that is measured is far from all screens, and of the nearest one's resolution.
        constexpr RECT kPlace = {-20000, -20000, -19600, -19700};
        found->second =
            GrownMargins(MeasureMargins(program, resizable), ScaleOfScreen(kPlace).DpiY(), dpi);
    }
    return found->second;
}

void Desktop::ShowFrameOf(HWND newForm) const {
    if (dark_)
        ShowFrame(newForm, true);
}

void Desktop::SetDark(bool dark) {
    if (dark == dark_)
        return;
    dark_ = dark;
    EnumThreadWindows(GetCurrentThreadId(), ShowFrameOfForm, dark ? TRUE : FALSE);
}

void Desktop::SetCommonPointer(Pointer pointer) {
    pointer_ = pointer;
    RefreshPointer();
}

HCURSOR CursorFor(Pointer pointer) {
    const auto load = [](LPCWSTR name) { return LoadCursorW(nullptr, name); };
    switch (pointer) {
        case Pointer::Hourglass:
            return load(IDC_WAIT);
        case Pointer::SizeEastWest:
            return load(IDC_SIZEWE);
        case Pointer::SizeNorthSouth:
            return load(IDC_SIZENS);
        case Pointer::Hand:
            return load(IDC_HAND);
        case Pointer::Default:
            break;
    }
    return load(IDC_ARROW);
}

void RefreshPointer() {
    POINT at = {};
    if (!GetCursorPos(&at))
        return;
    HWND window = GetCapture();
    if (window == nullptr)
        window = WindowFromPoint(at);
    if (window == nullptr || GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId())
        return;
    const LRESULT place = SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(at.x, at.y));
    SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                 MAKELPARAM(place, WM_MOUSEMOVE));
}

}  // namespace ordalyn::win32
