#include "win32/drawing/Colors.h"

// after windows.h
#include <uxtheme.h>

namespace ordalyn::win32 {

namespace {

bool ControlsAreThemed() {
    return IsThemeActive() && IsAppThemed() && (GetThemeAppProperties() & STAP_ALLOW_CONTROLS) != 0;
}

}  // namespace

COLORREF Resolve(toolkit::Color color) {
    if (color == toolkit::kTabInterior)
        return GetSysColor(ControlsAreThemed() ? COLOR_WINDOW : COLOR_BTNFACE);
    if (color < 0)
        return GetSysColor(color & 0xFF);
    return static_cast<COLORREF>(color) & 0xFFFFFFU;
}

HBRUSH ColorBrush::For(toolkit::Color color) {
    const COLORREF wanted = Resolve(color);
    if (!brush_ || color_ != wanted) {
        brush_.Reset(CreateSolidBrush(wanted));
        color_ = wanted;
    }
    return brush_.Get();
}

}  // namespace ordalyn::win32
