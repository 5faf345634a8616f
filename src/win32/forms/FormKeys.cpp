#include "win32/forms/FormKeys.h"

#include <algorithm>
#include <vector>

#include "base/Text.h"
#include "win32/common/WideText.h"
#include "win32/controls/Buttons.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

Window& WindowOf(const Control& control) {
    return dynamic_cast<Window&>(control.peer());
}

ToggleWindow* AsOption(const Control& control) {
    return control.ControlKind() == Kind::OptionButton
               ? dynamic_cast<ToggleWindow*>(&control.peer())
               : nullptr;
}

std::vector<ToggleWindow*> GroupOf(const toolkit::Form& form, const Control& option) {
    std::vector<ToggleWindow*> group;
    for (const auto& control : form.Controls()) {
        if (control->Container() == option.Container() && AsOption(*control) != nullptr)
            group.push_back(AsOption(*control));
    }
    return group;
}

// One option of a group takes the focus: the chosen one, or the first when none is.
bool SpeaksForGroup(const toolkit::Form& form, const ToggleWindow& option) {
    if (option.toggle().Checked())
        return true;
    const std::vector<ToggleWindow*> group = GroupOf(form, option.control());
    for (const ToggleWindow* other : group) {
        if (other->toggle().Checked() && other->CanTakeInput())
            return false;
    }
    for (const ToggleWindow* other : group) {
        if (other->CanTakeInput())
            return other == &option;
    }
    return false;
}

bool IsTabStop(const toolkit::Form& form, const Control& control) {
    const Window& window = WindowOf(control);
    if (!window.CanTakeInput() || (GetWindowLongPtrW(window.handle(), GWL_STYLE) & WS_TABSTOP) == 0)
        return false;
    const ToggleWindow* const option = AsOption(control);
    return option == nullptr || SpeaksForGroup(form, *option);
}

// Shows the focus marks and access keys that the system hides from those who use the mouse only.
void ShowKeyboardCues(const FormWindow& form, WORD cues = UISF_HIDEFOCUS | UISF_HIDEACCEL) {
    SendMessageW(form.handle(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, cues), 0);
}

void MoveFocusTo(Window& window) {
    SetFocus(window.handle());
    const Kind kind = window.control().ControlKind();
    if (kind == Kind::TextBox)
        SendMessageW(window.handle(), EM_SETSEL, 0, -1);
    else if (kind == Kind::ComboBox)
        SendMessageW(window.handle(), CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
}

std::size_t PlaceOf(const toolkit::Form& form, const Window* window) {
    const auto& controls = form.Controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (window != nullptr && controls[i].get() == &window->control())
            return i;
    }
    return controls.size();
}

void MoveFocus(FormWindow& form, const Window* focused, bool forward) {
    const auto& controls = form.Form().Controls();
    const std::size_t count = controls.size();
    std::size_t at = PlaceOf(form.Form(), focused);
    if (at == count && forward)
        at = count - 1;
    else if (at == count)
        at = 0;
    for (std::size_t step = 1; step <= count; ++step) {
        const std::size_t next = forward ? (at + step) % count : (at + count - step) % count;
        if (IsTabStop(form.Form(), *controls[next])) {
            ShowKeyboardCues(form);
            MoveFocusTo(WindowOf(*controls[next]));
            return;
        }
    }
}

bool MoveBetweenOptions(FormWindow& form, const Window& focused, bool forward) {
    const std::vector<ToggleWindow*> group = GroupOf(form.Form(), focused.control());
    const std::size_t count = group.size();
    std::size_t at = 0;
    while (at < count && group[at] != &focused)
        ++at;
    for (std::size_t step = 1; step < count; ++step) {
        ToggleWindow* const next =
            group[forward ? (at + step) % count : (at + count - step) % count];
        if (!next->CanTakeInput())
            continue;
        ShowKeyboardCues(form);
        SetFocus(next->handle());
        next->toggle().UserToggled();
        return true;
    }
    return true;
}

bool Press(const CommandButtonWindow* button) {
    if (button == nullptr || !button->CanTakeInput())
        return false;
    button->control().UserClicked();
    return true;
}

bool PressedByEnter(const FormWindow& form, const Window* focused) {
    if (const auto* const button = dynamic_cast<const CommandButtonWindow*>(focused))
        return Press(button);
    return Press(form.DefaultButton());
}

