// The toolkit's colours as the system's. System colours are looked up each time, so that a change
// of the theme shows at the next repaint.
#pragma once

#include "toolkit/Basics.h"
#include "win32/common/Handles.h"

namespace ordalyn::win32 {

COLORREF Resolve(toolkit::Color color);

struct ResolvedColors {
    COLORREF text;
    COLORREF background;
};
// Readable also with high contrast, whatever was chosen.
ResolvedColors ResolveText(toolkit::Color text, toolkit::Color background);

// Says whether the person has chosen high contrast. Tests put another question in its place: what
// the desktop itself is set to is not theirs to change.
using HighContrastQuestion = bool();
HighContrastQuestion*& HighContrastIsOn();

// A brush of the latest colour that was asked for.
class ColorBrush {
  public:
    // Valid until the next call.
    HBRUSH For(COLORREF color);

  private:
    Brush brush_;
    COLORREF color_ = 0;
};

}  // namespace ordalyn::win32
