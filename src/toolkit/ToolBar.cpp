#include "toolkit/ToolBar.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/Text.h"

namespace ordalyn::toolkit {

ToolBar::ToolBar(Toolkit& toolkit, std::string_view name, int index, Control& container,
                 const Rect& bounds)
    : Control(Kind::ToolBar, name, index), peer_(toolkit.CreateToolBar(*this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
}

void ToolBar::AddButton(std::string_view tag, std::string_view image, bool hasMenu) {
    const bool separator = image == kSeparatorImage;
    buttons_.push_back({std::string(tag), "", hasMenu, separator, {}});
    peer_->AddButton(image, hasMenu);
    if (current_ == 0 && !separator)
        current_ = ButtonCount();
}

ToolBar::Button& ToolBar::At(int number) {
    if (number < 1 || number > ButtonCount())
        throw SubscriptOutOfRange();
    return buttons_[static_cast<std::size_t>(number - 1)];
}

const ToolBar::Button& ToolBar::ButtonAt(int number) const {
    return const_cast<ToolBar*>(this)->At(number);
}

void ToolBar::SetButtonToolTip(int number, std::string_view text) {
    At(number).toolTip = text;
}

void ToolBar::AddMenuEntry(int number, std::string_view key, std::string_view text) {
    std::vector<MenuEntry>& menu = At(number).menu;
    const bool taken =
        !key.empty() && std::any_of(menu.begin(), menu.end(), [&](const auto& entry) {
            return EqualsIgnoreCase(entry.key, key);
        });
    if (taken)
        throw InvalidPropertyValue("key of a menu entry of " + Name());
    menu.push_back({std::string(key), std::string(text)});
}

void ToolBar::SetMenuEntryText(int number, int entry, std::string_view text) {
    std::vector<MenuEntry>& menu = At(number).menu;
    if (entry < 0 || entry >= static_cast<int>(menu.size()))
        throw SubscriptOutOfRange();
    menu[static_cast<std::size_t>(entry)].text = text;
}

void ToolBar::MoveCurrent(bool forward) {
    const int count = ButtonCount();
    int number = current_;
    do {
        number = forward ? number % count + 1 : (number + count - 2) % count + 1;
    } while (At(number).separator);
    current_ = number;
    peer_->ShowCurrentButton(number - 1);
}

bool ToolBar::UserPressedKey(int key, bool held) {
    if (current_ == 0)
        return false;
    switch (key) {
        case key::Left:
        case key::Right:
            MoveCurrent(key == key::Right);
            return true;
        case key::Space:
        case key::Enter:
            if (!held)
                ButtonClick.Raise(current_);
            return true;
        case key::Down:
            if (!held && At(current_).hasMenu)
                peer_->OpenMenu(current_ - 1);
            return true;
        default:
            return false;
    }
}

}  // namespace ordalyn::toolkit
