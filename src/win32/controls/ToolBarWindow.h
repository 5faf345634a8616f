// Flat tool bars. A button's drop-down menu is built from the control when it is opened.
#pragma once

#include <string>
#include <vector>

#include "toolkit/ToolBar.h"
#include "win32/common/Handles.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

class ToolBarWindow : public Peer<toolkit::ToolBarPeer> {
  public:
    ToolBarWindow(Desktop& desktop, toolkit::ToolBar& bar, toolkit::ControlPeer& container);
    ~ToolBarWindow() override;
    void SetBorder(toolkit::BorderStyle, toolkit::Appearance) override {}
    void AddButton(std::string_view image, bool hasMenu) override;
    void ShowCurrentButton(int index) override;
    void OpenMenu(int index) override;

    toolkit::Rect ShowRescaled() override;
    void OnCommand(int code, int id) override;
    std::optional<LRESULT> OnNotify(NMHDR& header) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    int PictureSize() const { return scale().Nominal(16); }
    void AddPicture(const std::string& name);
    void MakePictures();
    void RedrawPictures();
    LRESULT Draw(const NMTBCUSTOMDRAW& drawing) const;

    toolkit::ToolBar& bar_;
    ImageList pictures_;
    std::vector<std::string> names_;  // of the pictures
    int buttons_ = 0;
};

}  // namespace ordalyn::win32
