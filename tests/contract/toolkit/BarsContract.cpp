// Status bars, tab strips, tool bars and progress bars.
#include "contract/toolkit/ToolkitContract.h"

namespace ordalyn::contract {
namespace {

using namespace toolkit;
using testing::ElementsAre;
using testing::Pair;

class Bars : public ToolkitContract {};
INSTANTIATE_TEST_SUITE_P(Toolkit, Bars, AllRealisations(), RealisationName);

TEST_P(Bars, PanelsShowTheirTexts) {
    auto& bar = Get<StatusBar>("sbrStatus");
    bar.AddPanel(1500);
    bar.AddPanel(1500);
    bar.AddPanel(0);
    bar.SetPanelText(1, "one  ");
    bar.SetPanelText(3, "Größe 日本");
    Show();
    EXPECT_THAT(User().PanelTexts(bar), ElementsAre("one  ", "", "Größe 日本"));
    bar.SetPanelBevel(1, Bevel::None);
    bar.SetPanelBevel(3, Bevel::None);
    bar.SetPanelBevel(3, Bevel::Inset);
    EXPECT_THAT(User().PanelTexts(bar), ElementsAre("one  ", "", "Größe 日本"));
    bar.SetPanelText(1, "");
    User().ResizeTo(Form(), {500, 400});
    EXPECT_THAT(User().PanelTexts(bar), ElementsAre("", "", "Größe 日本"));
}

TEST_P(Bars, AClickedPanelTellsItsNumber) {
    auto& bar = Get<StatusBar>("sbrStatus");
    for (const Twips width : {1500.0F, 1500.0F, 0.0F})
        bar.AddPanel(width);
    std::vector<int> numbers;
    bar.PanelClick.Subscribe([&](int number) { numbers.push_back(number); });
    Show();
    User().ClickPanel(bar, 1);
    User().ClickPanel(bar, 3);
    User().ClickPanel(bar, 2);
    EXPECT_THAT(numbers, ElementsAre(1, 3, 2));
}

TEST_P(Bars, ATabRaisesClickForCodeAndForTheUser) {
    auto& strip = Get<TabStrip>("tabStrip");
    Counter clicked(strip.Click);
    strip.AddTab("a");
    strip.AddTab("b");
    strip.AddTab("c");
    strip.SetTabCaption(1, "Eins");
    strip.SetTabCaption(2, "Größe");
    strip.SetTabCaption(3, "Drei");
    Show();
    EXPECT_EQ(clicked.Take(), 0);
    EXPECT_EQ(strip.SelectedTab(), 1);
    EXPECT_EQ(User().SelectedTab(strip), 1);
    EXPECT_THAT(User().TabCaptions(strip), ElementsAre("Eins", "Größe", "Drei"));
    strip.SelectTab(3);
    Settle();
    EXPECT_EQ(clicked.Take(), 1);
    EXPECT_EQ(User().SelectedTab(strip), 3);
    User().ClickTab(strip, 2);
    EXPECT_EQ(clicked.Take(), 1);
    EXPECT_EQ(strip.SelectedTab(), 2);
    EXPECT_EQ(User().SelectedTab(strip), 2);
}

class ToolBars : public ToolkitContract {
  protected:
    void SetUp() override {
        bar.AddButton("1", "open", true);
        bar.AddButton("2", "find", false);
        bar.SetButtonToolTip(1, "Open");
        bar.AddMenuEntry(1, "a", "first");
        bar.AddMenuEntry(1, "", "-");
        bar.AddMenuEntry(1, "b", "second");
        bar.ButtonClick.Subscribe([this](int button) { buttons.push_back(button); });
        bar.ButtonMenuClick.Subscribe(
            [this](int button, int entry) { entries.emplace_back(button, entry); });
        Show();
    }
    ToolBar& bar = Get<ToolBar>("tbrTools");
    std::vector<int> buttons;
    std::vector<std::pair<int, int>> entries;
};
INSTANTIATE_TEST_SUITE_P(Toolkit, ToolBars, AllRealisations(), RealisationName);

TEST_P(ToolBars, AButtonTellsItsNumber) {
    EXPECT_EQ(User().ToolButtonCount(bar), 2);
    User().ClickToolButton(bar, 2);
    User().ClickToolButton(bar, 1);
    EXPECT_THAT(buttons, ElementsAre(2, 1));
    EXPECT_TRUE(entries.empty());
}

TEST_P(ToolBars, AMenuEntryTellsItsButtonAndPlace) {
    User().ChooseToolMenuEntry(bar, 1, 0);
    User().ChooseToolMenuEntry(bar, 1, 2);
    EXPECT_THAT(entries, ElementsAre(Pair(1, 0), Pair(1, 2)));
    EXPECT_TRUE(buttons.empty());
}

TEST_P(ToolBars, AMenuIsReadWhenItIsOpened) {
    bar.AddMenuEntry(1, "c", "third");
    bar.SetMenuEntryText(1, 0, "changed");
    User().ChooseToolMenuEntry(bar, 1, 3);
    EXPECT_THAT(entries, ElementsAre(Pair(1, 3)));
}

TEST_P(ToolBars, ArrowsWalkTheButtonsAndSpaceAndEnterPressThem) {
    bar.AddButton("", "separator", false);
    bar.AddButton("4", "find", false);
    Counter ok(Get<CommandButton>("cmdOk").Click);
    Get<TabStrip>("tabStrip").SetFocus();
    Settle();
    const auto press = [&](int key) { User().PressKey(Form(), key); };
    press(key::Tab);
    ASSERT_TRUE(User().HasFocus(bar));
    press(key::Space);
    press(key::Right);
    press(key::Enter);
    press(key::Right);
    press(key::Space);
    press(key::Right);
    press(key::Space);
    press(key::Left);
    press(key::Left);
    press(key::Enter);
    EXPECT_THAT(buttons, ElementsAre(1, 2, 4, 1, 2));
    EXPECT_EQ(ok.Take(), 0) << "Enter is the bar's while it has the focus";
    press(key::Tab);
    press(key::Tab);
    EXPECT_TRUE(User().HasFocus(Get<CommandButton>("cmdOk")));
    press(key::Left);
    press(key::Space);
    EXPECT_EQ(buttons.size(), 5U);
}

TEST_P(ToolBars, DownOpensTheMenuOfTheCurrentButton) {
    bar.SetFocus();
    Settle();
    User().ChooseToolMenuEntryByKeys(bar, 1, 2);
    User().ChooseToolMenuEntryByKeys(bar, 1, 0);
    EXPECT_THAT(entries, ElementsAre(Pair(1, 2), Pair(1, 0)));
    EXPECT_TRUE(buttons.empty());
    EXPECT_TRUE(User().HasFocus(bar));
    User().PressKey(Form(), key::Right);
    User().PressKey(Form(), key::Down);
    EXPECT_EQ(entries.size(), 2U) << "a button without a menu";
}

TEST_P(ToolBars, EscapeIsLeftToTheForm) {
    Counter cancel(Get<CommandButton>("cmdCancel").Click);
    bar.SetFocus();
    Settle();
    User().PressKey(Form(), key::Escape);
    EXPECT_EQ(cancel.Take(), 1);
}

TEST_P(ToolBars, ADisabledBarCannotBeUsed) {
    bar.SetEnabled(false);
    User().ClickToolButton(bar, 2);
    EXPECT_TRUE(buttons.empty());
}

TEST_P(Bars, AProgressBarFillsWithItsValue) {
    auto& bar = Get<ProgressBar>("pgbBar");
    Show();
    EXPECT_EQ(User().FilledPart(bar), 0);
    bar.SetMaximum(8);
    for (int value = 0; value <= 8; ++value) {
        bar.SetValue(value);
        EXPECT_NEAR(User().FilledPart(bar), value / 8.0, 0.001);
    }
    bar.SetValue(2);
    EXPECT_NEAR(User().FilledPart(bar), 0.25, 0.001);
    bar.SetMaximum(2);
    EXPECT_EQ(User().FilledPart(bar), 1);
    bar.SetValue(0);
    EXPECT_EQ(User().FilledPart(bar), 0);
    bar.SetMaximum(2'000'000'000);
    bar.SetValue(1'000'000'000);
    EXPECT_NEAR(User().FilledPart(bar), 0.5, 0.001);
}

}  // namespace
}  // namespace ordalyn::contract
