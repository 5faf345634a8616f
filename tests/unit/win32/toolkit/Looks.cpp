// What a user sees: pixels of the controls, the styles that the system draws by, new system
// colours.
#include <map>
#include <utility>

#include "TestForm.h"
#include "win32/controls/Window.h"
#include "win32/drawing/Colors.h"
// after windows.h
#include <uxtheme.h>

#ifdef _WIN64
extern "C" decltype(&GetSysColor) importedGetSysColor __asm__("__imp_GetSysColor");
#else
extern "C" decltype(&GetSysColor) importedGetSysColor __asm__("__imp__GetSysColor@4");
#endif

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::CommandButton, .name = "cmd", .bounds = {0, 0, 1200, 375}},
    {.kind = Kind::ComboBox, .name = "cboList", .bounds = {0, 450, 2400, 315}},
    {.kind = Kind::ComboBox, .name = "cboEdit", .bounds = {0, 900, 2400, 315}, .editable = true},
    {.kind = Kind::Label, .name = "lbl", .bounds = {0, 1350, 1200, 300}},
    {.kind = Kind::Frame, .name = "fra", .bounds = {1500, 1350, 1200, 600}},
    {.kind = Kind::CheckBox, .name = "chk", .bounds = {0, 2100, 1200, 300}},
    {.kind = Kind::OptionButton, .name = "opt", .bounds = {1500, 2100, 1200, 300}},
    {.kind = Kind::PictureBox, .name = "pic", .bounds = {3000, 0, 1200, 600}},
    {.kind = Kind::ListView, .name = "lvw", .bounds = {3000, 900, 2400, 1500}},
};
constexpr MenuDesign kMenus[] = {
    {0, "mnuFile", "&File"},   {1, "mnuOpen", "&Open..."}, {1, "mnuLine", "-"},
    {1, "mnuMore", "&More"},   {2, "mnuLess", "&Less"},    {0, "mnuHelp", "&Help"},
    {1, "mnuAbout", "&About"},
};
constexpr FormDesign kDesign = {"frmLooks", "", {6000, 3000}, {}, kControls, kMenus};

HWND WindowOf(const Control& control) {
    return dynamic_cast<win32::Window&>(control.peer()).handle();
}

// What is on the screen of a window.
class Picture {
  public:
    explicit Picture(const Control& control) {
        const HWND window = WindowOf(control);
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        RECT inside = {};
        GetClientRect(window, &inside);
        width = inside.right;
        height = inside.bottom;
        const HDC dc = GetDC(window);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                pixels.push_back(GetPixel(dc, x, y));
        }
        ReleaseDC(window, dc);
    }
    COLORREF At(int x, int y) const {
        return pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                         static_cast<std::size_t>(x));
    }
    bool Has(COLORREF color) const {
        return std::find(pixels.begin(), pixels.end(), color) != pixels.end();
    }
    int width = 0, height = 0;
    std::vector<COLORREF> pixels;
};

class Looks : public ::testing::Test {
  protected:
    Looks() {
        form.Show();
        TheToolkit().DoEvents();
        // No caret and no focus mark in the boxes.
        form.Get<CommandButton>("cmd").SetFocus();
        TheToolkit().DoEvents();
    }
    ComboBox& Box(bool editable) { return form.Get<ComboBox>(editable ? "cboEdit" : "cboList"); }

    Form form{TheToolkit(), kDesign};
};

