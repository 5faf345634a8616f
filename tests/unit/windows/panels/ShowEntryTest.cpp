// Finding entries and taking the panels to them.
#include "search/EntrySearch.h"

#include "base/Errors.h"
#include "support/windows/FindWindow.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;

class Search : public FindWindow {
  protected:
    Search() {
        Load({
            "01.03.2024 10:00:00: Program start (anna/DESK7)",            // 0
            "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt",           // 1
            "01.03.2024 10:15:31: CopyFile C:\\b.txt -> E:\\copy.txt",    // 2
            "02.03.2024 11:00:00: Move C:\\c.txt -> D:\\copy to\\c.txt",  // 3
            "02.03.2024 11:00:01: Copy: C:\\d.txt -> D:\\d.txt",          // 4
            "02.03.2024 11:00:02: Copy C:\\a.txt",                        // 5
            "03.03.2024 12:00:00: Delete C:\\übung\\e.txt",               // 6
            "03.03.2024 12:00:01: Copy C:\\f.txt -> D:\\f.txt",           // 7
        });
    }
    std::int32_t Find(std::string_view text, std::int32_t start = 0, std::int32_t column = 0,
                      std::int32_t word = 0, std::int32_t date = 0) {
        return search.FindString(text, start, column, word, date);
    }
    void AllDates() { ShowDay(0); }

    EntrySearch search{entries, panels.Days(), panels};
};

TEST_F(Search, AnswersTheEntryBehindTheOneFound) {
    AllDates();
    EXPECT_EQ(Find("copy"), 2);
    EXPECT_EQ(SelectedEntry(), 1);
    EXPECT_EQ(Find("copy", 2), 3);
    EXPECT_EQ(SelectedEntry(), 2);
    EXPECT_EQ(Find("copy", 3), 5);
    EXPECT_EQ(Find("copy", 5), 6);
    EXPECT_EQ(Find("copy", 6), 8);
    EXPECT_EQ(Find("copy", 8), -1);
    EXPECT_EQ(SelectedEntry(), 7);  // a search that fails moves nothing
}

TEST_F(Search, TheStartItselfIsLookedAtAndNothingBeforeIt) {
    AllDates();
    EXPECT_EQ(Find("copy", 7), 8);
    EXPECT_EQ(Find("Program start", 0), 1);
    EXPECT_EQ(Find("Program start", 1), -1);
}

TEST_F(Search, IgnoresCaseInEveryScript) {
    AllDates();
    EXPECT_EQ(Find("ÜBUNG"), 7);
    EXPECT_EQ(Find("DELETE"), 7);
}

TEST_F(Search, TheSourceIncludesClockTimeAndOperation) {
    AllDates();
    EXPECT_EQ(Find("11:00:01"), 5);
    EXPECT_EQ(Find("01: Copy: C"), 5);
    EXPECT_EQ(Find("02.03.2024"), -1);
}

TEST_F(Search, EveryColumnButTheFirstIsTheTarget) {
    AllDates();
    EXPECT_EQ(Find("copy", 0, 1), 3);
    EXPECT_EQ(Find("copy", 3, 1), 4);
    EXPECT_EQ(Find("copy", 4, 1), -1);
    EXPECT_EQ(Find("copy", 0, 7), 3);
    EXPECT_EQ(Find("11:00", 0, 1), -1);
}

TEST_F(Search, AWholeWordHasBlanksOrEndsOnBothSides) {
    AllDates();
    EXPECT_EQ(Find("Copy", 0, 0, 1), 2);
    EXPECT_EQ(Find("copy", 2, 0, 1), 6);       // neither CopyFile nor "Copy:"
    EXPECT_EQ(Find("Copy:", 0, 0, 1), 5);      // the colon is a part of it
    EXPECT_EQ(Find("a.txt", 0, 0, 1), -1);     // a backslash stands before it
    EXPECT_EQ(Find("C:\\a.txt", 2, 0, 1), 6);  // at the end of the field
    EXPECT_EQ(Find("10:15:30:", 0, 0, 1), 2);  // at its start
    EXPECT_EQ(Find("D:\\a.txt", 0, 1, 1), 2);  // the whole field
    EXPECT_EQ(Find("Copy C:\\a.txt", 0, 0, 1), 2);
    EXPECT_EQ(Find("to\\c.txt", 0, 1, 1), 4);
}

TEST_F(Search, OnlyTheValueOneMeansWholeWordOrSelectedDate) {
    AllDates();
    EXPECT_EQ(Find("opy", 0, 0, 2), 2);
    EXPECT_EQ(Find("opy", 0, 0, 0, 2), 2);
}

