#include "win32/controls/ComboBoxWindow.h"

#include <algorithm>
#include <string>
#include <utility>

#include "win32/common/DeviceContext.h"
#include "win32/common/Resolution.h"
#include "win32/common/WideText.h"
#include "win32/controls/TextBoxWindow.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

constexpr int kRowsShown = 20;
constexpr UINT kListClosed = WM_APP + 1;

DWORD StyleOf(bool editable) {
    const DWORD kind =
        editable ? CBS_DROPDOWN : CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
    return kind | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP;
}

}  // namespace

ComboBoxWindow::ComboBoxWindow(Desktop& desktop, ComboBox& box, bool editable,
                               ControlPeer& container)
    : Peer(desktop, box, {WC_COMBOBOXW, StyleOf(editable)}, &container),
      box_(box),
      editable_(editable) {
    FocusComesByNotification();
    Send(CB_LIMITTEXT, 0);
    Send(CB_SETMINVISIBLE, kRowsShown);
}

void ComboBoxWindow::Select(int index) {
    Send(CB_SETCURSEL, static_cast<WPARAM>(index));
}

// The control takes the height of its opened list and shrinks to what its font needs when closed.
Rect ComboBoxWindow::Place(const Rect& wanted) {
    Remember(wanted);
    if (handle() == nullptr)
        return wanted;
    DWORD start = 0;
    DWORD end = 0;
    Send(CB_GETEDITSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    const RECT pixels = scale().Pixels(wanted);
    const auto rows = static_cast<int>(Send(CB_GETITEMHEIGHT, 0)) * kRowsShown;
    RECT closed = {};
    GetWindowRect(handle(), &closed);
    const int height =
        closed.bottom - closed.top + rows + 2 * MetricAt(SM_CYBORDER, scale().DpiY());
    SetWindowPos(handle(), nullptr, pixels.left, pixels.top, pixels.right - pixels.left, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    // A new size selects the whole text of an editable box, even of one without the focus.
    if (editable_)
        Send(CB_SETEDITSEL, 0, MAKELPARAM(start, end));
    return RealBounds();
}

Rect ComboBoxWindow::RealBounds() const {
    RECT closed = {};
    if (handle() == nullptr || !GetWindowRect(handle(), &closed))
        return Wanted();
    Rect bounds = Wanted();
    bounds.height = scale().TwipsY(closed.bottom - closed.top);
    return bounds;
}

Rect ComboBoxWindow::SetFont(const toolkit::Font& font) {
    ShowFont(font);
    MeasureItems();
    return Place(Wanted());
}

// Boxes that draw themselves do not look at their font's height.
void ComboBoxWindow::MeasureItems() {
    if (editable_ || handle() == nullptr)
        return;
    TEXTMETRICW metrics = {};
    {
        const WindowDc dc(handle());
        const SelectedObject font(dc.Get(), reinterpret_cast<HGDIOBJ>(Send(WM_GETFONT)));
        GetTextMetricsW(dc.Get(), &metrics);
    }
    Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), metrics.tmHeight + scale().Nominal(2));
    Send(CB_SETITEMHEIGHT, 0, metrics.tmHeight);
}

// The control always has a frame; how it is drawn is its look.
void ComboBoxWindow::SetBorder(BorderStyle, Appearance appearance) {
    flat_ = appearance == Appearance::Flat;
    if (handle() != nullptr)
        InvalidateRect(handle(), nullptr, TRUE);
}

// The focus of an editable box is its edit field's: setting it once more would be reported
// as new.
void ComboBoxWindow::TakeFocus() {
    if (!HasFocus())
        Focus();
}

void ComboBoxWindow::SetText(std::string_view text) {
    const ScopedFlag byCode(changingByCode_);
    Select(-1);
    ShowCaption(text);
}

void ComboBoxWindow::SelectText(std::size_t start, std::size_t length) {
    const int end = GetWindowTextLengthW(handle());
    const int from = TextPosition(start, end);
    Send(CB_SETEDITSEL, 0, MAKELPARAM(from, from + TextPosition(length, end - from)));
}

