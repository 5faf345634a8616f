// What a realisation of the toolkit supplies: one peer for each control, form and menu item. The
// portable classes hold all state and rules; a peer only shows them and reports what the user does,
// by calling the User... operations of its control. A peer never raises anything for what code
// sets.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/Basics.h"
#include "toolkit/TextColors.h"

namespace ordalyn::toolkit {

class ControlPeer {
  public:
    virtual ~ControlPeer() = default;
    // Places the control inside its container, twips from the container's inner top left corner.
    // Returns the bounds that it really has: a kind that decides on its own height (combo boxes,
    // status bars, which also place themselves) returns that, all others return what was asked for
    // without rounding.
    virtual Rect Place(const Rect& wanted) = 0;
    virtual void SetContainer(ControlPeer& container) = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual void SetCaption(std::string_view caption) = 0;
    // Returns the bounds after the change.
    virtual Rect SetFont(const Font& font) = 0;
    virtual void SetColors(Color foreground, Color background) = 0;
    virtual void SetBorder(BorderStyle border, Appearance appearance) = 0;
    virtual void SetReadingOrder(bool rightToLeft, Alignment alignment) = 0;
    virtual void SetPointer(Pointer pointer) = 0;
    virtual void SetToolTip(std::string_view text) = 0;
    virtual void SetTabStop(bool tabStop) = 0;
    virtual void SetAccessibleName(std::string_view name) = 0;
    virtual void BringToFront() = 0;
    virtual void TakeFocus() = 0;
    // Whether the user can use it now: it and everything around it are visible and enabled.
    virtual bool CanTakeInput() const = 0;
    // Whether keys come to it, or to what is in it, now.
    virtual bool HasFocus() const = 0;
    virtual void Refresh() = 0;  // repaints at once
};

class LabelPeer : public ControlPeer {
  public:
    // Whether "&" is a character like any other.
    virtual void SetPlainText(bool plain) = 0;
    virtual void SetShortensPath(bool shortens) = 0;
    virtual Twips HeightFor(Twips width) = 0;
};

// Check boxes and option buttons.
class TogglePeer : public ControlPeer {
  public:
    virtual void SetChecked(bool checked) = 0;
};

// Text boxes and the edit field of an editable combo box. Positions are characters (UTF-16 units
// on Windows; callers only use 0, a whole text or an end).
class TextPeer : public ControlPeer {
  public:
    virtual void SetText(std::string_view text) = 0;
    virtual void SelectText(std::size_t start, std::size_t length) = 0;
};

class ComboBoxPeer : public TextPeer {
  public:
    virtual void AddItems(const std::vector<std::string>& texts) = 0;
    virtual void InsertItem(int index, std::string_view text) = 0;
    virtual void SetItem(int index, std::string_view text) = 0;
    virtual void RemoveItem(int index) = 0;
    virtual void RemoveAllItems() = 0;
    virtual void SetListIndex(int index) = 0;  // -1: none
    virtual bool IsDroppedDown() const = 0;    // whether its list is open
};

class ListViewPeer : public ControlPeer {
  public:
    virtual void InsertColumn(int index, std::string_view caption, Twips width) = 0;
    virtual void RemoveColumn(int index) = 0;
    virtual void SetColumnCaption(int index, std::string_view caption) = 0;
    virtual void SetColumnWidth(int index, Twips width) = 0;
    // The user can change these: what is on the screen is returned. A width that the user has not
    // changed is returned as it was set.
    virtual Twips ColumnWidth(int index) = 0;
    virtual Twips WidthFor(std::string_view text) = 0;
    virtual void SetColumnPosition(int index, int position) = 0;  // both 0-based
    virtual int ColumnPosition(int index) = 0;
    // The rows have become others: `count` of them, nothing selected, scrolled to the top.
    virtual void ResetRows(int count) = 0;
    // Rows were appended or removed, or their texts changed; selection and scroll position stay as
    // near as they can.
    virtual void UpdateRows(int count) = 0;
    // Rows were appended behind this one, or it and those behind it have other texts. Selection and
    // scroll position stay, and nothing else is painted.
    virtual void GrowRows(int count, int firstChanged) = 0;
    virtual void SelectRow(int row) = 0;  // -1: none
    // Which rows are selected beside that one has changed: the control's SelectedRows.
    virtual void ShowSelection() = 0;
    virtual void EnsureVisible(int row) = 0;
    // The part of the row that can be seen, from the screen's top left corner.
    virtual Rect RowOnScreen(int row) = 0;
    virtual void SetGridLines(bool shown) = 0;
    virtual void SetMarkColor(Color color) = 0;
    // Headers that do not look like push buttons and cannot be clicked.
    virtual void FlattenColumnHeaders() = 0;
};

class StatusBarPeer : public ControlPeer {
  public:
    virtual void SetPanelCount(int count) = 0;
    virtual void SetPanel(int index, std::string_view text, Twips width, Bevel bevel) = 0;
};

class ProgressBarPeer : public ControlPeer {
  public:
    virtual void SetRange(int minimum, int maximum) = 0;
    virtual void SetValue(int value) = 0;
};

// The peer raises the canvas's Paint whenever the system wants it drawn.
class CanvasPeer : public ControlPeer {
  public:
    virtual void Invalidate() = 0;
    virtual Size Measure(std::string_view text) = 0;
    virtual Twips WholePixels(Twips length) = 0;
    virtual TextColors ShownColors() = 0;
};

class TabStripPeer : public ControlPeer {
  public:
    virtual void SetTab(int index,
                        std::string_view caption) = 0;  // adds it when index is the count
    virtual void SelectTab(int index) = 0;
};

class ToolBarPeer : public ControlPeer {
  public:
    // `image` names a picture (ToolBarPictures.h); the button's drop-down menu, when it has
    // one, is read from the control when it is opened.
    virtual void AddButton(std::string_view image, bool hasMenu) = 0;
    // Another button is the one that keys are for; it is marked while the bar has the focus.
    virtual void ShowCurrentButton(int index) = 0;
    // Shows the button's menu and waits until an entry is chosen (which has been reported then) or
    // the menu is dismissed. Messages are handled meanwhile.
    virtual void OpenMenu(int index) = 0;
};

// Calls the timer's SystemElapsed about every so many milliseconds, from the message loop, unless
// the user has a menu open or holds something with the mouse.
class TimerPeer {
  public:
    virtual ~TimerPeer() = default;
    virtual void Start(int milliseconds) = 0;
    virtual void Stop() = 0;
};

// Shows a form's menus. The tree is read from the form's menu items.
class MenuPeer {
  public:
    virtual ~MenuPeer() = default;
    // Items were added or removed, or one was shown or hidden: the menus are rebuilt from the tree.
    virtual void RebuildMenus() = 0;
    virtual void UpdateMenuItem(class MenuItem& item) = 0;  // caption, enabled, checked
    // Shows the item's sub-items below this part of the screen, or at the mouse pointer without
    // one, and waits until one is chosen (its Click has then been raised) or the menu is dismissed.
    // Messages are handled meanwhile.
    virtual void PopUp(MenuItem& item, const Rect* below) = 0;
};

class FormPeer : public ControlPeer, public MenuPeer {
  public:
    // Place() of a form takes and returns outer bounds, from the screen's top left corner. The
    // outer bounds are those of the frame that can be seen. See Toolkit::ScreenTwips.
    virtual Size ClientSize() = 0;                  // twips inside the frame and below the menu
    virtual Rect OuterFor(const Size& client) = 0;  // outer bounds whose inside has that size
    // Shows the form, not modal. The owner, when given, stays below it.
    virtual void Show(FormPeer* owner) = 0;
    // Shows the form, disables all other forms and handles messages until EndModal.
    virtual void RunModal(FormPeer* owner) = 0;
    virtual void EndModal() = 0;  // nothing for a form that is not modal
    virtual void SetWindowState(WindowState state) = 0;
    virtual WindowState CurrentWindowState() = 0;
    // The caption is a path from this byte on, the middle of which is left out on the screen where
    // the title bar has no room for it. What asks for the caption gets all of it.
    virtual void ShortenCaptionFrom(std::size_t start) = 0;
    // Of the screen that the form is on. One that is not shown yet will be on that of the form
    // that the user works with.
    virtual Rect WorkArea() = 0;
    virtual std::uintptr_t Handle() = 0;
    // The command button that looks as if Enter pressed it while no other button has the focus;
    // null: none.
    virtual void SetDefaultButton(ControlPeer* button) = 0;
    // The user works with the keyboard: marks of focus and access keys that are only shown to those
    // who do are shown from now on.
    virtual void ShowKeyboardCues() = 0;
    virtual void Close() = 0;  // takes the window away for good
};

}  // namespace ordalyn::toolkit
