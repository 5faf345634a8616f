#include "win32/controls/CellTip.h"

namespace ordalyn::win32 {

namespace {

constexpr UINT_PTR kCell = 1;
// Wider ones are broken into lines at blanks.
constexpr LPARAM kWidestTip = 1000;

TTTOOLINFOW ToolOf(HWND list) {
    TTTOOLINFOW tool = {};
    tool.cbSize = sizeof tool;
    tool.hwnd = list;
    tool.uId = kCell;
    return tool;
}

}  // namespace

void CellTip::Set(HWND list, int row, int column, const RECT& cell, std::wstring text,
                  bool rightToLeft) {
    Forget(list);
    row_ = row;
    column_ = column;
    if (text.empty())
        return;
    const HWND form = GetAncestor(list, GA_ROOT);
    if (window_ == nullptr) {
        window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                  WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, form,
                                  nullptr, nullptr, nullptr);
        SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, kWidestTip);
    }
    TTTOOLINFOW tool = ToolOf(list);
    tool.uFlags = rightToLeft ? TTF_RTLREADING : 0U;
    tool.rect = cell;
    tool.lpszText = text.data();
    shown_ = SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)) != 0;
}

void CellTip::Forget(HWND list) {
    row_ = column_ = -1;
    if (!shown_)
        return;
    shown_ = false;
    TTTOOLINFOW tool = ToolOf(list);
    SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CellTip::Relay(HWND list, UINT message, WPARAM wParam, LPARAM lParam) const {
    if (!shown_)
        return;
    MSG relayed = {list, message, wParam, lParam, static_cast<DWORD>(GetMessageTime()), {}};
    SendMessageW(window_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

}  // namespace ordalyn::win32
