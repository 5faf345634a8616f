// Forms on screens of different resolutions, of which the tests make up what the system would say.
#include <memory>

#include "TestForm.h"
#include "toolkit/ToolBarPictures.h"
#include "win32/common/Resolution.h"
#include "win32/common/SystemLibraries.h"
#include "win32/forms/FormWindow.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::PictureBox, .name = "pic", .bounds = {15, 600, 7000, 3000}},
    {.kind = Kind::Frame, .name = "Bar", .bounds = {0, 1501, 7000, 45}, .container = "pic"},
    {.kind = Kind::ListView, .name = "lst", .bounds = {0, 0, 7000, 1500}, .container = "pic"},
    {.kind = Kind::ComboBox, .name = "cboList", .bounds = {1, 2, 2003, 999}},
    {.kind = Kind::ComboBox, .name = "cboEdit", .bounds = {2500, 2, 2000, 0}, .editable = true},
    {.kind = Kind::CommandButton, .name = "cmd", .bounds = {4800, 2, 1201, 375}},
    {.kind = Kind::ToolBar, .name = "Toolbar1", .bounds = {6100, 2, 1200, 400}},
    {.kind = Kind::StatusBar, .name = "StatusBar1"},
};
constexpr FormDesign kDesign = {
    "frmTest", "", {7500, 4500}, {.resizable = true, .maximiseBox = true}, kControls};
constexpr FormDesign kDialog = {"frmDialog", "", {3000, 1500}, {}, {}};

RECT OnScreen(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return rect;
}

LONG WidthOf(const RECT& rect) {
    return rect.right - rect.left;
}

LONG HeightOf(const RECT& rect) {
    return rect.bottom - rect.top;
}

HWND WindowOf(const Control& control) {
    return dynamic_cast<const win32::Window&>(control.peer()).handle();
}

int Ask(HWND window, UINT message, WPARAM wParam = 0) {
    return static_cast<int>(SendMessageW(window, message, wParam, 0));
}

void ChangeResolution(HWND window, int dpi, const RECT& proposed) {
    SendMessageW(window, win32::kResolutionChanged, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&proposed));
}

// As the system does: in the same place, as much larger as the resolution is higher.
void ComeToScreen(const Form& form, int dpi) {
    const int before = dynamic_cast<win32::FormWindow&>(form.peer()).scale().DpiX();
    RECT rect = OnScreen(HandleOf(form));
    rect.right = rect.left + MulDiv(WidthOf(rect), dpi, before);
    rect.bottom = rect.top + MulDiv(HeightOf(rect), dpi, before);
    ChangeResolution(HandleOf(form), dpi, rect);
    TheToolkit().DoEvents();
}

std::vector<LONG> EverythingIn(const Form& form) {
    std::vector<LONG> numbers;
    for (const auto& control : form.Controls()) {
        const RECT rect = OnScreen(WindowOf(*control));
        numbers.insert(numbers.end(), {rect.left, rect.top, rect.right, rect.bottom});
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(WindowOf(*control), WM_GETFONT, 0, 0)),
                   sizeof font, &font);
        numbers.push_back(font.lfHeight);
    }
    const HWND list = WindowOf(form.Get<ListView>("lst"));
    for (WPARAM column : {0U, 1U})
        numbers.push_back(Ask(list, LVM_GETCOLUMNWIDTH, column));
    numbers.push_back(Ask(list, LVM_GETTOPINDEX));
    return numbers;
}

class Resolutions : public ::testing::Test {
  protected:
    Resolutions() {
        form.Get<ComboBox>("cboList").AddItems({"one", "two"});
        auto& list = form.Get<ListView>("lst");
        list.AddColumn("Time", 901, 0);
        list.AddColumn("Source", 3000, 1);
        auto& bar = form.Get<StatusBar>("StatusBar1");
        bar.AddPanel(2000);
        bar.AddPanel(0);
        form.Get<ToolBar>("Toolbar1").AddButton("", kApplyFilterImage, false);
        form.Move({150, 150, 8000, 6000});
        form.Show();
        TheToolkit().DoEvents();
    }
    Form form{TheToolkit(), kDesign};
};

