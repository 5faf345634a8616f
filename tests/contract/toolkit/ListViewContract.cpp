#include "base/Errors.h"
#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;

constexpr std::int32_t kMillion = 1'000'000;

class ListViews : public ToolkitContract {
  protected:
    void SetUp() override {
        list.AddColumn("Time", 1200, 3);
        list.AddColumn("Text", 2000.5F, 7);
        list.AddColumn("Third", 900, 1);
        list.ItemClick.Subscribe([this](int row) { clicks.push_back(row); });
        Show();
    }
    void Fill(std::int32_t count) { list.Fill(rows, TagsFrom(100, count)); }
    void Key(int key) { User().PressKey(Form(), key); }

    ListView& list = Get<ListView>("lvwRows");
    std::shared_ptr<CountedRows> rows = std::make_shared<CountedRows>();
    std::vector<int> clicks;
    std::vector<int> activated;
};
INSTANTIATE_TEST_SUITE_P(Toolkit, ListViews, AllRealisations(), RealisationName);

TEST_P(ListViews, ShowTheFieldOfTheirColumnsForTheTagOfTheirRows) {
    Fill(5);
    EXPECT_EQ(User().RowCount(list), 5);
    EXPECT_EQ(User().Cell(list, 0, 0), "row 100 field 3");
    EXPECT_EQ(User().Cell(list, 4, 1), "row 104 field 7");
    EXPECT_EQ(User().Cell(list, 2, 2), "row 102 field 1");
}

TEST_P(ListViews, AColumnsWidthForATextGrowsWithTextAndFont) {
    const Twips plain = list.WidthFor("88:88:88");
    EXPECT_GT(plain, 300);
    EXPECT_GT(list.WidthFor("88:88:88 88:88:88"), plain * 3 / 2);
    Font larger = list.Font();
    larger.size *= 2;
    list.SetFont(larger);
    EXPECT_GT(list.WidthFor("88:88:88"), plain * 3 / 2);
}

TEST_P(ListViews, ShowEveryScript) {
    class Words : public RowSource {
        std::string_view Text(std::int32_t, int) const override { return "Größe Привет 日本 𐐀"; }
    };
    list.Fill(std::make_shared<Words>(), TagsFrom(0, 1));
    EXPECT_EQ(User().Cell(list, 0, 0), "Größe Привет 日本 𐐀");
}

TEST_P(ListViews, SelectingByCodeRaisesNothing) {
    Fill(5);
    list.SelectRow(3);
    Settle();
    EXPECT_EQ(User().SelectedRow(list), 3);
    list.SelectRow(1);
    Settle();
    EXPECT_EQ(User().SelectedRow(list), 1);
    list.SelectRow(-1);
    Settle();
    EXPECT_EQ(User().SelectedRow(list), -1);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_THAT(clicks, testing::IsEmpty());
}

TEST_P(ListViews, AClickedRowIsSelectedAndToldOnce) {
    Fill(5);
    User().ClickRow(list, 2);
    EXPECT_EQ(list.SelectedRow(), 2);
    EXPECT_EQ(User().SelectedRow(list), 2);
    EXPECT_THAT(clicks, ElementsAre(2));
}

TEST_P(ListViews, ClickingTheSelectedRowTellsItAgain) {
    Fill(5);
    User().ClickRow(list, 2);
    User().ClickRow(list, 2);
    EXPECT_THAT(clicks, ElementsAre(2, 2));
    list.SelectRow(4);
    User().ClickRow(list, 4);
    EXPECT_THAT(clicks, ElementsAre(2, 2, 4));
}

TEST_P(ListViews, AClickBelowTheRowsSelectsNothing) {
    Fill(2);
    User().ClickRow(list, 1);
    clicks.clear();
    User().ClickBelowRows(list);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(User().SelectedRow(list), -1);
    EXPECT_THAT(clicks, testing::IsEmpty());
}

