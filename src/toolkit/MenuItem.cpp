#include "toolkit/MenuItem.h"

#include "base/Errors.h"
#include "toolkit/Form.h"
#include "toolkit/ShortcutText.h"

namespace ordalyn::toolkit {

MenuItem::MenuItem(Form& form, MenuItem* parent, std::string_view name, std::string_view caption)
    : form_(form), parent_(parent), name_(name), caption_(caption), separator_(caption == "-") {}

void MenuItem::Update() {
    form_.formPeer().UpdateMenuItem(*this);
}

void MenuItem::SetCaption(std::string_view caption) {
    if (caption == caption_)
        return;
    caption_ = caption;
    Update();
}

void MenuItem::SetChecked(bool checked) {
    if (checked == checked_)
        return;
    checked_ = checked;
    Update();
}

void MenuItem::SetEnabled(bool enabled) {
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    Update();
}

void MenuItem::SetVisible(bool visible) {
    if (visible == visible_)
        return;
    visible_ = visible;
    form_.formPeer().RebuildMenus();
}

void MenuItem::SetShortcut(const Shortcut& shortcut) {
    shortcut_ = shortcut;
    Update();
}

void MenuItem::SetKeyHint(std::string_view hint) {
    keyHint_ = hint;
    Update();
}

std::string MenuItem::KeyText() const {
    return keyHint_.empty() ? ShortcutText(shortcut_) : keyHint_;
}

MenuItem& MenuItem::AddItem(std::string_view name, std::string_view caption) {
    items_.push_back(std::make_unique<MenuItem>(form_, this, name, caption));
    form_.formPeer().RebuildMenus();
    return *items_.back();
}

void MenuItem::RemoveLastItem() {
    if (items_.empty())
        throw SubscriptOutOfRange();
    items_.pop_back();
    form_.formPeer().RebuildMenus();
}

void MenuItem::Choose() {
    for (const MenuItem* item = this; item != nullptr; item = item->parent_) {
        if (!item->enabled_)
            return;
    }
    Click.Raise();  // the item may be gone now
}

}  // namespace ordalyn::toolkit
