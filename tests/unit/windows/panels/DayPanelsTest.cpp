#include "windows/panels/DayPanels.h"

#include "support/windows/LogWindow.h"

namespace ordalyn {
namespace {

using test::LogWindow;
using test::MemoryToolkit;
using testing::ElementsAre;
using testing::IsEmpty;

using DayPanelsTest = LogWindow;

const std::vector<std::string> kThreeDays = {
    "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt",
    "01.03.2024 10:15:31: Delete C:\\b.txt",
    "02.03.2024 11:00:00: Move C:\\c -> D:\\c",
    "01.03.2024 12:00:00: Pack x -> y",
};

TEST_F(DayPanelsTest, ListsEveryRunOfADateWithAllDatesOnTop) {
    Load(kThreeDays);
    EXPECT_THAT(Dates(), ElementsAre("All dates", "01.03.2024", "02.03.2024", "01.03.2024"));
    EXPECT_EQ(panels.Days().FirstDayItem(), 1);
    std::vector<std::int32_t> starts;
    for (std::int32_t i = 0; i <= panels.Days().DayStarts().ListCount(); ++i)
        starts.push_back(panels.Days().DayStarts().List(i));
    EXPECT_THAT(starts, ElementsAre(0, 2, 3, 4));
}

TEST_F(DayPanelsTest, ASingleDateStandsAloneAndIsShown) {
    Load({"01.03.2024 10:00:00: Copy a -> b"});
    EXPECT_THAT(Dates(), ElementsAre("01.03.2024"));
    EXPECT_EQ(panels.Days().FirstDayItem(), 0);
    EXPECT_EQ(panels.SelectedDay(), 0);
    EXPECT_EQ(SourceListView.RowCount(), 1);
}

TEST_F(DayPanelsTest, AFullReadSelectsTheLastDay) {
    Load(kThreeDays);
    EXPECT_EQ(cboDate.ListIndex(), 3);
    EXPECT_EQ(panels.SelectedDay(), 2);
    EXPECT_THAT(Sources(), ElementsAre("Pack x "));
}

TEST_F(DayPanelsTest, OtherwiseTheFirstItemIsSelected) {
    Load(kThreeDays, false);
    EXPECT_EQ(cboDate.ListIndex(), 0);
    EXPECT_EQ(panels.SelectedDay(), kAllDates);
    EXPECT_EQ(SourceListView.RowCount(), 4);
}

TEST_F(DayPanelsTest, FillsTimeOperationAndTarget) {
    Load(kThreeDays);
    cboDate.UserSelected(1);
    EXPECT_THAT(Column(SourceListView, 0), ElementsAre("10:15:30", "10:15:31"));
    EXPECT_THAT(Sources(), ElementsAre("Copy C:\\a.txt ", "Delete C:\\b.txt"));
    EXPECT_THAT(Targets(), ElementsAre("D:\\a.txt", ""));
    EXPECT_EQ(SourceListView.Tag(1), 1);
}

TEST_F(DayPanelsTest, TagsAreEntryIndicesInEveryDay) {
    Load(kThreeDays);
    cboDate.UserSelected(2);
    EXPECT_EQ(SourceListView.Tag(0), 2);
    EXPECT_EQ(TargetListView.RowCount(), 1);
}

TEST_F(DayPanelsTest, ASinglePanelShowsTheTargetsAsItsThirdColumn) {
    SinglePanel();
    Load(kThreeDays);
    cboDate.UserSelected(1);
    EXPECT_THAT(Column(SourceListView, 2), ElementsAre("D:\\a.txt", ""));
    EXPECT_EQ(TargetListView.RowCount(), 0);
}

TEST_F(DayPanelsTest, LeadingCommentsBelongToTheFirstDay) {
    Load({"; hello", ";x", "01.03.2024 10:00:00: Copy a -> b"});
    EXPECT_EQ(panels.Days().DayStarts().List(0), 0);
    EXPECT_THAT(Column(SourceListView, 0), ElementsAre("", "", "10:00:00"));
    EXPECT_THAT(Sources(), ElementsAre(" hello", "x", "Copy a "));
    // Kept as it is: the day's date is looked for at its first entry, and a comment has none.
    EXPECT_EQ(Status(2), "  ");
    panels.ApplyNewDateFormat(1);
    EXPECT_THAT(Dates(), ElementsAre(""));
}

TEST_F(DayPanelsTest, ALogWithoutAnyDateEmptiesTheListAndLeavesThePanels) {
    Load(kThreeDays);
    cboDate.UserSelected(0);
    shownRows.clear();
    Load({"; only", "; comments"});
    EXPECT_THAT(Dates(), IsEmpty());
    EXPECT_EQ(cboDate.ListIndex(), -1);
    EXPECT_EQ(SourceListView.RowCount(), 4);
    EXPECT_EQ(SourceListView.Text(0, 1), "Copy C:\\a.txt ");
    EXPECT_THAT(shownRows, IsEmpty());
}

TEST_F(DayPanelsTest, GivesTheFocusToTheSourcePanel) {
    Load(kThreeDays);
    EXPECT_EQ(tools.focus, &SourceListView);
}

TEST_F(DayPanelsTest, CountsTheOperationsInTheStatusBar) {
    std::vector<std::string> lines(1234, "01.03.2024 10:00:00: Copy a -> b");
    Load(lines);
    EXPECT_EQ(Status(1), "1234 Operation(s)  ");
}

TEST_F(DayPanelsTest, TheCountStandsWhereverItsMarkDoesInEitherCase) {
    UseLanguageFile("4010=%I (%i) of %I %d %");
    Load({"01.03.2024 10:00:00: Copy a -> b", "01.03.2024 10:00:01: Copy c -> d"});
    EXPECT_EQ(Status(1), "2 (2) of 2 %d %  ");
}

TEST_F(DayPanelsTest, NothingElseInTheTextOfTheCountIsAMark) {
    UseLanguageFile("4010=%n%s%s%1$s %% {} {0} $1 \\1 %i&");
    Load({"01.03.2024 10:00:00: Copy a -> b"});
    EXPECT_EQ(Status(1), "%n%s%s%1$s %% {} {0} $1 \\1 1&  ");
}

TEST_F(DayPanelsTest, PlainDatesInTheListGoWithLongOnesInTheStatusBar) {
    Load(kThreeDays);
    EXPECT_EQ(Dates().back(), "01.03.2024");
    EXPECT_EQ(Status(2), "Friday, March 1, 2024  ");
}

TEST_F(DayPanelsTest, LongDatesInTheListGoWithPlainOnesInTheStatusBar) {
    settings.LongDate = 1;
    Load(kThreeDays);
    EXPECT_EQ(Dates().back(), "Friday, March 1, 2024");
    EXPECT_EQ(Status(2), "01.03.2024  ");
}

TEST_F(DayPanelsTest, EverySettingButZeroMeansLongDates) {
    for (const std::int32_t longDate : {-1, 2}) {
        settings.LongDate = longDate;
        Load(kThreeDays);
        EXPECT_EQ(Dates().back(), "Friday, March 1, 2024") << longDate;
        EXPECT_EQ(Status(2), "01.03.2024  ") << longDate;
        cboDate.UserSelected(0);
        SourceListView.UserSelected(2);
        EXPECT_EQ(Status(2), "02.03.2024  ") << longDate;
        panels.ApplyNewDateFormat(0);
        panels.ApplyNewDateFormat(longDate);
        EXPECT_EQ(Dates().back(), "Friday, March 1, 2024") << longDate;
        EXPECT_EQ(Status(2), "02.03.2024  ") << longDate;
    }
}

TEST_F(DayPanelsTest, ATextThatIsNoDateStaysAsItIs) {
    settings.LongDate = 1;
    Load({"yesterday 10:00:00: Copy a -> b"});
    EXPECT_THAT(Dates(), ElementsAre("yesterday"));
    settings.LongDate = 0;
    Load({"10:00:00 10:00:00: Copy a -> b"});
    EXPECT_EQ(Status(2), "10:00:00  ");
}

TEST_F(DayPanelsTest, WithAllDatesTheDateIsThatOfTheRow) {
    Load(kThreeDays);
    cboDate.UserSelected(0);
    EXPECT_EQ(Status(2), "Friday, March 1, 2024  ");
    SourceListView.UserSelected(2);
    EXPECT_EQ(Status(2), "Saturday, March 2, 2024  ");
    TargetListView.UserSelected(0);
    EXPECT_EQ(Status(2), "Friday, March 1, 2024  ");
}

TEST_F(DayPanelsTest, ASingleDayKeepsItsDateWhateverRowIsClicked) {
    Load(kThreeDays);
    cboDate.UserSelected(1);
    StatusBar1.SetPanelText(2, "untouched");
    SourceListView.UserSelected(1);
    EXPECT_EQ(Status(2), "untouched");
}

TEST_F(DayPanelsTest, AFillClicksTheFirstRow) {
    Load(kThreeDays);
    shownRows.clear();
    cboDate.UserSelected(1);
    EXPECT_THAT(shownRows, ElementsAre(0));
    EXPECT_EQ(SourceListView.SelectedRow(), 0);
}

TEST_F(DayPanelsTest, PickingTheShownDayAgainOnlyFilters) {
    Load(kThreeDays);
    const int fills = MemoryToolkit::Of(SourceListView).fills;
    filter = {.boxText = "xyz", .FilterText = "xyz"};
    cboDate.UserSelected(3);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).fills, fills);
    EXPECT_EQ(Status(3), "Filter: xyz  ");
    EXPECT_EQ(SourceListView.RowCount(), 0);
}

