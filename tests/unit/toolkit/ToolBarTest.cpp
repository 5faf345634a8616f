#include "toolkit/ToolBar.h"

#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using testing::ElementsAre;
using testing::Pair;

class ToolBarTest : public test::SampleTest {
  protected:
    ToolBarTest() {
        bar.AddButton("1", "open", true);
        bar.AddButton("2", "find", false);
    }
    ToolBar& bar = Get<ToolBar>("Toolbar1");
};

TEST_F(ToolBarTest, ButtonsAreNumberedFromOne) {
    EXPECT_EQ(bar.ButtonCount(), 2);
    EXPECT_EQ(bar.ButtonAt(1).tag, "1");
    EXPECT_TRUE(bar.ButtonAt(1).hasMenu);
    EXPECT_FALSE(bar.ButtonAt(2).hasMenu);
    EXPECT_THAT(On(bar).items, ElementsAre("open", "find"));
    for (const int number : {0, -1, 3}) {
        EXPECT_THROW(bar.ButtonAt(number), SubscriptOutOfRange);
        EXPECT_THROW(bar.SetButtonToolTip(number, "x"), SubscriptOutOfRange);
        EXPECT_THROW(bar.AddMenuEntry(number, "k", "x"), SubscriptOutOfRange);
        EXPECT_THROW(bar.SetMenuEntryText(number, 0, "x"), SubscriptOutOfRange);
    }
}

TEST_F(ToolBarTest, AKeyIsTakenOnceInAMenuWhateverItsCase) {
    bar.AddMenuEntry(1, "Recent1", "a");
    EXPECT_THROW(bar.AddMenuEntry(1, "Recent1", "b"), InvalidPropertyValue);
    EXPECT_THROW(bar.AddMenuEntry(1, "RECENT1", "b"), InvalidPropertyValue);
    EXPECT_EQ(bar.ButtonAt(1).menu.size(), 1U);
    EXPECT_NO_THROW(bar.AddMenuEntry(2, "Recent1", "other menu"));
    EXPECT_NO_THROW(bar.AddMenuEntry(1, "Recent2", "a"));
}

TEST_F(ToolBarTest, TheEmptyKeyCanBeTakenManyTimes) {
    bar.AddMenuEntry(1, "", "-");
    EXPECT_NO_THROW(bar.AddMenuEntry(1, "", "-"));
    EXPECT_EQ(bar.ButtonAt(1).menu.size(), 2U);
}

TEST_F(ToolBarTest, ADashWithoutAKeyIsASeparator) {
    EXPECT_TRUE((ToolBar::MenuEntry{"", "-"}.IsSeparator()));
    EXPECT_FALSE((ToolBar::MenuEntry{"k", "-"}.IsSeparator()));
    EXPECT_FALSE((ToolBar::MenuEntry{"", "a"}.IsSeparator()));
}

TEST_F(ToolBarTest, AnEntrysTextCanChange) {
    bar.AddMenuEntry(1, "k", "before");
    bar.SetMenuEntryText(1, 0, "after");
    EXPECT_EQ(bar.ButtonAt(1).menu[0].text, "after");
    EXPECT_EQ(bar.ButtonAt(1).menu[0].key, "k");
    EXPECT_THROW(bar.SetMenuEntryText(1, 1, "x"), SubscriptOutOfRange);
    EXPECT_THROW(bar.SetMenuEntryText(1, -1, "x"), SubscriptOutOfRange);
    EXPECT_THROW(bar.SetMenuEntryText(2, 0, "x"), SubscriptOutOfRange);
}

TEST_F(ToolBarTest, ToolTipsAreKept) {
    bar.SetButtonToolTip(2, "Find");
    EXPECT_EQ(bar.ButtonAt(2).toolTip, "Find");
    EXPECT_EQ(bar.ButtonAt(1).toolTip, "");
}

TEST_F(ToolBarTest, ClicksTellTheButtonAndTheEntry) {
    std::vector<int> buttons;
    std::vector<std::pair<int, int>> entries;
    bar.ButtonClick.Subscribe([&](int button) { buttons.push_back(button); });
    bar.ButtonMenuClick.Subscribe(
        [&](int button, int entry) { entries.emplace_back(button, entry); });
    bar.UserClickedButton(1);
    bar.UserChoseMenuEntry(0, 3);
    EXPECT_THAT(buttons, ElementsAre(2));
    EXPECT_THAT(entries, ElementsAre(Pair(1, 3)));
}

}  // namespace
}  // namespace ordalyn::toolkit
