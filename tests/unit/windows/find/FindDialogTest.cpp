// The find dialog.
#include "support/settings/DesignIds.h"
#include "unit/windows/find/FindDialogFixture.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A dialog that finds the settings file as the test has left it.
class FindDialogStart : public FindWindow {
  protected:
    frmSearchFor& Load() { return commands.FindDialog(); }
};

TEST_F(FindDialogStart, HasItsTextsAndStandsInTheMiddleOfTheScreen) {
    frmSearchFor& dialog = Load();
    EXPECT_THAT(DesignIdFaults(dialog), IsEmpty());
    EXPECT_EQ(dialog.Caption(), "Find");
    EXPECT_EQ(dialog.Get<toolkit::Label>("Label1").Caption(), "&Find what:");
    EXPECT_EQ(dialog.Get<toolkit::Frame>("Frame1").Caption(), "Search in:");
    EXPECT_EQ(dialog.Get<toolkit::CheckBox>("chkSelectedDate").Caption(), "&Selected date only");
    EXPECT_FLOAT_EQ(dialog.Left() + dialog.Width() / 2, tools.workArea.width / 2);
    EXPECT_FLOAT_EQ(dialog.Top() + dialog.Height() / 2, tools.workArea.height / 2);
    EXPECT_FALSE(dialog.Visible());
}

TEST_F(FindDialogStart, ItsTabOrderGoesFromTheTextToTheButtons) {
    std::vector<std::string> order;
    for (const auto& control : Load().Controls())
        order.push_back(control->Name());
    EXPECT_THAT(order, ElementsAre("Label1", "cboFindWhat", "Frame1", "optColumn", "optColumn",
                                   "chkWholeWord", "chkSelectedDate", "cmdFindNext", "cmdCancel",
                                   "cmdClearList"));
}

TEST_F(FindDialogStart, ItsControlsLieInsideAndApart) {
    frmSearchFor& dialog = Load();
    const toolkit::Size inside = dialog.ClientSize();
    for (const auto& control : dialog.Controls()) {
        const toolkit::Rect& a = control->Bounds();
        const bool framed = control->Container() != &dialog;
        const toolkit::Rect& outer = control->Container()->Bounds();
        EXPECT_LE(a.left + a.width, framed ? outer.width : inside.width) << control->Name();
        EXPECT_LE(a.top + a.height, framed ? outer.height : inside.height) << control->Name();
        for (const auto& other : dialog.Controls()) {
            const toolkit::Rect& b = other->Bounds();
            if (other == control || other->Container() != control->Container())
                continue;
            EXPECT_TRUE(a.left + a.width <= b.left || b.left + b.width <= a.left ||
                        a.top + a.height <= b.top || b.top + b.height <= a.top)
                << control->Name() << " " << other->Name();
        }
    }
}

TEST_F(FindDialogStart, WithoutHistoryThereIsNothingToSearchOrClear) {
    frmSearchFor& dialog = Load();
    EXPECT_FALSE(dialog.Get<toolkit::CommandButton>("cmdFindNext").Enabled());
    EXPECT_FALSE(dialog.Get<toolkit::CommandButton>("cmdClearList").Enabled());
    EXPECT_FALSE(mnuSearchFindNext.Enabled());
    EXPECT_TRUE(dialog.Get<toolkit::OptionButton>("optColumn", 0).Checked());
    EXPECT_EQ(commands.Search().StartItem(), 0);
    EXPECT_EQ(commands.Search().Options().ColumnNo, 0);
}

TEST_F(FindDialogStart, TakesUpTheHistoryAndTheOptionsOfTheLastRun) {
    Put("Find1", "newest");
    Put("Find2", "older");
    Put("Find33", "beyond");
    Put("FindOptions", "1,1,1,1");
    frmSearchFor& dialog = Load();
    auto& cboFindWhat = dialog.Get<toolkit::ComboBox>("cboFindWhat");
    EXPECT_THAT(MemoryToolkit::Of(cboFindWhat).items, ElementsAre("newest", "older"));
    EXPECT_EQ(cboFindWhat.Text(), "older");
    EXPECT_TRUE(dialog.Get<toolkit::OptionButton>("optColumn", 1).Checked());
    EXPECT_TRUE(dialog.Get<toolkit::CheckBox>("chkWholeWord").Checked());
    EXPECT_TRUE(dialog.Get<toolkit::CheckBox>("chkSelectedDate").Checked());
    EXPECT_EQ(commands.Search().Options().ColumnNo, 1);
    EXPECT_TRUE(dialog.Get<toolkit::CommandButton>("cmdFindNext").Enabled());
    EXPECT_TRUE(mnuSearchFindNext.Enabled());
    EXPECT_FALSE(dialog.Get<toolkit::CommandButton>("cmdClearList").Enabled());  // not active yet
    tools.ActivateByUser(dialog);
    EXPECT_TRUE(dialog.Get<toolkit::CommandButton>("cmdClearList").Enabled());
}

