// How the messages of keys become those of the toolkit's keyboard.
#include "TestForm.h"
#include "win32/common/Win32.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::TextBox, .name = "txtName", .bounds = {0, 0, 900, 300}},
    {.kind = Kind::ComboBox, .name = "cboList", .bounds = {0, 400, 900, 300}},
    {.kind = Kind::CommandButton, .name = "cmdOk", .bounds = {0, 800, 900, 300}, .isDefault = true},
    {.kind = Kind::CommandButton, .name = "cmdOther", .bounds = {0, 1200, 900, 300}},
};
constexpr FormDesign kDesign = {"frmKeys", "", {3000, 2000}, {}, kControls};

class KeyMessages : public testing::Test {
  protected:
    KeyMessages() {
        form.Show();
        TheToolkit().DoEvents();
        form.Get<CommandButton>("cmdOk").Click.Subscribe([this] { ++pressed; });
    }
    static void Send(HWND window, UINT message, int key, LPARAM details = 1) {
        PostMessageW(window, message, static_cast<WPARAM>(key), details);
        TheToolkit().DoEvents();
    }
    // Of the form's buttons, from 0.
    bool LooksAsDefault(std::size_t number) {
        const LONG_PTR style = GetWindowLongPtrW(Child(form, L"Button", number), GWL_STYLE);
        return (style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    }
    Form form{TheToolkit(), kDesign};
    int pressed = 0;
};

TEST_F(KeyMessages, AKeyThatRepeatsItselfPressesAButtonOnce) {
    const HWND box = Child(form, L"Edit");
    Send(box, WM_KEYDOWN, VK_RETURN);
    Send(box, WM_KEYDOWN, VK_RETURN, 0x40000001);
    EXPECT_EQ(pressed, 1);
}

TEST_F(KeyMessages, WhatTheSystemReservesForMenusIsLeftToIt) {
    int seen = 0;
    form.KeyDown.Subscribe([&](int, Modifiers) { ++seen; });
    const HWND box = Child(form, L"Edit");
    SetFocus(box);
    // Without Alt, as it comes to a window that is minimised.
    Send(box, WM_SYSKEYDOWN, VK_RETURN);
    Send(box, WM_SYSKEYDOWN, VK_TAB);
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(pressed, 0);
    EXPECT_EQ(GetFocus(), box);
}

TEST_F(KeyMessages, AnOpenListIsClosedByEnterBeforeTheFormUsesIt) {
    form.Get<ComboBox>("cboList").AddItem("a");
    const HWND box = Child(form, L"ComboBox");
    SetFocus(box);
    SendMessageW(box, CB_SHOWDROPDOWN, TRUE, 0);
    PressKey(box, VK_RETURN);
    EXPECT_EQ(SendMessageW(box, CB_GETDROPPEDSTATE, 0, 0), FALSE);
    EXPECT_EQ(pressed, 0);
    PressKey(box, VK_RETURN);
    EXPECT_EQ(pressed, 1);
}

TEST_F(KeyMessages, TheButtonThatEnterPressesLooksLikeIt) {
    form.Get<TextBox>("txtName").SetFocus();
    EXPECT_TRUE(LooksAsDefault(0));
    EXPECT_FALSE(LooksAsDefault(1));
    form.Get<CommandButton>("cmdOther").SetFocus();
    EXPECT_FALSE(LooksAsDefault(0));
    EXPECT_TRUE(LooksAsDefault(1));
    form.Get<TextBox>("txtName").SetFocus();
    EXPECT_TRUE(LooksAsDefault(0));
    EXPECT_FALSE(LooksAsDefault(1));
}

// Notes what the window is to show or hide of the keyboard's marks.
LRESULT CALLBACK NoteMarks(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                           DWORD_PTR seen) {
    if (message == WM_CHANGEUISTATE)
        reinterpret_cast<std::vector<WPARAM>*>(seen)->push_back(wParam);
    return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(KeyMessages, TabShowsTheMarksOfFocusAndAccessKeys) {
    std::vector<WPARAM> seen;
    SetFocus(Child(form, L"Edit"));
    SetWindowSubclass(HandleOf(form), NoteMarks, 78, reinterpret_cast<DWORD_PTR>(&seen));
    Send(Child(form, L"Edit"), WM_KEYDOWN, VK_TAB);
    RemoveWindowSubclass(HandleOf(form), NoteMarks, 78);
    EXPECT_EQ(seen, (std::vector<WPARAM>{MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL)}));
}

TEST_F(KeyMessages, AltShowsTheAccessKeys) {
    // Not every system hides the marks at all; what is asked of it is the same.
    std::vector<WPARAM> seen;
    const HWND box = Child(form, L"Edit");
    SetWindowSubclass(HandleOf(form), NoteMarks, 78, reinterpret_cast<DWORD_PTR>(&seen));
    // Letting Alt go would open the menu, which waits for its user.
    Send(box, WM_SYSKEYDOWN, VK_MENU, 0x20000001);
    Send(box, WM_KEYDOWN, VK_F3);
    RemoveWindowSubclass(HandleOf(form), NoteMarks, 78);
    EXPECT_EQ(seen, (std::vector<WPARAM>{MAKEWPARAM(UIS_CLEAR, UISF_HIDEACCEL)}));
}

}  // namespace
}  // namespace ordalyn::test