// Frame and inner edge in one colour each, the button without light and shadow.
void ExpectFlat(const ComboBox& box, COLORREF back) {
    const Picture seen(box);
    const COLORREF frame = GetSysColor(COLOR_WINDOWFRAME);
    for (int x = 0; x < seen.width; ++x) {
        ASSERT_EQ(seen.At(x, 0), frame) << x;
        ASSERT_EQ(seen.At(x, seen.height - 1), frame) << x;
    }
    for (int y = 1; y < seen.height - 1; ++y) {
        ASSERT_EQ(seen.At(0, y), frame) << y;
        ASSERT_EQ(seen.At(seen.width - 1, y), frame) << y;
        ASSERT_EQ(seen.At(1, y), back) << y;
    }
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    ASSERT_TRUE(GetComboBoxInfo(WindowOf(box), &parts));
    const COLORREF arrow = GetSysColor(box.Enabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
    int arrowPixels = 0;
    for (LONG y = std::max(parts.rcButton.top, 1L);
         y < std::min<LONG>(parts.rcButton.bottom, seen.height - 1); ++y) {
        for (LONG x = parts.rcButton.left; x < std::min<LONG>(parts.rcButton.right, seen.width - 1);
             ++x) {
            const COLORREF pixel = seen.At(x, y);
            ASSERT_TRUE(pixel == arrow || pixel == GetSysColor(COLOR_BTNFACE)) << x << " " << y;
            arrowPixels += pixel == arrow ? 1 : 0;
        }
    }
    EXPECT_GE(arrowPixels, 10);
}

TEST_F(Looks, AFlatComboBoxHasAPlainFrameAndButtonWithAndWithoutATheme) {
    for (const bool editable : {false, true}) {
        ComboBox& box = Box(editable);
        box.SetBackColor(0x00102030);
        for (const wchar_t* theme : {static_cast<const wchar_t*>(nullptr), L""}) {
            SetWindowTheme(WindowOf(box), theme, theme);
            const Picture deep(box);
            box.SetLook(Appearance::Flat);
            ExpectFlat(box, 0x00102030);
            box.SetEnabled(false);
            ExpectFlat(box, 0x00102030);
            box.SetEnabled(true);
            EXPECT_NE(Picture(box).pixels, deep.pixels);
            box.SetLook(Appearance::ThreeDimensional);
            EXPECT_EQ(Picture(box).pixels, deep.pixels) << "the system's own look again";
        }
    }
}

TEST_F(Looks, AFlatComboBoxShowsItsTextInTheColoursThatWereChosen) {
    ComboBox& box = Box(false);
    Font plain;
    plain.size = 20;  // letters with pixels that are not smoothed
    box.SetFont(plain);
    box.AddItem("HHHH");
    box.SetListIndex(0);
    box.SetForeColor(0x00FFFFFF);
    box.SetBackColor(0x00000000);
    box.SetLook(Appearance::Flat);
    const Picture seen(box);
    EXPECT_TRUE(seen.Has(0x00FFFFFF));
    EXPECT_TRUE(seen.Has(0x00000000));
    box.SetFocus();
    TheToolkit().DoEvents();
    EXPECT_TRUE(Picture(box).Has(GetSysColor(COLOR_HIGHLIGHT)));
}

TEST_F(Looks, TheTextOfAFlatComboBoxStandsWhereTheOthersDoes) {
    ComboBox& box = Box(false);
    box.AddItem("HHHH");
    box.SetListIndex(0);
    box.SetForeColor(0x000000FF);
    const auto firstRed = [&box] {
        const Picture seen(box);
        for (int x = 0; x < seen.width; ++x) {
            for (int y = 0; y < seen.height; ++y) {
                if (seen.At(x, y) == 0x000000FF)
                    return std::pair(x, y);
            }
        }
        return std::pair(-1, -1);
    };
    const auto deep = firstRed();
    EXPECT_GE(deep.first, 0);
    box.SetLook(Appearance::Flat);
    EXPECT_EQ(firstRed(), deep);
}

// Every item of the menu and of what opens from it, by the bits of its type.
void CollectTypes(HMENU menu, std::vector<UINT>& types) {
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        MENUITEMINFOW info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_SUBMENU;
        GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info);
        types.push_back(info.fType);
        if (info.hSubMenu != nullptr)
            CollectTypes(info.hSubMenu, types);
    }
}

