// "Selected date only": when it can be chosen, and where a search goes with it.
#include "unit/windows/find/FindDialogFixture.h"

namespace ordalyn::test {
namespace {

TEST_F(FindDialog, WithAllDatesShownTheSelectedDateIsClearedAndDisabled) {
    ShowDay(1);
    chkSelectedDate.UserToggled();
    ShowDay(0);
    EXPECT_FALSE(chkSelectedDate.Checked());
    EXPECT_FALSE(chkSelectedDate.Enabled());
    Show();
    EXPECT_FALSE(chkSelectedDate.Checked());
    EXPECT_FALSE(chkSelectedDate.Enabled());
}

TEST_F(FindDialog, WithADayShownTheSelectedDateIsEnabledAndKept) {
    ShowDay(1);
    EXPECT_TRUE(chkSelectedDate.Enabled());
    chkSelectedDate.UserToggled();
    chkSelectedDate.SetEnabled(false);
    Show();
    EXPECT_TRUE(chkSelectedDate.Enabled());
    EXPECT_TRUE(chkSelectedDate.Checked());
    ShowDay(2);
    EXPECT_TRUE(chkSelectedDate.Checked());
}

TEST_F(FindDialog, StaysWithinTheSelectedDate) {
    ShowDay(2);
    chkSelectedDate.UserToggled();
    Type("copy");
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 3);
    FindNext();
    EXPECT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(cboDate.ListIndex(), 2);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
}

TEST_F(FindDialog, PassesOverHitsOutsideTheSelectedDate) {
    Type("c:\\");
    FindNext();
    EXPECT_EQ(SelectedEntry(), 0);
    ShowDay(2);
    chkSelectedDate.UserToggled();
    FindNext();  // not entry 1, which is next but of the day before
    EXPECT_EQ(cboDate.ListIndex(), 2);
    EXPECT_EQ(SelectedEntry(), 2);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 3);
    FindNext();
    EXPECT_EQ(MessageText(), "Cannot find \"c:\\\"");
    // Nor what stands behind the day.
    ShowDay(1);
    FindNext();
    FindNext();
    EXPECT_EQ(SelectedEntry(), 1);
    FindNext();
    EXPECT_EQ(tools.messages.size(), 2U);
    EXPECT_EQ(cboDate.ListIndex(), 1);
}

TEST_F(FindDialog, TheSelectedDateIsDecidedWhileItIsOpen) {
    ShowDay(1);
    Show();
    Type("copy");
    chkSelectedDate.UserToggled();
    ShowDay(2);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
    // All dates shown: there is no selected one, neither in the box nor for the search.
    ShowDay(0);
    EXPECT_FALSE(chkSelectedDate.Enabled());
    EXPECT_FALSE(chkSelectedDate.Checked());
    EXPECT_FALSE(commands.Search().Options().selectedDateOnly);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 3);
    ShowDay(1);
    EXPECT_TRUE(chkSelectedDate.Enabled());
    EXPECT_FALSE(chkSelectedDate.Checked());
    chkSelectedDate.UserToggled();
    EXPECT_TRUE(commands.Search().Options().selectedDateOnly);
    chkSelectedDate.UserToggled();
    EXPECT_FALSE(commands.Search().Options().selectedDateOnly);
}

TEST_F(FindDialog, AnotherDayChosenAfterAMatchBeginsWhereTheLastSearchEnded) {
    ShowDay(1);
    chkSelectedDate.UserToggled();
    Type("copy");
    FindNext();
    EXPECT_EQ(SelectedEntry(), 0);
    ShowDay(2);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
    ShowDay(1);
    FindNext();  // begins with entry 3, behind the day
    EXPECT_EQ(tools.messages.size(), 1U);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 0);
}

}  // namespace
}  // namespace ordalyn::test
