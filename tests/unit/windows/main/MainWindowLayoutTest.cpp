#include "windows/main/MainWindowLayout.h"

#include <gmock/gmock.h>

#include "base/Errors.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"
#include "support/toolkit/MemoryToolkit.h"
#include "windows/panels/EntryRows.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Kind;
using toolkit::Rect;

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::ComboBox, .name = "cboDate", .bounds = {15, 30, 3000, 315}},
    {.kind = Kind::PictureBox, .name = "picSpliterContainer", .bounds = {0, 400, 9000, 5000}},
    {.kind = Kind::ListView, .name = "SourceListView", .container = "picSpliterContainer"},
    {.kind = Kind::Frame, .name = "Frame1", .container = "picSpliterContainer"},
    {.kind = Kind::ListView, .name = "TargetListView", .container = "picSpliterContainer"},
    {.kind = Kind::StatusBar, .name = "StatusBar1"},
};
constexpr toolkit::MenuDesign kMenus[] = {{0, "mnuView", "141"},
                                          {1, "mnuViewStatusBar", "143"},
                                          {1, "mnuViewTwoPanels", "4021"},
                                          {1, "mnuViewVerticalPanels", "145"}};
constexpr toolkit::FormDesign kDesign = {.name = "frmTest",
                                         .tag = "",
                                         .clientSize = {10000, 8000},
                                         .style = {},
                                         .controls = kControls,
                                         .menus = kMenus};

class Rows : public toolkit::RowSource {
  public:
    std::string_view Text(std::int32_t tag, int field) const override {
        static constexpr std::string_view kTexts[2][3] = {{"10:00", "Copy a", "b"},
                                                          {"10:01", "Move c", "d"}};
        return kTexts[tag][field];
    }
};

class Layout : public testing::Test {
  protected:
    Layout() {
        system.files.AddFolder("C:\\Ordalyn");
        layout.RowMoved.Subscribe([this](int row) { selected.push_back(row); });
        settings.TwoPanels = 1;
        settings.StatusBarVisible = 1;
        settings.VSplitPosition = 4000;
        settings.HSplitPosition = 2000;
        source.AddColumn("Time", 900, EntryRows::kTime);
        source.AddColumn("Source", 5000, EntryRows::kOperation);
        target.AddColumn("Target", 4000, EntryRows::kTarget);
    }
    void SinglePanel() {
        settings.TwoPanels = 0;
        source.AddColumn("Target", 4000, EntryRows::kTarget);
    }
    void FillSource() {
        source.Fill(std::make_shared<Rows>(), std::make_shared<const std::vector<std::int32_t>>(
                                                  std::vector<std::int32_t>{0, 1}));
    }
    void FillBoth() {
        FillSource();
        target.Fill(source.Source(), source.RowTags());
    }
    std::string Stored(const char* key) {
        return profile.ReadValue("Ordalyn", key, "(absent)", common.SettingsFile()).value_or("");
    }

    MemoryToolkit tools;
    test::MemoryPlatform system;
    mAppCommon common{system.services};
    cProfile profile{system.services, common};
    mAppSpecific settings{profile, common};
    toolkit::Form form{tools, kDesign};
    toolkit::ComboBox& cboDate = form.Get<toolkit::ComboBox>("cboDate");
    toolkit::PictureBox& container = form.Get<toolkit::PictureBox>("picSpliterContainer");
    toolkit::Frame& bar = form.Get<toolkit::Frame>("Frame1");
    toolkit::ListView& source = form.Get<toolkit::ListView>("SourceListView");
    toolkit::ListView& target = form.Get<toolkit::ListView>("TargetListView");
    toolkit::StatusBar& StatusBar1 = form.Get<toolkit::StatusBar>("StatusBar1");
    toolkit::MenuItem& mnuViewStatusBar = form.Menu("mnuViewStatusBar");
    toolkit::MenuItem& mnuViewTwoPanels = form.Menu("mnuViewTwoPanels");
    toolkit::MenuItem& mnuViewVerticalPanels = form.Menu("mnuViewVerticalPanels");
    std::vector<int> selected;
    MainWindowLayout layout{{form, cboDate, container, bar, source, target, StatusBar1,
                             mnuViewStatusBar, mnuViewTwoPanels, mnuViewVerticalPanels},
                            settings,
                            {15, 12},
                            [] { return std::string("Target"); }};
    cSplitter& splitter = layout.Splitter();
    // Inside of the window below the combo boxes, above the status bar.
    toolkit::Twips Inside() const {
        return form.ClientSize().height - 315 - 4 * 12 - StatusBar1.Height();
    }
};

