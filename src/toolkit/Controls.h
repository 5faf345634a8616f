// The simple kinds: label, frame, picture box, command button, check box, option button, text box,
// progress bar, status bar, tab strip.
#pragma once

#include <vector>

#include "toolkit/Control.h"

namespace ordalyn::toolkit {

// Frame (an empty caption makes it a bare area), PictureBox (a container) and CommandButton differ
// only in their peers.
class SimpleControl : public Control {
  public:
    SimpleControl(Toolkit& toolkit, Kind kind, std::string_view name, int index, Control& container,
                  const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }

  private:
    std::unique_ptr<ControlPeer> peer_;
};

class Frame : public SimpleControl {
  public:
    Frame(Toolkit& t, std::string_view name, int index, Control& container, const Rect& bounds)
        : SimpleControl(t, Kind::Frame, name, index, container, bounds) {}
};
class PictureBox : public SimpleControl {
  public:
    PictureBox(Toolkit& t, std::string_view name, int index, Control& container, const Rect& bounds)
        : SimpleControl(t, Kind::PictureBox, name, index, container, bounds) {}
};
class CommandButton : public SimpleControl {
  public:
    CommandButton(Toolkit& t, std::string_view name, int index, Control& container,
                  const Rect& bounds)
        : SimpleControl(t, Kind::CommandButton, name, index, container, bounds) {}
};

// One that its design makes a tab stop is clicked by Space as well. Enter is left to the form.
class Label : public Control {
  public:
    Label(Toolkit& toolkit, std::string_view name, int index, Control& container,
          const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }
    // Whether the caption is data ("R&D.log"): "&" is then a character like any other.
    bool PlainText() const { return plainText_; }
    void SetPlainText(bool plain);
    // Whether the caption is a path on one line, which loses what is in its middle where there is
    // no room for all of it. Otherwise the caption takes the lines that it needs.
    bool ShortensPath() const { return shortensPath_; }
    void SetShortensPath(bool shortens);
    // How high the caption is in a label of that width.
    Twips HeightFor(Twips width) const { return peer_->HeightFor(width); }
    char32_t AccessKey() const override { return plainText_ ? 0 : Control::AccessKey(); }
    bool UserPressedKey(int key, bool held) override;

  private:
    std::unique_ptr<LabelPeer> peer_;
    bool plainText_ = false;
    bool shortensPath_ = false;
};

// A check box or an option button. Options of one container exclude each other. Click is raised
// when the value changes, by the user or by code; an option raises it only when it becomes chosen.
class Toggle : public Control {
  public:
    Toggle(Toolkit& toolkit, Kind kind, std::string_view name, int index, Control& container,
           const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    // For the peer: the user pressed it.
    void UserToggled();
    // The options that exclude each other, this one among them, in design order. Set by the form.
    const std::vector<Toggle*>& Group() const { return group_; }
    void SetGroup(std::vector<Toggle*> group) { group_ = std::move(group); }

  private:
    std::unique_ptr<TogglePeer> peer_;
    bool checked_ = false;
    std::vector<Toggle*> group_;
};

class CheckBox : public Toggle {
  public:
    CheckBox(Toolkit& t, std::string_view name, int index, Control& container, const Rect& bounds)
        : Toggle(t, Kind::CheckBox, name, index, container, bounds) {}
};
class OptionButton : public Toggle {
  public:
    OptionButton(Toolkit& t, std::string_view name, int index, Control& container,
                 const Rect& bounds)
        : Toggle(t, Kind::OptionButton, name, index, container, bounds) {}
};

// A one-line text box. Change is raised when the text changes, by the user or by code.
class TextBox : public Control {
  public:
    TextBox(Toolkit& toolkit, std::string_view name, int index, Control& container,
            const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }
    const std::string& Text() const { return text_; }
    void SetText(std::string_view text);
    void SelectAll();
    Event<> Change;
    // For the peer.
    void UserEdited(std::string_view text);

  private:
    std::unique_ptr<TextPeer> peer_;
    std::string text_;
};

// Values run from Minimum (0) to Maximum; a value outside throws InvalidPropertyValue. The picture
// is only updated when it would look different.
class ProgressBar : public Control {
  public:
    ProgressBar(Toolkit& toolkit, std::string_view name, int index, Control& container,
                const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }
    std::int32_t Maximum() const { return maximum_; }
    std::int32_t Value() const { return value_; }
    // A maximum below 1 throws; a value above the new maximum is lowered to it.
    void SetMaximum(std::int32_t maximum);
    void SetValue(std::int32_t value);

  private:
    static constexpr int kSteps = 1000;
    std::unique_ptr<ProgressBarPeer> peer_;
    std::int32_t maximum_ = 100;
    std::int32_t value_ = 0;
    int shownStep_ = 0;
};

// A status bar at the bottom of its form; it places itself. Panels are numbered from 1, as users of
// the bar speak of them; another number throws SubscriptOutOfRange.
class StatusBar : public Control {
  public:
    StatusBar(Toolkit& toolkit, std::string_view name, int index, Control& container,
              const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }
    int PanelCount() const { return static_cast<int>(panels_.size()); }
    // A width of 0 makes the panel take the rest of the bar (only for the last one).
    void AddPanel(Twips width);
    const std::string& PanelText(int number) const;
    void SetPanelText(int number, std::string_view text);
    Bevel PanelBevel(int number) const;
    void SetPanelBevel(int number, Bevel bevel);
    Event<int> PanelClick;
    // For the peer: 0-based.
    void UserClickedPanel(int index) { PanelClick.Raise(index + 1); }

  private:
    struct Panel {
        std::string text;
        Twips width;
        Bevel bevel = Bevel::Inset;
    };
    Panel& At(int number);
    void Show(int number);
    std::unique_ptr<StatusBarPeer> peer_;
    std::vector<Panel> panels_;
};

// Tabs are numbered from 1. Selecting raises Click, by the user or by code.
class TabStrip : public Control {
  public:
    struct Tab {
        std::string caption;
        std::string tag;
    };
    TabStrip(Toolkit& toolkit, std::string_view name, int index, Control& container,
             const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }
    int TabCount() const { return static_cast<int>(tabs_.size()); }
    void AddTab(std::string_view tag);
    const Tab& TabAt(int number) const;  // SubscriptOutOfRange
    void SetTabCaption(int number, std::string_view caption);
    int SelectedTab() const { return selected_; }  // 0 before there is one
    void SelectTab(int number);
    // For the peer: 0-based.
    void UserSelected(int index);

  private:
    std::unique_ptr<TabStripPeer> peer_;
    std::vector<Tab> tabs_;
    int selected_ = 0;
};

}  // namespace ordalyn::toolkit
