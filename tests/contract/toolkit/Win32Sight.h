// The eyes of a user on Windows: reads the windows themselves.
#pragma once

#include <utility>

#include "contract/toolkit/ToolkitDriver.h"
#include "support/win32/LaterWork.h"
#include "win32/forms/Win32Toolkit.h"

namespace ordalyn::contract {

class Win32Sight : public ToolkitDriver {
  public:
    toolkit::Toolkit& Kit() override { return kit_; }
    void Settle() override;
    void PassTime(int milliseconds) override;
    void Later(std::function<void()> work) override { later_.Add(std::move(work)); }

    bool IsVisible(const toolkit::Control& control) override;
    bool IsEnabled(const toolkit::Control& control) override;
    bool HasFocus(const toolkit::Control& control) override;
    std::string CaptionOf(const toolkit::Control& control) override;
    std::string TextOf(const toolkit::Control& control) override;
    Selection SelectionOf(const toolkit::Control& control) override;
    toolkit::Rect BoundsOf(const toolkit::Control& control) override;
    bool IsChecked(const toolkit::Toggle& toggle) override;
    std::vector<std::string> ItemsOf(const toolkit::ComboBox& box) override;
    int SelectedItem(const toolkit::ComboBox& box) override;
    int RowCount(const toolkit::ListView& list) override;
    std::string Cell(const toolkit::ListView& list, int row, int column) override;
    int SelectedRow(const toolkit::ListView& list) override;
    toolkit::RowRanges SelectedRows(const toolkit::ListView& list) override;
    int TopRow(const toolkit::ListView& list) override;
    std::string ColumnCaption(const toolkit::ListView& list, int column) override;
    int ColumnPixels(const toolkit::ListView& list, int column) override;
    int Effort(const toolkit::ListView& list, const std::function<void()>& meanwhile) override;
    std::vector<std::string> PanelTexts(const toolkit::StatusBar& bar) override;
    std::vector<std::string> TabCaptions(const toolkit::TabStrip& strip) override;
    int SelectedTab(const toolkit::TabStrip& strip) override;
    int ToolButtonCount(const toolkit::ToolBar& bar) override;
    double FilledPart(const toolkit::ProgressBar& bar) override;
    toolkit::Color ColorAt(const toolkit::Canvas& canvas, Pixels at) override;
    bool HasColor(const toolkit::Canvas& canvas, Pixels from, Pixels to,
                  toolkit::Color color) override;
    std::vector<MenuSeen> MenusOf(const toolkit::Form& form) override;

  private:
    win32::Win32Toolkit kit_{GetModuleHandleW(nullptr)};
    test::LaterWork later_;
};

}  // namespace ordalyn::contract
