// Texts that the title bar and the status bar have no room for.
#include "TestForm.h"
#include "win32/common/Resolution.h"
#include "win32/controls/TextMeasure.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::StatusBar, .name = "sbrStatus", .bounds = {0, 3000, 6000, 300}},
};
constexpr FormStyle kStyle = {.resizable = true, .minimiseBox = true, .maximiseBox = true};
constexpr FormDesign kDesign = {"frmTest", "", {6000, 3000}, kStyle, kControls};
constexpr std::string_view kWords = "Ordalyn 1.00 RC 1 - ";
constexpr std::string_view kPath =
    "C:\\Users\\Anna\\Documents\\Some\\More\\Folders\\That are far away\\totalcmd.log";

// The orders to paint another text that a window has got.
int textsSet = 0;
LRESULT CALLBACK Count(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                       DWORD_PTR) {
    textsSet += message == WM_SETTEXT || message == SB_SETTEXTW ? 1 : 0;
    return DefSubclassProc(window, message, wParam, lParam);
}

// What a window says of its caption.
std::vector<std::string> captionsGiven;
LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                        DWORD_PTR) {
    const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
    if (message == WM_GETTEXT)
        captionsGiven.push_back(win32::FromWide(reinterpret_cast<const wchar_t*>(lParam)));
    return answer;
}

class ShortTexts : public ::testing::Test {
  protected:
    ShortTexts() {
        form.Show();
        TheToolkit().DoEvents();
    }
    HWND Window() const { return HandleOf(form); }
    // As it is on the screen; others are told `Told`.
    std::string Title() const {
        wchar_t text[500] = {};
        InternalGetWindowText(Window(), text, 500);
        return win32::FromWide(text);
    }
    std::string Told() const {
        wchar_t text[500] = {};
        EXPECT_EQ(GetWindowTextW(Window(), text, 500), GetWindowTextLengthW(Window()));
        return win32::FromWide(text);
    }
    void BeWide(int pixels) {
        SetWindowPos(Window(), nullptr, 0, 0, pixels, 300, SWP_NOMOVE | SWP_NOZORDER);
        TheToolkit().DoEvents();
    }
    Form form{TheToolkit(), kDesign};
    const std::string whole = std::string(kWords).append(kPath);
};

TEST_F(ShortTexts, TheCaptionKeepsItsWordsAndTheFileNameWhenTheWindowIsNarrow) {
    BeWide(1200);
    form.SetCaptionWithPath(kWords, kPath);
    EXPECT_EQ(Title(), whole);
    for (const int width : {500, 450, 400}) {
        BeWide(width);
        const std::string shown = Title();
        EXPECT_LT(shown.size(), whole.size()) << width;
        EXPECT_EQ(shown.substr(0, kWords.size()), kWords);
        EXPECT_NE(shown.find("\u2026\\totalcmd.log"), std::string::npos) << shown;
        EXPECT_EQ(Told(), whole);
        EXPECT_EQ(form.Caption(), whole);
    }
    // Less room, fewer letters; a new text is fitted at once.
    form.SetCaptionWithPath(kWords, "C:\\a.log");
    EXPECT_EQ(Title(), std::string(kWords) + "C:\\a.log");
    form.SetCaptionWithPath(kWords, kPath);
    const std::string narrow = Title();
    BeWide(600);
    EXPECT_GT(Title().size(), narrow.size());
    BeWide(1200);
    EXPECT_EQ(Title(), whole);
}

TEST_F(ShortTexts, TheCaptionEndsInFrontOfTheButtons) {
    form.SetCaptionWithPath(kWords, kPath);
    BeWide(460);
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const win32::FontHandle font(CreateFontIndirectW(&metrics.lfCaptionFont));
    const win32::TextMeasure measure(nullptr, font.Get());
    const int icon = GetSystemMetrics(SM_CXSMICON), buttons = 3 * GetSystemMetrics(SM_CXSIZE);
    const int room = 460 - 2 * GetSystemMetrics(SM_CXFRAME) - icon - buttons;
    EXPECT_LE(measure.WidthOf(Title()), room);
    // And not long before: no letter more would fit.
    EXPECT_GT(measure.WidthOf(Title()), room - 50);
}