TEST_F(Layout, StartsStackedAsTheSettingsSay) {
    layout.ArrangeFirstTime();
    EXPECT_EQ(settings.VerticalPanels, 0);
    EXPECT_FALSE(mnuViewVerticalPanels.Checked());
    EXPECT_TRUE(mnuViewVerticalPanels.Enabled());
    EXPECT_TRUE(mnuViewTwoPanels.Checked());
    EXPECT_TRUE(mnuViewStatusBar.Checked());
    EXPECT_EQ(bar.Top(), 2000);
    EXPECT_EQ(bar.Height(), 45);  // three pixels by the horizontal factor, also when it lies
    EXPECT_EQ(source.Height(), 2000);
    EXPECT_EQ(target.Top(), 2045);
}

TEST_F(Layout, StartsSideBySideAsTheSettingsSay) {
    settings.VerticalPanels = 1;
    layout.ArrangeFirstTime();
    EXPECT_EQ(settings.VerticalPanels, 1);
    EXPECT_TRUE(mnuViewVerticalPanels.Checked());
    EXPECT_EQ(bar.Left(), 4000);
    EXPECT_EQ(source.Width(), 4000);
}

TEST_F(Layout, FillsTheWindowBelowTheCombos) {
    layout.ArrangeFirstTime();
    EXPECT_EQ(container.Left(), 15);
    EXPECT_EQ(container.Top(), 315 + 4 * 12);
    EXPECT_EQ(container.Height(), Inside());
    // To one pixel before the right edge of the inside.
    EXPECT_EQ(container.Width(), form.ClientSize().width - 2 * 15);
}

TEST_F(Layout, CountsTheCombosInWholeTwips) {
    toolkit::Font font = cboDate.Font();
    font.size += 0.01;
    cboDate.SetFont(font);
    ASSERT_GT(cboDate.Height(), 315);
    ASSERT_LT(cboDate.Height(), 315.5F);
    layout.ArrangeFirstTime();
    EXPECT_EQ(container.Top(), 315 + 4 * 12);
    EXPECT_EQ(container.Height(), Inside());
}

TEST_F(Layout, FollowsTheWindowsSize) {
    layout.ArrangeFirstTime();
    tools.ResizeByUser(form, {0, 0, 6000, 5000});
    layout.WindowResized();
    EXPECT_EQ(container.Height(), Inside());
    EXPECT_EQ(container.Width(), form.ClientSize().width - 30);
    EXPECT_EQ(target.Width(), form.ClientSize().width - 30);
}

TEST_F(Layout, AWindowTooSmallLeavesWhatCannotBePlaced) {
    layout.ArrangeFirstTime();
    tools.ResizeByUser(form, {0, 0, 100, 100});
    const Rect before = container.Bounds();
    layout.WindowResized();
    EXPECT_EQ(container.Height(), before.height);
    EXPECT_EQ(container.Width(), before.width);
}

TEST_F(Layout, ASinglePanelLiesDirectlyOnTheWindow) {
    SinglePanel();
    layout.ArrangeFirstTime();
    EXPECT_FALSE(container.Visible());
    EXPECT_EQ(source.Container(), &form);
    EXPECT_EQ(source.Bounds(), (Rect{15, 315 + 4 * 12, form.ClientSize().width - 30, Inside()}));
    EXPECT_FALSE(mnuViewVerticalPanels.Enabled());
    EXPECT_FALSE(mnuViewTwoPanels.Checked());
}