TEST_P(ListViews, TheKeyboardSelectsAndTellsTheRightRow) {
    Fill(200);
    list.SetFocus();
    list.SelectRow(0);
    Settle();
    Key(key::Down);
    EXPECT_THAT(clicks, ElementsAre(1));
    Key(key::Down);
    Key(key::Up);
    EXPECT_THAT(clicks, ElementsAre(1, 2, 1));
    clicks.clear();
    Key(key::End);
    EXPECT_THAT(clicks, ElementsAre(199));
    EXPECT_EQ(list.SelectedRow(), 199);
    EXPECT_EQ(User().SelectedRow(list), 199);
    EXPECT_GT(User().TopRow(list), 100);
    Key(key::Home);
    EXPECT_THAT(clicks, ElementsAre(199, 0));
    EXPECT_EQ(User().TopRow(list), 0);
    clicks.clear();
    Key(key::PageDown);
    ASSERT_EQ(clicks.size(), 1U);
    EXPECT_GT(clicks[0], 2);
    EXPECT_LT(clicks[0], 100);
    EXPECT_EQ(User().SelectedRow(list), clicks[0]);
    EXPECT_EQ(list.SelectedRow(), clicks[0]);
    Key(key::PageUp);
    ASSERT_EQ(clicks.size(), 2U);
    EXPECT_EQ(clicks[1], 0);
}

TEST_P(ListViews, KeysAtTheEndsTellNothing) {
    Fill(3);
    list.SetFocus();
    list.SelectRow(2);
    Settle();
    Key(key::Down);
    Key(key::End);
    EXPECT_THAT(clicks, testing::IsEmpty());
    EXPECT_EQ(list.SelectedRow(), 2);
}

TEST_P(ListViews, KeysGoOnFromTheRowThatCodeSelected) {
    Fill(50);
    list.SetFocus();
    list.SelectRow(30);
    list.EnsureVisible(30);
    Settle();
    Key(key::Down);
    EXPECT_THAT(clicks, ElementsAre(31));
}

TEST_P(ListViews, TheFormHearsOfTheirKeysFirst) {
    Fill(3);
    list.SetFocus();
    list.SelectRow(0);
    std::vector<int> selectedWhenPressed;
    Form().KeyDown.Subscribe(
        [&](int, Modifiers) { selectedWhenPressed.push_back(list.SelectedRow()); });
    Settle();
    Key(key::Down);
    EXPECT_THAT(selectedWhenPressed, ElementsAre(0));
    EXPECT_EQ(list.SelectedRow(), 1);
}

TEST_P(ListViews, FillingSelectsNothingAndScrollsToTheTop) {
    Fill(500);
    list.SelectRow(400);
    list.EnsureVisible(400);
    Settle();
    EXPECT_GT(User().TopRow(list), 100);
    Fill(600);
    Settle();
    EXPECT_EQ(User().RowCount(list), 600);
    EXPECT_EQ(User().TopRow(list), 0);
    EXPECT_EQ(User().SelectedRow(list), -1);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_THAT(clicks, testing::IsEmpty());
}

TEST_P(ListViews, ReplacingRowsKeepsThePlaceAndTheSelection) {
    Fill(500);
    list.SelectRow(300);
    list.EnsureVisible(300);
    Settle();
    const int top = User().TopRow(list);
    EXPECT_GT(top, 100);
    list.ReplaceRows(TagsFrom(1000, 450), 300);
    Settle();
    EXPECT_EQ(User().RowCount(list), 450);
    EXPECT_EQ(User().TopRow(list), top);
    EXPECT_EQ(User().SelectedRow(list), 300);
    EXPECT_EQ(User().Cell(list, 300, 0), "row 1300 field 3");
    EXPECT_THAT(clicks, testing::IsEmpty());
}

TEST_P(ListViews, ReplacingWithFewerRowsForgetsASelectionThatIsGone) {
    Fill(500);
    list.SelectRow(300);
    list.EnsureVisible(300);
    list.ReplaceRows(TagsFrom(1000, 20), 300);
    Settle();
    EXPECT_EQ(User().RowCount(list), 20);
    EXPECT_EQ(User().SelectedRow(list), -1);
    EXPECT_EQ(list.SelectedRow(), -1);
    list.ReplaceRows(TagsFrom(0, 0), 0);
    Settle();
    EXPECT_EQ(User().RowCount(list), 0);
    EXPECT_THAT(clicks, testing::IsEmpty());
}

TEST_P(ListViews, RowsGrowWithoutMovingAnything) {
    Fill(500);
    list.SelectRow(300);
    list.EnsureVisible(300);
    Settle();
    const int top = User().TopRow(list);
    EXPECT_GT(top, 100);
    const auto other = std::make_shared<CountedRows>();
    list.GrowRows(other, TagsFrom(100, 502), 499);
    Settle();
    EXPECT_EQ(User().RowCount(list), 502);
    EXPECT_EQ(User().TopRow(list), top);
    EXPECT_EQ(User().SelectedRow(list), 300);
    EXPECT_EQ(list.SelectedRow(), 300);
    EXPECT_EQ(User().Cell(list, 501, 0), "row 601 field 3");
    EXPECT_EQ(list.Source(), other);
    EXPECT_THAT(clicks, testing::IsEmpty());
    // The keyboard goes on from where it was, and reaches what is new.
    list.SetFocus();
    Key(key::Down);
    Key(key::End);
    EXPECT_THAT(clicks, ElementsAre(301, 501));
}

