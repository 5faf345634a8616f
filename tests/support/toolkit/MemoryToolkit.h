// The toolkit in memory: what a user would see is kept in the peers, what a user would do is done
// by calling the User... operations of the controls (or the Press... helpers here).
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/Form.h"
#include "toolkit/RowRanges.h"
#include "toolkit/Toolkit.h"

namespace ordalyn::test {

// What was drawn on a canvas: an area that is filled or marked, or a line of text.
struct Drawn {
    enum class What { Fill, Text, FocusMark } what;
    toolkit::Rect area;
    toolkit::Color color;  // of the background, for a focus mark
    std::string text;
    toolkit::TextPlace place = toolkit::TextPlace::Left;
};

// What is shown of any control.
struct Shown {
    toolkit::Rect bounds;
    const void* container = nullptr;
    bool visible = true;
    bool enabled = true;
    std::string caption;
    std::vector<std::string> captions;  // every one that was set
    std::size_t pathInCaption = std::string::npos;
    toolkit::Font font;
    toolkit::Color foreground = 0, background = 0;
    toolkit::BorderStyle border = toolkit::BorderStyle::None;
    toolkit::Appearance appearance = toolkit::Appearance::ThreeDimensional;
    bool rightToLeft = false;
    toolkit::Alignment alignment = toolkit::Alignment::Left;
    toolkit::Pointer pointer = toolkit::Pointer::Default;
    std::string toolTip;
    std::string accessibleName;
    std::optional<bool> tabStop;  // what the control was designed with
    bool plainText = false;
    bool shortensPath = false;
    int refreshes = 0;
    int looksTold = 0;  // how often font, colours, frame or reading order came
    int broughtToFront = 0;
    // Kinds with more.
    bool checked = false;
    std::string text;
    std::size_t selectionStart = 0, selectionLength = 0;
    std::vector<std::string> items;
    int listIndex = -1;
    bool droppedDown = false;
    struct Column {
        std::string caption;
        toolkit::Twips width;
    };
    std::vector<Column> columns;
    std::vector<int> columnPositions;
    int rowCount = 0, selectedRow = -1, visibleRow = -1;
    toolkit::RowRanges selectedRows;
    int selections = 0;  // how often others were selected
    int fills = 0;
    int growths = 0;
    int updatesInSight = 0;  // rows that went or came while the list was visible
    toolkit::Color markColor = toolkit::kReadableRed;
    bool gridLines = false, flatHeaders = false;
    struct Panel {
        std::string text;
        toolkit::Twips width = 0;
        toolkit::Bevel bevel = toolkit::Bevel::Inset;
    };
    std::vector<Panel> panels;
    int minimum = 0, maximum = 0, value = 0;
    std::vector<int> values;  // every value that a progress bar has shown
    std::vector<std::string> tabs;
    int selectedTab = 0;
    std::vector<Drawn> drawn;  // by the last Paint of a canvas
    int paints = 0;
    // Forms: what has the focus while the form is the active one, and the button that looks as if
    // Enter pressed it.
    toolkit::Control* focused = nullptr;
    const toolkit::ControlPeer* defaultButton = nullptr;
    bool keyboardCues = false;
};

// A menu item as it is shown; items that are not visible are not shown.
struct ShownMenu {
    const toolkit::MenuItem* item = nullptr;
    std::string caption;
    std::string keys;  // right of the caption
    bool enabled = true;
    bool checked = false;
    bool separator = false;
    std::vector<ShownMenu> items;
};

struct ShownMessage {
    std::string text;
    std::string title;
    toolkit::MessageIcon icon;
    toolkit::MessageButtons buttons;
    toolkit::Answer defaultAnswer;
    toolkit::Form* owner;
};

class MemoryToolkit : public toolkit::Toolkit {
  public:
    MemoryToolkit();
    ~MemoryToolkit() override;

    // What is shown of a control or form of this toolkit.
    static const Shown& Of(const toolkit::Control& control);
    static Shown& Mutable(const toolkit::Control& control);
    // The form of that name, which must have a window.
    toolkit::Form& FormNamed(std::string_view name) const;
    // The menu bar, as it was when the form last reported a change.
    static const std::vector<ShownMenu>& MenusOf(const toolkit::Form& form);

    // What the tests script and look at.
    double twipsPerPixelX = 15, twipsPerPixelY = 15;
    toolkit::Rect workArea{0, 0, 19200, 15000};
    std::vector<toolkit::Rect> otherWorkAreas;  // of screens beside the primary one
    // Left of this, screens have the primary one's resolution, from there on that many times it.
    toolkit::Twips finerFrom = 1e9F, timesFiner = 1;
    std::vector<ShownMessage> messages;
    // Called for each message box; the default gives the default button's answer.
    std::function<toolkit::Answer(const ShownMessage&)> onMessage;
    // Called while a form is shown modally; the form is hidden afterwards when it still shows.
    std::deque<std::function<void(toolkit::Form&)>> modalScripts;
    std::function<void()> onDoEvents;
    std::vector<std::string> poppedUpMenus;
    // Where the last one opened; nothing when that was at the mouse pointer.
    std::optional<toolkit::Rect> poppedUpBelow;
    toolkit::Rect poppedUpAt;  // the menu itself, then
    std::function<void(toolkit::MenuItem&)> onPopUp;
    // Called when a tool bar's menu is opened by a key; returns the entry that is chosen, or -1.
    std::function<int(const toolkit::ToolBar&, int number)> onToolMenu;
    bool highContrast = false;  // black text on white, then, for system colours
    toolkit::Pointer pointer = toolkit::Pointer::Default;
    std::vector<toolkit::Pointer> pointers;  // every pointer that was set
    int beeps = 0;
    bool quit = false;
    const toolkit::Control* focus = nullptr;
    toolkit::Form* modalForm = nullptr;
    std::vector<std::string> menuRebuilds;  // names of forms
    std::vector<std::string> closedForms;   // names, in the order in which their windows went
    std::vector<toolkit::Form*> forms;      // all that have a window

