#include "win32/controls/Buttons.h"

namespace ordalyn::win32 {

using namespace toolkit;

// Without BS_NOTIFY: with it, the second press of a double click would be reported as BN_DBLCLK
// instead of as a click.
CommandButtonWindow::CommandButtonWindow(Desktop& desktop, Control& control, ControlPeer& container)
    : Peer(desktop, control, {WC_BUTTONW, BS_PUSHBUTTON | WS_TABSTOP}, &container) {}

void CommandButtonWindow::ShowAsDefault(bool isDefault) {
    if (handle() == nullptr)
        return;
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_STYLE));
    const DWORD wanted = isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if ((style & BS_TYPEMASK) != wanted)
        Send(BM_SETSTYLE, wanted, TRUE);
}

void CommandButtonWindow::OnCommand(int code, int) {
    if (code == BN_CLICKED)
        control().UserClicked();
}

LRESULT CommandButtonWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // The button that has the focus is the one that Enter presses, and looks it.
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
        if (FormHost* const around = form())
            around->ShowDefaultButton(message == WM_SETFOCUS ? this : nullptr);
    }
    return Window::OnMessage(message, wParam, lParam);
}

ToggleWindow::ToggleWindow(Desktop& desktop, Toggle& toggle, bool option, ControlPeer& container)
    : Peer(desktop, toggle, {WC_BUTTONW, DWORD(option ? BS_RADIOBUTTON : BS_CHECKBOX) | WS_TABSTOP},
           &container),
      toggle_(toggle) {}

void ToggleWindow::SetChecked(bool checked) {
    Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

void ToggleWindow::SetReadingOrder(bool rightToLeft, Alignment alignment) {
    // The box stands where a reader of the language begins.
    const DWORD right = BS_RIGHTBUTTON | BS_RIGHT;
    ChangeStyle(GWL_STYLE, right, alignment == Alignment::Right ? right : 0);
    ShowReadingOrder(rightToLeft);
}

void ToggleWindow::OnCommand(int code, int) {
    if (code == BN_CLICKED && !takingFocus_)
        toggle_.UserToggled();
}

LRESULT ToggleWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETFOCUS) {
        // Option buttons click themselves when the focus comes to them by the keyboard, also when a
        // form gets it back; being chosen is decided by the keys themselves here.
        const std::weak_ptr<const void> alive = Lifetime();
        takingFocus_ = true;
        const LRESULT answer = Window::OnMessage(message, wParam, lParam);
        if (!alive.expired())
            takingFocus_ = false;
        return answer;
    }
    return Window::OnMessage(message, wParam, lParam);
}

}  // namespace ordalyn::win32
