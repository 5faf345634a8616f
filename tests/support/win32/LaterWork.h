// Work for the message loop: also for those inside of message boxes, menus and modal forms.
#pragma once

#include <deque>
#include <functional>
#include <utility>

#include "win32/common/Win32.h"

namespace ordalyn::test {

// Each piece of work runs once, in the order in which it was added, when messages are handled. The
// messages go to a window that is never shown.
class LaterWork {
  public:
    LaterWork() {
        window_ = CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
        SetWindowSubclass(window_, Procedure, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~LaterWork() {
        RemoveWindowSubclass(window_, Procedure, 1);
        DestroyWindow(window_);
    }
    LaterWork(const LaterWork&) = delete;
    LaterWork& operator=(const LaterWork&) = delete;

    void Add(std::function<void()> work) {
        waiting_.push_back(std::move(work));
        PostMessageW(window_, kRunNext, 0, 0);
    }

  private:
    static constexpr UINT kRunNext = WM_APP + 1;
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR, DWORD_PTR object) {
        auto& waiting = reinterpret_cast<LaterWork*>(object)->waiting_;
        if (message != kRunNext || waiting.empty())
            return DefSubclassProc(window, message, wParam, lParam);
        const std::function<void()> work = std::move(waiting.front());
        waiting.pop_front();
        work();
        return 0;
    }
    HWND window_;
    std::deque<std::function<void()>> waiting_;
};

}  // namespace ordalyn::test
