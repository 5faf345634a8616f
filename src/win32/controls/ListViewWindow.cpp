#include "win32/controls/ListViewWindow.h"

#include <algorithm>
#include <string>
#include <utility>

#include "win32/common/WideText.h"
#include "win32/drawing/DarkMode.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

constexpr UINT kHideNow = WM_APP + 1;
constexpr UINT kSelection = LVIS_SELECTED | LVIS_FOCUSED;
constexpr DWORD kBehaviour = LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP | LVS_EX_DOUBLEBUFFER;

}  // namespace

ListViewWindow::ListViewWindow(Desktop& desktop, ListView& list, ControlPeer& container)
    : Peer(desktop, list,
           {WC_LISTVIEWW,
            LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS |
                WS_TABSTOP,
            WS_EX_CLIENTEDGE},
           &container),
      list_(list) {
    Send(LVM_SETUNICODEFORMAT, TRUE);
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, kBehaviour, kBehaviour);
}

void ListViewWindow::SetVisible(bool visible) {
    if (handle() == nullptr)
        return;
    if (visible) {
        hidePosted_ = false;
        ShowWindowIf(true);
    } else if (IsWindowVisible(GetParent(handle()))) {
        hidePosted_ = true;
        PostMessageW(handle(), kHideNow, 0, 0);
    } else {
        ShowWindowIf(false);
    }
}

void ListViewWindow::SetColors(Color foreground, Color background) {
    const ResolvedColors colors = ResolveText(foreground, background);
    Send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(colors.text));
    Send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(colors.background));
    Send(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(colors.background));
    // All lists have the colours that the user has chosen in the options, and what is around them
    // follows. Around the system's own colours, which a new list has at first, it is as Windows has
    // it, and so it is with high contrast.
    const bool highContrast = HighContrastIsOn()();
    const bool dark = background >= 0 && IsDark(colors.background) && !highContrast;
    if (dark != dark_) {
        dark_ = dark;
        ShowScrollBars(handle(), dark);
    }
    if (background >= 0 || highContrast)
        desktop().SetDark(dark);
    if (handle() != nullptr)
        InvalidateRect(handle(), nullptr, TRUE);
}

// Columns.

void ListViewWindow::InsertColumn(int index, std::string_view caption, Twips width) {
    std::wstring text = WideForDisplay(caption);
    const int pixels = scale().PixelsX(width);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.fmt = LVCFMT_LEFT;
    column.pszText = text.data();
    column.cx = pixels;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
    widths_.insert(widths_.begin() + index, {width, pixels});
    positions_ = ColumnOrder();
}

void ListViewWindow::RemoveColumn(int index) {
    Send(LVM_DELETECOLUMN, static_cast<WPARAM>(index));
    widths_.erase(widths_.begin() + index);
    positions_ = ColumnOrder();
}

void ListViewWindow::SetColumnCaption(int index, std::string_view caption) {
    std::wstring text = WideForDisplay(caption);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT;
    column.pszText = text.data();
    Send(LVM_SETCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
}

void ListViewWindow::SetColumnWidth(int index, Twips width) {
    const int pixels = scale().PixelsX(width);
    widths_.at(static_cast<std::size_t>(index)) = {width, pixels};
    Send(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(index), pixels);
}

Twips ListViewWindow::ColumnWidth(int index) {
    const Width& set = widths_.at(static_cast<std::size_t>(index));
    if (handle() == nullptr)
        return set.twips;
    const auto pixels = static_cast<int>(Send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(index)));
    return pixels == set.pixels ? set.twips : scale().TwipsX(pixels);
}

// A width that the user has chosen has not been asked for yet.
void ListViewWindow::KeepBeforeRescaling() {
    topRow_ = static_cast<int>(Send(LVM_GETTOPINDEX));
    for (std::size_t i = 0; i < widths_.size(); ++i)
        widths_[i].twips = ColumnWidth(static_cast<int>(i));
}

Rect ListViewWindow::ShowRescaled() {
    const Rect bounds = Peer::ShowRescaled();
    for (std::size_t i = 0; i < widths_.size(); ++i)
        SetColumnWidth(static_cast<int>(i), widths_[i].twips);
    // The rows have another height. The list still begins with the same one, as far as it can.
    if (list_.RowCount() > 0 && Send(LVM_GETTOPINDEX) != topRow_) {
        Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(list_.RowCount() - 1), FALSE);
        Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(topRow_), FALSE);
    }
    return bounds;
}

