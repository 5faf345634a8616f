#include "contract/toolkit/Win32Sight.h"

#include "contract/toolkit/Win32Windows.h"
#include "win32/common/DeviceContext.h"
#include "win32/common/WideText.h"
#include "win32/forms/FormWindow.h"

namespace ordalyn::contract {

using namespace toolkit;

namespace {

// Counts the messages that a window gets.
class MessageCount {
  public:
    explicit MessageCount(HWND window) : window_(window) {
        SetWindowSubclass(window, Count, 77, reinterpret_cast<DWORD_PTR>(this));
    }
    ~MessageCount() { RemoveWindowSubclass(window_, Count, 77); }
    MessageCount(const MessageCount&) = delete;
    MessageCount& operator=(const MessageCount&) = delete;
    int Total() const { return total_; }

  private:
    static LRESULT CALLBACK Count(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR object) {
        ++reinterpret_cast<MessageCount*>(object)->total_;
        return DefSubclassProc(window, message, wParam, lParam);
    }
    HWND window_;
    int total_ = 0;
};

std::vector<MenuSeen> Seen(HMENU menu) {
    std::vector<MenuSeen> seen;
    const int count = menu == nullptr ? 0 : GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        wchar_t text[256] = {};
        MENUITEMINFOW info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STRING | MIIM_STATE | MIIM_FTYPE | MIIM_SUBMENU;
        info.dwTypeData = text;
        info.cch = static_cast<UINT>(std::size(text));
        GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info);
        const std::string all = win32::FromWide(text);
        const std::size_t tab = all.find('\t');
        seen.push_back({all.substr(0, tab),
                        tab == std::string::npos ? std::string() : all.substr(tab + 1),
                        (info.fState & MFS_DISABLED) == 0, (info.fState & MFS_CHECKED) != 0,
                        (info.fType & MFT_SEPARATOR) != 0, Seen(info.hSubMenu)});
    }
    return seen;
}

}  // namespace

void Win32Sight::PassTime(int milliseconds) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
    do {
        Settle();
        Sleep(1);
    } while (GetTickCount64() < end);
}

void Win32Sight::Settle() {
    kit_.DoEvents();
    kit_.DoEvents();  // what was posted last
}

bool Win32Sight::IsVisible(const Control& control) {
    return HandleOf(control) != nullptr && IsWindowVisible(HandleOf(control));
}

bool Win32Sight::IsEnabled(const Control& control) {
    return IsWindowEnabled(HandleOf(control));
}
bool Win32Sight::HasFocus(const Control& control) {
    const win32::Window* const focused = win32::Window::Containing(GetFocus());
    return focused != nullptr && focused->handle() == HandleOf(control);
}

std::string Win32Sight::CaptionOf(const Control& control) {
    return win32::TextOf(HandleOf(control));
}

std::string Win32Sight::TextOf(const Control& control) {
    const auto* const box = dynamic_cast<const ComboBox*>(&control);
    if (box == nullptr || box->Editable())
        return win32::TextOf(HandleOf(control));
    const int selected = SelectedItem(*box);
    return selected < 0 ? std::string() : ItemsOf(*box).at(static_cast<std::size_t>(selected));
}

Selection Win32Sight::SelectionOf(const Control& control) {
    DWORD start = 0;
    DWORD end = 0;
    const bool box = dynamic_cast<const ComboBox*>(&control) != nullptr;
    Ask(HandleOf(control), box ? CB_GETEDITSEL : EM_GETSEL, reinterpret_cast<WPARAM>(&start),
        reinterpret_cast<LPARAM>(&end));
    return {start, end - start};
}

Rect Win32Sight::BoundsOf(const Control& control) {
    if (const auto* const form = dynamic_cast<const Form*>(&control))
        return dynamic_cast<win32::FormWindow&>(form->peer()).CurrentBounds();
    const HWND window = HandleOf(control);
    RECT r = {};
    GetWindowRect(window, &r);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&r), 2);
    const double x = kit_.TwipsPerPixelX();
    const double y = kit_.TwipsPerPixelY();
    return {static_cast<Twips>(r.left * x), static_cast<Twips>(r.top * y),
            static_cast<Twips>((r.right - r.left) * x), static_cast<Twips>((r.bottom - r.top) * y)};
}

bool Win32Sight::IsChecked(const Toggle& toggle) {
    return Ask(HandleOf(toggle), BM_GETCHECK) == BST_CHECKED;
}

