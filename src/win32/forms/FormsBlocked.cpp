#include "win32/forms/FormsBlocked.h"

#include "win32/forms/FormWindow.h"

namespace ordalyn::win32 {

FormsBlocked::FormsBlocked(Desktop& desktop, const FormWindow* except) {
    for (const FormWindow* form : desktop.forms) {
        if (form == except || form->handle() == nullptr || !IsWindowEnabled(form->handle()))
            continue;
        blocked_.push_back(form->handle());
        EnableWindow(form->handle(), FALSE);
    }
}

void FormsBlocked::Release() {
    for (const HWND window : blocked_)
        EnableWindow(window, TRUE);
    blocked_.clear();
}

}  // namespace ordalyn::win32