TEST_F(Resolutions, EverythingOnAFormGrowsWithTheResolution) {
    auto& list = form.Get<ListView>("lst");
    // The user has made a column wider.
    SendMessageW(WindowOf(list), LVM_SETCOLUMNWIDTH, 1, 123);
    const std::vector<LONG> before = EverythingIn(form);
    const Rect bounds = form.Bounds();
    for (const int dpi : {144, 192}) {
        ComeToScreen(form, dpi);
        const double times = dpi / 96.0;
        EXPECT_EQ(form.Bounds(), bounds);
        const std::vector<LONG> now = EverythingIn(form);
        for (const char* name : {"pic", "Bar", "lst", "cmd", "Toolbar1"}) {
            const auto& control = form.Get<Control>(name);
            const RECT rect = OnScreen(WindowOf(control));
            EXPECT_NEAR(WidthOf(rect), control.Width() / 15 * times, 1) << name;
            EXPECT_NEAR(HeightOf(rect), control.Height() / 15 * times, 1) << name;
        }
        for (std::size_t font = 4; font < form.Controls().size() * 5; font += 5)
            EXPECT_NEAR(now[font], before[font] * times, 1);
        EXPECT_NEAR(Ask(WindowOf(list), LVM_GETCOLUMNWIDTH), 901.0 / 15 * times, 1);
        EXPECT_NEAR(Ask(WindowOf(list), LVM_GETCOLUMNWIDTH, 1), 123 * times, 1);
        EXPECT_EQ(list.ColumnWidth(0), 901);
        EXPECT_EQ(list.ColumnWidth(1), 123 * 15);
        int edge = 0;
        SendMessageW(WindowOf(form.Get<Control>("StatusBar1")), SB_GETPARTS, 1,
                     reinterpret_cast<LPARAM>(&edge));
        EXPECT_NEAR(edge, 2000.0 / 15 * times, 1);
    }
    ComeToScreen(form, 96);
    EXPECT_EQ(EverythingIn(form), before);
    EXPECT_EQ(form.Bounds(), bounds);
    EXPECT_EQ(list.ColumnWidth(1), 123 * 15);
}

TEST_F(Resolutions, WhatDecidesOnItsOwnHeightReportsTheNewOne) {
    const auto& closed = form.Get<ComboBox>("cboList");
    const auto& editable = form.Get<ComboBox>("cboEdit");
    const auto& bar = form.Get<StatusBar>("StatusBar1");
    const int row = Ask(WindowOf(closed), CB_GETITEMHEIGHT);
    for (const int dpi : {192, 144, 96}) {
        ComeToScreen(form, dpi);
        for (const Control* control :
             {static_cast<const Control*>(&closed), static_cast<const Control*>(&editable),
              static_cast<const Control*>(&bar)})
            EXPECT_NEAR(control->Height(), HeightOf(OnScreen(WindowOf(*control))) * 1440.0 / dpi,
                        0.1);
        EXPECT_NEAR(Ask(WindowOf(closed), CB_GETITEMHEIGHT), row * dpi / 96.0, 2);
        EXPECT_NEAR(bar.Top() + bar.Height(), form.ClientSize().height, 0.1);
    }
}

TEST_F(Resolutions, TheFormIsLaidOutAgain) {
    int resized = 0;
    form.Resize.Subscribe([&] { ++resized; });
    ComeToScreen(form, 144);
    EXPECT_EQ(resized, 1);
}

TEST_F(Resolutions, ToolBarPicturesAreDrawnInTheirNewSize) {
    const HWND bar = WindowOf(form.Get<Control>("Toolbar1"));
    const auto size = [&] {
        int width = 0;
        int height = 0;
        const auto list = reinterpret_cast<HIMAGELIST>(SendMessageW(bar, TB_GETIMAGELIST, 0, 0));
        ImageList_GetIconSize(list, &width, &height);
        EXPECT_EQ(width, height);
        EXPECT_EQ(ImageList_GetImageCount(list), 1);
        return width;
    };
    const auto button = [&] { return LOWORD(Ask(bar, TB_GETBUTTONSIZE)); };
    const int before = button();
    EXPECT_EQ(size(), 16);
    ComeToScreen(form, 192);
    EXPECT_EQ(size(), 32);
    EXPECT_EQ(button() - before, 16);
    ComeToScreen(form, 96);
    EXPECT_EQ(size(), 16);
    EXPECT_EQ(button(), before);
}

