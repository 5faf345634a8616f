#include "windows/main/cSplitter.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "base/Errors.h"
#include "support/toolkit/MemoryToolkit.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using toolkit::Rect;

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = toolkit::Kind::PictureBox, .name = "container", .bounds = {0, 0, 6000, 4000}},
    {.kind = toolkit::Kind::Frame, .name = "bar", .bounds = {0, 0, 45, 45}},
    {.kind = toolkit::Kind::PictureBox, .name = "otherContainer", .bounds = {0, 0, 6000, 4000}},
    {.kind = toolkit::Kind::Frame, .name = "otherBar", .bounds = {0, 0, 45, 45}},
    {.kind = toolkit::Kind::ListView, .name = "one", .bounds = {0, 0, 100, 100}},
    {.kind = toolkit::Kind::ListView, .name = "two", .bounds = {0, 0, 100, 100}},
};
constexpr toolkit::FormDesign kDesign = {
    .name = "frmTest", .tag = "", .clientSize = {8000, 6000}, .style = {}, .controls = kControls};

class Splitter : public testing::Test {
  protected:
    void Create(std::int32_t direction, std::int32_t start, float margin = 0,
                std::int32_t size = 45) {
        splitter.CreateSplitter(container, bar, one, two, direction, start, size, margin, margin,
                                margin, margin);
    }
    void Drag(int buttons, float x, float y) { bar.MouseMove.Raise(buttons, {}, x, y); }

    MemoryToolkit toolkit;
    toolkit::Form form{toolkit, kDesign};
    toolkit::PictureBox& container = form.Get<toolkit::PictureBox>("container");
    toolkit::Frame& bar = form.Get<toolkit::Frame>("bar");
    toolkit::ListView& one = form.Get<toolkit::ListView>("one");
    toolkit::ListView& two = form.Get<toolkit::ListView>("two");
    cSplitter splitter;
};

TEST_F(Splitter, StartsEmptyAndInert) {
    EXPECT_TRUE(splitter.Visible());
    EXPECT_TRUE(splitter.LeftPanelVisible());
    EXPECT_TRUE(splitter.RightPanelVisible());
    EXPECT_EQ(splitter.SplitPosition(), 0);
    EXPECT_FALSE(splitter.Swapped());
    splitter.Resize(1000, 1000);
    splitter.Move(5, 5);
    EXPECT_EQ(container.Bounds(), (Rect{0, 0, 6000, 4000}));
}

TEST_F(Splitter, PlacesPanesSideBySideInsideTheMargins) {
    Create(1, 2000, 100);
    EXPECT_EQ(bar.Bounds(), (Rect{2000, 100, 45, 3800}));
    EXPECT_EQ(one.Bounds(), (Rect{100, 100, 1900, 3800}));
    EXPECT_EQ(two.Bounds(), (Rect{2045, 100, 6000 - (1900 + 100 + 45 + 100), 3800}));
}

TEST_F(Splitter, StacksPanesForEveryOtherDirection) {
    Create(7, 1500, 100);
    EXPECT_EQ(bar.Bounds(), (Rect{100, 1500, 5800, 45}));
    EXPECT_EQ(one.Bounds(), (Rect{100, 100, 5800, 1400}));
    EXPECT_EQ(two.Bounds(), (Rect{100, 1545, 5800, 4000 - (1400 + 100 + 45 + 100)}));
}

TEST_F(Splitter, MovesPanesAndBarIntoTheContainerAndShowsThem) {
    one.SetVisible(false);
    bar.SetCaption("bar");
    container.SetBackColor(0x123456);
    Create(1, 2000);
    EXPECT_EQ(one.Container(), &container);
    EXPECT_EQ(two.Container(), &container);
    EXPECT_EQ(bar.Container(), &container);
    EXPECT_TRUE(one.Visible());
    EXPECT_EQ(bar.Caption(), "");
    EXPECT_EQ(bar.BackColor(), 0x123456);
    EXPECT_EQ(bar.Border(), toolkit::BorderStyle::None);
    EXPECT_EQ(container.Border(), toolkit::BorderStyle::None);
    EXPECT_EQ(MemoryToolkit::Of(bar).broughtToFront, 1);
}

TEST_F(Splitter, RoundsMarginsToWholeTwips) {
    splitter.CreateSplitter(container, bar, one, two, 1, 2000, 45, 10.5F, 11.5F, 0.4F, 0.6F);
    EXPECT_EQ(one.Bounds(), (Rect{10, 12, 1990, 4000 - 12 - 1}));
}