TEST_P(ListViews, GrowingPaintsNothingThatStays) {
    Fill(500);
    list.Refresh();
    Settle();
    rows->asked = 0;
    list.GrowRows(rows, TagsFrom(100, 600), 500);
    Settle();
    EXPECT_EQ(rows->asked, 0);
    // Where the new row can be seen, it is painted, and hardly more.
    Fill(3);
    list.Refresh();
    Settle();
    rows->asked = 0;
    list.GrowRows(rows, TagsFrom(100, 4), 3);
    Settle();
    EXPECT_EQ(User().Cell(list, 3, 0), "row 103 field 3");
    EXPECT_LE(rows->asked, 10);
}

TEST_P(ListViews, WhatIsSelectedAmongChangedRowsGoesWithThem) {
    Fill(5);
    list.SelectRow(4);
    list.GrowRows(rows, TagsFrom(100, 4), 4);
    Settle();
    EXPECT_EQ(User().RowCount(list), 4);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(User().SelectedRow(list), -1);
}

TEST_P(ListViews, TellWhereARowIsOnTheScreen) {
    Fill(5);
    Settle();
    const double pixel = 1.1 * Kit().TwipsPerPixelX();
    const Rect form = User().BoundsOf(Form());
    const Rect first = list.RowOnScreen(0);
    const Rect third = list.RowOnScreen(2);
    EXPECT_NEAR(third.top, first.top + 2 * first.height, 2 * pixel);
    EXPECT_NEAR(third.left, first.left, pixel);
    EXPECT_NEAR(first.width, 1200 + 2000.5 + 900, 3 * pixel);
    // Inside the list, below its column headers.
    EXPECT_GE(first.left, form.left + list.Left());
    EXPECT_GT(first.top, form.top + list.Top() + first.height / 2);
    EXPECT_LE(third.top + third.height, form.top + form.height);
    Form().Move({form.left + 1500, form.top + 900, form.width, form.height});
    Settle();
    EXPECT_NEAR(list.RowOnScreen(2).left, third.left + 1500, pixel);
    EXPECT_NEAR(list.RowOnScreen(2).top, third.top + 900, pixel);
}

TEST_P(ListViews, TellOfARowWhatCanBeSeenOfIt) {
    Fill(500);
    list.SetColumnWidth(1, 9000);
    Settle();
    EXPECT_GT(list.RowOnScreen(0).width, 3000);
    EXPECT_LE(list.RowOnScreen(0).width, list.Width());
    EXPECT_EQ(list.RowOnScreen(400).height, 0);
    list.EnsureVisible(400);
    Settle();
    EXPECT_GT(list.RowOnScreen(400).height, 0);
    EXPECT_EQ(list.RowOnScreen(0).height, 0);
}

TEST_P(ListViews, RightToLeftARowIsWhereItWas) {
    Fill(5);
    Settle();
    const Rect row = list.RowOnScreen(1);
    Form().SetRightToLeft(true);
    list.SetRightToLeft(true);
    Settle();
    EXPECT_EQ(list.RowOnScreen(1), row);
}

TEST_P(ListViews, NoRowIsNowhere) {
    Fill(5);
    EXPECT_THROW(static_cast<void>(list.RowOnScreen(list.SelectedRow())), SubscriptOutOfRange);
    EXPECT_THROW(static_cast<void>(list.RowOnScreen(5)), SubscriptOutOfRange);
}

TEST_P(ListViews, AMillionRowsAreFilledReplacedAndClearedAtOnce) {
    const auto tags = TagsFrom(0, kMillion);
    const auto fewer = TagsFrom(0, kMillion - 1);
    const int effort = User().Effort(list, [&] {
        list.Fill(rows, tags);
        list.SelectRow(kMillion - 2);
        list.ReplaceRows(fewer, kMillion - 2);
        list.EnsureVisible(kMillion - 2);
    });
    EXPECT_LT(effort, 400);
    EXPECT_EQ(User().RowCount(list), kMillion - 1);
    EXPECT_EQ(User().SelectedRow(list), kMillion - 2);
    EXPECT_LT(User().Effort(list, [&] { list.ClearRows(); }), 400);
    EXPECT_EQ(User().RowCount(list), 0);
}

