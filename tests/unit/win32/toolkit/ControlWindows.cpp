#include "TestForm.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::PictureBox, .name = "pic", .bounds = {0, 0, 6000, 3000}},
    {.kind = Kind::Frame, .name = "Bar", .bounds = {0, 0, 45, 3000}, .container = "pic"},
    {.kind = Kind::Label, .name = "lbl", .bounds = {1500, 0, 1500, 300}, .container = "pic"},
    {.kind = Kind::ComboBox, .name = "cboList", .bounds = {1501, 402, 2003, 999}},
    {.kind = Kind::ComboBox, .name = "cboEdit", .bounds = {0, 800, 2000, 0}, .editable = true},
    {.kind = Kind::CheckBox, .name = "chk", .bounds = {0, 1200, 2000, 300}},
    {.kind = Kind::OptionButton, .name = "optA", .bounds = {0, 1500, 2000, 300}},
    {.kind = Kind::OptionButton, .name = "optB", .bounds = {0, 1800, 2000, 300}},
    {.kind = Kind::TextBox, .name = "txt", .bounds = {0, 2100, 2000, 300}},
    {.kind = Kind::StatusBar, .name = "StatusBar1"},
    {.kind = Kind::TabStrip, .name = "tabs", .bounds = {3000, 800, 2000, 900}},
    {.kind = Kind::ToolBar, .name = "Toolbar1", .bounds = {3000, 2000, 2000, 400}},
};
constexpr FormDesign kDesign = {"frmTest", "", {7500, 4500}, {}, kControls};

class Controls : public ::testing::Test {
  protected:
    Controls() {
        form.Show();
        TheToolkit().DoEvents();
    }
    Form form{TheToolkit(), kDesign};
};

