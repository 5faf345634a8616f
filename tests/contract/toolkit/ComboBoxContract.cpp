#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;
using testing::IsEmpty;

class ComboBoxes : public ToolkitContract {
  protected:
    void SetUp() override {
        for (ComboBox* box : {&list, &edit}) {
            for (const char* item : {"alpha", "Beta", "beta", "größer"})
                box->AddItem(item);
        }
        Show();
    }
    void ExpectShown(ComboBox& box) {
        Settle();
        std::vector<std::string> items;
        for (int i = 0; i < box.ListCount(); ++i)
            items.push_back(box.List(i));
        EXPECT_EQ(User().ItemsOf(box), items);
        EXPECT_EQ(User().TextOf(box), box.Text());
        if (!box.Editable()) {
            EXPECT_EQ(User().SelectedItem(box), box.ListIndex());
        }
    }
    ComboBox& list = Get<ComboBox>("cboList");
    ComboBox& edit = Get<ComboBox>("cboEdit");
    Counter listClick{list.Click};
    Counter editClick{edit.Click};
    Counter editChange{edit.Change};
};
INSTANTIATE_TEST_SUITE_P(Toolkit, ComboBoxes, AllRealisations(), RealisationName);

TEST_P(ComboBoxes, ItemsAreShownInTheirOrder) {
    ExpectShown(list);
    ExpectShown(edit);
    list.InsertItem(1, "between");
    list.AddItem("");
    ExpectShown(list);
    list.SetListIndex(1);
    listClick.Take();
    list.AddItems({"many", "at \u00dcnce", ""});
    ExpectShown(list);
    EXPECT_EQ(list.ListIndex(), 1);
    edit.SetVisible(false);
    edit.AddItems({"unseen"});
    EXPECT_FALSE(User().IsVisible(edit));
    ExpectShown(edit);
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_P(ComboBoxes, AChoiceRaisesClickForCodeAndForTheUser) {
    User().Choose(list, 2);
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(list.Text(), "beta");
    EXPECT_EQ(listClick.Take(), 1);
    ExpectShown(list);
    list.SetListIndex(0);
    Settle();
    EXPECT_EQ(listClick.Take(), 1);
    ExpectShown(list);
}

TEST_P(ComboBoxes, SettingTheSameIndexOrNoneRaisesClickToo) {
    list.SetListIndex(1);
    list.SetListIndex(1);
    list.SetListIndex(-1);
    list.SetListIndex(-1);
    Settle();
    EXPECT_EQ(listClick.Take(), 4);
    EXPECT_EQ(list.Text(), "");
    ExpectShown(list);
}

TEST_P(ComboBoxes, ClearingRaisesNothing) {
    list.SetListIndex(1);
    edit.SetText("typed");
    listClick.Take();
    editClick.Take();
    editChange.Take();
    list.Clear();
    edit.Clear();
    ExpectShown(list);
    ExpectShown(edit);
    EXPECT_THAT(User().ItemsOf(edit), IsEmpty());
    EXPECT_EQ(User().TextOf(edit), "");
    EXPECT_EQ(listClick.Take() + editClick.Take() + editChange.Take(), 0);
}

TEST_P(ComboBoxes, InsertingMovesTheSelectionWithItsItem) {
    list.SetListIndex(1);
    listClick.Take();
    list.InsertItem(0, "first");
    EXPECT_EQ(list.Text(), "Beta");
    ExpectShown(list);
    list.InsertItem(2, "at the selected one");
    EXPECT_EQ(list.Text(), "Beta");
    ExpectShown(list);
    list.InsertItem(4, "behind");
    EXPECT_EQ(list.Text(), "Beta");
    ExpectShown(list);
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_P(ComboBoxes, RemovingTheSelectedItemLeavesNone) {
    list.SetListIndex(1);
    listClick.Take();
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), -1);
    ExpectShown(list);
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_P(ComboBoxes, RemovingAnotherItemKeepsTheSelection) {
    list.SetListIndex(2);
    listClick.Take();
    list.RemoveItem(0);
    EXPECT_EQ(list.Text(), "beta");
    ExpectShown(list);
    list.RemoveItem(2);
    EXPECT_EQ(list.Text(), "beta");
    ExpectShown(list);
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_P(ComboBoxes, AnItemThatBecomesAnotherKeepsTheSelection) {
    for (ComboBox* box : {&list, &edit}) {
        box->SetListIndex(1);
        listClick.Take();
        editClick.Take();
        box->SetItem(1, "changed");
        EXPECT_EQ(box->Text(), "changed");
        ExpectShown(*box);
        box->SetItem(0, "other");
        EXPECT_EQ(box->Text(), "changed");
        EXPECT_EQ(box->ListIndex(), 1);
        ExpectShown(*box);
        EXPECT_EQ(listClick.Take() + editClick.Take() + editChange.Take(), 0);
    }
}

TEST_P(ComboBoxes, ATypedTextStaysWhateverHappensToTheItems) {
    edit.SetListIndex(1);
    User().Type(edit, "typed");
    edit.SetItem(1, "changed");
    ExpectShown(edit);
    edit.RemoveItem(1);
    ExpectShown(edit);
    edit.InsertItem(0, "new");
    ExpectShown(edit);
    EXPECT_EQ(edit.Text(), "typed");
}

TEST_P(ComboBoxes, RemovingTheSelectedItemKeepsTheTextOfAnEditableBox) {
    edit.SetListIndex(1);
    editClick.Take();
    edit.RemoveItem(1);
    EXPECT_EQ(edit.Text(), "Beta");
    EXPECT_EQ(edit.ListIndex(), -1);
    ExpectShown(edit);
    EXPECT_EQ(editClick.Take() + editChange.Take(), 0);
}

TEST_P(ComboBoxes, TheTextOfAListChoosesIgnoringCase) {
    list.SetText("BETA");
    EXPECT_EQ(list.ListIndex(), 1);
    list.SetText("GRÖßER");
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(listClick.Take(), 2);
    ExpectShown(list);
    EXPECT_THROW(list.SetText("gr"), InvalidPropertyValue);
    EXPECT_EQ(listClick.Take(), 0);
    ExpectShown(list);
}

TEST_P(ComboBoxes, AnEditableBoxTakesAnyText) {
    edit.SetText("delta");
    EXPECT_EQ(editChange.Take(), 1);
    EXPECT_EQ(editClick.Take(), 0);
    EXPECT_EQ(edit.ListIndex(), -1);
    ExpectShown(edit);
    edit.SetText("delta");
    Settle();
    EXPECT_EQ(editChange.Take(), 0);
}

TEST_P(ComboBoxes, TypingRaisesChange) {
    edit.SetListIndex(1);
    editClick.Take();
    editChange.Take();
    User().Type(edit, "xyЖ");
    EXPECT_EQ(edit.Text(), "xyЖ");
    EXPECT_EQ(edit.ListIndex(), -1);
    EXPECT_GE(editChange.Take(), 1);
    EXPECT_EQ(editClick.Take(), 0);
    ExpectShown(edit);
}

TEST_P(ComboBoxes, TypingDoesNotCompleteOrChoose) {
    User().Type(edit, "a");
    EXPECT_EQ(edit.Text(), "a");
    EXPECT_EQ(User().TextOf(edit), "a");
    EXPECT_EQ(edit.ListIndex(), -1);
}

TEST_P(ComboBoxes, ChoosingGivesAnEditableBoxTheItemsText) {
    User().Type(edit, "x");
    editChange.Take();
    User().Choose(edit, 1);
    EXPECT_EQ(edit.Text(), "Beta");
    EXPECT_EQ(edit.ListIndex(), 1);
    EXPECT_EQ(editClick.Take(), 1);
    ExpectShown(edit);
    edit.SetListIndex(3);
    EXPECT_EQ(edit.Text(), "größer");
    EXPECT_EQ(editClick.Take(), 1);
    ExpectShown(edit);
    edit.SetListIndex(-1);
    EXPECT_EQ(edit.Text(), "");
    EXPECT_EQ(editClick.Take(), 1);
    ExpectShown(edit);
    EXPECT_EQ(editChange.Take(), 0);
}

TEST_P(ComboBoxes, ADisabledBoxCannotBeUsed) {
    list.SetEnabled(false);
    User().Choose(list, 1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(listClick.Take(), 0);
}

TEST_P(ComboBoxes, TheTextCanBeSelected) {
    edit.SetText("abcdef");
    edit.SelectText(1, 3);
    EXPECT_EQ(User().SelectionOf(edit), (Selection{1, 3}));
    edit.SelectText(0, 6);
    EXPECT_EQ(User().SelectionOf(edit), (Selection{0, 6}));
}

TEST_P(ComboBoxes, AnotherSizeKeepsTextAndSelection) {
    edit.SetText("abcdef");
    edit.SelectText(2, 0);
    editChange.Take();
    edit.SetWidth(3000);
    Settle();
    EXPECT_EQ(User().SelectionOf(edit), (Selection{2, 0}));
    EXPECT_EQ(editChange.Take(), 0);
    ExpectShown(edit);
}

TEST_P(ComboBoxes, AChoiceMayChangeTheList) {
    list.Click.Subscribe([&] {
        if (list.ListCount() != 4)
            return;
        list.Clear();
        list.AddItem("new");
    });
    User().Choose(list, 1);
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(list.ListIndex(), -1);
    ExpectShown(list);
    EXPECT_EQ(listClick.Take(), 1);
}

TEST_P(ComboBoxes, ManyItemsAreNoTrouble) {
    for (int i = 0; i < 3000; ++i)
        list.AddItem("item " + std::to_string(i));
    list.SetListIndex(3003);
    ExpectShown(list);
    User().Choose(list, 3000);
    EXPECT_EQ(list.Text(), "item 2996");
}

}  // namespace
}  // namespace ordalyn::contract