    // What a user does. A form that a modal one keeps disabled gets nothing. Errors that no handler
    // catches end in a message box, here as in the work for later.
    // A key goes to the form and to the control that has the focus in it (toolkit/FormKeyboard.h).
    void Press(toolkit::Form& form, int key, toolkit::Modifiers modifiers = {});
    // The same after giving the control the focus.
    void PressIn(toolkit::Form& form, toolkit::Control& control, int key,
                 toolkit::Modifiers modifiers = {});
    void ResizeByUser(toolkit::Form& form, const toolkit::Rect& outer);
    // By a click on one of its controls, or by any other means.
    void ActivateByUser(toolkit::Form& form, bool byClickOnControl = false);
    void AsTheMessageLoop(const std::function<void()>& work);
    // Draws the canvas now; what was drawn is shown by Of.
    static const Shown& Paint(const toolkit::Canvas& canvas);
    static void DragColumn(const toolkit::ListView& list, int column, toolkit::Twips width);
    static void MoveColumn(const toolkit::ListView& list, int column, int position);
    // Work that the message loop does after the current event, and doing all that waits.
    void Later(std::function<void()> work) { later_.push_back(std::move(work)); }
    void DoLaterWork();
    // Lets so much time pass: timers do what they do meanwhile.
    void PassTime(int milliseconds);
    struct RunningTimer {
        toolkit::Timer* timer;
        int interval;
        int due;
    };
    std::vector<RunningTimer> timers;
    bool menuIsOpen = false;
    bool boxIsOpen = false;

    // toolkit::Toolkit
    std::unique_ptr<toolkit::FormPeer> CreateForm(toolkit::Form& form,
                                                  const toolkit::FormStyle& style) override;
    std::unique_ptr<toolkit::LabelPeer> CreateLabel(toolkit::Label& control,
                                                    toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ControlPeer> CreateFrame(toolkit::Control& control,
                                                      toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ControlPeer> CreatePictureBox(
        toolkit::Control& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ControlPeer> CreateCommandButton(
        toolkit::Control& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TogglePeer> CreateCheckBox(toolkit::Toggle& control,
                                                        toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TogglePeer> CreateOptionButton(
        toolkit::Toggle& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TextPeer> CreateTextBox(toolkit::TextBox& control,
                                                     toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ComboBoxPeer> CreateComboBox(toolkit::ComboBox& control, bool editable,
                                                          toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ListViewPeer> CreateListView(toolkit::ListView& control,
                                                          toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::StatusBarPeer> CreateStatusBar(
        toolkit::StatusBar& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ProgressBarPeer> CreateProgressBar(
        toolkit::ProgressBar& control, toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TabStripPeer> CreateTabStrip(toolkit::TabStrip& control,
                                                          toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::ToolBarPeer> CreateToolBar(toolkit::ToolBar& control,
                                                        toolkit::ControlPeer& container) override;
    std::unique_ptr<toolkit::TimerPeer> CreateTimer(toolkit::Timer& timer,
                                                    toolkit::FormPeer& form) override;
    std::unique_ptr<toolkit::CanvasPeer> CreateCanvas(toolkit::Canvas& control,
                                                      toolkit::ControlPeer& container) override;
    double TwipsPerPixelX() override { return twipsPerPixelX; }
    double TwipsPerPixelY() override { return twipsPerPixelY; }
    toolkit::Rect WorkArea() override { return workArea; }
    std::vector<toolkit::Rect> WorkAreas() override;
    double ScreenTwips(const toolkit::Rect& outer) override {
        return outer.left < finerFrom ? 1 : double{timesFiner};
    }
    toolkit::Size LeastFormSize() override { return {1800, 600}; }
    void SetPointer(toolkit::Pointer newPointer) override;
    void Beep() override { ++beeps; }
    toolkit::Answer ShowMessage(toolkit::Form* owner, std::string_view text, std::string_view title,
                                toolkit::MessageIcon icon, toolkit::MessageButtons buttons,
                                toolkit::Answer defaultAnswer) override;
    void DoEvents() override;
    void Run() override;
    void Quit() override { quit = true; }

  private:
    std::deque<std::function<void()>> later_;
    int now_ = 0;  // in milliseconds
};

}  // namespace ordalyn::test