RECT InsideParent(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

// The label right before the window among its siblings, as the system's objects for programs that
// speak the screen look for it.
std::wstring LabelBefore(HWND window) {
    const HWND label = GetWindow(window, GW_HWNDPREV);
    wchar_t name[64] = {};
    if (label == nullptr || !GetClassNameW(label, name, 64) || _wcsicmp(name, L"Static") != 0)
        return L"";
    GetWindowTextW(label, name, 64);
    return name;
}

TEST_F(Controls, WindowsLieInTheOrderOfTheDesign) {
    const HWND box = Child(form, L"Edit");
    const HWND later = Child(form, L"msctls_statusbar32");
    std::vector<HWND> behind;
    for (HWND next = box; next != nullptr; next = GetWindow(next, GW_HWNDNEXT))
        behind.push_back(next);
    EXPECT_NE(std::find(behind.begin(), behind.end(), later), behind.end());
}

TEST_F(Controls, ANameStandsRightBeforeItsControlWhereverThatGoes) {
    const HWND list = Child(form, L"ComboBox");
    const HWND box = Child(form, L"ComboBox", 1);
    EXPECT_EQ(LabelBefore(list), L"");
    form.Get<ComboBox>("cboList").SetAccessibleName("Größe & Art");
    form.Get<ComboBox>("cboEdit").SetAccessibleName("Box");
    EXPECT_EQ(LabelBefore(list), L"Größe & Art");
    EXPECT_EQ(LabelBefore(box), L"Box");
    EXPECT_FALSE(IsWindowVisible(GetWindow(list, GW_HWNDPREV)));
    form.Get<ComboBox>("cboList").SetAccessibleName("Größe");
    EXPECT_EQ(LabelBefore(list), L"Größe");
    form.Get<ComboBox>("cboEdit").BringToFront();
    EXPECT_EQ(LabelBefore(box), L"Box");
    form.Get<ComboBox>("cboList").SetContainer(form.Get<PictureBox>("pic"));
    EXPECT_EQ(LabelBefore(list), L"Größe");
    EXPECT_EQ(LabelBefore(box), L"Box");
    form.Get<ComboBox>("cboList").SetContainer(form);
    EXPECT_EQ(LabelBefore(list), L"Größe");
}

TEST_F(Controls, ALabelThatShowsAColourHasItsNameForAText) {
    auto& label = form.Get<Label>("lbl");
    const HWND window = Child(form, L"Static");
    label.SetBackColor(0x00FF8040);
    label.SetAccessibleName("R&D");
    wchar_t text[64] = {};
    GetWindowTextW(window, text, 64);
    EXPECT_STREQ(text, L"R&&D");
    label.SetTextAlignment(Alignment::Right);
    // The text is not drawn.
    label.Refresh();
    RECT inside = {};
    GetClientRect(window, &inside);
    const HDC dc = GetDC(window);
    for (int y = 0; y < inside.bottom; ++y)
        for (int x = 0; x < inside.right; x += 3)
            ASSERT_EQ(GetPixel(dc, x, y), COLORREF{0x00FF8040}) << x << ", " << y;
    ReleaseDC(window, dc);
}

TEST_F(Controls, NeighboursInTwipsAreNeighboursOnTheScreen) {
    auto& bar = form.Get<Frame>("Bar");
    auto& label = form.Get<Label>("lbl");
    const HWND barWindow = ChildrenOf(HandleOf(form), L"Button").front();
    const HWND labelWindow = Child(form, L"Static");
    for (const Twips left : {997.0F, 1004.0F, 1007.5F, 1011.0F}) {
        bar.Move({left, 0, 45, 3000});
        label.Move({left + 45, 0, 1500, 300});
        EXPECT_EQ(InsideParent(barWindow).right, InsideParent(labelWindow).left);
        EXPECT_EQ(bar.Left(), left);
    }
}

TEST_F(Controls, AComboBoxDecidesOnItsHeightOnly) {
    auto& box = form.Get<ComboBox>("cboList");
    EXPECT_EQ(box.Left(), 1501);
    EXPECT_EQ(box.Top(), 402);
    EXPECT_EQ(box.Width(), 2003);
    const Twips before = box.Height();
    EXPECT_LT(before, 600);
    Font large;
    large.size = 20;
    box.SetFont(large);
    EXPECT_GT(box.Height(), before);
}

TEST_F(Controls, AChosenItemIsToldOnceAndCodeTellsNothing) {
    auto& box = form.Get<ComboBox>("cboList");
    for (const char* item : {"one", "two", "three"})
        box.AddItem(item);
    int clicks = 0;
    box.Click.Subscribe([&] { ++clicks; });
    box.SetListIndex(1);
    EXPECT_EQ(clicks, 1) << "from the box itself";
    const HWND window = Child(form, L"ComboBox");
    SendMessageW(window, CB_SETCURSEL, 2, 0);
    SendMessageW(GetParent(window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(window));
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(box.ListIndex(), 2);
}

TEST_F(Controls, ItemsInsertedAboveTheSelectedOneMoveTheSelection) {
    auto& box = form.Get<ComboBox>("cboList");
    box.AddItem("one");
    box.SetListIndex(0);
    box.InsertItem(0, "zero");
    EXPECT_EQ(SendMessageW(Child(form, L"ComboBox"), CB_GETCURSEL, 0, 0), 1);
    box.RemoveItem(1);
    EXPECT_EQ(SendMessageW(Child(form, L"ComboBox"), CB_GETCURSEL, 0, 0), CB_ERR);
}

TEST_F(Controls, TypingIntoAnEditableBoxIsAChange) {
    auto& box = form.Get<ComboBox>("cboEdit");
    box.AddItem("Copy");
    std::vector<std::string> texts;
    box.Change.Subscribe([&] { texts.push_back(box.Text()); });
    const HWND edit = ChildrenOf(Child(form, L"ComboBox", 1), L"Edit").front();
    SendMessageW(edit, WM_CHAR, L'ä', 1);
    SendMessageW(edit, WM_CHAR, L'b', 1);
    EXPECT_EQ(texts, (std::vector<std::string>{"ä", "äb"}));
    box.SetListIndex(0);
    EXPECT_EQ(win32::TextOf(edit), "Copy");
    EXPECT_EQ(texts.size(), 2U);
}

TEST_F(Controls, EnterInAnEditableBoxReachesItsKeyDown) {
    auto& box = form.Get<ComboBox>("cboEdit");
    std::vector<int> keys;
    box.KeyDown.Subscribe([&](int key, Modifiers) { keys.push_back(key); });
    const HWND edit = ChildrenOf(Child(form, L"ComboBox", 1), L"Edit").front();
    PressKey(edit, key::Enter);
    EXPECT_EQ(keys, (std::vector<int>{key::Enter}));
}

TEST_F(Controls, EnterClosesAnOpenListAndDoesNothingElse) {
    auto& box = form.Get<ComboBox>("cboEdit");
    box.AddItem("Copy");
    std::vector<int> keys;
    box.KeyDown.Subscribe([&](int key, Modifiers) { keys.push_back(key); });
    box.SetFocus();
    const HWND window = Child(form, L"ComboBox", 1);
    SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
    PressKey(ChildrenOf(window, L"Edit").front(), key::Enter);
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(SendMessageW(window, CB_GETDROPPEDSTATE, 0, 0), 0);
}

TEST_F(Controls, PressingACheckBoxTurnsItOver) {
    auto& box = form.Get<CheckBox>("chk");
    const HWND window = ChildrenOf(HandleOf(form), L"Button")[1];
    Click(window, 5, 5);
    EXPECT_TRUE(box.Checked());
    EXPECT_EQ(SendMessageW(window, BM_GETCHECK, 0, 0), BST_CHECKED);
    Click(window, 5, 5);
    EXPECT_EQ(SendMessageW(window, BM_GETCHECK, 0, 0), BST_UNCHECKED);
}

TEST_F(Controls, FocusAloneChoosesNoOptionArrowsDo) {
    auto& first = form.Get<OptionButton>("optA");
    auto& second = form.Get<OptionButton>("optB");
    first.SetFocus();
    EXPECT_FALSE(first.Checked());
    first.SetChecked(true);
    ASSERT_TRUE(WaitUntil([&] { return GetFocus() != nullptr; }));
    PressKey(GetFocus(), key::Down);
    EXPECT_TRUE(second.Checked());
    EXPECT_FALSE(first.Checked());
}

TEST_F(Controls, CodeThatSetsATextIsNotTheUser) {
    auto& box = form.Get<TextBox>("txt");
    int changes = 0;
    box.Change.Subscribe([&] { ++changes; });
    box.SetText("äöü ☃");
    EXPECT_EQ(changes, 1);
    HWND edit = nullptr;
    for (const HWND each : ChildrenOf(HandleOf(form), L"Edit")) {
        if (GetParent(each) == HandleOf(form))
            edit = each;  // the others belong to combo boxes
    }
    EXPECT_EQ(win32::TextOf(edit), "äöü ☃");
    SendMessageW(edit, WM_CHAR, L'x', 1);
    EXPECT_EQ(changes, 2);
}

TEST_F(Controls, DraggingReportsTheHeldButtonsAndKeepsTheMouse) {
    auto& bar = form.Get<Frame>("Bar");
    bar.SetBorder(BorderStyle::None);
    std::vector<std::string> events;
    bar.MouseDown.Subscribe(
        [&](int b, Modifiers, Twips, Twips) { events.push_back("down " + std::to_string(b)); });
    bar.MouseMove.Subscribe([&](int b, Modifiers, Twips x, Twips) {
        events.push_back("move " + std::to_string(b) + " " + std::to_string(static_cast<int>(x)));
    });
    bar.MouseUp.Subscribe(
        [&](int b, Modifiers, Twips, Twips) { events.push_back("up " + std::to_string(b)); });
    const HWND window = ChildrenOf(HandleOf(form), L"Button").front();
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 5));
    EXPECT_EQ(GetCapture(), window);
    SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(-20, 5));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(-20, 5));
    EXPECT_EQ(GetCapture(), nullptr);
    const int x = static_cast<int>(-20 * TheToolkit().TwipsPerPixelX());
    EXPECT_EQ(events, (std::vector<std::string>{"down 1", "move 3 " + std::to_string(x), "up 1"}));
}