TEST_F(Search, TheFoundRowIsSelectedAndVisibleInBothPanels) {
    AllDates();
    shownRows.clear();
    Find("Delete");
    EXPECT_EQ(SourceListView.SelectedRow(), 6);
    EXPECT_EQ(TargetListView.SelectedRow(), 6);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).visibleRow, 6);
    EXPECT_EQ(MemoryToolkit::Of(TargetListView).visibleRow, 6);
    EXPECT_THAT(shownRows, ElementsAre(6));
}

TEST_F(Search, GoesToTheDayOfTheEntry) {
    ShowDay(1);
    EXPECT_EQ(Find("Move"), 4);
    EXPECT_EQ(cboDate.ListIndex(), 2);
    EXPECT_EQ(panels.SelectedDay(), 1);
    EXPECT_THAT(Rows(), ElementsAre(3, 4, 5));
    EXPECT_EQ(SourceListView.SelectedRow(), 0);
    EXPECT_EQ(Find("Copy:", 4), 5);
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
    EXPECT_EQ(TargetListView.SelectedRow(), 1);
    EXPECT_EQ(Find("f.txt", 5), 8);
    EXPECT_EQ(cboDate.ListIndex(), 3);
    EXPECT_EQ(SelectedEntry(), 7);
}

TEST_F(Search, StaysWithAllDates) {
    AllDates();
    Find("Delete");
    EXPECT_EQ(cboDate.ListIndex(), 0);
    EXPECT_EQ(Rows().size(), 8U);
}

TEST_F(Search, ADayThatIsShownIsNotChosenAgain) {
    ShowDay(2);
    const int fills = MemoryToolkit::Of(SourceListView).fills;
    int chosen = 0;
    cboDate.Click.Subscribe([&] { ++chosen; });
    EXPECT_EQ(Find("Copy:"), 5);  // entries before it have no colon behind the word
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).fills, fills);
    EXPECT_EQ(chosen, 0);
}

TEST_F(Search, ALogOfOneDayHasNoItemForAllDates) {
    Load({"01.03.2024 10:00:00: Copy a -> b", "01.03.2024 10:00:01: Move a -> b"});
    EXPECT_EQ(panels.Days().FirstDayItem(), 0);
    EXPECT_EQ(Find("move"), 2);
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
    EXPECT_EQ(cboDate.ListIndex(), 0);
}

// With a filter.

TEST_F(Search, PassesOverEntriesThatTheFilterRemoved) {
    AllDates();
    Filter("a.txt");
    EXPECT_THAT(Rows(), ElementsAre(1, 5));
    EXPECT_EQ(Find("copy"), 2);
    EXPECT_EQ(SourceListView.SelectedRow(), 0);
    EXPECT_EQ(Find("copy", 2), 6);
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
    EXPECT_EQ(TargetListView.SelectedRow(), 1);
    EXPECT_EQ(Find("copy", 6), -1);
    EXPECT_EQ(Find("Move"), -1);
}

TEST_F(Search, FiltersTheDaysThatItGoesTo) {
    ShowDay(1);
    Filter("a.txt");
    EXPECT_THAT(Rows(), ElementsAre(1));
    EXPECT_EQ(Find("copy", 2), 6);
    EXPECT_EQ(cboDate.ListIndex(), 2);
    EXPECT_THAT(Rows(), ElementsAre(5));
    EXPECT_EQ(SelectedEntry(), 5);
    // Day 3 holds the text, but not in a row that the filter lets pass: it is shown all the same.
    EXPECT_EQ(Find("copy", 6), -1);
    EXPECT_EQ(cboDate.ListIndex(), 3);
}

// Within the selected date.

TEST_F(Search, WithinADateTheFirstSearchBeginsWithTheDay) {
    ShowDay(2);
    EXPECT_EQ(Find("copy", 0, 0, 0, 1), 5);
    EXPECT_EQ(Find("copy", 5, 0, 0, 1), 6);
    EXPECT_EQ(Find("copy", 6, 0, 0, 1), -1);  // the next day has one
    EXPECT_EQ(cboDate.ListIndex(), 2);
    EXPECT_EQ(Find("copy", 0, 0, 0, 1), 5);
}

TEST_F(Search, WithinADateASearchAfterASuccessBeginsWhereItIsTold) {
    ShowDay(2);
    EXPECT_EQ(Find("copy", 0, 0, 0, 1), 5);
    ShowDay(1);
    EXPECT_EQ(Find("copy", 5, 0, 0, 1), -1);  // behind the day's last entry
    EXPECT_EQ(Find("copy", 0, 0, 0, 1), 2);   // the failure made it begin with the day
    ShowDay(3);
    EXPECT_EQ(Find("copy", 2, 0, 0, 1), 8);  // what lies before the day is passed over
    EXPECT_EQ(cboDate.ListIndex(), 3);
}

