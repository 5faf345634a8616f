// What a user does with a realisation of the toolkit and what a user sees of it. The rules of the
// toolkit are tested through this, so that the same tests hold the double in memory and the windows
// of the system to them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/Form.h"
#include "toolkit/Toolkit.h"

namespace ordalyn::contract {

struct MenuSeen {
    std::string caption;
    std::string keys;  // right of the caption
    bool enabled = true;
    bool checked = false;
    bool separator = false;
    std::vector<MenuSeen> items;
};

struct BoxSeen {
    std::string text;
    std::string title;
    toolkit::MessageButtons buttons = toolkit::MessageButtons::Ok;
    toolkit::Answer defaultAnswer = toolkit::Answer::Ok;
};

struct Selection {
    std::size_t start = 0, length = 0;
    bool operator==(const Selection&) const = default;
};

struct Pixels {
    int x = 0, y = 0;
};

class ToolkitDriver {
  public:
    virtual ~ToolkitDriver() = default;
    virtual toolkit::Toolkit& Kit() = 0;
    // Handles all messages that wait.
    virtual void Settle() = 0;
    // Handles messages for that long.
    virtual void PassTime(int milliseconds) = 0;
    // Runs `work` when messages are handled next; in the order of these calls.
    virtual void Later(std::function<void()> work) = 0;

    // What a user does. Nothing happens where a user could not do it: in what is hidden or
    // disabled, or in forms that wait for a modal one.
    virtual void Choose(toolkit::ComboBox& box, int index) = 0;
    // Types over the whole text.
    virtual void Type(toolkit::TextBox& box, std::string_view text) = 0;
    virtual void Type(toolkit::ComboBox& box, std::string_view text) = 0;
    virtual void Press(toolkit::Control& button) = 0;
    // The same while another form is the active one.
    virtual void PressFromOutside(toolkit::Control& button) = 0;
    // Two presses, as fast as those of a double click.
    virtual void PressTwice(toolkit::Control& button) = 0;
    // The control with the focus gets it, when its form leaves it to that.
    virtual void PressKey(toolkit::Form& form, int key, toolkit::Modifiers modifiers = {}) = 0;
    virtual void ClickRow(toolkit::ListView& list, int row, toolkit::Modifiers modifiers = {}) = 0;
    virtual void RightClickRow(toolkit::ListView& list, int row) = 0;
    virtual void DoubleClickRow(toolkit::ListView& list, int row) = 0;
    virtual void ClickBelowRows(toolkit::ListView& list) = 0;
    virtual void DragDivider(toolkit::ListView& list, int column, int pixels) = 0;
    virtual void DragHeader(toolkit::ListView& list, int column, int position) = 0;
    virtual void ClickPanel(toolkit::StatusBar& bar, int number) = 0;
    virtual void ClickTab(toolkit::TabStrip& strip, int number) = 0;
    virtual void ClickToolButton(toolkit::ToolBar& bar, int number) = 0;
    virtual void ChooseToolMenuEntry(toolkit::ToolBar& bar, int number, int entry) = 0;
    // Presses Down where the focus is, which opens the menu of the button with this number.
    virtual void ChooseToolMenuEntryByKeys(toolkit::ToolBar& bar, int number, int entry) = 0;
    // Positions from the menu bar down, as they are shown.
    virtual void ChooseMenu(toolkit::Form& form, const std::vector<int>& path) = 0;
    // Pops the menu up and chooses the item at the position, or dismisses the menu for -1.
    virtual void PopUpAndChoose(toolkit::Form& form, toolkit::MenuItem& menu, int position) = 0;
    // Pops the menu up below that part of the screen and dismisses it; returns where it was seen.
    virtual toolkit::Rect PopUpBelow(toolkit::Form& form, toolkit::MenuItem& menu,
                                     const toolkit::Rect& place) = 0;
    virtual void Close(toolkit::Form& form) = 0;
    virtual void ResizeTo(toolkit::Form& form, Pixels size) = 0;
    virtual void MoveTo(toolkit::Form& form, Pixels place) = 0;
    virtual void DropFiles(toolkit::Form& form, const std::vector<std::string>& paths) = 0;
    // Presses the button at the first point and lets it go at the last one.
    virtual void DragMouse(toolkit::Control& control, int button,
                           const std::vector<Pixels>& points) = 0;
    virtual void MoveMouse(toolkit::Control& control, Pixels to) = 0;
    // Takes the pointer away from it.
    virtual void LeaveWithMouse(toolkit::Canvas& canvas) = 0;
    // Turns the wheel over it; 120 is a notch.
    virtual void TurnWheel(toolkit::Canvas& canvas, int delta) = 0;

