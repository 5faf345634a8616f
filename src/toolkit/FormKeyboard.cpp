#include "toolkit/FormKeyboard.h"

#include <algorithm>

#include "base/Text.h"
#include "toolkit/ListView.h"

namespace ordalyn::toolkit {

namespace {

// Whether the form is no longer there to be asked: destroyed by what its events led to, or
// unloaded.
class Gone {
  public:
    explicit Gone(const Form& form) : form_(form), lifetime_(form.Lifetime()) {}
    explicit operator bool() const { return lifetime_.expired() || form_.Unloaded(); }

  private:
    const Form& form_;
    std::weak_ptr<const void> lifetime_;
};

const Toggle* AsOption(const Control* control) {
    return control != nullptr && control->ControlKind() == Kind::OptionButton
               ? dynamic_cast<const Toggle*>(control)
               : nullptr;
}

// One option of a group takes the focus: the chosen one, or the first when none is.
bool SpeaksForGroup(const Toggle& option) {
    const Toggle* speaker = nullptr;
    for (const Toggle* other : option.Group()) {
        if (other->CanTakeInput() &&
            (speaker == nullptr || (other->Checked() && !speaker->Checked())))
            speaker = other;
    }
    return speaker == &option;
}

bool IsTabStop(const Control& control) {
    if (!control.TabStop() || !control.CanTakeInput())
        return false;
    const Toggle* const option = AsOption(&control);
    return option == nullptr || SpeaksForGroup(*option);
}

// Whoever comes to a text by the keyboard types over it.
void GiveFocus(Control& control) {
    control.SetFocus();
    if (auto* const text = dynamic_cast<TextBox*>(&control))
        text->SelectAll();
    else if (auto* const box = dynamic_cast<ComboBox*>(&control))
        box->SelectText(0, box->Text().size());
}

bool Press(Control* button) {
    if (button == nullptr || !button->CanTakeInput())
        return false;
    button->UserClicked();
    return true;
}

bool HasAccessKey(const Control& control, char32_t key) {
    return key != 0 && control.AccessKey() == key && control.CanTakeInput();
}

// Shift+F10 is the key for the context menu on keyboards that have none. Text fields have a menu of
// the system's own, and open it themselves.
bool IsContextMenuKey(const Control* focused, const KeyPress& press) {
    const auto* const box = dynamic_cast<const ComboBox*>(focused);
    const bool text =
        dynamic_cast<const TextBox*>(focused) != nullptr || (box != nullptr && box->Editable());
    return !text && press.key == key::F10 && press.modifiers == Modifiers{.shift = true};
}

bool IsHelpKey(const KeyPress& press) {
    return press.key == key::F1 && press.modifiers == Modifiers{} && !press.held;
}

std::size_t Next(std::size_t at, std::size_t step, std::size_t count, bool forward) {
    return forward ? (at + step) % count : (at + count - step) % count;
}

}  // namespace

bool FormKeyboard::KeyDown(Control* focused, const KeyPress& press) const {
    const Gone gone(form_);
    // It opens the menu when it goes down, as everywhere: nobody knows which key is let go first.
    if (IsContextMenuKey(focused, press)) {
        if (!press.held && !form_.UserKeyDown(key::ContextMenu, {}) && !gone)
            KeyUp(focused, key::ContextMenu, {});
        return true;
    }
    if (form_.UserKeyDown(press.key, press.modifiers) || gone)
        return true;
    if (IsHelpKey(press) && form_.UserAskedForHelp())
        return true;
    if (focused != nullptr && focused->NeedsKey(press.key))
        return false;
    if (focused != nullptr)
        focused->KeyDown.Raise(press.key, press.modifiers);
    return gone || UseKey(focused, press);
}

bool FormKeyboard::KeyUp(Control* focused, int key, Modifiers modifiers) const {
    const Gone gone(form_);
    form_.UserKeyUp(key, modifiers);
    if (gone)
        return true;
    if (focused != nullptr)
        focused->KeyUp.Raise(key, modifiers);
    return static_cast<bool>(gone);
}

bool FormKeyboard::UseKey(Control* focused, const KeyPress& press) const {
    auto* const list = dynamic_cast<ListView*>(focused);
    if (list != nullptr && press.key == 'A' && press.modifiers == Modifiers{.control = true})
        return list->UserSelectedAll();
    if (press.forMenus || press.modifiers.control || press.modifiers.alt)
        return false;
    if (focused != nullptr && !press.modifiers.shift &&
        focused->UserPressedKey(press.key, press.held))
        return true;
    switch (press.key) {
        case key::Tab:
            MoveFocus(focused, !press.modifiers.shift);
            return true;
        case key::Enter:
            return press.held || PressForEnter(focused);
        case key::Escape:
            return press.held || Press(form_.CancelButton());
        case key::Left:
        case key::Up:
            return MoveBetweenOptions(focused, false);
        case key::Right:
        case key::Down:
            return MoveBetweenOptions(focused, true);
        default:
            return false;
    }
}

std::size_t FormKeyboard::PlaceOf(const Control* control) const {
    const auto& controls = form_.Controls();
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [control](const auto& each) { return each.get() == control; });
    return static_cast<std::size_t>(found - controls.begin());
}

