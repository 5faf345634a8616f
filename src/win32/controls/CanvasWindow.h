// Canvases: windows that are drawn by the program's own code, into a picture in memory that is then
// shown at once.
#pragma once

#include "toolkit/Canvas.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

class CanvasWindow : public Peer<toolkit::CanvasPeer> {
  public:
    CanvasWindow(Desktop& desktop, toolkit::Canvas& canvas, toolkit::ControlPeer& container);
    // Nothing shows it: it is only heard.
    void SetAccessibleName(std::string_view name) override { ShowCaption(name); }
    void Invalidate() override;
    toolkit::Size Measure(std::string_view text) override;
    toolkit::Twips WholePixels(toolkit::Twips length) override;
    toolkit::TextColors ShownColors() override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void PaintBuffered(HDC dc);
    void Paint(HDC dc);
    void WatchForLeaving();
    bool ShowsFocus() const;

    toolkit::Canvas& canvas_;
    HFONT font_ = nullptr;  // the window's, which owns it
    bool pointerInside_ = false;
};

}  // namespace ordalyn::win32