TEST_F(FindDialogStart, TheEndOfTheProgramWritesTheOptions) {
    frmSearchFor& dialog = Load();
    dialog.Get<toolkit::OptionButton>("optColumn", 1).UserToggled();
    dialog.Get<toolkit::CheckBox>("chkWholeWord").UserToggled();
    dialog.UserClosed();
    EXPECT_EQ(Stored("FindOptions"), "(absent)");
    commands.UnloadFindDialog();
    EXPECT_TRUE(dialog.Unloaded());
    EXPECT_EQ(Stored("FindOptions"), "-1,1,1,0");
}

// Opening.

TEST_F(FindDialog, SearchFindShowsItWithItsTextSelected) {
    Type("copy");
    FindNext();
    Show();
    EXPECT_TRUE(dialog.Visible());
    EXPECT_EQ(commands.Search().StartItem(), 0);
    EXPECT_EQ(MemoryToolkit::Of(cboFindWhat).selectionStart, 0U);
    EXPECT_EQ(MemoryToolkit::Of(cboFindWhat).selectionLength, 4U);
    EXPECT_EQ(tools.focus, &cboFindWhat);
    EXPECT_TRUE(cmdClearList.Enabled());
}

TEST_F(FindDialog, WhoComesBackToItFindsTheTextReady) {
    Show();
    cmdCancel.SetFocus();
    tools.ActivateByUser(dialog);
    EXPECT_EQ(tools.focus, &cboFindWhat);
}

TEST_F(FindDialog, AClickThatActivatesItLeavesTheFocusToTheControl) {
    Type("copy");
    FindNext();
    cmdClearList.SetEnabled(false);
    cmdFindNext.SetFocus();
    tools.ActivateByUser(dialog, true);
    EXPECT_EQ(tools.focus, &cmdFindNext);
    EXPECT_TRUE(cmdClearList.Enabled());
}

TEST_F(FindDialog, CancelEscapeAndTheCloseBoxHideIt) {
    Show();
    cmdCancel.UserClicked();
    EXPECT_FALSE(dialog.Visible());
    Show();
    tools.PressIn(dialog, cboFindWhat, toolkit::key::Escape);
    EXPECT_FALSE(dialog.Visible());
    Show();
    dialog.UserClosed();
    EXPECT_FALSE(dialog.Visible());
    EXPECT_FALSE(dialog.Unloaded());
}

// The text.

TEST_F(FindDialog, CanSearchOnlyWithAText) {
    Type("x");
    EXPECT_TRUE(cmdFindNext.Enabled());
    EXPECT_TRUE(mnuSearchFindNext.Enabled());
    Type("");
    EXPECT_FALSE(cmdFindNext.Enabled());
    EXPECT_FALSE(mnuSearchFindNext.Enabled());
}

TEST_F(FindDialog, AnItemOfTheHistoryIsATextToo) {
    Type("copy");
    FindNext();
    Type("");
    cboFindWhat.UserSelected(0);
    EXPECT_TRUE(cmdFindNext.Enabled());
    EXPECT_TRUE(mnuSearchFindNext.Enabled());
    FindNext();
    EXPECT_EQ(SelectedEntry(), 0);
}

TEST_F(FindDialog, AnItemOfTheHistoryBeginsWithTheFirstEntryAgain) {
    Type("copy");
    FindNext();
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
    cboFindWhat.UserSelected(0);
    EXPECT_EQ(commands.Search().StartItem(), 0);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 0);
}

TEST_F(FindDialog, EnterSearches) {
    Show();
    Type("move");
    tools.PressIn(dialog, cboFindWhat, toolkit::key::Enter);
    EXPECT_EQ(SelectedEntry(), 1);
}

// Searching.

TEST_F(FindDialog, SearchesFindOneAfterTheOtherAndThenReportThatThereAreNoMore) {
    Type("copy");
    FindNext();
    EXPECT_EQ(SelectedEntry(), 0);
    EXPECT_EQ(commands.Search().StartItem(), 1);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 3);
    EXPECT_THAT(tools.messages, IsEmpty());
    FindNext();
    ASSERT_EQ(tools.messages.size(), 1U);
    EXPECT_EQ(MessageText(), "Cannot find \"copy\"");
    EXPECT_EQ(tools.messages[0].icon, toolkit::MessageIcon::Information);
    EXPECT_EQ(tools.messages[0].buttons, toolkit::MessageButtons::Ok);
    EXPECT_EQ(SelectedEntry(), 3);
    EXPECT_EQ(commands.Search().StartItem(), 0);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 0);
}

TEST_F(FindDialog, TheMessageBelongsToTheWindowThatIsSeen) {
    Type("nothing holds this");
    mnuSearchFindNext.Choose();
    EXPECT_EQ(tools.messages.back().owner, &main);
    Show();
    FindNext();
    EXPECT_EQ(tools.messages.back().owner, &dialog);
}

TEST_F(FindDialog, TheMenuGoesOnWithTheSearch) {
    Type("copy");
    FindNext();
    dialog.Hide();
    mnuSearchFindNext.Choose();
    EXPECT_EQ(SelectedEntry(), 2);
    EXPECT_THAT(History(), ElementsAre("copy"));
}

