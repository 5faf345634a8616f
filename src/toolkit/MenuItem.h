// MenuItem: an entry of a form's menus, with or without sub-items. Its caption holds the text
// alone; the shortcut is a property of its own, shown by the realisation.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/Basics.h"

namespace ordalyn::toolkit {

class Form;

// An item that is made with the caption "-" is a separator; no text that it is given later makes it
// one.
class MenuItem {
  public:
    MenuItem(Form& form, MenuItem* parent, std::string_view name, std::string_view caption);
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Tag() const { return tag_; }
    void SetTag(std::string_view tag) { tag_ = tag; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    const Shortcut& Accelerator() const { return shortcut_; }
    void SetShortcut(const Shortcut& shortcut);
    // Text shown right of the caption instead of the shortcut's own (for keys that the program
    // handles itself).
    const std::string& KeyHint() const { return keyHint_; }
    void SetKeyHint(std::string_view hint);
    // What stands right of the caption: the hint, or else the text of the shortcut.
    std::string KeyText() const;
    bool IsSeparator() const { return separator_; }

    MenuItem* Parent() const { return parent_; }
    const std::vector<std::unique_ptr<MenuItem>>& Items() const { return items_; }
    MenuItem& AddItem(std::string_view name, std::string_view caption);
    void RemoveLastItem();  // SubscriptOutOfRange when there is none

    Event<> Click;
    // Chooses the item as the user would: nothing happens when it or one of its parents is
    // disabled. A handler may remove the item.
    void Choose();

  private:
    void Update();
    Form& form_;
    MenuItem* parent_;
    std::string name_;
    std::string tag_;
    std::string caption_;
    bool separator_;
    bool checked_ = false;
    bool enabled_ = true;
    bool visible_ = true;
    Shortcut shortcut_;
    std::string keyHint_;
    std::vector<std::unique_ptr<MenuItem>> items_;
};

}  // namespace ordalyn::toolkit