TEST_F(Search, RemembersWhereItBegan) {
    EXPECT_EQ(search.SearchPosition(), -1);
    AllDates();
    Find("copy", 2);
    EXPECT_EQ(search.SearchPosition(), 2);
    Find("nothing holds this", 2);
    EXPECT_EQ(search.SearchPosition(), -1);
    ShowDay(2);
    Find("copy", 0, 0, 0, 1);
    EXPECT_EQ(search.SearchPosition(), 3);
    Find("copy", 5, 0, 0, 1);
    EXPECT_EQ(search.SearchPosition(), 5);
    Find("copy", 6, 0, 0, 1);
    EXPECT_EQ(search.SearchPosition(), -1);
}

TEST_F(Search, ASearchOfAllDatesAfterAFailureBeginsWhereItIsTold) {
    AllDates();
    Find("nothing holds this");
    EXPECT_EQ(Find("copy", 4), 5);
}

// Logs that are not whole.

TEST_F(Search, OfAnEmptyLogFindsNothing) {
    Load({});
    EXPECT_EQ(Find("copy"), -1);
    EntryLists none;
    DayPanels noPanels{{main, cboDate, SourceListView, TargetListView, StatusBar1,
                        main.Menu("mnuContext"), main.Menu("mnuContextCopyTarget")},
                       none,
                       filter,
                       settings,
                       system.locale,
                       shared.Texts()};
    EntrySearch noSearch{none, noPanels.Days(), noPanels};
    EXPECT_EQ(noSearch.FindString("x", 0, 0, 0, 1), -1);
}

TEST_F(Search, WithinADateOfAReadThatFailedFindsNothing) {
    ShowDay(2);
    entries.Clear();
    AddLine(entries, "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt");
    EXPECT_EQ(Find("copy", 0, 0, 0, 1), -1);
    entries.Clear();
    EXPECT_EQ(Find("copy", 0, 0, 0, 1), -1);
}

TEST_F(Search, ALogWithoutDatesHasNothingWithinTheSelectedOne) {
    entries.Clear();
    entries.Add({{}, "only a comment", {}});
    panels.BuildDateList(true);
    EXPECT_EQ(Find("comment", 0, 0, 0, 1), -1);
    // It counts as failed: the next search within a date begins with the day.
    Load({"01.03.2024 10:00:00: Copy a -> b", "02.03.2024 10:00:00: Copy a -> b"});
    EXPECT_EQ(Find("copy", 0, 0, 0, 1), 2);
}

TEST_F(Search, ARowStaysFoundWhenItsReactionFails) {
    panels.RowShown.Subscribe([](int) { throw SubscriptOutOfRange(); });
    AllDates();
    EXPECT_EQ(Find("Delete"), 7);
    EXPECT_EQ(SelectedEntry(), 6);
    Filter("f.txt");
    EXPECT_EQ(Find("f.txt"), 8);
}

TEST_F(Search, AnEntryBehindTheLastDayHasNoRow) {
    ShowDay(3);
    AddLine(entries, "04.03.2024 12:00:01: Pack C:\\f.txt");  // not in the index yet
    EXPECT_EQ(Find("Pack"), -1);
}

TEST_F(Search, AnEntryWithoutATimeIsFoundAndSoIsOneBehindIt) {
    Load({"01.03.2024 10:00:00: Copy a -> b", "01.03.2024 broken",
          "01.03.2024 10:00:02: Move c -> d"});
    EXPECT_EQ(Find("broken"), 2);
    EXPECT_EQ(SelectedEntry(), 1);
    EXPECT_EQ(Find("Move"), 3);
    EXPECT_EQ(SelectedEntry(), 2);
}

TEST_F(Search, CommentsBeforeTheFirstDateBelongToTheFirstDay) {
    entries.Clear();
    entries.Add({"", "; copied by hand", ""});
    AddLine(entries, "01.03.2024 10:00:00: Move a -> b");
    AddLine(entries, "02.03.2024 10:00:00: Move a -> b");
    panels.BuildDateList(true);
    EXPECT_EQ(Find("by hand"), 1);
    EXPECT_EQ(cboDate.ListIndex(), 1);
    EXPECT_EQ(SelectedEntry(), 0);
}

}  // namespace
}  // namespace ordalyn::test