bool HasAccessKey(const Control& control, char32_t key) {
    return key != 0 && control.AccessKey() == key && WindowOf(control).CanTakeInput();
}

// Kinds that an access key presses.
bool IsPressed(Kind kind) {
    return kind == Kind::CommandButton || kind == Kind::CheckBox || kind == Kind::OptionButton;
}

// What an access key does to the control that it marks. One that marks several only goes to the
// next of them: which one is meant is for Space or Enter to say.
void UseAccessKey(FormWindow& form, std::size_t place, bool several) {
    const auto& controls = form.Form().Controls();
    const Control& control = *controls[place];
    ShowKeyboardCues(form);
    if (several && IsPressed(control.ControlKind())) {
        SetFocus(WindowOf(control).handle());
        return;
    }
    switch (control.ControlKind()) {
        case Kind::CommandButton: {
            const auto* const button = dynamic_cast<CommandButtonWindow*>(&control.peer());
            SetFocus(button->handle());
            Press(button);
            return;
        }
        case Kind::CheckBox:
        case Kind::OptionButton: {
            const auto* const toggle = dynamic_cast<ToggleWindow*>(&control.peer());
            SetFocus(toggle->handle());
            toggle->toggle().UserToggled();
            return;
        }
        default:
            break;
    }
    // Labels and frames speak for what comes after them, unless they take the focus themselves.
    for (std::size_t next = place; next < controls.size(); ++next) {
        if (IsTabStop(form.Form(), *controls[next])) {
            MoveFocusTo(WindowOf(*controls[next]));
            return;
        }
    }
}

bool HandleAccessKey(FormWindow& form, const Window* focused, char32_t key) {
    const auto& controls = form.Form().Controls();
    const std::size_t count = controls.size();
    const std::size_t at = std::min(PlaceOf(form.Form(), focused), count - 1);
    const auto marked = std::count_if(controls.begin(), controls.end(), [key](const auto& control) {
        return HasAccessKey(*control, key);
    });
    for (std::size_t step = 1; step <= count; ++step) {
        const std::size_t next = (at + step) % count;
        if (HasAccessKey(*controls[next], key)) {
            UseAccessKey(form, next, marked > 1);
            return true;
        }
    }
    return false;
}

bool HandleKeyDown(FormWindow& form, Window* focused, const MSG& message) {
    const Modifiers modifiers = CurrentModifiers();
    if (modifiers.control || modifiers.alt)
        return false;
    // A key that is held down presses a button once.
    const bool repeated = (message.lParam & 0x40000000) != 0;
    if (focused != nullptr && !modifiers.shift &&
        focused->control().UserPressedKey(static_cast<int>(message.wParam), repeated))
        return true;
    const bool option = focused != nullptr && AsOption(focused->control()) != nullptr;
    switch (message.wParam) {
        case VK_TAB:
            MoveFocus(form, focused, !modifiers.shift);
            return true;
        case VK_RETURN:
            return repeated || PressedByEnter(form, focused);
        case VK_ESCAPE:
            return repeated || Press(form.CancelButton());
        case VK_LEFT:
        case VK_UP:
            return option && MoveBetweenOptions(form, *focused, false);
        case VK_RIGHT:
        case VK_DOWN:
            return option && MoveBetweenOptions(form, *focused, true);
        default:
            return false;
    }
}

}  // namespace

Window* FirstTabStop(const toolkit::Form& form) {
    for (const auto& control : form.Controls()) {
        if (IsTabStop(form, *control))
            return &WindowOf(*control);
    }
    return nullptr;
}

bool HandleFormKey(FormWindow& form, Window* focused, const MSG& message) {
    if (message.message == WM_KEYDOWN)
        return HandleKeyDown(form, focused, message);
    // Who presses Alt wants to see what it can be pressed with.
    if (message.message == WM_SYSKEYDOWN && message.wParam == VK_MENU)
        ShowKeyboardCues(form, UISF_HIDEACCEL);
    if (message.message == WM_SYSCHAR)
        return HandleAccessKey(form, focused, FoldCase(static_cast<char32_t>(message.wParam)));
    return false;
}

}  // namespace ordalyn::win32
