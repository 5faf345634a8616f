#include "win32/controls/ToolBarWindow.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <utility>

#include "toolkit/ToolBarPictures.h"
#include "win32/common/WideText.h"
#include "win32/drawing/FocusMark.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

constexpr DWORD kStyle =
    TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN | WS_TABSTOP;

std::uint32_t RedGreenBlue(int systemColor) {
    const COLORREF color = GetSysColor(systemColor);
    return std::uint32_t{GetRValue(color)} << 16U | std::uint32_t{GetGValue(color)} << 8U |
           GetBValue(color);
}

Bitmap MakeBitmap(const Picture& picture) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.size;
    info.bmiHeader.biHeight = -picture.size;  // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    Bitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap)
        std::memcpy(bits, picture.pixels.data(), picture.pixels.size() * sizeof(std::uint32_t));
    return bitmap;
}

}  // namespace

ToolBarWindow::ToolBarWindow(Desktop& desktop, ToolBar& bar, ControlPeer& container)
    : Peer(desktop, bar, {TOOLBARCLASSNAMEW, kStyle}, &container), bar_(bar) {
    Send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    Send(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS);
    MakePictures();
}

void ToolBarWindow::MakePictures() {
    const int size = PictureSize();
    ImageList made(ImageList_Create(size, size, ILC_COLOR32, 4, 4));
    Send(TB_SETBITMAPSIZE, 0, MAKELPARAM(size, size));
    Send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(made.Get()));
    pictures_ = std::move(made);
}

// Drawn anew, not stretched.
Rect ToolBarWindow::ShowRescaled() {
    MakePictures();
    for (const std::string& name : names_)
        AddPicture(name);
    const Rect bounds = Peer::ShowRescaled();
    Send(TB_AUTOSIZE);
    return bounds;
}

// The window, which is destroyed after the pictures, is not to touch them any more.
ToolBarWindow::~ToolBarWindow() {
    Send(TB_SETIMAGELIST, 0, 0);
}

void ToolBarWindow::AddPicture(const std::string& name) {
    const PictureColors colors = {RedGreenBlue(COLOR_BTNTEXT), RedGreenBlue(COLOR_HIGHLIGHT)};
    const Bitmap bitmap = MakeBitmap(DrawToolBarPicture(name, PictureSize(), colors));
    ImageList_Add(pictures_.Get(), bitmap.Get(), nullptr);
}

void ToolBarWindow::RedrawPictures() {
    ImageList_RemoveAll(pictures_.Get());
    for (const std::string& name : names_)
        AddPicture(name);
    InvalidateRect(handle(), nullptr, TRUE);
}

