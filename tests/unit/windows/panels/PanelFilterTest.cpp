// Narrowing the panels to the filter.
#include "base/Errors.h"
#include "search/EntryFilter.h"
#include "support/windows/FindWindow.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Filtering : public FindWindow {
  protected:
    Filtering() { Load(kLines); }
    // By entry: what the comments say is what the names of the tests are about.
    const std::vector<std::string> kLines = {
        "01.03.2024 10:00:00: Program start (anna/DESK7)",                    // 0
        "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt",                   // 1
        "01.03.2024 10:15:31: Move C:\\Copy\\b.txt -> E:\\b.txt",             // 2
        "01.03.2024 10:15:32: Delete C:\\c.txt",                              // 3
        "02.03.2024 11:00:00: copy: Failed C:\\d.txt -> d:\\übung\\d.txt",    // 4
        "02.03.2024 11:00:01: Move: Skipped: C:\\Kopie\\e.txt -> F:\\e.txt",  // 5
        "02.03.2024 11:00:02: Delete C:\\failed\\f.txt",                      // 6
    };
};

TEST_F(Filtering, KeepsRowsWhoseSourceHoldsTheTextInAnyCase) {
    ShowDay(0);
    Filter("copy");
    EXPECT_THAT(Rows(), ElementsAre(1, 2, 4));  // in the path, too
}

TEST_F(Filtering, KeepsTheTargetsOfTheSameRowsWhateverFlagShowsThem) {
    for (const std::int32_t flag : {1, 2, -1}) {
        settings.TwoPanels = flag;
        ShowDay(0);
        Filter("copy");
        EXPECT_EQ(TargetListView.RowCount(), 3) << flag;
    }
}

TEST_F(Filtering, DoesNotContainKeepsTheOthers) {
    ShowDay(0);
    Filter("COPY", false, true);
    EXPECT_THAT(Rows(), ElementsAre(0, 3, 5, 6));
}

TEST_F(Filtering, TheSourceTextIncludesTheClockTimeButNotTheDate) {
    ShowDay(0);
    Filter("10:15:3");
    EXPECT_THAT(Rows(), ElementsAre(1, 2, 3));
    Filter("03.2024");
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(Filtering, OfTheTargetKeepsRowsWhoseTargetHoldsTheText) {
    ShowDay(0);
    Filter("D:\\", true);
    EXPECT_THAT(Rows(), ElementsAre(1, 4));
    Filter("ÜBUNG", true);
    EXPECT_THAT(Rows(), ElementsAre(4));
}

TEST_F(Filtering, RowsWithoutATargetGoAlsoWhenTheTextIsNotToBeThere) {
    ShowDay(0);
    Filter("D:\\", true, true);
    EXPECT_THAT(Rows(), ElementsAre(2, 5));
}

TEST_F(Filtering, BothPanelsShowTheSameEntries) {
    ShowDay(0);
    Filter("move");
    EXPECT_EQ(SourceListView.RowTags(), TargetListView.RowTags());
    EXPECT_EQ(SourceListView.Text(1, 1), "Move: Skipped: C:\\Kopie\\e.txt ");
    EXPECT_EQ(TargetListView.Text(1, 0), "F:\\e.txt");
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).rowCount, 2);
    EXPECT_EQ(MemoryToolkit::Of(TargetListView).rowCount, 2);
}

TEST_F(Filtering, OfOnePanelLeavesTheOtherAlone) {
    SinglePanel();
    ShowDay(0);
    const int rowsBefore = TargetListView.RowCount();
    Filter("move");
    EXPECT_THAT(Rows(), ElementsAre(2, 5));
    EXPECT_EQ(TargetListView.RowCount(), rowsBefore);
    EXPECT_EQ(SourceListView.Text(0, 2), "E:\\b.txt");
    Filter("E:\\", true);
    EXPECT_THAT(Rows(), ElementsAre(2));
}

TEST_F(Filtering, TheStatusBarTellsFilterAndCount) {
    ShowDay(0);
    Filter("copy");
    EXPECT_EQ(Status(1), "3 Operation(s)  ");
    EXPECT_EQ(Status(3), "Filter: copy  ");
}