TEST_F(Layout, ASinglePanelTakesTheWidthOfAWindowThatIsTooLow) {
    SinglePanel();
    layout.ArrangeFirstTime();
    const toolkit::Twips before = source.Height();
    tools.ResizeByUser(form, {0, 0, 6000, 100});
    layout.WindowResized();
    EXPECT_EQ(source.Height(), before);
    EXPECT_EQ(source.Width(), form.ClientSize().width - 30);
}

TEST_F(Layout, HidingTheStatusBarEnlargesThePanelsAtOnce) {
    layout.ArrangeFirstTime();
    const toolkit::Twips before = container.Height();
    layout.ToggleStatusBar();
    EXPECT_FALSE(StatusBar1.Visible());
    EXPECT_FALSE(mnuViewStatusBar.Checked());
    EXPECT_EQ(settings.StatusBarVisible, 0);
    EXPECT_EQ(container.Height(), before + StatusBar1.Height());
    layout.ToggleStatusBar();
    EXPECT_TRUE(mnuViewStatusBar.Checked());
    EXPECT_EQ(settings.StatusBarVisible, 1);
    EXPECT_EQ(container.Height(), before);
}

// Whatever is not 0 is on, and one click turns it off.
TEST_F(Layout, EverySettingButZeroIsOn) {
    settings.StatusBarVisible = 5;
    settings.VerticalPanels = -1;
    settings.TwoPanels = 2;
    layout.ArrangeFirstTime();
    EXPECT_TRUE(StatusBar1.Visible());
    EXPECT_TRUE(mnuViewStatusBar.Checked());
    EXPECT_TRUE(mnuViewVerticalPanels.Checked());
    EXPECT_TRUE(mnuViewTwoPanels.Checked());
    layout.ToggleStatusBar();
    EXPECT_FALSE(StatusBar1.Visible());
    EXPECT_FALSE(mnuViewStatusBar.Checked());
    EXPECT_EQ(settings.StatusBarVisible, 0);
    layout.ToggleVerticalPanels();
    EXPECT_FALSE(mnuViewVerticalPanels.Checked());
    EXPECT_EQ(settings.VerticalPanels, 0);
    layout.ToggleTwoPanels();
    EXPECT_FALSE(mnuViewTwoPanels.Checked());
    EXPECT_EQ(settings.TwoPanels, 0);
}

TEST_F(Layout, TogglingTheOrientationTwiceReturnsTheBar) {
    layout.ArrangeFirstTime();
    bar.MouseDown.Raise(1, {}, 0, 0);
    bar.MouseMove.Raise(1, {}, 0, 530);  // to 2530 - 45 + 15
    bar.MouseUp.Raise(1, {}, 0, 0);
    layout.ToggleVerticalPanels();
    EXPECT_EQ(settings.VerticalPanels, 1);
    EXPECT_EQ(settings.HSplitPosition, 2500);
    EXPECT_EQ(bar.Left(), 4000);
    layout.ToggleVerticalPanels();
    EXPECT_EQ(settings.VerticalPanels, 0);
    EXPECT_EQ(settings.VSplitPosition, 4000);
    EXPECT_EQ(bar.Top(), 2500);
    EXPECT_TRUE(mnuViewVerticalPanels.Enabled());
}

TEST_F(Layout, TogglingTheOrientationKeepsThePositionInWholeTwips) {
    layout.ArrangeFirstTime();
    splitter.SetSplitPosition(1235.5F);  // halves go to the even neighbour
    layout.ToggleVerticalPanels();
    EXPECT_EQ(settings.HSplitPosition, 1236);
    splitter.SetSplitPosition(1234.5F);
    layout.ToggleVerticalPanels();
    EXPECT_EQ(settings.VSplitPosition, 1234);
}

TEST_F(Layout, APositionBeyondTheWindowIsKeptFirstAndHalvedAtTheNextChange) {
    settings.HSplitPosition = 30000;
    settings.VSplitPosition = 30000;
    layout.ArrangeFirstTime();
    EXPECT_EQ(splitter.SplitPosition(), 30000);
    layout.ToggleVerticalPanels();
    EXPECT_EQ(bar.Left(), container.Width() / 2);
}

