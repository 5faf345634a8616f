// ToolBar: buttons with pictures; a button can have a drop-down menu behind an arrow.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/Control.h"
#include "toolkit/ToolBarPictures.h"

namespace ordalyn::toolkit {

// Buttons are numbered from 1. Each shows a picture (ToolBarPictures.h), apart from separators.
// While the bar has the focus, the arrows walk its buttons, Space and Enter press the current one,
// Down opens its menu. A menu entry has a key, unique within its menu (the empty key apart), and a
// text, in which "&" is a character like any other; the text "-" without a key is a separator.
class ToolBar : public Control {
  public:
    struct MenuEntry {
        std::string key;
        std::string text;
        bool IsSeparator() const { return text == "-" && key.empty(); }
    };
    struct Button {
        std::string tag;
        std::string toolTip;
        bool hasMenu = false;
        bool separator = false;
        std::vector<MenuEntry> menu;
    };
    ToolBar(Toolkit& toolkit, std::string_view name, int index, Control& container,
            const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }
    int ButtonCount() const { return static_cast<int>(buttons_.size()); }
    void AddButton(std::string_view tag, std::string_view image, bool hasMenu);
    const Button& ButtonAt(int number) const;  // SubscriptOutOfRange
    void SetButtonToolTip(int number, std::string_view text);
    // The button that keys are for; 0 while there is none.
    int CurrentButton() const { return current_; }
    // Throws InvalidPropertyValue when the menu holds the key already (keys ignore case).
    void AddMenuEntry(int number, std::string_view key, std::string_view text);
    void SetMenuEntryText(int number, int entry, std::string_view text);  // entry is 0-based

    Event<int> ButtonClick;           // button number
    Event<int, int> ButtonMenuClick;  // button number, 0-based entry
    // For the peer: 0-based.
    void UserClickedButton(int index) { ButtonClick.Raise(index + 1); }
    void UserChoseMenuEntry(int index, int entry) { ButtonMenuClick.Raise(index + 1, entry); }
    bool UserPressedKey(int key, bool held) override;

  private:
    Button& At(int number);
    void MoveCurrent(bool forward);
    std::unique_ptr<ToolBarPeer> peer_;
    std::vector<Button> buttons_;
    int current_ = 0;
};

}  // namespace ordalyn::toolkit
