#include "toolkit/ComboBox.h"

#include "base/Errors.h"
#include "base/Text.h"

namespace ordalyn::toolkit {

ComboBox::ComboBox(Toolkit& toolkit, bool editable, std::string_view name, int index,
                   Control& container, const Rect& bounds)
    : Control(Kind::ComboBox, name, index),
      editable_(editable),
      peer_(toolkit.CreateComboBox(*this, editable, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
    SetBackColor(kWindowBackground);
}

void ComboBox::RequireItem(int index) const {
    if (index < 0 || index >= ListCount())
        throw SubscriptOutOfRange();
}

const std::string& ComboBox::List(int index) const {
    RequireItem(index);
    return items_[static_cast<std::size_t>(index)];
}

void ComboBox::AddItem(std::string_view text) {
    InsertItem(ListCount(), text);
}

void ComboBox::AddItems(const std::vector<std::string>& texts) {
    items_.insert(items_.end(), texts.begin(), texts.end());
    peer_->AddItems(texts);
}

void ComboBox::InsertItem(int index, std::string_view text) {
    if (index < 0 || index > ListCount())
        throw SubscriptOutOfRange();
    items_.emplace(items_.begin() + index, text);
    peer_->InsertItem(index, text);
    if (listIndex_ >= index)
        ++listIndex_;
}

void ComboBox::SetItem(int index, std::string_view text) {
    RequireItem(index);
    items_[static_cast<std::size_t>(index)] = text;
    peer_->SetItem(index, text);
    if (index != listIndex_)
        return;
    text_ = text;
    peer_->SetListIndex(index);
}

void ComboBox::RemoveItem(int index) {
    RequireItem(index);
    items_.erase(items_.begin() + index);
    peer_->RemoveItem(index);
    if (index == listIndex_)
        listIndex_ = -1;
    else if (index < listIndex_)
        --listIndex_;
}

void ComboBox::Clear() {
    items_.clear();
    listIndex_ = -1;
    text_.clear();
    peer_->RemoveAllItems();
}

void ComboBox::SetListIndex(int index) {
    if (index < -1 || index >= ListCount())
        throw InvalidPropertyValue("list index of " + Name());
    listIndex_ = index;
    text_ = index >= 0 ? items_[static_cast<std::size_t>(index)] : std::string();
    peer_->SetListIndex(index);
    Click.Raise();
}

const std::string& ComboBox::Text() const {
    static const std::string empty;
    if (editable_)
        return text_;
    return listIndex_ >= 0 ? items_[static_cast<std::size_t>(listIndex_)] : empty;
}

void ComboBox::SetText(std::string_view text) {
    if (editable_) {
        listIndex_ = -1;
        if (text == text_)
            return;
        text_ = text;
        peer_->SetText(text);
        Change.Raise();
        return;
    }
    for (int i = 0; i < ListCount(); ++i) {
        if (!EqualsIgnoreCase(List(i), text))
            continue;
        SetListIndex(i);
        return;
    }
    throw InvalidPropertyValue("text of " + Name());
}

void ComboBox::SelectText(std::size_t start, std::size_t length) {
    peer_->SelectText(start, length);
}

bool ComboBox::NeedsKey(int key) const {
    return (key == key::Enter || key == key::Escape) && peer_->IsDroppedDown();
}

void ComboBox::UserSelected(int index) {
    listIndex_ = index;
    if (index >= 0)
        text_ = List(index);
    Click.Raise();
}

void ComboBox::UserEnteredList(int index) {
    if (index < 0)
        KeyDown.Raise(key::Enter, {});
    else if (index != listIndex_)
        UserSelected(index);  // otherwise that was reported when it was marked
}

void ComboBox::UserEdited(std::string_view text) {
    listIndex_ = -1;
    if (text == text_)
        return;
    text_ = text;
    Change.Raise();
}

}  // namespace ordalyn::toolkit
