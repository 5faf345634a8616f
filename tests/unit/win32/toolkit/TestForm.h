// Forms in real windows, operated by the messages that a user's actions cause.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "support/win32/LaterWork.h"
#include "toolkit/Form.h"
#include "win32/common/WideText.h"
#include "win32/forms/Win32Toolkit.h"

namespace ordalyn::test {

inline win32::Win32Toolkit& TheToolkit() {
    static win32::Win32Toolkit toolkit(GetModuleHandleW(nullptr));
    return toolkit;
}

// Runs when messages are handled next, also by a message box or a modal form.
inline void Later(std::function<void()> work) {
    static LaterWork later;
    later.Add(std::move(work));
}

inline HWND HandleOf(const toolkit::Form& form) {
    return reinterpret_cast<HWND>(form.Handle());
}

struct ChildSearch {
    std::wstring className;
    std::vector<HWND> found;
};

inline BOOL CALLBACK CollectChild(HWND child, LPARAM parameter) {
    auto& search = *reinterpret_cast<ChildSearch*>(parameter);
    wchar_t name[64] = {};
    GetClassNameW(child, name, 64);
    if (_wcsicmp(name, search.className.c_str()) == 0)
        search.found.push_back(child);
    return TRUE;
}

// The window's child windows of a class, in the order of their creation.
inline std::vector<HWND> ChildrenOf(HWND parent, const std::wstring& className) {
    ChildSearch search{className, {}};
    EnumChildWindows(parent, CollectChild, reinterpret_cast<LPARAM>(&search));
    std::sort(search.found.begin(), search.found.end(),
              [](HWND a, HWND b) { return GetDlgCtrlID(a) < GetDlgCtrlID(b); });
    return search.found;
}

inline HWND Child(const toolkit::Form& form, const std::wstring& className, std::size_t index = 0) {
    return ChildrenOf(HandleOf(form), className).at(index);
}

inline void PressKey(HWND window, int key) {
    PostMessageW(window, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    PostMessageW(window, WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001U));
    TheToolkit().DoEvents();
}

inline void Click(HWND window, int x, int y) {
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    TheToolkit().DoEvents();
}

// Handles messages until the condition holds; answers whether it came to hold.
inline bool WaitUntil(const std::function<bool()>& condition) {
    for (int i = 0; i < 200; ++i) {
        TheToolkit().DoEvents();
        if (condition())
            return true;
        Sleep(10);
    }
    return false;
}

}  // namespace ordalyn::test
