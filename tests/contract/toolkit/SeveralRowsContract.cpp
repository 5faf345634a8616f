#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kMillion = 1'000'000;
constexpr Modifiers kShift{.shift = true};
constexpr Modifiers kControl{.control = true};
constexpr Modifiers kBoth{.shift = true, .control = true};

class SeveralRows : public ToolkitContract {
  protected:
    void SetUp() override {
        list.AddColumn("Time", 1200, 3);
        list.SetMultiSelect(true);
        list.ItemClick.Subscribe([this](int row) { clicks.push_back(row); });
        list.SelectionChanged.Subscribe([this] { ++changes; });
        Show();
        Fill(50);
    }
    void Fill(std::int32_t count) {
        list.Fill(std::make_shared<CountedRows>(), TagsFrom(100, count));
        Settle();
    }
    void Key(int key, Modifiers modifiers = {}) { User().PressKey(Form(), key, modifiers); }
    // What the program has and what is seen of it are the same.
    std::vector<int> Selected() {
        EXPECT_EQ(User().SelectedRows(list), list.SelectedRows());
        std::vector<int> rows;
        list.SelectedRows().ForEach([&](int row) { rows.push_back(row); });
        return rows;
    }

    ListView& list = Get<ListView>("lvwRows");
    std::vector<int> clicks;
    int changes = 0;
};
INSTANTIATE_TEST_SUITE_P(Toolkit, SeveralRows, AllRealisations(), RealisationName);

TEST_P(SeveralRows, AClickSelectsOneAlone) {
    User().ClickRow(list, 2);
    EXPECT_THAT(Selected(), ElementsAre(2));
    User().ClickRow(list, 4);
    EXPECT_THAT(Selected(), ElementsAre(4));
    EXPECT_THAT(clicks, ElementsAre(2, 4));
    EXPECT_EQ(changes, 2);
}

TEST_P(SeveralRows, ControlSelectsOneMoreOrOneLess) {
    User().ClickRow(list, 2);
    User().ClickRow(list, 5, kControl);
    EXPECT_THAT(Selected(), ElementsAre(2, 5));
    EXPECT_EQ(list.SelectedRow(), 5);
    User().ClickRow(list, 2, kControl);
    EXPECT_THAT(Selected(), ElementsAre(5));
    User().ClickRow(list, 4, kControl);
    User().ClickRow(list, 4, kControl);
    EXPECT_THAT(Selected(), ElementsAre(5));
    EXPECT_EQ(list.SelectedRow(), 5) << "the nearest that is still selected";
    User().ClickRow(list, 5, kControl);
    EXPECT_THAT(Selected(), IsEmpty());
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_THAT(clicks, ElementsAre(2, 5, 5, 4, 5));
    EXPECT_EQ(changes, 6);
}

TEST_P(SeveralRows, ShiftSelectsFromTheRowThatWasChosenLast) {
    User().ClickRow(list, 4);
    User().ClickRow(list, 7, kShift);
    EXPECT_THAT(Selected(), ElementsAre(4, 5, 6, 7));
    EXPECT_EQ(list.SelectedRow(), 7);
    User().ClickRow(list, 2, kShift);
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4));
    EXPECT_EQ(list.SelectedRow(), 2);
    User().ClickRow(list, 6, kControl);
    User().ClickRow(list, 8, kBoth);
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4, 6, 7, 8));
    User().ClickRow(list, 5);
    EXPECT_THAT(Selected(), ElementsAre(5));
}

TEST_P(SeveralRows, ShiftSelectsFromTheRowThatCodeSelected) {
    list.SelectRow(3);
    User().ClickRow(list, 5, kShift);
    EXPECT_THAT(Selected(), ElementsAre(3, 4, 5));
}

TEST_P(SeveralRows, ShiftWithArrowsSelectsMoreAndLess) {
    list.SetFocus();
    list.SelectRow(3);
    Settle();
    Key(key::Down, kShift);
    Key(key::Down, kShift);
    EXPECT_THAT(Selected(), ElementsAre(3, 4, 5));
    EXPECT_THAT(clicks, ElementsAre(4, 5));
    Key(key::Up, kShift);
    EXPECT_THAT(Selected(), ElementsAre(3, 4));
    Key(key::Home, kShift);
    EXPECT_THAT(Selected(), ElementsAre(0, 1, 2, 3));
    Key(key::End, kShift);
    EXPECT_EQ(list.SelectedRows(), RowRanges(3, 50));
    EXPECT_EQ(list.SelectedRow(), 49);
    Key(key::Up);
    EXPECT_THAT(Selected(), ElementsAre(48));
}

