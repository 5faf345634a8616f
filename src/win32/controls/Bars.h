// Progress bars, status bars and tab strips.
#pragma once

#include <string>
#include <vector>

#include "toolkit/Controls.h"
#include "win32/controls/CellTip.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

class ProgressBarWindow : public Peer<toolkit::ProgressBarPeer> {
  public:
    ProgressBarWindow(Desktop& desktop, toolkit::ProgressBar& bar, toolkit::ControlPeer& container);
    void SetRange(int minimum, int maximum) override;
    // Repaints what waits to be painted on its whole form: messages may not be handled for a while.
    void SetValue(int value) override;
};

class StatusBarWindow : public Peer<toolkit::StatusBarPeer> {
  public:
    StatusBarWindow(Desktop& desktop, toolkit::StatusBar& bar, toolkit::ControlPeer& container);
    toolkit::Rect Place(const toolkit::Rect& wanted) override;
    toolkit::Rect SetFont(const toolkit::Font& font) override;
    void SetBorder(toolkit::BorderStyle, toolkit::Appearance) override {}
    void SetPanelCount(int count) override;
    void SetPanel(int index, std::string_view text, toolkit::Twips width,
                  toolkit::Bevel bevel) override;
    std::optional<LRESULT> OnNotify(NMHDR& header) override;
    void OnContainerResized() override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void ShowParts();
    void ShowTexts();
    void ShowText(std::size_t index);
    RECT PartAt(std::size_t index) const;
    int RoomForText(std::size_t index) const;
    std::optional<LRESULT> TextAsked(UINT message, WPARAM wParam, LPARAM lParam);
    void ShowTip(UINT message, WPARAM wParam, LPARAM lParam);
    toolkit::Rect RealBounds() const;
    struct Panel {
        std::string text;
        toolkit::Twips width = 0;
        toolkit::Bevel bevel = toolkit::Bevel::Inset;
        std::wstring shown;  // as much of the text as fits
        bool cut = false;
        bool known = false;  // by the window
    };
    toolkit::StatusBar& bar_;
    CellTip tip_;
    std::vector<Panel> panels_;
};

class TabStripWindow : public Peer<toolkit::TabStripPeer> {
  public:
    TabStripWindow(Desktop& desktop, toolkit::TabStrip& strip, toolkit::ControlPeer& container);
    void SetTab(int index, std::string_view caption) override;
    void SelectTab(int index) override;
    std::optional<LRESULT> OnNotify(NMHDR& header) override;

  private:
    toolkit::TabStrip& strip_;
};

}  // namespace ordalyn::win32
