#include "toolkit/Controls.h"

#include <algorithm>

#include "base/Errors.h"

namespace ordalyn::toolkit {

namespace {

std::unique_ptr<ControlPeer> CreateSimplePeer(Toolkit& toolkit, Kind kind, Control& control,
                                              ControlPeer& container) {
    switch (kind) {
        case Kind::Frame:
            return toolkit.CreateFrame(control, container);
        case Kind::PictureBox:
            return toolkit.CreatePictureBox(control, container);
        case Kind::CommandButton:
            return toolkit.CreateCommandButton(control, container);
        default:
            throw InvalidPropertyValue("kind");
    }
}

}  // namespace

SimpleControl::SimpleControl(Toolkit& toolkit, Kind kind, std::string_view name, int index,
                             Control& container, const Rect& bounds)
    : Control(kind, name, index), peer_(CreateSimplePeer(toolkit, kind, *this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
}

Label::Label(Toolkit& toolkit, std::string_view name, int index, Control& container,
             const Rect& bounds)
    : Control(Kind::Label, name, index), peer_(toolkit.CreateLabel(*this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
}

void Label::SetPlainText(bool plain) {
    plainText_ = plain;
    peer_->SetPlainText(plain);
}

void Label::SetShortensPath(bool shortens) {
    shortensPath_ = shortens;
    peer_->SetShortensPath(shortens);
}

bool Label::UserPressedKey(int key, bool held) {
    if (key != key::Space)
        return false;
    if (!held)
        Click.Raise();
    return true;
}

Toggle::Toggle(Toolkit& toolkit, Kind kind, std::string_view name, int index, Control& container,
               const Rect& bounds)
    : Control(kind, name, index),
      peer_(kind == Kind::CheckBox ? toolkit.CreateCheckBox(*this, container.peer())
                                   : toolkit.CreateOptionButton(*this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
}

void Toggle::SetChecked(bool checked) {
    const bool changed = checked != checked_;
    checked_ = checked;
    peer_->SetChecked(checked);
    if (!changed)
        return;
    if (ControlKind() == Kind::CheckBox) {
        Click.Raise();
        return;
    }
    if (!checked)
        return;
    for (Toggle* other : group_) {
        if (other == this)
            continue;
        other->checked_ = false;
        other->peer_->SetChecked(false);
    }
    Click.Raise();
}

void Toggle::UserToggled() {
    SetChecked(ControlKind() == Kind::CheckBox ? !checked_ : true);
}

TextBox::TextBox(Toolkit& toolkit, std::string_view name, int index, Control& container,
                 const Rect& bounds)
    : Control(Kind::TextBox, name, index), peer_(toolkit.CreateTextBox(*this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
    SetBackColor(kWindowBackground);
}

void TextBox::SetText(std::string_view text) {
    if (text == text_)
        return;
    text_ = text;
    peer_->SetText(text);
    Change.Raise();
}

void TextBox::SelectAll() {
    peer_->SelectText(0, text_.size());
}

void TextBox::UserEdited(std::string_view text) {
    if (text == text_)
        return;
    text_ = text;
    Change.Raise();
}

ProgressBar::ProgressBar(Toolkit& toolkit, std::string_view name, int index, Control& container,
                         const Rect& bounds)
    : Control(Kind::ProgressBar, name, index),
      peer_(toolkit.CreateProgressBar(*this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
    peer_->SetRange(0, kSteps);
}

void ProgressBar::SetMaximum(std::int32_t maximum) {
    if (maximum < 1)
        throw InvalidPropertyValue("maximum of " + Name());
    maximum_ = maximum;
    SetValue(std::min(value_, maximum_));
}

void ProgressBar::SetValue(std::int32_t value) {
    if (value < 0 || value > maximum_)
        throw InvalidPropertyValue("value of " + Name());
    value_ = value;
    const int step = static_cast<int>(std::int64_t{value} * kSteps / maximum_);
    if (step == shownStep_)
        return;
    shownStep_ = step;
    peer_->SetValue(step);
}

StatusBar::StatusBar(Toolkit& toolkit, std::string_view name, int index, Control& container,
                     const Rect& bounds)
    : Control(Kind::StatusBar, name, index),
      peer_(toolkit.CreateStatusBar(*this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
}

void StatusBar::AddPanel(Twips width) {
    panels_.push_back({"", width, Bevel::Inset});
    peer_->SetPanelCount(PanelCount());
    Show(PanelCount());
}

StatusBar::Panel& StatusBar::At(int number) {
    if (number < 1 || number > PanelCount())
        throw SubscriptOutOfRange();
    return panels_[static_cast<std::size_t>(number - 1)];
}

void StatusBar::Show(int number) {
    const Panel& panel = At(number);
    peer_->SetPanel(number - 1, panel.text, panel.width, panel.bevel);
}

const std::string& StatusBar::PanelText(int number) const {
    return const_cast<StatusBar*>(this)->At(number).text;
}

void StatusBar::SetPanelText(int number, std::string_view text) {
    At(number).text = text;
    Show(number);
}

Bevel StatusBar::PanelBevel(int number) const {
    return const_cast<StatusBar*>(this)->At(number).bevel;
}

void StatusBar::SetPanelBevel(int number, Bevel bevel) {
    At(number).bevel = bevel;
    Show(number);
}

TabStrip::TabStrip(Toolkit& toolkit, std::string_view name, int index, Control& container,
                   const Rect& bounds)
    : Control(Kind::TabStrip, name, index), peer_(toolkit.CreateTabStrip(*this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
}

void TabStrip::AddTab(std::string_view tag) {
    tabs_.push_back({"", std::string(tag)});
    peer_->SetTab(TabCount() - 1, "");
    if (selected_ == 0)
        selected_ = 1;
}

const TabStrip::Tab& TabStrip::TabAt(int number) const {
    if (number < 1 || number > TabCount())
        throw SubscriptOutOfRange();
    return tabs_[static_cast<std::size_t>(number - 1)];
}

void TabStrip::SetTabCaption(int number, std::string_view caption) {
    TabAt(number);
    tabs_[static_cast<std::size_t>(number - 1)].caption = caption;
    peer_->SetTab(number - 1, caption);
}

void TabStrip::SelectTab(int number) {
    TabAt(number);
    selected_ = number;
    peer_->SelectTab(number - 1);
    Click.Raise();
}

void TabStrip::UserSelected(int index) {
    selected_ = index + 1;
    Click.Raise();
}

}  // namespace ordalyn::toolkit