TEST_F(Splitter, KeepsAFirstStartPositionHoweverLargeAndHalvesTheSecond) {
    Create(1, 9000);
    EXPECT_EQ(splitter.SplitPosition(), 9000);
    EXPECT_EQ(bar.Left(), 9000);
    Create(1, 9000);
    EXPECT_EQ(splitter.SplitPosition(), 3000);
    EXPECT_EQ(bar.Left(), 3000);
}

TEST_F(Splitter, HalvesAStackedStartPositionAtTheContainersHeight) {
    Create(2, 4000);
    EXPECT_EQ(bar.Top(), 4000);
    Create(2, 4000);
    EXPECT_EQ(bar.Top(), 2000);
    Create(2, 3999);
    EXPECT_EQ(bar.Top(), 3999);
}

TEST_F(Splitter, DragFollowsThePointerWithOneJumpBack) {
    Create(1, 2000);
    bar.MouseDown.Raise(1, {}, 20, 0);
    Drag(1, 120, 0);  // 2000 + 100 - 45 + 15
    EXPECT_EQ(bar.Left(), 2070);
    EXPECT_EQ(one.Width(), 2070);
    EXPECT_EQ(two.Left(), 2115);
    // The pointer stands 50 twips right of where it was pressed inside the bar; one more step of 10
    // moves the bar by 10.
    Drag(1, 50 + 10, 0);
    EXPECT_EQ(bar.Left(), 2070 + 40 - 30);
}

TEST_F(Splitter, DragSetsThePointerOnEveryMove) {
    Create(1, 2000);
    Drag(0, 5, 5);
    EXPECT_EQ(bar.MousePointer(), toolkit::Pointer::SizeEastWest);
    Create(2, 2000);
    Drag(2, 5, 5);
    EXPECT_EQ(bar.MousePointer(), toolkit::Pointer::SizeNorthSouth);
}

TEST_F(Splitter, DragWithAnotherButtonOrTwoMovesNothing) {
    Create(1, 2000);
    bar.MouseDown.Raise(2, {}, 0, 0);
    Drag(2, 100, 0);
    Drag(3, 100, 0);
    Drag(0, 100, 0);
    EXPECT_EQ(bar.Left(), 2000);
    EXPECT_EQ(bar.MousePointer(), toolkit::Pointer::SizeEastWest);
}

TEST_F(Splitter, MovesOnlyWhileAButtonIsDownOnTheBar) {
    Create(1, 2000);
    Drag(1, 100, 0);
    EXPECT_EQ(bar.Left(), 2000);
}

TEST_F(Splitter, DragStopsRightBeforeItsBounds) {
    splitter.MinLeftPanelWidth = 500;
    splitter.MinRightPanelWidth = 700;
    Create(1, 2000);
    bar.MouseDown.Raise(1, {}, 0, 0);
    Drag(1, 530 - 2000, 0);  // exactly minimum + 30
    EXPECT_EQ(bar.Left(), 2000);
    Drag(1, 5300 - 2000, 0);  // exactly container - minimum
    EXPECT_EQ(bar.Left(), 2000);
    Drag(1, 531 - 2000, 0);
    EXPECT_EQ(bar.Left(), 531 - 45 + 15);
    bar.SetLeft(2000);
    Drag(1, 5299 - 2000, 0);
    EXPECT_EQ(bar.Left(), 5299 - 45 + 15);
}

TEST_F(Splitter, DragStackedUsesTheHeight) {
    Create(2, 1000);
    bar.MouseDown.Raise(1, {}, 0, 10);
    Drag(1, 0, 110);
    EXPECT_EQ(bar.Top(), 1070);
    bar.SetTop(1000);
    Drag(1, 0, 3010);  // exactly the container's height
    EXPECT_EQ(bar.Top(), 1000);
}

TEST_F(Splitter, AnOverflowingDragBoundIsAnError) {
    splitter.MinLeftPanelWidth = std::numeric_limits<std::int32_t>::max();
    Create(1, 2000);
    bar.MouseDown.Raise(1, {}, 0, 0);
    EXPECT_THROW(Drag(1, 100, 0), Overflow);
}

TEST_F(Splitter, OverflowingMarginsSkipOnlyTheSizeBetweenThem) {
    splitter.CreateSplitter(container, bar, one, two, 1, 2000, 45, 2.1e9F, 0, 2.1e9F, 0);
    one.Move({1, 2, 33, 44});
    splitter.SetRightPanelVisible(false);
    EXPECT_EQ(one.Bounds(), (Rect{2.1e9F, 0, 33, 4000}));
    splitter.SetRightPanelVisible(true);
    EXPECT_EQ(two.Left(), bar.Left() + bar.Width()) << "the panes follow the bar all the same";
}