TEST_F(DayPanelsTest, BuildingTheListRefillsTheSameDay) {
    Load(kThreeDays);
    const int fills = MemoryToolkit::Of(SourceListView).fills;
    panels.BuildDateList(true);
    EXPECT_GT(MemoryToolkit::Of(SourceListView).fills, fills);
}

TEST_F(DayPanelsTest, FiltersAndTellsWhoListensAfterEveryChoice) {
    Load(kThreeDays);
    filter = {.boxText = "copy", .FilterText = "copy"};
    daysShown.clear();
    std::vector<int> rows;
    panels.DayShown.Subscribe([&] { rows.push_back(SourceListView.RowCount()); });
    cboDate.UserSelected(0);
    cboDate.UserSelected(1);
    EXPECT_THAT(daysShown, ElementsAre(kAllDates, 0));
    EXPECT_THAT(rows, ElementsAre(1, 1));
}

TEST_F(DayPanelsTest, PanelsAreHiddenAndTheHourglassShowsWhileFilling) {
    Load(kThreeDays);
    tools.pointers.clear();
    const int sources = MemoryToolkit::Of(SourceListView).updatesInSight;
    const int targets = MemoryToolkit::Of(TargetListView).updatesInSight;
    cboDate.UserSelected(1);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).updatesInSight, sources);
    EXPECT_EQ(MemoryToolkit::Of(TargetListView).updatesInSight, targets);
    EXPECT_THAT(tools.pointers,
                ElementsAre(toolkit::Pointer::Hourglass, toolkit::Pointer::Default));
    EXPECT_TRUE(SourceListView.Visible());
    EXPECT_TRUE(TargetListView.Visible());
}