TEST_P(ListViews, OnlyTheVisibleRowsAreAskedFor) {
    rows->asked = 0;
    list.Fill(rows, TagsFrom(0, kMillion));
    list.Refresh();
    Settle();
    list.EnsureVisible(kMillion - 1);
    list.Refresh();
    Settle();
    EXPECT_LT(rows->asked, 2000);
}

TEST_P(ListViews, AMillionRowsCanBeWalked) {
    list.Fill(rows, TagsFrom(0, kMillion));
    list.SetFocus();
    list.SelectRow(0);
    Settle();
    Key(key::End);
    EXPECT_THAT(clicks, ElementsAre(kMillion - 1));
    EXPECT_EQ(User().Cell(list, kMillion - 1, 0), CountedRows::TextOf(kMillion - 1, 3));
}

TEST_P(ListViews, KeepTheirSourceAlive) {
    const std::weak_ptr<CountedRows> alive = rows;
    Fill(10);
    rows.reset();
    Settle();
    EXPECT_FALSE(alive.expired());
    EXPECT_EQ(User().Cell(list, 9, 0), "row 109 field 3");
    list.ClearRows();
    Settle();
    EXPECT_TRUE(alive.expired());
}

TEST_P(ListViews, ColumnsAreShown) {
    EXPECT_EQ(User().ColumnCaption(list, 1), "Text");
    list.SetColumnCaption(1, "Größe");
    EXPECT_EQ(User().ColumnCaption(list, 1), "Größe");
    const double pixel = Kit().TwipsPerPixelX();
    EXPECT_NEAR(User().ColumnPixels(list, 1) * pixel, 2000.5, pixel * 0.51);
}

TEST_P(ListViews, AWidthIsAnsweredAsItWasSet) {
    EXPECT_EQ(list.ColumnWidth(1), 2000.5F);
    list.SetColumnWidth(1, 777.7F);
    EXPECT_EQ(list.ColumnWidth(1), 777.7F);
    list.SetColumnWidth(0, 0);
    EXPECT_EQ(list.ColumnWidth(0), 0);
    EXPECT_EQ(User().ColumnPixels(list, 0), 0);
}

TEST_P(ListViews, AWidthThatTheUserDragsIsAnswered) {
    const int before = User().ColumnPixels(list, 1);
    User().DragDivider(list, 1, 40);
    EXPECT_EQ(User().ColumnPixels(list, 1), before + 40);
    EXPECT_NEAR(list.ColumnWidth(1), (before + 40) * Kit().TwipsPerPixelX(), 0.1);
    EXPECT_EQ(list.ColumnWidth(0), 1200);
    EXPECT_EQ(list.ColumnWidth(2), 900);
}

TEST_P(ListViews, ColumnsChangePlacesByCode) {
    list.SetColumnPosition(2, 0);
    EXPECT_EQ(list.ColumnPosition(0), 1);
    EXPECT_EQ(list.ColumnPosition(1), 2);
    EXPECT_EQ(list.ColumnPosition(2), 0);
    EXPECT_EQ(User().ColumnCaption(list, 2), "Third");
    list.SetColumnPosition(2, 2);
    EXPECT_EQ(list.ColumnPosition(0), 0);
    EXPECT_EQ(list.ColumnPosition(1), 1);
    EXPECT_EQ(list.ColumnPosition(2), 2);
    Fill(1);
    EXPECT_EQ(User().Cell(list, 0, 1), "row 100 field 7");
}

TEST_P(ListViews, ColumnsThatTheUserMovesTellTheirPlaces) {
    User().DragHeader(list, 2, 0);
    EXPECT_EQ(list.ColumnPosition(2), 0);
    EXPECT_EQ(list.ColumnPosition(0), 1);
    EXPECT_EQ(list.ColumnPosition(1), 2);
    EXPECT_EQ(list.ColumnWidth(1), 2000.5F);
}

TEST_P(ListViews, AColumnCanBeRemovedAndAddedAgain) {
    list.SetColumnPosition(2, 0);
    list.RemoveLastColumn();
    EXPECT_EQ(list.ColumnPosition(0), 0);
    EXPECT_EQ(list.ColumnPosition(1), 1);
    list.AddColumn("Again", 600, 2);
    EXPECT_EQ(list.ColumnPosition(2), 2);
    EXPECT_EQ(list.ColumnWidth(2), 600);
    Fill(1);
    EXPECT_EQ(User().Cell(list, 0, 2), "row 100 field 2");
}