TEST_F(FindDialog, TheMenuDoesNotRememberTheText) {
    Type("copy");
    mnuSearchFindNext.Choose();
    EXPECT_EQ(SelectedEntry(), 0);
    EXPECT_THAT(History(), IsEmpty());
}

TEST_F(FindDialog, WithoutATextTheMenuBeeps) {
    commands.FindNext();
    EXPECT_EQ(tools.beeps, 1);
    EXPECT_THAT(tools.messages, IsEmpty());
    EXPECT_EQ(commands.Search().StartItem(), 0);
}

TEST_F(FindDialog, ANewTextBeginsWithTheFirstEntryAgain) {
    Type("copy");
    FindNext();
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
    Type("cop");
    EXPECT_EQ(commands.Search().StartItem(), 0);
    FindNext();
    EXPECT_EQ(SelectedEntry(), 0);
}

TEST_F(FindDialog, WholeWordAndColumnBeginWithTheFirstEntryAgainTheSelectedDateDoesNot) {
    ShowDay(1);
    Type("copy");
    FindNext();
    EXPECT_EQ(commands.Search().StartItem(), 1);
    chkSelectedDate.UserToggled();
    EXPECT_EQ(commands.Search().StartItem(), 1);
    chkWholeWord.UserToggled();
    EXPECT_EQ(commands.Search().StartItem(), 0);
    FindNext();
    EXPECT_NE(commands.Search().StartItem(), 0);
    optTarget.UserToggled();
    EXPECT_EQ(commands.Search().StartItem(), 0);
    EXPECT_EQ(commands.Search().Options().ColumnNo, 1);
    chkWholeWord.UserToggled();
    Type("copies");
    FindNext();
    EXPECT_NE(commands.Search().StartItem(), 0);
    optSource.UserToggled();
    EXPECT_EQ(commands.Search().StartItem(), 0);
    EXPECT_EQ(commands.Search().Options().ColumnNo, 0);
}

TEST_F(FindDialog, SearchesTheChosenColumn) {
    optTarget.UserToggled();
    Type("copies");
    FindNext();
    EXPECT_EQ(SelectedEntry(), 1);
    FindNext();
    EXPECT_EQ(MessageText(), "Cannot find \"copies\"");
}

TEST_F(FindDialog, SearchesWholeWordsWhenAsked) {
    chkWholeWord.UserToggled();
    Type("copy");
    FindNext();
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
    FindNext();  // not the one in the path
    EXPECT_EQ(tools.messages.size(), 1U);
}

TEST_F(FindDialog, PassesOverRowsThatTheFilterRemoved) {
    Filter("c.txt");
    Type("copy");
    FindNext();
    EXPECT_EQ(SelectedEntry(), 2);
    FindNext();
    EXPECT_EQ(tools.messages.size(), 1U);
}

// The history.

TEST_F(FindDialog, TheButtonRemembersTheTextAlsoWhenItIsNotFound) {
    Type("copy");
    FindNext();
    Type("nothing holds this");
    FindNext();
    EXPECT_THAT(History(), ElementsAre("nothing holds this", "copy"));
    EXPECT_EQ(Stored("Find1"), "nothing holds this");
    EXPECT_EQ(Stored("Find2"), "copy");
    for (int i = 0; i < 40; ++i) {
        Type("text " + std::to_string(i));
        FindNext();
    }
    EXPECT_EQ(History().size(), 32U);
    EXPECT_EQ(Stored("Find33"), "(absent)");
}

TEST_F(FindDialog, RememberingDoesNotBeginTheSearchAnew) {
    Type("copy");
    FindNext();
    EXPECT_EQ(commands.Search().StartItem(), 1);
    EXPECT_EQ(cboFindWhat.Text(), "copy");
}

TEST_F(FindDialog, ClearListAsksAndDisablesWhatNeedsAText) {
    Type("copy");
    FindNext();
    Show();
    tools.onMessage = [](const ShownMessage&) { return toolkit::Answer::No; };
    cmdClearList.UserClicked();
    EXPECT_EQ(MessageText(), "Are you sure?");
    EXPECT_THAT(History(), ElementsAre("copy"));
    EXPECT_TRUE(cmdFindNext.Enabled());
    EXPECT_TRUE(cmdClearList.Enabled());
    tools.onMessage = [](const ShownMessage&) { return toolkit::Answer::Yes; };
    cmdClearList.UserClicked();
    EXPECT_THAT(History(), IsEmpty());
    EXPECT_EQ(cboFindWhat.Text(), "");
    EXPECT_FALSE(cmdFindNext.Enabled());
    EXPECT_FALSE(cmdClearList.Enabled());
    EXPECT_EQ(Stored("Find1"), "(absent)");
    // The menu can still be chosen, and beeps.
    mnuSearchFindNext.Choose();
    EXPECT_EQ(tools.beeps, 1);
    tools.ActivateByUser(dialog);
    EXPECT_FALSE(cmdClearList.Enabled());
}

}  // namespace
}  // namespace ordalyn::test
