#include "win32/forms/FormTimer.h"

namespace ordalyn::win32 {

namespace {

// Menus, moving windows and what the mouse holds have message loops of the system's own, in which
// timers go on.
bool UserIsInTheMiddleOfSomething() {
    GUITHREADINFO about = {};
    about.cbSize = sizeof about;
    constexpr DWORD kBusy =
        GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE | GUI_INMOVESIZE;
    return GetGUIThreadInfo(GetCurrentThreadId(), &about) &&
           ((about.flags & kBusy) != 0 || about.hwndCapture != nullptr);
}

}  // namespace

// The number of a window's timer is free to be chosen.
void FormTimer::Start(int milliseconds) {
    if (form_.handle() != nullptr)
        SetTimer(form_.handle(), reinterpret_cast<UINT_PTR>(this), static_cast<UINT>(milliseconds),
                 TimeHasPassed);
}

// A window that has gone has taken its timers along.
void FormTimer::Stop() {
    if (form_.handle() != nullptr)
        KillTimer(form_.handle(), reinterpret_cast<UINT_PTR>(this));
}

void CALLBACK FormTimer::TimeHasPassed(HWND, UINT, UINT_PTR timer, DWORD) {
    const auto& self = *reinterpret_cast<const FormTimer*>(timer);
    if (UserIsInTheMiddleOfSomething())
        return;
    self.desktop_.lastHandler.Run(false, [&self] {
        self.timer_.SystemElapsed();
        return true;
    });
}

}  // namespace ordalyn::win32
