// Control: what all controls have. Realised by a peer; the state is kept here.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "toolkit/Basics.h"
#include "toolkit/Peer.h"
#include "toolkit/Toolkit.h"

namespace ordalyn::toolkit {

enum class Kind {
    Form,
    Label,
    Frame,
    PictureBox,
    CommandButton,
    CheckBox,
    OptionButton,
    TextBox,
    ComboBox,
    ListView,
    StatusBar,
    ToolBar,
    TabStrip,
    ProgressBar,
    Canvas
};

// The caption that shows a text which is data (a file name): "&" marks nothing in it.
std::string CaptionShowing(std::string_view text);
// What a reader of the caption says: without the mark of its access key.
std::string CaptionWithoutKey(std::string_view caption);

class Control {
  public:
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Kind ControlKind() const { return kind_; }
    const std::string& Name() const { return name_; }
    int Index() const { return index_; }  // place in a control array; -1 when it is in none
    const std::string& Tag() const { return tag_; }
    void SetTag(std::string_view tag) { tag_ = tag; }

    // Geometry, in twips inside the container. Sizes below zero (or not a number) throw
    // InvalidPropertyValue and change nothing.
    Twips Left() const { return bounds_.left; }
    Twips Top() const { return bounds_.top; }
    Twips Width() const { return bounds_.width; }
    Twips Height() const { return bounds_.height; }
    const Rect& Bounds() const { return bounds_; }
    void SetLeft(Twips left);
    void SetTop(Twips top);
    void SetWidth(Twips width);
    void SetHeight(Twips height);
    virtual void Move(const Rect& bounds);

    bool Visible() const { return visible_; }  // its own flag, whatever its container's says
    virtual void SetVisible(bool visible);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    // Throws InvalidPropertyValue when the container is the control itself.
    void SetContainer(Control& container);
    Control* Container() const { return container_; }

    const std::string& Caption() const { return caption_; }
    virtual void SetCaption(std::string_view caption);  // "&" marks the access key
    // The folded character that the caption marks; 0 for none.
    virtual char32_t AccessKey() const;
    // What programs that speak the screen call a control that has no text of its own and no label
    // before it.
    const std::string& AccessibleName() const { return accessibleName_; }
    void SetAccessibleName(std::string_view name);
    // The id of that text; empty when the control needs none.
    const std::string& NameTag() const { return nameTag_; }
    void SetNameTag(std::string_view tag) { nameTag_ = tag; }
    const toolkit::Font& Font() const { return font_; }
    void SetFont(const toolkit::Font& font);
    Color ForeColor() const { return foreColor_; }
    Color BackColor() const { return backColor_; }
    void SetForeColor(Color color);
    void SetBackColor(Color color);
    BorderStyle Border() const { return border_; }
    Appearance Look() const { return appearance_; }
    void SetBorder(BorderStyle border);
    void SetLook(Appearance appearance);
    bool RightToLeft() const { return rightToLeft_; }
    void SetRightToLeft(bool rightToLeft);
    Alignment TextAlignment() const { return alignment_; }
    void SetTextAlignment(Alignment alignment);
    Pointer MousePointer() const { return pointer_; }
    void SetMousePointer(Pointer pointer);
    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(std::string_view text);
    void BringToFront() { peer().BringToFront(); }
    void SetFocus() { peer().TakeFocus(); }
    // Whether Tab stops here. Of the options of a group it stops at one only.
    bool TabStop() const { return tabStop_; }
    void SetTabStop(bool tabStop);
    // Whether the user can use it now: it and everything around it are visible and enabled.
    bool CanTakeInput() const { return peer().CanTakeInput(); }
    // Whether keys come to it, or to what is in it, now; false while another window is the active
    // one.
    bool HasFocus() const { return peer().HasFocus(); }
    void Refresh() { peer().Refresh(); }

    // Events that every kind can raise. Click is raised by the kinds that a user can press.
    Event<> Click;
    Event<> GotFocus;
    Event<> Resize;                        // the size has changed, by whatever
    Event<int, Modifiers> KeyDown, KeyUp;  // virtual key code
    Event<int, Modifiers, Twips, Twips> MouseDown, MouseMove, MouseUp;  // buttons, x, y inside

    // For peers: what the user or the system did.
    void UserClicked() { Click.Raise(); }
    // A key that the form offers to the control with the focus before it uses it itself; returns
    // whether the control used it. `held`: the key repeats itself because it is held down.
    virtual bool UserPressedKey(int /*key*/, bool /*held*/) { return false; }
    // Whether the control with the focus must get the key, and only its form may see it before.
    virtual bool NeedsKey(int /*key*/) const { return false; }
    void SystemChangedBounds(const Rect& bounds);

    virtual ControlPeer& peer() const = 0;

  protected:
    Control(Kind kind, std::string_view name, int index);
    // Called once by the derived kind when its peer exists: brings it up to the state here.
    void InitialisePeer(const Rect& bounds);
    void TakeBounds(const Rect& bounds);
    void SetContainerReference(Control* container) { container_ = container; }
    void SetBoundsOnly(const Rect& bounds) { bounds_ = bounds; }
    void SetVisibleOnly(bool visible) { visible_ = visible; }

  private:
    void ShowColors(Color foreground, Color background);
    void ShowFrame(BorderStyle border, Appearance appearance);
    void ShowReadingOrder(bool rightToLeft, Alignment alignment);

    Kind kind_;
    std::string name_;
    int index_;
    std::string tag_;
    Control* container_ = nullptr;
    Rect bounds_;
    bool visible_ = true;
    bool enabled_ = true;
    bool tabStop_;
    std::string caption_;
    std::string nameTag_;
    std::string accessibleName_;
    toolkit::Font font_;
    Color foreColor_ = kWindowText;
    Color backColor_ = kButtonFace;
    bool hasColors_ = false;  // before that the peer has those that are its kind's
    BorderStyle border_ = BorderStyle::None;
    Appearance appearance_ = Appearance::ThreeDimensional;
    bool hasFrame_ = false;
    bool rightToLeft_ = false;
    Alignment alignment_ = Alignment::Left;
    Pointer pointer_ = Pointer::Default;
    std::string toolTip_;
};

}  // namespace ordalyn::toolkit
