#include "TestForm.h"
#include "base/Errors.h"
#include "win32/forms/FormWindow.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr MenuDesign kMenus[] = {
    {0, "mnuFile", "&File"},
    {1, "mnuOpen", "&Open...", {'O', {false, true, false}}},
    {1, "mnuRecent", "&Recent"},
    {2, "mnuNone", "None"},
    {0, "mnuContext", "Context", {}, "", false},
    {1, "mnuCopy", "&Copy", {}, "Ctrl+C"},
};
constexpr ControlDesign kControls[] = {
    {.kind = Kind::CommandButton, .name = "cmdFirst", .bounds = {0, 0, 900, 300}},
    {.kind = Kind::TextBox, .name = "txtName", .bounds = {0, 400, 900, 300}},
    {.kind = Kind::StatusBar, .name = "StatusBar1"},
};
constexpr FormDesign kDesign = {
    "frmTest", "", {4500, 3000}, {.resizable = true, .maximiseBox = true}, kControls, kMenus};
constexpr FormDesign kDialog = {"frmDialog", "", {3000, 1500}, {}, {}};

Rect CurrentBounds(const Form& form) {
    return dynamic_cast<win32::FormWindow&>(form.peer()).CurrentBounds();
}

std::wstring MenuText(HMENU menu, UINT position) {
    wchar_t text[100] = {};
    GetMenuStringW(menu, position, text, 100, MF_BYPOSITION);
    return text;
}

TEST(FormWindow, ItsInsideHasTheDesignedSizeBelowTheMenu) {
    Form form(TheToolkit(), kDesign);
    EXPECT_EQ(form.ClientSize(), (Size{4500, 3000}));
    ASSERT_NE(GetMenu(HandleOf(form)), nullptr);
    EXPECT_EQ(GetMenuItemCount(GetMenu(HandleOf(form))), 1);
}

TEST(FormWindow, ATextOfAMenuBringsNoKeysAndNoLineAlong) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    const HMENU file = GetSubMenu(GetMenu(HandleOf(form)), 0);
    form.Menu("mnuOpen").SetCaption("%n%s\tCtrl+Q\bx");
    EXPECT_EQ(MenuText(file, 0), L"%n%s Ctrl+Q x\tCtrl+O");
    form.Menu("mnuRecent").SetCaption("R&&D\tDel");
    TheToolkit().DoEvents();
    EXPECT_EQ(MenuText(file, 1), L"R&&D Del");
    form.Menu("mnuRecent").SetCaption("-");
    EXPECT_EQ(MenuText(file, 1), L"-");
    EXPECT_EQ(GetMenuState(file, 1, MF_BYPOSITION) & MF_SEPARATOR, 0U);
}

TEST(FormWindow, ManyChangesOfItsMenusAreWorkedOffAtOnce) {
    constexpr UINT kMenusChanged = WM_APP + 2;
    Form form(TheToolkit(), kDesign);
    form.Show();
    TheToolkit().DoEvents();
    const HWND window = HandleOf(form);
    const auto workOff = [window] {
        int count = 0;
        for (MSG message; PeekMessageW(&message, window, kMenusChanged, kMenusChanged, PM_REMOVE);
             ++count)
            DispatchMessageW(&message);
        return count;
    };
    for (const bool visible : {false, true, false}) {
        form.Menu("mnuOpen").SetVisible(visible);
        form.Menu("mnuRecent").SetVisible(!visible);
        EXPECT_EQ(workOff(), 1);
        EXPECT_EQ(MenuText(GetSubMenu(GetMenu(window), 0), 0),
                  visible ? L"&Open...\tCtrl+O" : L"&Recent");
    }
}

int layouts;  // of a form's frame

LRESULT CALLBACK CountLayouts(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR) {
    layouts += message == WM_NCCALCSIZE ? 1 : 0;
    return DefSubclassProc(window, message, wParam, lParam);
}

TEST(FormWindow, ABarThatSaysSomethingElseIsLaidOutOnce) {
    constexpr MenuDesign kBar[] = {{0, "mnuA", "A"}, {0, "mnuB", "B"}, {0, "mnuC", "C"}};
    const FormDesign design = {"frmBar", "", {4500, 3000}, {}, {}, kBar};
    Form form(TheToolkit(), design);
    form.Show();
    TheToolkit().DoEvents();
    layouts = 0;
    SetWindowSubclass(HandleOf(form), CountLayouts, 1, 0);
    for (const char* item : {"mnuA", "mnuB", "mnuC"})
        form.Menu(item).SetCaption("Something long");
    EXPECT_EQ(MenuText(GetMenu(HandleOf(form)), 2), L"Something long");
    EXPECT_EQ(layouts, 0);
    TheToolkit().DoEvents();
    EXPECT_EQ(layouts, 1);
    TheToolkit().DoEvents();
    EXPECT_EQ(layouts, 1);
    // Also where others handle the messages.
    form.Menu("mnuB").SetCaption("Something else");
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
        DispatchMessageW(&message);
    EXPECT_EQ(layouts, 2);
}

