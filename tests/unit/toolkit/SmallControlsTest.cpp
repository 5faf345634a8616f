// Text box, progress bar, status bar, tab strip.
#include "SampleTest.h"

namespace ordalyn::toolkit {
namespace {

using test::Counter;
using testing::ElementsAre;

class TextBoxTest : public test::SampleTest {
  protected:
    TextBox& box = Get<TextBox>("txtBox");
    Counter changed{box.Change};
};

TEST_F(TextBoxTest, ANewTextRaisesChange) {
    box.SetText("a");
    EXPECT_EQ(box.Text(), "a");
    EXPECT_EQ(On(box).text, "a");
    EXPECT_EQ(changed.Take(), 1);
    box.SetText("a");
    EXPECT_EQ(changed.Take(), 0);
    box.SetText("A");
    EXPECT_EQ(changed.Take(), 1);
}

TEST_F(TextBoxTest, TypingRaisesChange) {
    box.UserEdited("ä");
    EXPECT_EQ(box.Text(), "ä");
    EXPECT_EQ(changed.Take(), 1);
    box.UserEdited("ä");
    EXPECT_EQ(changed.Take(), 0);
}

TEST_F(TextBoxTest, AllOfTheTextCanBeSelected) {
    box.SetText("abc");
    box.SelectAll();
    EXPECT_EQ(On(box).selectionStart, 0U);
    EXPECT_EQ(On(box).selectionLength, 3U);
}

class ProgressBarTest : public test::SampleTest {
  protected:
    ProgressBar& bar = Get<ProgressBar>("pgbBar");
};

TEST_F(ProgressBarTest, RunsFromNoughtToItsMaximum) {
    EXPECT_EQ(bar.Maximum(), 100);
    EXPECT_EQ(bar.Value(), 0);
    bar.SetValue(100);
    EXPECT_EQ(bar.Value(), 100);
    EXPECT_EQ(On(bar).value, On(bar).maximum);
    bar.SetValue(0);
    EXPECT_EQ(On(bar).value, On(bar).minimum);
}

TEST_F(ProgressBarTest, AValueOutsideThrowsAndChangesNothing) {
    bar.SetValue(50);
    EXPECT_THROW(bar.SetValue(-1), InvalidPropertyValue);
    EXPECT_THROW(bar.SetValue(101), InvalidPropertyValue);
    EXPECT_EQ(bar.Value(), 50);
}

TEST_F(ProgressBarTest, AMaximumBelowOneThrows) {
    EXPECT_THROW(bar.SetMaximum(0), InvalidPropertyValue);
    EXPECT_THROW(bar.SetMaximum(-5), InvalidPropertyValue);
    EXPECT_EQ(bar.Maximum(), 100);
    EXPECT_NO_THROW(bar.SetMaximum(1));
}

TEST_F(ProgressBarTest, AValueAboveTheNewMaximumIsLoweredToIt) {
    bar.SetValue(80);
    bar.SetMaximum(40);
    EXPECT_EQ(bar.Value(), 40);
    EXPECT_EQ(On(bar).value, On(bar).maximum);
    bar.SetMaximum(80);
    EXPECT_EQ(bar.Value(), 40);
    EXPECT_EQ(On(bar).value, On(bar).maximum / 2);
}

TEST_F(ProgressBarTest, ThePictureIsOnlyUpdatedWhenItWouldLookDifferent) {
    bar.SetMaximum(1'000'000);
    for (int value = 0; value <= 1'000'000; ++value)
        bar.SetValue(value);
    EXPECT_LE(On(bar).values.size(), 1000U);
    EXPECT_EQ(On(bar).value, On(bar).maximum);
    EXPECT_TRUE(std::is_sorted(On(bar).values.begin(), On(bar).values.end()));
}

TEST_F(ProgressBarTest, TheLargestMaximumDoesNotOverflow) {
    bar.SetMaximum(2147483647);
    bar.SetValue(2147483647);
    EXPECT_EQ(On(bar).value, On(bar).maximum);
    bar.SetValue(1073741824);
    EXPECT_EQ(On(bar).value, On(bar).maximum / 2);
}

class StatusBarTest : public test::SampleTest {
  protected:
    StatusBarTest() {
        bar.AddPanel(1000);
        bar.AddPanel(2000);
        bar.AddPanel(0);
    }
    StatusBar& bar = Get<StatusBar>("StatusBar1");
};

TEST_F(StatusBarTest, PanelsAreNumberedFromOne) {
    EXPECT_EQ(bar.PanelCount(), 3);
    bar.SetPanelText(1, "one  ");
    bar.SetPanelText(3, "three");
    EXPECT_EQ(bar.PanelText(1), "one  ");
    EXPECT_EQ(bar.PanelText(2), "");
    EXPECT_EQ(On(bar).panels[0].text, "one  ");
    EXPECT_EQ(On(bar).panels[0].width, 1000);
    EXPECT_EQ(On(bar).panels[2].text, "three");
    EXPECT_EQ(On(bar).panels[2].width, 0);
}

TEST_F(StatusBarTest, AnotherNumberThrows) {
    for (const int number : {0, -1, 4}) {
        EXPECT_THROW(bar.PanelText(number), SubscriptOutOfRange);
        EXPECT_THROW(bar.SetPanelText(number, "x"), SubscriptOutOfRange);
        EXPECT_THROW(bar.PanelBevel(number), SubscriptOutOfRange);
        EXPECT_THROW(bar.SetPanelBevel(number, Bevel::None), SubscriptOutOfRange);
    }
}

TEST_F(StatusBarTest, PanelsAreInsetUntilTheyAreNot) {
    EXPECT_EQ(bar.PanelBevel(2), Bevel::Inset);
    bar.SetPanelText(2, "two");
    bar.SetPanelBevel(2, Bevel::None);
    EXPECT_EQ(bar.PanelBevel(2), Bevel::None);
    EXPECT_EQ(On(bar).panels[1].bevel, Bevel::None);
    EXPECT_EQ(On(bar).panels[1].text, "two");
}

TEST_F(StatusBarTest, AClickTellsThePanelsNumber) {
    std::vector<int> numbers;
    bar.PanelClick.Subscribe([&](int number) { numbers.push_back(number); });
    bar.UserClickedPanel(0);
    bar.UserClickedPanel(2);
    EXPECT_THAT(numbers, ElementsAre(1, 3));
}

class TabStripTest : public test::SampleTest {
  protected:
    TabStrip& strip = Get<TabStrip>("tabStrip");
    Counter clicked{strip.Click};
};

TEST_F(TabStripTest, TheFirstTabIsSelectedWithoutAnEvent) {
    EXPECT_EQ(strip.SelectedTab(), 0);
    strip.AddTab("a");
    EXPECT_EQ(strip.SelectedTab(), 1);
    strip.AddTab("b");
    EXPECT_EQ(strip.SelectedTab(), 1);
    EXPECT_EQ(clicked.Take(), 0);
    EXPECT_EQ(strip.TabCount(), 2);
    EXPECT_EQ(strip.TabAt(2).tag, "b");
}

TEST_F(TabStripTest, SelectingRaisesClickByCodeAndByTheUser) {
    strip.AddTab("a");
    strip.AddTab("b");
    strip.SelectTab(2);
    EXPECT_EQ(strip.SelectedTab(), 2);
    EXPECT_EQ(On(strip).selectedTab, 1);
    EXPECT_EQ(clicked.Take(), 1);
    strip.SelectTab(2);
    EXPECT_EQ(clicked.Take(), 1);
    strip.UserSelected(0);
    EXPECT_EQ(strip.SelectedTab(), 1);
    EXPECT_EQ(clicked.Take(), 1);
}

TEST_F(TabStripTest, AnotherNumberThrows) {
    strip.AddTab("a");
    for (const int number : {0, -1, 2}) {
        EXPECT_THROW(strip.TabAt(number), SubscriptOutOfRange);
        EXPECT_THROW(strip.SelectTab(number), SubscriptOutOfRange);
        EXPECT_THROW(strip.SetTabCaption(number, "x"), SubscriptOutOfRange);
    }
    EXPECT_EQ(strip.SelectedTab(), 1);
    EXPECT_EQ(clicked.Take(), 0);
}

TEST_F(TabStripTest, CaptionsAreShown) {
    strip.AddTab("a");
    strip.AddTab("b");
    strip.SetTabCaption(2, "&Zwei");
    EXPECT_EQ(strip.TabAt(2).caption, "&Zwei");
    EXPECT_THAT(On(strip).tabs, ElementsAre("", "&Zwei"));
}

}  // namespace
}  // namespace ordalyn::toolkit
