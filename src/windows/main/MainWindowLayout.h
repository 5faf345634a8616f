// MainWindowLayout places the main window's controls and switches between its three arrangements:
// two panels side by side, two panels one above the other, a single panel.
//
// In the two-panel arrangements the panels live in picSpliterContainer, where cSplitter gives them
// their sizes. A single panel is SourceListView directly on the window, with the targets as its
// last column; TargetListView then has no rows.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "settings/mAppSpecific.h"
#include "toolkit/Form.h"
#include "windows/main/cSplitter.h"

namespace ordalyn {

class MainWindowLayout {
  public:
    struct Controls {
        toolkit::Form& form;
        toolkit::ComboBox& cboDate;
        toolkit::PictureBox& picSpliterContainer;
        toolkit::Frame& Frame1;
        toolkit::ListView& SourceListView;
        toolkit::ListView& TargetListView;
        toolkit::StatusBar& StatusBar1;
        toolkit::MenuItem& mnuViewStatusBar;
        toolkit::MenuItem& mnuViewTwoPanels;
        toolkit::MenuItem& mnuViewVerticalPanels;
    };
    // Whole twips for one pixel of the screen.
    struct PixelSize {
        std::int32_t x;
        std::int32_t y;
    };
    // The text field of a row that a column for targets shows.
    static constexpr int kTargetField = 2;

    // `targetCaption` returns the caption of a column for targets.
    MainWindowLayout(const Controls& controls, mAppSpecific& settings, PixelSize pixel,
                     std::function<std::string()> targetCaption);

    // The selected row (0-based) is shown by another number of panels than before.
    toolkit::Event<int> RowMoved;
    // The place of the panels may be another one.
    toolkit::Event<> Arranged;

    // Sets the menu's marks and makes the first arrangement as the settings say. The columns must
    // be there already.
    void ArrangeFirstTime();
    // The window has another size. Whatever cannot be placed stays as it is.
    void WindowResized();
    // Whether the panels are shown, or something else is in their place.
    void ShowPanels(bool shown);
    // Where one or two panels go: below the boxes, above the status bar, with a pixel at each side.
    toolkit::Rect PanelsArea() const;

    void ToggleStatusBar();
    void ToggleTwoPanels();
    void ToggleVerticalPanels() { ChangePanelsOrientation(true); }

    // Turns side by side into stacked or the other way round. `blnSaveCurrent` keeps the bar's
    // position of the arrangement that is left.
    void ChangePanelsOrientation(bool blnSaveCurrent);
    cSplitter& Splitter() { return splitter_; }
    // Brings the window into the mode that the TwoPanels setting now says.
    void ChangePanelsCount();
    // Writes the orientation and both bar positions: the bar's as it was stored, unless it was
    // moved since. With a single panel it writes nothing at all.
    void SaveSplitterSettings();

  private:
    toolkit::Twips StatusBarHeight() const;
    void ShowThisManyPanels();
    // The setting for the bar of the present orientation.
    std::int32_t& BarPosition();
    // Takes the bar's position for the setting when it was moved since the panels were arranged. A
    // position that only a small window has made is none that anybody has chosen.
    void KeepBarPosition();
    // Arranges the panels side by side or stacked, as the VerticalPanels setting now says.
    void ArrangePanels();
    void MoveToTwoPanels();
    void MoveToOnePanel();
    void PutSourceListOnWindow();

    Controls controls_;
    cSplitter splitter_;
    mAppSpecific& settings_;
    PixelSize pixel_;
    std::function<std::string()> targetCaption_;
    float arrangedPosition_ = 0;
    bool panelsShown_ = true;
};

}  // namespace ordalyn
