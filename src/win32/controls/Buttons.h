// Command buttons, check boxes and option buttons.
#pragma once

#include "toolkit/Controls.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

class CommandButtonWindow : public Peer<toolkit::ControlPeer> {
  public:
    CommandButtonWindow(Desktop& desktop, toolkit::Control& control,
                        toolkit::ControlPeer& container);
    // The thick frame of the button that Enter presses.
    void ShowAsDefault(bool isDefault);
    void OnCommand(int code, int id) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class ToggleWindow : public Peer<toolkit::TogglePeer> {
  public:
    ToggleWindow(Desktop& desktop, toolkit::Toggle& toggle, bool option,
                 toolkit::ControlPeer& container);
    void SetChecked(bool checked) override;
    void SetReadingOrder(bool rightToLeft, toolkit::Alignment alignment) override;
    void OnCommand(int code, int id) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    toolkit::Toggle& toggle_;
    bool takingFocus_ = false;
};

}  // namespace ordalyn::win32
