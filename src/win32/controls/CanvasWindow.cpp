#include "win32/controls/CanvasWindow.h"

#include <algorithm>

#include "win32/common/DeviceContext.h"
#include "win32/common/WideText.h"
#include "win32/controls/WindowClasses.h"
#include "win32/drawing/FocusMark.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

// A device context in memory.
class MemoryDc {
  public:
    explicit MemoryDc(HDC like) : dc_(CreateCompatibleDC(like)) {}
    ~MemoryDc() { DeleteDC(dc_); }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    HDC Get() const { return dc_; }

  private:
    HDC dc_;
};

class DcPainter : public Painter {
  public:
    DcPainter(HDC dc, const Scale& scale, bool rightToLeft, bool showsFocus)
        : dc_(dc), scale_(scale), rightToLeft_(rightToLeft), showsFocus_(showsFocus) {
        SetBkMode(dc, TRANSPARENT);
    }
    void Fill(const Rect& area, Color color) override {
        const RECT pixels = scale_.Pixels(area);
        FillRect(dc_, &pixels, brush_.For(Resolve(color)));
    }
    void Text(const Rect& area, std::string_view text, Color color, TextPlace place) override {
        UINT how = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
        if (place == TextPlace::Centre)
            how |= DT_CENTER;
        else if (place == TextPlace::Right)
            how |= DT_RIGHT;
        if (rightToLeft_)
            how |= DT_RTLREADING;
        RECT pixels = scale_.Pixels(area);
        const std::wstring shown = WideForOneLine(text);
        SetTextColor(dc_, Resolve(color));
        DrawTextW(dc_, shown.c_str(), static_cast<int>(shown.size()), &pixels, how);
    }
    void MarkFocus(const Rect& area, Color background) override {
        if (showsFocus_)
            DrawFocusMark(dc_, scale_.Pixels(area), Resolve(background));
    }

  private:
    HDC dc_;
    const Scale& scale_;
    bool rightToLeft_;
    bool showsFocus_;
    ColorBrush brush_;
};

}  // namespace

CanvasWindow::CanvasWindow(Desktop& desktop, Canvas& canvas, ControlPeer& container)
    : Peer(desktop, canvas, {kCanvasClass, WS_TABSTOP}, &container), canvas_(canvas) {
    HandleMouseItself();
}

void CanvasWindow::Invalidate() {
    if (handle() != nullptr)
        InvalidateRect(handle(), nullptr, FALSE);
}

Size CanvasWindow::Measure(std::string_view text) {
    if (handle() == nullptr)
        return {};
    const WindowDc dc(handle());
    const SelectedObject font(dc.Get(), font_);
    const std::wstring wide = WideForOneLine(text);
    SIZE size = {};
    GetTextExtentPoint32W(dc.Get(), wide.c_str(), static_cast<int>(wide.size()), &size);
    return {scale().TwipsX(size.cx), scale().TwipsY(size.cy)};
}

Twips CanvasWindow::WholePixels(Twips length) {
    return scale().TwipsX(std::max(scale().PixelsX(length), 1));
}

toolkit::TextColors CanvasWindow::ShownColors() {
    const ResolvedColors seen = ResolveText(control().ForeColor(), control().BackColor());
    return {static_cast<Color>(seen.text), static_cast<Color>(seen.background)};
}

// Where there is no memory for the picture it is drawn on the screen, part by part.
void CanvasWindow::PaintBuffered(HDC dc) {
    RECT inside = {};
    GetClientRect(handle(), &inside);
    const MemoryDc memory(dc);
    const Bitmap picture(CreateCompatibleBitmap(dc, inside.right, inside.bottom));
    if (memory.Get() == nullptr || !picture) {
        Paint(dc);
        return;
    }
    const SelectedObject selected(memory.Get(), picture.Get());
    Paint(memory.Get());
    BitBlt(dc, 0, 0, inside.right, inside.bottom, memory.Get(), 0, 0, SRCCOPY);
}

void CanvasWindow::Paint(HDC dc) {
    const SavedDc saved(dc);
    EraseBackground(dc);
    SelectObject(dc, font_);
    DcPainter painter(dc, scale(), control().RightToLeft(), ShowsFocus());
    canvas_.Paint.Raise(painter);
}

bool CanvasWindow::ShowsFocus() const {
    return HasFocus() && (Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS) == 0;
}

void CanvasWindow::WatchForLeaving() {
    if (pointerInside_)
        return;
    TRACKMOUSEEVENT track = {};
    track.cbSize = sizeof track;
    track.dwFlags = TME_LEAVE;
    track.hwndTrack = handle();
    pointerInside_ = TrackMouseEvent(&track) != FALSE;
}

LRESULT CanvasWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFONT:
            font_ = reinterpret_cast<HFONT>(wParam);
            Invalidate();
            break;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT:
            PaintBuffered(PaintDc(handle()).Get());
            return 0;
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_SIZE:
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_UPDATEUISTATE:
        case WM_SYSCOLORCHANGE:
            Invalidate();
            break;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            Focus();
            break;
        case WM_MOUSEMOVE:
            WatchForLeaving();
            break;
        case WM_MOUSELEAVE:
            if (pointerInside_) {
                pointerInside_ = false;
                canvas_.MouseLeave.Raise();
            }
            return 0;
        case WM_MOUSEWHEEL:
            canvas_.UserTurnedWheel(GET_WHEEL_DELTA_WPARAM(wParam));
            return 0;
        default:
            break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

}  // namespace ordalyn::win32
