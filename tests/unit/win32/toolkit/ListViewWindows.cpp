#include <map>

#include "TestForm.h"
#include "toolkit/TextColors.h"
#include "win32/drawing/Colors.h"

namespace ordalyn::test {
namespace {

using namespace toolkit;

constexpr ControlDesign kControls[] = {
    {.kind = Kind::ListView, .name = "list", .bounds = {0, 0, 6000, 3000}},
};
constexpr FormDesign kDesign = {"frmTest", "", {6000, 3000}, {}, kControls};

class Numbers : public RowSource {
  public:
    std::string_view Text(std::int32_t tag, int field) const override {
        ++asked;
        if (tag == 1)
            return {"a\0b", 3};
        if (tag == 2)
            return field == 0 ? std::string_view(longText) : std::string_view();
        if (tag == 3 && field == 1)
            return kPath;
        text = "row " + std::to_string(tag);
        return text;
    }
    static constexpr std::string_view kPath =
        "Copy: C:\\Users\\Anna\\Documents\\Some\\More\\Folders\\Plan of the year.odt";
    mutable std::string text;
    mutable int asked = 0;
    std::string longText = std::string(1'000'000, 'x');
};

class Lists : public ::testing::Test {
  protected:
    Lists() {
        list.AddColumn("Time", 1001, 0);
        list.AddColumn("Source", 3003, 1);
        list.ItemClick.Subscribe([this](int row) { clicked.push_back(row); });
        form.Show();
        TheToolkit().DoEvents();
    }
    void Fill(int count) {
        auto tags = std::make_shared<std::vector<std::int32_t>>();
        for (int i = 0; i < count; ++i)
            tags->push_back(i);
        list.Fill(source, tags);
        TheToolkit().DoEvents();
    }
    HWND Window() const { return Child(form, L"SysListView32"); }
    std::wstring Shown(int row, int column) const {
        std::wstring text(2000, L'\0');
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = 260;
        SendMessageW(Window(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
        return item.pszText;
    }
    // What the control is told when it is about to paint the row.
    static constexpr COLORREF kAsBefore = 0x123456;
    NMLVCUSTOMDRAW Drawn(int row) const {
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdr = {Window(), static_cast<UINT_PTR>(GetDlgCtrlID(Window())),
                         static_cast<UINT>(NM_CUSTOMDRAW)};
        draw.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
        draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
        draw.nmcd.uItemState = CDIS_SELECTED;
        draw.clrText = draw.clrTextBk = kAsBefore;
        SendMessageW(GetParent(Window()), WM_NOTIFY, draw.nmcd.hdr.idFrom,
                     reinterpret_cast<LPARAM>(&draw));
        return draw;
    }
    int Selected() const {
        return static_cast<int>(
            SendMessageW(Window(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
    }
    POINT PlaceOf(int row) const {
        RECT rect = {LVIR_LABEL, 0, 0, 0};
        SendMessageW(Window(), LVM_GETITEMRECT, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&rect));
        return {rect.left + 3, (rect.top + rect.bottom) / 2};
    }
    void ClickRow(int row) {
        const POINT at = PlaceOf(row);
        Click(Window(), at.x, at.y);
    }
    Form form{TheToolkit(), kDesign};
    ListView& list = form.Get<ListView>("list");
    std::shared_ptr<Numbers> source = std::make_shared<Numbers>();
    std::vector<int> clicked;
};

TEST_F(Lists, TextsAreAskedForWithBlanksForNulAndCutToWhatFits) {
    Fill(5);
    EXPECT_EQ(Shown(3, 0), L"row 3");
    EXPECT_EQ(Shown(1, 0), L"a b");
    EXPECT_EQ(Shown(2, 0), std::wstring(259, L'x'));
}

TEST_F(Lists, AMillionRowsAskForTheVisibleOnesOnly) {
    source->asked = 0;
    Fill(1'000'000);
    EXPECT_EQ(SendMessageW(Window(), LVM_GETITEMCOUNT, 0, 0), 1'000'000);
    EXPECT_LT(source->asked, 1000);
}

// What the control is given for a cell while it paints.
class PaintedTexts {
  public:
    explicit PaintedTexts(HWND list) {
        SetWindowSubclass(GetParent(list), Watch, 1, reinterpret_cast<DWORD_PTR>(this));
        RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        RemoveWindowSubclass(GetParent(list), Watch, 1);
    }
    std::wstring At(int row, int column) const {
        const auto found = texts_.find({row, column});
        return found == texts_.end() ? L"not asked for" : found->second;
    }

  private:
    static LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR self) {
        const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
        if (message == WM_NOTIFY) {
            const auto& asked = *reinterpret_cast<const NMLVDISPINFOW*>(lParam);
            if (asked.hdr.code == static_cast<UINT>(LVN_GETDISPINFOW) &&
                (asked.item.mask & LVIF_TEXT) != 0)
                reinterpret_cast<PaintedTexts*>(self)
                    ->texts_[{asked.item.iItem, asked.item.iSubItem}] = asked.item.pszText;
        }
        return answer;
    }
    std::map<std::pair<int, int>, std::wstring> texts_;
};

TEST_F(Lists, APathThatDoesNotFitIsPaintedWithItsNameAndAskedForWhole) {
    Fill(5);
    const std::wstring whole(Numbers::kPath.begin(), Numbers::kPath.end());
    const std::wstring painted = PaintedTexts(Window()).At(3, 1);
    EXPECT_TRUE(painted.starts_with(L"Copy: C:\\U")) << "the beginning";
    EXPECT_TRUE(painted.ends_with(L"\x2026\\Plan of the year.odt")) << "the name, whole";
    EXPECT_EQ(PaintedTexts(Window()).At(4, 1), L"row 4") << "what fits is left as it is";
    EXPECT_EQ(Shown(3, 1), whole) << "for whoever reads the rows";
    list.SetColumnWidth(1, 15000);
    EXPECT_EQ(PaintedTexts(Window()).At(3, 1), whole);
}

TEST_F(Lists, ATextIsPaintedWholeInAColumnOfTheWidthForIt) {
    Fill(5);
    for (const double size : {8.0, 9.5, 14.0, 23.0}) {
        Font font = list.Font();
        font.size = static_cast<float>(size);
        list.SetFont(font);
        list.SetColumnWidth(1, list.WidthFor(Numbers::kPath));
        EXPECT_EQ(PaintedTexts(Window()).At(3, 1),
                  std::wstring(Numbers::kPath.begin(), Numbers::kPath.end()))
            << size;
        list.SetColumnWidth(1, list.WidthFor(Numbers::kPath) - 60);
        EXPECT_NE(PaintedTexts(Window()).At(3, 1),
                  std::wstring(Numbers::kPath.begin(), Numbers::kPath.end()))
            << size;
    }
}

TEST_F(Lists, OnlyACutCellHasATipWithItsWholeText) {
    Fill(5);
    const auto moveTo = [&](int row, int column) {
        RECT cell = {LVIR_BOUNDS, column, 0, 0};
        SendMessageW(Window(), LVM_GETSUBITEMRECT, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&cell));
        SendMessageW(Window(), WM_MOUSEMOVE, 0,
                     MAKELPARAM(cell.left + 5, (cell.top + cell.bottom) / 2));
    };
    const auto tip = [&]() -> std::wstring {
        HWND window = nullptr;
        while ((window = FindWindowExW(nullptr, window, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
            wchar_t text[500] = L"";
            TTTOOLINFOW tool = {};
            tool.cbSize = sizeof tool;
            tool.hwnd = Window();
            tool.uId = 1;
            tool.lpszText = text;
            if (GetWindow(window, GW_OWNER) != GetParent(Window()) ||
                SendMessageW(window, TTM_GETTOOLCOUNT, 0, 0) == 0)
                continue;
            SendMessageW(window, TTM_GETTEXTW, 500, reinterpret_cast<LPARAM>(&tool));
            return text;
        }
        return L"";
    };
    const std::wstring whole(Numbers::kPath.begin(), Numbers::kPath.end());
    moveTo(4, 1);
    EXPECT_EQ(tip(), L"");
    moveTo(3, 1);
    EXPECT_EQ(tip(), whole);
    moveTo(4, 1);
    EXPECT_EQ(tip(), L"") << "gone with the cell";
    moveTo(3, 1);
    SendMessageW(Window(), WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(tip(), L"") << "other rows may have come there";
    list.SetColumnWidth(1, 15000);
    moveTo(3, 1);
    EXPECT_EQ(tip(), whole) << "its end is beyond the edge of the list";
}

TEST_F(Lists, ClickedRowsAreToldOnceEachTime) {
    Fill(10);
    ClickRow(3);
    EXPECT_EQ(clicked, (std::vector<int>{3}));
    ClickRow(3);
    EXPECT_EQ(clicked, (std::vector<int>{3, 3}));
    ClickRow(4);
    EXPECT_EQ(clicked, (std::vector<int>{3, 3, 4}));
    EXPECT_EQ(list.SelectedRow(), 4);
    EXPECT_EQ(Selected(), 4);
}

TEST_F(Lists, ArrowKeysSelectAndAreTold) {
    Fill(3);
    ClickRow(0);
    clicked.clear();
    PressKey(Window(), key::Down);
    PressKey(Window(), key::Down);
    EXPECT_EQ(clicked, (std::vector<int>{1, 2}));
    PressKey(Window(), key::Down);
    EXPECT_EQ(Selected(), 2) << "at the end it stays where it is";
    EXPECT_EQ(list.SelectedRow(), 2);
}

TEST_F(Lists, AClickBesideTheRowsSelectsNone) {
    Fill(2);
    ClickRow(1);
    RECT inside = {};
    GetClientRect(Window(), &inside);
    Click(Window(), inside.right - 5, inside.bottom - 5);
    EXPECT_EQ(Selected(), -1);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(clicked, (std::vector<int>{1}));
}

TEST_F(Lists, SelectingByCodeShowsItAndTellsNothing) {
    Fill(10);
    list.SelectRow(7);
    EXPECT_EQ(Selected(), 7);
    list.SelectRow(2);
    EXPECT_EQ(Selected(), 2);
    EXPECT_EQ(SendMessageW(Window(), LVM_GETSELECTEDCOUNT, 0, 0), 1);
    list.SelectRow(-1);
    EXPECT_EQ(Selected(), -1);
    EXPECT_TRUE(clicked.empty());
}

TEST_F(Lists, NewRowsAreShownFromTheTopWithNothingSelected) {
    Fill(1000);
    list.SelectRow(900);
    list.EnsureVisible(900);
    EXPECT_GT(SendMessageW(Window(), LVM_GETTOPINDEX, 0, 0), 0);
    Fill(1000);
    EXPECT_EQ(SendMessageW(Window(), LVM_GETTOPINDEX, 0, 0), 0);
    EXPECT_EQ(Selected(), -1);
}

TEST_F(Lists, FewerRowsDropASelectionBehindTheirEnd) {
    Fill(10);
    list.SelectRow(9);
    list.ReplaceRows(std::make_shared<const std::vector<std::int32_t>>(3, 5), -1);
    EXPECT_EQ(Selected(), -1);
    EXPECT_EQ(SendMessageW(Window(), LVM_GETITEMCOUNT, 0, 0), 3);
}

TEST_F(Lists, WidthsAreAnsweredAsSetUntilTheUserDragsThem) {
    EXPECT_EQ(list.ColumnWidth(0), 1001);
    SendMessageW(Window(), LVM_SETCOLUMNWIDTH, 0, 150);
    EXPECT_EQ(list.ColumnWidth(0), static_cast<Twips>(150 * TheToolkit().TwipsPerPixelX()));
    EXPECT_EQ(list.ColumnWidth(1), 3003);
}

TEST_F(Lists, ColumnsChangeTheirPlaces) {
    list.AddColumn("Target", 500, 1);
    list.SetColumnPosition(2, 0);
    EXPECT_EQ(list.ColumnPosition(2), 0);
    EXPECT_EQ(list.ColumnPosition(0), 1);
    EXPECT_EQ(list.ColumnPosition(1), 2);
    form.Unload();
    EXPECT_EQ(list.ColumnPosition(2), 0) << "kept when the window has gone";
    EXPECT_EQ(list.ColumnWidth(2), 500);
}

TEST_F(Lists, FlatHeadersCannotBePushed) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(Window(), LVM_GETHEADER, 0, 0));
    ASSERT_NE(GetWindowLongW(header, GWL_STYLE) & HDS_BUTTONS, 0);
    list.FlattenColumnHeaders();
    EXPECT_EQ(GetWindowLongW(header, GWL_STYLE) & HDS_BUTTONS, 0);
    list.FlattenColumnHeaders();
    EXPECT_EQ(GetWindowLongW(header, GWL_STYLE) & HDS_BUTTONS, 0) << "once more changes nothing";
}

TEST_F(Lists, AListHiddenWhileItIsFilledStaysOnTheScreenWithTheFocus) {
    Fill(3);
    list.SetFocus();
    list.SetVisible(false);
    EXPECT_TRUE(IsWindowVisible(Window()));
    list.SetVisible(true);
    TheToolkit().DoEvents();
    EXPECT_TRUE(IsWindowVisible(Window()));
    EXPECT_EQ(GetFocus(), Window());
    list.SetVisible(false);
    TheToolkit().DoEvents();
    EXPECT_FALSE(IsWindowVisible(Window()));
}

TEST_F(Lists, MarkedRowsHaveTheirColourUnlessSelectedOrWithHighContrast) {
    class Odd : public Numbers {
        bool IsMarked(std::int32_t tag) const override { return tag % 2 == 1; }
    };
    auto tags = std::make_shared<std::vector<std::int32_t>>(std::vector<std::int32_t>{4, 5, 7, 9});
    list.Fill(std::make_shared<Odd>(), tags);
    list.SetMultiSelect(true);
    list.SetBackColor(0xFFFFFF);
    const auto colour = [&](int row) { return Drawn(row).clrText; };
    EXPECT_EQ(colour(0), kAsBefore);
    EXPECT_EQ(colour(1), 0x0000A0U);
    list.SetMarkColor(0x00FF00);
    EXPECT_EQ(colour(1), 0x00FF00U);
    list.SetMarkColor(kReadableRed);
    list.SetBackColor(0x000000);
    EXPECT_GT(colour(1) & 0xFF, 0xA0U) << "lighter on a dark background";
    // The control paints the one that it knows; the others look as it does.
    list.SetBackColor(0xFFFFFF);
    list.SelectRows(RowRanges(1, 3), 1);
    EXPECT_EQ(colour(1), kAsBefore);
    EXPECT_EQ(colour(2), GetSysColor(GetFocus() == Window() ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT));
    EXPECT_NE(colour(3), kAsBefore);
    win32::HighContrastQuestion* const before = win32::HighContrastIsOn();
    win32::HighContrastIsOn() = [] { return true; };
    EXPECT_EQ(colour(3), kAsBefore);
    win32::HighContrastIsOn() = before;
}

TEST_F(Lists, WhatIsSelectedInADarkListIsNoLightBarWhileTheFocusIsElsewhere) {
    constexpr Color kDark = 0x202020, kBright = 0xE0E0E0;
    auto tags = std::make_shared<std::vector<std::int32_t>>(std::vector<std::int32_t>{4, 5, 7, 9});
    list.Fill(std::make_shared<Numbers>(), tags);
    list.SetMultiSelect(true);
    list.SetForeColor(kBright);
    list.SetBackColor(kDark);
    list.SelectRows(RowRanges(1, 3), 1);
    SetFocus(nullptr);
    for (const int row : {1, 2}) {
        const NMLVCUSTOMDRAW draw = Drawn(row);
        EXPECT_EQ(draw.clrTextBk, static_cast<COLORREF>(ShadeOfSelection({kBright, kDark}))) << row;
        EXPECT_EQ(draw.clrText, static_cast<COLORREF>(kBright)) << row;
        EXPECT_EQ(draw.nmcd.uItemState & CDIS_SELECTED, 0U) << row;
    }
    // Around the focus, and on a light background, it is as the system has it.
    list.SetFocus();
    EXPECT_EQ(Drawn(1).clrTextBk, kAsBefore);
    EXPECT_EQ(Drawn(2).clrTextBk, GetSysColor(COLOR_HIGHLIGHT));
    SetFocus(nullptr);
    list.SetBackColor(0xFFFFFF);
    EXPECT_EQ(Drawn(1).clrTextBk, kAsBefore);
    EXPECT_EQ(Drawn(2).clrTextBk, GetSysColor(COLOR_BTNFACE));
}

TEST_F(Lists, BordersAndColoursFollowTheSettings) {
    const auto has = [&](int which, LONG bit) {
        return (GetWindowLongW(Window(), which) & bit) != 0;
    };
    list.SetBorder(BorderStyle::FixedSingle);
    list.SetLook(Appearance::ThreeDimensional);
    EXPECT_TRUE(has(GWL_EXSTYLE, WS_EX_CLIENTEDGE));
    list.SetLook(Appearance::Flat);
    EXPECT_TRUE(has(GWL_STYLE, WS_BORDER));
    EXPECT_FALSE(has(GWL_EXSTYLE, WS_EX_CLIENTEDGE));
    list.SetBorder(BorderStyle::None);
    EXPECT_FALSE(has(GWL_STYLE, WS_BORDER));
    list.SetForeColor(0x123456);
    EXPECT_EQ(SendMessageW(Window(), LVM_GETTEXTCOLOR, 0, 0), 0x123456);
    list.SetBackColor(kButtonFace);
    EXPECT_EQ(static_cast<DWORD>(SendMessageW(Window(), LVM_GETBKCOLOR, 0, 0)),
              GetSysColor(COLOR_BTNFACE));
}

}  // namespace
}  // namespace ordalyn::test