void ToolBarWindow::AddButton(std::string_view image, bool hasMenu) {
    TBBUTTON button = {};
    button.idCommand = ++buttons_;
    button.fsState = TBSTATE_ENABLED;
    if (image == kSeparatorImage) {
        button.fsStyle = BTNS_SEP;
    } else {
        names_.emplace_back(image);
        AddPicture(names_.back());
        button.iBitmap = static_cast<int>(names_.size()) - 1;
        button.fsStyle = static_cast<BYTE>(hasMenu ? BTNS_DROPDOWN : BTNS_BUTTON);
    }
    Send(TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
}

void ToolBarWindow::OnCommand(int, int id) {
    if (id >= 1 && id <= buttons_)
        bar_.UserClickedButton(id - 1);
}

void ToolBarWindow::ShowCurrentButton(int index) {
    Send(TB_SETHOTITEM, static_cast<WPARAM>(HasFocus() ? index : -1));
    InvalidateRect(handle(), nullptr, TRUE);
}

// The pointer takes the look of a hot button with it; the frame stays at the one that keys are for.
LRESULT ToolBarWindow::Draw(const NMTBCUSTOMDRAW& drawing) const {
    switch (drawing.nmcd.dwDrawStage) {
        case CDDS_PREPAINT:
            return HasFocus() ? CDRF_NOTIFYITEMDRAW : CDRF_DODEFAULT;
        case CDDS_ITEMPREPAINT:
            return static_cast<int>(drawing.nmcd.dwItemSpec) == bar_.CurrentButton()
                       ? CDRF_NOTIFYPOSTPAINT
                       : CDRF_DODEFAULT;
        case CDDS_ITEMPOSTPAINT: {
            RECT frame = drawing.nmcd.rc;
            InflateRect(&frame, -2, -2);
            DrawFocusMark(drawing.nmcd.hdc, frame, GetSysColor(COLOR_BTNFACE));
            return CDRF_DODEFAULT;
        }
        default:
            return CDRF_DODEFAULT;
    }
}

std::optional<LRESULT> ToolBarWindow::OnNotify(NMHDR& header) {
    switch (header.code) {
        case static_cast<UINT>(NM_CUSTOMDRAW):
            return Draw(reinterpret_cast<const NMTBCUSTOMDRAW&>(header));
        case static_cast<UINT>(TBN_DROPDOWN):
            OpenMenu(reinterpret_cast<const NMTOOLBARW&>(header).iItem - 1);
            return TBDDRET_DEFAULT;
        case static_cast<UINT>(TBN_GETINFOTIPW): {
            auto& request = reinterpret_cast<NMTBGETINFOTIPW&>(header);
            if (request.iItem < 1 || request.iItem > bar_.ButtonCount() || request.cchTextMax < 1)
                return 0;
            const std::wstring tip = WideForDisplay(bar_.ButtonAt(request.iItem).toolTip);
            const std::size_t length =
                std::min(tip.size(), static_cast<std::size_t>(request.cchTextMax - 1));
            std::wmemcpy(request.pszText, tip.data(), length);
            request.pszText[length] = L'\0';
            return 0;
        }
        default:
            return std::nullopt;
    }
}

void ToolBarWindow::OpenMenu(int index) {
    if (index < 0 || index >= bar_.ButtonCount() || bar_.ButtonAt(index + 1).menu.empty())
        return;
    const Menu menu(CreatePopupMenu());
    int id = 0;
    for (const ToolBar::MenuEntry& entry : bar_.ButtonAt(index + 1).menu) {
        ++id;
        if (entry.IsSeparator())
            AppendMenuW(menu.Get(), MF_SEPARATOR, 0, nullptr);
        else
            AppendMenuW(menu.Get(), MF_STRING, static_cast<UINT_PTR>(id),
                        WideForOneLine(CaptionShowing(entry.text)).c_str());
    }
    RECT button = {};
    Send(TB_GETRECT, static_cast<WPARAM>(index + 1), reinterpret_cast<LPARAM>(&button));
    MapWindowPoints(handle(), nullptr, reinterpret_cast<POINT*>(&button), 2);
    TPMPARAMS keepClear = {sizeof keepClear, button};
    const std::weak_ptr<const void> alive = Lifetime();
    const int chosen = TrackPopupMenuEx(menu.Get(), TPM_RETURNCMD | TPM_VERTICAL, button.left,
                                        button.bottom, handle(), &keepClear);
    // Messages were handled meanwhile: the bar may have gone or its menu may have changed.
    if (alive.expired() || chosen < 1 ||
        static_cast<std::size_t>(chosen) > bar_.ButtonAt(index + 1).menu.size())
        return;
    bar_.UserChoseMenuEntry(index, chosen - 1);
}

LRESULT ToolBarWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
        case WM_CHAR:
            // What keys do is decided by the control. The class acts on them itself on Windows, not
            // on Wine.
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS: {
            const std::weak_ptr<const void> alive = Lifetime();
            const LRESULT answer = Window::OnMessage(message, wParam, lParam);
            if (!alive.expired() && handle() != nullptr)
                ShowCurrentButton(bar_.CurrentButton() - 1);
            return answer;
        }
        case WM_SYSCOLORCHANGE: {
            const LRESULT answer = Window::OnMessage(message, wParam, lParam);
            RedrawPictures();
            return answer;
        }
        default:
            return Window::OnMessage(message, wParam, lParam);
    }
}

}  // namespace ordalyn::win32