TEST_F(Looks, MenusRunFromTheRightAsLongAsTheirFormDoes) {
    const auto types = [this] {
        TheToolkit().DoEvents();
        std::vector<UINT> found;
        CollectTypes(GetMenu(WindowOf(form)), found);
        return found;
    };
    const std::size_t all = std::size(kMenus);
    const auto count = [](const std::vector<UINT>& found, UINT bit) {
        return static_cast<std::size_t>(std::count_if(
            found.begin(), found.end(), [bit](UINT type) { return (type & bit) != 0; }));
    };
    EXPECT_EQ(types().size(), all);
    EXPECT_EQ(count(types(), MFT_RIGHTORDER | MFT_RIGHTJUSTIFY), 0U);
    form.SetRightToLeft(true);
    EXPECT_EQ(count(types(), MFT_RIGHTORDER), all);
    EXPECT_EQ(count(types(), MFT_RIGHTJUSTIFY), 1U);
    EXPECT_NE(types().front() & MFT_RIGHTJUSTIFY, 0U);
    // A text that changes keeps it.
    form.Menu("mnuOpen").SetCaption("Other");
    form.Menu("mnuHelp").SetEnabled(false);
    EXPECT_EQ(count(types(), MFT_RIGHTORDER), all);
    form.SetRightToLeft(false);
    EXPECT_EQ(count(types(), MFT_RIGHTORDER | MFT_RIGHTJUSTIFY), 0U);
}

TEST_F(Looks, ReadingOrderAndAlignmentAreStylesOfTheWindows) {
    const auto style = [](const Control& control, int which) {
        return static_cast<DWORD>(GetWindowLongPtrW(WindowOf(control), which));
    };
    auto& label = form.Get<Label>("lbl");
    auto& frame = form.Get<Frame>("fra");
    auto& check = form.Get<CheckBox>("chk");
    auto& option = form.Get<OptionButton>("opt");
    auto& button = form.Get<CommandButton>("cmd");
    const std::vector<Control*> all{&label, &frame, &check, &option, &button};
    for (const bool right : {true, false}) {
        for (Control* control : all) {
            control->SetRightToLeft(right);
            control->SetTextAlignment(right ? Alignment::Right : Alignment::Left);
            EXPECT_EQ((style(*control, GWL_EXSTYLE) & WS_EX_RTLREADING) != 0, right)
                << control->Name();
        }
        EXPECT_EQ(style(label, GWL_STYLE) & SS_TYPEMASK, DWORD(right ? SS_RIGHT : SS_LEFT));
        EXPECT_EQ(style(frame, GWL_STYLE) & BS_CENTER, DWORD(right ? BS_RIGHT : 0));
        for (const Control* toggle : std::initializer_list<Control*>{&check, &option}) {
            EXPECT_EQ(style(*toggle, GWL_STYLE) & (BS_CENTER | BS_LEFTTEXT),
                      DWORD(right ? BS_RIGHT | BS_LEFTTEXT : 0))
                << toggle->Name();
        }
    }
}