TEST_F(Resolutions, AListStillBeginsWithTheSameRow) {
    auto& list = form.Get<ListView>("lst");
    struct Rows : RowSource {
        std::string_view Text(std::int32_t, int) const override { return "text"; }
    };
    list.Fill(std::make_shared<Rows>(),
              std::make_shared<const std::vector<std::int32_t>>(std::size_t{500}));
    list.EnsureVisible(200);
    const auto top = [&] { return Ask(WindowOf(list), LVM_GETTOPINDEX); };
    const int before = top();
    ASSERT_GT(before, 100);
    for (const int dpi : {144, 192, 96}) {
        ComeToScreen(form, dpi);
        EXPECT_EQ(top(), before);
    }
}

TEST_F(Resolutions, IconsHaveTheSizeThatTheSystemHasThere) {
    const auto width = [&](WPARAM which) {
        ICONINFO parts = {};
        BITMAP bitmap = {};
        const auto icon =
            reinterpret_cast<HICON>(SendMessageW(HandleOf(form), WM_GETICON, which, 0));
        EXPECT_NE(GetIconInfo(icon, &parts), 0);
        GetObjectW(parts.hbmColor, sizeof bitmap, &bitmap);
        DeleteObject(parts.hbmColor);
        DeleteObject(parts.hbmMask);
        return static_cast<int>(bitmap.bmWidth);
    };
    for (const int dpi : {144, 192, 96}) {
        ComeToScreen(form, dpi);
        EXPECT_EQ(width(ICON_BIG), win32::MetricAt(SM_CXICON, dpi));
        EXPECT_EQ(width(ICON_SMALL), win32::MetricAt(SM_CXSMICON, dpi));
    }
    EXPECT_EQ(win32::MetricAt(SM_CXICON, 192), 2 * win32::MetricAt(SM_CXICON, 96));
}

