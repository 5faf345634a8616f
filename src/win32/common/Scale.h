// Twips and pixels at a resolution. The only place that knows both.
#pragma once

#include "toolkit/Basics.h"
#include "win32/common/Win32.h"

namespace ordalyn::win32 {

class Scale {
  public:
    Scale();  // of the system: that of its main screen when the user signed in
    Scale(int dpiX, int dpiY) : dpiX_(dpiX), dpiY_(dpiY) {}

    bool operator==(const Scale&) const = default;
    int DpiX() const { return dpiX_; }
    int DpiY() const { return dpiY_; }
    double TwipsPerPixelX() const { return 1440.0 / dpiX_; }
    double TwipsPerPixelY() const { return 1440.0 / dpiY_; }

    int PixelsX(toolkit::Twips twips) const { return Pixels(twips, dpiX_); }
    int PixelsY(toolkit::Twips twips) const { return Pixels(twips, dpiY_); }
    toolkit::Twips TwipsX(int pixels) const { return Twips(pixels, dpiX_); }
    toolkit::Twips TwipsY(int pixels) const { return Twips(pixels, dpiY_); }
    // Pixels of a picture or gap that has this many pixels at 96 DPI.
    int Nominal(int pixels) const { return MulDiv(pixels, dpiY_, USER_DEFAULT_SCREEN_DPI); }

    // Edges are rounded, not sizes, so that neighbours in twips are neighbours on the screen.
    RECT Pixels(const toolkit::Rect& rect) const;
    toolkit::Rect Twips(const RECT& rect) const;

  private:
    static int Pixels(double twips, int dpi);
    static toolkit::Twips Twips(int pixels, int dpi);
    int dpiX_;
    int dpiY_;
};

}  // namespace ordalyn::win32
