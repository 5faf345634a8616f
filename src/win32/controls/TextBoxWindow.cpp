#include "win32/controls/TextBoxWindow.h"

#include <algorithm>

#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using namespace toolkit;

TextBoxWindow::TextBoxWindow(Desktop& desktop, TextBox& box, ControlPeer& container)
    : Peer(desktop, box, {WC_EDITW, ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE}, &container),
      box_(box) {
    Send(EM_SETLIMITTEXT, 0);  // as much as the control can hold
}

void TextBoxWindow::SetText(std::string_view text) {
    const ScopedFlag byCode(changingByCode_);
    ShowCaption(text);
}

void TextBoxWindow::SelectText(std::size_t start, std::size_t length) {
    const int end = GetWindowTextLengthW(handle());
    const int from = TextPosition(start, end);
    Send(EM_SETSEL, static_cast<WPARAM>(from), from + TextPosition(length, end - from));
}

void TextBoxWindow::OnCommand(int code, int) {
    if (code == EN_CHANGE && !changingByCode_)
        box_.UserEdited(TextOf(handle()));
}

int TextPosition(std::size_t position, int limit) {
    return static_cast<int>(std::min(position, static_cast<std::size_t>(std::max(limit, 0))));
}

}  // namespace ordalyn::win32
