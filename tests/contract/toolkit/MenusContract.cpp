#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;

class Menus : public ToolkitContract {
  protected:
    void SetUp() override { Show(); }
    double Near() { return 2 * Kit().TwipsPerPixelX(); }
    MenuItem& Item(const char* name) { return Form().Menu(name); }
    std::vector<MenuSeen> FileMenu() { return User().MenusOf(Form()).at(0).items; }
    std::vector<std::string> Captions(const std::vector<MenuSeen>& items) {
        std::vector<std::string> captions;
        for (const MenuSeen& item : items)
            captions.push_back(item.separator ? "-" : item.caption);
        return captions;
    }
};
INSTANTIATE_TEST_SUITE_P(Toolkit, Menus, AllRealisations(), RealisationName);

TEST_P(Menus, AreShownAsDesigned) {
    const std::vector<MenuSeen> bar = User().MenusOf(Form());
    EXPECT_THAT(Captions(bar), ElementsAre("&File", "&Help"));  // context menus are not on it
    EXPECT_THAT(Captions(bar[0].items), ElementsAre("&Open", "&Recent", "-", "E&xit"));
    EXPECT_THAT(Captions(bar[0].items[1].items), ElementsAre("first"));
    EXPECT_THAT(Captions(bar[1].items), ElementsAre("&About"));
}

TEST_P(Menus, ShowTheShortcutOrTheHintRightOfTheCaption) {
    const std::vector<MenuSeen> items = FileMenu();
    EXPECT_EQ(items[0].keys, "Ctrl+O");
    EXPECT_EQ(items[1].keys, "");
    EXPECT_EQ(items[1].items[0].keys, "F4");
    EXPECT_EQ(items[3].keys, "Esc");
    Item("mnuFileOpen").SetShortcut({'S', {true, true, false}});
    EXPECT_EQ(FileMenu()[0].keys, "Ctrl+Shift+S");
    Item("mnuFileOpen").SetKeyHint("hint");
    EXPECT_EQ(FileMenu()[0].keys, "hint");
}

TEST_P(Menus, ShowWhatChanges) {
    Item("mnuFileOpen").SetCaption("Ö&ffnen");
    Item("mnuFileOpen").SetChecked(true);
    Item("mnuFileExit").SetEnabled(false);
    Item("mnuHelp").SetCaption("&Hilfe");
    const std::vector<MenuSeen> items = FileMenu();
    EXPECT_EQ(items[0].caption, "Ö&ffnen");
    EXPECT_EQ(items[0].keys, "Ctrl+O");
    EXPECT_TRUE(items[0].checked);
    EXPECT_FALSE(items[1].checked);
    EXPECT_FALSE(items[3].enabled);
    EXPECT_TRUE(items[0].enabled);
    EXPECT_EQ(User().MenusOf(Form())[1].caption, "&Hilfe");
    Item("mnuFileOpen").SetChecked(false);
    Item("mnuFileExit").SetEnabled(true);
    EXPECT_FALSE(FileMenu()[0].checked);
    EXPECT_TRUE(FileMenu()[3].enabled);
}

TEST_P(Menus, FollowAddedRemovedAndHiddenItems) {
    Item("mnuFileRecent").AddItem("mnuSecond", "second");
    EXPECT_THAT(Captions(FileMenu()[1].items), ElementsAre("first", "second"));
    Item("mnuFileRecent").RemoveLastItem();
    EXPECT_THAT(Captions(FileMenu()[1].items), ElementsAre("first"));
    Item("mnuFileRecent").SetVisible(false);
    EXPECT_THAT(Captions(FileMenu()), ElementsAre("&Open", "-", "E&xit"));
    Item("mnuFileRecent").SetVisible(true);
    EXPECT_THAT(Captions(FileMenu()), ElementsAre("&Open", "&Recent", "-", "E&xit"));
    Item("mnuHelp").SetVisible(false);
    EXPECT_THAT(Captions(User().MenusOf(Form())), ElementsAre("&File"));
    Item("mnuHelp").SetVisible(true);
    EXPECT_THAT(Captions(User().MenusOf(Form())), ElementsAre("&File", "&Help"));
}

TEST_P(Menus, KeepTheStateOfItemsWhenTheyAreReadAnew) {
    Item("mnuFileOpen").SetChecked(true);
    Item("mnuFileExit").SetEnabled(false);
    Item("mnuFile").AddItem("mnuMore", "more");
    const std::vector<MenuSeen> items = FileMenu();
    EXPECT_TRUE(items[0].checked);
    EXPECT_FALSE(items[3].enabled);
    EXPECT_EQ(items[4].caption, "more");
    Item("mnuMore").SetCaption("changed");
    EXPECT_EQ(FileMenu()[4].caption, "changed");
}

TEST_P(Menus, AChosenItemRaisesClick) {
    Counter open(Item("mnuFileOpen").Click);
    Counter first(Item("mnuFileRecentFirst").Click);
    Counter about(Item("mnuHelpAbout").Click);
    User().ChooseMenu(Form(), {0, 0});
    EXPECT_EQ(open.Take(), 1);
    User().ChooseMenu(Form(), {0, 1, 0});
    EXPECT_EQ(first.Take(), 1);
    User().ChooseMenu(Form(), {1, 0});
    EXPECT_EQ(about.Take(), 1);
    EXPECT_EQ(open.Take() + first.Take(), 0);
}