TEST_P(ListViews, GridLinesAndFlatHeadersChangeNothingElse) {
    Fill(5);
    list.SelectRow(2);
    list.SetGridLines(true);
    list.FlattenColumnHeaders();
    list.SetGridLines(false);
    Settle();
    EXPECT_EQ(User().SelectedRow(list), 2);
    EXPECT_EQ(list.ColumnWidth(1), 2000.5F);
    EXPECT_THAT(clicks, testing::IsEmpty());
}

TEST_P(ListViews, AHiddenListCanBeFilled) {
    list.SetVisible(false);
    Fill(10);
    list.SelectRow(5);
    list.SetVisible(true);
    Settle();
    EXPECT_TRUE(User().IsVisible(list));
    EXPECT_EQ(User().RowCount(list), 10);
    EXPECT_EQ(User().SelectedRow(list), 5);
}

TEST_P(ListViews, AListThatIsHiddenOnlyWhileItIsFilledKeepsTheFocus) {
    list.SetFocus();
    Settle();
    list.SetVisible(false);
    Fill(10);
    list.SetVisible(true);
    Settle();
    EXPECT_TRUE(User().HasFocus(list));
}

TEST_P(ListViews, ADoubleClickActivatesTheRowThatTheFirstClickSelected) {
    Fill(50);
    list.RowActivated.Subscribe([this](int row) { activated.push_back(row); });
    User().ClickRow(list, 3);
    EXPECT_THAT(activated, testing::IsEmpty());
    User().DoubleClickRow(list, 4);
    EXPECT_THAT(activated, ElementsAre(4));
    EXPECT_EQ(list.SelectedRow(), 4);
}

TEST_P(ListViews, EnterActivatesTheSelectedRowAndNothingWithoutOne) {
    Fill(50);
    list.RowActivated.Subscribe([this](int row) { activated.push_back(row); });
    list.SetFocus();
    Settle();
    Key(key::Enter);
    EXPECT_THAT(activated, testing::IsEmpty());
    list.SelectRow(7);
    Key(key::Enter);
    EXPECT_THAT(activated, ElementsAre(7));
}

TEST_P(ListViews, TheRowsMayChangeWhenOneIsActivated) {
    Fill(50);
    list.RowActivated.Subscribe([this](int row) {
        activated.push_back(row);
        list.ClearRows();
    });
    User().DoubleClickRow(list, 4);
    EXPECT_THAT(activated, ElementsAre(4));
    EXPECT_EQ(User().RowCount(list), 0);
}

TEST_P(ListViews, TheRowsMayChangeWhenOneIsClicked) {
    Fill(50);
    list.ItemClick.Subscribe([&](int) { list.ReplaceRows(TagsFrom(0, 2), -1); });
    User().ClickRow(list, 4);
    EXPECT_THAT(clicks, ElementsAre(4));
    EXPECT_EQ(list.RowCount(), 2);
    EXPECT_EQ(User().RowCount(list), 2);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(User().SelectedRow(list), -1);
}

TEST_P(ListViews, SelectingInAnotherListByCodeKeepsBothInStep) {
    Fill(50);
    list.ItemClick.Subscribe([&](int row) { list.SelectRow(row); });
    User().ClickRow(list, 4);
    EXPECT_THAT(clicks, ElementsAre(4));
    EXPECT_EQ(User().SelectedRow(list), 4);
}

TEST_P(ListViews, ADisabledListCannotBeUsed) {
    Fill(5);
    list.SetEnabled(false);
    User().ClickRow(list, 2);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_THAT(clicks, testing::IsEmpty());
}

TEST_P(ListViews, FillingBeforeTheFormIsShownWorks) {
    auto other = NewForm(kContractDesign);
    auto& hidden = other->Get<ListView>("lvwRows");
    hidden.AddColumn("a", 600, 0);
    hidden.Fill(rows, TagsFrom(0, 10));
    hidden.SelectRow(4);
    hidden.EnsureVisible(9);
    other->Show();
    Settle();
    EXPECT_EQ(User().RowCount(hidden), 10);
    EXPECT_EQ(User().SelectedRow(hidden), 4);
}

}  // namespace
}  // namespace ordalyn::contract