// The control lays itself out again after each item, which takes too long for a log of many years.
void ComboBoxWindow::AddItems(const std::vector<std::string>& texts) {
    const ScopedFlag byCode(changingByCode_);
    // Drawing that is switched on again would show a hidden window.
    const bool drawn = (GetWindowLongW(handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (drawn)
        Send(WM_SETREDRAW, FALSE);
    for (const std::string& text : texts)
        Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(WideForDisplay(text).c_str()));
    if (drawn) {
        Send(WM_SETREDRAW, TRUE);
        InvalidateRect(handle(), nullptr, TRUE);
    }
}

void ComboBoxWindow::InsertItem(int index, std::string_view text) {
    const ScopedFlag byCode(changingByCode_);
    const std::wstring shown = WideForDisplay(text);
    const int selected = SelectedIndex();
    Send(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(shown.c_str()));
    if (selected >= index && SelectedIndex() == selected)
        Select(selected + 1);
}

void ComboBoxWindow::SetItem(int index, std::string_view text) {
    const ScopedFlag byCode(changingByCode_);
    const std::wstring shown = WideForDisplay(text);
    const int selected = SelectedIndex();
    const std::wstring typed = editable_ ? WideForDisplay(box_.Text()) : std::wstring();
    Send(CB_DELETESTRING, static_cast<WPARAM>(index));
    Send(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(shown.c_str()));
    if (SelectedIndex() != selected)
        Select(selected);
    if (editable_ && selected != index && handle() != nullptr)
        SetWindowTextW(handle(), typed.c_str());
}

void ComboBoxWindow::RemoveItem(int index) {
    const ScopedFlag byCode(changingByCode_);
    // Removing the selected item leaves the text of an editable box, which is no item's any more.
    const std::wstring typed = editable_ ? WideForDisplay(box_.Text()) : std::wstring();
    const bool selected = SelectedIndex() == index;
    Send(CB_DELETESTRING, static_cast<WPARAM>(index));
    if (!selected || handle() == nullptr)
        return;
    Select(-1);
    if (editable_)
        SetWindowTextW(handle(), typed.c_str());
}

void ComboBoxWindow::RemoveAllItems() {
    const ScopedFlag byCode(changingByCode_);
    Send(CB_RESETCONTENT);
    if (editable_)
        ShowCaption("");
}

void ComboBoxWindow::SetListIndex(int index) {
    const ScopedFlag byCode(changingByCode_);
    Select(index);
    if (editable_ && index < 0)
        ShowCaption("");
}

void ComboBoxWindow::OnCommand(int code, int) {
    if (changingByCode_)
        return;
    switch (code) {
        case CBN_SELCHANGE:
            if (SelectedIndex() >= 0 && SelectedIndex() < box_.ListCount())
                box_.UserSelected(SelectedIndex());
            break;
        case CBN_EDITCHANGE:
            box_.UserEdited(TextOf(handle()));
            break;
        case CBN_SETFOCUS:
            box_.GotFocus.Raise();
            break;
        case CBN_DROPDOWN:
            WidenList();
            break;
        case CBN_SELENDOK:
            closedByEnter_ = GetKeyState(VK_RETURN) < 0;
            break;
        case CBN_SELENDCANCEL:
            closedByEnter_ = false;
            break;
        case CBN_CLOSEUP:
            // The choice itself is reported after this.
            PostMessageW(handle(), kListClosed, 0, 0);
            break;
        default:
            break;
    }
}

// Long items are shown whole, as far as the box's screen allows.
void ComboBoxWindow::WidenList() {
    RECT box = {};
    GetWindowRect(handle(), &box);
    const WindowDc dc(handle());
    const SelectedObject font(dc.Get(), reinterpret_cast<HGDIOBJ>(Send(WM_GETFONT)));
    int widest = box.right - box.left;
    constexpr int kMeasured = 200;  // enough to look right, and quick for long lists
    for (int i = 0; i < box_.ListCount() && i < kMeasured; ++i) {
        const std::wstring text = WideForDisplay(box_.List(i));
        SIZE size = {};
        GetTextExtentPoint32W(dc.Get(), text.c_str(), static_cast<int>(text.size()), &size);
        widest = std::max<int>(
            widest, size.cx + MetricAt(SM_CXVSCROLL, scale().DpiX()) + scale().Nominal(8));
    }
    MONITORINFO screen = {};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(handle(), MONITOR_DEFAULTTONEAREST), &screen);
    const LONG room = screen.rcWork.right - box.left;
    Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(std::clamp<LONG>(room, 0, widest)));
}

// Opening a list selects the item that fits the typed text, and closing it without a choice keeps
// whatever was highlighted; no notification reports either.
void ComboBoxWindow::ReportWhatIsShown() {
    const bool byEnter = std::exchange(closedByEnter_, false);
    if (handle() == nullptr || changingByCode_ || IsDroppedDown())
        return;
    const int selected = SelectedIndex();
    if (!editable_) {
        if (selected != box_.ListIndex() && selected >= 0 && selected < box_.ListCount())
            box_.UserSelected(selected);
        return;
    }
    if (byEnter && selected < box_.ListCount()) {
        box_.UserEnteredList(selected);
        return;
    }
    const std::string text = TextOf(handle());
    if (text != box_.Text())
        box_.UserEdited(text);
}

