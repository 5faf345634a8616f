// A form for tests of the keyboard, and a user who presses keys in it.
#pragma once

#include "SampleTest.h"
#include "toolkit/FormKeyboard.h"

namespace ordalyn::toolkit {

inline constexpr ControlDesign kKeyboardControls[] = {
    {.kind = Kind::Label, .name = "lblName", .bounds = {0, 0, 900, 300}},
    {.kind = Kind::TextBox, .name = "txtName", .bounds = {0, 300, 900, 300}},
    {.kind = Kind::Frame, .name = "fraSide", .bounds = {0, 600, 900, 900}},
    {.kind = Kind::OptionButton, .name = "optSide", .container = "fraSide", .index = 0},
    {.kind = Kind::OptionButton, .name = "optSide", .container = "fraSide", .index = 1},
    {.kind = Kind::OptionButton, .name = "optSide", .container = "fraSide", .index = 2},
    {.kind = Kind::OptionButton, .name = "optAlone", .bounds = {0, 1500, 900, 300}},
    {.kind = Kind::ComboBox, .name = "cboText", .editable = true},
    {.kind = Kind::CheckBox, .name = "chkBox", .bounds = {0, 1800, 900, 300}},
    {.kind = Kind::Label, .name = "lblStop", .bounds = {0, 2100, 900, 300}, .tabStop = true},
    {.kind = Kind::CommandButton, .name = "cmdOk", .isDefault = true},
    {.kind = Kind::CommandButton, .name = "cmdCancel", .isCancel = true, .tabStop = false},
};
inline constexpr MenuDesign kKeyboardMenus[] = {
    {.level = 0, .name = "mnuFile", .caption = "File"},
    {.level = 1, .name = "mnuFileOpen", .caption = "Open", .shortcut = {key::F4, {}}},
};
inline const FormDesign kKeyboardDesign = {.name = "frmKeys",
                                           .tag = "",
                                           .clientSize = {3000, 3000},
                                           .style = {},
                                           .controls = kKeyboardControls,
                                           .menus = kKeyboardMenus};
inline constexpr Modifiers kShift{.shift = true};

class KeyboardFixture : public testing::Test {
  protected:
    KeyboardFixture() { form->Show(); }
    template <typename T>
    T& Get(std::string_view name, int index = -1) {
        return form->Get<T>(name, index);
    }
    OptionButton& Side(int index) { return Get<OptionButton>("optSide", index); }
    Control* Focused() { return const_cast<Control*>(kit.focus); }
    std::string FocusedName() {
        if (Focused() == nullptr)
            return "";
        return Focused()->Name() +
               (Focused()->Index() < 0 ? "" : std::to_string(Focused()->Index()));
    }
    // With the key's control being what has the focus.
    bool Press(KeyPress press) { return keyboard.KeyDown(Focused(), press); }
    bool Press(int key, Modifiers modifiers = {}) {
        return Press(KeyPress{.key = key, .modifiers = modifiers});
    }
    bool PressHeld(int key) { return Press(KeyPress{.key = key, .held = true}); }
    bool Alt(char32_t character) { return keyboard.AccessKey(Focused(), character); }
    bool CuesShown() {
        return std::exchange(test::MemoryToolkit::Mutable(*form).keyboardCues, false);
    }
    test::MemoryToolkit kit;
    std::unique_ptr<Form> form = std::make_unique<Form>(kit, kKeyboardDesign);
    FormKeyboard keyboard{*form};
};

}  // namespace ordalyn::toolkit
