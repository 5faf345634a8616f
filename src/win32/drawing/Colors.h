// The toolkit's colours as the system's. System colours are looked up each time, so that a change
// of the theme shows at the next repaint.
#pragma once

#include "toolkit/Basics.h"
#include "win32/common/Handles.h"

namespace ordalyn::win32 {

COLORREF Resolve(toolkit::Color color);

// A brush of the latest colour that was asked for.
class ColorBrush {
  public:
    // Valid until the next call.
    HBRUSH For(toolkit::Color color);

  private:
    Brush brush_;
    COLORREF color_ = 0;
};

}  // namespace ordalyn::win32