TEST(FormWindow, ItsWindowsAreKnownForAsLongAsTheyAreThere) {
    HWND window = nullptr;
    HWND button = nullptr;
    {
        const Form form(TheToolkit(), kDesign);
        window = HandleOf(form);
        button = Child(form, L"Button");
        const HWND box = Child(form, L"Edit");
        EXPECT_EQ(win32::Window::Of(window), &dynamic_cast<win32::Window&>(form.peer()));
        ASSERT_NE(win32::Window::Of(button), nullptr);
        EXPECT_EQ(win32::Window::Of(button)->handle(), button);
        EXPECT_EQ(win32::Window::Of(GetDesktopWindow()), nullptr);
        const win32::Window* const taken = win32::Window::Of(box);
        DestroyWindow(box);
        EXPECT_EQ(win32::Window::Of(box), nullptr);
        EXPECT_EQ(taken->handle(), nullptr);
    }
    EXPECT_EQ(win32::Window::Of(window), nullptr);
    EXPECT_EQ(win32::Window::Of(button), nullptr);
}

TEST(FormWindow, OnlyADialogOfAFixedSizeHasNoIcon) {
    const auto icon = [](const FormDesign& design) {
        const Form form(TheToolkit(), design);
        return SendMessageW(HandleOf(form), WM_GETICON, ICON_SMALL, 0) != 0;
    };
    FormDesign sizable = kDialog;
    sizable.style.resizable = true;
    EXPECT_TRUE(icon(kDesign));
    EXPECT_TRUE(icon(sizable));
    EXPECT_FALSE(icon(kDialog));
}

TEST(FormWindow, BoundsBetweenPixelsAreKeptAsTheyWereSet) {
    Form form(TheToolkit(), kDesign);
    const Rect odd{301, 302, 7003, 4004};
    form.Move(odd);
    EXPECT_EQ(form.Bounds(), odd);
    EXPECT_EQ(CurrentBounds(form), odd);
    form.Show();
    TheToolkit().DoEvents();
    EXPECT_EQ(form.Bounds(), odd);
}

TEST(FormWindow, CodeMayMakeItSmallerThanAUserCan) {
    Form form(TheToolkit(), kDesign);
    form.Move({0, 0, 1500, 900});
    EXPECT_EQ(CurrentBounds(form).width, 1500);
}

