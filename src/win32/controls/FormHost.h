// FormHost: what a control asks of the form that it is on.
#pragma once

#include <string_view>

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

class CommandButtonWindow;

class FormHost {
  public:
    virtual ~FormHost() = default;
    virtual HWND FormHandle() const = 0;
    virtual bool Resizable() const = 0;
    // The user presses a mouse button on a control of the form, which may not be the active one.
    virtual void ControlIsPressed() = 0;
    // The control with the focus can no longer have it.
    virtual void FocusWasLost() = 0;
    // What is to get the focus when the form's turn comes.
    virtual void RememberFocus(HWND window) = 0;
    // The button that looks as if Enter pressed it; null: the form's own default button.
    virtual void ShowDefaultButton(CommandButtonWindow* button) = 0;
    // An empty text takes the tool tip away.
    virtual void SetToolTipOf(HWND window, std::string_view text) = 0;
};

}  // namespace ordalyn::win32