TEST_F(Controls, ALabelIsClickedWhenTheButtonIsLetGoInside) {
    int clicks = 0;
    form.Get<Label>("lbl").Click.Subscribe([&] { ++clicks; });
    const HWND window = Child(form, L"Static");
    Click(window, 3, 3);
    EXPECT_EQ(clicks, 1);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(-30, 3));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, ColoursAreLookedUpAtEachPaint) {
    auto& label = form.Get<Label>("lbl");
    label.SetForeColor(0x0000FF);
    label.SetBackColor(kWindowBackground);
    const HWND window = Child(form, L"Static");
    const HDC dc = GetDC(window);
    SendMessageW(GetParent(window), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                 reinterpret_cast<LPARAM>(window));
    EXPECT_EQ(GetTextColor(dc), RGB(255, 0, 0));
    EXPECT_EQ(GetBkColor(dc), GetSysColor(COLOR_WINDOW));
    ReleaseDC(window, dc);
}

TEST_F(Controls, TextsAreDrawnInTheReadingOrderOfTheirControl) {
    auto& label = form.Get<Label>("lbl");
    const HWND window = Child(form, L"Static");
    const auto drawnFromTheRight = [&] {
        const HDC dc = GetDC(window);
        SendMessageW(GetParent(window), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                     reinterpret_cast<LPARAM>(window));
        const bool fromTheRight = (GetTextAlign(dc) & TA_RTLREADING) != 0;
        ReleaseDC(window, dc);
        return fromTheRight;
    };
    EXPECT_FALSE(drawnFromTheRight());
    label.SetRightToLeft(true);
    EXPECT_TRUE(drawnFromTheRight());
    label.SetRightToLeft(false);
    EXPECT_FALSE(drawnFromTheRight());
}

