// What newer Windows know of a resolution for each screen. Where one does not, all screens have the
// system's.
#pragma once

#include "win32/common/Scale.h"
#include "win32/common/Win32.h"

namespace ordalyn::win32 {

// A window has come to a screen of another resolution: wParam has it twice, lParam points at the
// rectangle that is proposed for the window.
inline constexpr UINT kResolutionChanged = 0x02E0;

// Of the screen that most of this part of all screens lies on.
Scale ScaleOfScreen(const RECT& place);

// A system metric for windows of a resolution.
int MetricAt(int metric, int dpi);

// Has the system draw the frame of a window that is being made in the resolution of its screen,
// too. Windows from 2017 on do that of their own accord, those before 2016 cannot.
void ScaleFrameOf(HWND window);

}  // namespace ordalyn::win32
