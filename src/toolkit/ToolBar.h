// ToolBar: buttons with pictures; a button can have a drop-down menu behind an arrow.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "toolkit/Control.h"

namespace ordalyn::toolkit {

// Buttons are numbered from 1. A menu entry has a key, unique within its menu (the empty key
// apart), and a text; the text "-" without a key is a separator.
class ToolBar : public Control {
  public:
    struct MenuEntry {
        std::string key;
        std::string text;
    };
    struct Button {
        std::string tag;
        std::string toolTip;
        bool hasMenu = false;
        std::vector<MenuEntry> menu;
    };
    ToolBar(Toolkit& toolkit, std::string_view name, int index, Control& container,
            const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }
    int ButtonCount() const { return static_cast<int>(buttons_.size()); }
    void AddButton(std::string_view tag, std::string_view image, bool hasMenu);
    const Button& ButtonAt(int number) const;  // SubscriptOutOfRange
    void SetButtonToolTip(int number, std::string_view text);
    // Throws InvalidPropertyValue when the menu holds the key already (keys ignore case).
    void AddMenuEntry(int number, std::string_view key, std::string_view text);
    void SetMenuEntryText(int number, int entry, std::string_view text);  // entry is 0-based

    Event<int> ButtonClick;           // button number
    Event<int, int> ButtonMenuClick;  // button number, 0-based entry
    // For the peer: 0-based.
    void UserClickedButton(int index) { ButtonClick.Raise(index + 1); }
    void UserChoseMenuEntry(int index, int entry) { ButtonMenuClick.Raise(index + 1, entry); }

  private:
    Button& At(int number);
    std::unique_ptr<ToolBarPeer> peer_;
    std::vector<Button> buttons_;
};

}  // namespace ordalyn::toolkit