TEST_F(Resolutions, TheLeastSizeGrows) {
    const auto least = [&] {
        MINMAXINFO limits = {};
        SendMessageW(HandleOf(form), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
        return limits.ptMinTrackSize.x;
    };
    EXPECT_EQ(least(), 320);
    ComeToScreen(form, 192);
    EXPECT_EQ(least(), 640);
}

TEST_F(Resolutions, TheMouseIsReportedInTwipsOfTheScreen) {
    Twips x = 0;
    form.Get<Frame>("Bar").MouseMove.Subscribe(
        [&](int, Modifiers, float left, float) { x = left; });
    SendMessageW(WindowOf(form.Get<Control>("Bar")), WM_MOUSEMOVE, 0, MAKELPARAM(100, 1));
    EXPECT_EQ(x, 1500);
    ComeToScreen(form, 192);
    SendMessageW(WindowOf(form.Get<Control>("Bar")), WM_MOUSEMOVE, 0, MAKELPARAM(200, 1));
    EXPECT_EQ(x, 1500);
}

TEST_F(Resolutions, AMinimisedFormComesBackInItsSizeAndIsLaidOutThen) {
    form.SetState(WindowState::Minimised);
    TheToolkit().DoEvents();
    int resized = 0;
    form.Resize.Subscribe([&] { ++resized; });
    ChangeResolution(HandleOf(form), 144, {0, 0, 100, 50});
    EXPECT_EQ(resized, 0);
    form.SetState(WindowState::Normal);
    TheToolkit().DoEvents();
    EXPECT_EQ(resized, 1);
    EXPECT_EQ(form.Width(), 8000);
    EXPECT_NEAR(WidthOf(OnScreen(HandleOf(form))), 800, 1);
}

TEST_F(Resolutions, ADialogOpensAtTheResolutionOfTheFormInFront) {
    ComeToScreen(form, 144);
    SetForegroundWindow(HandleOf(form));
    TheToolkit().DoEvents();
    Form dialog(TheToolkit(), kDialog);
    dialog.CentreOnScreen();
    RECT inside = {};
    GetClientRect(HandleOf(dialog), &inside);
    EXPECT_EQ(inside.right, 300);
    EXPECT_EQ(inside.bottom, 150);
    EXPECT_EQ(dialog.ClientSize(), (Size{3000, 1500}));
    dialog.SetClientHeight(3000);
    GetClientRect(HandleOf(dialog), &inside);
    EXPECT_EQ(inside.bottom, 300);
    // In the middle of the screen, whose pixels are larger than those of the form's twips.
    const RECT there = OnScreen(HandleOf(dialog));
    dialog.CentreOnScreen();
    RECT screen = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    const RECT centred = OnScreen(HandleOf(dialog));
    EXPECT_NEAR(centred.left + centred.right, screen.left + screen.right, 3);
    EXPECT_NEAR(centred.top + centred.bottom, screen.top + screen.bottom, 3);
    EXPECT_EQ(HeightOf(centred), HeightOf(there));
}

// Screens of 96 DPI to the left of 600 pixels, and of 192 DPI from there on.
win32::Win32Toolkit& TwoScreens() {
    static win32::Win32Toolkit toolkit(
        GetModuleHandleW(nullptr), win32::Scale(96, 96), [](const RECT& place) {
            return place.left < 600 ? win32::Scale(96, 96) : win32::Scale(192, 192);
        });
    return toolkit;
}

TEST(TwoScreens, AFormIsAsLargeOnBoth) {
    Form form(TwoScreens(), kDesign);
    for (const bool second : {false, true, false}) {
        const Rect bounds = {second ? 9000.0F : 1500.0F, 300, 4500, 3001};
        form.Move(bounds);
        EXPECT_EQ(form.Bounds(), bounds);
        const RECT rect = OnScreen(HandleOf(form));
        EXPECT_NEAR(rect.left, bounds.left / 15, 1);
        EXPECT_NEAR(WidthOf(rect), second ? 600 : 300, 1);
        EXPECT_EQ(TwoScreens().ScreenTwips(bounds), second ? 2 : 1);
        EXPECT_NEAR(WidthOf(OnScreen(WindowOf(form.Get<Control>("cmd")))), second ? 160 : 80, 1);
    }
}

// As Windows does when a window comes to another screen: inside the call that moves it.
LRESULT CALLBACK TellOfScreen(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                              DWORD_PTR) {
    const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_WINDOWPOSCHANGED) {
        RemoveWindowSubclass(window, TellOfScreen, id);
        RECT rect = OnScreen(window);
        rect.right += WidthOf(rect);
        rect.bottom += HeightOf(rect);
        ChangeResolution(window, 192, rect);
    }
    return answer;
}

TEST(TwoScreens, ASizeThatCodeHasChosenIsNotChangedOnceMore) {
    for (const bool foreseen : {true, false}) {
        Form form(foreseen ? TwoScreens() : TheToolkit(), kDialog);
        form.Move({1500, 300, 4500, 3000});
        SetWindowSubclass(HandleOf(form), TellOfScreen, 77, 0);
        form.Move({9000, 300, 4500, 3000});
        EXPECT_EQ(form.Bounds(), (Rect{9000, 300, 4500, 3000}));
        EXPECT_NEAR(WidthOf(OnScreen(HandleOf(form))), 600, 1);
    }
}

// In its manifest, which the tests have, too.
TEST(TwoScreens, TheProgramSaysThatItDrawsForEachOfThem) {
    using Context = HANDLE WINAPI();
    using Awareness = int WINAPI(HANDLE);
    const win32::Library library = win32::LoadSystemLibrary(L"user32.dll");
    auto* const context = win32::FunctionOf<Context>(library, "GetThreadDpiAwarenessContext");
    auto* const awareness =
        win32::FunctionOf<Awareness>(library, "GetAwarenessFromDpiAwarenessContext");
    ASSERT_NE(context, nullptr);
    ASSERT_NE(awareness, nullptr);
    constexpr int kForEachMonitor = 2;
    EXPECT_EQ(awareness(context()), kForEachMonitor);
}

}  // namespace
}  // namespace ordalyn::test