TEST_F(Looks, BordersAndColoursAreThoseOfTheWindows) {
    auto& list = form.Get<ListView>("lvw");
    const auto styles = [&list] {
        return std::pair((GetWindowLongPtrW(WindowOf(list), GWL_STYLE) & WS_BORDER) != 0,
                         (GetWindowLongPtrW(WindowOf(list), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0);
    };
    list.SetBorder(BorderStyle::FixedSingle);
    list.SetLook(Appearance::ThreeDimensional);
    EXPECT_EQ(styles(), std::pair(false, true));
    list.SetLook(Appearance::Flat);
    EXPECT_EQ(styles(), std::pair(true, false));
    list.SetBorder(BorderStyle::None);
    EXPECT_EQ(styles(), std::pair(false, false));
    list.SetForeColor(0x00112233);
    list.SetBackColor(0x00445566);
    EXPECT_EQ(SendMessageW(WindowOf(list), LVM_GETTEXTCOLOR, 0, 0), 0x00112233);
    EXPECT_EQ(SendMessageW(WindowOf(list), LVM_GETBKCOLOR, 0, 0), 0x00445566);
    for (const char* name : {"lbl", "fra", "chk", "opt", "pic"}) {
        const auto found = std::find_if(form.Controls().begin(), form.Controls().end(),
                                        [name](const auto& c) { return c->Name() == name; });
        (*found)->SetForeColor(0x00112233);
        (*found)->SetBackColor(0x00445566);
        EXPECT_TRUE(Picture(**found).Has(0x00445566)) << name;
    }
}

TEST_F(Looks, TheInsideOfATabIsTheThemesOrTheDialogs) {
    auto& page = form.Get<PictureBox>("pic");
    page.SetBackColor(kTabInterior);
    const DWORD before = GetThemeAppProperties();
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const COLORREF dialog = GetSysColor(COLOR_BTNFACE);
    ASSERT_NE(window, dialog);
    SetThemeAppProperties(before | STAP_ALLOW_CONTROLS);
    EXPECT_EQ(Picture(page).At(3, 3), IsThemeActive() ? window : dialog);
    SetThemeAppProperties(before & ~DWORD{STAP_ALLOW_CONTROLS});
    EXPECT_EQ(Picture(page).At(3, 3), dialog);
    SetThemeAppProperties(before);
}

// What this program is told when it asks for a system colour, for as long as the object lives. The
// desktop keeps its colours: other programs are on it.
class SystemColors {
  public:
    explicit SystemColors(std::map<int, COLORREF> colors) {
        told_ = std::move(colors);
        Answer(Told);
    }
    ~SystemColors() { Answer(before_); }
    SystemColors(const SystemColors&) = delete;
    SystemColors& operator=(const SystemColors&) = delete;

    // As the system tells it to the windows on a desktop.
    static void Announce(const Form& form) {
        SendMessageW(WindowOf(form), WM_SYSCOLORCHANGE, 0, 0);
        TheToolkit().DoEvents();
    }

  private:
    static DWORD WINAPI Told(int index) {
        const auto found = told_.find(index);
        return found != told_.end() ? found->second : before_(index);
    }
    // Where the linker put the address that calls of GetSysColor go to.
    static void Answer(decltype(&GetSysColor) function) {
        DWORD protection = 0;
        VirtualProtect(&importedGetSysColor, sizeof(importedGetSysColor), PAGE_READWRITE,
                       &protection);
        importedGetSysColor = function;
        VirtualProtect(&importedGetSysColor, sizeof(importedGetSysColor), protection, &protection);
    }
    static inline std::map<int, COLORREF> told_;
    static inline const auto before_ = importedGetSysColor;
};

// The pixel without drawing anything by hand.
COLORREF OnScreen(const Control& control, int x, int y) {
    const HWND window = WindowOf(control);
    const HDC dc = GetDC(window);
    const COLORREF pixel = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return pixel;
}

TEST_F(Looks, NewSystemColoursAreShownAtOnce) {
    auto& list = form.Get<ListView>("lvw");
    auto& label = form.Get<Label>("lbl");
    list.SetBackColor(kWindowBackground);
    label.SetBackColor(kWindowBackground);
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    TheToolkit().DoEvents();
    constexpr COLORREF kPink = 0x00AA66EE;
    constexpr COLORREF kGreen = 0x0033BB44;
    {
        const SystemColors other({{COLOR_WINDOW, kPink}, {COLOR_BTNFACE, kGreen}});
        SystemColors::Announce(form);
        EXPECT_EQ(OnScreen(list, 20, 60), kPink);
        EXPECT_EQ(OnScreen(label, 2, 2), kPink);
        EXPECT_EQ(OnScreen(form, 380, 190), kGreen);
    }
    SystemColors::Announce(form);
    EXPECT_EQ(OnScreen(list, 20, 60), window);
    EXPECT_EQ(OnScreen(label, 2, 2), window);
    EXPECT_EQ(OnScreen(form, 380, 190), face);
}

TEST_F(Looks, AnOpenListIsNoWiderThanItsScreenHasRoomFor) {
    ComboBox& box = Box(false);
    box.AddItem(std::string(2000, 'W'));
    const HWND window = WindowOf(box);
    SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
    const LRESULT width = SendMessageW(window, CB_GETDROPPEDWIDTH, 0, 0);
    SendMessageW(window, CB_SHOWDROPDOWN, FALSE, 0);
    RECT place = {};
    GetWindowRect(window, &place);
    MONITORINFO screen = {};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &screen);
    EXPECT_EQ(place.left + width, screen.rcWork.right);
}

// As if the person had chosen high contrast, for as long as it lives. The desktop stays as it is.
class HighContrast {
  public:
    HighContrast() { win32::HighContrastIsOn() = Yes; }
    ~HighContrast() { win32::HighContrastIsOn() = before_; }
    HighContrast(const HighContrast&) = delete;
    HighContrast& operator=(const HighContrast&) = delete;

  private:
    static bool Yes() { return true; }
    win32::HighContrastQuestion* before_ = win32::HighContrastIsOn();
};

struct ColorsOfRows {
    COLORREF text, background, behindText;
};

ColorsOfRows RowsOf(const Control& list) {
    const auto ask = [window = WindowOf(list)](UINT what) {
        return static_cast<COLORREF>(SendMessageW(window, what, 0, 0));
    };
    return {ask(LVM_GETTEXTCOLOR), ask(LVM_GETBKCOLOR), ask(LVM_GETTEXTBKCOLOR)};
}

constexpr Color kRed = 0x000000FF, kBlue = 0x00C80000;

TEST_F(Looks, AColourChosenAloneGivesWayToTheSystemsWithHighContrast) {
    auto& list = form.Get<ListView>("lvw");
    list.SetForeColor(kRed);
    EXPECT_EQ(RowsOf(list).text, COLORREF{kRed});
    Box(false).SetBackColor(kBlue);
    EXPECT_TRUE(Picture(Box(false)).Has(COLORREF{kBlue}));
    Box(true).SetBackColor(kBlue);
    {
        const HighContrast chosen;
        SendMessageW(HandleOf(form), WM_SYSCOLORCHANGE, 0, 0);
        EXPECT_EQ(RowsOf(list).text, GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(RowsOf(list).background, GetSysColor(COLOR_WINDOW));
        EXPECT_EQ(RowsOf(list).behindText, GetSysColor(COLOR_WINDOW));
        EXPECT_FALSE(Picture(Box(false)).Has(COLORREF{kBlue}));
        EXPECT_FALSE(Picture(Box(true)).Has(COLORREF{kBlue}));
    }
    SendMessageW(HandleOf(form), WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(RowsOf(list).text, COLORREF{kRed});
    EXPECT_TRUE(Picture(Box(false)).Has(COLORREF{kBlue}));
}

TEST_F(Looks, ColoursChosenTogetherStayWithHighContrast) {
    const HighContrast chosen;
    auto& list = form.Get<ListView>("lvw");
    for (Control* control : {static_cast<Control*>(&list), static_cast<Control*>(&Box(false))}) {
        control->SetForeColor(0x00FFFFFF);
        control->SetBackColor(kBlue);
    }
    // Each of them alone was not one of a pair yet; the second makes it one.
    EXPECT_EQ(RowsOf(list).text, COLORREF{0x00FFFFFF});
    EXPECT_EQ(RowsOf(list).background, COLORREF{kBlue});
    EXPECT_TRUE(Picture(Box(false)).Has(COLORREF{kBlue}));
}

TEST_F(Looks, TextsOnDialogsAreThoseOfButtonsWithHighContrast) {
    const Label& label = form.Get<Label>("lbl");
    form.Get<Label>("lbl").SetForeColor(SystemColor(COLOR_HIGHLIGHT));
    const HDC dc = GetDC(WindowOf(label));
    const auto textColor = [&] {
        SendMessageW(HandleOf(form), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                     reinterpret_cast<LPARAM>(WindowOf(label)));
        return GetTextColor(dc);
    };
    EXPECT_EQ(textColor(), GetSysColor(COLOR_HIGHLIGHT));
    {
        const HighContrast chosen;
        EXPECT_EQ(textColor(), GetSysColor(COLOR_BTNTEXT));
    }
    ReleaseDC(WindowOf(label), dc);
}

TEST_F(Looks, ALabelThatShowsAColourShowsItWithHighContrastToo) {
    const HighContrast chosen;
    auto& label = form.Get<Label>("lbl");
    label.SetAccessibleName("Background");
    label.SetBackColor(kBlue);
    EXPECT_TRUE(Picture(label).Has(COLORREF{kBlue}));
}

}  // namespace
}  // namespace ordalyn::test
