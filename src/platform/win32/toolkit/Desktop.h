// What all windows of one toolkit share.
#pragma once

#include <vector>

#include "platform/win32/toolkit/Fonts.h"
#include "platform/win32/toolkit/LastHandler.h"
#include "platform/win32/toolkit/Scale.h"
#include "platform/win32/toolkit/Win32.h"
#include "toolkit/Basics.h"

namespace ordalyn::win32 {

class FormWindow;

// How far the system's window rectangle reaches beyond the frame that can be seen, in pixels.
struct FrameMargins {
    int left = 0, top = 0, right = 0, bottom = 0;
};

class Desktop {
  public:
    Desktop(HINSTANCE program, const Scale& scale);
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    const HINSTANCE program;
    const Scale scale;
    Fonts fonts;
    LastHandler lastHandler;
    std::vector<FormWindow*> forms;  // all that exist, oldest first

    // The pointer over all windows of the program; Default leaves it to each of them.
    toolkit::Pointer CommonPointer() const { return pointer_; }
    void SetCommonPointer(toolkit::Pointer pointer);

    // For windows whose frame can be dragged and for those whose frame cannot.
    const FrameMargins& Margins(bool resizable);

  private:
    toolkit::Pointer pointer_ = toolkit::Pointer::Default;
    bool measured_[2] = {false, false};
    FrameMargins margins_[2];
};

HCURSOR CursorFor(toolkit::Pointer pointer);
// Lets the window below the mouse choose the pointer anew.
void RefreshPointer();

// Keeps all forms but one from taking input, as long as it lives or until Release.
class FormsBlocked {
  public:
    FormsBlocked(Desktop& desktop, const FormWindow* except);
    ~FormsBlocked() { Release(); }
    FormsBlocked(const FormsBlocked&) = delete;
    FormsBlocked& operator=(const FormsBlocked&) = delete;
    void Release();

  private:
    std::vector<HWND> blocked_;
};

}  // namespace ordalyn::win32
