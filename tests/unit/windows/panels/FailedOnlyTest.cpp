// Failed operations: marked in the panels, and alone when that was asked for.
#include "support/windows/LogWindow.h"

namespace ordalyn {
namespace {

using test::LogWindow;
using testing::ElementsAre;
using testing::IsEmpty;

class FailedOnly : public LogWindow {
  protected:
    FailedOnly() {
        Load({"01.03.2024 10:00:00: Copy: C:\\a -> D:\\a",
              "01.03.2024 10:00:01: Copy(Error: Disk full): C:\\b -> D:\\b",
              "01.03.2024 10:00:02: Move: Skipped: C:\\c -> D:\\c",
              "02.03.2024 10:00:03: Copy: C:\\d -> D:\\d",
              "02.03.2024 10:00:04: Copy: Skipped: C:\\e -> D:\\e",
              "03.03.2024 10:00:05: Copy: C:\\f -> D:\\f"},
             false);
    }
    const std::vector<std::int32_t>& Rows() const { return *SourceListView.RowTags(); }
};

TEST_F(FailedOnly, AreMarkedInBothPanels) {
    for (const toolkit::ListView* list : {&SourceListView, &TargetListView}) {
        std::vector<bool> marked;
        for (int row = 0; row < list->RowCount(); ++row)
            marked.push_back(list->IsMarked(row));
        EXPECT_THAT(marked, ElementsAre(false, true, true, false, true, false)) << list->Name();
    }
}

TEST_F(FailedOnly, AreTheOnlyRowsAndCounted) {
    panels.ShowFailedOnly(true);
    EXPECT_THAT(Rows(), ElementsAre(1, 2, 4));
    EXPECT_EQ(TargetListView.RowTags(), SourceListView.RowTags());
    EXPECT_EQ(Status(1), "3 failed operation(s)  ");
    panels.ShowFailedOnly(false);
    EXPECT_THAT(Rows(), ElementsAre(0, 1, 2, 3, 4, 5));
    EXPECT_EQ(Status(1), "6 Operation(s)  ");
}

TEST_F(FailedOnly, GoTogetherWithTheDay) {
    panels.ShowFailedOnly(true);
    cboDate.UserSelected(2);
    EXPECT_THAT(Rows(), ElementsAre(4));
    EXPECT_EQ(Status(1), "1 failed operation(s)  ");
    cboDate.UserSelected(3);
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(Status(1), "0 failed operation(s)  ");
}

TEST_F(FailedOnly, GoTogetherWithTheFilter) {
    filter.FilterText = "copy";
    panels.ApplyFilter(true);
    panels.ShowFailedOnly(true);
    EXPECT_THAT(Rows(), ElementsAre(1, 4));
    filter.FilterText = "";
    panels.ApplyFilter(true);
    EXPECT_THAT(Rows(), ElementsAre(1, 2, 4));
    filter.FilterText = "skipped";
    panels.ApplyFilter(true);
    panels.ShowFailedOnly(false);
    EXPECT_THAT(Rows(), ElementsAre(2, 4));
}

TEST_F(FailedOnly, StayWhenTheLogIsReadAgain) {
    panels.ShowFailedOnly(true);
    system.files.Append(kLog, "03.03.2024 10:00:06: Copy: Skipped: C:\\g -> D:\\g\r\n");
    reading.Refresh();
    EXPECT_THAT(Rows(), ElementsAre(6));
    EXPECT_EQ(SourceListView.SelectedRow(), 0);
}

TEST_F(FailedOnly, TheSelectionStaysWithItsEntry) {
    SourceListView.UserSelected(4);
    panels.ShowFailedOnly(true);
    EXPECT_EQ(SourceListView.SelectedRow(), 2);
    panels.ShowFailedOnly(false);
    EXPECT_EQ(SourceListView.SelectedRow(), 4);
    EXPECT_EQ(TargetListView.SelectedRow(), 4);
}

TEST_F(FailedOnly, AnEntryThatIsNotShownIsNotFound) {
    panels.ShowFailedOnly(true);
    EXPECT_FALSE(panels.ShowEntry(0));
    EXPECT_TRUE(panels.ShowEntry(4));
    EXPECT_EQ(SourceListView.SelectedRow(), 2);
    cboDate.UserSelected(1);
    EXPECT_FALSE(panels.ShowEntry(3));
    EXPECT_TRUE(panels.ShowEntry(2));
    EXPECT_EQ(SourceListView.SelectedRow(), 1);
}

TEST_F(FailedOnly, AnotherLanguageCountsThemToo) {
    panels.ShowFailedOnly(true);
    UseLanguageFile("5168=Fehlgeschlagene: %i");
    panels.LanguageChanged();
    EXPECT_EQ(Status(1), "Fehlgeschlagene: 3  ");
}

}  // namespace
}  // namespace ordalyn