TEST_F(Controls, AControlMovedIntoAnotherContainerKeepsItsPlace) {
    auto& label = form.Get<Label>("lbl");
    const HWND window = Child(form, L"Static");
    label.SetContainer(form);
    EXPECT_EQ(GetParent(window), HandleOf(form));
    EXPECT_EQ(label.Left(), 1500);
    EXPECT_EQ(InsideParent(window).left, static_cast<LONG>(1500 / TheToolkit().TwipsPerPixelX()));
}

TEST_F(Controls, StatusPanelsShowTextAndAreClicked) {
    auto& bar = form.Get<StatusBar>("StatusBar1");
    bar.AddPanel(1500);
    bar.AddPanel(0);
    bar.SetPanelText(2, "Zwei  ");
    int clicked = 0;
    bar.PanelClick.Subscribe([&](int number) { clicked = number; });
    const HWND window = Child(form, L"msctls_statusbar32");
    wchar_t text[50] = {};
    SendMessageW(window, SB_GETTEXTW, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_EQ(std::wstring(text), L"Zwei  ");
    bar.SetPanelBevel(2, Bevel::None);
    EXPECT_EQ(HIWORD(SendMessageW(window, SB_GETTEXTLENGTHW, 1, 0)), SBT_NOBORDERS);
    Click(window, 300, 8);
    EXPECT_EQ(clicked, 2);
}

TEST_F(Controls, AStatusPanelShowsAnyTextAsItIs) {
    auto& bar = form.Get<StatusBar>("StatusBar1");
    bar.AddPanel(1500);
    bar.AddPanel(0);
    const HWND window = Child(form, L"msctls_statusbar32");
    for (const auto& [given, shown] : {std::pair("%n%s R&D && %i", L"%n%s R&D && %i"),
                                       std::pair("\t\tat the edge", L"  at the edge")}) {
        bar.SetPanelText(2, given);
        wchar_t text[50] = {};
        SendMessageW(window, SB_GETTEXTW, 1, reinterpret_cast<LPARAM>(text));
        EXPECT_EQ(std::wstring(text), shown);
    }
}

TEST_F(Controls, TabsAreToldWhenTheUserChoosesThem) {
    auto& tabs = form.Get<TabStrip>("tabs");
    tabs.AddTab("1");
    tabs.AddTab("2");
    tabs.SetTabCaption(2, "Zweite");
    const HWND window = Child(form, L"SysTabControl32");
    RECT second = {};
    SendMessageW(window, TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&second));
    Click(window, second.left + 4, second.top + 4);
    EXPECT_EQ(tabs.SelectedTab(), 2);
}

TEST_F(Controls, ToolBarButtonsAreClicked) {
    auto& bar = form.Get<ToolBar>("Toolbar1");
    bar.AddButton("", "apply-filter", true);
    bar.AddButton("", "separator", false);
    bar.AddButton("", "remove-filter", true);
    int clicked = 0;
    bar.ButtonClick.Subscribe([&](int number) { clicked = number; });
    const HWND window = Child(form, L"ToolbarWindow32");
    RECT third = {};
    SendMessageW(window, TB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&third));
    Click(window, third.left + 5, third.top + 5);
    EXPECT_EQ(clicked, 3);
}