TEST_F(Filtering, TheStatusBarTellsOfAnEmptyFilter) {
    Filter("");
    EXPECT_EQ(Status(3), "Filter:   ");
    EXPECT_EQ(Status(1), "3 Operation(s)  ");  // as the fill left it
}

TEST_F(Filtering, TheStatusBarShowsTheBoxNotWhatIsTested) {
    cboFilter.SetText("typed but not applied");
    filter.FilterText = "copy";
    panels.ApplyFilter(false);
    EXPECT_EQ(Status(3), "Filter: typed but not applied  ");
    EXPECT_THAT(Rows(), ElementsAre(4));
}

TEST_F(Filtering, AnotherDayIsShownFiltered) {
    Filter("copy");
    EXPECT_THAT(Rows(), ElementsAre(4));
    ShowDay(1);
    EXPECT_THAT(Rows(), ElementsAre(1, 2));
    EXPECT_EQ(Status(1), "2 Operation(s)  ");
    ShowDay(0);
    EXPECT_THAT(Rows(), ElementsAre(1, 2, 4));
}

TEST_F(Filtering, ANewFilterSeesTheRowsThatTheOldOneRemoved) {
    ShowDay(0);
    Filter("copy");
    Filter("delete");
    EXPECT_THAT(Rows(), ElementsAre(3, 6));
}

TEST_F(Filtering, WithoutRefillingNarrowsWhatIsShown) {
    ShowDay(0);
    Filter("copy");
    filter.FilterText = "move";
    panels.ApplyFilter(false);
    EXPECT_THAT(Rows(), ElementsAre(2));
}

TEST_F(Filtering, PickingTheSameDayAgainFiltersAgainWithoutRefilling) {
    ShowDay(0);
    Filter("copy");
    filter.FilterText = "move";
    ShowDay(0);
    EXPECT_THAT(Rows(), ElementsAre(2));
}

TEST_F(Filtering, TheSelectionMovesUpWithItsEntryInBothPanels) {
    ShowDay(0);
    panels.SelectEntryRow(4);  // entry 4
    filter.FilterText = "copy";
    panels.ApplyFilter(false);
    EXPECT_EQ(SourceListView.SelectedRow(), 2);
    EXPECT_EQ(TargetListView.SelectedRow(), 2);
    EXPECT_EQ(SelectedEntry(), 4);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).selectedRow, 2);
    EXPECT_EQ(MemoryToolkit::Of(TargetListView).selectedRow, 2);
}

TEST_F(Filtering, TheFirstRowStaysSelectedWhenItStays) {
    ShowDay(0);
    filter.FilterText = "program";
    panels.ApplyFilter(false);
    EXPECT_EQ(SourceListView.SelectedRow(), 0);
    EXPECT_EQ(TargetListView.SelectedRow(), 0);
}

TEST_F(Filtering, NothingIsSelectedWhenTheSelectedRowGoes) {
    ShowDay(0);
    panels.SelectEntryRow(3);  // entry 3
    filter.FilterText = "copy";
    panels.ApplyFilter(false);
    EXPECT_EQ(SourceListView.SelectedRow(), -1);
    EXPECT_EQ(TargetListView.SelectedRow(), -1);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).selectedRow, -1);
    EXPECT_EQ(MemoryToolkit::Of(TargetListView).selectedRow, -1);
}

TEST_F(Filtering, RemovingRowsDoesNotScroll) {
    ShowDay(0);
    const int fills = MemoryToolkit::Of(SourceListView).fills;
    panels.SelectEntryRow(4);
    filter.FilterText = "copy";
    panels.ApplyFilter(false);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).fills, fills);       // not shown anew from the top
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).visibleRow, 5 - 1);  // as it was
}

TEST_F(Filtering, RowsAreClickedOnlyByTheFill) {
    ShowDay(0);
    shownRows.clear();
    Filter("copy");
    EXPECT_THAT(shownRows, ElementsAre(0));
    filter.FilterText = "move";
    panels.ApplyFilter(false);
    EXPECT_THAT(shownRows, ElementsAre(0));
}

