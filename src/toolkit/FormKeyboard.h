// What the keyboard does in every form: in which order a key is offered, and what F1, Tab, Enter,
// Escape, the arrows and the access keys do. A realisation only reports keys and which control has
// the focus. Controls are walked in the order of the design and not in that of the screen, which
// changes whenever one is brought to the front.
#pragma once

#include "toolkit/Form.h"

namespace ordalyn::toolkit {

struct KeyPress {
    int key = 0;
    Modifiers modifiers = {};
    // The key repeats itself because it is held down: it presses a button only once.
    bool held = false;
    // The system reserves the key for menus (with Alt, F10): only events and shortcuts get it.
    bool forMenus = false;
};

// `focused` is the control that the key is for, or null. Each operation returns whether the key was
// used up, so that the control's own window must not get it. The form may be gone then.
class FormKeyboard {
  public:
    explicit FormKeyboard(Form& form) : form_(form) {}

    // The form's event and its menu shortcuts come first, then F1, which no control has a use for,
    // the control's event, what the control does with the key, and last what every form does with
    // it.
    bool KeyDown(Control* focused, const KeyPress& press) const;
    bool KeyUp(Control* focused, int key, Modifiers modifiers) const;
    // Alt with a character: goes to the next control behind the focus whose caption marks it.
    // Buttons are pressed; labels and frames speak for the control that follows. A character that
    // several controls mark only moves the focus: Space or Enter says which one is meant.
    bool AccessKey(const Control* focused, char32_t character) const;
    // Null when nothing can take the focus.
    Control* FirstTabStop() const;

  private:
    bool UseKey(Control* focused, const KeyPress& press) const;
    void MoveFocus(const Control* focused, bool forward) const;
    bool MoveBetweenOptions(const Control* focused, bool forward) const;
    bool PressForEnter(Control* focused) const;
    void UseAccessKey(std::size_t place, bool several) const;
    std::size_t PlaceOf(const Control* control) const;
    Form& form_;
};

}  // namespace ordalyn::toolkit
