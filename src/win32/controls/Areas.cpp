#include "win32/controls/Areas.h"

#include <algorithm>

#include "win32/common/DeviceContext.h"
#include "win32/common/WideText.h"
#include "win32/controls/WindowClasses.h"
#include "win32/drawing/FocusMark.h"

namespace ordalyn::win32 {

using namespace toolkit;

LabelWindow::LabelWindow(Desktop& desktop, Label& label, ControlPeer& container)
    : Peer(desktop, label, {WC_STATICW, SS_LEFT | SS_NOTIFY}, &container) {
    HandleMouseItself();
}

void LabelWindow::SetReadingOrder(bool rightToLeft, Alignment alignment) {
    if (!drawsItself_)
        ChangeStyle(GWL_STYLE, SS_TYPEMASK, alignment == Alignment::Right ? SS_RIGHT : SS_LEFT);
    ShowReadingOrder(rightToLeft);
}

// The name is the window's own text, which is not drawn: the label is there for its colour.
void LabelWindow::SetAccessibleName(std::string_view name) {
    drawsItself_ = true;
    ChangeStyle(GWL_STYLE, SS_TYPEMASK, SS_OWNERDRAW);
    ShowCaption(CaptionShowing(name));
}

void LabelWindow::OnDrawItem(const DRAWITEMSTRUCT& item) {
    FillRect(item.hDC, &item.rcItem, BrushOfBackColor());
}

void LabelWindow::SetPlainText(bool plain) {
    ChangeStyle(GWL_STYLE, SS_NOPREFIX, plain ? SS_NOPREFIX : 0);
    if (handle() != nullptr)
        InvalidateRect(handle(), nullptr, TRUE);
}

void LabelWindow::SetShortensPath(bool shortens) {
    ChangeStyle(GWL_STYLE, SS_ELLIPSISMASK, shortens ? SS_PATHELLIPSIS : 0);
    if (handle() != nullptr)
        InvalidateRect(handle(), nullptr, TRUE);
}

// As the class breaks the text. A pixel less than there is: edges are rounded.
Twips LabelWindow::HeightFor(Twips width) {
    if (handle() == nullptr)
        return 0;
    const Label& label = static_cast<const Label&>(control());
    UINT how = DT_CALCRECT | DT_EXPANDTABS;
    how |= label.ShortensPath() ? DT_SINGLELINE : DT_WORDBREAK;
    if (label.PlainText())
        how |= DT_NOPREFIX;
    const WindowDc dc(handle());
    const SelectedObject font(dc.Get(), reinterpret_cast<HFONT>(Send(WM_GETFONT)));
    const std::wstring text = WideForDisplay(label.Caption());
    RECT place = {0, 0, std::max(scale().PixelsX(width) - 1, 1), 0};
    DrawTextW(dc.Get(), text.c_str(), static_cast<int>(text.size()), &place, how);
    return scale().TwipsY(place.bottom);
}

void LabelWindow::MarkFocus() {
    if (!HasFocus() || (Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS) != 0)
        return;
    RECT inside = {};
    GetClientRect(handle(), &inside);
    // Along the border of a box that only shows its colour it would hardly be seen.
    if (control().Caption().empty())
        InflateRect(&inside, -2, -2);
    DrawFocusMark(WindowDc(handle()).Get(), inside, Resolve(control().BackColor()));
}

LRESULT LabelWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT: {
            const LRESULT answer = Window::OnMessage(message, wParam, lParam);
            MarkFocus();
            return answer;
        }
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_UPDATEUISTATE:
            InvalidateRect(handle(), nullptr, TRUE);
            break;
        default:
            break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

FrameWindow::FrameWindow(Desktop& desktop, Control& control, ControlPeer& container)
    : Peer(desktop, control, {WC_BUTTONW, BS_GROUPBOX | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT},
           &container) {
    HandleMouseItself();
}

void FrameWindow::SetCaption(std::string_view caption) {
    ShowCaption(caption);
    InvalidateRect(handle(), nullptr, TRUE);
}

void FrameWindow::SetBorder(BorderStyle border, Appearance) {
    bordered_ = border != BorderStyle::None;
    if (handle() != nullptr)
        InvalidateRect(handle(), nullptr, TRUE);
}

void FrameWindow::SetReadingOrder(bool rightToLeft, Alignment alignment) {
    ChangeStyle(GWL_STYLE, BS_CENTER, alignment == Alignment::Right ? BS_RIGHT : 0);
    ShowReadingOrder(rightToLeft);
}

LRESULT FrameWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            // The class leaves its inside to its container, which leaves out its children.
            EraseBackground(reinterpret_cast<HDC>(wParam));
            return TRUE;
        case WM_PAINT:
            if (Bare()) {
                EraseBackground(PaintDc(handle()).Get());
                return 0;
            }
            break;
        case WM_NCHITTEST:
            // The class lets the mouse through to what lies below.
            if (Bare())
                return HTCLIENT;
            break;
        default:
            break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

PictureBoxWindow::PictureBoxWindow(Desktop& desktop, Control& control, ControlPeer& container)
    : Peer(desktop, control, {kPictureClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT}, &container) {
    HandleMouseItself();
}

LRESULT PictureBoxWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            EraseBackground(reinterpret_cast<HDC>(wParam));
            return TRUE;
        case WM_PRINTCLIENT:
            // Themed child windows ask for what lies below them.
            EraseBackground(reinterpret_cast<HDC>(wParam));
            break;
        default:
            break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

}  // namespace ordalyn::win32