TEST_F(DayPanelsTest, AnEntryWhoseTimeCannotBeToldIsShownWhole) {
    Load({"01.03.2024 10:00:00: Copy a -> b", "01.03.2024  10:00:01: two blanks -> c",
          "01.03.2024 nothing-else", "01.03.2024 10:00:02: Copy d -> e"});
    EXPECT_THAT(Column(SourceListView, 0), ElementsAre("10:00:00", "", "", "10:00:02"));
    EXPECT_THAT(Sources(),
                ElementsAre("Copy a ", " 10:00:01: two blanks ", "nothing-else", "Copy d "));
    EXPECT_THAT(Targets(), ElementsAre("b", "c", "", "e"));
    EXPECT_EQ(Status(1), "4 Operation(s)  ");
    EXPECT_TRUE(SourceListView.Visible());
    EXPECT_TRUE(TargetListView.Visible());
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
    EXPECT_EQ(SourceListView.SelectedRow(), 0);
}

TEST_F(DayPanelsTest, ShownRowsOutliveTheirEntries) {
    Load(kThreeDays);
    cboDate.UserSelected(0);
    entries.Clear();
    EXPECT_EQ(SourceListView.Text(0, 1), "Copy C:\\a.txt ");
    EXPECT_EQ(TargetListView.Text(2, 0), "D:\\c");
}

