// Looks after message boxes and open menus, which run message loops of their own.
#pragma once

#include "contract/toolkit/ToolkitDriver.h"
#include "win32/common/Win32.h"

namespace ordalyn::contract {

class Win32Watch {
  public:
    explicit Win32Watch(std::vector<BoxSeen>& boxes);
    ~Win32Watch();
    Win32Watch(const Win32Watch&) = delete;
    Win32Watch& operator=(const Win32Watch&) = delete;

    void AnswerBoxes(std::function<toolkit::Answer(const BoxSeen&)> answer) {
        answer_ = std::move(answer);
    }
    // In the next menu that opens, Down is pressed this often and then Enter; with 0, Escape.
    void ExpectMenu(int steps) { stepsInMenu_ = steps; }
    // Where that menu stood on the screen.
    const RECT& LastMenu() const { return lastMenu_; }

  private:
    static void CALLBACK Look(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void LookAround();
    void AnswerBox(HWND box);
    void UseOpenMenu(HWND owner);

    static Win32Watch* watch_;
    std::vector<BoxSeen>& boxes_;
    UINT_PTR timer_ = 0;
    HWND answered_ = nullptr;
    int stepsInMenu_ = -1;  // -1: no menu is expected
    RECT lastMenu_ = {};
    std::function<toolkit::Answer(const BoxSeen&)> answer_;
};

}  // namespace ordalyn::contract
