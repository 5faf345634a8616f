// The toolkit's entry: makes peers, knows the screen, shows message boxes, runs the message loop.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/Basics.h"
#include "toolkit/Peer.h"

namespace ordalyn::toolkit {

class Canvas;
class Control;
class Form;
class Label;
class Toggle;
class TextBox;
class ComboBox;
class ListView;
class StatusBar;
class ProgressBar;
class TabStrip;
class Timer;
class ToolBar;
struct FormStyle;

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

class Toolkit {
  public:
    virtual ~Toolkit() = default;

    // One operation for each kind of peer. `container` is the peer of the container control or
    // form.
    virtual std::unique_ptr<FormPeer> CreateForm(Form& form, const FormStyle& style) = 0;
    virtual std::unique_ptr<LabelPeer> CreateLabel(Label& control, ControlPeer& container) = 0;
    virtual std::unique_ptr<ControlPeer> CreateFrame(Control& control, ControlPeer& container) = 0;
    virtual std::unique_ptr<ControlPeer> CreatePictureBox(Control& control,
                                                          ControlPeer& container) = 0;
    virtual std::unique_ptr<ControlPeer> CreateCommandButton(Control& control,
                                                             ControlPeer& container) = 0;
    virtual std::unique_ptr<TogglePeer> CreateCheckBox(Toggle& control, ControlPeer& container) = 0;
    virtual std::unique_ptr<TogglePeer> CreateOptionButton(Toggle& control,
                                                           ControlPeer& container) = 0;
    virtual std::unique_ptr<TextPeer> CreateTextBox(TextBox& control, ControlPeer& container) = 0;
    virtual std::unique_ptr<ComboBoxPeer> CreateComboBox(ComboBox& control, bool editable,
                                                         ControlPeer& container) = 0;
    virtual std::unique_ptr<ListViewPeer> CreateListView(ListView& control,
                                                         ControlPeer& container) = 0;
    virtual std::unique_ptr<StatusBarPeer> CreateStatusBar(StatusBar& control,
                                                           ControlPeer& container) = 0;
    virtual std::unique_ptr<ProgressBarPeer> CreateProgressBar(ProgressBar& control,
                                                               ControlPeer& container) = 0;
    virtual std::unique_ptr<TabStripPeer> CreateTabStrip(TabStrip& control,
                                                         ControlPeer& container) = 0;
    virtual std::unique_ptr<ToolBarPeer> CreateToolBar(ToolBar& control,
                                                       ControlPeer& container) = 0;
    virtual std::unique_ptr<CanvasPeer> CreateCanvas(Canvas& control, ControlPeer& container) = 0;

    virtual std::unique_ptr<TimerPeer> CreateTimer(Timer& timer, FormPeer& form) = 0;

    // The screen. TwipsPerPixel are exact; users that want whole numbers round them.
    virtual double TwipsPerPixelX() = 0;
    virtual double TwipsPerPixelY() = 0;
    virtual Rect WorkArea() = 0;                // of the primary screen, twips
    virtual std::vector<Rect> WorkAreas() = 0;  // of all screens, the primary one first
    // Screens may differ in their resolution. Places, and the sizes of screens, are in the same
    // twips on all of them; a form's size is in those of the screen that it is on, so that it looks
    // as large everywhere. Returns how many of the former one of the latter is, for a form with
    // these outer bounds.
    virtual double ScreenTwips(const Rect& outer) = 0;
    // The smallest outer size that the system lets a user give a window with a title bar, twips.
    virtual Size LeastFormSize() = 0;
    virtual void SetPointer(Pointer pointer) = 0;  // over all of the program's windows
    virtual void Beep() = 0;

    // Shows a message box and waits. Messages are handled meanwhile: whatever events can change may
    // have changed when it returns. `defaultAnswer` chooses the button that Enter presses.
    virtual Answer ShowMessage(Form* owner, std::string_view text, std::string_view title,
                               MessageIcon icon = MessageIcon::None,
                               MessageButtons buttons = MessageButtons::Ok,
                               Answer defaultAnswer = Answer::Yes) = 0;

    // F1 was pressed, in a form or in a message box that it owns: whoever can show the help is
    // called with the page that tells of it. Pages are named as in FormDesign.
    static constexpr std::string_view kHelpPageOfMessages = "messages";
    using HelpHandler = std::function<void(Form& form, std::string_view page)>;
    void SetHelpHandler(HelpHandler handler) { helpHandler_ = std::move(handler); }
    void AskForHelp(Form& form, std::string_view page) const {
        if (helpHandler_)
            helpHandler_(form, page);
    }

    // Handles the messages that wait now, then returns. Re-entrant events are possible.
    virtual void DoEvents() = 0;
    // Handles messages until Quit.
    virtual void Run() = 0;
    virtual void Quit() = 0;

  private:
    HelpHandler helpHandler_;
};

}  // namespace ordalyn::toolkit
