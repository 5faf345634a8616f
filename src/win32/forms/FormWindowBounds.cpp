// The bounds of a form: outer bounds in twips are those of the frame that can be seen, and they
// stay as they were set for as long as the pixels are the same. The size is in twips of the screen
// that the form is on; its place counts from the corner of all screens, in the system's twips.
#include <algorithm>

#include "win32/forms/FormWindow.h"

namespace ordalyn::win32 {

using namespace toolkit;

RECT FormWindow::WindowRectFor(const Rect& outer) {
    const FrameMargins margins = desktop().Margins(style_.resizable, scale().DpiY());
    // The size is rounded by itself: a form keeps it wherever it is moved.
    const int left = desktop().scale.PixelsX(outer.left);
    const int top = desktop().scale.PixelsY(outer.top);
    return {left - margins.left, top - margins.top,
            left + scale().PixelsX(outer.width) + margins.right,
            top + scale().PixelsY(outer.height) + margins.bottom};
}

Rect FormWindow::TwipsOf(const RECT& window) {
    const FrameMargins margins = desktop().Margins(style_.resizable, scale().DpiY());
    return {desktop().scale.TwipsX(window.left + margins.left),
            desktop().scale.TwipsY(window.top + margins.top),
            scale().TwipsX(window.right - margins.right - window.left - margins.left),
            scale().TwipsY(window.bottom - margins.bottom - window.top - margins.top)};
}

// What has the same pixels as a place that is known in twips keeps the numbers of that.
Rect FormWindow::TwipsOf(const RECT& window, const Rect& known, const RECT& knownWindow) {
    Rect outer = TwipsOf(window);
    if (window.left == knownWindow.left)
        outer.left = known.left;
    if (window.top == knownWindow.top)
        outer.top = known.top;
    if (window.right - window.left == knownWindow.right - knownWindow.left)
        outer.width = known.width;
    if (window.bottom - window.top == knownWindow.bottom - knownWindow.top)
        outer.height = known.height;
    return outer;
}

Rect FormWindow::OuterOf(const RECT& window) {
    return TwipsOf(window, placed_, placedWindow_);
}

Rect FormWindow::Place(const Rect& wanted) {
    const Scale wantedScale = ScaleOfPlace(desktop(), wanted, this);
    if (wantedScale != scale()) {
        TakeScale(wantedScale);
        ShowRescaledAll();
    }
    placed_ = wanted;
    placedWindow_ = WindowRectFor(wanted);
    if (handle() == nullptr)
        return wanted;
    FlushMenus();
    const ScopedFlag placing(placing_);
    if (IsIconic(handle()) || IsZoomed(handle())) {
        PlaceWhenNormal(placedWindow_);
    } else {
        const RECT& r = placedWindow_;
        SetWindowPos(handle(), nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return CurrentBounds();
}

// The bounds that a minimised or maximised form will have; the system counts these from the work
// area, not from the screen.
void FormWindow::PlaceWhenNormal(const RECT& window) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    GetWindowPlacement(handle(), &placement);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    placement.rcNormalPosition = window;
    if (!style_.toolWindow &&
        GetMonitorInfoW(MonitorFromRect(&window, MONITOR_DEFAULTTONEAREST), &monitor))
        OffsetRect(&placement.rcNormalPosition, monitor.rcMonitor.left - monitor.rcWork.left,
                   monitor.rcMonitor.top - monitor.rcWork.top);
    SetWindowPlacement(handle(), &placement);
}

Rect FormWindow::CurrentBounds() {
    RECT window = {};
    // A minimised form is nowhere; its bounds are those that it comes back to.
    if (handle() == nullptr || IsIconic(handle()) || !GetWindowRect(handle(), &window))
        return placed_;
    return OuterOf(window);
}

Size FormWindow::ClientSize() {
    if (handle() == nullptr)
        return {};
    FlushMenus();
    RECT client = {};
    GetClientRect(handle(), &client);
    const Rect size = scale().Twips(client);
    return {size.width, size.height};
}

Rect FormWindow::OuterFor(const Size& client) {
    FlushMenus();
    const Rect now = CurrentBounds();
    if (handle() == nullptr)
        return {now.left, now.top, client.width, client.height};
    const FrameMargins margins = desktop().Margins(style_.resizable, scale().DpiY());
    const int insideWidth = scale().PixelsX(client.width);
    const int insideHeight = scale().PixelsY(client.height);
    RECT window = {0, 0, insideWidth, insideHeight};
    AdjustWindowRectEx(&window, static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_STYLE)),
                       GetMenu(handle()) != nullptr,
                       static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_EXSTYLE)));
    // That was a frame of the system's resolution. The window knows its own.
    if (!IsIconic(handle()) && !IsZoomed(handle())) {
        RECT inside = window;
        Send(WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&inside));
        window.right += insideWidth - (inside.right - inside.left);
        window.bottom += insideHeight - (inside.bottom - inside.top);
    }
    const int width = window.right - window.left - margins.left - margins.right;
    const int height = window.bottom - window.top - margins.top - margins.bottom;
    return {now.left, now.top, scale().TwipsX(width), scale().TwipsY(height)};
}

void FormWindow::LimitSize(MINMAXINFO& limits) const {
    if (placing_) {
        // Code may choose any size.
        limits.ptMinTrackSize = {1, 1};
        return;
    }
    if (!style_.resizable)
        return;
    // A main window keeps room for its lists, a tool window for its boxes.
    const int width = scale().Nominal(style_.maximiseBox ? 320 : 160);
    const int height = style_.maximiseBox ? scale().Nominal(200) : 0;
    limits.ptMinTrackSize.x = std::max<LONG>(limits.ptMinTrackSize.x, width);
    limits.ptMinTrackSize.y = std::max<LONG>(limits.ptMinTrackSize.y, height);
}

// Code that places the form knows what it did.
void FormWindow::ReportBounds() {
    if (placing_)
        return;
    const WindowState state = CurrentWindowState();
    if (rescaled_ && state != WindowState::Minimised) {
        rescaled_ = false;
        form_.SystemRescaled(CurrentBounds());
    } else {
        form_.SystemResized(CurrentBounds(), state);
    }
}

}  // namespace ordalyn::win32