std::vector<std::string> Win32Sight::ItemsOf(const ComboBox& box) {
    std::vector<std::string> items;
    const auto count = static_cast<int>(Ask(HandleOf(box), CB_GETCOUNT));
    for (int i = 0; i < count; ++i) {
        const LRESULT length = Ask(HandleOf(box), CB_GETLBTEXTLEN, static_cast<WPARAM>(i));
        std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
        Ask(HandleOf(box), CB_GETLBTEXT, static_cast<WPARAM>(i),
            reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        items.push_back(win32::FromWide(text));
    }
    return items;
}

int Win32Sight::SelectedItem(const ComboBox& box) {
    return static_cast<int>(Ask(HandleOf(box), CB_GETCURSEL));
}

int Win32Sight::RowCount(const ListView& list) {
    return static_cast<int>(Ask(HandleOf(list), LVM_GETITEMCOUNT));
}

std::string Win32Sight::Cell(const ListView& list, int row, int column) {
    wchar_t text[512] = {};
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = static_cast<int>(std::size(text));
    Ask(HandleOf(list), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
        reinterpret_cast<LPARAM>(&item));
    return win32::FromWide(text);
}

int Win32Sight::SelectedRow(const ListView& list) {
    return static_cast<int>(
        Ask(HandleOf(list), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

RowRanges Win32Sight::SelectedRows(const ListView& list) {
    RowRanges rows;
    LRESULT row = -1;
    while ((row = Ask(HandleOf(list), LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >=
           0)
        rows.Add(static_cast<int>(row), static_cast<int>(row) + 1);
    return rows;
}

int Win32Sight::TopRow(const ListView& list) {
    return static_cast<int>(Ask(HandleOf(list), LVM_GETTOPINDEX));
}

std::string Win32Sight::ColumnCaption(const ListView& list, int column) {
    wchar_t text[256] = {};
    LVCOLUMNW asked = {};
    asked.mask = LVCF_TEXT;
    asked.pszText = text;
    asked.cchTextMax = static_cast<int>(std::size(text));
    Ask(HandleOf(list), LVM_GETCOLUMNW, static_cast<WPARAM>(column),
        reinterpret_cast<LPARAM>(&asked));
    return win32::FromWide(text);
}

int Win32Sight::ColumnPixels(const ListView& list, int column) {
    return static_cast<int>(Ask(HandleOf(list), LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

int Win32Sight::Effort(const ListView& list, const std::function<void()>& meanwhile) {
    const MessageCount count(HandleOf(list));
    meanwhile();
    Settle();
    return count.Total();
}

std::vector<std::string> Win32Sight::PanelTexts(const StatusBar& bar) {
    std::vector<std::string> texts;
    const auto count = static_cast<int>(Ask(HandleOf(bar), SB_GETPARTS));
    for (int i = 0; i < count; ++i) {
        wchar_t text[512] = {};
        Ask(HandleOf(bar), SB_GETTEXTW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        texts.push_back(win32::FromWide(text));
    }
    return texts;
}

std::vector<std::string> Win32Sight::TabCaptions(const TabStrip& strip) {
    std::vector<std::string> captions;
    const auto count = static_cast<int>(Ask(HandleOf(strip), TCM_GETITEMCOUNT));
    for (int i = 0; i < count; ++i) {
        wchar_t text[256] = {};
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = static_cast<int>(std::size(text));
        Ask(HandleOf(strip), TCM_GETITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        captions.push_back(win32::FromWide(text));
    }
    return captions;
}

int Win32Sight::SelectedTab(const TabStrip& strip) {
    return static_cast<int>(Ask(HandleOf(strip), TCM_GETCURSEL)) + 1;
}

int Win32Sight::ToolButtonCount(const ToolBar& bar) {
    return static_cast<int>(Ask(HandleOf(bar), TB_BUTTONCOUNT));
}

double Win32Sight::FilledPart(const ProgressBar& bar) {
    PBRANGE range = {};
    Ask(HandleOf(bar), PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
    const auto value = static_cast<double>(Ask(HandleOf(bar), PBM_GETPOS));
    return (value - range.iLow) / (range.iHigh - range.iLow);
}

Color Win32Sight::ColorAt(const Canvas& canvas, Pixels at) {
    const win32::WindowDc dc(HandleOf(canvas));
    return static_cast<Color>(GetPixel(dc.Get(), at.x, at.y));
}

bool Win32Sight::HasColor(const Canvas& canvas, Pixels from, Pixels to, Color color) {
    for (int y = from.y; y < to.y; ++y) {
        for (int x = from.x; x < to.x; ++x) {
            if (ColorAt(canvas, {x, y}) == color)
                return true;
        }
    }
    return false;
}

std::vector<MenuSeen> Win32Sight::MenusOf(const Form& form) {
    Settle();
    return Seen(GetMenu(HandleOf(form)));
}

}  // namespace ordalyn::contract