TEST_F(Splitter, ABarBetweenOverflowingMarginsKeepsItsLength) {
    bar.SetHeight(77);
    splitter.CreateSplitter(container, bar, one, two, 1, 2000, 45, 0, 2.1e9F, 0, 2.1e9F);
    EXPECT_EQ(bar.Bounds(), (Rect{2000, 2.1e9F, 45, 77}));
    EXPECT_EQ(two.Left(), 2045);
}

TEST_F(Splitter, ReleasingCommitsThePosition) {
    Create(1, 2000);
    bar.MouseDown.Raise(1, {}, 0, 0);
    Drag(1, 100, 0);
    EXPECT_EQ(splitter.SplitPosition(), 2000);
    bar.MouseUp.Raise(1, {}, 0, 0);
    EXPECT_EQ(splitter.SplitPosition(), 2070);
    Drag(1, 100, 0);
    EXPECT_EQ(bar.Left(), 2070);
}

TEST_F(Splitter, ResizePullsBackALostBarOnlyAbove1800) {
    Create(2, 3500);
    splitter.Resize(1800, 6000);
    EXPECT_EQ(bar.Top(), 3500);
    splitter.Resize(1801, 6000);
    EXPECT_EQ(bar.Top(), 1711);
}

TEST_F(Splitter, ResizePullsBackALostBarSideBySide) {
    Create(1, 5000);
    splitter.Resize(4000, 1800);
    EXPECT_EQ(bar.Left(), 5000);
    splitter.Resize(4000, 2000);
    EXPECT_EQ(bar.Left(), 1910);
}

TEST_F(Splitter, ABarThatWasPulledBackReturnsWhenThereIsRoomAgain) {
    Create(1, 5000);
    splitter.Resize(4000, 4000);
    EXPECT_EQ(bar.Left(), 3910);
    EXPECT_EQ(splitter.SplitPosition(), 5000);
    splitter.Resize(4000, 4500);
    EXPECT_EQ(bar.Left(), 3910);
    splitter.Resize(4000, 5000);
    EXPECT_EQ(bar.Left(), 5000);
    EXPECT_EQ(one.Width(), 5000);
}

TEST_F(Splitter, AClickDoesNotCommitWhereTheBarWasPulledTo) {
    Create(1, 5000);
    splitter.Resize(4000, 4000);
    bar.MouseDown.Raise(1, {}, 0, 0);
    bar.MouseUp.Raise(1, {}, 0, 0);
    EXPECT_EQ(splitter.SplitPosition(), 5000);
}

TEST_F(Splitter, ADraggedBarDoesNotReturnToWhereItWasBefore) {
    Create(1, 5000);
    splitter.Resize(4000, 4000);
    bar.MouseDown.Raise(1, {}, 0, 0);
    Drag(1, -880, 0);  // 3910 - 880 - 45 + 15
    bar.MouseUp.Raise(1, {}, 0, 0);
    EXPECT_EQ(splitter.SplitPosition(), 3000);
    splitter.Resize(4000, 6000);
    EXPECT_EQ(bar.Left(), 3000);
}

TEST_F(Splitter, ControlsThatComeBackAreObservedOnce) {
    toolkit::PictureBox& other = form.Get<toolkit::PictureBox>("otherContainer");
    toolkit::Frame& otherBar = form.Get<toolkit::Frame>("otherBar");
    int raised = 0;
    splitter.ContainerResized.Subscribe([&] { ++raised; });
    Create(1, 2000);
    splitter.CreateSplitter(other, otherBar, one, two, 1, 2000, 45, 0, 0, 0, 0);
    container.SetWidth(5900);
    EXPECT_EQ(raised, 0);
    Create(1, 2000);
    container.SetWidth(5800);
    EXPECT_EQ(raised, 1);
    other.SetWidth(5800);
    EXPECT_EQ(raised, 1);
    bar.MouseDown.Raise(1, {}, 0, 0);
    Drag(1, 100, 0);  // 2000 + 100 - 45 + 15, once
    EXPECT_EQ(bar.Left(), 2070);
}

TEST_F(Splitter, ResizeSetsTheContainerAndLaysOut) {
    Create(1, 2000);
    int raised = 0;
    splitter.ContainerResized.Subscribe([&] {
        ++raised;
        EXPECT_EQ(one.Height(), container.Height());
    });
    splitter.Resize(3000, 5000);
    EXPECT_EQ(container.Width(), 5000);
    EXPECT_EQ(container.Height(), 3000);
    EXPECT_EQ(two.Width(), 5000 - 2045);
    EXPECT_EQ(raised, 2);
}

TEST_F(Splitter, GoesOnWhenSomeSizesCannotBe) {
    Create(1, 2000);
    splitter.Resize(-1, 5000);
    EXPECT_EQ(container.Height(), 4000);
    EXPECT_EQ(container.Width(), 5000);
    splitter.Resize(3000, 1000);  // the bar lies outside, the right pane would be negative
    EXPECT_EQ(two.Left(), 2045);
    EXPECT_EQ(two.Width(), 5000 - 2045);
    EXPECT_EQ(two.Height(), 3000);
}

