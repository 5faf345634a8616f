#include "win32/forms/MessageLoop.h"

#include "win32/controls/ComboBoxWindow.h"
#include "win32/forms/FormKeys.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

// Forms only: the windows of menus, lists and dialogs of the system keep their keys.
FormWindow* FormOf(HWND window) {
    if (window == nullptr)
        return nullptr;
    return dynamic_cast<FormWindow*>(Window::Of(GetAncestor(window, GA_ROOT)));
}

bool IsKeyDown(const MSG& message) {
    return message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
}

bool IsKeyUp(const MSG& message) {
    return message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
}

bool ClosesOpenList(const Window* control, WPARAM key) {
    const auto* const box = dynamic_cast<const ComboBoxWindow*>(control);
    return box != nullptr && (key == VK_RETURN || key == VK_ESCAPE) && box->IsDroppedDown();
}

// These move the focus or press buttons; as characters they would only make one-line boxes beep.
// Open lists are closed by the character.
bool HasNoCharacter(const MSG& message) {
    return IsKeyDown(message) &&
           (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE ||
            message.wParam == VK_TAB) &&
           FormOf(message.hwnd) != nullptr &&
           !ClosesOpenList(Window::Containing(message.hwnd), message.wParam);
}

}  // namespace

void MessageLoop::RunUntil(const bool& ended) {
    MSG message;
    while (!ended) {
        const BOOL result = GetMessageW(&message, nullptr, 0, 0);
        if (result == 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (result > 0)
            Handle(message);
    }
}

void MessageLoop::Run() {
    MSG message;
    for (;;) {
        const BOOL result = GetMessageW(&message, nullptr, 0, 0);
        if (result == 0)
            return;
        if (result > 0)
            Handle(message);
    }
}

void MessageLoop::RunWaiting() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Handle(message);
    }
}

void MessageLoop::Handle(const MSG& message) {
    desktop_.lastHandler.Run(false, [&] {
        for (FormWindow* const form : desktop_.forms)
            form->FlushMenus();
        return true;
    });
    if (desktop_.lastHandler.Run(true, [&] { return HandleKey(message); }))
        return;
    if (!HasNoCharacter(message))
        TranslateMessage(&message);
    DispatchMessageW(&message);
}

// Returns whether the message was used up.
bool MessageLoop::HandleKey(const MSG& message) {
    const bool down = IsKeyDown(message);
    const bool up = IsKeyUp(message);
    if (!down && !up && message.message != WM_SYSCHAR)
        return false;
    FormWindow* const form = FormOf(message.hwnd);
    if (form == nullptr)
        return false;
    Window* control = Window::Containing(message.hwnd);
    if (control == form)
        control = nullptr;
    const std::weak_ptr<const void> formAlive = form->Lifetime();
    const auto gone = [&] { return formAlive.expired() || !IsWindow(message.hwnd); };
    const auto key = static_cast<int>(message.wParam);
    const Modifiers modifiers = CurrentModifiers();
    if (down) {
        if (form->Form().UserKeyDown(key, modifiers) || gone())
            return true;
        if (ClosesOpenList(control, message.wParam))
            return false;
        if (control != nullptr)
            control->control().KeyDown.Raise(key, modifiers);
    } else if (up) {
        form->Form().UserKeyUp(key, modifiers);
        if (gone())
            return true;
        if (control != nullptr)
            control->control().KeyUp.Raise(key, modifiers);
    }
    return gone() || HandleFormKey(*form, control, message);
}

}  // namespace ordalyn::win32