// A window that is shown maximised has its normal size first.
TEST_F(Layout, AStartMaximisedShowsTheBarWhereItWasStored) {
    settings.HSplitPosition = 9000;
    layout.ArrangeFirstTime();
    EXPECT_LT(bar.Top(), 9000);
    tools.ResizeByUser(form, {0, 0, 19200, 15000});
    layout.WindowResized();
    EXPECT_EQ(bar.Top(), 9000);
    EXPECT_EQ(source.Height(), 9000);
    layout.SaveSplitterSettings();
    EXPECT_EQ(Stored("HSplitPosition"), "9000");
}

TEST_F(Layout, AStartWithOnePanelShowsTheBarWhereItWasStored) {
    SinglePanel();
    settings.HSplitPosition = 9000;
    layout.ArrangeFirstTime();
    tools.ResizeByUser(form, {0, 0, 19200, 15000});
    layout.WindowResized();
    layout.ToggleTwoPanels();
    EXPECT_EQ(bar.Top(), 9000);
    EXPECT_EQ(container.Bounds(), (Rect{15, 315 + 4 * 12, form.ClientSize().width - 30, Inside()}));
}

TEST_F(Layout, AWindowTooSmallForTheBarDoesNotChangeWhatIsStored) {
    settings.HSplitPosition = 9000;
    settings.VSplitPosition = 30000;
    layout.ArrangeFirstTime();
    layout.ToggleVerticalPanels();
    EXPECT_EQ(bar.Left(), container.Width() / 2);
    layout.ToggleVerticalPanels();
    EXPECT_EQ(bar.Top(), container.Height() / 2);
    layout.SaveSplitterSettings();
    EXPECT_EQ(Stored("HSplitPosition"), "9000");
    EXPECT_EQ(Stored("VSplitPosition"), "30000");
}

TEST_F(Layout, GoingToOnePanelAndBackKeepsOrientationBarAndWidth) {
    layout.ArrangeFirstTime();
    FillBoth();
    source.SelectRow(1);
    MemoryToolkit::DragColumn(target, 0, 3333);
    layout.ToggleTwoPanels();
    EXPECT_EQ(settings.TwoPanels, 0);
    EXPECT_FALSE(mnuViewTwoPanels.Checked());
    EXPECT_FALSE(mnuViewVerticalPanels.Enabled());
    EXPECT_EQ(source.ColumnCount(), 3);
    EXPECT_EQ(source.ColumnCaption(2), "Target");
    EXPECT_EQ(source.ColumnWidth(2), 3333);
    EXPECT_EQ(source.Text(1, 2), "d");
    EXPECT_EQ(target.RowCount(), 0);
    EXPECT_EQ(source.Container(), &form);
    EXPECT_FALSE(container.Visible());
    EXPECT_EQ(source.Bounds(), (Rect{15, 315 + 4 * 12, form.ClientSize().width - 30, Inside()}));

    MemoryToolkit::DragColumn(source, 2, 2222);
    layout.ToggleTwoPanels();
    EXPECT_TRUE(mnuViewTwoPanels.Checked());
    EXPECT_TRUE(mnuViewVerticalPanels.Enabled());
    EXPECT_EQ(settings.TwoPanels, 1);
    EXPECT_EQ(settings.VerticalPanels, 0);
    EXPECT_EQ(source.ColumnCount(), 2);
    EXPECT_EQ(target.ColumnWidth(0), 2222);
    EXPECT_EQ(target.Text(1, 0), "d");
    EXPECT_EQ(source.Container(), &container);
    EXPECT_TRUE(container.Visible());
    EXPECT_EQ(bar.Top(), 2000);
    EXPECT_THAT(selected, ElementsAre(1, 1));
    EXPECT_EQ(tools.focus, &source);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
    EXPECT_EQ(tools.pointers.front(), toolkit::Pointer::Hourglass);
}

TEST_F(Layout, ARowThatIsSelectedIsShownAgainTheFirstOneToo) {
    layout.ArrangeFirstTime();
    FillBoth();
    layout.ToggleTwoPanels();
    EXPECT_THAT(selected, IsEmpty());
    source.SelectRow(0);
    layout.ToggleTwoPanels();
    EXPECT_THAT(selected, ElementsAre(0));
}