// Column indices from left to right.
std::vector<int> ListViewWindow::ColumnOrder() const {
    std::vector<int> order(widths_.size());
    if (handle() == nullptr || order.empty() ||
        !Send(LVM_GETCOLUMNORDERARRAY, order.size(), reinterpret_cast<LPARAM>(order.data())))
        return positions_;
    return order;
}

void ListViewWindow::SetColumnPosition(int index, int position) {
    std::vector<int> order = ColumnOrder();
    std::erase(order, index);
    order.insert(order.begin() + std::min(position, static_cast<int>(order.size())), index);
    Send(LVM_SETCOLUMNORDERARRAY, order.size(), reinterpret_cast<LPARAM>(order.data()));
    positions_ = order;
    if (handle() != nullptr)
        InvalidateRect(handle(), nullptr, TRUE);
}

int ListViewWindow::ColumnPosition(int index) {
    positions_ = ColumnOrder();
    const auto found = std::find(positions_.begin(), positions_.end(), index);
    return found == positions_.end() ? index : static_cast<int>(found - positions_.begin());
}

void ListViewWindow::FlattenColumnHeaders() {
    const auto header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
    if (header == nullptr)
        return;
    const LONG style = GetWindowLongW(header, GWL_STYLE);
    SetWindowLongW(header, GWL_STYLE, style & ~HDS_BUTTONS);
    SetWindowPos(handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

// Rows.

void ListViewWindow::ChangeState(int row, UINT mask, UINT state) {
    LVITEMW item = {};
    item.state = state;
    item.stateMask = mask;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

// Only the row that is selected is touched: asking the control for it, or addressing all rows, can
// take a look at each of a million.
void ListViewWindow::ClearSelection(UINT states) {
    liftedRow_ = -1;
    if (selectedRow_ >= 0)
        ChangeState(selectedRow_, states, 0);
    selectedRow_ = -1;
}

void ListViewWindow::ResetRows(int count) {
    if (handle() == nullptr)
        return;
    const ScopedFlag byCode(changingByCode_);
    // Nobody is to see the steps.
    const bool visible = IsWindowVisible(handle()) != 0;
    if (visible)
        Send(WM_SETREDRAW, FALSE);
    ClearSelection(kSelection);
    Send(LVM_SETITEMCOUNT, 0);
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count));
    if (count > 0)
        Send(LVM_ENSUREVISIBLE, 0, FALSE);
    if (visible)
        Send(WM_SETREDRAW, TRUE);
    InvalidateRect(handle(), nullptr, TRUE);
}

void ListViewWindow::UpdateRows(int count) {
    if (handle() == nullptr)
        return;
    const ScopedFlag byCode(changingByCode_);
    if (selectedRow_ >= count)
        ClearSelection(kSelection);
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LVSICF_NOSCROLL);
    InvalidateRect(handle(), nullptr, TRUE);
}

void ListViewWindow::GrowRows(int count, int firstChanged) {
    if (handle() == nullptr)
        return;
    const ScopedFlag byCode(changingByCode_);
    if (selectedRow_ >= count)
        ClearSelection(kSelection);
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
    if (firstChanged < count)
        Send(LVM_REDRAWITEMS, static_cast<WPARAM>(firstChanged), count - 1);
}

void ListViewWindow::SelectRow(int row) {
    const ScopedFlag byCode(changingByCode_);
    ClearSelection(kSelection);
    if (row < 0)
        return;
    ChangeState(row, kSelection, kSelection);
    selectedRow_ = row;
}

void ListViewWindow::EnsureVisible(int row) {
    Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

Rect ListViewWindow::RowOnScreen(int row) {
    RECT bounds = {};
    bounds.left = LVIR_BOUNDS;
    RECT inside = {};
    RECT seen = {};
    if (handle() == nullptr || !GetClientRect(handle(), &inside))
        return {};
    Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&bounds));
    IntersectRect(&seen, &bounds, &inside);
    MapWindowPoints(handle(), nullptr, reinterpret_cast<POINT*>(&seen), 2);
    return desktop().scale.Twips(seen);
}

void ListViewWindow::SetGridLines(bool shown) {
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_GRIDLINES, shown ? LVS_EX_GRIDLINES : 0);
}

