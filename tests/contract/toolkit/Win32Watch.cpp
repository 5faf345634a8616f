#include "contract/toolkit/Win32Watch.h"

#include <string_view>
#include <utility>

#include "contract/toolkit/Win32Windows.h"
#include "win32/common/WideText.h"

namespace ordalyn::contract {

using namespace toolkit;

namespace {

Answer AnswerOf(int button) {
    if (button == IDYES)
        return Answer::Yes;
    return button == IDNO ? Answer::No : Answer::Ok;
}

struct WindowSearch {
    std::wstring_view wanted;
    HWND found = nullptr;
};

BOOL CALLBACK IsWanted(HWND window, LPARAM parameter) {
    WindowSearch& asked = *reinterpret_cast<WindowSearch*>(parameter);
    wchar_t name[16] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    if (name != asked.wanted || !IsWindowVisible(window) || !IsWindowEnabled(window))
        return TRUE;
    asked.found = window;
    return FALSE;
}

// A window of this thread that can be used.
HWND WindowOfClass(std::wstring_view wanted) {
    WindowSearch search{wanted};
    EnumThreadWindows(GetCurrentThreadId(), IsWanted, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace

Win32Watch* Win32Watch::watch_ = nullptr;

Win32Watch::Win32Watch(std::vector<BoxSeen>& boxes) : boxes_(boxes) {
    watch_ = this;
    timer_ = SetTimer(nullptr, 0, 10, Look);
}

Win32Watch::~Win32Watch() {
    KillTimer(nullptr, timer_);
    watch_ = nullptr;
}

void CALLBACK Win32Watch::Look(HWND, UINT, UINT_PTR, DWORD) {
    if (watch_ != nullptr)
        watch_->LookAround();
}

void Win32Watch::LookAround() {
    const HWND box = WindowOfClass(L"#32770");
    if (box != nullptr && box != answered_)
        AnswerBox(box);
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    if (stepsInMenu_ >= 0 && GetGUIThreadInfo(GetCurrentThreadId(), &info) &&
        (info.flags & GUI_INMENUMODE) != 0)
        UseOpenMenu(info.hwndMenuOwner);
}

void Win32Watch::AnswerBox(HWND box) {
    answered_ = box;
    BoxSeen seen;
    seen.title = win32::TextOf(box);
    seen.text = win32::TextOf(GetDlgItem(box, 0xFFFF));
    seen.buttons = GetDlgItem(box, IDNO) != nullptr ? MessageButtons::YesNo : MessageButtons::Ok;
    const int standard = GetDlgCtrlID(GetFocus());
    seen.defaultAnswer = AnswerOf(standard);
    boxes_.push_back(seen);
    int pressed = standard;
    if (answer_ && seen.buttons == MessageButtons::YesNo)
        pressed = answer_(seen) == Answer::Yes ? IDYES : IDNO;
    else if (answer_)
        answer_(seen);
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(pressed), 0);
}

void Win32Watch::UseOpenMenu(HWND owner) {
    const int steps = std::exchange(stepsInMenu_, -1);
    GetWindowRect(WindowOfClass(L"#32768"), &lastMenu_);
    for (int i = 0; i < steps; ++i)
        PostMessageW(owner, WM_KEYDOWN, VK_DOWN, 1);
    PostMessageW(owner, WM_KEYDOWN, steps > 0 ? VK_RETURN : VK_ESCAPE, 1);
}

}  // namespace ordalyn::contract