LRESULT ComboBoxWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kListClosed:
            ReportWhatIsShown();
            return 0;
        case WM_PAINT:
            if (flat_) {
                PaintFlat(PaintDc(handle()).Get());
                return 0;
            }
            break;
        case WM_PRINTCLIENT:
            if (flat_) {
                PaintFlat(reinterpret_cast<HDC>(wParam));
                return 0;
            }
            break;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<LRESULT>(OnColor(reinterpret_cast<HDC>(wParam)));
        default:
            break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

// The class draws frame and button in relief or as the theme has them, which may even move; so the
// flat look is drawn instead of that, not over it.
void ComboBoxWindow::PaintFlat(HDC dc) {
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    RECT area = {};
    if (!GetComboBoxInfo(handle(), &parts) || !GetClientRect(handle(), &area))
        return;
    const SavedDc saved(dc);
    // The frames of the lists have the same colour; every theme makes it stand out.
    FrameRect(dc, &area, GetSysColorBrush(COLOR_WINDOWFRAME));
    InflateRect(&area, -1, -1);
    RECT button = {};
    IntersectRect(&button, &parts.rcButton, &area);
    DrawFlatButton(dc, button, (parts.stateButton & STATE_SYSTEM_PRESSED) != 0);
    ExcludeClipRect(dc, button.left, button.top, button.right, button.bottom);
    RECT& item = parts.rcItem;
    if (editable_) {
        // The edit field draws itself.
        GetWindowRect(parts.hwndItem, &item);
        MapWindowPoints(nullptr, handle(), reinterpret_cast<POINT*>(&item), 2);
    } else {
        DrawClosedItem(dc, item);
    }
    ExcludeClipRect(dc, item.left, item.top, item.right, item.bottom);
    FillRect(dc, &area, BackBrush());
}

void ComboBoxWindow::DrawFlatButton(HDC dc, const RECT& button, bool pressed) const {
    int arrow = COLOR_BTNTEXT;
    if (!IsWindowEnabled(handle()))
        arrow = COLOR_GRAYTEXT;
    else if (pressed)
        arrow = COLOR_HIGHLIGHTTEXT;
    FillRect(dc, &button, GetSysColorBrush(pressed ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
    const LONG half = scale().Nominal(3);
    const LONG x = (button.left + button.right) / 2;
    const LONG y = (button.top + button.bottom - half) / 2;
    for (LONG row = 0; row <= half; ++row) {
        const RECT line = {x - half + row, y + row, x + half - row + 1, y + row + 1};
        FillRect(dc, &line, GetSysColorBrush(arrow));
    }
}

// As the class has the closed part of a plain list drawn.
void ComboBoxWindow::DrawClosedItem(HDC dc, const RECT& area) {
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_COMBOBOX;
    item.itemID = static_cast<UINT>(SelectedIndex());
    item.itemAction = ODA_DRAWENTIRE;
    item.itemState = ODS_COMBOBOXEDIT;
    if (!IsWindowEnabled(handle()))
        item.itemState |= ODS_DISABLED;
    if (HasFocus() && !IsDroppedDown())
        item.itemState |= ODS_SELECTED | ODS_FOCUS;
    if ((Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS) != 0)
        item.itemState |= ODS_NOFOCUSRECT;
    item.hwndItem = handle();
    item.hDC = dc;
    item.rcItem = area;
    InflateRect(&item.rcItem, -1, -1);
    const SelectedObject font(dc, reinterpret_cast<HGDIOBJ>(Send(WM_GETFONT)));
    OnDrawItem(item);
}

void ComboBoxWindow::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    const bool highlighted = (item.itemState & ODS_SELECTED) != 0 && !disabled;
    RECT area = item.rcItem;
    if (highlighted)
        FillRect(item.hDC, &area, GetSysColorBrush(COLOR_HIGHLIGHT));
    else
        FillRect(item.hDC, &area, BackBrush());
    if (item.itemID < static_cast<UINT>(box_.ListCount())) {
        COLORREF color = TextColors().text;
        if (highlighted)
            color = GetSysColor(COLOR_HIGHLIGHTTEXT);
        else if (disabled)
            color = GetSysColor(COLOR_GRAYTEXT);
        SetTextColor(item.hDC, color);
        SetBkMode(item.hDC, TRANSPARENT);
        const std::wstring text = WideForDisplay(box_.List(static_cast<int>(item.itemID)));
        InflateRect(&area, -scale().Nominal(2), 0);
        DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &area,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0)
        DrawFocusRect(item.hDC, &item.rcItem);
}

}  // namespace ordalyn::win32
