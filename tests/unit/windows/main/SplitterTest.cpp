#include "base/Errors.h"
#include "unit/windows/main/SplitterFixture.h"

namespace ordalyn::test {
namespace {

using toolkit::Rect;

TEST_F(Splitter, StartsEmptyAndInert) {
    EXPECT_TRUE(splitter.Visible());
    EXPECT_TRUE(splitter.LeftPanelVisible());
    EXPECT_TRUE(splitter.RightPanelVisible());
    EXPECT_EQ(splitter.SplitPosition(), 0);
    EXPECT_FALSE(splitter.Swapped());
    splitter.Resize(1000, 1000);
    splitter.Move(5, 5);
    EXPECT_EQ(container.Bounds(), (Rect{0, 0, 6000, 4000}));
    splitter.SetSplitPosition(500);
    EXPECT_EQ(splitter.SplitPosition(), 500);
}

TEST_F(Splitter, KeepsWhatItIsToldBeforeItHasControls) {
    splitter.SetLeftPanelVisible(false);
    splitter.SetRightPanelVisible(false);
    splitter.SetVisible(false);
    splitter.SetSplitPosition(77);
    EXPECT_FALSE(splitter.LeftPanelVisible());
    EXPECT_FALSE(splitter.RightPanelVisible());
    EXPECT_FALSE(splitter.Visible());
    EXPECT_EQ(splitter.SplitPosition(), 77);
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
    bar.SetBorder(toolkit::BorderStyle::FixedSingle);
    container.SetBorder(toolkit::BorderStyle::FixedSingle);
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
    otherBar.MouseUp.Raise(1, {}, 0, 0);
    EXPECT_EQ(splitter.SplitPosition(), 2000) << "the bar that is observed is still held";
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

TEST_F(Splitter, LeavesNothingOfAPaneThatHasNoRoom) {
    Create(1, 2000);
    splitter.Resize(3000, 2045);
    EXPECT_EQ(one.Width(), 2000);
    EXPECT_EQ(two.Width(), 0);
}

TEST_F(Splitter, GoesOnWhenTheWidthCannotBe) {
    Create(1, 2000);
    splitter.Resize(3000, -1);
    EXPECT_EQ(container.Height(), 3000);
    EXPECT_EQ(container.Width(), 6000);
}

TEST_F(Splitter, GoesOnWhenAPaneCannotBePlaced) {
    Create(1, 2000);
    one.Resize.Subscribe([] { throw SubscriptOutOfRange(); });
    EXPECT_NO_THROW(container.SetHeight(3000));
    EXPECT_EQ(two.Height(), 3000);
}

TEST_F(Splitter, ASinglePaneFillsTheInsideOfAllFourMargins) {
    splitter.CreateSplitter(container, bar, one, two, 1, 2000, 45, 10, 20, 30, 40);
    splitter.SetRightPanelVisible(false);
    EXPECT_EQ(one.Bounds(), (Rect{10, 20, 6000 - 40, 4000 - 60}));
    splitter.SetRightPanelVisible(true);
    splitter.SetLeftPanelVisible(false);
    EXPECT_EQ(two.Bounds(), (Rect{10, 20, 6000 - 40, 4000 - 60}));
}

TEST_F(Splitter, TheBarIsShownOnlyBetweenTwoPanes) {
    Create(1, 2000);
    splitter.SetRightPanelVisible(false);
    EXPECT_TRUE(container.Visible());
    splitter.SetLeftPanelVisible(true);
    EXPECT_FALSE(bar.Visible());
    splitter.SetRightPanelVisible(true);
    EXPECT_TRUE(bar.Visible());
    splitter.SetLeftPanelVisible(false);
    splitter.SetRightPanelVisible(true);
    EXPECT_FALSE(bar.Visible());
    EXPECT_TRUE(container.Visible());
    splitter.SetLeftPanelVisible(true);
    EXPECT_TRUE(bar.Visible());
}

TEST_F(Splitter, EitherPaneBringsTheContainerBack) {
    Create(1, 2000);
    splitter.SetLeftPanelVisible(false);
    splitter.SetRightPanelVisible(false);
    splitter.SetRightPanelVisible(true);
    EXPECT_TRUE(container.Visible());
    splitter.SetRightPanelVisible(false);
    splitter.SetLeftPanelVisible(true);
    EXPECT_TRUE(container.Visible());
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

TEST_F(Splitter, AnotherCreateShowsEverythingInTheContainerAgain) {
    Create(1, 2000);
    splitter.SetLeftPanelVisible(false);
    splitter.SetRightPanelVisible(false);
    Create(2, 2000);
    EXPECT_FALSE(container.Visible()) << "which its owner shows";
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

TEST_F(Splitter, AContainerThatCannotBeMovedIsNoError) {
    Create(1, 2000);
    container.SystemChangedBounds({0, 0, -1, 4000});
    EXPECT_NO_THROW(splitter.Move(150, 300));
    EXPECT_EQ(container.Left(), 0);
    EXPECT_EQ(container.Top(), 0);
}

TEST_F(Splitter, CreateReportsFailuresToItsCaller) {
    EXPECT_THROW(splitter.CreateSplitter(container, container, one, two, 1, 0, 45, 0, 0, 0, 0),
                 InvalidPropertyValue);
    EXPECT_THROW(splitter.CreateSplitter(container, bar, one, two, 1, 0, 45, 3e9F, 0, 0, 0),
                 Overflow);
}

}  // namespace
}  // namespace ordalyn::test
