// What all windows of one toolkit share.
#pragma once

#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "toolkit/Basics.h"
#include "win32/common/Scale.h"
#include "win32/common/Win32.h"
#include "win32/controls/LastHandler.h"
#include "win32/drawing/Fonts.h"

namespace ordalyn::win32 {

class FormWindow;

// How far the system's window rectangle reaches beyond the frame that can be seen, in pixels.
struct FrameMargins {
    int left = 0, top = 0, right = 0, bottom = 0;
};

// What the system says of the resolution at a place.
using ScaleAt = std::function<Scale(const RECT& place)>;

class Desktop {
  public:
    Desktop(HINSTANCE program, const Scale& scale, ScaleAt scaleAt);
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    const HINSTANCE program;
    // Of places on the screens, all of which count alike; a form and what is on it have the
    // resolution of their screen (Window::scale).
    const Scale scale;
    const ScaleAt scaleAt;
    Fonts fonts;
    LastHandler lastHandler;
    std::vector<FormWindow*> forms;  // all that exist, oldest first
    int messageBoxes = 0;            // that wait for an answer

    // The pointer over all windows of the program; Default leaves it to each of them.
    toolkit::Pointer CommonPointer() const { return pointer_; }
    void SetCommonPointer(toolkit::Pointer pointer);

    // Whether the frames of all forms are dark, as what the user has chosen for the lists is: those
    // that exist change at once.
    void SetDark(bool dark);
    void ShowFrameOf(HWND newForm) const;

    // For windows whose frame can be dragged and for those whose frame cannot, of a resolution.
    FrameMargins Margins(bool resizable, int dpi);

  private:
    toolkit::Pointer pointer_ = toolkit::Pointer::Default;
    bool dark_ = false;
    std::map<std::pair<bool, int>, FrameMargins> margins_;
};

HCURSOR CursorFor(toolkit::Pointer pointer);
// Lets the window below the mouse choose the pointer again.
void RefreshPointer();

}  // namespace ordalyn::win32
