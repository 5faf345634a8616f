// What the keyboard does in every form: Tab moves the focus in design order, arrows move between
// the options of a group, Enter and Escape press the form's buttons, Alt with a letter goes to the
// control whose caption marks it. Controls are walked in the order of the design and not of the
// system's window order, which changes whenever one is brought to the front.
#pragma once

#include "win32/forms/FormWindow.h"

namespace ordalyn::win32 {

// Null when nothing can take the focus.
Window* FirstTabStop(const toolkit::Form& form);

// Deals with WM_KEYDOWN, WM_SYSKEYDOWN and WM_SYSCHAR. `focused` is the control that the key is
// for, or null. Returns whether the message was used up.
bool HandleFormKey(FormWindow& form, Window* focused, const MSG& message);

}  // namespace ordalyn::win32
