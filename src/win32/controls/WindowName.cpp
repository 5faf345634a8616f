// Window's share of what programs that speak the screen are told.
#include "win32/common/WideText.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

// The system calls a control that shows no text of its own by the label that stands right before it
// among the windows of its container. A hidden one serves where none is to be seen.
void Window::ShowAccessibleName(std::string_view name) {
    if (handle_ == nullptr || (GetWindowLongW(handle_, GWL_STYLE) & WS_CHILD) == 0)
        return;
    const std::wstring text = WideForOneLine(name);
    if (label_ == nullptr)
        label_ =
            CreateWindowExW(0, WC_STATICW, text.c_str(), WS_CHILD | SS_NOPREFIX, 0, 0, 0, 0,
                            GetAncestor(handle_, GA_PARENT), nullptr, desktop_.program, nullptr);
    else
        SetWindowTextW(label_, text.c_str());
    PutLabelBeforeControl();
}

void Window::PutLabelBeforeControl() {
    if (label_ == nullptr || handle_ == nullptr)
        return;
    const HWND before = GetWindow(handle_, GW_HWNDPREV);
    if (before != label_)
        SetWindowPos(label_, before != nullptr ? before : HWND_TOP, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace ordalyn::win32
