#include "win32/forms/MessageLoop.h"

#include "toolkit/FormKeyboard.h"
#include "win32/forms/FormWindow.h"

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

// The control of the form that the message is for; null for the form itself.
Control* ControlOf(const FormWindow& form, HWND window) {
    const Window* const control = Window::Containing(window);
    return control == nullptr || control == &form ? nullptr : &control->control();
}

// These move the focus or press buttons; as characters they would only make one-line boxes beep.
// Open lists are closed by the character.
bool HasNoCharacter(const MSG& message) {
    if (!IsKeyDown(message) ||
        (message.wParam != VK_RETURN && message.wParam != VK_ESCAPE && message.wParam != VK_TAB))
        return false;
    const FormWindow* const form = FormOf(message.hwnd);
    if (form == nullptr)
        return false;
    const Control* const control = ControlOf(*form, message.hwnd);
    return control == nullptr || !control->NeedsKey(static_cast<int>(message.wParam));
}

bool HandleKeyDown(FormWindow& form, Control* control, const MSG& message) {
    const KeyPress press = {.key = static_cast<int>(message.wParam),
                            .modifiers = CurrentModifiers(),
                            .held = (message.lParam & 0x40000000) != 0,
                            .forMenus = message.message == WM_SYSKEYDOWN};
    if (FormKeyboard(form.Form()).KeyDown(control, press))
        return true;
    // Who presses Alt wants to see what it can be pressed with.
    if (press.forMenus && message.wParam == VK_MENU)
        form.ShowKeyboardCues(UISF_HIDEACCEL);
    return false;
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
    Control* const control = ControlOf(*form, message.hwnd);
    if (down)
        return HandleKeyDown(*form, control, message);
    const FormKeyboard keyboard(form->Form());
    if (up)
        return keyboard.KeyUp(control, static_cast<int>(message.wParam), CurrentModifiers());
    return keyboard.AccessKey(control, static_cast<char32_t>(message.wParam));
}

}  // namespace ordalyn::win32