void FormKeyboard::MoveFocus(const Control* focused, bool forward) const {
    const auto& controls = form_.Controls();
    const std::size_t count = controls.size();
    std::size_t at = PlaceOf(focused);
    // Without a focus the walk begins before the first control, or behind the last one.
    if (at == count)
        at = forward && count > 0 ? count - 1 : 0;
    for (std::size_t step = 1; step <= count; ++step) {
        Control& next = *controls[Next(at, step, count, forward)];
        if (!IsTabStop(next))
            continue;
        form_.formPeer().ShowKeyboardCues();
        GiveFocus(next);
        return;
    }
}

bool FormKeyboard::MoveBetweenOptions(const Control* focused, bool forward) const {
    const Toggle* const option = AsOption(focused);
    if (option == nullptr)
        return false;
    const std::vector<Toggle*>& group = option->Group();
    const auto at =
        static_cast<std::size_t>(std::find(group.begin(), group.end(), option) - group.begin());
    for (std::size_t step = 1; step < group.size(); ++step) {
        Toggle& next = *group[Next(at, step, group.size(), forward)];
        if (!next.CanTakeInput())
            continue;
        form_.formPeer().ShowKeyboardCues();
        next.SetFocus();
        next.UserToggled();
        break;
    }
    return true;
}

bool FormKeyboard::PressForEnter(Control* focused) const {
    if (auto* const list = dynamic_cast<ListView*>(focused);
        list != nullptr && list->UserActivated(list->SelectedRow()))
        return true;
    const bool button = focused != nullptr && focused->ControlKind() == Kind::CommandButton;
    return Press(button ? focused : form_.DefaultButton());
}

bool FormKeyboard::AccessKey(const Control* focused, char32_t character) const {
    const auto& controls = form_.Controls();
    const std::size_t count = controls.size();
    const char32_t key = FoldCase(character);
    const auto marked = std::count_if(controls.begin(), controls.end(), [key](const auto& control) {
        return HasAccessKey(*control, key);
    });
    if (marked == 0)
        return false;
    std::size_t place = std::min(PlaceOf(focused), count - 1);
    do {
        place = Next(place, 1, count, true);
    } while (!HasAccessKey(*controls[place], key));
    UseAccessKey(place, marked > 1);
    return true;
}

void FormKeyboard::UseAccessKey(std::size_t place, bool several) const {
    const auto& controls = form_.Controls();
    Control& control = *controls[place];
    form_.formPeer().ShowKeyboardCues();
    auto* const toggle = dynamic_cast<Toggle*>(&control);
    if (toggle != nullptr || control.ControlKind() == Kind::CommandButton) {
        control.SetFocus();
        if (several)
            return;
        if (toggle != nullptr)
            toggle->UserToggled();
        else
            Press(&control);
        return;
    }
    // Labels and frames speak for what follows them, unless they take the focus themselves.
    const auto from = controls.begin() + static_cast<std::ptrdiff_t>(place);
    const auto next =
        std::find_if(from, controls.end(), [](const auto& each) { return IsTabStop(*each); });
    if (next != controls.end())
        GiveFocus(**next);
}

Control* FormKeyboard::FirstTabStop() const {
    const auto& controls = form_.Controls();
    const auto first = std::find_if(controls.begin(), controls.end(),
                                    [](const auto& control) { return IsTabStop(*control); });
    return first == controls.end() ? nullptr : first->get();
}

}  // namespace ordalyn::toolkit
