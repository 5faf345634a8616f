// How a window deals with the mouse: what it tells its control, and which pointer it shows.
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

using namespace toolkit;

Modifiers CurrentModifiers() {
    const auto down = [](int key) { return GetKeyState(key) < 0; };
    return {down(VK_SHIFT), down(VK_CONTROL), down(VK_MENU)};
}

namespace {

POINT PointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

bool IsDown(int button) {
    int key = VK_MBUTTON;
    if (button == kLeftButton)
        key = VK_LBUTTON;
    else if (button == kRightButton)
        key = VK_RBUTTON;
    return GetKeyState(key) < 0;
}

}  // namespace

LRESULT Window::MousePressed(int button, UINT message, WPARAM wParam, LPARAM lParam) {
    const std::weak_ptr<const void> alive = Lifetime();
    const POINT at = PointOf(lParam);
    pressed_ |= button;
    if (handlesMouse_ && GetCapture() != handle_)
        SetCapture(handle_);
    control_.MouseDown.Raise(button, CurrentModifiers(), scale().TwipsX(at.x),
                             scale().TwipsY(at.y));
    if (alive.expired() || handle_ == nullptr)
        return 0;
    if (handlesMouse_)
        return 0;
    const LRESULT answer = Default(message, wParam, lParam);
    // List views, for one, wait for the release inside this message, and no message reports it.
    if (!alive.expired() && handle_ != nullptr && (pressed_ & button) != 0 && !IsDown(button)) {
        POINT now = {GET_X_LPARAM(GetMessagePos()), GET_Y_LPARAM(GetMessagePos())};
        ScreenToClient(handle_, &now);
        RaiseRelease(button, now);
    }
    return answer;
}

LRESULT Window::MouseReleased(int button, UINT message, WPARAM wParam, LPARAM lParam) {
    const std::weak_ptr<const void> alive = Lifetime();
    const LRESULT answer = handlesMouse_ ? 0 : Default(message, wParam, lParam);
    if (alive.expired() || handle_ == nullptr || (pressed_ & button) == 0)
        return answer;
    const POINT at = PointOf(lParam);
    RECT inside = {};
    GetClientRect(handle_, &inside);
    const bool click = handlesMouse_ && button == kLeftButton && PtInRect(&inside, at);
    RaiseRelease(button, at);
    if (click && !alive.expired())
        control_.UserClicked();
    return answer;
}

void Window::RaiseRelease(int button, POINT at) {
    pressed_ &= ~button;
    if (handlesMouse_ && pressed_ == 0 && GetCapture() == handle_)
        ReleaseCapture();
    control_.MouseUp.Raise(button, CurrentModifiers(), scale().TwipsX(at.x), scale().TwipsY(at.y));
}

LRESULT Window::MouseMoved(UINT message, WPARAM wParam, LPARAM lParam) {
    const std::weak_ptr<const void> alive = Lifetime();
    const LRESULT answer = Default(message, wParam, lParam);
    if (alive.expired() || handle_ == nullptr)
        return answer;
    const int buttons = ((wParam & MK_LBUTTON) != 0 ? kLeftButton : 0) |
                        ((wParam & MK_RBUTTON) != 0 ? kRightButton : 0) |
                        ((wParam & MK_MBUTTON) != 0 ? kMiddleButton : 0);
    const POINT at = PointOf(lParam);
    control_.MouseMove.Raise(buttons, CurrentModifiers(), scale().TwipsX(at.x),
                             scale().TwipsY(at.y));
    return answer;
}

bool Window::ChoosePointer(LPARAM lParam) const {
    if (desktop_.CommonPointer() != Pointer::Default) {
        SetCursor(CursorFor(desktop_.CommonPointer()));
        return true;
    }
    if (LOWORD(lParam) != HTCLIENT || control_.MousePointer() == Pointer::Default)
        return false;
    SetCursor(CursorFor(control_.MousePointer()));
    return true;
}

}  // namespace ordalyn::win32