TEST(FormWindow, ASizeThatTheSystemGivesIsReported) {
    Form form(TheToolkit(), kDesign);
    form.Move({0, 0, 6000, 4500});
    form.Show();
    TheToolkit().DoEvents();
    int resized = 0;
    form.Resize.Subscribe([&] { ++resized; });
    const auto pixel = static_cast<Twips>(TheToolkit().TwipsPerPixelX());
    SetWindowPos(HandleOf(form), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(resized, 1);
    EXPECT_EQ(form.Width(), 500 * pixel);
    SetWindowPos(HandleOf(form), nullptr, 40, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(resized, 1);
    EXPECT_EQ(form.Left(), 40 * pixel);
}

TEST(FormWindow, TheStatusBarStandsAtTheBottomWhateverTheSize) {
    Form form(TheToolkit(), kDesign);
    form.Move({0, 0, 6000, 4500});
    const auto& bar = form.Get<StatusBar>("StatusBar1");
    EXPECT_EQ(bar.Top() + bar.Height(), form.ClientSize().height);
    EXPECT_EQ(bar.Width(), form.ClientSize().width);
    form.Move({0, 0, 9000, 7500});
    EXPECT_EQ(bar.Top() + bar.Height(), form.ClientSize().height);
    EXPECT_EQ(bar.Width(), form.ClientSize().width);
}

TEST(FormWindow, ActivateComesFromTheMessageLoopAndNotInsideShow) {
    Form form(TheToolkit(), kDesign);
    int activated = 0;
    bool visible = false;
    form.Activate.Subscribe([&] {
        ++activated;
        visible = IsWindowVisible(HandleOf(form)) != 0;
    });
    form.Show();
    EXPECT_EQ(activated, 0);
    EXPECT_TRUE(WaitUntil([&] { return activated > 0; }));
    EXPECT_TRUE(visible);
}

TEST(FormWindow, AStateSetBeforeItIsShownHoldsWhenItIsShown) {
    Form form(TheToolkit(), kDesign);
    form.Move({150, 150, 6000, 4500});
    form.SetState(WindowState::Maximised);
    EXPECT_EQ(form.State(), WindowState::Maximised);
    form.Show();
    EXPECT_NE(IsZoomed(HandleOf(form)), 0);
    form.SetState(WindowState::Normal);
    EXPECT_EQ(CurrentBounds(form), (Rect{150, 150, 6000, 4500}));
}

TEST(FormWindow, BoundsSetWhileMaximisedAreThoseItComesBackTo) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    form.SetState(WindowState::Maximised);
    form.Move({300, 450, 6000, 4500});
    EXPECT_EQ(form.State(), WindowState::Maximised);
    form.SetState(WindowState::Normal);
    EXPECT_EQ(CurrentBounds(form), (Rect{300, 450, 6000, 4500}));
}

TEST(FormWindow, AModalFormDisablesTheOthersUntilItIsHidden) {
    Form form(TheToolkit(), kDesign);
    Form dialog(TheToolkit(), kDialog);
    form.Show();
    bool disabled = false;
    bool enabledBeforeHiding = false;
    Later([&] {
        disabled = IsWindowEnabled(HandleOf(form)) == 0;
        dialog.formPeer().EndModal();
        enabledBeforeHiding =
            IsWindowEnabled(HandleOf(form)) != 0 && IsWindowVisible(HandleOf(dialog)) != 0;
        dialog.Hide();
    });
    dialog.ShowModal(&form);
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(enabledBeforeHiding);
    EXPECT_FALSE(IsWindowVisible(HandleOf(dialog)));
    EXPECT_EQ(GetWindow(HandleOf(dialog), GW_OWNER), HandleOf(form));
}

TEST(FormWindow, AModalFormThatIsUnloadedGivesBackControl) {
    Form form(TheToolkit(), kDesign);
    Form dialog(TheToolkit(), kDialog);
    form.Show();
    Later([&] { SendMessageW(HandleOf(dialog), WM_CLOSE, 0, 0); });
    dialog.ShowModal(&form);
    EXPECT_TRUE(dialog.Unloaded());
    EXPECT_EQ(dialog.Handle(), 0U);
    EXPECT_TRUE(IsWindowEnabled(HandleOf(form)));
}

TEST(FormWindow, AButtonMayCloseItsOwnForm) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    auto& button = form.Get<CommandButton>("cmdFirst");
    button.Click.Subscribe([&] { form.Unload(); });
    Click(Child(form, L"Button"), 5, 5);
    EXPECT_TRUE(form.Unloaded());
    button.SetCaption("nobody sees this");
    button.SetFocus();
    EXPECT_EQ(button.Caption(), "nobody sees this");
}

TEST(FormWindow, TheEndOfTheSessionClosesItUnlessItIsCalledOff) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    SendMessageW(HandleOf(form), WM_ENDSESSION, FALSE, 0);
    EXPECT_FALSE(form.Unloaded());
    SendMessageW(HandleOf(form), WM_ENDSESSION, TRUE, 0);
    EXPECT_TRUE(form.Unloaded());
    EXPECT_TRUE(form.SessionEnds());
}

TEST(FormWindow, AFormOutlivesItsOwnersWindow) {
    Form dialog(TheToolkit(), kDialog);
    {
        Form owner(TheToolkit(), kDesign);
        owner.Show();
        dialog.Show(&owner);
        dialog.Hide();
        owner.Unload();
    }
    EXPECT_NE(dialog.Handle(), 0U);
    dialog.Show();
    EXPECT_TRUE(IsWindowVisible(HandleOf(dialog)));
}

TEST(FormWindow, KeysGoToTheFormFirstAndShortcutsNoFurther) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    int opened = 0;
    std::vector<int> seenByForm;
    std::vector<int> seenByBox;
    form.Menu("mnuOpen").SetShortcut({key::F5, {}});
    form.Menu("mnuOpen").Click.Subscribe([&] { ++opened; });
    form.KeyDown.Subscribe([&](int key, Modifiers) { seenByForm.push_back(key); });
    form.Get<TextBox>("txtName").KeyDown.Subscribe(
        [&](int key, Modifiers) { seenByBox.push_back(key); });
    const HWND box = Child(form, L"Edit");
    PressKey(box, key::F5);
    PressKey(box, key::Enter);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(seenByForm, (std::vector<int>{key::F5, key::Enter}));
    EXPECT_EQ(seenByBox, (std::vector<int>{key::Enter}));
}