// What the control asks for and reports.

// Before it selects a row, the control may go through all rows, which can be a million, to find the
// one to deselect. As long as one of these lives that row is deselected already, and nothing is
// looked for. The user's choice is then reported even when it is the same row again. When the
// control has selected no row by the end, the lifted one is selected as before.
class ListViewWindow::LiftedSelection {
  public:
    explicit LiftedSelection(ListViewWindow& list) : list_(list), listAlive_(list.Lifetime()) {
        const int row = list.selectedRow_;
        const ScopedFlag byCode(list.changingByCode_);
        list.ClearSelection(LVIS_SELECTED);
        list.liftedRow_ = row;
    }
    ~LiftedSelection() {
        if (listAlive_.expired() || list_.handle() == nullptr)
            return;
        const int row = std::exchange(list_.liftedRow_, -1);
        if (row < 0 || row >= list_.list_.RowCount())
            return;
        const ScopedFlag byCode(list_.changingByCode_);
        list_.ChangeState(row, LVIS_SELECTED, LVIS_SELECTED);
    }
    LiftedSelection(const LiftedSelection&) = delete;
    LiftedSelection& operator=(const LiftedSelection&) = delete;

  private:
    ListViewWindow& list_;
    std::weak_ptr<const void> listAlive_;
};

bool ListViewWindow::ChangesSelection(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (selectedRow_ < 0)
        return false;
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN: {
            LVHITTESTINFO hit = {};
            hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            return Send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)) >= 0;
        }
        case WM_KEYDOWN:
            return (wParam >= VK_PRIOR && wParam <= VK_HOME) || wParam == VK_UP ||
                   wParam == VK_DOWN;
        case WM_CHAR:
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> ListViewWindow::OnNotify(NMHDR& header) {
    switch (header.code) {
        case static_cast<UINT>(LVN_GETDISPINFOW):
            GiveText(reinterpret_cast<NMLVDISPINFOW&>(header).item);
            return 0;
        case static_cast<UINT>(LVN_ODFINDITEMW):
            return FindRow(reinterpret_cast<const NMLVFINDITEMW&>(header));
        case static_cast<UINT>(LVN_ITEMCHANGED):
            ItemChanged(reinterpret_cast<const NMLISTVIEW&>(header));
            return 0;
        case NM_DBLCLK:
            list_.UserActivated(reinterpret_cast<const NMITEMACTIVATE&>(header).iItem);
            return 0;
        case static_cast<UINT>(NM_CUSTOMDRAW):
            return PaintRow(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
        default:
            return std::nullopt;
    }
}

LRESULT ListViewWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kHideNow:
            if (hidePosted_) {
                hidePosted_ = false;
                ShowWindowIf(false);
            }
            return 0;
        case WM_CHAR:
            // Ctrl with a letter is a command, nothing to look for in the list.
            if (wParam < L' ')
                return 0;
            break;
        case WM_SYSCOLORCHANGE: {
            const LRESULT answer = Window::OnMessage(message, wParam, lParam);
            SetColors(list_.ForeColor(), list_.BackColor());
            return answer;
        }
        default:
            break;
    }
    if (const std::optional<LRESULT> answer = SelectionAsked(message, wParam, lParam))
        return *answer;
    if (message == WM_PAINT || message == WM_PRINTCLIENT) {
        const Painting painting(*this);
        return Window::OnMessage(message, wParam, lParam);
    }
    ShowTip(message, wParam, lParam);
    if ((message == WM_SETFOCUS || message == WM_KILLFOCUS) && severalShown_)
        InvalidateRect(handle(), nullptr, FALSE);
    const std::weak_ptr<const void> alive = Lifetime();
    const int before = list_.SelectedRow();
    const Choice choiceBefore = std::exchange(choice_, ChoiceOf(message, wParam));
    LRESULT answer = 0;
    {
        std::optional<LiftedSelection> lifted;
        if (ChangesSelection(message, wParam, lParam))
            lifted.emplace(*this);
        answer = Window::OnMessage(message, wParam, lParam);
    }
    if (alive.expired() || handle() == nullptr)
        return answer;
    MoveWithoutChange(message, wParam, before);
    if (!alive.expired())
        choice_ = choiceBefore;
    return answer;
}

}  // namespace ordalyn::win32