    // Shows the form modally; `meanwhile` runs once it is.
    virtual void RunModal(toolkit::Form& form, toolkit::Form* owner,
                          std::function<void()> meanwhile) = 0;
    // How message boxes are answered from now on. Without it, Enter is pressed in them.
    virtual void AnswerBoxes(std::function<toolkit::Answer(const BoxSeen&)> answer) = 0;
    std::vector<BoxSeen> boxes;  // those that were seen

    // What a user sees.
    virtual bool IsVisible(const toolkit::Control& control) = 0;  // with everything around it
    virtual bool IsEnabled(const toolkit::Control& control) = 0;  // by itself
    virtual bool HasFocus(const toolkit::Control& control) = 0;
    virtual std::string CaptionOf(const toolkit::Control& control) = 0;
    virtual std::string TextOf(const toolkit::Control& control) = 0;  // text and combo boxes
    virtual Selection SelectionOf(const toolkit::Control& control) = 0;
    // Inside the container (on the screen for a form), as whole pixels, in twips.
    virtual toolkit::Rect BoundsOf(const toolkit::Control& control) = 0;
    virtual bool IsChecked(const toolkit::Toggle& toggle) = 0;
    virtual std::vector<std::string> ItemsOf(const toolkit::ComboBox& box) = 0;
    virtual int SelectedItem(const toolkit::ComboBox& box) = 0;
    virtual int RowCount(const toolkit::ListView& list) = 0;
    virtual std::string Cell(const toolkit::ListView& list, int row, int column) = 0;
    virtual int SelectedRow(const toolkit::ListView& list) = 0;  // the first
    virtual toolkit::RowRanges SelectedRows(const toolkit::ListView& list) = 0;
    virtual int TopRow(const toolkit::ListView& list) = 0;
    virtual std::string ColumnCaption(const toolkit::ListView& list, int column) = 0;
    virtual int ColumnPixels(const toolkit::ListView& list, int column) = 0;
    // How often something was asked of the list's window meanwhile.
    virtual int Effort(const toolkit::ListView& list, const std::function<void()>& meanwhile) = 0;
    virtual std::vector<std::string> PanelTexts(const toolkit::StatusBar& bar) = 0;
    virtual std::vector<std::string> TabCaptions(const toolkit::TabStrip& strip) = 0;
    virtual int SelectedTab(const toolkit::TabStrip& strip) = 0;  // from 1
    virtual int ToolButtonCount(const toolkit::ToolBar& bar) = 0;
    // How much of the bar is filled, from 0 to 1.
    virtual double FilledPart(const toolkit::ProgressBar& bar) = 0;
    // Of the pixel.
    virtual toolkit::Color ColorAt(const toolkit::Canvas& canvas, Pixels at) = 0;
    // Whether the area has a pixel of the colour.
    virtual bool HasColor(const toolkit::Canvas& canvas, Pixels from, Pixels to,
                          toolkit::Color color) = 0;
    virtual std::vector<MenuSeen> MenusOf(const toolkit::Form& form) = 0;
};

using DriverMaker = std::unique_ptr<ToolkitDriver> (*)();
std::unique_ptr<ToolkitDriver> MakeMemoryDriver();
std::unique_ptr<ToolkitDriver> MakeWin32Driver();

}  // namespace ordalyn::contract
