// Labels, frames and picture boxes.
#pragma once

#include "toolkit/Controls.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

class LabelWindow : public Peer<toolkit::LabelPeer> {
  public:
    LabelWindow(Desktop& desktop, toolkit::Label& label, toolkit::ControlPeer& container);
    void SetReadingOrder(bool rightToLeft, toolkit::Alignment alignment) override;
    void SetPlainText(bool plain) override;
    void SetShortensPath(bool shortens) override;
    toolkit::Twips HeightFor(toolkit::Twips width) override;
    // For a label that only shows a colour.
    void SetAccessibleName(std::string_view name) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void MarkFocus();
    bool drawsItself_ = false;
};

// A group box; without a caption and a border it is a bare area of its back colour that feels the
// mouse (a splitter bar).
class FrameWindow : public Peer<toolkit::ControlPeer> {
  public:
    FrameWindow(Desktop& desktop, toolkit::Control& control, toolkit::ControlPeer& container);
    void SetCaption(std::string_view caption) override;
    void SetBorder(toolkit::BorderStyle border, toolkit::Appearance appearance) override;
    void SetReadingOrder(bool rightToLeft, toolkit::Alignment alignment) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    bool Bare() const { return !bordered_ && control().Caption().empty(); }
    bool bordered_ = true;
};

class PictureBoxWindow : public Peer<toolkit::ControlPeer> {
  public:
    PictureBoxWindow(Desktop& desktop, toolkit::Control& control, toolkit::ControlPeer& container);

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace ordalyn::win32
