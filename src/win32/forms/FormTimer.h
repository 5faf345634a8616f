// Timers of a form's window.
#pragma once

#include "toolkit/Timer.h"
#include "win32/forms/FormWindow.h"

namespace ordalyn::win32 {

class FormTimer : public toolkit::TimerPeer {
  public:
    FormTimer(Desktop& desktop, toolkit::Timer& timer, const FormWindow& form)
        : desktop_(desktop), timer_(timer), form_(form) {}
    ~FormTimer() override { Stop(); }
    FormTimer(const FormTimer&) = delete;
    FormTimer& operator=(const FormTimer&) = delete;

    void Start(int milliseconds) override;
    void Stop() override;

  private:
    static void CALLBACK TimeHasPassed(HWND window, UINT message, UINT_PTR timer, DWORD time);

    Desktop& desktop_;
    toolkit::Timer& timer_;
    const FormWindow& form_;
};

}  // namespace ordalyn::win32
