#include "toolkit/ShortcutText.h"

namespace ordalyn::toolkit {

namespace {

std::string KeyText(int key) {
    if ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z'))
        return {static_cast<char>(key)};
    if (key >= key::F1 && key <= key::F24)
        return "F" + std::to_string(key - key::F1 + 1);
    struct Name {
        int key;
        const char* text;
    };
    static constexpr Name kNames[] = {
        {key::Enter, "Enter"},         {key::Escape, "Esc"},    {key::Tab, "Tab"},
        {key::Space, "Space"},         {key::Insert, "Ins"},    {key::Delete, "Del"},
        {key::Backspace, "Backspace"}, {key::Home, "Home"},     {key::End, "End"},
        {key::PageUp, "PgUp"},         {key::PageDown, "PgDn"}, {key::Up, "Up"},
        {key::Down, "Down"},           {key::Left, "Left"},     {key::Right, "Right"},
    };
    for (const Name& name : kNames) {
        if (name.key == key)
            return name.text;
    }
    return "";
}

}  // namespace

std::string ShortcutText(const Shortcut& shortcut) {
    const std::string key = KeyText(shortcut.key);
    if (key.empty())
        return "";
    std::string text;
    if (shortcut.modifiers.control)
        text += "Ctrl+";
    if (shortcut.modifiers.alt)
        text += "Alt+";
    if (shortcut.modifiers.shift)
        text += "Shift+";
    return text + key;
}

}  // namespace ordalyn::toolkit
