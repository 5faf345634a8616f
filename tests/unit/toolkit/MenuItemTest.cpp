#include "toolkit/MenuItem.h"

#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using test::kControl;
using test::kNoModifiers;
using testing::ElementsAre;

class MenuItemTest : public test::SampleTest {
  protected:
    std::vector<std::string> NamesOf(const std::vector<MenuItem*>& items) {
        std::vector<std::string> names;
        for (const MenuItem* item : items)
            names.push_back(item->Name());
        return names;
    }
    MenuItem& file = form.Menu("mnuFile");
    MenuItem& open = form.Menu("mnuFileOpen");
    MenuItem& recent = form.Menu("mnuFileRecent");
    MenuItem& first = form.Menu("mnuFileRecentFirst");
    Counter opened{open.Click};
    Counter firstChosen{first.Click};
};

TEST_F(MenuItemTest, TheTreeIsThatOfTheDesign) {
    EXPECT_THAT(NamesOf(form.AllMenuItems()),
                ElementsAre("mnuFile", "mnuFileOpen", "mnuFileRecent", "mnuFileRecentFirst",
                            "mnuFileLine", "mnuFileExit", "mnuContext", "mnuContextCopy"));
    EXPECT_EQ(form.Menus().size(), 2U);
    EXPECT_EQ(file.Parent(), nullptr);
    EXPECT_EQ(open.Parent(), &file);
    EXPECT_EQ(first.Parent(), &recent);
    EXPECT_EQ(file.Items().size(), 4U);
    EXPECT_EQ(form.Menu("mnuFileExit").KeyHint(), "Esc");
    EXPECT_EQ(open.Accelerator(), (Shortcut{'O', kControl}));
    EXPECT_FALSE(form.Menu("mnuContext").Visible());
    EXPECT_TRUE(form.Menu("mnuContextCopy").Visible());
    EXPECT_EQ(open.Caption(), "21");
    EXPECT_THROW(form.Menu("mnuNone"), SubscriptOutOfRange);
}

TEST_F(MenuItemTest, ATextMakesNoSeparator) {
    EXPECT_TRUE(form.Menu("mnuFileLine").IsSeparator());
    open.SetCaption("-");
    EXPECT_FALSE(open.IsSeparator());
    EXPECT_FALSE(file.AddItem("mnuFileMore", "").IsSeparator());
    EXPECT_TRUE(file.AddItem("mnuFileLine2", "-").IsSeparator());
}

TEST_F(MenuItemTest, ChoosingRaisesClick) {
    open.Choose();
    EXPECT_EQ(opened.Take(), 1);
}

TEST_F(MenuItemTest, ADisabledItemCannotBeChosen) {
    open.SetEnabled(false);
    open.Choose();
    EXPECT_EQ(opened.Take(), 0);
    open.SetEnabled(true);
    open.Choose();
    EXPECT_EQ(opened.Take(), 1);
}

TEST_F(MenuItemTest, AnItemOfADisabledMenuCannotBeChosen) {
    file.SetEnabled(false);
    first.Choose();
    EXPECT_EQ(firstChosen.Take(), 0);
    file.SetEnabled(true);
    recent.SetEnabled(false);
    first.Choose();
    EXPECT_EQ(firstChosen.Take(), 0);
    recent.SetEnabled(true);
    first.Choose();
    EXPECT_EQ(firstChosen.Take(), 1);
}

TEST_F(MenuItemTest, ItsShortcutChoosesIt) {
    EXPECT_TRUE(form.UserKeyDown('O', kControl));
    EXPECT_EQ(opened.Take(), 1);
    EXPECT_TRUE(form.UserKeyDown(key::F4, kNoModifiers));
    EXPECT_EQ(firstChosen.Take(), 1);
}

TEST_F(MenuItemTest, AShortcutNeedsItsModifiersExactly) {
    EXPECT_FALSE(form.UserKeyDown('O', kNoModifiers));
    EXPECT_FALSE(form.UserKeyDown('O', {true, true, false}));
    EXPECT_FALSE(form.UserKeyDown('P', kControl));
    EXPECT_EQ(opened.Take(), 0);
}

TEST_F(MenuItemTest, TheShortcutOfADisabledItemDoesNothingAndReachesNoControl) {
    open.SetEnabled(false);
    EXPECT_TRUE(form.UserKeyDown('O', kControl));
    EXPECT_EQ(opened.Take(), 0);
    recent.SetEnabled(false);
    EXPECT_TRUE(form.UserKeyDown(key::F4, kNoModifiers));
    EXPECT_EQ(firstChosen.Take(), 0);
}

TEST_F(MenuItemTest, AnItemWithoutAShortcutAnswersNoKey) {
    open.SetShortcut({});
    EXPECT_FALSE(form.UserKeyDown(0, kNoModifiers));
    EXPECT_FALSE(form.UserKeyDown('O', kControl));
    EXPECT_EQ(opened.Take(), 0);
}

TEST_F(MenuItemTest, AShortcutCanChange) {
    open.SetShortcut({key::F5, {}});
    EXPECT_TRUE(form.UserKeyDown(key::F5, kNoModifiers));
    EXPECT_EQ(opened.Take(), 1);
}

TEST_F(MenuItemTest, KeyDownIsRaisedBeforeTheShortcutIsLookedUp) {
    form.KeyDown.Subscribe([&](int key, Modifiers modifiers) {
        EXPECT_EQ(key, 'O');
        EXPECT_EQ(modifiers, kControl);
        EXPECT_EQ(opened.count, 0);
        open.SetEnabled(false);
    });
    form.UserKeyDown('O', kControl);
    EXPECT_EQ(opened.Take(), 0);
}

TEST_F(MenuItemTest, ItemsCanBeAddedAndRemoved) {
    MenuItem& added = recent.AddItem("mnuNew", "c:\\new.log");
    EXPECT_EQ(added.Parent(), &recent);
    EXPECT_EQ(&form.Menu("mnuNew"), &added);
    EXPECT_EQ(recent.Items().size(), 2U);
    recent.RemoveLastItem();
    EXPECT_THROW(form.Menu("mnuNew"), SubscriptOutOfRange);
    recent.RemoveLastItem();
    EXPECT_THROW(recent.RemoveLastItem(), SubscriptOutOfRange);
    EXPECT_FALSE(form.UserKeyDown(key::F4, kNoModifiers));  // its item is gone
}

TEST_F(MenuItemTest, StateIsKept) {
    open.SetCaption("&Open");
    open.SetChecked(true);
    open.SetTag("t");
    open.SetKeyHint("Enter");
    EXPECT_EQ(open.Caption(), "&Open");
    EXPECT_TRUE(open.Checked());
    EXPECT_EQ(open.Tag(), "t");
    EXPECT_EQ(open.KeyHint(), "Enter");
    open.SetVisible(false);
    EXPECT_FALSE(open.Visible());
}

TEST_F(MenuItemTest, AContextMenuPopsUp) {
    kit.onPopUp = [](MenuItem& item) { item.Items().front()->Choose(); };
    Counter copied(form.Menu("mnuContextCopy").Click);
    form.PopUpMenu(form.Menu("mnuContext"));
    EXPECT_THAT(kit.poppedUpMenus, ElementsAre("mnuContext"));
    EXPECT_EQ(copied.Take(), 1);
}

}  // namespace
}  // namespace ordalyn::toolkit
