// What the control reports of its selected row, the rows that are selected beside it, and those
// that are marked.
#include "toolkit/TextColors.h"
#include "win32/controls/ListViewWindow.h"

namespace ordalyn::win32 {

using namespace toolkit;

void ListViewWindow::ItemChanged(const NMLISTVIEW& change) {
    if ((change.uChanged & LVIF_STATE) == 0)
        return;
    const bool was = (change.uOldState & LVIS_SELECTED) != 0;
    const bool is = (change.uNewState & LVIS_SELECTED) != 0;
    if (is && !was && change.iItem >= 0) {
        selectedRow_ = change.iItem;
        liftedRow_ = -1;
        if (!changingByCode_)
            list_.UserSelected(change.iItem, choice_);
    } else if (was && !is && (change.iItem < 0 || change.iItem == selectedRow_)) {
        selectedRow_ = -1;
        if (!changingByCode_)
            list_.UserSelected(-1);  // until the next row is reported, or for good beside the rows
    }
}

// The control selects one row: with several it looks at each of a million for every key.
void ListViewWindow::ShowSelection() {
    const bool several = list_.SelectedRows().Count() > 1;
    if ((several || severalShown_) && handle() != nullptr) {
        InvalidateRect(handle(), nullptr, FALSE);
        NotifyWinEvent(EVENT_OBJECT_SELECTIONWITHIN, handle(), OBJID_CLIENT, CHILDID_SELF);
    }
    severalShown_ = several;
}

void ListViewWindow::SetMarkColor(Color) {
    if (handle() != nullptr)
        InvalidateRect(handle(), nullptr, FALSE);
}

// What programs that speak the screen ask about the rows that the control does not know to be
// selected.
std::optional<LRESULT> ListViewWindow::SelectionAsked(UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr LPARAM kStates = LVNI_FOCUSED | LVNI_SELECTED | LVNI_CUT | LVNI_DROPHILITED;
    constexpr LPARAM kOneAfterTheOther = LVNI_ABOVE | LVNI_BELOW | LVNI_TOLEFT | LVNI_TORIGHT;
    const auto row = static_cast<int>(wParam);
    if (!severalShown_)
        return std::nullopt;
    switch (message) {
        case LVM_GETSELECTEDCOUNT:
            return list_.SelectedRows().Count();
        case LVM_GETNEXTITEM:
            if ((lParam & kStates) != LVNI_SELECTED || (lParam & kOneAfterTheOther) != 0)
                return std::nullopt;
            return list_.SelectedRows().From(row + 1);
        case LVM_GETITEMSTATE: {
            if ((lParam & LVIS_SELECTED) == 0)
                return std::nullopt;
            const LRESULT others = Window::OnMessage(message, wParam, lParam) & ~LVIS_SELECTED;
            return others | (list_.SelectedRows().Contains(row) ? LVIS_SELECTED : 0);
        }
        default:
            return std::nullopt;
    }
}

bool ListViewWindow::IsMarked(int row) const {
    return row >= 0 && row < list_.RowCount() && list_.IsMarked(row);
}

ResolvedColors ListViewWindow::ColorsOfSelection() const {
    if (GetFocus() == handle())
        return {GetSysColor(COLOR_HIGHLIGHTTEXT), GetSysColor(COLOR_HIGHLIGHT)};
    if (!dark_)
        return {GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_BTNFACE)};
    const ResolvedColors colors = TextColors();
    const Color shade =
        ShadeOfSelection({static_cast<Color>(colors.text), static_cast<Color>(colors.background)});
    return {colors.text, static_cast<COLORREF>(shade)};
}

LRESULT ListViewWindow::PaintRow(NMLVCUSTOMDRAW& draw) const {
    const auto row = static_cast<int>(draw.nmcd.dwItemSpec);
    switch (draw.nmcd.dwDrawStage) {
        case CDDS_PREPAINT:
            return CDRF_NOTIFYITEMDRAW;
        case CDDS_ITEMPREPAINT:
            // The control paints its own one, as light as a button where it has not the focus. On a
            // dark list that would be the brightest thing on the screen.
            if (row == selectedRow_ && (!dark_ || GetFocus() == handle()))
                return CDRF_DODEFAULT;
            if (row == selectedRow_ || list_.SelectedRows().Contains(row)) {
                const ResolvedColors colors = ColorsOfSelection();
                draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
                draw.clrText = colors.text;
                draw.clrTextBk = colors.background;
            } else if (!HighContrastIsOn()() && IsMarked(row)) {
                const ResolvedColors colors = TextColors();
                draw.clrText =
                    list_.MarkColor() == kReadableRed
                        ? static_cast<COLORREF>(RedOn(static_cast<Color>(colors.background)))
                        : Resolve(list_.MarkColor());
            }
            return CDRF_DODEFAULT;
        default:
            return CDRF_DODEFAULT;
    }
}

// What the user's choice of a row by this message means for the others.
Choice ListViewWindow::ChoiceOf(UINT message, WPARAM wParam) const {
    const bool mouse = message == WM_LBUTTONDOWN;
    if (message == WM_RBUTTONDOWN)
        return Choice::Keep;
    if (!mouse && message != WM_KEYDOWN)
        return choice_;
    const bool shift = mouse ? (wParam & MK_SHIFT) != 0 : GetKeyState(VK_SHIFT) < 0;
    const bool control = mouse && (wParam & MK_CONTROL) != 0;
    if (shift)
        return control ? Choice::ExtendMore : Choice::Extend;
    return control ? Choice::Toggle : Choice::Only;
}

// A key that has come to no other row leaves the one where it is alone.
void ListViewWindow::MoveWithoutChange(UINT message, WPARAM wParam, int before) {
    if (message == WM_KEYDOWN && severalShown_ && choice_ == Choice::Only &&
        ChangesSelection(message, wParam, 0) && list_.SelectedRow() == before)
        list_.UserSelected(before);
}

}  // namespace ordalyn::win32