// Whether something else than the background is drawn along the upper edge of the window's inside.
bool HasFrame(HWND window) {
    UpdateWindow(window);
    RECT inside = {};
    GetClientRect(window, &inside);
    const HDC dc = GetDC(window);
    const COLORREF background = GetPixel(dc, inside.right / 2, inside.bottom / 2);
    bool found = false;
    for (int x = 0; x < inside.right; ++x)
        found = found || GetPixel(dc, x, 2) != background;
    ReleaseDC(window, dc);
    return found;
}

TEST_F(Controls, ALabelWithTheFocusShowsIt) {
    auto& label = form.Get<Label>("lbl");
    const HWND window = Child(form, L"Static");
    SendMessageW(HandleOf(form), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    for (const Color background : {0x000000, 0x808080, 0xFFFFFF}) {
        label.SetBackColor(background);
        EXPECT_FALSE(HasFrame(window)) << background;
        SetFocus(window);
        EXPECT_TRUE(HasFrame(window)) << background;
        SetFocus(HandleOf(form));
        form.Get<CheckBox>("chk").SetFocus();
        EXPECT_FALSE(HasFrame(window)) << background;
    }
}

TEST_F(Controls, ALabelOfPlainTextDrawsNoMarks) {
    auto& label = form.Get<Label>("lbl");
    const HWND window = Child(form, L"Static");
    EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & SS_NOPREFIX, 0);
    label.SetPlainText(true);
    label.SetCaption("R&D.log");
    label.SetTextAlignment(Alignment::Right);
    EXPECT_NE(GetWindowLongPtrW(window, GWL_STYLE) & SS_NOPREFIX, 0);
    EXPECT_EQ(win32::TextOf(window), "R&D.log");
}

TEST_F(Controls, TheCurrentToolBarButtonIsMarkedWhileTheBarHasTheFocus) {
    auto& bar = form.Get<ToolBar>("Toolbar1");
    bar.BringToFront();  // the picture box was made before it and covers it
    bar.AddButton("", "apply-filter", true);
    bar.AddButton("", "separator", false);
    bar.AddButton("", "remove-filter", true);
    const HWND window = Child(form, L"ToolbarWindow32");
    const auto hot = [&] { return SendMessageW(window, TB_GETHOTITEM, 0, 0); };
    // The number of pixels that a button has of the frame's colour along the frame's upper edge.
    const auto framed = [&](int index) {
        UpdateWindow(window);
        RECT button = {};
        SendMessageW(window, TB_GETITEMRECT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&button));
        const HDC dc = GetDC(window);
        int black = 0;
        for (int x = button.left + 2; x < button.right - 2; ++x)
            black += GetPixel(dc, x, button.top + 2) == RGB(0, 0, 0) ? 1 : 0;
        ReleaseDC(window, dc);
        return black > (button.right - button.left) / 4;
    };
    EXPECT_EQ(hot(), -1);
    EXPECT_FALSE(framed(0));
    bar.SetFocus();
    EXPECT_EQ(hot(), 0);
    EXPECT_TRUE(framed(0));
    PressKey(window, key::Right);
    EXPECT_EQ(hot(), 2);
    EXPECT_FALSE(framed(0));
    EXPECT_TRUE(framed(2));
    form.Get<CheckBox>("chk").SetFocus();
    EXPECT_EQ(hot(), -1);
    EXPECT_FALSE(framed(2));
}

TEST_F(Controls, TheHourglassIsOverEverythingUntilItIsTakenBack) {
    auto& label = form.Get<Label>("lbl");
    label.SetMousePointer(Pointer::Hand);
    const HWND window = Child(form, L"Static");
    const auto over = [&] {
        SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window),
                     MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return GetCursor();
    };
    EXPECT_EQ(over(), win32::CursorFor(Pointer::Hand));
    TheToolkit().SetPointer(Pointer::Hourglass);
    EXPECT_EQ(over(), win32::CursorFor(Pointer::Hourglass));
    TheToolkit().SetPointer(Pointer::Default);
    EXPECT_EQ(over(), win32::CursorFor(Pointer::Hand));
}

}  // namespace
}  // namespace ordalyn::test