TEST(FormWindow, TabGoesThroughTheControlsInDesignOrder) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    ASSERT_TRUE(WaitUntil([&] { return GetFocus() == Child(form, L"Button"); }));
    form.Get<TextBox>("txtName").BringToFront();
    PressKey(GetFocus(), key::Tab);
    EXPECT_EQ(GetFocus(), Child(form, L"Edit"));
    PressKey(GetFocus(), key::Tab);
    EXPECT_EQ(GetFocus(), Child(form, L"Button"));
}

TEST(FormWindow, MenusShowShortcutsAndHintsRightOfTheirText) {
    Form form(TheToolkit(), kDesign);
    const HMENU file = GetSubMenu(GetMenu(HandleOf(form)), 0);
    EXPECT_EQ(MenuText(file, 0), L"&Open...\tCtrl+O");
    form.Menu("mnuOpen").SetKeyHint("Something");
    EXPECT_EQ(MenuText(file, 0), L"&Open...\tSomething");
}

TEST(FormWindow, ItemsThatAreAddedAreThereWithTheNextMessage) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    TheToolkit().DoEvents();
    const HMENU bar = GetMenu(HandleOf(form));
    form.Menu("mnuRecent").RemoveLastItem();
    form.Menu("mnuRecent").AddItem("mnu1", "&1 a.log");
    int chosen = 0;
    form.Menu("mnu1").Click.Subscribe([&] { ++chosen; });
    TheToolkit().DoEvents();
    EXPECT_EQ(GetMenu(HandleOf(form)), bar) << "the bar itself did not change";
    const HMENU recent = GetSubMenu(GetSubMenu(bar, 0), 1);
    ASSERT_EQ(GetMenuItemCount(recent), 1);
    EXPECT_EQ(MenuText(recent, 0), L"&1 a.log");
    SendMessageW(HandleOf(form), WM_COMMAND, GetMenuItemID(recent, 0), 0);
    EXPECT_EQ(chosen, 1);
}

TEST(FormWindow, AChoiceOfAMenuThatIsNoMoreIsNotTakenForAnother) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    TheToolkit().DoEvents();
    const auto recent = [&] { return GetSubMenu(GetSubMenu(GetMenu(HandleOf(form)), 0), 1); };
    const UINT before = GetMenuItemID(recent(), 0);
    int chosen = 0;
    form.Menu("mnuRecent").AddItem("mnu1", "1").Click.Subscribe([&] { ++chosen; });
    form.Menu("mnuNone").Click.Subscribe([&] { ++chosen; });
    TheToolkit().DoEvents();
    SendMessageW(HandleOf(form), WM_COMMAND, before, 0);
    EXPECT_EQ(chosen, 0);
}

TEST(FormWindow, AnErrorThatNobodyCatchesIsToldAndTheProgramGoesOn) {
    Form form(TheToolkit(), kDesign);
    form.Show();
    form.Get<CommandButton>("cmdFirst").Click.Subscribe([] { throw Overflow(); });
    std::string told;
    // Runs inside the message box's own loop.
    const std::function<void()> answer = [&] {
        const HWND box = FindWindowW(L"#32770", L"Ordalyn");
        if (box == nullptr) {
            Later(answer);
            return;
        }
        for (const HWND text : ChildrenOf(box, L"Static"))
            told += win32::TextOf(text);
        SendMessageW(box, WM_COMMAND, IDOK, 0);
    };
    Later([&] {
        Later(answer);
        SendMessageW(Child(form, L"Button"), BM_CLICK, 0, 0);
    });
    ASSERT_TRUE(WaitUntil([&] { return !told.empty(); }));
    EXPECT_EQ(told, "Overflow");
    EXPECT_TRUE(IsWindowEnabled(HandleOf(form)));
}

TEST(FormWindow, AFormThatIsDestroyedWhileItShowsAsksNobody) {
    {
        Form form(TheToolkit(), kDesign);
        form.Show();
        TheToolkit().DoEvents();
        form.Get<TextBox>("txtName").SetFocus();
    }
    EXPECT_EQ(FindWindowW(L"OrdalynForm", nullptr), nullptr);
    TheToolkit().DoEvents();
}

}  // namespace
}  // namespace ordalyn::test
