// How wide texts are on the screen.
#pragma once

#include <string_view>

#include "win32/common/DeviceContext.h"

namespace ordalyn::win32 {

// How wide texts are in a window's font, or in another one, in pixels.
class TextMeasure {
  public:
    explicit TextMeasure(HWND window);
    TextMeasure(HWND window, HFONT font);
    int WidthOf(std::string_view text) const;

  private:
    WindowDc dc_;
    SelectedObject font_;
};

}  // namespace ordalyn::win32