TEST_P(Menus, AnAddedItemCanBeChosen) {
    MenuItem& added = Item("mnuFileRecent").AddItem("mnuSecond", "second");
    Counter chosen(added.Click);
    User().ChooseMenu(Form(), {0, 1, 1});
    EXPECT_EQ(chosen.Take(), 1);
}

TEST_P(Menus, ADisabledItemCannotBeChosen) {
    Counter open(Item("mnuFileOpen").Click);
    Item("mnuFileOpen").SetEnabled(false);
    User().ChooseMenu(Form(), {0, 0});
    EXPECT_EQ(open.Take(), 0);
}

TEST_P(Menus, AHandlerMayChangeTheMenus) {
    MenuItem& recent = Item("mnuFileRecent");
    recent.AddItem("mnuSecond", "second").Click.Subscribe([&] {
        recent.RemoveLastItem();
        recent.AddItem("mnuThird", "third");
        recent.AddItem("mnuFourth", "fourth");
    });
    User().ChooseMenu(Form(), {0, 1, 1});
    EXPECT_THAT(Captions(FileMenu()[1].items), ElementsAre("first", "third", "fourth"));
}

TEST_P(Menus, ManyChangesAreNoTrouble) {
    MenuItem& recent = Item("mnuFileRecent");
    for (int round = 0; round < 20; ++round) {
        for (int i = 0; i < 50; ++i)
            recent.AddItem("mnu", "file " + std::to_string(i));
        Settle();
        for (int i = 0; i < 50; ++i)
            recent.RemoveLastItem();
        Settle();
    }
    EXPECT_THAT(Captions(FileMenu()[1].items), ElementsAre("first"));
    Counter first(Item("mnuFileRecentFirst").Click);
    User().ChooseMenu(Form(), {0, 1, 0});
    EXPECT_EQ(first.Take(), 1);
}

TEST_P(Menus, AHiddenMenuPopsUp) {
    Counter copied(Item("mnuContextCopy").Click);
    Counter more(Item("mnuContextMore").Click);
    User().PopUpAndChoose(Form(), Item("mnuContext"), 0);
    EXPECT_EQ(copied.Take(), 1);
    User().PopUpAndChoose(Form(), Item("mnuContext"), 2);
    EXPECT_EQ(more.Take(), 1);
    EXPECT_EQ(copied.Take(), 0);
}

TEST_P(Menus, APopUpCanBeDismissed) {
    Counter copied(Item("mnuContextCopy").Click);
    User().PopUpAndChoose(Form(), Item("mnuContext"), -1);
    EXPECT_EQ(copied.Take(), 0);
    Counter pressed(Get<CommandButton>("cmdOk").Click);
    User().Press(Get<CommandButton>("cmdOk"));
    EXPECT_EQ(pressed.Take(), 1);
}

TEST_P(Menus, PopUpBelowAPartOfTheScreen) {
    const Rect row{3000, 2250, 3000, 255};
    const Rect menu = User().PopUpBelow(Form(), Item("mnuContext"), row);
    EXPECT_NEAR(menu.left, row.left, Near());
    EXPECT_NEAR(menu.top, row.top + row.height, Near());
    EXPECT_GT(menu.width, 0);
}

TEST_P(Menus, RightToLeftPopUpBelowTheRightEnd) {
    Form().SetRightToLeft(true);
    const Rect row{3000, 2250, 3000, 255};
    const Rect menu = User().PopUpBelow(Form(), Item("mnuContext"), row);
    EXPECT_NEAR(menu.left + menu.width, row.left + row.width, Near());
    EXPECT_NEAR(menu.top, row.top + row.height, Near());
}

TEST_P(Menus, PopUpOnTheScreenAlsoAtItsEnd) {
    const Rect screen = Kit().WorkArea();
    const Rect row{3000, screen.top + screen.height - 300, 3000, 255};
    const Rect menu = User().PopUpBelow(Form(), Item("mnuContext"), row);
    EXPECT_LE(menu.top + menu.height, screen.top + screen.height + Near());
    EXPECT_NEAR(menu.left, row.left, Near());
}

TEST_P(Menus, AFormWithoutVisibleMenusHasNoBar) {
    const Twips before = Form().ClientSize().height;
    Item("mnuFile").SetVisible(false);
    Item("mnuHelp").SetVisible(false);
    EXPECT_TRUE(User().MenusOf(Form()).empty());
    EXPECT_GT(Form().ClientSize().height, before);
    Item("mnuFile").SetVisible(true);
    EXPECT_EQ(Form().ClientSize().height, before);
}

TEST_P(Menus, RightToLeftMenusWorkToo) {
    Form().SetRightToLeft(true);
    Settle();
    EXPECT_THAT(Captions(User().MenusOf(Form())), ElementsAre("&File", "&Help"));
    Counter open(Item("mnuFileOpen").Click);
    User().ChooseMenu(Form(), {0, 0});
    EXPECT_EQ(open.Take(), 1);
}

}  // namespace
}  // namespace ordalyn::contract
