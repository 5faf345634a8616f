#include "toolkit/ComboBox.h"

#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using testing::ElementsAre;
using testing::IsEmpty;

class ComboBoxTest : public test::SampleTest {
  protected:
    ComboBoxTest() {
        for (ComboBox* box : {&list, &edit}) {
            box->AddItem("alpha");
            box->AddItem("Beta");
            box->AddItem("beta");
            box->AddItem("gamma");
        }
    }
    ComboBox& list = Get<ComboBox>("cboList");
    ComboBox& edit = Get<ComboBox>("cboEdit");
    Counter listClick{list.Click};
    Counter editClick{edit.Click};
    Counter editChange{edit.Change};
};

TEST_F(ComboBoxTest, ItemsAreNumberedFromNought) {
    EXPECT_EQ(list.ListCount(), 4);
    EXPECT_EQ(list.List(0), "alpha");
    EXPECT_EQ(list.List(3), "gamma");
    EXPECT_THAT(On(list).items, ElementsAre("alpha", "Beta", "beta", "gamma"));
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ComboBoxTest, IndicesOutsideThrow) {
    for (const int index : {-1, 4, 100}) {
        EXPECT_THROW(list.List(index), SubscriptOutOfRange);
        EXPECT_THROW(list.SetItem(index, "x"), SubscriptOutOfRange);
        EXPECT_THROW(list.RemoveItem(index), SubscriptOutOfRange);
    }
    EXPECT_THROW(list.InsertItem(-1, "x"), SubscriptOutOfRange);
    EXPECT_THROW(list.InsertItem(5, "x"), SubscriptOutOfRange);
    EXPECT_NO_THROW(list.InsertItem(4, "x"));
    list.SetListIndex(1);
    listClick.Take();
    EXPECT_THROW(list.SetListIndex(-2), InvalidPropertyValue);
    EXPECT_THROW(list.SetListIndex(5), InvalidPropertyValue);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_F(ComboBoxTest, SettingTheListIndexRaisesClickAlsoForTheSameAndForNone) {
    list.SetListIndex(3);
    EXPECT_EQ(listClick.Take(), 1);
    EXPECT_EQ(list.Text(), "gamma");
    list.SetListIndex(3);
    EXPECT_EQ(listClick.Take(), 1);
    list.SetListIndex(-1);
    EXPECT_EQ(listClick.Take(), 1);
    EXPECT_EQ(list.Text(), "");
    list.SetListIndex(-1);
    EXPECT_EQ(listClick.Take(), 1);
    EXPECT_EQ(On(list).listIndex, -1);
}

TEST_F(ComboBoxTest, TheIndexIsNewWhenClickIsRaised) {
    int seen = -5;
    list.Click.Subscribe([&] { seen = list.ListIndex(); });
    list.SetListIndex(2);
    EXPECT_EQ(seen, 2);
}

TEST_F(ComboBoxTest, AChoiceOfTheUserRaisesClick) {
    list.UserSelected(1);
    EXPECT_EQ(listClick.Take(), 1);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.Text(), "Beta");
    list.UserSelected(1);
    EXPECT_EQ(listClick.Take(), 1);
}

TEST_F(ComboBoxTest, ClearingRaisesNothing) {
    list.SetListIndex(1);
    edit.SetText("typed");
    listClick.Take();
    editClick.Take();
    editChange.Take();
    list.Clear();
    edit.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(edit.Text(), "");
    EXPECT_THAT(On(list).items, IsEmpty());
    EXPECT_EQ(On(edit).text, "");
    EXPECT_EQ(listClick.Take() + editClick.Take() + editChange.Take(), 0);
}

TEST_F(ComboBoxTest, InsertingAtOrAboveTheSelectedItemMovesTheSelectionWithIt) {
    list.SetListIndex(1);
    listClick.Take();
    list.InsertItem(1, "before");
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(On(list).listIndex, 2);
    EXPECT_EQ(list.Text(), "Beta");
    list.InsertItem(0, "first");
    EXPECT_EQ(list.ListIndex(), 3);
    list.InsertItem(4, "after");
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_F(ComboBoxTest, InsertingSelectsNothingWhenNothingIsSelected) {
    list.InsertItem(0, "first");
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ComboBoxTest, RemovingTheSelectedItemLeavesNone) {
    list.SetListIndex(1);
    listClick.Take();
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(On(list).listIndex, -1);
    EXPECT_EQ(list.Text(), "");
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_F(ComboBoxTest, RemovingAnotherItemKeepsTheSelection) {
    list.SetListIndex(2);
    listClick.Take();
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), 1);
    list.RemoveItem(2);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.Text(), "beta");
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_F(ComboBoxTest, AnItemCanBecomeAnother) {
    list.SetListIndex(1);
    edit.SetListIndex(1);
    listClick.Take();
    editClick.Take();
    for (ComboBox* box : {&list, &edit}) {
        box->SetItem(1, "changed");
        box->SetItem(0, "other");
        EXPECT_EQ(box->ListIndex(), 1);
        EXPECT_EQ(box->Text(), "changed");
        EXPECT_EQ(On(*box).text, "changed");
        EXPECT_EQ(On(*box).items[0], "other");
    }
    EXPECT_EQ(listClick.Take() + editClick.Take() + editChange.Take(), 0);
}

