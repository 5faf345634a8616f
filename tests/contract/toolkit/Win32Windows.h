// What both halves of a user on Windows need to know of the windows.
#pragma once

#include "win32/common/Win32.h"
#include "win32/controls/Window.h"

namespace ordalyn::contract {

inline HWND HandleOf(const toolkit::Control& control) {
    return dynamic_cast<win32::Window&>(control.peer()).handle();
}

inline LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(window, message, wParam, lParam);
}

}  // namespace ordalyn::contract
