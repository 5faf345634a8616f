// Filter and find as the main window offers them.
#include "support/windows/FindWindow.h"

namespace ordalyn::test {
namespace {

using testing::ElementsAre;

class Commands : public FindWindow {};

TEST_F(Commands, TheMenuShowsTheFilterDialogWithTheFocusInItsText) {
    main.Menu("mnuSearchFilter").Choose();
    EXPECT_TRUE(filters.Visible());
    EXPECT_EQ(tools.focus, &cboFilter);
}

TEST_F(Commands, AFilterDialogThatShowsGetsTheFocus) {
    commands.ShowFilterDialog();
    SourceListView.SetFocus();
    commands.ShowFilterDialog();
    EXPECT_EQ(tools.focus, &filters);
    EXPECT_TRUE(filters.Visible());
}

TEST_F(Commands, AClickOnTheThirdPanelShowsTheFilterDialog) {
    StatusBar1.UserClickedPanel(0);
    StatusBar1.UserClickedPanel(1);
    EXPECT_FALSE(filters.Visible());
    StatusBar1.UserClickedPanel(2);
    EXPECT_TRUE(filters.Visible());
    EXPECT_EQ(tools.focus, &cboFilter);
}

TEST_F(Commands, ChoosingADayFiltersItWithoutFillingItTwice) {
    Load({"01.03.2024 10:00:00: Copy a -> b", "02.03.2024 10:00:00: Move a -> b",
          "02.03.2024 10:00:01: Copy a -> b"});
    Filter("copy");
    shownRows.clear();
    ShowDay(1);
    EXPECT_THAT(shownRows, ElementsAre(0));
    EXPECT_THAT(Rows(), ElementsAre(0));
    ShowDay(2);
    EXPECT_THAT(Rows(), ElementsAre(2));
}

TEST_F(Commands, AnotherLanguageReachesTheFindDialogAndTheStatusBar) {
    commands.FindDialog();
    Filter("copy");
    system.files.Set("C:\\Ordalyn\\de.lng",
                     "[UserLanguage]\r\n253=Suchen\r\n252=&Weitersuchen\r\n4032=Filter ist: \r\n");
    settings.UseDefaultLanguage = 0;
    settings.LanguageFile = "C:\\Ordalyn\\de.lng";
    commands.LanguageChanged();
    panels.LanguageChanged();
    EXPECT_EQ(commands.FindDialog().Caption(), "Suchen");
    EXPECT_EQ(commands.FindDialog().Get<toolkit::CommandButton>("cmdFindNext").Caption(),
              "&Weitersuchen");
    EXPECT_EQ(Status(3), "Filter ist:copy  ");  // the file's value is read without its last blank
}

TEST_F(Commands, DialogsThatWereNeverNeededAreMadeAndUnloadedAtTheEnd) {
    commands.UnloadFindDialog();
    EXPECT_EQ(Stored("FindOptions"), "-1,0,0,0");
    commands.UnloadFilterDialog();
    EXPECT_EQ(Stored("FiltersPosition").substr(0, 15), "3495,7740,8910,");
    EXPECT_TRUE(filters.Unloaded());
}

}  // namespace
}  // namespace ordalyn::test
