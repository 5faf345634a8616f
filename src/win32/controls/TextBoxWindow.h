// One-line text boxes.
#pragma once

#include "toolkit/Controls.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

class TextBoxWindow : public Peer<toolkit::TextPeer> {
  public:
    TextBoxWindow(Desktop& desktop, toolkit::TextBox& box, toolkit::ControlPeer& container);
    void SetText(std::string_view text) override;
    void SelectText(std::size_t start, std::size_t length) override;
    void OnCommand(int code, int id) override;

  private:
    toolkit::TextBox& box_;
    bool changingByCode_ = false;  // what the control reports then is no user's doing
};

// A position for EM_SETSEL and CB_SETEDITSEL; anything behind the end means the end.
int TextPosition(std::size_t position, int limit);

}  // namespace ordalyn::win32
