// The dotted frame of what has the focus, for kinds whose window class draws none.
#pragma once

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

// Visible on every background, and the same when it is drawn twice.
void DrawFocusMark(HDC dc, const RECT& frame, COLORREF background);

}  // namespace ordalyn::win32
