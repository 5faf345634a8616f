#include "toolkit/ShortcutText.h"

#include <gtest/gtest.h>

namespace ordalyn::toolkit {
namespace {

TEST(ShortcutText, NamesTheKeyBehindItsModifiers) {
    EXPECT_EQ(ShortcutText({'O', {false, true, false}}), "Ctrl+O");
    EXPECT_EQ(ShortcutText({'C', {true, true, true}}), "Ctrl+Alt+Shift+C");
    EXPECT_EQ(ShortcutText({'7', {true, false, false}}), "Shift+7");
    EXPECT_EQ(ShortcutText({key::F1, {}}), "F1");
    EXPECT_EQ(ShortcutText({key::F5, {}}), "F5");
    EXPECT_EQ(ShortcutText({key::F24, {}}), "F24");
}

TEST(ShortcutText, NamesTheKeysThatMakeNoCharacter) {
    const std::pair<int, const char*> names[] = {
        {key::Enter, "Enter"}, {key::Escape, "Esc"},    {key::Tab, "Tab"},
        {key::Space, "Space"}, {key::Insert, "Ins"},    {key::Delete, "Del"},
        {key::Home, "Home"},   {key::End, "End"},       {key::PageUp, "PgUp"},
        {key::Up, "Up"},       {key::PageDown, "PgDn"}, {key::Down, "Down"},
        {key::Left, "Left"},   {key::Right, "Right"},   {key::Backspace, "Backspace"},
    };
    for (const auto& [key, name] : names)
        EXPECT_EQ(ShortcutText({key, {}}), name);
}

TEST(ShortcutText, IsEmptyForAKeyWithoutAName) {
    EXPECT_EQ(ShortcutText({}), "");
    EXPECT_EQ(ShortcutText({key::F24 + 1, {}}), "");
    EXPECT_EQ(ShortcutText({key::ContextMenu, {false, true, false}}), "");
    EXPECT_EQ(ShortcutText({'a', {}}), "");
}

}  // namespace
}  // namespace ordalyn::toolkit