TEST_F(Splitter, HidingOnePaneHidesTheBarAndFillsWithTheOther) {
    Create(1, 2000);
    splitter.SetRightPanelVisible(false);
    EXPECT_FALSE(bar.Visible());
    EXPECT_FALSE(two.Visible());
    EXPECT_EQ(one.Bounds(), (Rect{0, 0, 6000, 4000}));
    splitter.SetRightPanelVisible(true);
    splitter.SetLeftPanelVisible(false);
    EXPECT_FALSE(bar.Visible());
    EXPECT_EQ(two.Bounds(), (Rect{0, 0, 6000, 4000}));
    EXPECT_TRUE(container.Visible());
}

TEST_F(Splitter, HidingBothLaysOutTheFirstInAHiddenContainer) {
    Create(1, 2000);
    splitter.SetLeftPanelVisible(false);
    splitter.SetRightPanelVisible(false);
    EXPECT_FALSE(container.Visible());
    EXPECT_EQ(one.Bounds(), (Rect{0, 0, 6000, 4000}));
    splitter.SetLeftPanelVisible(true);
    EXPECT_TRUE(container.Visible());
}

TEST_F(Splitter, VisibleHidesTheContainerOnly) {
    Create(1, 2000);
    splitter.SetVisible(false);
    EXPECT_FALSE(splitter.Visible());
    EXPECT_FALSE(container.Visible());
    EXPECT_TRUE(bar.Visible());
    EXPECT_TRUE(one.Visible());
}

TEST_F(Splitter, AnotherCreateShowsEverythingAgain) {
    Create(1, 2000);
    splitter.SetLeftPanelVisible(false);
    splitter.SetRightPanelVisible(false);
    Create(2, 2000);
    EXPECT_TRUE(splitter.LeftPanelVisible());
    EXPECT_TRUE(splitter.RightPanelVisible());
    EXPECT_TRUE(one.Visible());
    EXPECT_TRUE(two.Visible());
    EXPECT_EQ(two.Top(), 2045);
    EXPECT_TRUE(bar.Visible());
    // Still one reaction per resize.
    int raised = 0;
    splitter.ContainerResized.Subscribe([&] { ++raised; });
    container.SetWidth(5000);
    EXPECT_EQ(raised, 1);
}

TEST_F(Splitter, SetSplitPositionDoesNotMoveTheBar) {
    Create(1, 2000);
    bar.SetLeft(2500);
    splitter.SetSplitPosition(3000);
    EXPECT_EQ(splitter.SplitPosition(), 3000);
    EXPECT_EQ(bar.Left(), 2500);
    EXPECT_EQ(one.Width(), 2500);
}

TEST_F(Splitter, SetSplitPositionFitsBothPanesAlsoWhileOneIsHidden) {
    Create(1, 2000);
    splitter.SetLeftPanelVisible(false);
    EXPECT_EQ(two.Left(), 0);
    splitter.SetSplitPosition(3000);
    EXPECT_EQ(one.Width(), 2000);
    EXPECT_EQ(two.Left(), 2045);
    EXPECT_EQ(two.Width(), 6000 - 2045);
}

TEST_F(Splitter, SwapPutsTheRightPaneOnTheLeft) {
    Create(1, 2000);
    splitter.SwapPanels();
    EXPECT_TRUE(splitter.Swapped());
    EXPECT_EQ(two.Bounds(), (Rect{0, 0, 2000, 4000}));
    EXPECT_EQ(one.Left(), 2045);
    splitter.SetLeftPanelVisible(false);
    EXPECT_FALSE(two.Visible());
    splitter.SetLeftPanelVisible(true);
    splitter.SwapPanels();
    EXPECT_FALSE(splitter.Swapped());
    EXPECT_EQ(one.Left(), 0);
}

TEST_F(Splitter, MovePlacesTheContainer) {
    Create(1, 2000);
    splitter.Move(150, 300);
    EXPECT_EQ(container.Left(), 150);
    EXPECT_EQ(container.Top(), 300);
}

TEST_F(Splitter, CreateReportsFailuresToItsCaller) {
    EXPECT_THROW(splitter.CreateSplitter(container, container, one, two, 1, 0, 45, 0, 0, 0, 0),
                 InvalidPropertyValue);
    EXPECT_THROW(splitter.CreateSplitter(container, bar, one, two, 1, 0, 45, 3e9F, 0, 0, 0),
                 Overflow);
}

}  // namespace
}  // namespace ordalyn