TEST_F(DayPanelsTest, ANewDateFormatRelabelsWithoutRefilling) {
    Load(kThreeDays);
    SourceListView.SelectRow(0);
    const int fills = MemoryToolkit::Of(SourceListView).fills;
    daysShown.clear();
    panels.ApplyNewDateFormat(1);
    EXPECT_THAT(daysShown, IsEmpty());  // no day was chosen
    EXPECT_THAT(Dates(), ElementsAre("All dates", "Friday, March 1, 2024",
                                     "Saturday, March 2, 2024", "Friday, March 1, 2024"));
    EXPECT_EQ(cboDate.ListIndex(), 3);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).fills, fills);
    EXPECT_EQ(Status(2), "01.03.2024  ");
    panels.ApplyNewDateFormat(0);
    EXPECT_EQ(Dates().front(), "All dates");
    EXPECT_EQ(Status(2), "Friday, March 1, 2024  ");
    cboDate.UserSelected(1);  // clicks count again
    EXPECT_THAT(daysShown, ElementsAre(0));
}

TEST_F(DayPanelsTest, ANewDateFormatIsThatOfTheSelectedRow) {
    Load(kThreeDays);
    cboDate.UserSelected(0);
    SourceListView.UserSelected(2);
    panels.ApplyNewDateFormat(1);
    EXPECT_EQ(Status(2), "02.03.2024  ");
    panels.ApplyNewDateFormat(0);
    EXPECT_EQ(Status(2), "Saturday, March 2, 2024  ");
}

TEST_F(DayPanelsTest, SelectEntryRowSelectsInBothPanelsAndScrolls) {
    Load(kThreeDays);
    cboDate.UserSelected(0);
    shownRows.clear();
    panels.SelectEntryRow(2);
    EXPECT_EQ(SourceListView.SelectedRow(), 2);
    EXPECT_EQ(TargetListView.SelectedRow(), 2);
    EXPECT_EQ(MemoryToolkit::Of(SourceListView).visibleRow, 2);
    EXPECT_EQ(MemoryToolkit::Of(TargetListView).visibleRow, 2);
    EXPECT_THAT(shownRows, ElementsAre(2));
}

TEST_F(DayPanelsTest, SelectEntryRowLeavesTheHiddenPanelAlone) {
    SinglePanel();
    Load(kThreeDays);
    panels.SelectEntryRow(0);
    EXPECT_EQ(TargetListView.SelectedRow(), -1);
    EXPECT_THROW(panels.SelectEntryRow(99), SubscriptOutOfRange);
}

TEST_F(DayPanelsTest, TheContextMenuOffersATargetOnlyWhereThereIsOne) {
    Load(kThreeDays);
    cboDate.UserSelected(1);
    panels.ShowContextMenu();
    EXPECT_TRUE(mnuContextCopyTarget.Enabled());
    SourceListView.SelectRow(1);
    panels.ShowContextMenu();
    EXPECT_FALSE(mnuContextCopyTarget.Enabled());
    EXPECT_THAT(tools.poppedUpMenus, ElementsAre("mnuContext", "mnuContext"));
}

TEST_F(DayPanelsTest, ThereIsNoContextMenuWithoutARow) {
    panels.ShowContextMenu();
    EXPECT_THAT(tools.poppedUpMenus, IsEmpty());
}

TEST_F(DayPanelsTest, AReactionThatFailsLeavesWholeRowsAndTheNormalPointer) {
    panels.RowShown.Subscribe([](int) { throw SubscriptOutOfRange(); });
    Load(kThreeDays);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
    EXPECT_TRUE(SourceListView.Visible());
    EXPECT_EQ(SourceListView.RowCount(), 1);
}

}  // namespace
}  // namespace ordalyn
