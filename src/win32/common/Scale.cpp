#include "win32/common/Scale.h"

#include <algorithm>
#include <cmath>

#include "win32/common/DeviceContext.h"

namespace ordalyn::win32 {

namespace {

int ScreenDpi(int index) {
    const int dpi = GetDeviceCaps(WindowDc(nullptr).Get(), index);
    return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

}  // namespace

Scale::Scale() : Scale(ScreenDpi(LOGPIXELSX), ScreenDpi(LOGPIXELSY)) {}

int Scale::Pixels(double twips, int dpi) {
    // Far outside what any screen has, and inside what the system's calls can add up.
    constexpr double kFarAway = 1'000'000;
    const double pixels = std::round(twips * dpi / 1440);
    if (std::isnan(pixels))
        return 0;
    return static_cast<int>(std::clamp(pixels, -kFarAway, kFarAway));
}

toolkit::Twips Scale::Twips(int pixels, int dpi) {
    return static_cast<toolkit::Twips>(pixels * 1440.0 / dpi);
}

RECT Scale::Pixels(const toolkit::Rect& rect) const {
    const double right = double{rect.left} + double{rect.width};
    const double bottom = double{rect.top} + double{rect.height};
    return {Pixels(rect.left, dpiX_), Pixels(rect.top, dpiY_), Pixels(right, dpiX_),
            Pixels(bottom, dpiY_)};
}

toolkit::Rect Scale::Twips(const RECT& rect) const {
    return {TwipsX(rect.left), TwipsY(rect.top), TwipsX(rect.right - rect.left),
            TwipsY(rect.bottom - rect.top)};
}

}  // namespace ordalyn::win32
