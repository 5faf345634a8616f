#include "toolkit/ListView.h"

#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using test::NumberedRows;
using test::TagsOf;
using testing::ElementsAre;

class ListViewTest : public test::SampleTest {
  protected:
    ListViewTest() {
        list.AddColumn("Time", 900, 5);
        list.AddColumn("Text", 2000.5F, 2);
    }
    void Fill() { list.Fill(std::make_shared<NumberedRows>(), TagsOf({10, 20, 30})); }
    ListView& list = Get<ListView>("SourceListView");
    Counter clicked{list.ItemClick};
};

TEST_F(ListViewTest, BeginsEmpty) {
    EXPECT_EQ(list.RowCount(), 0);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_THROW(list.Tag(0), SubscriptOutOfRange);
    EXPECT_THROW(list.Text(0, 0), SubscriptOutOfRange);
}

TEST_F(ListViewTest, AColumnShowsItsFieldOfTheRowsTag) {
    Fill();
    EXPECT_EQ(list.RowCount(), 3);
    EXPECT_EQ(list.Tag(1), 20);
    EXPECT_EQ(list.Text(1, 0), "row 20 field 5");
    EXPECT_EQ(list.Text(2, 1), "row 30 field 2");
}

TEST_F(ListViewTest, IndicesOutsideThrow) {
    Fill();
    for (const int row : {-1, 3}) {
        EXPECT_THROW(list.Tag(row), SubscriptOutOfRange);
        EXPECT_THROW(list.Text(row, 0), SubscriptOutOfRange);
        EXPECT_THROW(list.EnsureVisible(row), SubscriptOutOfRange);
    }
    EXPECT_THROW(list.SelectRow(3), SubscriptOutOfRange);
    EXPECT_THROW(list.SelectRow(-2), SubscriptOutOfRange);
    for (const int column : {-1, 2}) {
        EXPECT_THROW(list.Text(0, column), SubscriptOutOfRange);
        EXPECT_THROW(list.ColumnCaption(column), SubscriptOutOfRange);
        EXPECT_THROW(list.SetColumnCaption(column, "x"), SubscriptOutOfRange);
        EXPECT_THROW(list.ColumnWidth(column), SubscriptOutOfRange);
        EXPECT_THROW(list.SetColumnWidth(column, 1), SubscriptOutOfRange);
        EXPECT_THROW(list.ColumnPosition(column), SubscriptOutOfRange);
        EXPECT_THROW(list.SetColumnPosition(column, 0), SubscriptOutOfRange);
    }
    EXPECT_THROW(list.SetColumnPosition(0, -1), InvalidPropertyValue);
    EXPECT_THROW(list.SetColumnPosition(0, 2), InvalidPropertyValue);
}

TEST_F(ListViewTest, ColumnsKeepTheirWidthsExactly) {
    EXPECT_EQ(list.ColumnWidth(1), 2000.5F);
    list.SetColumnWidth(0, 33.25F);
    EXPECT_EQ(list.ColumnWidth(0), 33.25F);
    list.SetColumnWidth(0, 0);
    EXPECT_EQ(list.ColumnWidth(0), 0);
    EXPECT_THROW(list.SetColumnWidth(0, -1), InvalidPropertyValue);
    EXPECT_THROW(list.AddColumn("x", -1, 0), InvalidPropertyValue);
    EXPECT_EQ(list.ColumnWidth(0), 0);
    EXPECT_EQ(list.ColumnCount(), 2);
}

TEST_F(ListViewTest, AWidthThatTheUserDragsIsAnswered) {
    kit.DragColumn(list, 0, 750);
    EXPECT_EQ(list.ColumnWidth(0), 750);
}

TEST_F(ListViewTest, ColumnsCanChangePlaces) {
    list.AddColumn("Third", 100, 0);
    list.SetColumnPosition(2, 0);
    EXPECT_EQ(list.ColumnPosition(0), 1);
    EXPECT_EQ(list.ColumnPosition(1), 2);
    EXPECT_EQ(list.ColumnPosition(2), 0);
    kit.MoveColumn(list, 1, 0);
    EXPECT_EQ(list.ColumnPosition(0), 2);
    EXPECT_EQ(list.ColumnPosition(1), 0);
    EXPECT_EQ(list.ColumnPosition(2), 1);
    EXPECT_EQ(list.ColumnCaption(2), "Third");  // its number stays
}

TEST_F(ListViewTest, TheLastColumnCanBeRemoved) {
    list.AddColumn("Third", 100, 0);
    list.SetColumnPosition(2, 0);
    list.RemoveLastColumn();
    EXPECT_EQ(list.ColumnCount(), 2);
    EXPECT_EQ(list.ColumnPosition(0), 0);
    EXPECT_EQ(list.ColumnPosition(1), 1);
    list.RemoveLastColumn();
    list.RemoveLastColumn();
    EXPECT_THROW(list.RemoveLastColumn(), SubscriptOutOfRange);
}