TEST_F(ShortTexts, TheCaptionIsPaintedAnewOnlyWhenItIsAnother) {
    form.SetCaptionWithPath(kWords, kPath);
    BeWide(1200);
    SetWindowSubclass(Window(), Count, 1, 0);
    textsSet = 0;
    for (int width = 1190; width > 1100; width -= 10)
        BeWide(width);
    EXPECT_EQ(textsSet, 0);
    BeWide(500);
    EXPECT_EQ(textsSet, 1);
    BeWide(500);
    EXPECT_EQ(textsSet, 1);
    RemoveWindowSubclass(Window(), Count, 1);
}

// Windows knows the text that it paints, Wine asks for it.
TEST_F(ShortTexts, TheFrameIsPaintedWithTheCaptionThatFits) {
    form.SetCaptionWithPath(kWords, kPath);
    BeWide(500);
    captionsGiven.clear();
    SetWindowSubclass(Window(), Listen, 1, 0);
    RedrawWindow(Window(), nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    SendMessageW(Window(), WM_NCACTIVATE, FALSE, 0);
    SendMessageW(Window(), WM_NCACTIVATE, TRUE, 0);
    for (const std::string& given : captionsGiven)
        EXPECT_EQ(given, Title());
    captionsGiven.clear();
    EXPECT_EQ(Told(), whole);
    EXPECT_EQ(captionsGiven, std::vector<std::string>{whole});
    RemoveWindowSubclass(Window(), Listen, 1);
}

TEST_F(ShortTexts, TheCaptionFollowsTheResolution) {
    form.SetCaptionWithPath(kWords, kPath);
    BeWide(900);
    ASSERT_EQ(Title(), whole);
    RECT place = {};
    GetWindowRect(Window(), &place);
    // As wide as before, in letters that are twice as large.
    SendMessageW(Window(), win32::kResolutionChanged, MAKEWPARAM(192, 192),
                 reinterpret_cast<LPARAM>(&place));
    EXPECT_LT(Title().size(), whole.size());
    EXPECT_EQ(Told(), whole);
}

TEST_F(ShortTexts, AnyOtherCaptionIsLeftToTheSystem) {
    form.SetCaption(kPath);
    BeWide(330);
    EXPECT_EQ(Title(), kPath);
    EXPECT_EQ(Told(), kPath);
}

class StatusTexts : public ShortTexts {
  protected:
    StatusTexts() {
        for (const Twips width : {1500.0F, 1500.0F, 0.0F})
            bar.AddPanel(width);
        BeWide(500);
    }
    HWND Bar() const { return Child(form, L"msctls_statusbar32"); }
    // On the screen, in parts from 0.
    std::string Shown(int part) const {
        wchar_t text[500] = {};
        DefSubclassProcOf(part, text);
        return win32::FromWide(text);
    }
    std::string Asked(int part) const {
        wchar_t text[500] = {};
        const auto index = static_cast<WPARAM>(part);
        SendMessageW(Bar(), SB_GETTEXTW, index, reinterpret_cast<LPARAM>(text));
        EXPECT_EQ(LOWORD(SendMessageW(Bar(), SB_GETTEXTLENGTHW, index, 0)), wcslen(text));
        return win32::FromWide(text);
    }
    // The tool tip over a part; empty: none.
    std::string Tip(int part) const {
        RECT place = {};
        SendMessageW(Bar(), SB_GETRECT, static_cast<WPARAM>(part),
                     reinterpret_cast<LPARAM>(&place));
        SendMessageW(Bar(), WM_MOUSEMOVE, 0, MAKELPARAM(place.left + 5, place.top + 5));
        for (HWND tip = FindWindowExW(nullptr, nullptr, TOOLTIPS_CLASSW, nullptr); tip != nullptr;
             tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) {
            wchar_t text[500] = {};
            TTTOOLINFOW tool = {};
            tool.cbSize = sizeof tool;
            tool.hwnd = Bar();
            tool.uId = 1;
            tool.lpszText = text;
            if (GetWindow(tip, GW_OWNER) == Window() &&
                SendMessageW(tip, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)) != 0) {
                SendMessageW(tip, TTM_GETTEXTW, 500, reinterpret_cast<LPARAM>(&tool));
                return win32::FromWide(text);
            }
        }
        return {};
    }
    StatusBar& bar = form.Get<StatusBar>("sbrStatus");

  private:
    // What the system's own window has, below the program's.
    void DefSubclassProcOf(int part, wchar_t* text) const {
        last_ = {part, text};
        SetWindowSubclass(Bar(), Below, 2, reinterpret_cast<DWORD_PTR>(this));
        SendMessageW(Bar(), WM_NULL, 0, 0);
        RemoveWindowSubclass(Bar(), Below, 2);
    }
    static LRESULT CALLBACK Below(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR object) {
        const auto& test = *reinterpret_cast<const StatusTexts*>(object);
        if (message == WM_NULL) {
            const auto system = reinterpret_cast<WNDPROC>(GetClassLongPtrW(window, GCLP_WNDPROC));
            CallWindowProcW(system, window, SB_GETTEXTW, static_cast<WPARAM>(test.last_.first),
                            reinterpret_cast<LPARAM>(test.last_.second));
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }
    mutable std::pair<int, wchar_t*> last_ = {};
};

TEST_F(StatusTexts, ThatDoNotFitHaveDotsAndTheWholeTextAsToolTip) {
    bar.SetPanelText(1, "73 Operation(s)  ");
    bar.SetPanelText(2, "a Friday in a month that has a long name  ");
    bar.SetPanelText(3,
                     "Filter: C:\\Users\\Anna\\Documents\\More\\Folders\\Plan of the year.odt  ");
    EXPECT_EQ(Shown(0), "73 Operation(s)  ");
    EXPECT_EQ(Shown(1).substr(0, 6), "a Frid");
    EXPECT_EQ(Shown(1).substr(Shown(1).size() - 3), "\u2026");
    EXPECT_EQ(Shown(2).substr(0, 10), "Filter: C:");
    EXPECT_NE(Shown(2).find("\u2026\\Plan of the year.odt"), std::string::npos) << Shown(2);
    for (const int part : {0, 1, 2})
        EXPECT_EQ(Asked(part), bar.PanelText(part + 1)) << part;
    EXPECT_EQ(Tip(0), "");
    EXPECT_EQ(Tip(1), bar.PanelText(2));
    EXPECT_EQ(Tip(2), bar.PanelText(3));
    EXPECT_EQ(Tip(0), "");
    // The last part follows the window, the others keep their width.
    BeWide(1200);
    EXPECT_EQ(Shown(2), bar.PanelText(3));
    EXPECT_EQ(Tip(2), "");
    EXPECT_NE(Shown(1), bar.PanelText(2));
    bar.SetPanelText(2, "15.03.2024  ");
    EXPECT_EQ(Shown(1), "15.03.2024  ");
    EXPECT_EQ(Tip(1), "");
}

TEST_F(StatusTexts, ArePaintedAnewOnlyWhenTheyAreOthers) {
    bar.SetPanelText(2, "a Friday in a month that has a long name  ");
    SetWindowSubclass(Bar(), Count, 1, 0);
    textsSet = 0;
    for (int width = 500; width > 400; width -= 10)
        BeWide(width);
    bar.SetPanelText(2, "a Friday in a month that has a long name  ");
    EXPECT_EQ(textsSet, 0);
    bar.SetPanelText(1, "1 Operation(s)  ");
    EXPECT_EQ(textsSet, 1);
    bar.SetPanelBevel(1, Bevel::None);
    EXPECT_EQ(textsSet, 2);
    RemoveWindowSubclass(Bar(), Count, 1);
}

TEST_F(StatusTexts, EndInFrontOfTheCornerThatIsDragged) {
    RECT part = {};
    SendMessageW(Bar(), SB_GETRECT, 2, reinterpret_cast<LPARAM>(&part));
    RECT inside = {};
    GetClientRect(Bar(), &inside);
    const LONG right = std::min(part.right, inside.right - GetSystemMetrics(SM_CXVSCROLL));
    std::string text = "i";
    for (bar.SetPanelText(3, text); Shown(2) == text && text.size() < 500;
         bar.SetPanelText(3, text))
        text += "i";
    text.pop_back();
    const int width = win32::TextMeasure(Bar()).WidthOf(text);
    EXPECT_LE(width, right - part.left);
    EXPECT_GT(width, right - part.left - 16);
}

TEST_F(StatusTexts, AreMeasuredInTheFontOfTheBar) {
    bar.SetPanelText(1, "73 Operation(s)  ");
    ASSERT_EQ(Shown(0), "73 Operation(s)  ");
    bar.SetFont({.name = "Tahoma", .size = 20});
    EXPECT_NE(Shown(0), "73 Operation(s)  ");
    bar.SetFont({.name = "Tahoma", .size = 8});
    EXPECT_EQ(Shown(0), "73 Operation(s)  ");
}

}  // namespace
}  // namespace ordalyn::test
