// The texts of a list: those that it paints, in which the middle is left out where they do not fit,
// and the whole ones, for everything else that asks and for the tool tip over a cell that is cut.
#include <algorithm>
#include <string>

#include "base/Text.h"
#include "toolkit/ShortText.h"
#include "win32/common/WideText.h"
#include "win32/controls/ListViewWindow.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

// Typing looks this far for a row, so that a key press stays quick in the longest list.
constexpr int kRowsSearched = 100'000;
// Between a cell's edges and its text: six pixels on each side with Windows, and a little more for
// letters that reach out of their width.
constexpr int kBesideText = 14;
// Characters of a tool tip.
constexpr int kLongestTip = 2000;

// The first characters of a text, as many as fit into `capacity` units including the terminator.
void CopyForDisplay(std::string_view text, wchar_t* to, int capacity) {
    if (to == nullptr || capacity <= 0)
        return;
    // A unit takes one byte at least and three at most, so this is enough text for any capacity.
    const auto units = static_cast<std::size_t>(capacity - 1);
    std::string_view head = text.substr(0, units * 3 + 4);
    if (head.size() < text.size())
        head = FirstCharacters(head, units);
    std::wstring shown = WideForDisplay(head);
    if (shown.size() > units) {
        shown.resize(units);
        if (!shown.empty() && IS_HIGH_SURROGATE(shown.back()))
            shown.pop_back();
    }
    std::copy(shown.begin(), shown.end(), to);
    to[shown.size()] = L'\0';
}

}  // namespace

int ListViewWindow::RoomForText(int column) const {
    return static_cast<int>(Send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column))) -
           scale().Nominal(kBesideText);
}

Twips ListViewWindow::WidthFor(std::string_view text) {
    return scale().TwipsX(TextMeasure(handle()).WidthOf(text) + scale().Nominal(kBesideText));
}

std::string_view ListViewWindow::TextAt(int row, int column) const {
    const bool known =
        row >= 0 && row < list_.RowCount() && column >= 0 && column < list_.ColumnCount();
    return known ? list_.Text(row, column) : std::string_view();
}

void ListViewWindow::GiveText(LVITEMW& item) const {
    if ((item.mask & LVIF_TEXT) == 0)
        return;
    const std::string_view text = TextAt(item.iItem, item.iSubItem);
    if (!painting_ || text.empty()) {
        CopyForDisplay(text, item.pszText, item.cchTextMax);
        return;
    }
    const std::string shown =
        ShortenMiddle(text, RoomForText(item.iSubItem),
                      [this](std::string_view part) { return painting_->WidthOf(part); });
    CopyForDisplay(shown, item.pszText, item.cchTextMax);
}

int ListViewWindow::FindRow(const NMLVFINDITEMW& request) const {
    const int count = list_.RowCount();
    if ((request.lvfi.flags & LVFI_STRING) == 0 || request.lvfi.psz == nullptr || count == 0 ||
        list_.ColumnCount() == 0)
        return -1;
    const std::string wanted = FromWide(request.lvfi.psz);
    const int start = std::clamp(request.iStart, 0, count - 1);
    for (int step = 0; step < std::min(count, kRowsSearched); ++step) {
        const int row = static_cast<int>((std::int64_t{start} + step) % count);
        if (row < start && (request.lvfi.flags & LVFI_WRAP) == 0)
            break;
        if (StartsWithIgnoreCase(list_.Text(row, 0), wanted))
            return row;
    }
    return -1;
}

// Whether a text's end, or its beginning, cannot be seen.
bool ListViewWindow::IsCut(std::string_view text, int column, const RECT& cell) const {
    if (text.empty())
        return false;
    RECT inside = {};
    GetClientRect(handle(), &inside);
    const TextMeasure measure(handle());
    const int width = measure.WidthOf(FirstCharacters(text, kLongestTip));
    return width > RoomForText(column) || cell.left < 0 ||
           cell.left + width + scale().Nominal(kBesideText) / 2 > inside.right;
}

// The whole text of the cell below the pointer, when it is cut. The system's own tips for lists
// know of no cell but the first in a row. They are asked for again with each cell that the pointer
// comes to.
void ListViewWindow::ShowTip(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_MOUSEMOVE: {
            LVHITTESTINFO hit = {};
            hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            if (Send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)) < 0)
                hit.iItem = hit.iSubItem = -1;
            if (!tip_.IsFor(hit.iItem, hit.iSubItem)) {
                RECT cell = {};
                cell.left = hit.iSubItem == 0 ? LVIR_LABEL : LVIR_BOUNDS;
                cell.top = hit.iSubItem;
                Send(LVM_GETSUBITEMRECT, static_cast<WPARAM>(hit.iItem),
                     reinterpret_cast<LPARAM>(&cell));
                std::string text(TextAt(hit.iItem, hit.iSubItem));
                text = IsCut(text, hit.iSubItem, cell)
                           ? ShortenMiddle(text, kLongestTip,
                                           [](std::string_view part) {
                                               return static_cast<int>(CharacterCount(part));
                                           })
                           : std::string();
                tip_.Set(handle(), hit.iItem, hit.iSubItem, cell, WideForDisplay(text),
                         list_.RightToLeft());
            }
            tip_.Relay(handle(), message, wParam, lParam);
            break;
        }
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            tip_.Relay(handle(), message, wParam, lParam);
            break;
        case WM_MOUSEWHEEL:
        case WM_MOUSEHWHEEL:
        case WM_VSCROLL:
        case WM_HSCROLL:
        case WM_KEYDOWN:
        case WM_NOTIFY:  // of the header: a column has another width or place
        case WM_SIZE:
        case WM_SETFONT:
        case LVM_SETITEMCOUNT:
        case LVM_SETCOLUMNWIDTH:
        case LVM_ENSUREVISIBLE:
            // Another cell may be below the pointer.
            tip_.Forget(handle());
            break;
        default:
            break;
    }
}

}  // namespace ordalyn::win32
