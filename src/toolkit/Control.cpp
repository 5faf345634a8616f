#include "toolkit/Control.h"

#include "base/Errors.h"
#include "base/Text.h"
#include "base/Utf8.h"

namespace ordalyn::toolkit {

namespace {

// Whether Tab stops at a control of the kind, unless its design says otherwise.
bool IsUsualTabStop(Kind kind) {
    switch (kind) {
        case Kind::CommandButton:
        case Kind::CheckBox:
        case Kind::OptionButton:
        case Kind::TextBox:
        case Kind::ComboBox:
        case Kind::ListView:
        case Kind::ToolBar:
        case Kind::TabStrip:
        case Kind::Canvas:
            return true;
        default:
            return false;
    }
}

}  // namespace

std::string CaptionShowing(std::string_view text) {
    std::string caption;
    for (const char c : text)
        caption.append(c == '&' ? 2 : 1, c);
    return caption;
}

std::string CaptionWithoutKey(std::string_view caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        // Languages without Latin letters have the key in brackets behind the text.
        if (caption.substr(i).starts_with("(&") && caption.size() > i + 3 &&
            caption[i + 3] == ')') {
            i += 3;
            continue;
        }
        if (caption[i] == '&' && i + 1 < caption.size())
            ++i;
        text += caption[i];
    }
    return text;
}

Control::Control(Kind kind, std::string_view name, int index)
    : kind_(kind), name_(name), index_(index), tabStop_(IsUsualTabStop(kind)) {}

void Control::InitialisePeer(const Rect& bounds) {
    font_ = {};
    peer().SetFont(font_);
    TakeBounds(bounds);
}

// What the peer returns counts: kinds that decide on their own height report it here.
void Control::TakeBounds(const Rect& bounds) {
    // Written so that values that are no numbers fail too.
    if (!(bounds.width >= 0) || !(bounds.height >= 0))
        throw InvalidPropertyValue("size of " + name_);
    const Rect before = bounds_;
    bounds_ = peer().Place(bounds);
    if (bounds_.width != before.width || bounds_.height != before.height)
        Resize.Raise();
}

void Control::SetLeft(Twips left) {
    Move({left, bounds_.top, bounds_.width, bounds_.height});
}

void Control::SetTop(Twips top) {
    Move({bounds_.left, top, bounds_.width, bounds_.height});
}

void Control::SetWidth(Twips width) {
    Move({bounds_.left, bounds_.top, width, bounds_.height});
}

void Control::SetHeight(Twips height) {
    Move({bounds_.left, bounds_.top, bounds_.width, height});
}

void Control::Move(const Rect& bounds) {
    TakeBounds(bounds);
}

void Control::SetVisible(bool visible) {
    visible_ = visible;
    peer().SetVisible(visible);
}

void Control::SetEnabled(bool enabled) {
    enabled_ = enabled;
    peer().SetEnabled(enabled);
}

void Control::SetTabStop(bool tabStop) {
    tabStop_ = tabStop;
    peer().SetTabStop(tabStop);
}

void Control::SetContainer(Control& container) {
    if (&container == this)
        throw InvalidPropertyValue("container of " + name_);
    container_ = &container;
    peer().SetContainer(container.peer());
}

void Control::SetCaption(std::string_view caption) {
    caption_ = caption;
    peer().SetCaption(caption);
}

// The character behind the first "&" that is not doubled.
char32_t Control::AccessKey() const {
    switch (kind_) {
        case Kind::Label:
        case Kind::Frame:
        case Kind::CommandButton:
        case Kind::CheckBox:
        case Kind::OptionButton:
            break;
        default:
            return 0;  // their captions, if any, are not drawn with marks
    }
    for (std::size_t i = 0; i + 1 < caption_.size(); ++i) {
        if (caption_[i] != '&')
            continue;
        if (caption_[i + 1] != '&')
            return FoldCase(DecodeUtf8(caption_, i + 1).value);
        ++i;
    }
    return 0;
}

void Control::SetAccessibleName(std::string_view name) {
    accessibleName_ = name;
    peer().SetAccessibleName(name);
}

// A peer lays itself out and paints anew for what it is told here, so it is told what is new.

void Control::SetFont(const toolkit::Font& font) {
    if (font == font_)
        return;
    font_ = font;
    SystemChangedBounds(peer().SetFont(font));
}

void Control::SetForeColor(Color color) {
    ShowColors(color, backColor_);
}

void Control::SetBackColor(Color color) {
    ShowColors(foreColor_, color);
}

void Control::ShowColors(Color foreground, Color background) {
    if (hasColors_ && foreground == foreColor_ && background == backColor_)
        return;
    hasColors_ = true;
    foreColor_ = foreground;
    backColor_ = background;
    peer().SetColors(foreColor_, backColor_);
}

void Control::SetBorder(BorderStyle border) {
    ShowFrame(border, appearance_);
}

void Control::SetLook(Appearance appearance) {
    ShowFrame(border_, appearance);
}

void Control::ShowFrame(BorderStyle border, Appearance appearance) {
    if (hasFrame_ && border == border_ && appearance == appearance_)
        return;
    hasFrame_ = true;
    border_ = border;
    appearance_ = appearance;
    peer().SetBorder(border_, appearance_);
}

void Control::SetRightToLeft(bool rightToLeft) {
    ShowReadingOrder(rightToLeft, alignment_);
}

void Control::SetTextAlignment(Alignment alignment) {
    ShowReadingOrder(rightToLeft_, alignment);
}

void Control::ShowReadingOrder(bool rightToLeft, Alignment alignment) {
    if (rightToLeft == rightToLeft_ && alignment == alignment_)
        return;
    rightToLeft_ = rightToLeft;
    alignment_ = alignment;
    peer().SetReadingOrder(rightToLeft_, alignment_);
}

void Control::SetMousePointer(Pointer pointer) {
    pointer_ = pointer;
    peer().SetPointer(pointer);
}

void Control::SetToolTip(std::string_view text) {
    toolTip_ = text;
    peer().SetToolTip(text);
}

void Control::SystemChangedBounds(const Rect& bounds) {
    const Rect before = bounds_;
    bounds_ = bounds;
    if (bounds.width != before.width || bounds.height != before.height)
        Resize.Raise();
}

}  // namespace ordalyn::toolkit
