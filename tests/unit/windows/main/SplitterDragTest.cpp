// The bar of the splitter: how it is dragged, pulled back into the container and returns.
#include <limits>

#include "base/Errors.h"
#include "unit/windows/main/SplitterFixture.h"

namespace ordalyn::test {
namespace {

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

// Only the move asks for the left button.
TEST_F(Splitter, ADragBeginsAndEndsWithAnyButton) {
    Create(1, 2000);
    bar.MouseDown.Raise(toolkit::kRightButton, {}, 0, 0);
    Drag(toolkit::kLeftButton, 100, 0);
    EXPECT_EQ(bar.Left(), 2070);
    bar.MouseUp.Raise(toolkit::kRightButton, {}, 0, 0);
    EXPECT_EQ(splitter.SplitPosition(), 2070);
    Drag(toolkit::kLeftButton, 100, 0);
    EXPECT_EQ(bar.Left(), 2070);
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

TEST_F(Splitter, DragStackedStopsRightBeforeTheSameBounds) {
    splitter.MinLeftPanelWidth = 500;
    splitter.MinRightPanelWidth = 700;
    Create(2, 2000);
    bar.MouseDown.Raise(1, {}, 0, 0);
    Drag(1, 0, 530 - 2000);  // exactly minimum + 30
    EXPECT_EQ(bar.Top(), 2000);
    Drag(1, 0, 3300 - 2000);  // exactly container - minimum
    EXPECT_EQ(bar.Top(), 2000);
    Drag(1, 0, 531 - 2000);
    EXPECT_EQ(bar.Top(), 531 - 45 + 15);
    EXPECT_EQ(one.Height(), 501);
    bar.SetTop(2000);
    Drag(1, 0, 3299 - 2000);
    EXPECT_EQ(bar.Top(), 3299 - 45 + 15);
}

TEST_F(Splitter, AnOverflowingDragBoundIsAnError) {
    splitter.MinLeftPanelWidth = std::numeric_limits<std::int32_t>::max();
    Create(1, 2000);
    bar.MouseDown.Raise(1, {}, 0, 0);
    EXPECT_THROW(Drag(1, 100, 0), Overflow);
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

TEST_F(Splitter, ABarAtTheEdgeIsNotLost) {
    Create(2, 3500);
    splitter.Resize(3500, 6000);
    EXPECT_EQ(bar.Top(), 3500);
    splitter.Resize(3499, 6000);
    EXPECT_EQ(bar.Top(), 3499 - 90);
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

TEST_F(Splitter, ABarThatWasPulledBackStaysWhenAnotherPositionIsStored) {
    Create(1, 5000);
    splitter.Resize(4000, 4000);
    splitter.SetSplitPosition(3000);
    splitter.Resize(4000, 6000);
    EXPECT_EQ(bar.Left(), 3910);
}

TEST_F(Splitter, ABarThatReturnsTakesThePanesAlongAlsoWhenTheSizeIsTheSame) {
    Create(1, 5000);
    splitter.SetSplitPosition(1000);
    splitter.Resize(4000, 4000);
    EXPECT_EQ(bar.Left(), 3910);
    splitter.Resize(4000, 4000);
    EXPECT_EQ(bar.Left(), 1000);
    EXPECT_EQ(one.Width(), 1000);
    EXPECT_EQ(two.Left(), 1045);
}

TEST_F(Splitter, GoesOnWhenABarCannotBePulledBack) {
    Create(1, 5000);
    bar.SystemChangedBounds({5000, 0, -1, 4000});
    splitter.Resize(3000, 4000);
    EXPECT_EQ(bar.Left(), 5000);
    EXPECT_EQ(container.Width(), 4000);
}

}  // namespace
}  // namespace ordalyn::test
