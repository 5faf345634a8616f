// Several rows that are selected: in both panels the same ones, and what becomes of them.
#include "support/windows/LogWindow.h"
#include "windows/panels/RowOfEntry.h"

namespace ordalyn {
namespace {

using test::LogWindow;
using test::MemoryToolkit;
using testing::ElementsAre;
using toolkit::Choice;
using toolkit::RowRanges;

class SeveralRows : public LogWindow {
  protected:
    SeveralRows() {
        Load({"01.03.2024 10:00:00: Copy a -> b", "01.03.2024 10:00:01: Move b -> c",
              "01.03.2024 10:00:02: Copy c -> d", "01.03.2024 10:00:03: Move d -> e",
              "02.03.2024 10:00:04: Copy e -> f"},
             false);
    }
    static void ExpectSelected(const toolkit::ListView& list, const RowRanges& rows, int row) {
        EXPECT_EQ(list.SelectedRows(), rows) << list.Name();
        EXPECT_EQ(MemoryToolkit::Of(list).selectedRows, rows) << list.Name();
        EXPECT_EQ(list.SelectedRow(), row) << list.Name();
    }
    void ExpectInBoth(const RowRanges& rows, int row) {
        ExpectSelected(SourceListView, rows, row);
        ExpectSelected(TargetListView, rows, row);
    }
};

TEST_F(SeveralRows, AreTheSameInBothPanels) {
    SourceListView.UserSelected(1);
    SourceListView.UserSelected(3, Choice::Extend);
    ExpectInBoth(RowRanges(1, 4), 3);
    TargetListView.UserSelected(2, Choice::Toggle);
    RowRanges without(1, 2);
    without.Add(3, 4);
    ExpectInBoth(without, 3);
    TargetListView.UserSelectedAll();
    ExpectInBoth(RowRanges(0, 5), 3);
    SourceListView.UserSelected(-1);
    ExpectInBoth({}, -1);
    EXPECT_THAT(shownRows, ElementsAre(0, 0, 1, 3, 3));
}

TEST_F(SeveralRows, OfASinglePanelLeaveTheOtherAlone) {
    settings.TwoPanels = 0;
    TargetListView.ClearRows();
    SourceListView.UserSelectedAll();
    ExpectSelected(SourceListView, RowRanges(0, 5), 0);
    ExpectSelected(TargetListView, {}, -1);
}

TEST_F(SeveralRows, ThatPassTheFilterStaySelected) {
    SourceListView.UserSelected(2);
    SourceListView.UserSelected(4, Choice::Extend);
    filter.FilterText = "copy";
    panels.ApplyFilter(false);
    ExpectInBoth(RowRanges(1, 3), 2);
}

TEST_F(SeveralRows, NoneIsSelectedWhenTheFilterRemovesTheOneThatIsLookedAt) {
    SourceListView.UserSelected(2);
    SourceListView.UserSelected(3, Choice::Extend);
    filter.FilterText = "copy";
    panels.ApplyFilter(false);
    ExpectInBoth({}, -1);
}

TEST_F(SeveralRows, AnotherDayAndAFindEndInOneRow) {
    SourceListView.UserSelectedAll();
    cboDate.UserSelected(1);
    ExpectInBoth(RowRanges(0, 1), 0);
    SourceListView.UserSelectedAll();
    panels.SelectEntryRow(2);
    ExpectInBoth(RowRanges(2, 3), 2);
}

TEST(RowsOfEntries, AreThoseWhoseEntriesAreStillThere) {
    const std::vector<std::int32_t> before = {3, 5, 7, 9, 11};
    EXPECT_EQ(RowsOfEntries(before, RowRanges(0, 5), {5, 9, 10, 11}), [] {
        RowRanges rows(0, 2);
        rows.Add(3, 4);
        return rows;
    }());
    EXPECT_EQ(RowsOfEntries(before, RowRanges(1, 2), {1, 2}), RowRanges());
    EXPECT_EQ(RowsOfEntries(before, {}, before), RowRanges());
    EXPECT_EQ(RowsOfEntries(before, RowRanges(2, 4), before), RowRanges(2, 4));
}

}  // namespace
}  // namespace ordalyn