TEST_P(SeveralRows, AnArrowThatCannotMoveLeavesItsRowAlone) {
    list.SetFocus();
    list.SelectRow(48);
    Settle();
    Key(key::Down, kShift);
    EXPECT_THAT(Selected(), ElementsAre(48, 49));
    Key(key::Down);
    EXPECT_THAT(Selected(), ElementsAre(49));
}

TEST_P(SeveralRows, ControlASelectsAllAndLeavesTheRowWhereOneIs) {
    list.SetFocus();
    list.SelectRow(3);
    Settle();
    Key('A', kControl);
    EXPECT_EQ(list.SelectedRows(), RowRanges(0, 50));
    EXPECT_EQ(User().SelectedRows(list), RowRanges(0, 50));
    EXPECT_EQ(list.SelectedRow(), 3);
    EXPECT_THAT(clicks, IsEmpty());
    EXPECT_EQ(changes, 1);
    Key('A', kControl);
    EXPECT_EQ(changes, 1);
}

TEST_P(SeveralRows, ControlAComesToTheFirstRowWhenNoneWasSelected) {
    list.SetFocus();
    Settle();
    Key('A', kControl);
    EXPECT_EQ(list.SelectedRow(), 0);
    EXPECT_THAT(clicks, ElementsAre(0));
    list.ClearRows();
    Key('A', kControl);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_THAT(clicks, ElementsAre(0));
}

TEST_P(SeveralRows, ARightClickOnOneOfThemKeepsThem) {
    User().ClickRow(list, 4);
    User().ClickRow(list, 7, kShift);
    User().RightClickRow(list, 5);
    EXPECT_THAT(Selected(), ElementsAre(4, 5, 6, 7));
    EXPECT_EQ(list.SelectedRow(), 5);
    User().RightClickRow(list, 8);
    EXPECT_THAT(Selected(), ElementsAre(8));
}

TEST_P(SeveralRows, AClickBelowTheRowsSelectsNone) {
    Fill(3);
    list.SetFocus();
    Settle();
    Key('A', kControl);
    changes = 0;
    User().ClickBelowRows(list);
    EXPECT_THAT(Selected(), IsEmpty());
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_EQ(changes, 1);
}

TEST_P(SeveralRows, CodeSelectsThemWithoutAnEvent) {
    RowRanges rows(2, 5);
    rows.Add(9, 10);
    list.SelectRows(rows, 9);
    Settle();
    EXPECT_THAT(Selected(), ElementsAre(2, 3, 4, 9));
    EXPECT_EQ(list.SelectedRow(), 9);
    list.SelectRow(1);
    Settle();
    EXPECT_THAT(Selected(), ElementsAre(1));
    EXPECT_THAT(clicks, IsEmpty());
    EXPECT_EQ(changes, 0);
}

TEST_P(SeveralRows, NewRowsAreSelectedAsCodeSays) {
    list.SelectRows(RowRanges(0, 50), 9);
    list.ReplaceRows(TagsFrom(100, 20), RowRanges(4, 7), 5);
    Settle();
    EXPECT_THAT(Selected(), ElementsAre(4, 5, 6));
    EXPECT_EQ(list.SelectedRow(), 5);
    list.ReplaceRows(TagsFrom(100, 10), 3);
    EXPECT_THAT(Selected(), ElementsAre(3));
    list.SelectRows(RowRanges(0, 10), 3);
    Fill(30);
    EXPECT_THAT(Selected(), IsEmpty());
}

TEST_P(SeveralRows, AMillionRowsAreSelectedAtOnce) {
    Fill(kMillion);
    list.SetFocus();
    list.SelectRow(5);
    Settle();
    const int effort = User().Effort(list, [&] {
        Key('A', kControl);
        Key(key::End, kShift);
        Key(key::Home, kShift);
        Key('A', kControl);
        Key(key::End);
        User().ClickRow(list, kMillion - 3);
    });
    EXPECT_LT(effort, 600);
    EXPECT_THAT(Selected(), ElementsAre(kMillion - 3));
    EXPECT_LE(clicks.size(), 4U);
}

TEST_P(SeveralRows, AListOfSingleRowsTakesNoneBeside) {
    list.SetMultiSelect(false);
    list.SetFocus();
    User().ClickRow(list, 4);
    User().ClickRow(list, 7, kShift);
    EXPECT_THAT(Selected(), ElementsAre(7));
    User().ClickRow(list, 2, kControl);
    EXPECT_THAT(Selected(), ElementsAre(2));
    Key('A', kControl);
    EXPECT_THAT(Selected(), ElementsAre(2));
}

}  // namespace
}  // namespace ordalyn::contract