TEST_F(ComboBoxTest, ATypedTextStaysWhenAnItemBecomesAnother) {
    edit.SetListIndex(1);
    edit.UserEdited("typed");
    edit.SetItem(1, "changed");
    EXPECT_EQ(edit.Text(), "typed");
}

TEST_F(ComboBoxTest, TheTextOfAListSelectsTheFirstItemEqualToItIgnoringCase) {
    list.SetText("BETA");
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.Text(), "Beta");
    EXPECT_EQ(listClick.Take(), 1);
    list.SetText("beta");
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(listClick.Take(), 1);
    list.SetText("ALPHA");
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(ComboBoxTest, ATextThatNoItemOfAListHasThrows) {
    list.SetListIndex(1);
    listClick.Take();
    EXPECT_THROW(list.SetText("delta"), InvalidPropertyValue);
    EXPECT_THROW(list.SetText("bet"), InvalidPropertyValue);
    EXPECT_THROW(list.SetText(""), InvalidPropertyValue);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_F(ComboBoxTest, AnEditableBoxTakesAnyTextAndKeepsNoSelection) {
    edit.SetListIndex(1);
    EXPECT_EQ(edit.Text(), "Beta");
    EXPECT_EQ(editClick.Take(), 1);
    EXPECT_EQ(editChange.Take(), 0);
    edit.SetText("delta");
    EXPECT_EQ(edit.Text(), "delta");
    EXPECT_EQ(On(edit).text, "delta");
    EXPECT_EQ(edit.ListIndex(), -1);
    EXPECT_EQ(editChange.Take(), 1);
    EXPECT_EQ(editClick.Take(), 0);
}

TEST_F(ComboBoxTest, TheSameTextRaisesNothingButLosesTheSelection) {
    edit.SetListIndex(1);
    editClick.Take();
    edit.SetText("Beta");
    EXPECT_EQ(edit.ListIndex(), -1);
    EXPECT_EQ(editChange.Take(), 0);
    edit.SetText("BETA");
    EXPECT_EQ(editChange.Take(), 1);
}

TEST_F(ComboBoxTest, TypingRaisesChangeAndLosesTheSelection) {
    edit.SetListIndex(1);
    editClick.Take();
    edit.UserEdited("Bet");
    EXPECT_EQ(edit.Text(), "Bet");
    EXPECT_EQ(edit.ListIndex(), -1);
    EXPECT_EQ(editChange.Take(), 1);
    edit.UserEdited("Bet");
    EXPECT_EQ(editChange.Take(), 0);
    EXPECT_EQ(editClick.Take(), 0);
}

TEST_F(ComboBoxTest, ChoosingAnItemGivesAnEditableBoxItsText) {
    edit.UserEdited("x");
    editChange.Take();
    edit.UserSelected(3);
    EXPECT_EQ(edit.Text(), "gamma");
    EXPECT_EQ(edit.ListIndex(), 3);
    EXPECT_EQ(editClick.Take(), 1);
    EXPECT_EQ(editChange.Take(), 0);
}

TEST_F(ComboBoxTest, NoItemMeansNoTextInAnEditableBox) {
    edit.SetText("x");
    edit.SetListIndex(-1);
    EXPECT_EQ(edit.Text(), "");
    EXPECT_EQ(On(edit).text, "");
}

TEST_F(ComboBoxTest, RemovingTheSelectedItemKeepsTheTextOfAnEditableBox) {
    edit.SetListIndex(1);
    edit.RemoveItem(1);
    EXPECT_EQ(edit.ListIndex(), -1);
    EXPECT_EQ(edit.Text(), "Beta");
    EXPECT_EQ(editChange.Take(), 0);
}

TEST_F(ComboBoxTest, EnterInTheOpenListChoosesItsItemOnce) {
    int enters = 0;
    edit.KeyDown.Subscribe([&](int key, Modifiers) { enters += key == key::Enter ? 1 : 0; });
    edit.SetText("x");
    editClick.Take();
    edit.UserEnteredList(1);
    EXPECT_EQ(edit.Text(), "Beta");
    EXPECT_EQ(edit.ListIndex(), 1);
    EXPECT_EQ(editClick.Take(), 1);
    edit.UserEnteredList(1);  // reported when it was marked
    EXPECT_EQ(editClick.Take(), 0);
    EXPECT_EQ(enters, 0);
    edit.UserEnteredList(-1);
    EXPECT_EQ(enters, 1);
}

TEST_F(ComboBoxTest, PartOfTheTextCanBeSelected) {
    edit.SetText("abc");
    edit.SelectText(1, 2);
    EXPECT_EQ(On(edit).selectionStart, 1U);
    EXPECT_EQ(On(edit).selectionLength, 2U);
}

}  // namespace
}  // namespace ordalyn::toolkit