TEST_F(ListViewTest, AColumnsCaptionCanChange) {
    list.SetColumnCaption(0, "Zeit");
    EXPECT_EQ(list.ColumnCaption(0), "Zeit");
    EXPECT_EQ(On(list).columns[0].caption, "Zeit");
}

TEST_F(ListViewTest, TheSourceSaysWhichRowsAreMarked) {
    class Even : public NumberedRows {
        bool IsMarked(std::int32_t tag) const override { return tag % 20 == 0; }
    };
    Fill();
    EXPECT_FALSE(list.IsMarked(1));
    list.Fill(std::make_shared<Even>(), TagsOf({10, 20, 30}));
    EXPECT_FALSE(list.IsMarked(0));
    EXPECT_TRUE(list.IsMarked(1));
    EXPECT_THROW(list.IsMarked(3), SubscriptOutOfRange);
    EXPECT_EQ(list.MarkColor(), kReadableRed);
    list.SetMarkColor(0x123456);
    EXPECT_EQ(On(list).markColor, 0x123456);
}

TEST_F(ListViewTest, SelectingByCodeRaisesNothing) {
    Fill();
    list.SelectRow(2);
    EXPECT_EQ(list.SelectedRow(), 2);
    EXPECT_EQ(On(list).selectedRow, 2);
    list.SelectRow(-1);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(ListViewTest, SelectingByTheUserRaisesItemClickAlsoForTheSameRow) {
    Fill();
    std::vector<int> rows;
    list.ItemClick.Subscribe([&](int row) {
        EXPECT_EQ(list.SelectedRow(), row);
        rows.push_back(row);
    });
    list.UserSelected(1);
    list.UserSelected(1);
    list.UserSelected(0);
    EXPECT_THAT(rows, ElementsAre(1, 1, 0));
}

TEST_F(ListViewTest, TheUserMaySelectNothing) {
    Fill();
    list.SelectRow(1);
    list.UserSelected(-1);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(ListViewTest, ARowThatIsGoneCannotBeSelectedByTheUser) {
    Fill();
    list.SelectRow(1);
    list.UserSelected(3);
    EXPECT_EQ(list.SelectedRow(), 1);
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(ListViewTest, FillingSelectsNothingAndRaisesNothing) {
    Fill();
    list.SelectRow(2);
    list.EnsureVisible(2);
    Fill();
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(On(list).selectedRow, -1);
    EXPECT_EQ(On(list).visibleRow, -1);
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(ListViewTest, ReplacedRowsAreOfTheSameSource) {
    Fill();
    const auto source = list.Source();
    list.ReplaceRows(TagsOf({10, 30}), 1);
    EXPECT_EQ(list.Source(), source);
    EXPECT_EQ(list.RowCount(), 2);
    EXPECT_EQ(On(list).rowCount, 2);
    EXPECT_EQ(list.SelectedRow(), 1);
    EXPECT_EQ(On(list).selectedRow, 1);
    EXPECT_EQ(list.Text(1, 0), "row 30 field 5");
    EXPECT_EQ(On(list).fills, 1);  // not filled anew: it stays scrolled where it is
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(ListViewTest, APlaceNumberThatIsGoneSelectsNothing) {
    Fill();
    list.SelectRow(2);
    list.ReplaceRows(TagsOf({10, 30}), 2);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(On(list).selectedRow, -1);
    list.ReplaceRows(TagsOf({10, 20, 30, 40}), -1);
    EXPECT_EQ(list.SelectedRow(), -1);
    list.ReplaceRows(TagsOf({}), 0);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(list.RowCount(), 0);
}

TEST_F(ListViewTest, TheSourceLivesAsLongAsItsRowsAreShown) {
    auto source = std::make_shared<NumberedRows>();
    const std::weak_ptr<NumberedRows> alive = source;
    list.Fill(std::move(source), TagsOf({1}));
    source.reset();
    EXPECT_FALSE(alive.expired());
    list.ReplaceRows(TagsOf({1, 2}), -1);
    EXPECT_FALSE(alive.expired());
    list.ClearRows();
    EXPECT_TRUE(alive.expired());
}

TEST_F(ListViewTest, ClearingLeavesTheColumns) {
    Fill();
    list.SelectRow(1);
    list.ClearRows();
    EXPECT_EQ(list.RowCount(), 0);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(list.ColumnCount(), 2);
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(ListViewTest, TwoListsCanShareTheirRows) {
    const auto tags = TagsOf({7, 8});
    list.Fill(std::make_shared<NumberedRows>(), tags);
    EXPECT_EQ(list.RowTags(), tags);
    EXPECT_EQ(tags.use_count(), 2);
}

TEST_F(ListViewTest, GridLinesAreShown) {
    EXPECT_FALSE(list.GridLines());
    list.SetGridLines(true);
    EXPECT_TRUE(list.GridLines());
    EXPECT_TRUE(On(list).gridLines);
    list.FlattenColumnHeaders();
    EXPECT_TRUE(On(list).flatHeaders);
    list.FlattenColumnHeaders();
    EXPECT_TRUE(On(list).flatHeaders) << "once more changes nothing";
}

}  // namespace
}  // namespace ordalyn::toolkit