TEST_F(Filtering, AnEmptyFilterTextRemovesNothingWhateverTheBoxesSay) {
    ShowDay(0);
    for (const bool target : {false, true}) {
        for (const bool doesNotContain : {false, true}) {
            Filter("", target, doesNotContain);
            EXPECT_EQ(Rows().size(), kLines.size());  // those without a target included
        }
    }
}

TEST_F(Filtering, ThePanelsAreShownAgain) {
    Filter("copy");
    EXPECT_TRUE(SourceListView.Visible());
    EXPECT_TRUE(TargetListView.Visible());
    Filter("nothing holds this");
    EXPECT_TRUE(SourceListView.Visible());
    EXPECT_TRUE(TargetListView.Visible());
    EXPECT_EQ(Status(1), "0 Operation(s)  ");
}

TEST_F(Filtering, ThePanelsAreHiddenWhileRowsGo) {
    ShowDay(0);
    filter.FilterText = "copy";
    panels.ApplyFilter(false);
    EXPECT_EQ(Rows().size(), 3U);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).updatesInSight, 0);
    EXPECT_EQ(MemoryToolkit::Of(TargetListView).updatesInSight, 0);
}

TEST_F(Filtering, AnEntryWithoutATimeIsFilteredLikeTheOthers) {
    Load({"01.03.2024 10:00:00: Copy a -> b", "01.03.2024 10:00:01: Move a -> b",
          "01.03.2024 broken", "01.03.2024 10:00:02: Copy c -> d"});
    Filter("copy");
    EXPECT_THAT(Rows(), ElementsAre(0, 3));
    Filter("broken");
    EXPECT_THAT(Rows(), ElementsAre(2));
    EXPECT_TRUE(SourceListView.Visible());
    EXPECT_THAT(tools.messages, IsEmpty());
}

TEST_F(Filtering, AnEntryOutsideTheListsIsAnError) {
    filter = {.boxText = "copy", .FilterText = "copy"};
    EXPECT_THROW(EntriesThatPass(entries, {0, 1, 100000}, filter), SubscriptOutOfRange);
    filter.target = true;
    EXPECT_THROW(EntriesThatPass(entries, {-1}, filter), SubscriptOutOfRange);
}

TEST_F(Filtering, AnErrorLeavesThePanelsVisible) {
    SourceListView.Fill(SourceListView.Source(),
                        std::make_shared<const std::vector<std::int32_t>>(1, 100000));
    filter.FilterText = "copy";
    EXPECT_THROW(panels.ApplyFilter(false), SubscriptOutOfRange);
    EXPECT_TRUE(SourceListView.Visible());
    EXPECT_TRUE(TargetListView.Visible());
}

TEST_F(Filtering, CommentsAreEntriesLikeOthers) {
    entries.Clear();
    entries.Add({"", "; copied by hand", ""});
    AddLine(entries, "01.03.2024 10:00:00: Move a -> b");
    panels.BuildDateList(true);
    Filter("COPIED");
    EXPECT_THAT(Rows(), ElementsAre(0));
}

// The visible result is that of removing row by row from the last to the first, whatever is
// selected.
TEST_F(Filtering, EqualsRemovingRowByRow) {
    ShowDay(0);
    for (int selected = 0; selected < 7; ++selected) {
        panels.ApplyFilter(true);
        panels.SelectEntryRow(selected);
        std::vector<std::int32_t> expected = Rows();
        std::int32_t expectedSelection = selected;
        for (auto row = static_cast<std::int32_t>(expected.size()) - 1; row >= 0; --row) {
            const std::int32_t entry = expected[static_cast<std::size_t>(row)];
            if (entry == 1 || entry == 2 || entry == 4)  // the lines with "copy"
                continue;
            expected.erase(expected.begin() + row);
            if (expectedSelection == row)
                expectedSelection = -1;
            else if (expectedSelection > row)
                --expectedSelection;
        }
        filter.FilterText = "copy";
        panels.ApplyFilter(false);
        EXPECT_EQ(Rows(), expected);
        EXPECT_EQ(SourceListView.SelectedRow(), expectedSelection) << selected;
        filter.FilterText.clear();
    }
}

}  // namespace
}  // namespace ordalyn::test