TEST_F(Layout, AChangeOfPanelsDoesNotTakeTheBarsPlace) {
    layout.ArrangeFirstTime();
    splitter.SetSplitPosition(1234);
    layout.ToggleTwoPanels();
    layout.ToggleTwoPanels();
    EXPECT_EQ(settings.HSplitPosition, 2000);
    EXPECT_EQ(settings.VSplitPosition, 4000);
}

TEST_F(Layout, GoingToOnePanelAndBackKeepsPanelsSideBySide) {
    settings.VerticalPanels = 1;
    layout.ArrangeFirstTime();
    FillBoth();
    layout.ToggleTwoPanels();
    layout.ToggleTwoPanels();
    EXPECT_EQ(settings.VerticalPanels, 1);
    EXPECT_EQ(bar.Left(), 4000);
    EXPECT_EQ(bar.Top(), 0);
    EXPECT_EQ(settings.HSplitPosition, 2000);
    EXPECT_EQ(settings.VSplitPosition, 4000);
}

TEST_F(Layout, StoresOrientationAndBothPositions) {
    settings.VerticalPanels = 1;
    layout.ArrangeFirstTime();
    splitter.SetSplitPosition(1234.5F);  // halves go to the even neighbour
    layout.SaveSplitterSettings();
    EXPECT_EQ(Stored("VerticalPanels"), "1");
    EXPECT_EQ(Stored("VSplitPosition"), "1234");
    EXPECT_EQ(Stored("HSplitPosition"), "2000");
    // In this order in a new file.
    EXPECT_THAT(system.files.Get(common.SettingsFile()).value_or(""),
                testing::ContainsRegex("VerticalPanels.*\nVSplitPosition.*\nHSplitPosition"));
}

TEST_F(Layout, StoresTheStackedPosition) {
    layout.ArrangeFirstTime();
    splitter.SetSplitPosition(1500);
    layout.SaveSplitterSettings();
    EXPECT_EQ(Stored("VerticalPanels"), "0");
    EXPECT_EQ(Stored("HSplitPosition"), "1500");
    EXPECT_EQ(Stored("VSplitPosition"), "4000");
}

TEST_F(Layout, ASinglePanelStoresNothing) {
    SinglePanel();
    layout.ArrangeFirstTime();
    layout.SaveSplitterSettings();
    EXPECT_EQ(Stored("VerticalPanels"), "(absent)");
    EXPECT_EQ(Stored("VSplitPosition"), "(absent)");
    EXPECT_EQ(Stored("HSplitPosition"), "(absent)");
}

TEST_F(Layout, OverflowInThePixelArithmeticIsAnError) {
    MainWindowLayout huge{{form, cboDate, container, bar, source, target, StatusBar1,
                           mnuViewStatusBar, mnuViewTwoPanels, mnuViewVerticalPanels},
                          settings,
                          {1000000000, 1000000000},
                          [] { return std::string(); }};
    EXPECT_THROW(huge.ChangePanelsOrientation(false), Overflow);
    const Rect before = container.Bounds();
    huge.WindowResized();  // a resize ignores every error
    EXPECT_EQ(container.Bounds(), before);
}

TEST_F(Layout, AfterAStartWithOnePanelATooLargePositionIsHalved) {
    SinglePanel();
    settings.HSplitPosition = 30000;
    layout.ArrangeFirstTime();
    EXPECT_EQ(settings.VerticalPanels, 0);
    layout.ToggleTwoPanels();
    EXPECT_LT(splitter.SplitPosition(), 30000);
}

TEST_F(Layout, AFailingReactionDoesNotKeepTheWindowFromBeingLaidOut) {
    layout.RowMoved.Subscribe([](int) { throw SubscriptOutOfRange(); });
    layout.ArrangeFirstTime();
    FillBoth();
    source.SelectRow(0);
    layout.ToggleTwoPanels();
    EXPECT_EQ(source.Height(), Inside());
    EXPECT_EQ(tools.focus, &source);
}

}  // namespace
}  // namespace ordalyn
