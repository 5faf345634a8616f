// Device contexts, and what is changed in them, for the length of a scope.
#pragma once

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

// The device context of a window's client area; of the screen for null.
class WindowDc {
  public:
    explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
    ~WindowDc() { ReleaseDC(window_, dc_); }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    HDC Get() const { return dc_; }

  private:
    HWND window_;
    HDC dc_;
};

// The device context of what a WM_PAINT message asks a window to paint.
class PaintDc {
  public:
    explicit PaintDc(HWND window) : window_(window) { BeginPaint(window, &paint_); }
    ~PaintDc() { EndPaint(window_, &paint_); }
    PaintDc(const PaintDc&) = delete;
    PaintDc& operator=(const PaintDc&) = delete;
    HDC Get() const { return paint_.hdc; }

  private:
    HWND window_;
    PAINTSTRUCT paint_ = {};
};

// A font, pen, ... that is selected until the one from before comes back.
class SelectedObject {
  public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
    ~SelectedObject() { SelectObject(dc_, before_); }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

  private:
    HDC dc_;
    HGDIOBJ before_;
};

// Everything that is set in a device context goes back to what it was.
class SavedDc {
  public:
    explicit SavedDc(HDC dc) : dc_(dc), saved_(SaveDC(dc)) {}
    ~SavedDc() { RestoreDC(dc_, saved_); }
    SavedDc(const SavedDc&) = delete;
    SavedDc& operator=(const SavedDc&) = delete;

  private:
    HDC dc_;
    int saved_;
};

}  // namespace ordalyn::win32
